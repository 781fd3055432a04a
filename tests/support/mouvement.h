/**
 * mouvement.h - the slots that the own checks of ENTR and SORT read, and the
 * cause letters that a check refuses.
 */
#ifndef QUILVANE_TESTS_SUPPORT_MOUVEMENT_H
#define QUILVANE_TESTS_SUPPORT_MOUVEMENT_H

#include <string>

#include "support/champ.h"

namespace essai {

/** A movement: date C4, cause C5, other holding C8 and C9. */
struct fiche {
    std::string c4 = "15032024";
    std::string c5 = "A";
    std::string c8 = "FR";
    std::string c9 = "35123456    ";

    void placer() const {
        remplir(quilvane::valCorpsVSE[quilvane::C4], c4);
        remplir(quilvane::valCorpsVSE[quilvane::C5], c5);
        remplir(quilvane::valCorpsVSE[quilvane::C8], c8);
        remplir(quilvane::valCorpsVSE[quilvane::C9], c9);
    }
};

/** Texts that fields hold; NUMERO is a French holding number. */
inline const std::string SANS_PAYS(2, ' ');
inline const std::string SANS_NUMERO(12, ' ');
inline const std::string SANS_TEXTE(60, ' ');
inline const std::string NUMERO = "35123456    ";

/** The causes, of all printable characters, for which `verif` refuses or
 *  accepts `champ` in the movement `f`. */
inline std::string causes(bool acceptees, quilvane::fVerif* verif, fiche f, const std::string& champ,
                          const std::string& dependance = "") {
    std::string r;
    for (char c = ' '; c <= '~'; ++c) {
        f.c5 = std::string(1, c);
        f.placer();
        if (accepte(verif, dependance, champ) == acceptees) r += c;
    }
    return r;
}
inline std::string causesRefusees(quilvane::fVerif* verif, const fiche& f, const std::string& champ,
                                  const std::string& dependance = "") {
    return causes(false, verif, f, champ, dependance);
}
inline std::string causesAcceptees(quilvane::fVerif* verif, const fiche& f, const std::string& champ,
                                   const std::string& dependance = "") {
    return causes(true, verif, f, champ, dependance);
}

/** Movement dates on both sides of `P8`, 1 January 1999; blanks count as zeros. */
struct dateMouvement {
    const char* c4;
    bool avantP8;
};
inline constexpr dateMouvement AUTOUR_DE_P8[] = {
    {"31121998", true},  {"01011999", false}, {"02011999", false}, {"  011999", true},
    {"00011999", true},  {"    1999", true},  {"  021999", false}, {"    1998", true},
    {"    2000", false}, {"        ", true},  {"15032024", false}, {"", true},
};

}  // namespace essai

#endif
