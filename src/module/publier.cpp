/**
 * The file that quilvane would publish, made in memory.
 */
#include <string>

#include "calendar/horloge.h"
#include "controle/composition.h"
#include "module/module.h"
#include "module/source.h"

using namespace quilvane;

namespace {

/** The two files of a run, their first 256 columns kept free for FICH. */
struct sFichiers {
    std::string emis = std::string(LARGEUR_VSE, ' ');
    std::string erre = std::string(LARGEUR_VSE, ' ');

    void ajouter(const ajouts& a) {
        emis.append(a.emis.tampon, a.emis.longueur);
        erre.append(a.erre.tampon, a.erre.longueur);
    }
};

/** Reads and judges the whole input; false when a condition ends the run. */
bool traiter(lot& l, lecteur& source, sFichiers& fichiers) {
    for (verdict v;;) {
        const eSuite suite = suivant(l, source, v);
        if (suite == SUITE_ARRET) return false;
        if (suite == SUITE_FIN) break;
        if (suite == SUITE_SAUTE) continue;
        ajouts a;
        ajouterVerdict(a, l, v);
        fichiers.ajouter(a);
    }
    const bilan b = conclure(l);
    if (b.fatal != eFatal::AUCUN) return false;
    ajouts a;
    ajouterFin(a, l, b);
    fichiers.ajouter(a);
    return true;
}

}  // namespace

int quilvane_publier(int source) {
    constexpr int ACCEPTE = 0;
    constexpr int ARRETE = 1;
    constexpr int ERREURS = 2;
    static lot l;
    commencer(l);
    faireVSEDate(l.VSEDate, heureLocale());
    sFichiers fichiers;
    if (!traiter(l, module::ouvrir(source), fichiers)) return ARRETE;
    const bool valide = fichierValide(l);
    ligneVSE fich;
    if (valide)
        faireVSEFICHOk(fich, l);
    else
        faireVSEFICHNok(fich, l, l.VSEDate);
    std::string& fichier = valide ? fichiers.emis : fichiers.erre;
    fichier.replace(0, fich.longueur, fich.tampon, fich.longueur);
    quilvane_ecrire(MORCEAU_SORTIE, fichier.data(), static_cast<int>(fichier.size()));
    return valide ? ACCEPTE : ERREURS;
}
