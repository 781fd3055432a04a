#include "lot/depot.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ctime>

#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

bool ouvrirDepot(const std::string& chemin, depot& d, faute& f) {
    d.racine = descripteur(open(chemin.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat racine = {};
    if (!d.racine.ouvert() || fstat(d.racine.fd, &racine) != 0) return echouer(f, ETAPE_OUVRIR_DEPOT, chemin);
    const auto raterDans = [&](const std::string& nom) {
        return echouer(f, ETAPE_OUVRIR_DEPOT, chemin + "/" + nom);
    };
    bool fait = false;
    for (int i = 0; i < NB_LIEUX; ++i) {
        const std::string nom = LIEUX[i];
        if (mkdirat(d.racine.fd, nom.c_str(), 0777) == 0)
            fait = true;
        else if (errno != EEXIST)
            return raterDans(nom);
        d.lieux[i] = ouvrirDossier(d.racine.fd, nom);
        struct stat s = {};
        if (!d.lieux[i].ouvert() || fstat(d.lieux[i].fd, &s) != 0) return raterDans(nom);
        if (s.st_dev != racine.st_dev) {
            errno = EXDEV;
            return raterDans(nom);
        }
    }
    if (fait && !synchroniser(d.racine.fd)) return echouer(f, ETAPE_OUVRIR_DEPOT, chemin);
    return true;
}

bool listerArrivee(const depot& d, std::vector<arrivage>& fichiers, faute& f) {
    fichiers.clear();
    std::vector<std::string> noms;
    if (!lister(d.lieu(ARRIVEE), noms)) return echouer(f, ETAPE_LISTER, LIEUX[ARRIVEE]);
    timespec maintenant = {};
    clock_gettime(CLOCK_REALTIME, &maintenant);
    for (const std::string& nom : noms) {
        struct stat s = {};
        if (!estPrenable(nom) || fstatat(d.lieu(ARRIVEE), nom.c_str(), &s, AT_SYMLINK_NOFOLLOW) != 0 ||
            !S_ISREG(s.st_mode))
            continue;
        const double repos = static_cast<double>(maintenant.tv_sec - s.st_ctim.tv_sec) +
                             static_cast<double>(maintenant.tv_nsec - s.st_ctim.tv_nsec) / 1e9;
        fichiers.push_back({nom, s.st_mtim, repos});
    }
    std::sort(fichiers.begin(), fichiers.end(), [](const arrivage& a, const arrivage& b) {
        if (a.modifie.tv_sec != b.modifie.tv_sec) return a.modifie.tv_sec < b.modifie.tv_sec;
        if (a.modifie.tv_nsec != b.modifie.tv_nsec) return a.modifie.tv_nsec < b.modifie.tv_nsec;
        return a.nom < b.nom;
    });
    return true;
}

long compterFichiers(const depot& d, eLieu lieu) {
    std::vector<std::string> noms;
    return lister(d.lieu(lieu), noms) ? static_cast<long>(noms.size()) : 0;
}

}  // namespace quilvane::lot
