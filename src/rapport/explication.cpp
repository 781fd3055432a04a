#include "rapport/explication.h"

#include <cstring>

#include "checks/lecture.h"
#include "rapport/mots.h"

namespace quilvane {

namespace {

constexpr int ERR_NOMBRE_VSE = 100;
constexpr int ERR_SANS_EXP2 = 105;

constexpr texte T_INTERDIT = {"Ce champ n'est pas admis pour un enregistrement {0} de genre {1}.",
                              "This field is not allowed in a record of type {0} and transaction kind {1}."};
constexpr texte T_GENRE_INCONNU = {
    "Le genre {0} n'est pas un genre connu : aucun champ du corps n'est admis.",
    "{0} is not a known transaction kind: no field of the body is allowed."};
constexpr texte T_CARACTERE = {
    "La colonne {0} porte l'octet {1}. Un enregistrement ne contient que les caractères imprimables sans "
    "accent (codes 0x20 à 0x7E).",
    "Column {0} holds the byte {1}. A record contains only printable characters without accent (codes 0x20 "
    "to 0x7E)."};
constexpr texte T_TROP_LONG = {"L'enregistrement a {0} colonnes ; il doit en avoir exactement 256.",
                               "The record has {0} columns; it must have exactly 256."};
constexpr texte T_135 = {
    "L'émetteur du fichier ({0}, enregistrement FICH, colonnes 3 à 10) ne peut pas envoyer pour "
    "l'organisme {1} (champ E8).",
    "The emitter of the file ({0}, FICH record, columns 3 to 10) may not send for the body {1} (field E8)."};
constexpr texte T_110 = {
    "L'émetteur du fichier ({0}, enregistrement FICH, colonnes 3 à 10) ne peut pas envoyer de message de "
    "type {1}.",
    "The emitter of the file ({0}, FICH record, columns 3 to 10) may not send messages of type {1}."};
constexpr texte T_85 = {
    "Une demande INFO s'adresse au récepteur « 031BDN » ; le récepteur du fichier est {0} (enregistrement "
    "FICH, colonnes 11 à 18).",
    "An INFO request is addressed to the receiver “031BDN”; the receiver of the file is {0} (FICH record, "
    "columns 11 to 18)."};
constexpr texte T_129 = {
    "Dans un fichier de l'émetteur « NORM01 », le champ E8 d'un ABAT doit être « NORMABEV » ; il porte {0}.",
    "In a file of the emitter “NORM01”, field E8 of an ABAT must be “NORMABEV”; it holds {0}."};
constexpr texte T_109 = {
    "Le fichier ne contient qu'un enregistrement FICH, le premier ; celui-ci est de trop.",
    "A file has only one FICH record, the first one; this one is one too many."};
constexpr texte T_C3 = {"Le champ C3 porte « xx », ce que l'émetteur du fichier ({0}) ne peut pas envoyer.",
                        "Field C3 holds “xx”, which the emitter of the file ({0}) may not send."};
constexpr texte T_182 = {
    "L'émetteur du fichier ({0}) ne peut envoyer au récepteur « 031BDN » que des demandes INFO, des JALO en "
    "création, des ENTR en création de cause « F », des SORT en création de cause « S » ou « M » et des "
    "ABAT.",
    "The emitter of the file ({0}) may send the receiver “031BDN” only INFO requests, JALO creations, ENTR "
    "creations of cause “F”, SORT creations of cause “S” or “M”, and ABAT records."};
constexpr texte T_COMPTE = {
    "L'enregistrement FICH annonce {0} en colonnes 95 à 100 ; le fichier en contient {1}.",
    "The FICH record announces {0} in columns 95 to 100; the file contains {1}."};
constexpr texte T_COMPTE_RIEN = {
    "Le fichier est vide, ou sa première ligne n'a pas de fin de ligne : aucun enregistrement n'est lu, pas "
    "même FICH.",
    "The file is empty, or its first line has no line end: no record is read, not even FICH."};
constexpr accord MESSAGES = {{"{0} message", "{0} message"}, {"{0} messages", "{0} messages"}};
constexpr texte T_COMPAGNON = {
    "Cette création doit être suivie aussitôt d'un enregistrement {0} de genre CRE dont le champ C2 répète "
    "{1}. {2}",
    "This creation must be followed at once by a record of type {0} and kind CRE whose field C2 repeats {1}. "
    "{2}"};
constexpr texte T_SUIVANT = {"Le suivant (ligne {0}) est un enregistrement {1} de genre {2}.",
                             "The next one (line {0}) is a record of type {1} and kind {2}."};
constexpr texte T_SUIVANT_AUTRE = {
    "Le suivant (ligne {0}) est bien un {1} de genre {2}, mais son C2 est {3}.",
    "The next one (line {0}) is indeed of type {1} and kind {2}, but its C2 is {3}."};
constexpr texte T_SUIVANT_RIEN = {"Le fichier s'arrête là.", "The file ends there."};

void placer(sErreurVue& e, const sPlace& place) {
    e.place = place;
    e.debut = e.colonne = e.place.champ->debut;
    e.fin = e.place.champ->fin;
}

/** An error that stands beside the tables, about a field of one. */
void placerAuChamp(sErreurVue& e, const char* table, int emplacement) {
    placer(e, auSlot(tableNommee(table), emplacement));
}

std::string colonnes(int debut, int fin) {
    const std::string_view record = xdebug;
    if (debut == 0 || static_cast<std::size_t>(debut) > record.size()) return "";
    return std::string(
        record.substr(static_cast<std::size_t>(debut - 1), static_cast<std::size_t>(fin - debut + 1)));
}

void expliquerCadrage(sErreurVue& e, const ligneLue& ligne, eLangue langue) {
    e.colonne = 1;
    if (e.numero == 106) {
        e.colonne = static_cast<int>(ligne.colonneInterdite < 1000000 ? ligne.colonneInterdite : 1000000);
        const bool retenue = ligne.colonneInterdite <= LARGEUR_VSE;
        const std::string_view octet =
            retenue ? std::string_view(ligne.texte + ligne.colonneInterdite - 1, 1) : std::string_view();
        if (retenue) e.debut = e.fin = e.colonne;
        e.valeur = octet;
        e.phrase = remplir(T_CARACTERE, langue,
                           {std::to_string(ligne.colonneInterdite), retenue ? visible(octet) : "?"});
    } else {
        if (e.numero == 107) e.colonne = LARGEUR_VSE + 1;
        if (e.numero == 108) e.colonne = static_cast<int>(ligne.longueur);
        e.phrase = remplir(T_TROP_LONG, langue, {std::to_string(ligne.longueur)});
    }
}

void expliquerAdmission(sErreurVue& e, const lot& l, eLangue langue) {
    const std::string emetteur = cite(l.sauvEmetteur, langue);
    switch (e.numero) {
        case 135:
            placerAuChamp(e, "E", E8);
            e.phrase = remplir(T_135, langue, {emetteur, cite(entete(E8), langue)});
            break;
        case 129:
            placerAuChamp(e, "E", E8);
            e.phrase = remplir(T_129, langue, {cite(entete(E8), langue)});
            break;
        case 110:
            placerAuChamp(e, "E", E6);
            e.phrase = remplir(T_110, langue, {emetteur, cite(entete(E6), langue)});
            break;
        case 85:
            placerAuChamp(e, "E", E6);
            e.phrase = remplir(T_85, langue, {cite(l.sauvRecepteur, langue)});
            break;
        default:
            placerAuChamp(e, "E", E6);
            e.phrase = T_109.en_langue(langue);
            break;
    }
    e.valeur = colonnes(e.debut, e.fin);
}

void expliquerPartenaire(sErreurVue& e, const lot& l, const sTable* corps, eLangue langue) {
    const std::string emetteur = cite(l.sauvEmetteur, langue);
    if (e.numero == 182) {
        placerAuChamp(e, "E", E6);
        e.phrase = remplir(T_182, langue, {emetteur});
    } else {
        placerAuChamp(e, corps->nom, C3);
        e.phrase = remplir(T_C3, langue, {emetteur});
    }
    e.valeur = colonnes(e.debut, e.fin);
}

/** A field that the transaction kind does not allow (error 86). */
void expliquerInterdit(sErreurVue& e, std::string_view genre, eLangue langue) {
    const std::string enCitation = cite(genre, langue);
    e.phrase = genreDe(genre) != nullptr ? remplir(T_INTERDIT, langue, {e.place.table->nom, enCitation})
                                         : remplir(T_GENRE_INCONNU, langue, {enCitation});
}

void expliquerLigne(sErreurVue& e, const constat& c, eLangue langue) {
    const sRegle& r = regleDe(c.ligne, langue);
    placer(e, r.place);
    const extrait recu = texteDe(c);
    e.valeur.assign(recu.debut, static_cast<std::size_t>(recu.longueur));
    const char* const genre = entete(E5);
    if (presenceDe(*e.place.table, c.ligne, genre) == 2) return expliquerInterdit(e, genre, langue);
    e.regle = &r;
    if (r.dependance.table != nullptr) e.valeurDependance = c.ligne->dependance;
    if (r.liste != nullptr && std::strlen(r.liste->entrees[0].valeur) == e.valeur.size())
        e.proches = prochesDe(e.valeur, *r.liste);
}

bool memePlace(const sPlace& a, const sPlace& b) {
    return a.table != nullptr && a.table == b.table && a.champ == b.champ;
}

/** Whether a fault of length or bytes spoils the columns of `e`. */
bool suitDuCadrage(const sErreurVue& e, const sErreurVue& cause) {
    constexpr int ERR_CARACTERE = 106;
    constexpr int ERR_COURT = 108;
    if (e.debut == 0 || e.origine != ORIGINE_TABLE) return false;
    if (cause.numero == ERR_CARACTERE) return e.debut <= cause.colonne && cause.colonne <= e.fin;
    return cause.numero == ERR_COURT && static_cast<int>(e.valeur.size()) <= e.fin - e.debut;
}

/** Whether `e` probably follows from `cause`, which was found before it or
 *  not: a value that is wrong already spoils all that is checked with it. */
bool suitDe(const sErreurVue& e, const sErreurVue& cause, bool avant) {
    if (cause.origine == ORIGINE_CADRAGE) return suitDuCadrage(e, cause);
    if (cause.origine != ORIGINE_TABLE || e.origine != ORIGINE_TABLE) return false;
    const bool interdit = e.regle == nullptr;  // only the transaction kind decides
    return (avant && memePlace(cause.place, e.place)) ||
           memePlace(cause.place, interdit ? auSlot(tableNommee("E"), E5) : e.regle->dependance);
}

}  // namespace

sErreurVue expliquer(const constat& c, const lot& l, const sTable* corps, eLangue langue) {
    sErreurVue e = {};
    e.numero = c.numero;
    e.origine = c.origine;
    e.decouleDe = -1;
    switch (c.origine) {
        case ORIGINE_TABLE: expliquerLigne(e, c, langue); break;
        case ORIGINE_CADRAGE: expliquerCadrage(e, l.ligne, langue); break;
        case ORIGINE_ADMISSION: expliquerAdmission(e, l, langue); break;
        case ORIGINE_PARTENAIRE: expliquerPartenaire(e, l, corps, langue); break;
        default: break;
    }
    return e;
}

sErreurVue expliquerCompte(int trouves, eLangue langue) {
    sErreurVue e = {};
    e.numero = ERR_NOMBRE_VSE;
    e.origine = ORIGINE_COMPTE;
    e.decouleDe = -1;
    placerAuChamp(e, "FICH", C3);
    e.valeur = valFichCorpsVSE[C3].valeur;
    if (trouves < 0) {
        e.phrase = T_COMPTE_RIEN.en_langue(langue);
        return e;
    }
    e.phrase = remplir(T_COMPTE, langue,
                       {accorder(MESSAGES, static_cast<long long>(nombre(e.valeur.c_str())), langue),
                        std::to_string(trouves)});
    return e;
}

sErreurVue expliquerCompagnon(int numero, const sRecordVu& record, const sRecordVu* suivant, eLangue langue) {
    const char* const compagnon = numero == ERR_SANS_EXP2 ? "EXP2" : "RATA";
    sErreurVue e = {};
    e.numero = numero;
    e.origine = ORIGINE_COMPAGNON;
    e.decouleDe = -1;
    placerAuChamp(e, record.type.c_str(), C2);
    e.valeur = record.texte.substr(static_cast<std::size_t>(e.debut - 1),
                                   static_cast<std::size_t>(e.fin - e.debut + 1));
    std::string suite = T_SUIVANT_RIEN.en_langue(langue);
    if (suivant != nullptr) {
        const bool autre = suivant->type == compagnon && suivant->genre == "CRE";
        suite = remplir(autre ? T_SUIVANT_AUTRE : T_SUIVANT, langue,
                        {std::to_string(suivant->ligne), visible(suivant->type), visible(suivant->genre),
                         cite(suivant->cle, langue)});
    }
    e.phrase = remplir(T_COMPAGNON, langue, {compagnon, cite(e.valeur, langue), suite});
    return e;
}

void lierErreurs(std::vector<sErreurVue>& erreurs) {
    for (std::size_t i = 0; i < erreurs.size(); ++i) {
        sErreurVue& e = erreurs[i];
        for (std::size_t j = 0; j < erreurs.size() && e.decouleDe < 0; ++j)
            if (i != j && erreurs[j].decouleDe != static_cast<int>(i) && suitDe(e, erreurs[j], j < i))
                e.decouleDe = static_cast<int>(j);
    }
}

std::string messageDe(const sErreurVue& e, eLangue langue) {
    if (e.regle == nullptr) return e.phrase;
    return phraseAvecValeur(*e.regle, e.valeurDependance, langue);
}

}  // namespace quilvane
