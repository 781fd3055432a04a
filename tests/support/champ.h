/**
 * champ.h - calling checks with literal texts.
 */
#ifndef QUILVANE_TESTS_SUPPORT_CHAMP_H
#define QUILVANE_TESTS_SUPPORT_CHAMP_H

#include <cstring>
#include <string>
#include <vector>

#include "checks/valautorise.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace essai {

/**
 * Calls a check on `champ`, held in a buffer of its exact length so that a
 * sanitizer sees any look behind the terminator. When `apres` is given it
 * receives the field as the check left it.
 */
inline bool accepte(quilvane::fVerif* verif, const std::string& dependance, const std::string& champ,
                    const quilvane::liste& sverif = quilvane::sansListe, std::string* apres = nullptr) {
    std::vector<char> c(champ.c_str(), champ.c_str() + champ.size() + 1);
    const std::vector<char> d(dependance.c_str(), dependance.c_str() + dependance.size() + 1);
    const int verdict = verif(d.data(), c.data(), sverif);
    if (apres != nullptr) *apres = c.data();
    return verdict != 0;
}

/** Puts a text into a slot of the field store. */
inline void remplir(quilvane::valeurVSE& slot, const std::string& texte) {
    std::strncpy(slot.valeur, texte.c_str(), sizeof slot.valeur - 1);
    slot.valeur[sizeof slot.valeur - 1] = '\0';
}

}  // namespace essai

#endif
