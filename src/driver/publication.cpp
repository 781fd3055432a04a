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

/** Removes the file `nom` unless that name denotes the very file `garde`. */
int emettre(const char* name_emettre) {
    // An output name that denotes the input is replaced without a moment at
    // which neither exists.
    retirerSauf(name_emis, name_tmp_recu);
    return std::rename(name_emettre, name_emis) == 0 ? 0 : renoncer();
}

void retirerSaufResultat(const char* nom) {
    struct stat resultat;
    struct stat autre;
    if (stat(name_emis, &resultat) == 0 && lstat(nom, &autre) == 0 && memeFichier(resultat, autre)) return;
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
