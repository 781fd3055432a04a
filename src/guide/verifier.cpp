/**
 * verifier - reads files and says what quilvane would do with them. Inputs are
 * opened for reading only; nothing is made but the file that -o names.
 */
#include <algorithm>
#include <cerrno>

#include "guide/commandes.h"
#include "guide/fichiers.h"
#include "rapport/rendus.h"

namespace quilvane::guide {

namespace {

eFormat formatDe(const std::string& nom) {
    if (nom == "json") return FORMAT_JSON;
    if (nom == "jsonl") return FORMAT_JSONL;
    if (nom == "csv") return FORMAT_CSV;
    return nom == "html" ? FORMAT_HTML : FORMAT_TEXTE;
}

/** The gravest of 1, 2, 0 in that order. */
int plusGrave(int a, int b) { return a == STATUT_ARRET || b == STATUT_ARRET ? STATUT_ARRET : std::max(a, b); }

/** Examines one file; its outcome. */
sResume verifierUn(const sDemandeLue& d, const std::string& nom, sRapport& rapport, sProgres& progres) {
    sFichier fichier;
    fichier.progres = &progres;
    if (!ouvrir(fichier, nom)) {
        fichierIllisible(rapport, nom, raisonDe(errno, d.langue));
        sResume r;
        r.nom = nom;
        r.statut = STATUT_ARRET;
        r.fatal = eFatal::IG003;
        return r;
    }
    commencerFichier(rapport, nom);
    const sDemande demande = {.langue = d.langue, .tout = d.tout};
    sResume r = examiner(fichier.lecture, nom, demande, renduDe(rapport));
    terminerFichier(rapport, r);
    fermer(fichier);
    return r;
}

}  // namespace

int verifier(const sDemandeLue& d) {
    sEcriture ecriture;
    if (!ouvrirSortie(ecriture, d)) return STATUT_ARRET;
    sRapport rapport = {.format = formatDe(d.format),
                        .langue = d.langue,
                        .couleur = d.sortie.empty() && enCouleur(d),
                        .sortie = {ecrireDans, &ecriture}};
    std::vector<sResume> resumes;
    int statut = STATUT_ACCEPTE;
    sProgres progres = progresDe(d);
    commencerRapport(rapport);
    for (const std::string& nom : d.arguments) {
        resumes.push_back(verifierUn(d, nom, rapport, progres));
        statut = plusGrave(statut, resumes.back().statut);
    }
    terminerRapport(rapport, resumes);
    effacer(progres);
    return fermerSortie(ecriture, d) ? statut : STATUT_ARRET;
}

}  // namespace quilvane::guide
