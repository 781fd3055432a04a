#include "controle/traitement.h"

#include <cstring>

#include "checks/coherence.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "controle/composition.h"
#include "messages/aiguillage.h"
#include "rules/entete.h"
#include "rules/moteur.h"

namespace quilvane {

namespace {

constexpr int ERR_EMETTEUR_CORPS = 135;  // emitter may not send for this body
constexpr int ERR_EMETTEUR = 110;        // emitter may not send this type
constexpr int ERR_RECEPTEUR = 85;        // receiver does not take this type
constexpr int ERR_CORPS_ABAT = 129;      // slaughter notice of another body
constexpr int ERR_FICH_EN_TROP = 109;    // second FICH record
constexpr int ERR_PARTENAIRE = 182;      // partner may not send this record
constexpr int ERR_C3_NATIONAL = 64;
constexpr int ERR_C3_LOCAL = 51;
constexpr int ERR_C3_VARIANTE_DL = 806;
constexpr int ERR_C3_VARIANTE_PF = 807;
constexpr int ERR_SANS_EXP2 = 105;
constexpr int ERR_SANS_RATA = 138;
constexpr int TAILLE_NUMERO_FICHIER = 16;

template <std::size_t N>
bool typeEst(const char (&type)[N]) {
    return vaut(entete(E6), type);
}
template <std::size_t N>
bool genreEst(const char (&genre)[N]) {
    return vaut(entete(E5), genre);
}
template <std::size_t N>
bool varianteEst(const char (&variante)[N]) {
    return vaut(VARIANTE, variante);
}

/** Copies what fits of a text and terminates it. */
template <std::size_t N>
void copier(char (&destination)[N], const char* source) {
    std::size_t i = 0;
    for (; i < N - 1 && source[i] != '\0'; ++i)
        destination[i] = source[i];
    destination[i] = '\0';
}

bool emetteurNational(const lot& l) {
    return vaut(l.sauvEmetteur, "NORM01  ") || vaut(l.sauvEmetteur, "NORM02  ") ||
           vaut(l.sauvEmetteur, "PFOC01  ");
}

/** Who may send what to whom, before any table rule. */
int reglesAdmission(const lot& l, int compte) {
    const auto noter = [&compte](int numero) { compte = ajouterErreur(compte, numero, ORIGINE_ADMISSION); };
    if (varianteEst("QUILVANE  ") && !fCoherenCCE(l.sauvEmetteur, entete(E8))) noter(ERR_EMETTEUR_CORPS);
    if (typeEst("INFO") && genreEst("DEM")) {
        if (!vaut(l.sauvEmetteur, "NORM02  ") && !vaut(l.sauvEmetteur, "PFOC01  ")) noter(ERR_EMETTEUR);
        if (!vaut(l.sauvRecepteur, "031BDN  ")) noter(ERR_RECEPTEUR);
    }
    if (typeEst("ABAT")) {
        if (vaut(l.sauvEmetteur, "NORM01  ")) {
            if (!vaut(entete(E8), "NORMABEV")) noter(ERR_CORPS_ABAT);
        } else if (!memeDebut(l.sauvEmetteur, "OFFICE", 6) && !memeDebut(l.sauvEmetteur, "ONICAB", 6)) {
            noter(ERR_EMETTEUR);
        }
    }
    if (typeEst("FICH")) noter(ERR_FICH_EN_TROP);
    return compte;
}

/** What a build variant asks of body field C3; 0 for no error. */
int regleVariante(const lot& l) {
    const char* const c3 = corps(C3);
    if (varianteEst("QUILVANE  ")) {
        if (!vaut(c3, "xx")) return 0;
        return emetteurNational(l) ? ERR_C3_NATIONAL : ERR_C3_LOCAL;
    }
    const bool vide = vaut(c3, "  ") || vaut(c3, "10");
    if (varianteEst("QUILVANED ")) return vide ? 0 : ERR_C3_VARIANTE_DL;
    if (varianteEst("QUILVANEL ")) {
        if (emetteurNational(l)) return vaut(c3, "20") ? 0 : ERR_C3_NATIONAL;
        return vide ? 0 : ERR_C3_VARIANTE_DL;
    }
    if (varianteEst("QUILVANEPF")) return vaut(c3, "10") || typeEst("ABAT") ? 0 : ERR_C3_VARIANTE_PF;
    return 0;
}

/** The only records that the two partners may send to the national database. */
bool admisDuPartenaire() {
    const char* const c5 = corps(C5);
    return (typeEst("INFO") && genreEst("DEM")) || (typeEst("JALO") && genreEst("CRE")) ||
           (typeEst("ENTR") && genreEst("CRE") && vaut(c5, "F")) ||
           (typeEst("SORT") && genreEst("CRE") && (vaut(c5, "S") || vaut(c5, "M"))) || typeEst("ABAT");
}

int reglesPartenaire(lot& l, int compte) {
    l.err_aux = typeEst("ERRE") ? 0 : regleVariante(l);
    if (l.err_aux > 0) compte = ajouterErreur(compte, l.err_aux, ORIGINE_PARTENAIRE);
    const bool partenaire = vaut(l.sauvEmetteur, "000PFO  ") || vaut(l.sauvEmetteur, "NORMABEV");
    if (partenaire && vaut(l.sauvRecepteur, "031BDN  ") && !admisDuPartenaire())
        compte = ajouterErreur(compte, ERR_PARTENAIRE, ORIGINE_PARTENAIRE);
    return compte;
}

/** A section of the record: its letter, its table, its slots. */
struct section {
    const char* lettre;
    const parcours& p;
    valeurVSE* slots;
};
const section SECTION_ENTETE = {"E", pEntete, valEnteteVSE};
const section SECTION_FIN = {"F", pFin, valFinVSE};

// A witness sees every row; without one only those are come to that have
// something to say.
void couper(const lot& l, const section& s) {
    if (l.vu != nullptr)
        getvseChamps(s.p.lignes, s.p.nombre, xdebug, s.slots, l.vu);
    else
        couperChamps(s.p, s.slots);
}
int verifier(const lot& l, const section& s, int compte, const char* genre) {
    if (l.vu != nullptr) return verifChamps(l.vu, compte, s.p.lignes, s.p.nombre, s.slots, genre, s.lettre);
    return suivreChamps(s.p, compte, s.slots, genre);
}

/** Body, partner and footer rules of a record whose type is known. */
int reglesCorpsEtFin(lot& l, const sAiguillage& ligne, int compte) {
    const section corpsDuType = {"C", *ligne.pParcours, valCorpsVSE};
    couper(l, corpsDuType);
    compte = verifier(l, corpsDuType, compte, entete(E5));
    compte = reglesPartenaire(l, compte);
    if (compte < MAX_ERREURS) compte = verifier(l, SECTION_FIN, compte, nullptr);
    return compte;
}

/** A record that must be followed by its companion, and the error without it. */
struct paireVSE {
    const char* premier;
    const char* compagnon;
    int erreur;
};
constexpr paireVSE PAIRES[] = {{"EXP1", "EXP2", ERR_SANS_EXP2}, {"EGET", "RATA", ERR_SANS_RATA}};

/** The pair that the record before has opened, or null. */
const paireVSE* paireOuverte(const lot& l) {
    if (!dependanceVSE() || !vaut(l.sauvTypeVSE, "CRE") || l.sauvCodeVSEerr != 0) return nullptr;
    for (const paireVSE& p : PAIRES)
        if (egal(l.sauvCodeVSE, p.premier)) return &p;
    return nullptr;
}

/** Whether the current record is the companion that closes the pair. */
bool estCompagnon(const lot& l, const paireVSE& p) {
    return egal(entete(E6), p.compagnon) && genreEst("CRE") && egal(corps(C2), l.sauvLienVSE);
}

/** Keeps type, kind and verdict of the current record for the next one. */
void retenirPrecedent(lot& l, int compte) {
    copier(l.sauvCodeVSE, entete(E6));
    copier(l.sauvTypeVSE, entete(E5));
    l.sauvCodeVSEerr = compte;
}

/** Closes the pair of the record before and opens one if this record does. */
void apparier(lot& l, verdict& v) {
    l.existDependanceVSEerr = 0;
    if (const paireVSE* const p = paireOuverte(l); p != nullptr && !estCompagnon(l, *p))
        v.sansCompagnon = sansCompagnon(l);
    retenirPrecedent(l, v.erreurs);
    if (const paireVSE* const p = paireOuverte(l); p != nullptr) {
        copier(l.sauvLienVSE, corps(C2));
        faireTamponVSEERR(l, p->erreur, v.itAiguil);
    }
}

/** A record of unknown type has no fields: its error record shows blanks. */
void blanchirCorps() {
    std::strcpy(valCorpsVSE[C1].valeur, "  ");
    std::strcpy(valCorpsVSE[C2].valeur, "            ");
}

void traiterFICH(lot& l, verdict& v) {
    if (!typeEst("FICH")) {
        v.fatal = eFatal::IG011;
        return;
    }
    l.errFich = verifChamps(l.vu, 0, tEntete, lEntete, valEnteteVSE, nullptr, "E");
    getvseChamps(tFich, lFich, xdebug, valCorpsVSE, l.vu);
    const char* const numeroFichier = corps(C1);
    if (std::strlen(numeroFichier) == TAILLE_NUMERO_FICHIER && champVide(numeroFichier)) {
        v.fatal = eFatal::I099;
        return;
    }
    // The body's rules run twice; they name no check, so that nothing is found twice.
    const auto appliquer = [&l](const sCorps* table, int lignes, valeurVSE* slots, const char* lettre) {
        if (l.errFich < MAX_ERREURS)
            l.errFich = verifChamps(l.vu, l.errFich, table, lignes, slots, nullptr, lettre);
    };
    appliquer(tFich, lFich, valCorpsVSE, "C");
    appliquer(tFich, lFich, valCorpsVSE, "C");
    appliquer(tFin, lFin, valFinVSE, "F");

    std::memcpy(valFichEnteteVSE, valEnteteVSE, sizeof valFichEnteteVSE);
    std::memcpy(valFichCorpsVSE, valCorpsVSE, sizeof valFichCorpsVSE);
    std::memcpy(valFichFinVSE, valFinVSE, sizeof valFichFinVSE);
    std::memcpy(l.codeFichErreur, codeErreur, MAX_ERREURS * sizeof codeErreur[0]);
    std::memcpy(l.constatsFich, constats, sizeof constats);
    v.erreurs = nbErreur = l.errFich;
    copier(l.sauvEmetteur, entete(E3));
    copier(l.sauvRecepteur, entete(E4));
    retenirPrecedent(l, 0);
}

void traiterMessage(lot& l, verdict& v) {
    v.itAiguil = ERR_AIGUILLAGE;
    nbErreur = reglesAdmission(l, 0);
    if (nbErreur < MAX_ERREURS) {
        nbErreur = verifier(l, SECTION_ENTETE, nbErreur, nullptr);
        // A record that is full of errors by now is treated as of unknown type.
        if (nbErreur < MAX_ERREURS) v.itAiguil = aiguiller(entete(E6));
    }
    const sAiguillage& ligne = tAiguillage[v.itAiguil];
    if (ligne.code != CODE_INCONNU)
        nbErreur = reglesCorpsEtFin(l, ligne, nbErreur);
    else
        blanchirCorps();
    v.erreurs = nbErreur;
    apparier(l, v);
}

}  // namespace

void traitement(lot& l, verdict& v) {
    retenirVSE(l.ligne.texte);  // from here on the record is in `xdebug`
    codLong = l.ligne.codLong;
    codCaract = l.ligne.codCaract;
    if (l.vu != nullptr) dire(l.vu, {.quoi = VU_RECORD});
    std::memset(codeErreur, 0, MAX_ERREURS * sizeof codeErreur[0]);
    couper(l, SECTION_ENTETE);
    couper(l, SECTION_FIN);
    if (l.nombreDeVSE == 1)
        traiterFICH(l, v);
    else
        traiterMessage(l, v);
    if (l.vu != nullptr && v.fatal == eFatal::AUCUN) dire(l.vu, {.quoi = VU_TERMINE});
}

int sansCompagnon(lot& l) {
    const paireVSE* const p = paireOuverte(l);
    if (p == nullptr) return 0;
    std::memcpy(l.tamponSansCompagnon, l.sauvTamponVSE, sizeof l.sauvTamponVSE);
    l.existDependanceVSEerr = 1;
    return p->erreur;
}

int dependanceVSE() { return 1; }

}  // namespace quilvane
