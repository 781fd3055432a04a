#include "lot/journal.h"

#include <fcntl.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <stdio.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <iterator>

#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

using redacteur = rapidjson::Writer<rapidjson::StringBuffer>;

/** The format of the lines. */
constexpr const char* FORMAT = "quilvane-journal/1";

void texteJson(redacteur& w, const char* cle, const std::string& valeur) {
    w.Key(cle);
    w.String(valeur.c_str(), static_cast<rapidjson::SizeType>(valeur.size()));
}

/** ISO 8601, UTC, milliseconds. */
void heureJson(redacteur& w, const char* cle, double secondes) {
    const auto entier = static_cast<std::time_t>(std::floor(secondes));
    std::tm t = {};
    gmtime_r(&entier, &t);
    char date[32];
    std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &t);
    char millis[16];
    std::snprintf(millis, sizeof millis, ".%03dZ",
                  static_cast<int>((secondes - static_cast<double>(entier)) * 1000));
    texteJson(w, cle, std::string(date) + millis);
}

void ecrireNom(redacteur& w, const bilan& b) {
    texteJson(w, "nom", montrable(b.nom));
    if (montrable(b.nom) != b.nom) texteJson(w, "nom_hex", hexadecimal(b.nom));
}

void ecrireFichiers(redacteur& w, const bilan& b) {
    w.Key("entree");
    w.StartObject();
    if (!b.entree.sha256.empty()) {
        w.Key("taille");
        w.Int64(b.entree.taille);
        texteJson(w, "sha256", b.entree.sha256);
    }
    w.EndObject();
    w.Key("archive");
    if (b.archive.empty())
        w.Null();
    else
        w.String(montrable(b.archive).c_str());
    w.Key("resultat");
    if (b.tailleResultat < 0) {
        w.Null();
    } else {
        w.StartObject();
        w.Key("taille");
        w.Int64(b.tailleResultat);
        texteJson(w, "sha256", b.sha256Resultat);
        w.EndObject();
    }
}

void ecrireComptes(redacteur& w, const comptes& c) {
    w.Key("enregistrements");
    w.Int64(c.enregistrements);
    w.Key("acceptes");
    w.Int64(c.acceptes);
    w.Key("refuses");
    w.Int64(c.refuses);
    w.Key("erreurs");
    w.StartObject();
    for (const auto& [numero, nombre] : c.erreurs) {
        w.Key(std::to_string(numero).c_str());
        w.Int64(nombre);
    }
    w.EndObject();
}

