#include "catalogue/proches.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

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

/** The characters of a text as bits, blanks apart, after `confondu`. One slip
 *  adds one bit at most and takes one away. */
std::uint64_t empreinte(std::string_view texte) {
    std::uint64_t r = 0;
    for (const char c : texte)
        if (c != ' ') r |= std::uint64_t{1} << (confondu(c) & 63);
    return r;
}

/** The prints of a list's entries, made at the first look. */
const std::vector<std::uint64_t>& empreintesDe(const sListe& liste) {
    static std::unordered_map<const tValAutorise*, std::vector<std::uint64_t>> faites;
    std::vector<std::uint64_t>& r = faites[liste.entrees];
    for (int i = static_cast<int>(r.size()) * liste.colonnes; i < liste.nombre; i += liste.colonnes)
        r.push_back(empreinte(liste.entrees[i].valeur));
    return r;
}

/** Whether more than two characters tell the texts apart: more than one slip. */
constexpr bool tropLoin(std::uint64_t a, std::uint64_t b) {
    std::uint64_t d = a ^ b;
    d &= d - 1;
    d &= d - 1;
    return d != 0;
}

}  // namespace

sProches prochesDe(std::string_view valeur, const sListe& liste) {
    sProches proches = {};
    if (sansBlancs(valeur).empty()) return proches;
    eEcart ecarts[MAX_PROCHES] = {};
    const std::uint64_t deValeur = empreinte(valeur);
    const std::uint64_t* deEntree = empreintesDe(liste).data();
    for (int i = 0; i < liste.nombre; i += liste.colonnes) {
        if (tropLoin(deValeur, *deEntree++)) continue;
        const std::string_view entree = liste.entrees[i].valeur;
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
        proches.valeurs[place] = entree.data();
        ecarts[place] = e;
    }
    return proches;
}

}  // namespace quilvane
