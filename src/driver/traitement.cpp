#include "driver/traitement.h"

#include <cstdio>
#include <cstring>

#include "checks/coherence.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "driver/etat.h"
#include "driver/publication.h"
#include "driver/sorties.h"
#include "messages/aiguillage.h"
#include "rules/entete.h"
#include "rules/moteur.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

constexpr int ERR_EMETTEUR_CORPS = 135;  // emitter may not send for this body
constexpr int ERR_EMETTEUR = 110;        // emitter may not send this type
constexpr int ERR_RECEPTEUR = 85;        // receiver does not take this type
constexpr int ERR_CORPS_ABAT = 129;      // slaughter notice of another body
constexpr int ERR_FICH_EN_TROP = 109;    // second FICH record
constexpr int ERR_PARTENAIRE = 182;      // partner may not send this record
constexpr int ERR_C3_NATIONAL = 64;
constexpr int ERR_C3_LOCAL = 51;
constexpr int ERR_C3_VARIANTE_DL = 806;
constexpr int ERR_C3_VARIANTE_PF = 807;
constexpr int ERR_SANS_EXP2 = 105;
constexpr int ERR_SANS_RATA = 138;
constexpr int TAILLE_NUMERO_FICHIER = 16;

template <std::size_t N>
bool typeEst(const char (&type)[N]) {
    return vaut(entete(E6), type);
}
template <std::size_t N>
bool genreEst(const char (&genre)[N]) {
    return vaut(entete(E5), genre);
}
template <std::size_t N>
bool varianteEst(const char (&variante)[N]) {
    return vaut(VARIANTE, variante);
}

/** Copies what fits of a text and terminates it. */
template <std::size_t N>
void copier(char (&destination)[N], const char* source) {
    std::size_t i = 0;
    for (; i < N - 1 && source[i] != '\0'; ++i)
        destination[i] = source[i];
    destination[i] = '\0';
}

bool emetteurNational() {
    return vaut(sauvEmetteur, "NORM01  ") || vaut(sauvEmetteur, "NORM02  ") || vaut(sauvEmetteur, "PFOC01  ");
}

/** Who may send what to whom, before any table rule. */
int reglesAdmission(int compte) {
    if (varianteEst("QUILVANE  ") && !fCoherenCCE(sauvEmetteur, entete(E8)))
        compte = ajouterErreur(compte, ERR_EMETTEUR_CORPS);
    if (typeEst("INFO") && genreEst("DEM")) {
        if (!vaut(sauvEmetteur, "NORM02  ") && !vaut(sauvEmetteur, "PFOC01  "))
            compte = ajouterErreur(compte, ERR_EMETTEUR);
        if (!vaut(sauvRecepteur, "031BDN  ")) compte = ajouterErreur(compte, ERR_RECEPTEUR);
    }
    if (typeEst("ABAT")) {
        if (vaut(sauvEmetteur, "NORM01  ")) {
            if (!vaut(entete(E8), "NORMABEV")) compte = ajouterErreur(compte, ERR_CORPS_ABAT);
        } else if (!memeDebut(sauvEmetteur, "OFFICE", 6) && !memeDebut(sauvEmetteur, "ONICAB", 6)) {
            compte = ajouterErreur(compte, ERR_EMETTEUR);
        }
    }
    if (typeEst("FICH")) compte = ajouterErreur(compte, ERR_FICH_EN_TROP);
    return compte;
}

/** What a build variant asks of body field C3; 0 for no error. */
int regleVariante() {
    const char* const c3 = corps(C3);
    if (varianteEst("QUILVANE  ")) {
        if (!vaut(c3, "xx")) return 0;
        return emetteurNational() ? ERR_C3_NATIONAL : ERR_C3_LOCAL;
    }
    const bool vide = vaut(c3, "  ") || vaut(c3, "10");
    if (varianteEst("QUILVANED ")) return vide ? 0 : ERR_C3_VARIANTE_DL;
    if (varianteEst("QUILVANEL ")) {
        if (emetteurNational()) return vaut(c3, "20") ? 0 : ERR_C3_NATIONAL;
        return vide ? 0 : ERR_C3_VARIANTE_DL;
    }
    if (varianteEst("QUILVANEPF")) return vaut(c3, "10") || typeEst("ABAT") ? 0 : ERR_C3_VARIANTE_PF;
    return 0;
}

/** The only records that the two partners may send to the national database. */
bool admisDuPartenaire() {
    const char* const c5 = corps(C5);
    return (typeEst("INFO") && genreEst("DEM")) || (typeEst("JALO") && genreEst("CRE")) ||
           (typeEst("ENTR") && genreEst("CRE") && vaut(c5, "F")) ||
           (typeEst("SORT") && genreEst("CRE") && (vaut(c5, "S") || vaut(c5, "M"))) || typeEst("ABAT");
}

int reglesPartenaire(int compte) {
    err_aux = typeEst("ERRE") ? 0 : regleVariante();
    if (err_aux > 0) compte = ajouterErreur(compte, err_aux);
    const bool partenaire = vaut(sauvEmetteur, "000PFO  ") || vaut(sauvEmetteur, "NORMABEV");
    if (partenaire && vaut(sauvRecepteur, "031BDN  ") && !admisDuPartenaire())
        compte = ajouterErreur(compte, ERR_PARTENAIRE);
    return compte;
}

