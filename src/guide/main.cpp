#include "guide/commandes.h"

int main(int argc, char* argv[]) {
    using namespace quilvane::guide;
    sDemandeLue d;
    switch (lireLigne(argc, argv, d)) {
        case LECTURE_FINIE: return STATUT_ACCEPTE;
        case LECTURE_FAUSSE: return STATUT_USAGE;
        case LECTURE_RATEE: return STATUT_ARRET;
        default: return commandeDe(d.commande)->executer(d);
    }
}
