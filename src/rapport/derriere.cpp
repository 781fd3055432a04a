#include "rapport/derriere.h"

#include "rapport/explication.h"

namespace quilvane {

namespace {

constexpr int ERR_INTERDIT = 86;

valeurVSE* slotsDe(const sTable& t) {
    return t.partie[0] == 'E' ? valEnteteVSE : t.partie[0] == 'C' ? valCorpsVSE : valFinVSE;
}

/** The number that a row gives, 0 for none. Checks may rewrite their slot:
 *  they get a copy. */
int essayer(const sTable& t, const sCorps* ligne) {
    if (ligne->pfVerif == nullptr) return 0;
    const int presence = presenceDe(t, ligne, entete(E5));
    if (presence != 0) return presence == 2 ? ERR_INTERDIT : 0;
    valeurVSE copie = slotsDe(t)[placeDe(ligne).emplacement];
    return accepte(ligne, copie.valeur) ? 0 : ligne->noErr;
}

}  // namespace

void ajouterDerriere(sRecordVu& r, const lot& l, const sTable* corps, eLangue langue) {
    const sCorps* const dixieme = constats[MAX_ERREURS - 1].ligne;
    // An error without a row is one about partners: the footer alone is left.
    bool apres = false;
    for (const sTable* const t : {tableNommee("E"), corps, tableNommee("F")}) {
        if (t == nullptr) continue;
        apres = apres || (dixieme == nullptr && t->partie[0] == 'F');
        for (const sCorps* ligne = t->lignes; ligne != t->lignes + t->nombre; ++ligne) {
            const int numero = apres ? essayer(*t, ligne) : 0;
            apres = apres || ligne == dixieme;
            if (numero == 0) continue;
            r.erreurs.push_back(expliquer({numero, ORIGINE_TABLE, ligne}, l, corps, langue));
            r.erreurs.back().derriere = true;
        }
    }
}

}  // namespace quilvane
