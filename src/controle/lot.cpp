#include "controle/lot.h"

#include <cstring>

#include "checks/lecture.h"
#include "controle/traitement.h"
#include "messages/aiguillage.h"

namespace quilvane {

namespace {

constexpr int MAX_NOMBRE_VSE = MAX_MESSAGES + 2;  // counter value after all messages and the FICH record
constexpr int ERR_NOMBRE_VSE = 100;               // count in the FICH record is wrong

eSuite arreter(verdict& v, eFatal cause) {
    v.fatal = cause;
    return SUITE_ARRET;
}

}  // namespace

constinit const char* VARIANTE = "QUILVANE  ";

void commencer(lot& l) {
    leStore = {};
    l = {};
}

eSuite suivant(lot& l, lecteur& source, verdict& v) {
    v = {.fatal = eFatal::AUCUN,
         .rang = l.nombreDeVSE,
         .erreurs = 0,
         .itAiguil = ERR_AIGUILLAGE,
         .sansCompagnon = 0};
    if (l.nombreDeVSE > MAX_NOMBRE_VSE && maxAutoVSE()) return arreter(v, eFatal::I073);

    const cverseFgetsRet fin = cverseFgets(source, l.ligne);
    if (fin == CVERSE_CTRLZ) return SUITE_FIN;
    if (fin == CVERSE_EOF) return source.erreur ? arreter(v, eFatal::IG003) : SUITE_FIN;
    if (fin == CVERSE_LONGNULLE) return arreter(v, eFatal::IG015);
    if (fin != CVERSE_MAC) {
        if (l.formatDuFichier != -1 && l.formatDuFichier != fin) return arreter(v, eFatal::IG008);
        traitement(l, v);
        if (v.fatal != eFatal::AUCUN) return SUITE_ARRET;
        l.formatDuFichier = fin;
    }
    if (v.erreurs > 0) ++l.nbVSE_Err;
    // A skipped line counts what the record before it left.
    if (l.existDependanceVSEerr > 0) ++l.nbVSE_Err;
    ++l.nombreDeVSE;
    return fin == CVERSE_MAC ? SUITE_SAUTE : SUITE_VERDICT;
}

bilan conclure(lot& l) {
    bilan b = {eFatal::AUCUN, 0, false};
    if (std::strcmp(entete(E6), "FICH") == 0) {
        b.fatal = eFatal::IG014;
        return b;
    }
    l.nombreDeVSE -= 2;
    b.sansCompagnon = sansCompagnon(l);
    if (b.sansCompagnon != 0) ++l.nbVSE_Err;
    b.compteFaux = nombre(valFichCorpsVSE[C3].valeur) != l.nombreDeVSE;
    if (b.compteFaux && l.errFich < MAX_ERREURS) {
        l.codeFichErreur[l.errFich] = ERR_NOMBRE_VSE;
        l.constatsFich[l.errFich] = {ERR_NOMBRE_VSE, ORIGINE_COMPTE, nullptr};
        if (l.errFich == 0) ++l.nbVSE_Err;
        ++l.errFich;
    }
    return b;
}

bool fichierValide(const lot& l) { return l.nbVSE_Err == 0 && l.errFich == 0; }

int maxAutoVSE() { return 1; }

}  // namespace quilvane
