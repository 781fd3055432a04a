#include "lot/options.h"

#include <getopt.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <thread>
#include <vector>

#include "lot/textes.h"

namespace quilvane::lot {

// clang-format off
const ligneOption OPTIONS[] = {
    {"travaux",   'j', {"N", "N"},
     {"fichiers traités à la fois (autant que de processeurs)", "files processed at once (as many as processors)"}},
    {"suivre",    0,   {"", ""},
     {"ne s'arrête pas : traite ce qui arrive", "does not end: processes what arrives"}},
    {"repos",     0,   {"S", "S"},
     {"prend un fichier inchangé depuis S secondes (2)", "takes a file left untouched for S seconds (2)"}},
    {"delai",     0,   {"S", "S"},
     {"accorde S secondes à quilvane par fichier (600 ; 0 : sans limite)", "gives quilvane S seconds a file (600; 0: no limit)"}},
    {"metriques", 0,   {"FICHIER", "FILE"},
     {"écrit des métriques au format texte de Prometheus", "writes metrics in the text format of Prometheus"}},
    {"garder",    0,   {"JOURS", "DAYS"},
     {"retire de l'archive les jours plus anciens", "removes older days from the archive"}},
    {"langue",    0,   {"fr|en", "fr|en"},
     {"langue des messages et des rapports", "language of messages and reports"}},
    {"couleur",   0,   {"auto|toujours|jamais", "auto|toujours|jamais"},
     {"couleurs : selon le terminal, toujours, jamais", "colours: by terminal, always, never"}},
    {"aide",      'h', {"", ""}, {"montre cette aide", "shows this help"}},
    {"help",      0,   {"", ""}, {"montre cette aide", "shows this help"}},
    {"version",   0,   {"", ""}, {"montre la version", "shows the version"}},
    {nullptr,     0,   {"", ""}, {"", ""}},
};
// clang-format on

namespace {

/** Values that stand for the long options in getopt_long: beyond all characters. */
constexpr int PREMIERE = 256;

constexpr int TRAVAUX_MAX = 1024;
constexpr int SECONDES_MAX = 1000000;
constexpr int JOURS_MAX = 100000;

std::size_t nombreDOptions() {
    std::size_t n = 0;
    while (OPTIONS[n].longue != nullptr)
        ++n;
    return n;
}

bool demandeValeur(const ligneOption& o) { return o.argument.fr[0] != '\0'; }

template <typename Nombre>
bool lireNombre(std::string_view mot, Nombre min, Nombre max, Nombre& n) {
    const auto r = std::from_chars(mot.data(), mot.data() + mot.size(), n);
    return r.ec == std::errc() && r.ptr == mot.data() + mot.size() && n >= min && n <= max;
}

bool lireLangue(std::string_view mot, eLangue& langue) {
    langue = mot == CODES_LANGUES[FRANCAIS] ? FRANCAIS : ANGLAIS;
    return mot == CODES_LANGUES[langue];
}

bool lireCouleur(std::string_view mot, eCouleur& couleur) {
    couleur = mot == "toujours" ? COULEUR_TOUJOURS : mot == "jamais" ? COULEUR_JAMAIS : COULEUR_AUTO;
    return couleur != COULEUR_AUTO || mot == "auto";
}

/** Takes one option into `r`; false for a wrong value. */
bool prendreOption(std::string_view longue, const char* valeur, reglages& r) {
    if (longue == "travaux") return lireNombre(valeur, 1, TRAVAUX_MAX, r.travaux);
    if (longue == "suivre") return r.suivre = true;
    if (longue == "repos") return lireNombre(valeur, 0.0, double{SECONDES_MAX}, r.repos);
    if (longue == "delai") return lireNombre(valeur, 0, SECONDES_MAX, r.delai);
    if (longue == "metriques") return !(r.metriques = valeur).empty();
    if (longue == "garder") return lireNombre(valeur, 0, JOURS_MAX, r.garder);
    if (longue == "langue") return lireLangue(valeur, r.langue);
    if (longue == "couleur") return lireCouleur(valeur, r.couleur);
    return true;
}

/** How an option is written: "-j, --travaux N". */
std::string ecriture(const ligneOption& o, eLangue langue) {
    const std::string courte = o.courte != 0 ? std::string("-") + o.courte + ", " : "    ";
    return courte + "--" + o.longue +
           (demandeValeur(o) ? std::string(" ") + o.argument.en_langue(langue) : "");
}

}  // namespace

eLangue langueDuMilieu() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const v = std::getenv(variable);
        if (v != nullptr && *v != '\0') return std::strncmp(v, "fr", 2) == 0 ? FRANCAIS : ANGLAIS;
    }
    return ANGLAIS;
}

