/**
 * An error file that came back, beside the file that it answers.
 */
#include <string>

#include "catalogue/erreurs.h"
#include "module/module.h"
#include "module/releve.h"
#include "module/source.h"
#include "rapport/json.h"
#include "rapport/mots.h"
#include "rapport/retour.h"

using namespace quilvane;

namespace {

/** The comparison of an error file with what examining its source finds. */
struct sRapprochement {
    const sRetour* retour;
    module::sReleve* releve;
    std::vector<bool> vus;
    std::vector<long long> lignes;  // of the source, by ERRE record
};

void voirRefus(void* qui, const sRecordVu& r) {
    sRapprochement& x = *static_cast<sRapprochement*>(qui);
    const std::size_t k = rapprocher(*x.retour, r, x.vus);
    if (k == x.vus.size()) return;
    x.lignes[k] = r.ligne;
    module::releverRefus(x.releve, r);
}

void voirAvertissement(void* qui, const sAvertissement& a) {
    module::releverAvertissement(static_cast<sRapprochement*>(qui)->releve, a);
}

/** A number with its words. */
std::string numeroJson(int numero, eLangue langue) {
    const sErreur* const e = erreurDe(numero);
    const auto mots = [&](const char* cle, const texte sErreur::*quoi) {
        return std::string(",\"") + cle +
               "\":" + chaineJson(e != nullptr ? (e->*quoi).en_langue(langue) : "");
    };
    return "{\"numero\":" + std::to_string(numero) + ",\"code\":" + chaineJson(codeDErreur(numero)) +
           mots("titre", &sErreur::titre) + mots("sens", &sErreur::sens) + mots("remede", &sErreur::remede) +
           "}";
}

std::string erreJson(const sErre& e, long long ligneSource, eLangue langue) {
    std::string numeros;
    for (const int n : e.numeros)
        numeros += (numeros.empty() ? "" : ",") + numeroJson(n, langue);
    return "{\"ligne\":" + std::to_string(e.ligne) + ",\"type\":" + chaineJson(visible(e.type)) +
           ",\"genre\":" + chaineJson(visible(e.genre)) + ",\"cle\":" + chaineJson(visible(e.cle)) +
           ",\"origine\":" + (ligneSource != 0 ? std::to_string(ligneSource) : "null") + ",\"numeros\":[" +
           numeros + "]}";
}

}  // namespace

int quilvane_retour(int retour, int origine, int langue) {
    long long faux = 0;
    const eLangue l = module::langueDe(langue);
    const sRetour r = lireErreurs(module::ouvrir(retour), faux);
    if (faux != 0 || r.erres.empty()) return 0;
    module::sReleve releve = {l};
    sRapprochement x = {&r, &releve, std::vector<bool>(r.erres.size()),
                        std::vector<long long>(r.erres.size())};
    if (origine >= 0) {
        const std::string nom = module::nomDe(origine);
        const sResume resume =
            examiner(module::ouvrir(origine), nom, {.langue = l}, {voirAvertissement, voirRefus, &x});
        module::terminerReleve(releve, resume);
    }
    std::string s =
        "{\"format\":\"quilvane-retour/1\",\"nom\":" + chaineJson(visible(module::nomDe(retour))) +
        ",\"recus\":" + std::to_string(r.recus) + ",\"erreurs\":[";
    bool tous = true;
    for (std::size_t k = 0; k < r.erres.size(); ++k) {
        s += (k > 0 ? ",\n" : "\n") + erreJson(r.erres[k], x.lignes[k], l);
        tous = tous && x.vus[k];
    }
    s += "]}";
    quilvane_ecrire(MORCEAU_SORTIE, s.data(), static_cast<int>(s.size()));
    return origine < 0 || tous ? 1 : 0;
}
