#include "catalogue/verifs.h"

namespace quilvane {

namespace {

#define VERIF(nom, francais, anglais) {nom, #nom, {francais, anglais}},
constexpr sVerif VERIFS[] = {
#include "catalogue/verifs.def"
};
#undef VERIF

}  // namespace

constinit const std::span<const sVerif> verifs(VERIFS);

const sVerif* verifDe(fVerif* verif) {
    for (const sVerif& v : verifs)
        if (v.verif == verif) return &v;
    return nullptr;
}

const sVerif* verifNommee(std::string_view nom) {
    for (const sVerif& v : verifs)
        if (v.nom == nom) return &v;
    return nullptr;
}

std::string phraseDe(const sVerif& verif, eLangue langue, std::string_view liste, std::string_view dep) {
    constexpr std::string_view LISTE = "{liste}";
    constexpr std::string_view DEP = "{dep}";
    const std::string_view modele = verif.phrase.en_langue(langue);
    std::string phrase;
    // Piece by piece: a filled text that looks like a placeholder stays as it is.
    std::size_t fait = 0;
    while (fait < modele.size()) {
        const std::string_view reste = modele.substr(fait);
        if (reste.starts_with(LISTE)) {
            phrase += liste;
            fait += LISTE.size();
        } else if (reste.starts_with(DEP)) {
            phrase += dep;
            fait += DEP.size();
        } else {
            const std::size_t n = reste.find('{', 1);
            phrase += reste.substr(0, n);
            fait += n == std::string_view::npos ? reste.size() : n;
        }
    }
    return phrase;
}

}  // namespace quilvane
