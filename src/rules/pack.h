/**
 * pack.h - the vocabulary of the validator: field numbers, message-type
 * codes, rule rows, value slots, allowed-value lists and the field store.
 *
 * Every source may include this header; it includes no room of ours.
 */
#ifndef QUILVANE_RULES_PACK_H
#define QUILVANE_RULES_PACK_H

#include "vocabulaire/liste.h"

namespace quilvane {

// ---------------------------------------------------------------- layout

/** Columns of a record; they are numbered from 1. 1 to 62 is the header, 63 to
 *  230 the body, 231 to 256 the footer. */
inline constexpr int LARGEUR_VSE = 256;
/** Error numbers that one record may carry. */
inline constexpr int MAX_ERREURS = 10;

/** Header fields; the value is the slot of `valEnteteVSE`. */
enum numEnteteVSE : unsigned { E1, E2, E3, E4, E5, E6, E7, E8, E9, E10, E11, E12, E13 };

/** Footer fields; the value is the slot of `valFinVSE`. */
enum numFinVSE : unsigned { F1, F2, F3, F4, F5 };

/** Body fields C1 to C100; `CINC` means "no field". */
// clang-format off
enum numCorpsVSE : unsigned {
    C1,  C2,  C3,  C4,  C5,  C6,  C7,  C8,  C9,  C10, C11, C12, C13, C14, C15, C16, C17, C18, C19, C20,
    C21, C22, C23, C24, C25, C26, C27, C28, C29, C30, C31, C32, C33, C34, C35, C36, C37, C38, C39, C40,
    C41, C42, C43, C44, C45, C46, C47, C48, C49, C50, C51, C52, C53, C54, C55, C56, C57, C58, C59, C60,
    C61, C62, C63, C64, C65, C66, C67, C68, C69, C70, C71, C72, C73, C74, C75, C76, C77, C78, C79, C80,
    C81, C82, C83, C84, C85, C86, C87, C88, C89, C90, C91, C92, C93, C94, C95, C96, C97, C98, C99, C100,
    CINC
};

/** Message-type codes. `AVER`, `LIST` and `FICH` have a code but no routing row. */
enum codeVSE : unsigned {
    ABAT, ACTI, ASSO, AVER, DETE, DETI, ECBO, ECHA, EGET, ENTR,
    ERTI, ERRE, EXP1, EXP2, FICH, GROC, IMOC, IMPO, INFO, JALO,
    LIST, NAIS, NUMA, NVMN, PASS, PICO, RACO, RATA, REBO, SORT,
    CODE_INCONNU = 0xFFFFFFFFU  // the code of the routing table's last row
};
// clang-format on

/** Sense of a date comparison: the field is on or after / on or before the reference. */
enum esupInf { SUP = 0, INF = 1 };

/** How a date is read: all of it, or with a blank day, or blank day and month. */
enum eCouI { COMPLETE = 0, INCOMPLETE = 1 };

// ------------------------------------------------------------ value slots

/** One field's text, exactly as cut from the record, zero-terminated. */
struct valeurVSE {
    char valeur[LARGEUR_VSE + 1];
};

/**
 * The field store. `getvseChamps` writes the slots of the current record;
 * record processing keeps the FICH record's slots for the whole run. Nothing
 * clears them between records: a table with fewer fields leaves the higher
 * slots as they were.
 */
extern valeurVSE valEnteteVSE[13];
extern valeurVSE valCorpsVSE[100];
extern valeurVSE valFinVSE[5];
extern valeurVSE valFichEnteteVSE[13];
extern valeurVSE valFichCorpsVSE[9];
extern valeurVSE valFichFinVSE[5];

/** The slot texts by field, as rule rows name their dependency. */
constexpr const char* entete(numEnteteVSE champ) { return valEnteteVSE[champ].valeur; }
constexpr const char* corps(numCorpsVSE champ) { return valCorpsVSE[champ].valeur; }
constexpr const char* fin(numFinVSE champ) { return valFinVSE[champ].valeur; }
constexpr const char* fichEntete(numEnteteVSE champ) { return valFichEnteteVSE[champ].valeur; }
/** The dependency of a row that compares with no other field. */
inline constexpr const char* aucune = "";

/** Size of `xdebug`, terminator included. */
inline constexpr int TAILLE_XDEBUG = 4096;
/** The record being processed, up to its first zero byte; the columns up to 256
 *  that it lacks hold zeros. Written by `retenirVSE` for each record; read by
 *  the engine and by checks that look at columns. */
extern char xdebug[TAILLE_XDEBUG];

/** Makes `tampon` (at most `TAILLE_XDEBUG` - 1 characters) the record in `xdebug`. */
void retenirVSE(const char* tampon);

/** Error numbers of the current record in the order found. Written by
 *  `ajouterErreur`; cleared by record processing at each record. */
extern int codeErreur[MAX_ERREURS + 1];
/** Their count. Written by record processing and by the error-record writer. */
extern int nbErreur;

/** 1 when the record holds a byte outside 0x20..0x7E. Raised by the record
 *  stream, reset by `verifChamps` when it stores error 106. */
extern int codCaract;
/** 0 length correct, 1 too long, 2 too short. Raised by the record stream,
 *  reset by `verifChamps` when it stores error 107 or 108. */
extern int codLong;

/** Part of the first command-line argument between its first two '_' (at most
 *  31 characters). Written once by the driver; read by `fichier_C11`. */
extern char bufC11[32];

/** Stores `numero` as the `compte`-th error of the current record unless ten
 *  are stored; returns the new count. */
int ajouterErreur(int compte, int numero);

/** The fixed second cut of a slaughter notice (columns in parentheses). */
struct vseCorps {
    char CODE_PAYS_BOV[3];             // always empty
    char NUME_NATI_BOV[64];            // (65-76) animal number
    char CODE_RESULTAT[64];            // (77-78)
    char CODE_EXPLOIT_PROVENANCE[64];  // (79-80) country of the provenance holding
    char NUME_EXPLOIT_PROVENANCE[64];  // (81-92) provenance holding
    char DATE_ENTREE_ABAT[64];         // (93-100) entry at the slaughterhouse, DDMMYYYY
    char DATE_ABATTAGE[64];            // (101-108) slaughter, DDMMYYYY
    char NUME_TUERIE[64];              // (109-116) slaughterhouse number
    char POIDS_CARCASSE[64];           // (117-123) carcass weight, NNNN,NN kg
    char CODE_PAYS_ABAT_NOTIF[64];     // (124-125) country of the notifier
    char NUME_IDENT_ABAT_NOTIF[64];    // (126-137) notifier identification
    char INDIC_CREA_INVA_ABATT[64];    // (138) creation or invalidation indicator
};

/** Extract of the current slaughter notice. Written by `getVseCorps` only. */
extern vseCorps cp;

/** Fills `cp` from `xdebug`; a member whose columns the record does not reach
 *  is shorter or empty. */
void getVseCorps();

// -------------------------------------------------- allowed values, rules

/**
 * A check. `dependance` is the text of the field that the row depends on (or
 * ""), `champ` the field's own slot and `sverif` the row's list. Returns non-zero when the field is
 * acceptable. A check prints nothing and changes nothing; only the date reader in incomplete mode rewrites
 * `champ`.
 */
using fVerif = int(const char* dependance, char* champ, const liste& sverif);

/** One rule row. */
struct sCorps {
    int numChamp;  // field number from 0; shown as number + 1 in traces
    int debut;     // first column, from 1; 0 on an extra row
    int fin;       // last column, inclusive; 0 on an extra row
    int typeCRE;   // presence code by transaction kind: 0 checked,
    int typeDEM;   //   1 not checked, 2 not allowed (error 86)
    int typeINV;
    int typeEDI;
    int typeMOD;
    fVerif* pfVerif;         // the check, or null: the field is only cut out
    const liste* sverif;     // the list, `sansListe` when it needs none
    const char* dependance;  // slot of another field, or ""
    int noErr;               // error number when the check fails
};

}  // namespace quilvane

#endif
