#include "rapport/rapport.h"

#include "checks/lecture.h"
#include "messages/aiguillage.h"
#include "rapport/avertissements.h"
#include "rapport/derriere.h"
#include "rapport/explication.h"
#include "rapport/mots.h"

namespace quilvane {

namespace {

/** By status: for one record, and for several. */
constexpr accord ISSUE_ACCEPTE = {{"quilvane publierait le message tel quel (statut 0).",
                                   "quilvane would publish the message as it is (status 0)."},
                                  {"quilvane publierait les {0} messages tels quels (statut 0).",
                                   "quilvane would publish the {0} messages as they are (status 0)."}};
constexpr texte ISSUE_ARRET = {"quilvane s'arrêterait sans rien publier (statut 1, log : {0}).",
                               "quilvane would stop and publish nothing (status 1, log: {0})."};
constexpr accord ISSUE_REFUSE = {
    {"quilvane ne publierait aucun message, mais un fichier d'erreurs : {0} enregistrement en erreur "
     "(statut 2).",
     "quilvane would publish no message but an error file: {0} record in error (status 2)."},
    {"quilvane ne publierait aucun message, mais un fichier d'erreurs : {0} enregistrements en erreur "
     "(statut 2).",
     "quilvane would publish no message but an error file: {0} records in error (status 2)."}};

/** What is kept while a file is read. */
struct sExamen {
    lot l;
    sDemande demande;
    const sRendu* rendu;
    sAvertisseur avertisseur;
    sResume r;
    sRecordVu precedent;        // the message record before, in case its companion does not come
    sRecordVu fich;             // the FICH record, told at the end: its count is judged there
    long long ligneFormat = 0;  // line of the first record
};

/** The record just judged, without its errors. */
sRecordVu recordCourant(const verdict& v, const ligneLue& ligne) {
    sRecordVu r;
    r.ligne = ligne.numero;
    r.rang = v.rang;
    r.type = sansBlancs(entete(E6));
    r.genre = sansBlancs(entete(E5));
    if (tAiguillage[v.itAiguil].code != CODE_INCONNU && v.rang > 1) r.cle = sansBlancs(corps(C2));
    r.texte = xdebug;
    return r;
}

/** Counts a record in error and tells it. */
void refuser(sExamen& x, const sRecordVu& r) {
    ++x.r.refuses;
    ++x.r.types[r.type];
    for (const sErreurVue& e : r.erreurs) {
        if (e.derriere || e.numero < 0 || e.numero > 999) continue;
        if (x.r.comptes[e.numero]++ == 0) x.r.premiers[e.numero] = r.ligne;
    }
    if (x.rendu->refuser != nullptr) x.rendu->refuser(x.rendu->qui, r);
}

/** The record before was accepted, but `suivant` is not its companion; null
 *  at the end of the file. */
void rejeterPrecedent(sExamen& x, int numero, const sRecordVu* suivant) {
    x.precedent.erreurs = {expliquerCompagnon(numero, x.precedent, suivant, x.demande.langue)};
    --x.r.acceptes;
    refuser(x, x.precedent);
}

void refuserCourant(sExamen& x, const verdict& v, sRecordVu r) {
    const sAiguillage& route = tAiguillage[v.itAiguil];
    const sTable* const table = route.code != CODE_INCONNU ? tableDe(route.tabVerif) : nullptr;
    for (int i = 0; i < v.erreurs; ++i)
        r.erreurs.push_back(expliquer(constats[i], x.l, table, x.demande.langue));
    if (x.demande.tout && v.erreurs == MAX_ERREURS) ajouterDerriere(r, x.l, table, x.demande.langue);
    lierErreurs(r.erreurs);
    refuser(x, r);
}

void voirMessage(sExamen& x, const verdict& v) {
    if (v.sansCompagnon != 0) {
        const sRecordVu courant = recordCourant(v, x.l.ligne);
        rejeterPrecedent(x, v.sansCompagnon, &courant);
    }
    if (v.erreurs > 0) return refuserCourant(x, v, recordCourant(v, x.l.ligne));
    ++x.r.acceptes;
    // Only a created EXP1 or EGET can be left alone.
    if (vaut(entete(E6), "EXP1") || vaut(entete(E6), "EGET")) x.precedent = recordCourant(v, x.l.ligne);
}

void voirFICH(sExamen& x, const verdict& v) {
    x.fich = recordCourant(v, x.l.ligne);
    const sTable* const table = tableNommee("FICH");
    for (int i = 0; i < v.erreurs; ++i)
        x.fich.erreurs.push_back(expliquer(constats[i], x.l, table, x.demande.langue));
    lierErreurs(x.fich.erreurs);
}

/** What a fatal condition is about. */
void voirArret(sExamen& x, eFatal fatal) {
    const ligneLue& ligne = x.l.ligne;
    x.r.fatal = fatal;
    x.r.statut = 1;
    x.r.ligneFatale = fatal == eFatal::IG003 || fatal == eFatal::IG014 ? 0 : ligne.numero;
    if (fatal == eFatal::IG008) avertirMelange(x.avertisseur, ligne, x.l.formatDuFichier, x.ligneFormat);
    if (fatal == eFatal::IG015) avertirVide(x.avertisseur, ligne);
}

void voirFin(sExamen& x) {
    avertirFin(x.avertisseur, x.l.ligne);
    const bilan b = conclure(x.l);
    if (b.fatal != eFatal::AUCUN) return voirArret(x, b.fatal);
    if (b.sansCompagnon != 0) rejeterPrecedent(x, b.sansCompagnon, nullptr);
    if (b.compteFaux && x.l.errFich > static_cast<int>(x.fich.erreurs.size()))
        x.fich.erreurs.push_back(expliquerCompte(x.l.nombreDeVSE, x.demande.langue));
    if (!x.fich.erreurs.empty()) refuser(x, x.fich);
    x.r.statut = fichierValide(x.l) ? 0 : 2;
}

/** Reads and tells one line; false at the end. */
bool voirSuite(sExamen& x, lecteur& source) {
    verdict v;
    const eSuite suite = suivant(x.l, source, v);
    const ligneLue& ligne = x.l.ligne;
    if (v.fatal != eFatal::I073) avertirLigne(x.avertisseur, ligne);
    switch (suite) {
        case SUITE_ARRET: voirArret(x, v.fatal); return false;
        case SUITE_FIN: voirFin(x); return false;
        case SUITE_SAUTE: avertirSaut(x.avertisseur, ligne); return true;
        default: break;
    }
    if (x.r.enregistrements++ == 0) {
        x.ligneFormat = ligne.numero;
        x.r.formatDuFichier = x.l.formatDuFichier;
    }
    if (v.rang == 1)
        voirFICH(x, v);
    else
        voirMessage(x, v);
    return true;
}

}  // namespace

sResume examiner(lecteur& source, std::string_view nom, const sDemande& demande, const sRendu& rendu) {
    static sExamen x;
    x = {};
    x.demande = demande;
    x.rendu = &rendu;
    x.avertisseur = {.rendu = &rendu, .langue = demande.langue};
    x.r.nom = nom;
    // The count is judged even where no FICH record was read.
    x.fich.ligne = x.fich.rang = 1;
    x.fich.type = "FICH";
    commencer(x.l);
    while (voirSuite(x, source)) {
    }
    avertirReste(x.avertisseur);
    return x.r;
}

const char* codeDe(eFatal fatal) {
    switch (fatal) {
        case eFatal::IG003: return "IG003";
        case eFatal::IG008: return "IG008";
        case eFatal::IG011: return "IG011";
        case eFatal::IG014: return "IG014";
        case eFatal::IG015: return "IG015";
        case eFatal::I073: return "I073";
        case eFatal::I099: return "I099";
        default: return "";
    }
}

std::string issueDe(const sResume& r, eLangue langue) {
    if (r.statut == 1) return remplir(ISSUE_ARRET, langue, {codeDe(r.fatal)});
    return r.statut == 0 ? accorder(ISSUE_ACCEPTE, r.acceptes, langue)
                         : accorder(ISSUE_REFUSE, r.refuses, langue);
}

}  // namespace quilvane
