/**
 * aiguillage.h - the routing table: which rule table serves a message type,
 * and which two body fields name the holding concerned in an error record. A
 * message type is made known to the program here and nowhere else.
 */
#ifndef QUILVANE_MESSAGES_AIGUILLAGE_H
#define QUILVANE_MESSAGES_AIGUILLAGE_H

#include <iterator>

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
    const char* nomVSE;       // message type, header E6
    const sCorps* tabVerif;   // its rule table; null in the last row
    const int* pLenTabVerif;  // the table's row count; null in the last row
    codeVSE code;             // `CODE_INCONNU` in the last row
    numCorpsVSE champErrC7;   // country of the holding concerned, or `CINC`
    numCorpsVSE champErrC8;   // its twelve-character number, or `CINC`
};

// The rule tables and their row counts; each stands in the source of its type.
// clang-format off
extern const sCorps tAbat[]; extern const int lAbat;  // slaughter notice
extern const sCorps tActi[]; extern const int lActi;  // activity of a holding
extern const sCorps tAsso[]; extern const int lAsso;  // identifier of a holding
extern const sCorps tDete[]; extern const int lDete;  // keeper
extern const sCorps tDeti[]; extern const int lDeti;  // activity of a keeper
extern const sCorps tEcbo[]; extern const int lEcbo;  // bovine data
extern const sCorps tEcha[]; extern const int lEcha;  // intra-community exchange
extern const sCorps tEget[]; extern const int lEget;  // production site
extern const sCorps tEntr[]; extern const int lEntr;  // entry on a holding
extern const sCorps tErre[]; extern const int lErre;  // error return
extern const sCorps tErti[]; extern const int lErti;  // production of a site
extern const sCorps tExp1[]; extern const int lExp1;  // export, holding
extern const sCorps tExp2[]; extern const int lExp2;  // export, keeper
extern const sCorps tFich[]; extern const int lFich;  // file record
extern const sCorps tGroc[]; extern const int lGroc;  // tag order, ovine and caprine
extern const sCorps tImoc[]; extern const int lImoc;  // ovine and caprine mark
extern const sCorps tImpo[]; extern const int lImpo;  // import
extern const sCorps tInfo[]; extern const int lInfo;  // request for an animal's data
extern const sCorps tJalo[]; extern const int lJalo;  // marking request
extern const sCorps tNais[]; extern const int lNais;  // birth
extern const sCorps tNuma[]; extern const int lNuma;  // range of animal numbers
extern const sCorps tNvmn[]; extern const int lNvmn;  // birth, short form
extern const sCorps tPass[]; extern const int lPass;  // passport
extern const sCorps tPico[]; extern const int lPico;  // range of tag numbers
extern const sCorps tRaco[]; extern const int lRaco;  // census
extern const sCorps tRata[]; extern const int lRata;  // site and holding
extern const sCorps tRebo[]; extern const int lRebo;  // tag replacement
extern const sCorps tSort[]; extern const int lSort;  // exit from a holding
// clang-format on

// clang-format off
inline constexpr sAiguillage tAiguillage[] = {
    //type   table    rows     code          country number
    {"ABAT", tAbat,   &lAbat,  ABAT,         CINC,   CINC},
    {"ACTI", tActi,   &lActi,  ACTI,         C1,     C2},
    {"ASSO", tAsso,   &lAsso,  ASSO,         C1,     C2},
    {"DETE", tDete,   &lDete,  DETE,         C1,     C2},
    {"DETI", tDeti,   &lDeti,  DETI,         C1,     C2},
    {"ECBO", tEcbo,   &lEcbo,  ECBO,         CINC,   CINC},
    {"ECHA", tEcha,   &lEcha,  ECHA,         C18,    C19},
    {"EGET", tEget,   &lEget,  EGET,         CINC,   CINC},
    {"ENTR", tEntr,   &lEntr,  ENTR,         C6,     C7},
    {"ERRE", tErre,   &lErre,  ERRE,         CINC,   CINC},
    {"ERTI", tErti,   &lErti,  ERTI,         CINC,   CINC},
    {"EXP1", tExp1,   &lExp1,  EXP1,         C1,     C2},
    {"EXP2", tExp2,   &lExp2,  EXP2,         C1,     C2},
    {"GROC", tGroc,   &lGroc,  GROC,         C4,     C5},
    {"IMOC", tImoc,   &lImoc,  IMOC,         C4,     C5},
    {"IMPO", tImpo,   &lImpo,  IMPO,         C18,    C19},
    {"INFO", tInfo,   &lInfo,  INFO,         CINC,   CINC},
    {"JALO", tJalo,   &lJalo,  JALO,         C4,     C5},
    {"NAIS", tNais,   &lNais,  NAIS,         C16,    C17},
    {"NUMA", tNuma,   &lNuma,  NUMA,         C1,     C2},
    {"NVMN", tNvmn,   &lNvmn,  NVMN,         C16,    C17},
    {"PASS", tPass,   &lPass,  PASS,         C4,     C5},
    {"PICO", tPico,   &lPico,  PICO,         C1,     C2},
    {"RACO", tRaco,   &lRaco,  RACO,         C1,     C2},
    {"RATA", tRata,   &lRata,  RATA,         CINC,   CINC},
    {"REBO", tRebo,   &lRebo,  REBO,         C5,     C6},
    {"SORT", tSort,   &lSort,  SORT,         C6,     C7},
    {"ZZZZ", nullptr, nullptr, CODE_INCONNU, CINC,   CINC},
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
