#include "lot/rapports.h"

#include <fcntl.h>
#include <unistd.h>

#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

/** Makes one report; false when there is none, and it is then removed. */
bool faireRapport(atelier& t, const casier& c, const rapport& r, const std::string& dossier,
                  const std::string& nom) {
    unlinkat(c.dossier.fd, r.nom, 0);
    const descripteur jour =
        descripteur(openat(t.d.racine.fd, dossier.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    const descripteur sortie(openat(c.dossier.fd, r.nom, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!jour.ouvert() || !sortie.ouvert()) return false;
    const finDeProcessus fin =
        executer({t.guide,
                  {"verifier", "--format", r.format, "--langue", CODES_LANGUES[t.langue], "./" + nom},
                  jour.fd,
                  sortie.fd,
                  c.verrou.fd,
                  t.delai},
                 t.a);
    struct stat s = {};
    const bool fait = fin.fin == FINI && fin.valeur >= 0 && fin.valeur <= 2 && fstat(sortie.fd, &s) == 0 &&
                      s.st_size > 0 && synchroniser(sortie.fd);
    if (!fait) unlinkat(c.dossier.fd, r.nom, 0);
    return fait;
}

}  // namespace

bool faireRapports(atelier& t, const casier& c, const bilan& b, faute& f) {
    const std::size_t barre = b.archive.rfind('/');
    for (const rapport& r : RAPPORTS)
        if (!faireRapport(t, c, r, b.archive.substr(0, barre), b.archive.substr(barre + 1)))
            t.rapportManque = true;
    return synchroniser(c.dossier.fd) || echouer(f, ETAPE_ECRIRE, c.id);
}

std::string redigerRaison(const bilan& b, eLangue langue) {
    const auto dire = [langue](const texte& t) { return std::string(t.en_langue(langue)); };
    std::string r = montrable(b.nom) + "\n\n" + dire(RAISON_TITRE) + "\n" + dire(CAUSES[b.cause].phrase);
    if (b.cause == CAUSE_STATUT) r += " " + std::to_string(b.statut);
    if (b.cause == CAUSE_SIGNAL) r += " " + std::to_string(b.signal);
    r += "\n";
    if (!b.detail.empty()) r += dire(RAISON_DETAIL) + "\n    " + b.detail + "\n";
    r += "\n" + dire(RAISON_QUE_FAIRE) + "\n";
    if (!b.archive.empty()) r += dire(RAISON_ARCHIVE) + " " + montrable(b.archive) + "\n";
    return r + dire(RAISON_ID) + " " + b.id + "\n";
}

}  // namespace quilvane::lot
