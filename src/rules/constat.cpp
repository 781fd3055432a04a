#include "rules/constat.h"

#include <cstring>

namespace quilvane {

constinit constat constats[MAX_ERREURS] = {};

int ajouterErreur(int compte, int numero, eOrigine origine, const sCorps* ligne) {
    if (compte >= MAX_ERREURS) return compte;
    codeErreur[compte] = numero;
    constats[compte] = {numero, origine, ligne};
    return compte + 1;
}

const sCorps* champDe(const sCorps* ligne) {
    while (ligne->debut == 0)
        --ligne;
    return ligne;
}

extrait texteDe(const constat& c) {
    if (c.ligne == nullptr) return {"", 0};
    const sCorps* const champ = champDe(c.ligne);
    const char* const debut = xdebug + champ->debut - 1;
    const int largeur = champ->fin - champ->debut + 1;
    return {debut, static_cast<int>(strnlen(debut, static_cast<std::size_t>(largeur)))};
}

}  // namespace quilvane
