#include "catalogue/proches.h"

#include <cstddef>

namespace quilvane {

namespace {

/** The slips, the likeliest first. */
enum eEcart { CASSE, CONFUSION, DECALAGE, INVERSION, SUBSTITUTION, LONGUEUR, LOIN };

constexpr char majuscule(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

/** Characters that are taken for one another become one. */
constexpr char confondu(char c) {
    const char m = majuscule(c);
    return m == 'O' ? '0' : m == 'I' ? '1' : m;
}

std::string_view sansBlancsAuBout(std::string_view texte) {
    return texte.substr(0, texte.find_last_not_of(' ') + 1);
}

std::string_view sansBlancs(std::string_view texte) {
    const std::size_t debut = texte.find_first_not_of(' ');
    return debut == std::string_view::npos ? std::string_view{} : sansBlancsAuBout(texte.substr(debut));
}

/** Equal once each character is read through `lire`. */
template <typename Lecture>
bool egauxSelon(std::string_view a, std::string_view b, Lecture lire) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (lire(a[i]) != lire(b[i])) return false;
    return true;
}

/** The first place where two texts differ, the shorter one's end at most. */
std::size_t premiereDifference(std::string_view a, std::string_view b) {
    std::size_t i = 0;
    while (i < a.size() && i < b.size() && a[i] == b[i])
        ++i;
    return i;
}

/** `longue` is `courte` with one character put in. */
bool unDePlus(std::string_view longue, std::string_view courte) {
    if (longue.size() != courte.size() + 1) return false;
    const std::size_t i = premiereDifference(longue, courte);
    return longue.substr(i + 1) == courte.substr(i);
}

eEcart ecart(std::string_view valeur, std::string_view entree) {
    if (egauxSelon(valeur, entree, majuscule)) return CASSE;
    if (egauxSelon(valeur, entree, confondu)) return CONFUSION;
    if (entree.size() == 1) return LOIN;
    if (sansBlancs(valeur) == sansBlancs(entree)) return DECALAGE;
    if (valeur.size() == entree.size()) {
        const std::size_t i = premiereDifference(valeur, entree);
        if (valeur.substr(i + 1) == entree.substr(i + 1)) return SUBSTITUTION;
        if (valeur[i] == entree[i + 1] && valeur[i + 1] == entree[i] &&
            valeur.substr(i + 2) == entree.substr(i + 2))
            return INVERSION;
    }
    const std::string_view v = sansBlancsAuBout(valeur);
    const std::string_view e = sansBlancsAuBout(entree);
    return unDePlus(v, e) || unDePlus(e, v) ? LONGUEUR : LOIN;
}

}  // namespace

sProches prochesDe(std::string_view valeur, const sListe& liste) {
    sProches proches = {};
    if (sansBlancs(valeur).empty()) return proches;
    eEcart ecarts[MAX_PROCHES] = {};
    for (int i = 0; i < liste.nombre; i += liste.colonnes) {
        const char* const entree = liste.entrees[i].valeur;
        if (valeur == entree) return {};
        const eEcart e = ecart(valeur, entree);
        if (e == LOIN || sansBlancs(entree).empty()) continue;
        // Behind those that are as near, before the first that is farther.
        int place = proches.nombre;
        while (place > 0 && ecarts[place - 1] > e)
            --place;
        if (place == MAX_PROCHES) continue;
        if (proches.nombre < MAX_PROCHES) ++proches.nombre;
        for (int j = proches.nombre - 1; j > place; --j) {
            proches.valeurs[j] = proches.valeurs[j - 1];
            ecarts[j] = ecarts[j - 1];
        }
        proches.valeurs[place] = entree;
        ecarts[place] = e;
    }
    return proches;
}

}  // namespace quilvane
