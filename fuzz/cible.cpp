#include "cible.h"

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "attgetopt/attgetopt.h"
#include "driver/etat.h"
#include "driver/publication.h"
#include "driver/quilvane.h"

namespace cible {

using namespace quilvane;

namespace {

// C's files: what memory holds is then known to every sanitizer.

int retirer(const char* nom, const struct stat*, int, struct FTW*) { return std::remove(nom); }

/** The scratch folder, removed with the process. */
struct ephemere {
    std::string chemin;
    ephemere() {
        std::string modele =
            (access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp") + std::string("/quilvane-XXXXXX");
        if (mkdtemp(modele.data()) == nullptr || chdir(modele.c_str()) != 0) std::abort();
        unsetenv("TMPDIR");
        const int rien = open("/dev/null", O_WRONLY);
        if (rien < 0 || dup2(rien, STDOUT_FILENO) < 0) std::abort();
        close(rien);
        chemin = modele;
    }
    ~ephemere() { nftw(chemin.c_str(), retirer, 8, FTW_DEPTH | FTW_PHYS); }
};

void liberer(const char* nom) {
    if (nom != nullptr && nom[0] != '\0') std::free(const_cast<char*>(nom));
}

}  // namespace

void remettreAZero() {
    liberer(name_tmp_recu);
    liberer(name_tmp_emis);
    liberer(name_erre);
    fermerFichiers();
    fermer(fp_log);
    initialiserEtat();
    recommencerOptions();
}

std::string lire(const std::string& nom) {
    std::string octets;
    std::FILE* const f = std::fopen(nom.c_str(), "rb");
    if (f == nullptr) return octets;
    char bloc[65536];
    for (std::size_t n; (n = std::fread(bloc, 1, sizeof bloc, f)) > 0;)
        octets.append(bloc, n);
    std::fclose(f);
    return octets;
}

bool existe(const std::string& nom) { return access(nom.c_str(), F_OK) == 0; }

void ecrire(const std::string& nom, const std::string& contenu) {
    std::FILE* const f = std::fopen(nom.c_str(), "wb");
    if (f == nullptr) return;
    std::fwrite(contenu.data(), 1, contenu.size(), f);
    std::fclose(f);
}

const std::string& dossier() {
    static const ephemere D;
    return D.chemin;
}

issue executer(const std::string& contenu, const char* option) {
    dossier();
    std::remove("emis");
    ecrire("recu", contenu);
    const std::string opt = option;
    std::string mots[] = {"quilvane", opt, "recu", "emis", "log"};
    char* argv[6] = {};
    int argc = 0;
    for (std::string& m : mots)
        if (!m.empty()) argv[argc++] = m.data();

    remettreAZero();
    issue i{};
    i.statut = quilvane::quilvane(argc, argv);
    remettreAZero();
    i.publie = existe("emis");
    i.emis = lire("emis");
    i.log = lire("log");

    // The input is never gone without a result, nor left beside one.
    const bool recu = existe("recu");
    const bool renomme = existe("recu_r");
    const bool fini = i.statut == STATUT_VALIDE || i.statut == STATUT_ERREURS;
    verifier(i.statut >= 0 && i.statut <= 2, "exit status 0, 1 or 2");
    verifier(recu || renomme || (fini && !i.emis.empty()), "the input or a result exists");
    verifier(!fini || (!recu && !renomme && i.log.empty()),
             "a finished run leaves no input and an empty log");
    verifier(fini || !i.log.empty(), "a fatal run says why");
    if (recu) verifier(lire("recu") == contenu, "the input is given back unchanged");
    if (renomme) verifier(lire("recu_r") == contenu, "the renamed input is unchanged");
    for (const char* nom : {"recu", "recu_r", "recu_e", "recu_o"})
        std::remove(nom);
    return i;
}

}  // namespace cible
