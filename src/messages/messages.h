/**
 * messages.h - the message catalogue: for every type its rule table, its row
 * count and the checks that only it uses.
 *
 * Own checks have the signature of `fVerif` (rules/pack.h). Besides their
 * field they read the body slots or record columns named here.
 */
#ifndef QUILVANE_MESSAGES_MESSAGES_H
#define QUILVANE_MESSAGES_MESSAGES_H

#include "rules/pack.h"

namespace quilvane {

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

// --- ABAT: the animal's country stands in columns 63-64 of the record.
/** A bovine number (12) of country "FR" has the French or imported form. Error 67. */
fVerif vAbat_C2_1;
/** A bovine number of "CH" or another member state has a foreign form. Error 1. */
fVerif vAbat_C2_2;

// --- ASSO: kind of identifier in body C4 ("D", "E"), type of number in C5.
/** Kind "E": the holding number (12) belongs to header E8's body. Error 50. */
fVerif asso_fC2_1;
/** Kind "E": the holding number has the French form. Error 68. */
fVerif asso_fC2_2;
/** The type of number goes with the kind of identifier. Error 183. */
fVerif asso_fC5;
/** SIREN (20): nine digits with a Luhn key (ISO/IEC 7812-1), blanks. Error 136. */
fVerif asso_fC6_1;
/** SIREN without its key, for inventories. Error 136. */
fVerif asso_fC6_1_INV;
/** SIRET (20): fourteen digits with a Luhn key, blanks. Error 41. */
fVerif asso_fC6_2;
/** SIRET without its key, for inventories. Error 41. */
fVerif asso_fC6_2_INV;
/** AGRIN (20): a capital, eight digits, blanks. Error 181. */
fVerif asso_fC6_3;
/** AGRIT (20): a capital, eleven digits, blanks. Error 181. */
fVerif asso_fC6_4;
/** AGRSA (20): sanitary approval number, column 8 free, blanks. Error 184. */
fVerif asso_fC6_5;
/** CEM (20): seven letters or digits, blanks. Error 181. */
fVerif asso_fC6_6;
/** End date (DDMMYYYY): blank or complete. Error 175. */
fVerif asso_fC8_1;
/** End date: blank or not before the start date (dependency). Error 149. */
fVerif asso_fC8_2;
/** End date: blank or not after the record date (dependency). Error 52. */
fVerif asso_fC8_3;

// --- DETE
/** On a request: a keeper (body C12 "D") by department, a holding by its
 *  French number (12). Error 50. */
fVerif fCoherenCC_dete_dem;

// --- ECBO: body C12, C13 and C15 are filled together or left blank together.
/** A country (2) of the list, or all three blank. Error 14. */
fVerif ecbo_C12;
/** A number (12): "FR" (dependency) is free, else foreign form. Error 14. */
fVerif ecbo_C13;
/** A breed (2) of the list, or all three blank. Error 16. */
fVerif ecbo_C15;

// --- EGET
/** One of two fields of thirty columns (`champ`, dependency) is filled. Error 141. */
fVerif eget_fC5C6;

// --- ENTR and SORT: date in body C4, cause in C5, the other party in C8 to C10.
/** Causes F, G, S and T on creation only; the dependency is the transaction
 *  kind. Error 23. */
fVerif entr_fC5;
fVerif sort_fC5;
/** Country (2) of the other holding on creation: of `TP`, or blank unless the
 *  cause (F, G / S, T) requires it. Error 24. */
fVerif entr_fC8_cre;
fVerif sort_fC8_cre;
/** The same on modification; before `P8` it may be missing. Error 24. */
fVerif entr_fC8_mod;
fVerif sort_fC8_mod;
/** Number (12) of the other holding on creation: given with its country; may
 *  be missing for the causes F, G / S, T, M. Error 24. */
fVerif entr_fC9_1_cre;
fVerif sort_fC9_1_cre;
/** The same on modification; before `P8` it may be missing. Error 24. */
fVerif entr_fC9_1_mod;
fVerif sort_fC9_1_mod;
/** Number of the other holding: blank, or of French form if its country (C8)
 *  is "FR". Error 68. */
fVerif entr_fC9_2_cre;
fVerif entr_fC9_2_mod;
fVerif sort_fC9_2_cre;
fVerif sort_fC9_2_mod;
/** The other party in words (60) when it has no number; ENTR's cause N needs
 *  neither. Error 24. */
fVerif entr_fC10_cre;
fVerif sort_fC10_cre;
/** The same on modification; before `P8` both may be missing. Error 24. */
fVerif entr_fC10_mod;
fVerif sort_fC10_mod;

// --- ERRE: type of the message in error in columns 63-66, countries in
//     columns 84-85 and 176-177 of the record.
/** Only errors about slaughter notices: exactly "ABAT". Error 190. */
fVerif vErre_C1;
/** Not blank. Errors 185, 21 and 188. */
fVerif vErre_C4;
fVerif vErre_C8;
fVerif vErre_C10;
/** A country (2) of `TP`; blank unless the type is ABAT. Error 1. */
fVerif vErre_C5;
/** A number (12) of foreign form for columns 84-85; blank unless ABAT. Error 186. */
fVerif vErre_C6;
/** Exactly "FR". Error 21. */
fVerif vErre_C7;
/** Blank, or a French approval number (ABAT) or holding number. Error 68. */
fVerif vErre_C8_conf;
/** Exactly four letters or digits. Error 187. */
fVerif vErre_C9;
/** Blank or exactly "FR". Error 189. */
fVerif vErre_C29;
/** As `vErre_C8_conf`. Error 189. */
fVerif vErre_C30;
/** Two blanks or a country of `TP`. Error 1. */
fVerif vErre_C31;
/** Animal number (12), blank passes; country (columns 176-177) "FR": French or
 *  imported form. Error 67. */
fVerif vErre_C32_1;
/** The same for a country outside the member states and "CH". Error 118. */
fVerif vErre_C32_2;
/** "CH" or another member state: foreign form. Error 1. */
fVerif vErre_C32_3;
/** A complete date (8), required for ABAT. Error 122. */
fVerif vErre_C36_1;
/** Blank, a departmental body of `TDC`, or a national code (8). Error 87. */
fVerif vErre_C37_1;
/** Blank, or a body that goes with the file's emitter (dependency). Error 135. */
fVerif vErre_C37_2;

// --- ERTI
/** Production of kind "V" (dependency) in the list; otherwise a blank. Error 131. */
fVerif erti_fC5;
/** Production "M" (dependency): in the list; otherwise four blanks. Errors 146
 *  and 147. */
fVerif erti_fC9C10;

// --- EXP1
/** Legal form (4): blank, "****" for one emptied, or in the list. Error 32. */
fVerif fexp1_C4;

// --- GROC
/** Second date: blank, or complete; blank, or not after the dependency.
 *  Errors 102 and 52. */
fVerif groc_cre_C10_1;
fVerif groc_cre_C10_2;
/** A time (HHMMSS) with the date in the dependency, six blanks without it.
 *  Error 103. */
fVerif groc_cre_C12;

// --- IMPO
/** Number (12): French form, columns 7 to 10 not "0000". Error 118. */
fVerif impo_C2;
/** Birth date: eight blanks or asterisks, or possibly incomplete. Error 5. */
fVerif impo_C6_1;
/** Birth date: eight blanks or asterisks, or not after the dependency. Error 52. */
fVerif impo_C6_2;
/** Four columns not blank. Error 10. */
fVerif impo_C7;
/** A foreign country (2) of `TP`. Error 49. */
fVerif impo_C20;

// --- NAIS, NVMN: country of the second animal in body C10.
/** Number (12): French form, columns 7 to 10 not "0000". Error 67. */
fVerif nais_C2;
fVerif nvmn_C2;
/** Four columns not blank. Error 10. */
fVerif nais_C7;
/** Number of the second animal, birth date in the dependency: `fConform10FR`,
 *  `fConform10FRnonECHAnon`, `fConform10FRnonECHAoui` by country. Only the
 *  second accepts a blank number before `P5`. Errors 67, 118 and 6. */
fVerif nais_C11;
fVerif nais_C11FRnonUEnon;
fVerif nais_C11FRnonUEoui;
/** Holding (12), birth date in the dependency: blank before `P6`, or French
 *  form. Error 68. */
fVerif nais_C17;

// --- NUMA
/** Count: six digits, not zero. Error 48. */
fVerif numa_fC6_1;
/** Count: 1 to 1000. Error 177. */
fVerif numa_fC6_2;
/** First number of the range (dependency, from column 3) plus count: at most
 *  100000000. Error 179. */
fVerif numa_fC6_3;

// --- PASS: the dependency is the flag C11; "0" requires date and time.
fVerif pass_C7;   // date, error 102
fVerif pass_C10;  // time, error 103

// --- PICO: order type in body C9.
/** Count: six digits, not zero. Error 48. */
fVerif pico_fC6_1;
/** Count: 1 to 10000. Error 178. */
fVerif pico_fC6_2;
/** First number of the range (dependency) plus count within the series. Error 180. */
fVerif pico_fC6_3;

// --- RACO
/** Six digits. Error 170. */
fVerif raco_fC6;

}  // namespace quilvane

#endif