eLecture lireOptions(int argc, char* argv[], reglages& r, std::string& probleme) {
    r = {};
    r.travaux = static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, 1024U));
    r.langue = langueDuMilieu();
    std::string courtes = ":";
    std::vector<option> longues;
    const std::size_t n = nombreDOptions();
    for (std::size_t i = 0; i < n; ++i) {
        const ligneOption& o = OPTIONS[i];
        const int valeur = demandeValeur(o) ? required_argument : no_argument;
        longues.push_back({o.longue, valeur, nullptr, PREMIERE + static_cast<int>(i)});
        if (o.courte != 0) courtes += std::string(1, o.courte) + (demandeValeur(o) ? ":" : "");
    }
    longues.push_back({nullptr, 0, nullptr, 0});
    eLecture lecture = TRAVAILLER;
    opterr = 0;
    optind = 0;  // starts over, whatever was parsed before
    for (int c = 0; (c = getopt_long(argc, argv, courtes.c_str(), longues.data(), nullptr)) != -1;) {
        const char* const mot = argv[optind - 1];
        if (c == '?' || c == ':') {
            const bool sansValeur = c == ':';
            probleme = remplir(sansValeur ? USAGE_SANS_VALEUR : USAGE_INCONNUE, r.langue, {mot});
            return USAGE_FAUX;
        }
        std::size_t i = c >= PREMIERE ? static_cast<std::size_t>(c - PREMIERE) : 0;
        while (c < PREMIERE && OPTIONS[i].courte != c)
            ++i;
        const std::string_view longue = OPTIONS[i].longue;
        if (!prendreOption(longue, optarg, r)) {
            probleme = remplir(USAGE_VALEUR, r.langue, {"--" + std::string(longue), optarg});
            return USAGE_FAUX;
        }
        if (lecture == TRAVAILLER && (longue == "aide" || longue == "help")) lecture = MONTRER_AIDE;
        if (lecture == TRAVAILLER && longue == "version") lecture = MONTRER_VERSION;
    }
    if (lecture != TRAVAILLER) return lecture;
    if (optind == argc) {
        probleme = remplir(USAGE_DEPOT_ABSENT, r.langue, {});
        return USAGE_FAUX;
    }
    if (argc - optind > 1) {
        probleme = remplir(USAGE_DE_TROP, r.langue, {argv[optind + 1]});
        return USAGE_FAUX;
    }
    r.depot = argv[optind];
    return TRAVAILLER;
}

std::string aide(eLangue langue) {
    const auto dire = [langue](const texte& t) { return std::string(t.en_langue(langue)); };
    std::size_t largeur = 0;
    for (const ligneOption* o = OPTIONS; o->longue != nullptr; ++o)
        largeur = std::max(largeur, ecriture(*o, langue).size());
    std::string r =
        dire(USAGE_TITRE) + "\n\n" + dire(USAGE_DESCRIPTION) + "\n\n" + dire(USAGE_OPTIONS) + "\n";
    for (const ligneOption* o = OPTIONS; o->longue != nullptr; ++o) {
        std::string ligne = "  " + ecriture(*o, langue);
        ligne.resize(largeur + 4, ' ');
        r += ligne + dire(o->aide) + "\n";
    }
    return r + "\n" + dire(USAGE_STATUTS) + "\n";
}

}  // namespace quilvane::lot
