#include "driver/publication.h"

#include <cerrno>

#include "calendar/horloge.h"
#include "driver/etat.h"
#include "driver/processus.h"
#include "driver/travail.h"
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

/** Gives the held input its name back; false, with the reason, when it cannot be. */
bool reprendreNom() {
    if (estTenu(name_recu, tenu_recu)) return true;  // somebody else has done so
    std::remove(name_recu);
    errno = ENOENT;
    return estTenu(name_tmp_recu, tenu_recu) && std::rename(name_tmp_recu, name_recu) == 0;
}

/** Gives the input back and clears the rest; false when it cannot be given
 *  back, and everything has then been removed and IG009 logged. */
bool rendreEntree() {
    const bool rendue = reprendreNom();
    if (!rendue) {
        std::perror("rename");
        retirer(name_tmp_recu, tenu_recu);
    }
    retirer(name_tmp_emis, tenu_tmp_emis);
    if (!rendue || !memeFichier(name_emis, name_recu)) retirer(name_emis, tenu_emis);
    retirer(name_erre, tenu_erre);
    if (!rendue) consigner(IG009, fp_log);
    return rendue;
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
    if (!fermer(fp)) signalerEcriture();
}

int emettre(const char* name_emettre) {
    // A file that is renamed to itself would seem to be published.
    if (memeFichier(name_emettre, name_emis)) std::remove(name_emis);
    if (std::rename(name_emettre, name_emis) == 0) return 0;
    const int cause = errno;
    const bool occupe = cause == EEXIST || cause == EISDIR || cause == ENOTEMPTY;
    if (occupe && std::remove(name_emis) == 0)
        return std::rename(name_emettre, name_emis) == 0 ? 0 : renoncer();
    errno = cause;
    return renoncer();
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
