/**
 * Reports: in pieces for the page that shows them, whole for the one who keeps
 * them.
 */
#include <vector>

#include "module/module.h"
#include "module/releve.h"
#include "module/source.h"
#include "rapport/catalogue_json.h"
#include "rapport/json.h"
#include "rapport/mots.h"
#include "rapport/rendus.h"

namespace quilvane::module {

void sPile::ajouter(std::string_view valeur) {
    constexpr std::size_t ASSEZ = 1 << 16;
    if (!valeurs.empty()) valeurs += ',';
    valeurs += valeur;
    if (valeurs.size() >= ASSEZ) vider();
}

void sPile::vider() {
    if (!valeurs.empty()) quilvane_ecrire(morceau, valeurs.data(), static_cast<int>(valeurs.size()));
    valeurs.clear();
}

void releverRefus(void* qui, const sRecordVu& r) {
    sReleve& t = *static_cast<sReleve*>(qui);
    std::string objets;
    ajouterConstats(objets, r, t.constats, t.langue, ",", nullptr, true);
    t.liste.ajouter(objets);
    t.constats += static_cast<long long>(r.erreurs.size());
    std::string texte = "\"" + std::to_string(r.ligne) + "\":\"";
    ajouterOctets(texte, r.texte);
    t.textes.ajouter(texte + '"');
}

void releverAvertissement(void* qui, const sAvertissement& a) {
    static_cast<sReleve*>(qui)->avertissements.ajouter(avertissementJson(a));
}

void terminerReleve(sReleve& t, const sResume& r) {
    for (sPile* pile : {&t.liste, &t.textes, &t.avertissements})
        pile->vider();
    const std::string resume = "\"nom\":" + chaineJson(visible(r.nom)) + "," + resumeJson(r, t.langue);
    quilvane_ecrire(MORCEAU_RESUME, resume.data(), static_cast<int>(resume.size()));
}

namespace {

void sortir(void*, std::string_view octets) {
    quilvane_ecrire(MORCEAU_SORTIE, octets.data(), static_cast<int>(octets.size()));
}

}  // namespace

}  // namespace quilvane::module

using namespace quilvane;

int quilvane_examiner(int source, int langue) {
    module::sReleve t = {module::langueDe(langue)};
    const std::string nom = module::nomDe(source);
    const sResume r = examiner(module::ouvrir(source), nom, {.langue = t.langue},
                               {module::releverAvertissement, module::releverRefus, &t});
    module::terminerReleve(t, r);
    return r.statut;
}

void quilvane_rapport(int nombre, int langue, int format) {
    sRapport r = {.format = static_cast<eFormat>(format),
                  .langue = module::langueDe(langue),
                  .couleur = false,
                  .sortie = {module::sortir, nullptr}};
    std::vector<sResume> resumes;
    commencerRapport(r);
    for (int source = 0; source < nombre; ++source) {
        const std::string nom = module::nomDe(source);
        commencerFichier(r, nom);
        resumes.push_back(examiner(module::ouvrir(source), nom, {.langue = r.langue}, renduDe(r)));
        terminerFichier(r, resumes.back());
    }
    terminerRapport(r, resumes);
}

void quilvane_catalogue(int langue) { module::sortir(nullptr, catalogueJson(module::langueDe(langue))); }
