#include "catalogue/proches.h"

#include <cstddef>
#include <cstdint>
#include <string>
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

/** What is kept of a list from look to look. */
struct sVoisinage {
    std::vector<std::uint64_t> empreintes;              // of its entries
    std::unordered_map<std::string, sProches> trouves;  // by value: a file repeats its mistakes
};

/** That of a list, made at the first look. */
sVoisinage& voisinageDe(const sListe& liste) {
    static std::unordered_map<const tValAutorise*, sVoisinage> faits;
    sVoisinage& r = faits[liste.entrees];
    for (int i = static_cast<int>(r.empreintes.size()) * liste.colonnes; i < liste.nombre;
         i += liste.colonnes)
        r.empreintes.push_back(empreinte(liste.entrees[i].valeur));
    return r;
}

/** Whether more than two characters tell the texts apart: more than one slip. */
constexpr bool tropLoin(std::uint64_t a, std::uint64_t b) {
    std::uint64_t d = a ^ b;
    d &= d - 1;
    d &= d - 1;
    return d != 0;
}

/** The entries of a list that are near a value that is not blank. */
sProches chercher(std::string_view valeur, const sListe& liste, const std::uint64_t* deEntree) {
    sProches proches = {};
    eEcart ecarts[MAX_PROCHES] = {};
    const std::uint64_t deValeur = empreinte(valeur);
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

}  // namespace

sProches prochesDe(std::string_view valeur, const sListe& liste) {
    constexpr std::size_t MAX_TROUVES = 256;  // memory does not grow with the file
    if (sansBlancs(valeur).empty()) return {};
    sVoisinage& voisinage = voisinageDe(liste);
    const std::string cle(valeur);
    const auto deja = voisinage.trouves.find(cle);
    if (deja != voisinage.trouves.end()) return deja->second;
    if (voisinage.trouves.size() == MAX_TROUVES) voisinage.trouves.clear();
    return voisinage.trouves[cle] = chercher(valeur, liste, voisinage.empreintes.data());
}

}  // namespace quilvane
