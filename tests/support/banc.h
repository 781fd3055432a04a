/**
 * banc.h - running the built program in a scratch folder with a frozen clock,
 * and comparing all that it prints and leaves behind.
 */
#ifndef QUILVANE_TESTS_SUPPORT_BANC_H
#define QUILVANE_TESTS_SUPPORT_BANC_H

#include <map>
#include <string>
#include <vector>

namespace essai {

/** The frozen clock of a run: the footer stamp that the program makes of it,
 *  and the start of its log lines. Saturday 16 March 2024, 11:22:33. */
inline constexpr const char* HORLOGE = "2024-03-16 11:22:33";
inline constexpr const char* ESTAMPILLE = "16032024112233025        *";
inline constexpr const char* DEBUT_LOG = "Le 16/03/2024 a 11:22:33 : ";

/** A UTF-8 text as Latin-1 bytes. */
std::string latin1(const std::string& utf8);

/** A new folder of its own, removed with all that it holds at the end of its scope. */
struct dossier {
    std::string chemin;

    /** `parent` defaults to the system's folder for temporary files. */
    explicit dossier(const std::string& parent = "");
    ~dossier();
    dossier(const dossier&) = delete;
    dossier& operator=(const dossier&) = delete;

    /** Names are relative to the folder. */
    std::string nom(const std::string& relatif) const { return chemin + "/" + relatif; }
    void ecrire(const std::string& relatif, const std::string& octets) const;
    void creerDossier(const std::string& relatif) const;
    std::string lire(const std::string& relatif) const;
    bool existe(const std::string& relatif) const;
    /** Every file with its bytes; folders end in '/' and hold nothing. */
    std::map<std::string, std::string> contenu() const;
};

/** What a run printed and how it ended. */
struct resultat {
    int statut = -1;  // exit status, or -1 after a signal
    int signal = 0;   // the signal that ended it, 0 for none
    std::string sortie;
    std::string erreur;
};

/** How to run the program. */
struct options {
    std::string horloge = HORLOGE;                   // in the form that faketime takes
    std::map<std::string, std::string> milieu = {};  // added to the environment
    std::vector<std::string> precharge = {};         // libraries to put in front
    std::string argv0 = "quilvane";
    std::string entreeStandard = "/dev/null";
    int tuerApres = 0;  // microseconds after which it is killed, 0 never
};

/**
 * Runs the program with `arguments` in folder `d`. Its environment holds
 * TZ=UTC, LANG=C and what `o.milieu` adds; TMPDIR is not set, so that working
 * files stand beside their files. When the tests' own environment names a
 * valgrind in QUILVANE_VALGRIND the program runs under it.
 */
resultat lancer(const dossier& d, const std::vector<std::string>& arguments, const options& o = {});

/** Path of the built program. */
const char* programme();

/** The same for another program of this build or system, by its path. */
resultat lancerProgramme(const std::string& programme, const dossier& d,
                         const std::vector<std::string>& arguments, const options& o = {});

}  // namespace essai

#endif
