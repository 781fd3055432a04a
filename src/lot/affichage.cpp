#include "lot/affichage.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

constexpr int COLONNES = 80;   // when the terminal does not tell
constexpr int BARRE_MIN = 10;  // a shorter bar shows nothing
constexpr int BARRE_MAX = 40;
constexpr long FINIS_POUR_UN_DEBIT = 3;

constexpr const char* VERT = "\033[32m";
constexpr const char* JAUNE = "\033[33m";
constexpr const char* ROUGE = "\033[31m";
constexpr const char* NORMAL = "\033[0m";

/** Characters of a UTF-8 text; all of ours are one column wide. */
int largeur(const std::string& s) {
    return static_cast<int>(std::count_if(
        s.begin(), s.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

int colonnesDuTerminal() {
    winsize w = {};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &w) == 0 && w.ws_col > 0 ? w.ws_col : COLONNES;
}

std::string decimal(double x) {
    char c[64];
    std::snprintf(c, sizeof c, "%.1f", x);
    return c;
}

/** "M:SS", or "H:MM:SS". */
std::string duree(double secondes) {
    const auto s = std::llround(std::min(secondes, 1e9));
    char c[64];
    if (s < 3600)
        std::snprintf(c, sizeof c, "%lld:%02lld", s / 60, s % 60);
    else
        std::snprintf(c, sizeof c, "%lld:%02lld:%02lld", s / 3600, s / 60 % 60, s % 60);
    return c;
}

std::string erreurs(const comptes& c) {
    std::string r;
    for (const auto& [numero, nombre] : c.erreurs) {
        if (!r.empty()) r += ", ";
        r += std::to_string(numero);
        if (nombre > 1) r.append(" x").append(std::to_string(nombre));
    }
    return r;
}

std::string ligneBilan(const bilan& b, eLangue langue) {
    const std::string nom = montrable(b.nom);
    switch (b.issue) {
        case ISSUE_EMIS: return remplir(LIGNE_EMIS, langue, {nom, std::to_string(b.c.enregistrements)});
        case ISSUE_REJETS:
            return remplir(
                LIGNE_REJETS, langue,
                {nom, std::to_string(b.c.refuses), std::to_string(b.c.enregistrements), erreurs(b.c)});
        case ISSUE_ECHECS: {
            std::string cause = CAUSES[b.cause].phrase.en_langue(langue);
            if (b.cause == CAUSE_STATUT) cause += " " + std::to_string(b.statut);
            if (b.cause == CAUSE_SIGNAL) cause += " " + std::to_string(b.signal);
            if (!b.detail.empty()) cause += " (" + b.detail + ")";
            return remplir(LIGNE_ECHECS, langue, {nom, cause});
        }
        default: return remplir(LIGNE_RENDU, langue, {nom});
    }
}

/** Lines are shown as they come, also in a pipe. */
void ecrireLigne(const std::string& ligne) {
    std::fwrite(ligne.data(), 1, ligne.size(), stdout);
    std::fflush(stdout);
}

}  // namespace

ecran ouvrirEcran(const reglages& r) {
    ecran e;
    e.langue = r.langue;
    const char* const term = std::getenv("TERM");
    const char* const sans = std::getenv("NO_COLOR");
    e.terminal = isatty(STDOUT_FILENO) == 1 && term != nullptr && std::strcmp(term, "dumb") != 0;
    const bool permises = sans == nullptr || *sans == '\0';
    e.couleurs = r.couleur == COULEUR_TOUJOURS || (r.couleur == COULEUR_AUTO && e.terminal && permises);
    return e;
}

std::string texteBarre(const total& t, const avancement& a, eLangue langue, int colonnes) {
    std::string r = remplir(BARRE_COMPTES, langue,
                            {std::to_string(a.finis), std::to_string(a.prevus), std::to_string(t.emis),
                             std::to_string(t.rejets), std::to_string(t.echecs)});
    if (a.finis >= FINIS_POUR_UN_DEBIT && a.secondes > 0) {
        const double debit = static_cast<double>(a.finis) / a.secondes;
        const std::string vitesse = remplir(BARRE_DEBIT, langue, {decimal(debit)});
        const std::string reste =
            remplir(BARRE_RESTE, langue, {duree(static_cast<double>(a.prevus - a.finis) / debit)});
        if (largeur(r + vitesse) <= colonnes) r += vitesse;
        if (largeur(r + reste) <= colonnes) r += reste;
    }
    const int place = std::min(colonnes - largeur(r) - 3, BARRE_MAX);
    if (place >= BARRE_MIN && a.prevus > 0) {
        const auto plein = static_cast<std::size_t>(place * a.finis / a.prevus);
        std::string barre(plein, '=');
        if (plein > 0 && a.finis < a.prevus) barre.back() = '>';
        barre.resize(static_cast<std::size_t>(place), ' ');
        r = std::string("[").append(barre).append("] ").append(r);
    }
    while (largeur(r) > colonnes)
        r.pop_back();
    return estUtf8(r) ? r : "";
}

void montrerBarre(ecran& e, const total& t, const avancement& a) {
    if (!e.terminal) return;
    // The last column stays free: some terminals would begin a new line.
    ecrireLigne("\r" + texteBarre(t, a, e.langue, colonnesDuTerminal() - 1) + "\033[K");
    e.barre = true;
}

void effacerBarre(ecran& e) {
    if (e.barre) ecrireLigne("\r\033[K");
    e.barre = false;
}

void montrerBilan(ecran& e, const bilan& b) {
    if (b.issue == ISSUE_AUCUNE || (e.terminal && b.issue == ISSUE_EMIS && !b.repris)) return;
    effacerBarre(e);
    std::string ligne = ligneBilan(b, e.langue);
    if (b.repris) ligne += LIGNE_REPRIS.en_langue(e.langue);
    const char* const couleur = b.issue == ISSUE_EMIS ? VERT : b.issue == ISSUE_ECHECS ? ROUGE : JAUNE;
    ecrireLigne(e.couleurs ? couleur + ligne + NORMAL + "\n" : ligne + "\n");
}

void avertir(ecran& e, const std::string& phrase) {
    effacerBarre(e);
    std::fprintf(stderr, "quilvane-lot: %s\n", phrase.c_str());
}

void avertir(ecran& e, const faute& f) {
    avertir(e, remplir(AVIS_PANNE, e.langue,
                       {f.etape.en_langue(e.langue), montrable(f.nom), raisonDuSysteme(f.cause, e.langue)}));
}

void dire(ecran& e, const texte& quoi, std::initializer_list<std::string> valeurs) {
    effacerBarre(e);
    ecrireLigne(remplir(quoi, e.langue, valeurs) + "\n");
}

void montrerTotal(ecran& e, const total& t, double secondes, long nonReposes, double repos) {
    if (t.finis() == 0 && t.pannes == 0 && t.rendus == 0) dire(e, BILAN_RIEN, {});
    if (t.finis() > 0)
        dire(e, BILAN_TITRE,
             {std::to_string(t.finis()), decimal(secondes),
              decimal(static_cast<double>(t.finis()) / std::max(secondes, 0.001)), std::to_string(t.emis),
              std::to_string(t.rejets), std::to_string(t.echecs)});
    if (t.repris > 0) dire(e, BILAN_REPRIS, {std::to_string(t.repris)});
    if (t.rendus > 0) dire(e, BILAN_RENDUS, {std::to_string(t.rendus)});
    if (nonReposes > 0) dire(e, BILAN_NON_REPOSES, {std::to_string(nonReposes), decimal(repos)});
    if (t.pannes > 0) dire(e, BILAN_PANNES, {std::to_string(t.pannes)});
}

}  // namespace quilvane::lot
