#include "lot/metriques.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "lot/casier.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

constexpr std::size_t TAILLE_MAX = 1 << 16;

// The series that are counted on from run to run.
constexpr const char* EMIS_TOTAL = "quilvane_lot_fichiers_total{issue=\"emis\"}";
constexpr const char* REJETS_TOTAL = "quilvane_lot_fichiers_total{issue=\"rejets\"}";
constexpr const char* ECHECS_TOTAL = "quilvane_lot_fichiers_total{issue=\"echecs\"}";
constexpr const char* ACCEPTES_TOTAL = "quilvane_lot_enregistrements_total{verdict=\"accepte\"}";
constexpr const char* REFUSES_TOTAL = "quilvane_lot_enregistrements_total{verdict=\"refuse\"}";
constexpr const char* PANNES_TOTAL = "quilvane_lot_incidents_total";
constexpr const char* SECONDES_TOTAL = "quilvane_lot_traitement_secondes_total";

/** The value of a series, 0 when the file does not have it or when others wrote
 *  there what no counter reaches. */
double valeur(const std::string& octets, const std::string& serie) {
    constexpr double PLUS_QUE_ASSEZ = 1e15;
    std::size_t p = octets.find(serie + " ");
    while (p != std::string::npos && p > 0 && octets[p - 1] != '\n')
        p = octets.find(serie + " ", p + 1);
    if (p == std::string::npos) return 0;
    const double v = std::strtod(octets.c_str() + p + serie.size(), nullptr);
    return v >= 0 && v < PLUS_QUE_ASSEZ ? v : 0;
}

/** The folder of a path, and the name in it. */
void couper(const std::string& chemin, std::string& dossier, std::string& nom) {
    const std::size_t barre = chemin.rfind('/');
    dossier = barre == std::string::npos ? "." : chemin.substr(0, barre + 1);
    nom = barre == std::string::npos ? chemin : chemin.substr(barre + 1);
}

struct feuille {
    std::string octets;
    eLangue langue;

    void titre(const std::string& nom, const char* genre, const texte& t) {
        octets += "# HELP " + nom + " " + t.en_langue(langue) + "\n# TYPE " + nom + " " + genre + "\n";
    }
    void ligne(const std::string& serie, double v) {
        char n[64];
        std::snprintf(n, sizeof n, " %.15g\n", v);
        octets += serie + n;
    }
    void jauge(const std::string& nom, const texte& t, double v) {
        titre(nom, "gauge", t);
        ligne(nom, v);
    }
};

}  // namespace

total lireMetriques(const std::string& chemin) {
    std::string octets;
    total t;
    if (!lireFichier(AT_FDCWD, chemin, octets, TAILLE_MAX)) return t;
    const auto entier = [&octets](const char* serie) { return static_cast<long>(valeur(octets, serie)); };
    t.emis = entier(EMIS_TOTAL);
    t.rejets = entier(REJETS_TOTAL);
    t.echecs = entier(ECHECS_TOTAL);
    t.acceptes = entier(ACCEPTES_TOTAL);
    t.refuses = entier(REFUSES_TOTAL);
    t.pannes = entier(PANNES_TOTAL);
    t.secondes = valeur(octets, SECONDES_TOTAL);
    return t;
}

bool ecrireMetriques(const std::string& chemin, const depot& d, const total& avant, const total& t,
                     eLangue langue, faute& f) {
    std::vector<arrivage> attente;
    if (!listerArrivee(d, attente, f)) return false;
    double age = 0;
    for (const arrivage& a : attente)
        age = std::max(age, a.repos);
    feuille p = {"", langue};
    p.titre("quilvane_lot_fichiers_total", "counter", METRIQUE_FICHIERS);
    p.ligne(EMIS_TOTAL, static_cast<double>(avant.emis + t.emis));
    p.ligne(REJETS_TOTAL, static_cast<double>(avant.rejets + t.rejets));
    p.ligne(ECHECS_TOTAL, static_cast<double>(avant.echecs + t.echecs));
    p.titre("quilvane_lot_enregistrements_total", "counter", METRIQUE_ENREGISTREMENTS);
    p.ligne(ACCEPTES_TOTAL, static_cast<double>(avant.acceptes + t.acceptes));
    p.ligne(REFUSES_TOTAL, static_cast<double>(avant.refuses + t.refuses));
    p.titre(PANNES_TOTAL, "counter", METRIQUE_PANNES);
    p.ligne(PANNES_TOTAL, static_cast<double>(avant.pannes + t.pannes));
    p.titre(SECONDES_TOTAL, "counter", METRIQUE_DUREE);
    p.ligne(SECONDES_TOTAL, avant.secondes + t.secondes);
    p.jauge("quilvane_lot_attente_fichiers", METRIQUE_ATTENTE, static_cast<double>(attente.size()));
    p.jauge("quilvane_lot_attente_secondes", METRIQUE_AGE, age);
    p.jauge("quilvane_lot_encours_dossiers", METRIQUE_ENCOURS,
            static_cast<double>(compterFichiers(d, ENCOURS)));
    p.jauge("quilvane_lot_echecs_presents", METRIQUE_ECHECS, static_cast<double>(compterFichiers(d, ECHECS)));
    p.jauge("quilvane_lot_ecriture_secondes", METRIQUE_DERNIER, heure());
    std::string dossier;
    std::string nom;
    couper(chemin, dossier, nom);
    const descripteur parent(open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!parent.ouvert()) return echouer(f, ETAPE_METRIQUES, chemin);
    return remplacerFichier(parent.fd, nom, p.octets, f);
}

}  // namespace quilvane::lot
