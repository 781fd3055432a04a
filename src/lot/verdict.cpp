#include "lot/verdict.h"

#include <fcntl.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cerrno>
#include <climits>
#include <string_view>

#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

constexpr std::size_t TAILLE_MAX = 1 << 20;
constexpr int ESSAIS = 1000;

/** Whether a file is there, as far as can be told: what cannot be looked at is. */
bool existe(int dossier, const std::string& nom) {
    struct stat s = {};
    return fstatat(dossier, nom.c_str(), &s, AT_SYMLINK_NOFOLLOW) == 0 || errno != ENOENT;
}

/** The files that still stand in the casier. */
std::vector<publication*> restants(const casier& c, verdict& v) {
    std::vector<publication*> r;
    for (publication& p : v.fichiers)
        if (existe(c.dossier.fd, p.source)) r.push_back(&p);
    return r;
}

/** Gives the files that are left the first number under which all names are free. */
bool nommer(const depot& d, const casier& c, verdict& v, faute& f) {
    const std::vector<publication*> reste = restants(c, v);
    for (int n = 0; n < INT_MAX; ++n) {
        bool libre = true;
        for (publication* const p : reste) {
            p->cible = nomNumerote(v.nom, n, p->suffixe);
            struct stat s = {};
            if (fstatat(d.lieu(p->lieu), p->cible.c_str(), &s, AT_SYMLINK_NOFOLLOW) == 0)
                libre = false;
            else if (errno != ENOENT)
                return echouer(f, ETAPE_PUBLIER, p->cible);
        }
        if (libre) return true;
    }
    errno = EEXIST;
    return echouer(f, ETAPE_PUBLIER, v.nom);
}

/** Synchronises the folders out of which files were moved. */
bool synchroniserCasier(const casier& c) {
    for (const char* nom : {ENTREE, TRAVAIL}) {
        const descripteur dossier = ouvrirDossier(c.dossier.fd, nom);
        if (dossier.ouvert() ? !synchroniser(dossier.fd) : errno != ENOENT) return false;
    }
    return synchroniser(c.dossier.fd);
}

/** Takes the text up to the next zero byte off `reste`. */
bool detacher(std::string_view& reste, std::string& champ) {
    const std::size_t fin = reste.find('\0');
    if (fin == std::string_view::npos) return false;
    champ = reste.substr(0, fin);
    reste.remove_prefix(fin + 1);
    return true;
}

bool lireLieu(std::string_view& reste, eLieu& lieu) {
    std::string nom;
    if (!detacher(reste, nom)) return false;
    for (int i = 0; i < NB_LIEUX; ++i) {
        lieu = static_cast<eLieu>(i);
        if (nom == LIEUX[i]) return true;
    }
    return false;
}

}  // namespace

bool lireVerdict(const casier& c, verdict& v) {
    std::string octets;
    if (!lireFichier(c.dossier.fd, VERDICT, octets, TAILLE_MAX)) return false;
    v = {};
    std::string_view reste = octets;
    bool bon = detacher(reste, v.json) && detacher(reste, v.nom);
    while (bon && !reste.empty()) {
        publication p;
        bon = detacher(reste, p.source) && lireLieu(reste, p.lieu) && detacher(reste, p.suffixe) &&
              detacher(reste, p.cible);
        v.fichiers.push_back(p);
    }
    errno = EBADMSG;
    return bon && !v.fichiers.empty();
}

bool ecrireVerdict(const depot& d, const casier& c, verdict& v, faute& f) {
    if (!nommer(d, c, v, f)) return false;
    std::string octets = v.json + '\0' + v.nom + '\0';
    for (const publication& p : v.fichiers)
        octets += p.source + '\0' + LIEUX[p.lieu] + '\0' + p.suffixe + '\0' + p.cible + '\0';
    return remplacerFichier(c.dossier.fd, VERDICT, octets, f);
}

bool publier(const depot& d, const casier& c, verdict& v, faute& f) {
    for (int i = 0; i < ESSAIS; ++i) {
        bool pris = false;
        for (const publication* const p : restants(c, v)) {
            const eDeplacement fait = deplacer(c.dossier.fd, p->source, d.lieu(p->lieu), p->cible);
            if (fait == DEPLACEMENT_REFUSE) return echouer(f, ETAPE_PUBLIER, p->cible);
            pris = fait == NOM_PRIS;
            if (pris) break;
        }
        if (!pris) {
            for (const publication& p : v.fichiers)
                if (!synchroniser(d.lieu(p.lieu))) return echouer(f, ETAPE_PUBLIER, p.cible);
            return synchroniserCasier(c) || echouer(f, ETAPE_PUBLIER, v.nom);
        }
        if (!ecrireVerdict(d, c, v, f)) return false;
    }
    errno = EEXIST;
    return echouer(f, ETAPE_PUBLIER, v.nom);
}

std::string ligneDuJournal(const verdict& v) {
    rapidjson::StringBuffer tampon;
    rapidjson::Writer<rapidjson::StringBuffer> w(tampon);
    w.StartArray();
    for (const publication& p : v.fichiers) {
        const std::string chemin = montrable(std::string(LIEUX[p.lieu]) + "/" + p.cible);
        w.String(chemin.c_str(), static_cast<rapidjson::SizeType>(chemin.size()));
    }
    w.EndArray();
    return v.json + ",\"fichiers\":" + tampon.GetString() + "}\n";
}

}  // namespace quilvane::lot