/** Opens the journal and locks it; not one that was renamed meanwhile. */
descripteur ouvrirJournal(const depot& d) {
    for (;;) {
        descripteur j(openat(d.racine.fd, JOURNAL,
                             O_RDWR | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
        if (!j.ouvert() || flock(j.fd, LOCK_EX) != 0) return descripteur();
        struct stat tenu = {};
        struct stat present = {};
        if (fstat(j.fd, &tenu) != 0) return descripteur();
        if (!S_ISREG(tenu.st_mode)) {
            errno = EINVAL;
            return descripteur();
        }
        if (fstatat(d.racine.fd, JOURNAL, &present, AT_SYMLINK_NOFOLLOW) == 0 &&
            present.st_ino == tenu.st_ino)
            return j;
    }
}

/** Whether the journal holds this line, whole. */
bool contient(const depot& d, const std::string& ligne, bool& la) {
    la = false;
    descripteur lecture = ouvrirFichier(d.racine.fd, JOURNAL);
    if (!lecture.ouvert()) return false;
    std::FILE* const flux = fdopen(lecture.fd, "r");
    if (flux == nullptr) return false;
    lecture.fd = -1;
    char* texteLu = nullptr;
    std::size_t place = 0;
    errno = 0;
    for (ssize_t n = 0; !la && (n = getline(&texteLu, &place, flux)) > 0;)
        la = std::string_view(texteLu, static_cast<std::size_t>(n)) == ligne;
    const bool lu = la || std::ferror(flux) == 0;
    std::free(texteLu);
    std::fclose(flux);
    return lu;
}

}  // namespace

std::string redigerBilan(const bilan& b) {
    rapidjson::StringBuffer tampon;
    redacteur w(tampon);
    w.StartObject();
    texteJson(w, "format", FORMAT);
    texteJson(w, "id", b.id);
    ecrireNom(w, b);
    heureJson(w, "pris", b.debut);
    heureJson(w, "fin", b.fin);
    w.Key("duree_ms");
    w.Int64(static_cast<long long>(std::max(0.0, b.fin - b.debut) * 1000));
    w.Key("repris");
    w.Bool(b.repris);
    char hote[256] = {};
    gethostname(hote, sizeof hote - 1);
    texteJson(w, "hote", montrable(hote));
    texteJson(w, "issue", ISSUES[b.issue]);
    w.Key("statut");
    if (b.statut < 0)
        w.Null();
    else
        w.Int(b.statut);
    w.Key("signal");
    if (b.signal == 0)
        w.Null();
    else
        w.Int(b.signal);
    w.Key("cause");
    if (b.cause == CAUSE_AUCUNE)
        w.Null();
    else
        w.String(CAUSES[b.cause].mot);
    texteJson(w, "detail", b.detail);
    ecrireFichiers(w, b);
    ecrireComptes(w, b.c);
    w.EndObject();
    const std::string objet = tampon.GetString();
    return objet.substr(0, objet.size() - 1);
}

bool relireBilan(const std::string& json, bilan& b) {
    rapidjson::Document doc;
    doc.Parse((json + "}").c_str());
    if (doc.HasParseError() || !doc.IsObject()) return false;
    const auto nombre = [&doc](const char* cle) {
        return doc.HasMember(cle) && doc[cle].IsInt64() ? static_cast<long>(doc[cle].GetInt64()) : 0L;
    };
    const auto mot = [&doc](const char* cle) {
        return doc.HasMember(cle) && doc[cle].IsString() ? std::string(doc[cle].GetString()) : std::string();
    };
    b.issue = ISSUE_AUCUNE;
    for (const eIssue i : {ISSUE_EMIS, ISSUE_REJETS, ISSUE_ECHECS})
        if (mot("issue") == ISSUES[i]) b.issue = i;
    for (int i = 0; i < NB_CAUSES; ++i)
        if (mot("cause") == CAUSES[i].mot) b.cause = static_cast<eCause>(i);
    b.detail = mot("detail");
    b.c.enregistrements = nombre("enregistrements");
    b.c.acceptes = nombre("acceptes");
    b.c.refuses = nombre("refuses");
    if (!doc.HasMember("erreurs") || !doc["erreurs"].IsObject()) return false;
    const rapidjson::Value& erreurs = doc["erreurs"];
    for (rapidjson::SizeType i = 0; i < erreurs.MemberCount(); ++i) {
        const auto& e = *(erreurs.MemberBegin() + static_cast<std::ptrdiff_t>(i));
        if (e.value.IsInt64())
            b.c.erreurs[std::atoi(e.name.GetString())] = static_cast<long>(e.value.GetInt64());
    }
    return b.issue != ISSUE_AUCUNE;
}

bool journaliser(const depot& d, const std::string& ligne, bool peutEtreLa, faute& f) {
    const descripteur j = ouvrirJournal(d);
    if (!j.ouvert()) return echouer(f, ETAPE_JOURNAL, JOURNAL);
    bool la = false;
    if (peutEtreLa && !contient(d, ligne, la)) return echouer(f, ETAPE_JOURNAL, JOURNAL);
    struct stat avant = {};
    char dernier = '\n';
    if (fstat(j.fd, &avant) != 0 || (avant.st_size > 0 && pread(j.fd, &dernier, 1, avant.st_size - 1) != 1))
        return echouer(f, ETAPE_JOURNAL, JOURNAL);
    if (!la) {
        const std::string octets = (dernier == '\n' ? "" : "\n") + ligne;
        const ssize_t n = write(j.fd, octets.data(), octets.size());
        if (n != static_cast<ssize_t>(octets.size())) {
            if (n >= 0) errno = ENOSPC;
            echouer(f, ETAPE_JOURNAL, JOURNAL);
            // No half line stays; what cannot be taken back is ended by the next.
            if (n > 0 && ftruncate(j.fd, avant.st_size) != 0) f.cause = errno;
            return false;
        }
    }
    if (!synchroniser(j.fd) || (avant.st_size == 0 && !synchroniser(d.racine.fd)))
        return echouer(f, ETAPE_JOURNAL, JOURNAL);
    return true;
}

}  // namespace quilvane::lot
