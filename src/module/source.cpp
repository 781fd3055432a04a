#include "module/source.h"

#include "module/module.h"

namespace quilvane::module {

namespace {

/** The numbers of the inputs being read, by place. */
int ouvertes[2];

std::size_t remplir(void* source, unsigned char* bloc, std::size_t taille, bool& erreur) {
    const int lus = quilvane_lire(*static_cast<const int*>(source), bloc, static_cast<int>(taille));
    erreur = lus < 0;
    return lus < 0 ? 0 : static_cast<std::size_t>(lus);
}

}  // namespace

lecteur& ouvrir(int source, int place) {
    static lecteur lecteurs[2];
    lecteur& l = lecteurs[place];
    l = {};
    l.remplir = remplir;
    l.source = &ouvertes[place];
    ouvertes[place] = source;
    quilvane_rembobiner(source);
    return l;
}

std::string nomDe(int source) {
    char nom[1024];
    const int n = quilvane_nommer(source, nom, sizeof nom);
    return {nom, static_cast<std::size_t>(n)};
}

}  // namespace quilvane::module
