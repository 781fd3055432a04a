/**
 * quilvane - the life of a run: options, names, files, records, summary,
 * publication. Each failure stands beside the step that can fail.
 */
#include "driver/quilvane.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "attgetopt/attgetopt.h"
#include "checks/lecture.h"
#include "driver/etat.h"
#include "driver/flux.h"
#include "driver/noms.h"
#include "driver/publication.h"
#include "driver/sorties.h"
#include "driver/traitement.h"
#include "rules/latin1.h"
#include "rules/moteur.h"

namespace quilvane {

namespace {

constexpr int NB_FICHIERS = 3;         // file arguments
constexpr int MAX_NOMBRE_VSE = 10002;  // counter value after 10000 messages and the FICH record
constexpr int ERR_NOMBRE_VSE = 100;    // count in the FICH record is wrong

constexpr texteLatin1 USAGE(
    "\n Usage : quilvane [-i|-d|-v] <fichier a traiter> <fichier a emettre> <fichier log>\n \n"
    "         -i : resultats des traitements des VSE \n"
    "              vers la console sous forme informatique\n"
    "         -d : resultats des traitements des VSE\n"
    "              vers la console sous forme décriptée\n"
    "         -v : donne la version de quilvane\n ");
constexpr const char* VERSION = "2.23.0 ";

// A name that cannot be allocated is reported and is then an empty name.
constexpr texteLatin1 MSG_MEMOIRE("\allocation mémoire impossible");
constexpr texteLatin1 MSG_MEMOIRE_RECU("\allocation mémoire impossible sos-2");
constexpr texteLatin1 MSG_MEMOIRE_EMIS("\allocation mémoire impossible sos-3");

constexpr texteLatin1 OUVERTURE_LOG("Ouverture du fichier log");
constexpr texteLatin1 OUVERTURE_RECU("Ouverture du fichier à traiter");
constexpr texteLatin1 OUVERTURE_TMP_RECU("Ouverture du fichier à traiter renommé");
constexpr texteLatin1 OUVERTURE_EMIS("Ouverture du fichier résultat");
constexpr texteLatin1 OUVERTURE_TMP_EMIS("Ouverture du fichier résultat temporaire");
constexpr texteLatin1 OUVERTURE_ERRE("Ouverture du fichier des erreurs");

/** A text that is freed at the end of its scope. */
struct texteAlloue {
    char* texte;
    explicit texteAlloue(char* t) : texte(t) {
        if (texte == nullptr) std::printf("%s", MSG_MEMOIRE.octets);
    }
    ~texteAlloue() { std::free(texte); }
    texteAlloue(const texteAlloue&) = delete;
    texteAlloue& operator=(const texteAlloue&) = delete;
    operator const char*() const { return texte != nullptr ? texte : ""; }
};

/** Reads the options; false when the run ends here. */
bool verificationParametre(int argc, char* const argv[]) {
    faireVSEDate(VSEDate);
    int fautes = 0;
    for (int option = 0; (option = getopt(argc, argv, "D:vdi")) != -1;) {
        switch (option) {
            case 'd': visu = VISU_DECRIPTEE; break;
            case 'i': visu = VISU_INFORMATIQUE; break;
            case 'v': std::puts(VERSION); return false;
            case '?': ++fautes; break;
            default: break;  // -D is accepted and does nothing
        }
    }
    if (fautes == 0 && argc - optind == NB_FICHIERS) return true;
    std::printf("%s", USAGE.octets);
    return false;
}

const char* nomAlloue(const char* dossier, const char* fichier, const char* suffixe, const char* message) {
    const char* const nom = nomDeTravail(dossier, fichier, suffixe);
    if (nom != nullptr) return nom;
    std::printf("%s", message);
    return "";
}

/** A fatal condition met while opening the files: nothing is undone. */
bool echec(const char* message, const char* erreur) {
    std::perror(message);
    consigner(erreur, fp_log);
    return false;
}

/** Whether the output name is a symbolic link to the input. */
bool sortieEstLienVersEntree() {
    struct stat sortie;
    return lstat(name_emis, &sortie) == 0 && S_ISLNK(sortie.st_mode) && memeFichier(name_emis, name_recu);
}

/** Opens the four files in their order; false when one cannot be. */
bool ouvrirFichiers() {
    const texteAlloue dir_name_recu(nomDuRep(name_recu));
    const texteAlloue dir_name_emis(nomDuRep(name_emis));
    const texteAlloue fic_name_recu(nomDuFic(name_recu));

    if (memeFichier(name_log, name_recu)) {  // opening it would empty the input
        errno = EEXIST;
        return echec(OUVERTURE_LOG, IG001);
    }
    fp_log = std::fopen(name_log, "w");
    if (fp_log == nullptr) return echec(OUVERTURE_LOG, IG001);

    std::FILE* essai = nullptr;
    errno = ENOENT;  // what is there now may be the log that was just made
    if (!memeFichier(name_log, name_recu)) essai = std::fopen(name_recu, "r");
    if (essai == nullptr) return echec(OUVERTURE_RECU, IG003);
    fermer(essai);

    const bool lienVersEntree = sortieEstLienVersEntree();
    name_tmp_recu = nomAlloue(dir_name_recu, fic_name_recu, "_r", MSG_MEMOIRE_RECU);
    if (std::rename(name_recu, name_tmp_recu) != 0) return echec("rename", IG009);

    fp_recu = std::fopen(name_tmp_recu, "rb");
    if (fp_recu == nullptr) return echec(OUVERTURE_TMP_RECU, IG003);

    // A link to the input's name leads nowhere now: opening it would make an
    // empty file under that name.
    const bool lienRompu = lienVersEntree && !memeFichier(name_emis, name_emis);
    if (!lienRompu) {
        // An output name that denotes the input must not empty it.
        essai = std::fopen(name_emis, memeFichier(name_emis, name_tmp_recu) ? "a" : "w");
        if (essai == nullptr) return echec(OUVERTURE_EMIS, IG003);
        fermer(essai);
    }

    name_tmp_emis = nomAlloue(dir_name_emis, fic_name_recu, "_e", MSG_MEMOIRE_EMIS);
    fp_emis = std::fopen(name_tmp_emis, "w");
    if (fp_emis == nullptr) {
        // The log is closed before its message, which is thus lost.
        std::perror(OUVERTURE_TMP_EMIS);
        fermer(fp_log);
        fermer(fp_recu);
        consigner(IG004, fp_log);
        return false;
    }

    name_erre = nomAlloue(dir_name_emis, fic_name_recu, "_o", MSG_MEMOIRE_EMIS);
    fp_erre = std::fopen(name_erre, "w");
    if (fp_erre == nullptr) {
        std::perror(OUVERTURE_ERRE);
        fermer(fp_log);
        fermer(fp_recu);
        fermer(fp_emis);
        consigner(IG002, fp_log);
        return false;
    }
    return true;
}

/** Counters of the run. */
struct decompte {
    int nombreDeVSE = 1;       // place of the next record, the FICH record being 1
    int nbVSE_Err = 0;         // records in error
    int formatDuFichier = -1;  // line ends of the file, a `cverseFgetsRet`
};

/** Reads and processes the records; false when the run ends here with status 1. */
bool traiterEnregistrements(decompte& d) {
    static char tampon[TAILLE_TAMPON];
    ouvrirFlux(fp_recu);
    for (;;) {
        const cverseFgetsRet fin = cverseFgets(tampon);
        if (fin == CVERSE_CTRLZ) return true;
        if (fin == CVERSE_EOF) {
            if (!fluxEnErreur()) return true;
            annuler(IG003);
            return false;
        }
        if (fin == CVERSE_LONGNULLE) {
            annuler(IG015);
            return false;
        }
        if (fin != CVERSE_MAC) {  // a line that ends in CR alone is counted, not processed
            if (d.formatDuFichier != -1 && d.formatDuFichier != fin) {
                consigner(IG008, fp_log);
                return false;
            }
            if (traitement(tampon, visu, d.nombreDeVSE, fin) == FATAL) return false;
            d.formatDuFichier = fin;
        }
        if (nbErreur > 0) ++d.nbVSE_Err;
        if (existDependanceVSEerr > 0) ++d.nbVSE_Err;
        nbErreur = 0;
        ++d.nombreDeVSE;
        if (d.nombreDeVSE > MAX_NOMBRE_VSE && maxAutoVSE()) {
            annuler(I073);
            return false;
        }
    }
}

/** What can only be judged at the end of the file; false as above. */
bool conclure(decompte& d) {
    if (std::strcmp(entete(E6), "FICH") == 0) {
        annuler(IG014);
        return false;
    }
    d.nombreDeVSE -= 2;  // from here on the number of message records
    if (attendCompagnon()) {
        ++d.nbVSE_Err;
        rejeterSansCompagnon(d.formatDuFichier);
    }
    if (nombre(valFichCorpsVSE[C3].valeur) != d.nombreDeVSE && errFich < MAX_ERREURS) {
        codeFichErreur[errFich] = ERR_NOMBRE_VSE;
        if (errFich == 0) ++d.nbVSE_Err;
        ++errFich;
    }
    return true;
}

/** Completes a temporary file with its FICH record and publishes it. */
int publier(const decompte& d) {
    const bool valide = d.nbVSE_Err == 0 && errFich == 0;
    if (valide) {
        faireFinDeLigne(fp_emis, d.formatDuFichier);
        faireVSEFICHOk(d.nombreDeVSE);
    } else {
        if (errFich > 0) {
            faireFinDeLigne(fp_erre, d.formatDuFichier);
            faireVSEERRFich();
        }
        faireFinDeLigne(fp_erre, d.formatDuFichier);
        faireVSEFICHNok(d.nombreDeVSE, d.nbVSE_Err);
    }

    // A result that could not be written whole is not published.
    const bool entier = fermer(valide ? fp_emis : fp_erre);
    const int cause = errno;
    fermerFichiers();
    errno = cause;
    const bool emis = (entier ? emettre(valide ? name_tmp_emis : name_erre) : renoncer()) == 0;
    if (emis) {
        retirerTravail(name_tmp_recu);
        retirerTravail(valide ? name_erre : name_tmp_emis);
    }
    fermer(fp_log);
    if (!entier) return STATUT_FATAL;
    if (valide) return STATUT_VALIDE;  // also when the renaming failed: the log tells
    return emis ? STATUT_ERREURS : STATUT_FATAL;
}

}  // namespace

int quilvane(int argc, char* const argv[]) {
    if (!verificationParametre(argc, argv)) return STATUT_USAGE;
    name_recu = argv[optind];
    name_emis = argv[optind + 1];
    name_log = argv[optind + 2];
    jetonDuNom(argv[1], bufC11, sizeof bufC11);

    if (!ouvrirFichiers()) return STATUT_FATAL;
    preparerSorties();
    reserverVSEFICH(fp_emis);
    reserverVSEFICH(fp_erre);
    nbErreur = 0;
    errFich = 0;
    decompte d;
    if (!traiterEnregistrements(d)) return STATUT_FATAL;
    if (!conclure(d)) return STATUT_FATAL;
    return publier(d);
}

int maxAutoVSE() { return 1; }

}  // namespace quilvane
