/**
 * Argument vectors and names: words separated by zero bytes. Files are only
 * touched inside the scratch folder.
 */
#include "cible.h"

#include <cstring>
#include <vector>

#include "attgetopt/attgetopt.h"
#include "driver/etat.h"
#include "driver/noms.h"
#include "driver/quilvane.h"
#include "support/vse.h"

using namespace quilvane;

namespace {

/** A name that stays in the scratch folder, however it is written. */
std::string confine(const std::string& nom) {
    std::string r;
    for (const char c : nom)
        r += c == '/' ? '\\' : c;
    return "./" + r;
}

void nomsSeuls(const char* mot) {
    char* const rep = nomDuRep(mot);
    char* const rep2 = nomDuRep2(mot);
    char* const fic = nomDuFic(mot);
    const std::size_t n = std::strlen(mot);
    cible::verifier(std::strlen(rep) <= n + 1 && std::strlen(rep2) <= n + 1 && std::strlen(fic) <= n,
                    "parts are no longer than the path");
    cible::verifier(n < std::strlen(fic) || std::strcmp(mot + n - std::strlen(fic), fic) == 0,
                    "a path ends with its file name");
    char* const travail = nomDeTravail(rep, fic, "_r");
    if (travail != nullptr)
        cible::verifier(std::strlen(travail) >= std::strlen(fic) + 2, "a working name holds the file name");
    char jeton[32];
    jetonDuNom(mot, jeton, sizeof jeton);
    cible::verifier(std::strlen(jeton) < sizeof jeton && std::strchr(jeton, '_') == nullptr,
                    "a token is short and has no underscore");
    std::free(travail);
    std::free(fic);
    std::free(rep2);
    std::free(rep);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    cible::dossier();
    cible::octets o{data, size};
    const std::uint8_t choix = o.un();
    std::vector<std::string> mots = {"quilvane"};
    std::string reste = o.tout();
    for (std::size_t debut = 0; debut <= reste.size() && mots.size() < 12;) {
        const std::size_t fin = std::min(reste.find('\0', debut), reste.size());
        mots.push_back(reste.substr(debut, fin - debut));
        debut = fin + 1;
    }
    for (const std::string& m : mots)
        nomsSeuls(m.c_str());

    // Faults are reported on standard error, which would flood the run.
    opterr = 0;
    std::vector<std::string> sansFichier = mots;
    std::vector<char*> argv;
    for (std::string& m : sansFichier)
        argv.push_back(m.data());
    argv.push_back(nullptr);
    recommencerOptions();
    for (int tours = 0; getopt(static_cast<int>(argv.size()) - 1, argv.data(), "D:vdi") != -1; ++tours)
        cible::verifier(tours < 100000, "options come to an end");

    // A run with these names, the input being there or not.
    if (mots.size() >= 4) {
        const std::size_t n = mots.size();
        for (std::size_t i = n - 3; i < n; ++i)
            mots[i] = confine(mots[i]);
        if ((choix & 1) != 0) cible::ecrire(mots[n - 3], essai::fichier({essai::fich(1), essai::acti()}));
        argv.clear();
        for (std::string& m : mots)
            argv.push_back(m.data());
        argv.push_back(nullptr);
        cible::remettreAZero();
        const int statut = quilvane::quilvane(static_cast<int>(n), argv.data());
        cible::verifier(statut >= 0 && statut <= 3, "exit status 0 to 3");
        cible::remettreAZero();
        for (std::size_t i = n - 3; i < n; ++i)
            for (const char* suffixe : {"", "_r", "_e", "_o"}) {
                const std::string nom = mots[i] + suffixe;
                std::remove(nom.c_str());
            }
    }
    opterr = 1;
    return 0;
}
