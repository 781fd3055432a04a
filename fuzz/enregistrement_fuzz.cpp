/**
 * Single records of every type and kind, near correct ones: the first bytes
 * choose a correct record, the rest changes it column by column.
 */
#include "cible.h"

#include <cstring>

#include "driver/console.h"
#include "messages/aiguillage.h"
#include "rules/constat.h"
#include "support/generateur.h"
#include "support/passage.h"
#include "support/vse.h"

using namespace quilvane;

namespace {

struct rendu {
    int erreurs;
    std::string emis;
    std::string rejete;
    bool operator==(const rendu&) const = default;
};

/** What an error speaks of lies in the record. */
void verifierConstats(int erreurs) {
    for (int i = 0; i < erreurs; ++i) {
        const constat& c = constats[i];
        cible::verifier(c.numero == codeErreur[i], "an error is told with its number");
        const extrait e = texteDe(c);
        cible::verifier(c.ligne == nullptr
                            ? e.longueur == 0
                            : e.debut >= xdebug && e.debut + e.longueur <= xdebug + LARGEUR_VSE,
                        "an error speaks of columns of the record");
        cible::verifier(std::memchr(e.debut, '\0', static_cast<std::size_t>(e.longueur)) == nullptr,
                        "nothing behind the record's end is shown");
    }
}

rendu passer(const std::string& emetteur, const std::string& record, int caractere, int longueur, int mode) {
    static essai::passage p;
    p.recommencer();
    p.l.vu = affichageVSE(mode);
    p.traiter(essai::fich(1, emetteur));
    p.traiter(record, longueur, caractere);
    verifierConstats(p.v.erreurs);
    return {p.v.erreurs, p.emis, p.erre};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    cible::dossier();
    cible::octets o{data, size};
    const auto& types = essai::typesDeMessage();
    const std::string& type = types[o.un() % types.size()];
    const auto genres = essai::genresDe(type);
    essai::hasard h(o.un());
    std::string record = essai::recordCorrect(type, genres[o.un() % genres.size()], h);
    constexpr const char* EMETTEURS[] = {"",         "089ARS  ", "OFFICE01", "ONICABFR",
                                         "NORM02  ", "PFOC01  ", "NORMABEV", "000PFO  "};
    const std::string choisi = EMETTEURS[o.un() % 8];
    const std::string emetteur = choisi.empty() ? essai::emetteurPour(type) : choisi;
    const int mode = o.un() % 3;

    while (o.reste > 0) {
        const std::size_t col = o.un();  // 0 to 255
        const std::uint8_t geste = o.un();
        if (geste < 200) {  // a few characters, mostly printable
            const std::string texte = o.texte(geste % 13U);
            for (std::size_t i = 0; i < texte.size() && col + i < record.size(); ++i)
                record[col + i] = texte[i];
        } else if (geste < 220) {  // blanks
            for (std::size_t i = col; i < col + geste % 20U && i < record.size(); ++i)
                record[i] = ' ';
        } else if (geste < 240) {  // columns from elsewhere
            const std::size_t source = o.un();
            for (std::size_t i = 0; i < 12 && col + i < record.size() && source + i < record.size(); ++i)
                record[col + i] = record[source + i];
        } else if (geste < 250) {
            constexpr const char* GENRES[] = {"CRE", "INV", "MOD", "DEM", "EDI", "INF", "ECQ"};
            record.replace(18, 3, GENRES[geste % 7]);
            if (record.size() < 256) record.resize(256, ' ');
        } else {
            record.resize(col == 0 ? 1 : col);
            record.resize(record.size() < 26 ? 26 : record.size(), ' ');
        }
    }
    int caractere = 0;
    for (const char c : record)
        caractere |= c < 0x20 || c > 0x7E;
    const bool entier = record.size() == 256 && std::strlen(record.c_str()) == 256;
    const int longueur = record.size() < 256 ? 2 : 0;

    const rendu b = passer(emetteur, record, caractere, longueur, mode);
    cible::verifier(b.erreurs >= 0 && b.erreurs <= 10, "at most ten errors");
    cible::verifier(b.emis.empty() == (b.erreurs > 0), "a record is either accepted or rejected");
    cible::verifier(b.rejete.empty() == (b.erreurs == 0), "an error record for a record in error");
    if (b.erreurs == 0) cible::verifier(b.emis.size() == 257, "an accepted record has 256 columns");
    const bool retourAutre = record.compare(21, 4, "ERRE") == 0 && record.compare(18, 3, "ECQ") != 0;
    if (b.erreurs > 0 && entier)
        cible::verifier(b.rejete.size() == (retourAutre ? 250U : 257U), "an error record has 256 columns");
    cible::verifier(b == passer(emetteur, record, caractere, longueur, mode),
                    "the same record gives the same bytes");
    return 0;
}
