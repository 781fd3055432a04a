/**
 * The browser page's module as its caller drives it: any bytes as one or two
 * inputs, of which the first or the second block may not be readable. The first
 * bytes choose what is called and how, the name and the inputs follow.
 */
#include "module/module.h"

#include <rapidjson/document.h>

#include <algorithm>
#include <cstring>

#include "cible.h"
#include "driver/quilvane.h"

namespace {

constexpr int ARRETE = quilvane::STATUT_FATAL;

/** An input of the caller. */
struct entree {
    std::string octets;
    std::string nom;
    int panne = 0;  // the read that fails, 0 for none
    std::size_t lu = 0;
    int lectures = 0;
};

entree entrees[2];
std::string morceaux[MORCEAU_RESUME + 1];

void oublier() {
    for (std::string& m : morceaux)
        m.clear();
}

/** Whether a text is JSON, its bytes UTF-8. */
bool estJson(const std::string& texte) {
    rapidjson::Document d;
    d.Parse<rapidjson::kParseValidateEncodingFlag>(texte.data(), texte.size());
    return !d.HasParseError();
}

/** What an examination told, put together as the page does it. */
void verifierReleve() {
    cible::verifier(estJson("[" + morceaux[MORCEAU_CONSTATS] + "]"), "findings are JSON");
    cible::verifier(estJson("{" + morceaux[MORCEAU_TEXTES] + "}"), "texts are JSON");
    cible::verifier(estJson("[" + morceaux[MORCEAU_AVERTISSEMENTS] + "]"), "warnings are JSON");
    cible::verifier(estJson("{" + morceaux[MORCEAU_RESUME] + "}"), "the outcome is JSON");
}

/** The file that would be published, and the status. */
int publier(int source, std::string& fichier) {
    oublier();
    const int statut = quilvane_publier(source);
    fichier = morceaux[MORCEAU_SORTIE];
    return statut;
}

/** The module publishes what the program publishes; only the clock may differ. */
void comparer(const entree& e) {
    if (e.panne != 0) return;
    std::string fichier;
    const int statut = publier(0, fichier);
    const cible::issue i = cible::executer(e.octets, "");
    cible::verifier(statut == i.statut, "module and program judge alike");
    cible::verifier(statut == ARRETE || fichier.size() == i.emis.size(), "module and program publish alike");
}

}  // namespace

void quilvane_rembobiner(int source) {
    entrees[source].lu = 0;
    entrees[source].lectures = 0;
}

int quilvane_lire(int source, unsigned char* ou, int taille) {
    entree& e = entrees[source];
    if (++e.lectures == e.panne) return -1;
    const std::size_t n = std::min(e.octets.size() - e.lu, static_cast<std::size_t>(taille));
    std::memcpy(ou, e.octets.data() + e.lu, n);
    e.lu += n;
    return static_cast<int>(n);
}

int quilvane_nommer(int source, char* ou, int place) {
    const std::string& nom = entrees[source].nom;
    const std::size_t n = std::min(nom.size(), static_cast<std::size_t>(place));
    std::memcpy(ou, nom.data(), n);
    return static_cast<int>(n);
}

void quilvane_ecrire(int morceau, const char* octets, int taille) {
    cible::verifier(morceau >= 0 && morceau <= MORCEAU_RESUME && taille >= 0, "a piece of a known kind");
    std::string& m = morceaux[morceau];
    if (morceau != MORCEAU_SORTIE && !m.empty()) m += ',';  // whole values in every piece
    m.append(octets, static_cast<std::size_t>(taille));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    cible::octets o{data, size};
    const std::uint8_t choix = o.un();
    const int langue = choix & 1;
    const std::uint8_t etat = o.un();
    // A whole report takes a hundred times as long as what it is made of.
    const bool rapport = etat % 16 == 3;
    const int quoi = (choix >> 1U) % 4 == 1 && !rapport ? 0 : (choix >> 1U) % 4;
    const std::size_t longueurNom = o.un() % 32U;
    entrees[0] = {.octets = "", .nom = o.texte(longueurNom), .panne = std::max(0, etat % 8 - 5)};
    entrees[1] = {.octets = "", .nom = "retour.vse"};
    if (quoi == 3) {
        const std::size_t n = o.un() * 16U;
        entrees[1].octets = o.texte(n);
    }
    const std::string octets = o.tout();
    // More than a block of the stream, now and then.
    const std::size_t fois = etat >= 252 && octets.size() > 200 ? 70000 / octets.size() : 1;
    for (std::size_t i = 0; i < fois; ++i)
        entrees[0].octets += octets;

    std::string fichier;
    oublier();
    switch (quoi) {
        case 0: {
            const int statut = quilvane_examiner(0, langue);
            verifierReleve();
            cible::verifier(statut == publier(0, fichier), "the report ends as the publication does");
            cible::verifier((statut == ARRETE) == fichier.empty(), "a run that ends early publishes nothing");
            break;
        }
        case 1:
            quilvane_rapport(1 + ((choix >> 4U) & 1), langue, RAPPORT_JSON);
            cible::verifier(estJson(morceaux[MORCEAU_SORTIE]), "the report is JSON");
            oublier();
            quilvane_rapport(1, langue, (choix & 32U) != 0 ? RAPPORT_CSV : RAPPORT_HTML);
            cible::verifier(!morceaux[MORCEAU_SORTIE].empty(), "a report is not empty");
            break;
        case 2: comparer(entrees[0]); break;
        default:
            // An answer of any bytes; or the true one of the second input, beside it.
            if ((choix & 16U) != 0) {
                const int statut = publier(0, fichier);
                if (statut == ARRETE) return 0;
                entrees[1].octets = fichier;
            }
            oublier();
            const int repond = quilvane_retour(1, (choix & 32U) != 0 ? 0 : -1, langue);
            cible::verifier(repond == 0 || repond == 1, "an answer fits or does not");
            cible::verifier(repond == 0 || !morceaux[MORCEAU_SORTIE].empty(), "an answer that fits is told");
            if (!morceaux[MORCEAU_SORTIE].empty())
                cible::verifier(estJson(morceaux[MORCEAU_SORTIE]), "the answer is JSON");
            verifierReleve();
    }
    return 0;
}
