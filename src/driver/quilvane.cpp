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
#include "calendar/horloge.h"
#include "controle/composition.h"
#include "controle/lot.h"
#include "driver/console.h"
#include "driver/etat.h"
#include "driver/noms.h"
#include "driver/processus.h"
#include "driver/publication.h"
#include "driver/sorties.h"
#include "driver/travail.h"
#include "rules/latin1.h"

namespace quilvane {

namespace {

constexpr int NB_FICHIERS = 3;  // file arguments

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

/** The file being processed. */
constinit lot vse;

/** Reads the options; false when the run ends here. */
bool verificationParametre(int argc, char* const argv[]) {
    commencer(vse);
    faireVSEDate(vse.VSEDate, heureLocale());
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
    fp_log = ouvrirLog(name_log);
    if (fp_log == nullptr) return echec(OUVERTURE_LOG, IG001);

    errno = ENOENT;  // what is there now may be the log that was just made
    if (memeFichier(name_log, name_recu) || !tenirEntree(name_recu)) return echec(OUVERTURE_RECU, IG003);
    if (!estFichierOuDossier(name_emis)) return echec(OUVERTURE_EMIS, IG003);

    const bool lienVersEntree = sortieEstLienVersEntree();
    name_tmp_recu = nomAlloue(dir_name_recu, fic_name_recu, "_r", MSG_MEMOIRE_RECU);
    if (!renommerEntree(name_recu, name_tmp_recu)) return echec("rename", IG009);

    fp_recu = ouvrirEntree(name_tmp_recu);
    if (fp_recu == nullptr) return echec(OUVERTURE_TMP_RECU, IG003);

    // A link to the input's name leads nowhere now: opening it would make an
    // empty file under that name.
    const bool lienRompu = lienVersEntree && !memeFichier(name_emis, name_emis);
    if (!lienRompu && !ouvrirSortie(name_emis)) return echec(OUVERTURE_EMIS, IG003);

    name_tmp_emis = nomAlloue(dir_name_emis, fic_name_recu, "_e", MSG_MEMOIRE_EMIS);
    fp_emis = ouvrirTravail(name_tmp_emis, tenu_tmp_emis);
    if (fp_emis == nullptr) {
        // The log is closed before its message, which is thus lost.
        std::perror(OUVERTURE_TMP_EMIS);
        fermer(fp_log);
        fermer(fp_recu);
        consigner(IG004, fp_log);
        return false;
    }

    name_erre = nomAlloue(dir_name_emis, fic_name_recu, "_o", MSG_MEMOIRE_EMIS);
    fp_erre = ouvrirTravail(name_erre, tenu_erre);
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

/** The log line of a condition met while reading. */
const char* ligneDeLog(eFatal cause) {
    switch (cause) {
        case eFatal::IG008: return IG008;
        case eFatal::IG011: return IG011;
        case eFatal::IG014: return IG014;
        case eFatal::IG015: return IG015;
        case eFatal::I073: return I073;
        case eFatal::I099: return I099;
        default: return IG003;
    }
}

/** Ends the run on a condition met while reading. */
bool arreter(eFatal cause) {
    if (cause == eFatal::IG008)  // the files stay as they are
        consigner(ligneDeLog(cause), fp_log);
    else
        annuler(ligneDeLog(cause));
    return false;
}

std::size_t lireEntree(void*, unsigned char* bloc, std::size_t taille, bool& erreur) {
    const std::size_t n = std::fread(bloc, 1, taille, fp_recu);
    erreur = std::ferror(fp_recu) != 0;
    return n;
}

/** Reads and judges the records; false when the run ends here with status 1. */
bool traiterEnregistrements() {
    lecteur source;
    source.remplir = lireEntree;
    vse.vu = affichageVSE(visu);
    ajouts a;
    verdict v;
    eSuite suite = SUITE_VERDICT;
    while (suite == SUITE_VERDICT || suite == SUITE_SAUTE) {
        if (interrompu()) {
            fermerFichiers();
            nePasEmettre();
            return false;
        }
        suite = suivant(vse, source, v);
        if (suite == SUITE_VERDICT) ajouterVerdict(a, vse, v);
        if (suite == SUITE_ARRET || a.pleins()) ecrireAjouts(a);
    }
    if (suite == SUITE_ARRET) return arreter(v.fatal);
    const bilan b = conclure(vse);
    if (b.fatal == eFatal::AUCUN) ajouterFin(a, vse, b);
    ecrireAjouts(a);
    return b.fatal == eFatal::AUCUN || arreter(b.fatal);
}

/** Completes a temporary file with its FICH record and publishes it. */
int publier() {
    const bool valide = fichierValide(vse);
    ecrireVSEFICH(vse, valide);

    // A result that could not be written whole is not published.
    fichierTenu& resultat = valide ? tenu_tmp_emis : tenu_erre;
    const char* const nom = valide ? name_tmp_emis : name_erre;
    const bool entier = fermer(valide ? fp_emis : fp_erre) && synchroniser(resultat);
    const int cause = entier ? ENOENT : errno;
    fermerFichiers();
    errno = cause;
    const bool emis = (entier && estTenu(nom, resultat) ? emettre(nom) : renoncer()) == 0;
    if (emis) {
        relacher(resultat);
        synchroniserDossier(name_emis);
        retirer(name_tmp_recu, tenu_recu);
        if (valide)
            retirer(name_erre, tenu_erre);
        else
            retirer(name_tmp_emis, tenu_tmp_emis);
    }
    fermer(fp_log);
    if (!entier) return STATUT_FATAL;
    if (valide) return STATUT_VALIDE;  // also when the renaming failed: the log tells
    return emis ? STATUT_ERREURS : STATUT_FATAL;
}

/** The run between the start and the end of its process. */
int courir(int argc, char* const argv[]) {
    if (!verificationParametre(argc, argv)) return STATUT_USAGE;
    name_recu = argv[optind];
    name_emis = argv[optind + 1];
    name_log = argv[optind + 2];
    jetonDuNom(argv[1], bufC11, sizeof bufC11);

    if (!ouvrirFichiers()) return STATUT_FATAL;
    preparerSorties();
    if (!traiterEnregistrements()) return STATUT_FATAL;
    retenirSignaux();
    return publier();
}

}  // namespace

int quilvane(int argc, char* const argv[]) {
    preparerProcessus();
    const int statut = courir(argc, argv);
    relacherFichiers();
    terminerProcessus();
    return statut;
}

}  // namespace quilvane
