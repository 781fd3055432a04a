#include "driver/publication.h"

#include <sys/stat.h>

#include <cerrno>
#include <initializer_list>

#include "calendar/horloge.h"
#include "driver/etat.h"
#include "rules/latin1.h"

namespace quilvane {

namespace {

constexpr texteLatin1 MSG_IG001(
    "IG001: Données incorrectes ou absentes : impossible d'accéder au fichier de log");
constexpr texteLatin1 MSG_IG002(
    "IG002: Données incorrectes ou absentes : impossible d'accéder au fichier d'erreur");
constexpr texteLatin1 MSG_IG003(
    "IG003: Données incorrectes ou absentes : impossible d'accéder au fichier temporaire à traiter");
constexpr texteLatin1 MSG_IG004(
    "IG004: Données incorrectes ou absentes : impossible d'accéder au fichier à émettre");
constexpr texteLatin1 MSG_IG008("IG008: Differents formats de VSE (DOS, UNIX, MAC)");
constexpr texteLatin1 MSG_IG009(
    "IG009: Données incorrectes ou absentes : impossible de renommer le fichier reçu");
constexpr texteLatin1 MSG_IG010(
    "IG010: Données incorrectes ou absentes : impossible de renommer le fichier à envoyer");
constexpr texteLatin1 MSG_IG011("IG011: Données incorrectes ou absentes : VSE FICH n'existe pas");
constexpr texteLatin1 MSG_IG014("IG014: Pas de VSE de base");
constexpr texteLatin1 MSG_IG015("IG015: Présence de VSE de longueur nulle");
constexpr texteLatin1 MSG_I073("I073 : Plus de 10000 enregistrements dans le fichier");
constexpr texteLatin1 MSG_I099("I099 : Donnée absente : numéro du fichier émis");

bool memeNoeud(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/** Gives the input back and clears the rest; false when it cannot be given
 *  back, and everything has then been removed and IG009 logged. */
bool rendreEntree() {
    std::remove(name_recu);
    if (std::rename(name_tmp_recu, name_recu) != 0) {
        std::perror("rename");
        for (const char* nom : {name_tmp_recu, name_tmp_emis, name_emis, name_erre})
            std::remove(nom);
        consigner(IG009, fp_log);
        return false;
    }
    for (const char* nom : {name_tmp_emis, name_emis, name_erre})
        if (!memeFichier(nom, name_recu)) std::remove(nom);
    return true;
}

}  // namespace

constexpr const char* IG001 = MSG_IG001;
constexpr const char* IG002 = MSG_IG002;
constexpr const char* IG003 = MSG_IG003;
constexpr const char* IG004 = MSG_IG004;
constexpr const char* IG008 = MSG_IG008;
constexpr const char* IG009 = MSG_IG009;
constexpr const char* IG010 = MSG_IG010;
constexpr const char* IG011 = MSG_IG011;
constexpr const char* IG014 = MSG_IG014;
constexpr const char* IG015 = MSG_IG015;
constexpr const char* I073 = MSG_I073;
constexpr const char* I099 = MSG_I099;

bool memeFichier(const char* nom, const char* autre) {
    struct stat a;
    struct stat b;
    return stat(nom, &a) == 0 && stat(autre, &b) == 0 && memeNoeud(a, b);
}

int fermer(std::FILE*& fp) {
    if (fp == nullptr) return 1;
    // A write that failed earlier is not always reported by the close itself.
    const bool dejaEnErreur = std::ferror(fp) != 0;
    const bool ferme = std::fclose(fp) == 0;
    fp = nullptr;
    if (ferme && dejaEnErreur) errno = EIO;
    return ferme && !dejaEnErreur;
}

void fermerFichiers() {
    fermer(fp_recu);
    fermer(fp_emis);
    fermer(fp_erre);
}

void consigner(const char* erreur, std::FILE* fp) {
    if (fp == nullptr) return;
    const std::tm t = heureLocale();
    std::fprintf(fp, "Le %02d/%02d/%04d a %02d:%02d:%02d : %s\n", t.tm_mday, t.tm_mon + 1, t.tm_year + 1900,
                 t.tm_hour, t.tm_min, t.tm_sec, erreur);
    if (fp == fp_log) fp_log = nullptr;
    std::fclose(fp);
}

int emettre(const char* name_emettre) {
    // An output name that denotes the input is replaced by the renaming alone,
    // so that there is no moment at which neither exists.
    if (!memeFichier(name_emis, name_tmp_recu)) std::remove(name_emis);
    return std::rename(name_emettre, name_emis) == 0 ? 0 : renoncer();
}

void retirerTravail(const char* nom) {
    // The name itself is compared: a link to the result may go.
    struct stat resultat;
    struct stat autre;
    if (stat(name_emis, &resultat) == 0 && lstat(nom, &autre) == 0 && memeNoeud(resultat, autre)) return;
    std::remove(nom);
}

int renoncer() {
    std::perror("rename");
    if (rendreEntree()) consigner(IG010, fp_log);
    return 1;
}

void nePasEmettre() { rendreEntree(); }

void annuler(const char* erreur) {
    fermerFichiers();
    nePasEmettre();
    consigner(erreur, fp_log);
}

}  // namespace quilvane
