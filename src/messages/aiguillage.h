/**
 * aiguillage.h - the routing table: which rule table serves a message type,
 * and which two body fields name the holding concerned in an error record. A
 * message type is made known to the program here and nowhere else.
 */
#ifndef QUILVANE_MESSAGES_AIGUILLAGE_H
#define QUILVANE_MESSAGES_AIGUILLAGE_H

#include <iterator>

#include "rules/parcours.h"
#include "vocabulaire/pack.h"
#include "vocabulaire/regle.h"

namespace quilvane {

// clang-format off
/** Message-type codes. `AVER`, `LIST` and `FICH` have a code but no routing row. */
enum codeVSE : unsigned {
    ABAT, ACTI, ASSO, AVER, DETE, DETI, ECBO, ECHA, EGET, ENTR,
    ERTI, ERRE, EXP1, EXP2, FICH, GROC, IMOC, IMPO, INFO, JALO,
    LIST, NAIS, NUMA, NVMN, PASS, PICO, RACO, RATA, REBO, SORT,
    CODE_INCONNU = 0xFFFFFFFFU  // the code of the routing table's last row
};
// clang-format on

/** One routing row. */
struct sAiguillage {
    const char* nomVSE;         // message type, header E6
    const sCorps* tabVerif;     // its rule table; null in the last row
    const int* pLenTabVerif;    // the table's row count; null in the last row
    const parcours* pParcours;  // the ways through the table; null in the last row
    codeVSE code;               // `CODE_INCONNU` in the last row
    numCorpsVSE champErrC7;     // country of the holding concerned, or `CINC`
    numCorpsVSE champErrC8;     // its twelve-character number, or `CINC`
};

// The rule tables, their row counts and the ways through them; they stand in
// the source of their type.
// clang-format off
extern const sCorps tAbat[]; extern const int lAbat; extern const parcours pAbat;  // slaughter notice
extern const sCorps tActi[]; extern const int lActi; extern const parcours pActi;  // activity of a holding
extern const sCorps tAsso[]; extern const int lAsso; extern const parcours pAsso;  // identifier of a holding
extern const sCorps tDete[]; extern const int lDete; extern const parcours pDete;  // keeper
extern const sCorps tDeti[]; extern const int lDeti; extern const parcours pDeti;  // activity of a keeper
extern const sCorps tEcbo[]; extern const int lEcbo; extern const parcours pEcbo;  // bovine data
extern const sCorps tEcha[]; extern const int lEcha; extern const parcours pEcha;  // intra-community exchange
extern const sCorps tEget[]; extern const int lEget; extern const parcours pEget;  // production site
extern const sCorps tEntr[]; extern const int lEntr; extern const parcours pEntr;  // entry on a holding
extern const sCorps tErre[]; extern const int lErre; extern const parcours pErre;  // error return
extern const sCorps tErti[]; extern const int lErti; extern const parcours pErti;  // production of a site
extern const sCorps tExp1[]; extern const int lExp1; extern const parcours pExp1;  // export, holding
extern const sCorps tExp2[]; extern const int lExp2; extern const parcours pExp2;  // export, keeper
extern const sCorps tFich[]; extern const int lFich;                               // file record
extern const sCorps tGroc[]; extern const int lGroc; extern const parcours pGroc;  // tag order, ovine and caprine
extern const sCorps tImoc[]; extern const int lImoc; extern const parcours pImoc;  // ovine and caprine mark
extern const sCorps tImpo[]; extern const int lImpo; extern const parcours pImpo;  // import
extern const sCorps tInfo[]; extern const int lInfo; extern const parcours pInfo;  // request for an animal's data
extern const sCorps tJalo[]; extern const int lJalo; extern const parcours pJalo;  // marking request
extern const sCorps tNais[]; extern const int lNais; extern const parcours pNais;  // birth
extern const sCorps tNuma[]; extern const int lNuma; extern const parcours pNuma;  // range of animal numbers
extern const sCorps tNvmn[]; extern const int lNvmn; extern const parcours pNvmn;  // birth, short form
extern const sCorps tPass[]; extern const int lPass; extern const parcours pPass;  // passport
extern const sCorps tPico[]; extern const int lPico; extern const parcours pPico;  // range of tag numbers
extern const sCorps tRaco[]; extern const int lRaco; extern const parcours pRaco;  // census
extern const sCorps tRata[]; extern const int lRata; extern const parcours pRata;  // site and holding
extern const sCorps tRebo[]; extern const int lRebo; extern const parcours pRebo;  // tag replacement
extern const sCorps tSort[]; extern const int lSort; extern const parcours pSort;  // exit from a holding
// clang-format on

// clang-format off
inline constexpr sAiguillage tAiguillage[] = {
    //type   table    rows     ways     code          country number
    {"ABAT", tAbat,   &lAbat,   &pAbat,  ABAT,         CINC,   CINC},
    {"ACTI", tActi,   &lActi,   &pActi,  ACTI,         C1,     C2},
    {"ASSO", tAsso,   &lAsso,   &pAsso,  ASSO,         C1,     C2},
    {"DETE", tDete,   &lDete,   &pDete,  DETE,         C1,     C2},
    {"DETI", tDeti,   &lDeti,   &pDeti,  DETI,         C1,     C2},
    {"ECBO", tEcbo,   &lEcbo,   &pEcbo,  ECBO,         CINC,   CINC},
    {"ECHA", tEcha,   &lEcha,   &pEcha,  ECHA,         C18,    C19},
    {"EGET", tEget,   &lEget,   &pEget,  EGET,         CINC,   CINC},
    {"ENTR", tEntr,   &lEntr,   &pEntr,  ENTR,         C6,     C7},
    {"ERRE", tErre,   &lErre,   &pErre,  ERRE,         CINC,   CINC},
    {"ERTI", tErti,   &lErti,   &pErti,  ERTI,         CINC,   CINC},
    {"EXP1", tExp1,   &lExp1,   &pExp1,  EXP1,         C1,     C2},
    {"EXP2", tExp2,   &lExp2,   &pExp2,  EXP2,         C1,     C2},
    {"GROC", tGroc,   &lGroc,   &pGroc,  GROC,         C4,     C5},
    {"IMOC", tImoc,   &lImoc,   &pImoc,  IMOC,         C4,     C5},
    {"IMPO", tImpo,   &lImpo,   &pImpo,  IMPO,         C18,    C19},
    {"INFO", tInfo,   &lInfo,   &pInfo,  INFO,         CINC,   CINC},
    {"JALO", tJalo,   &lJalo,   &pJalo,  JALO,         C4,     C5},
    {"NAIS", tNais,   &lNais,   &pNais,  NAIS,         C16,    C17},
    {"NUMA", tNuma,   &lNuma,   &pNuma,  NUMA,         C1,     C2},
    {"NVMN", tNvmn,   &lNvmn,   &pNvmn,  NVMN,         C16,    C17},
    {"PASS", tPass,   &lPass,   &pPass,  PASS,         C4,     C5},
    {"PICO", tPico,   &lPico,   &pPico,  PICO,         C1,     C2},
    {"RACO", tRaco,   &lRaco,   &pRaco,  RACO,         C1,     C2},
    {"RATA", tRata,   &lRata,   &pRata,  RATA,         CINC,   CINC},
    {"REBO", tRebo,   &lRebo,   &pRebo,  REBO,         C5,     C6},
    {"SORT", tSort,   &lSort,   &pSort,  SORT,         C6,     C7},
    {"ZZZZ", nullptr, nullptr, nullptr, CODE_INCONNU, CINC,   CINC},
};
// clang-format on
inline constexpr int LEN_AIGUILLAGE = static_cast<int>(std::size(tAiguillage));
/** Index of the last row, which stands for every unknown type. */
inline constexpr int ERR_AIGUILLAGE = LEN_AIGUILLAGE - 1;
static_assert(tAiguillage[ERR_AIGUILLAGE].code == CODE_INCONNU);

/** Index of the row of a message type (exact, case-sensitive), `ERR_AIGUILLAGE`
 *  when there is none. */
int aiguiller(const char* typeVSE);

}  // namespace quilvane

#endif
