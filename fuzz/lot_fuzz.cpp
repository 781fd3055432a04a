/**
 * What quilvane-lot reads: its journal, the verdicts that an ended run left,
 * the metrics of an earlier one, inputs and results, names. Any bytes in the
 * place of each; the first byte chooses.
 */
#include <fcntl.h>
#include <rapidjson/document.h>

#include "cible.h"
#include "lot/journal.h"
#include "lot/metriques.h"
#include "lot/noms.h"
#include "lot/verdict.h"

using namespace quilvane::lot;

namespace {

bool estObjet(const std::string& texte) {
    rapidjson::Document d;
    d.Parse<rapidjson::kParseValidateEncodingFlag>(texte.c_str());
    return !d.HasParseError() && d.IsObject();
}

/** The scratch folder as a spool, and as a casier. */
const depot& spool() {
    static depot d;
    if (!d.racine.ouvert()) d.racine = ouvrirDossier(AT_FDCWD, cible::dossier());
    return d;
}
const casier& coffre() {
    static casier c;
    if (!c.dossier.ouvert()) c.dossier = ouvrirDossier(AT_FDCWD, cible::dossier());
    return c;
}

/** Any bytes as the journal, a line added to them twice. */
void journal(cible::octets& o) {
    const bool peutEtreLa = (o.un() & 1) != 0;
    std::string ligne = o.texte(o.un());
    for (char& c : ligne)
        if (c == '\n') c = ' ';
    ligne += '\n';
    const std::string avant = o.tout();
    cible::ecrire(JOURNAL, avant);
    const bool la = ("\n" + avant).find("\n" + ligne) != std::string::npos;
    const std::string cesure = avant.empty() || avant.back() == '\n' ? "" : "\n";
    const std::string voulu = peutEtreLa && la ? avant : avant + cesure + ligne;
    faute f;
    cible::verifier(journaliser(spool(), ligne, peutEtreLa, f), "a journal can be written to");
    cible::verifier(cible::lire(JOURNAL) == voulu, "a line stands whole behind what was there");
    cible::verifier(journaliser(spool(), ligne, true, f), "a journal can be written to again");
    cible::verifier(cible::lire(JOURNAL) == voulu, "a line that is there is not added again");
    std::remove(JOURNAL);
}

bool memesComptes(const comptes& a, const comptes& b) {
    return a.enregistrements == b.enregistrements && a.acceptes == b.acceptes && a.refuses == b.refuses &&
           a.erreurs == b.erreurs;
}

/** What became of a file, written and read back; then any bytes read. */
void bilans(cible::octets& o) {
    bilan b;
    b.nom = o.texte(o.un());
    b.id = "20240315-102030-0123456789abcdef";
    b.issue = static_cast<eIssue>(o.un() % 3U);
    b.cause = static_cast<eCause>(o.un() % NB_CAUSES);
    b.detail = depuisLatin1(o.texte(o.un()));
    b.archive = o.texte(o.un() % 32U);
    b.c = {.enregistrements = o.un() - 1, .acceptes = o.un(), .refuses = o.un()};
    for (std::uint8_t n = o.un() % 12U; n > 0; --n)
        b.c.erreurs[o.un()] = 1L + o.un();
    const std::string json = redigerBilan(b);
    bilan lu;
    cible::verifier(relireBilan(json, lu), "a verdict's line can be read");
    cible::verifier(lu.issue == b.issue && lu.cause == b.cause && memesComptes(lu.c, b.c),
                    "a verdict's line says what was written");
    cible::verifier(lu.detail == b.detail.substr(0, b.detail.find('\0')), "a verdict's detail is kept");
    const verdict v = {json, b.nom, {{"copie", ARCHIVE, "", o.texte(o.un() % 32U)}}};
    const std::string ligne = ligneDuJournal(v);
    cible::verifier(estObjet(ligne) && ligne.find('\n') == ligne.size() - 1, "a journal line is one object");

    bilan quelconque;
    relireBilan(o.tout(), quelconque);
}

/** Any bytes as a verdict, as metrics. */
void restes(cible::octets& o) {
    const std::string octets = o.tout();
    cible::ecrire(VERDICT, octets);
    verdict v;
    if (lireVerdict(coffre(), v)) {
        std::string encore = v.json + '\0' + v.nom + '\0';
        for (const publication& p : v.fichiers)
            encore += p.source + '\0' + LIEUX[p.lieu] + '\0' + p.suffixe + '\0' + p.cible + '\0';
        cible::verifier(encore == octets, "a verdict that can be read is read to its last byte");
        bilan b;
        relireBilan(v.json, b);
        ligneDuJournal(v);
    }
    lireMetriques(VERDICT);
    std::remove(VERDICT);
}

mesure mesurer(const std::string& octets, std::size_t bloc) {
    mesureur m;
    commencer(m);
    for (std::size_t i = 0; i < octets.size(); i += bloc)
        ajouter(m, std::string_view(octets).substr(i, bloc));
    return terminer(m);
}

/** An input and what quilvane makes of it; the result of a run is never
 *  refused, nor taken for one of the other kind. Then any bytes as a result. */
void contenu(cible::octets& o) {
    const std::size_t bloc = 1U + o.un();
    const bool quelconque = (o.un() & 1) != 0;
    const std::string autre = quelconque ? o.texte(o.un() * 8U) : "";
    const std::string octets = o.tout();
    const mesure m = mesurer(octets, octets.size() + 1);
    const mesure n = mesurer(octets, bloc);
    cible::verifier(m.taille == n.taille && m.sha256 == n.sha256 && m.enregistrements == n.enregistrements &&
                        m.lignesSautees == n.lignesSautees && m.longueurFich == n.longueurFich,
                    "an input measures the same in pieces");
    comptes c;
    if (quelconque) {
        lireEmis(autre, m, c);
        lireErreurs(autre, m, c);
        return;
    }
    const cible::issue i = cible::executer(octets, "");
    // Nothing accepted, or a line that ends in CR alone counted and not published:
    // quilvane does it, the runner does not hand it on.
    if (i.statut == 1 || (i.statut == 0 && (m.enregistrements == 0 || m.lignesSautees))) return;
    cible::verifier(i.statut == 0 ? lireEmis(i.emis, m, c) : lireErreurs(i.emis, m, c),
                    "what quilvane publishes is whole");
}

void noms(cible::octets& o) {
    const int numero = o.un() % 4 == 0 ? 0 : 1 + o.un() * 256 + o.un();
    constexpr const char* SUFFIXES[] = {"", ".txt", ".html", ".raison.txt"};
    const char* const suffixe = SUFFIXES[o.un() % 4];
    std::string nom = o.tout().substr(0, NOM_MAX);
    if (nom.empty()) return;
    const std::string montre = montrable(nom);
    cible::verifier(estUtf8(montre), "what is shown is UTF-8");
    cible::verifier(montre.find('\n') == std::string::npos, "what is shown stays on its line");
    cible::verifier(hexadecimal(nom).size() == 2 * nom.size(), "two digits a byte");
    cible::verifier(estUtf8(depuisLatin1(nom)), "Latin-1 becomes UTF-8");
    estPrenable(nom);
    const std::string numerote = nomNumerote(nom, numero, suffixe);
    cible::verifier(!numerote.empty() && numerote.size() <= NOM_MAX, "a folder can hold the name");
    cible::verifier(!estUtf8(nom) || estUtf8(numerote), "a name is cut at a whole character");
    cible::verifier(numerote.ends_with(suffixe), "the suffix is kept");
    estId(nom);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    cible::dossier();
    cible::octets o{data, size};
    constexpr void (*LECTEURS[])(cible::octets&) = {journal, bilans, restes, contenu, noms};
    LECTEURS[o.un() % std::size(LECTEURS)](o);
    return 0;
}
