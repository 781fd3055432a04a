#include "lot/contenu.h"

#include <algorithm>
#include <vector>

namespace quilvane::lot {

namespace {

constexpr char CTRL_Z = 0x1A;
constexpr long LONGUEUR_VSE = 256;
constexpr std::size_t LONGUEUR_COMPTE = 6;
// The end of an ERRE record, whatever the record in error lacked: ten codes and
// their blanks, then the stamp.
constexpr std::size_t ZONE_CODES = 119;
constexpr std::size_t ESTAMPILLE = 26;
constexpr std::size_t LONGUEUR_CODE = 5;  // I, three digits, 1
constexpr std::size_t CODES_MAX = 10;

void finirLigne(mesureur& m, bool traitee) {
    if (++m.lignes == 1 && traitee) m.m.longueurFich = std::min(m.longueur, LONGUEUR_VSE);
    if (!traitee) m.m.lignesSautees = true;
    m.longueur = 0;
    m.texteFini = false;
}

void ajouterOctet(mesureur& m, char c) {
    if (m.retour) {
        m.retour = false;
        finirLigne(m, c == '\n');
        if (c == '\n') return;
    }
    switch (c) {
        case CTRL_Z: m.finDeFichier = true; break;
        case '\r': m.retour = true; break;
        case '\n': finirLigne(m, true); break;
        case '\0': m.texteFini = true; break;
        default:
            if (!m.texteFini) ++m.longueur;
    }
}

/** How many bytes at the beginning only make a line longer: most of a file. */
std::size_t debutOrdinaire(std::string_view octets) {
    std::size_t n = 0;
    while (n < octets.size() && static_cast<unsigned char>(octets[n]) > CTRL_Z)
        ++n;
    return n;
}

std::vector<std::string_view> lignes(std::string_view octets) {
    std::vector<std::string_view> r;
    while (!octets.empty()) {
        const std::size_t fin = octets.find('\n');
        if (fin == std::string_view::npos) return {};  // cut short
        std::string_view ligne = octets.substr(0, fin);
        if (!ligne.empty() && ligne.back() == '\r') ligne.remove_suffix(1);
        r.push_back(ligne);
        octets.remove_prefix(fin + 1);
    }
    return r;
}

/** A count in a FICH record from 0-based position `debut` on; false for none. */
bool lireCompte(std::string_view ligne, std::size_t debut, long& n) {
    if (ligne.size() < debut + LONGUEUR_COMPTE) return false;
    std::string_view c = ligne.substr(debut, LONGUEUR_COMPTE);
    const bool negatif = c[0] == '-';
    if (negatif) c.remove_prefix(1);
    n = 0;
    for (const char x : c) {
        if (x < '0' || x > '9') return false;
        n = 10 * n + (x - '0');
    }
    if (negatif) n = -n;
    return true;
}

/** Where the counts of an error file begin. What the FICH record of the input
 *  lacks is lacking before them: of its 62 header columns, three of which are
 *  written in any case, and of columns 63-78, which stand there twice. */
std::size_t debutDesComptes(long longueurFich) {
    const long enTete = std::min(longueurFich, 18L) + 3 + std::clamp(longueurFich - 21, 0L, 41L);
    return static_cast<std::size_t>(enTete + 2 * std::clamp(longueurFich - 62, 0L, 16L));
}

/** Counts the codes of an ERRE record; false when it has none. */
bool lireCodes(std::string_view ligne, std::map<int, long>& erreurs) {
    if (ligne.size() < ZONE_CODES + ESTAMPILLE) return false;
    const std::string_view zone = ligne.substr(ligne.size() - ZONE_CODES - ESTAMPILLE, ZONE_CODES);
    std::size_t lus = 0;
    for (; lus < CODES_MAX; ++lus) {
        const std::string_view code = zone.substr(lus * LONGUEUR_CODE, LONGUEUR_CODE);
        const auto chiffre = [&code](std::size_t i) { return code[i] >= '0' && code[i] <= '9'; };
        if (code[0] != 'I' || !chiffre(1) || !chiffre(2) || !chiffre(3) || code[4] != '1') break;
        ++erreurs[100 * (code[1] - '0') + 10 * (code[2] - '0') + (code[3] - '0')];
    }
    return lus > 0;
}

}  // namespace

void commencer(mesureur& m) {
    m = mesureur();
    commencer(m.e);
}

void ajouter(mesureur& m, std::string_view octets) {
    m.m.taille += static_cast<long long>(octets.size());
    ajouter(m.e, octets);
    for (std::size_t i = 0; i < octets.size() && !m.finDeFichier;) {
        if (!m.retour) {
            const std::size_t n = debutOrdinaire(octets.substr(i));
            if (!m.texteFini) m.longueur += static_cast<long>(n);
            i += n;
            if (i == octets.size()) break;
        }
        ajouterOctet(m, octets[i++]);
    }
}

mesure terminer(mesureur& m) {
    if (m.retour) finirLigne(m, false);  // a CR that ends the file
    m.m.enregistrements = m.lignes - 1;
    m.m.sha256 = terminer(m.e);
    return m.m;
}

bool lireEmis(std::string_view octets, const mesure& entree, comptes& c) {
    const std::vector<std::string_view> l = lignes(octets);
    c = {};
    if (l.empty() || !lireCompte(l[0], 112, c.enregistrements)) return false;
    c.acceptes = c.enregistrements;
    return c.enregistrements > 0 && c.enregistrements == static_cast<long>(l.size()) - 1 &&
           c.enregistrements == entree.enregistrements;
}

bool lireErreurs(std::string_view octets, const mesure& entree, comptes& c) {
    const std::vector<std::string_view> l = lignes(octets);
    c = {};
    if (l.size() < 2) return false;
    const std::size_t debut = debutDesComptes(entree.longueurFich);
    long encore = 0;
    if (!lireCompte(l[0], debut, c.refuses) || !lireCompte(l[0], debut + 6, c.enregistrements) ||
        !lireCompte(l[0], debut + 12, encore) || !lireCompte(l[0], debut + 18, c.acceptes))
        return false;
    const auto erres = static_cast<long>(l.size()) - 1;
    for (long i = 1; i <= erres; ++i)
        if (!lireCodes(l[static_cast<std::size_t>(i)], c.erreurs)) return false;
    // The FICH record counts as one in error without being a message record.
    const long reste = c.enregistrements - c.refuses;
    const bool complet = erres == c.refuses || (entree.lignesSautees && erres < c.refuses);
    return encore == c.refuses && (c.acceptes == reste || c.acceptes == reste + 1) && complet &&
           c.enregistrements == entree.enregistrements;
}

}  // namespace quilvane::lot