/** Body, partner and footer rules of a record whose type is known. */
int reglesCorpsEtFin(const sAiguillage& ligne, int mode, int compte) {
    getvseChamps(ligne.tabVerif, *ligne.pLenTabVerif, xdebug, valCorpsVSE, mode);
    compte = verifChamps(mode, compte, ligne.tabVerif, *ligne.pLenTabVerif, valCorpsVSE, entete(E5), "C");
    compte = reglesPartenaire(compte);
    if (compte < MAX_ERREURS) compte = verifChamps(mode, compte, tFin, lFin, valFinVSE, nullptr, "F");
    return compte;
}

/** A record that must be followed by its companion, and the error without it. */
struct paireVSE {
    const char* premier;
    const char* compagnon;
    int erreur;
};
constexpr paireVSE PAIRES[] = {{"EXP1", "EXP2", ERR_SANS_EXP2}, {"EGET", "RATA", ERR_SANS_RATA}};

/** The pair that the record before has opened, or null. */
const paireVSE* paireOuverte() {
    if (!dependanceVSE() || !vaut(sauvTypeVSE, "CRE") || sauvCodeVSEerr != 0) return nullptr;
    for (const paireVSE& p : PAIRES)
        if (egal(sauvCodeVSE, p.premier)) return &p;
    return nullptr;
}

/** Closes the pair of the record before and opens one if this record does. */
void apparier(int itAiguil, int compte, int formatDuFichier) {
    existDependanceVSEerr = 0;
    if (const paireVSE* const ouverte = paireOuverte();
        ouverte != nullptr &&
        !(egal(entete(E6), ouverte->compagnon) && genreEst("CRE") && egal(corps(C2), sauvLienVSE)))
        rejeterSansCompagnon(formatDuFichier);

    copier(sauvCodeVSE, entete(E6));
    copier(sauvTypeVSE, entete(E5));
    sauvCodeVSEerr = compte;
    if (const paireVSE* const nouvelle = paireOuverte(); nouvelle != nullptr) {
        copier(sauvLienVSE, corps(C2));
        faireTamponVSEERR(nouvelle->erreur, itAiguil);
    }
}

/** Mode -i puts a record's trace on one line. */
void finirTrace(int mode) {
    if (mode == VISU_INFORMATIQUE) std::fputc('\n', stdout);
}

int traiterFICH(int mode) {
    if (!typeEst("FICH")) {
        annuler(IG011);
        return FATAL;
    }
    errFich += verifChamps(mode, 0, tEntete, lEntete, valEnteteVSE, nullptr, "E");
    getvseChamps(tFich, lFich, xdebug, valCorpsVSE, mode);
    const char* const numeroFichier = corps(C1);
    if (std::strlen(numeroFichier) == TAILLE_NUMERO_FICHIER && champVide(numeroFichier)) {
        annuler(I099);
        return FATAL;
    }
    // The rules run twice; they name no check, so that nothing is found twice.
    for (int passe = 0; passe < 2; ++passe)
        if (errFich < MAX_ERREURS) errFich += verifChamps(mode, 0, tFich, lFich, valCorpsVSE, nullptr, "C");

    std::memcpy(valFichEnteteVSE, valEnteteVSE, sizeof valFichEnteteVSE);
    std::memcpy(valFichCorpsVSE, valCorpsVSE, sizeof valFichCorpsVSE);
    std::memcpy(valFichFinVSE, valFinVSE, sizeof valFichFinVSE);
    std::memcpy(codeFichErreur, codeErreur, MAX_ERREURS * sizeof codeErreur[0]);
    nbErreur = errFich;
    copier(sauvEmetteur, entete(E3));
    copier(sauvRecepteur, entete(E4));
    copier(sauvCodeVSE, entete(E6));
    copier(sauvTypeVSE, entete(E5));
    sauvCodeVSEerr = 0;
    finirTrace(mode);
    return nbErreur;
}

}  // namespace

int traitement(const char* tampon, int mode, int nombreDeVSE, int formatDuFichier) {
    affichageVSE(tampon, mode);  // from here on the record is in `xdebug`
    std::memset(codeErreur, 0, MAX_ERREURS * sizeof codeErreur[0]);
    getvseChamps(tEntete, lEntete, xdebug, valEnteteVSE, mode);
    getvseChamps(tFin, lFin, xdebug, valFinVSE, mode);
    if (nombreDeVSE == 1) return traiterFICH(mode);

    int itAiguil = ERR_AIGUILLAGE;
    nbErreur = reglesAdmission(0);
    if (nbErreur < MAX_ERREURS) {
        nbErreur = verifChamps(mode, nbErreur, tEntete, lEntete, valEnteteVSE, nullptr, "E");
        // A record that is full of errors by now is treated as of unknown type.
        if (nbErreur < MAX_ERREURS) itAiguil = aiguiller(entete(E6));
    }
    if (tAiguillage[itAiguil].code != CODE_INCONNU)
        nbErreur = reglesCorpsEtFin(tAiguillage[itAiguil], mode, nbErreur);

    if (nbErreur == 0) {
        faireVSEValide(tampon, formatDuFichier);
    } else {
        faireFinDeLigne(fp_erre, formatDuFichier);
        faireVSEERRCourante(itAiguil, nbErreur);
    }
    apparier(itAiguil, nbErreur, formatDuFichier);
    finirTrace(mode);
    return nbErreur;
}

bool attendCompagnon() { return paireOuverte() != nullptr; }

void rejeterSansCompagnon(int formatDuFichier) {
    faireFinDeLigne(fp_erre, formatDuFichier);
    std::fputs(sauvTamponVSE, fp_erre);
    existDependanceVSEerr = 1;
}

int dependanceVSE() { return 1; }

}  // namespace quilvane
