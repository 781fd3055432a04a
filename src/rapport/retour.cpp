#include "rapport/retour.h"

#include "checks/lecture.h"
#include "rapport/mots.h"

namespace quilvane {

namespace {

constexpr int COL_TYPE_DE_RECORD = 22;
constexpr int COL_RECUS = 101;
constexpr int LARGEUR_COMPTE = 6;
constexpr int COL_TYPE = 63;
constexpr int COL_GENRE = 67;
constexpr int COL_C1 = 70;  // body fields C1 and C2 follow, as wide as in their type
constexpr int COL_CODES = 112;
constexpr int LARGEUR_CODE = 5;
/** The shortest ERRE record: header, codes and footer, nothing of the record in error. */
constexpr std::size_t MOINS = 200;

std::string zone(std::string_view t, int debut, int largeur) {
    return std::string(
        sansBlancs(t.substr(static_cast<std::size_t>(debut - 1), static_cast<std::size_t>(largeur))));
}

/** The codes "I%03d1" from column `debut` on. */
std::vector<int> numerosDe(std::string_view t, int debut) {
    std::vector<int> r;
    for (int k = 0; k < MAX_ERREURS; ++k) {
        const std::string c = zone(t, debut + k * LARGEUR_CODE, LARGEUR_CODE);
        if (c.size() != LARGEUR_CODE || c[0] != 'I' ||
            c.find_first_not_of("0123456789", 1) != std::string::npos)
            break;
        r.push_back((c[1] - '0') * 100 + (c[2] - '0') * 10 + (c[3] - '0'));
    }
    return r;
}

int largeur(const sPlace& p) { return p.champ->fin - p.champ->debut + 1; }

/** Body field C2 of the record in error. */
std::string cleDe(std::string_view t, std::string_view type) {
    const sTable* const table = tableNommee(type);
    if (table == nullptr) return "";
    return zone(t, COL_C1 + largeur(auSlot(table, C1)), largeur(auSlot(table, C2)));
}

bool repond(const sErre& e, const sRecordVu& r) {
    if (e.entier && (e.type != r.type || e.genre != r.genre || e.cle != r.cle)) return false;
    if (e.numeros.size() != r.erreurs.size()) return false;
    for (std::size_t i = 0; i < e.numeros.size(); ++i)
        if (e.numeros[i] != r.erreurs[i].numero) return false;
    return true;
}

}  // namespace

sRetour lireErreurs(lecteur& source, long long& faux) {
    sRetour r = {};
    static ligneLue ligne;
    bool premiere = true;
    faux = 0;
    for (cverseFgetsRet fin = CVERSE_EOF;
         (fin = cverseFgets(source, ligne)) != CVERSE_EOF && fin != CVERSE_CTRLZ;) {
        const std::string_view t(
            ligne.texte,
            static_cast<std::size_t>(ligne.longueur < LARGEUR_VSE ? ligne.longueur : LARGEUR_VSE));
        const bool court = t.size() < MOINS;
        const std::string type = court ? "" : zone(t, COL_TYPE_DE_RECORD, 4);
        if (type != (premiere ? "FICH" : "ERRE")) {
            faux = ligne.numero;
            return r;
        }
        if (premiere) {
            r.recus = nombre(zone(t, COL_RECUS, LARGEUR_COMPTE).c_str());
            premiere = false;
            continue;
        }
        const int manque = LARGEUR_VSE - static_cast<int>(t.size());
        const std::string deType = zone(t, COL_TYPE, 4);
        r.erres.push_back({ligne.numero, manque == 0, deType, zone(t, COL_GENRE, 3), cleDe(t, deType),
                           numerosDe(t, COL_CODES - manque)});
    }
    if (premiere) faux = 1;
    return r;
}

std::size_t rapprocher(const sRetour& retour, const sRecordVu& r, std::vector<bool>& vus) {
    std::size_t k = 0;
    while (k < retour.erres.size() && (vus[k] || !repond(retour.erres[k], r)))
        ++k;
    if (k < vus.size()) vus[k] = true;
    return k;
}

}  // namespace quilvane
