/**
 * valautorise.h - the allowed-value lists, in the order in which they are
 * searched. The assertion below a list states its width: every entry has the
 * exact width of its field. A list of more than 18 entries of one column has
 * an index, which is made in valautorise.cpp.
 */
#ifndef QUILVANE_CHECKS_VALAUTORISE_H
#define QUILVANE_CHECKS_VALAUTORISE_H

#include "vocabulaire/liste.h"

namespace quilvane {

extern const indexListe indexTD, indexTDC, indexTP, indexTR, indexTDD, indexTRG, indexTRFNV, indexTCPNOCEE,
    indexTCPNOECH, indexTEC, indexTCEE, indexTECH, indexTRSCRE, indexTRSMOD, indexTE6, indexTE6CRE,
    indexTE6INV, indexTE6MOD;

// clang-format off

// Header and footer.
inline constexpr liste tE5 = {{"CRE", "INV", "MOD", "DEM", "EDI", "INF", "ECQ"}};
static_assert(largeur(tE5) == 3);

inline constexpr liste tE6 = {{
    "ABAT", "ACTI", "ASSO", "DETE", "DETI", "ECBO", "ECHA", "EGET", "ENTR", "ERRE", "ERTI", "EXP1", "EXP2",
    "FICH", "GROC", "IMOC", "IMPO", "INFO", "JALO", "NAIS", "NUMA", "NVMN", "PASS", "PICO", "RACO", "RATA",
    "REBO", "SORT",
}, 1, &indexTE6};
static_assert(largeur(tE6) == 4);

inline constexpr liste tE6CRE = {{
    "ABAT", "ACTI", "ASSO", "DETE", "DETI", "ECBO", "ECHA", "EGET", "ENTR", "ERTI", "EXP1", "EXP2", "GROC",
    "IMPO", "IMOC", "JALO", "NAIS", "NUMA", "NVMN", "PICO", "RACO", "RATA", "REBO", "SORT",
}, 1, &indexTE6CRE};
static_assert(largeur(tE6CRE) == 4);

inline constexpr liste tE6DEM = {{"DETE", "GROC", "INFO", "NAIS", "PASS"}};
static_assert(largeur(tE6DEM) == 4);

inline constexpr liste tE6INV = {{
    "ABAT", "ACTI", "ASSO", "DETE", "DETI", "ECBO", "ECHA", "EGET", "ENTR", "ERTI", "EXP1", "EXP2", "IMPO",
    "IMOC", "NAIS", "NVMN", "PASS", "REBO", "RACO", "SORT",
}, 1, &indexTE6INV};
static_assert(largeur(tE6INV) == 4);

inline constexpr liste tE6MOD = {{
    "ABAT", "ACTI", "ASSO", "DETE", "DETI", "ECHA", "EGET", "ENTR", "ERTI", "EXP1", "EXP2", "IMPO", "NAIS",
    "NUMA", "NVMN", "RACO", "RATA", "REBO", "SORT",
}, 1, &indexTE6MOD};
static_assert(largeur(tE6MOD) == 4);

inline constexpr liste tE6EDI = {{"PASS"}};
static_assert(largeur(tE6EDI) == 4);

inline constexpr liste tE6INF = {{"FICH"}};
static_assert(largeur(tE6INF) == 4);

inline constexpr liste TEC = {{
    "001IPG  ", "003IPG  ", "013ARS  ", "018IPG  ", "021IPG  ", "023IPG  ", "025ARS  ", "02BIPG  ", "036IPG  ",
    "038IPG  ", "042ARS  ", "043IPG  ", "054ARS  ", "058IPG  ", "059ARS  ", "063IPG  ", "071IPG  ", "074ARS  ",
    "081ARS  ", "089ARS  ", "350ARS  ", "971IPG  ", "972IPG  ", "973IPG  ", "974IPG  ", "976IPG  ",
}, 1, &indexTEC};
static_assert(largeur(TEC) == 8);

inline constexpr liste TDC = {{
    "001IPG  ", "002IPG  ", "003IPG  ", "004IPG  ", "005IPG  ", "006IPG  ", "007IPG  ", "008IPG  ", "009IPG  ",
    "010IPG  ", "011IPG  ", "012IPG  ", "013IPG  ", "014IPG  ", "015IPG  ", "016IPG  ", "017IPG  ", "018IPG  ",
    "019IPG  ", "021IPG  ", "022IPG  ", "023IPG  ", "024IPG  ", "025IPG  ", "026IPG  ", "027IPG  ", "028IPG  ",
    "029IPG  ", "030IPG  ", "031IPG  ", "032IPG  ", "033IPG  ", "034IPG  ", "035IPG  ", "036IPG  ", "037IPG  ",
    "038IPG  ", "039IPG  ", "040IPG  ", "041IPG  ", "042IPG  ", "043IPG  ", "044IPG  ", "045IPG  ", "046IPG  ",
    "047IPG  ", "048IPG  ", "049IPG  ", "050IPG  ", "051IPG  ", "052IPG  ", "053IPG  ", "054IPG  ", "055IPG  ",
    "056IPG  ", "057IPG  ", "058IPG  ", "059IPG  ", "060IPG  ", "061IPG  ", "062IPG  ", "063IPG  ", "064IPG  ",
    "065IPG  ", "066IPG  ", "067IPG  ", "068IPG  ", "069IPG  ", "070IPG  ", "071IPG  ", "072IPG  ", "073IPG  ",
    "074IPG  ", "075IPG  ", "076IPG  ", "077IPG  ", "078IPG  ", "079IPG  ", "080IPG  ", "081IPG  ", "082IPG  ",
    "083IPG  ", "084IPG  ", "085IPG  ", "086IPG  ", "087IPG  ", "088IPG  ", "089IPG  ", "090IPG  ", "091IPG  ",
    "092IPG  ", "093IPG  ", "094IPG  ", "095IPG  ", "02AIPG  ", "02BIPG  ", "971IPG  ", "972IPG  ", "973IPG  ",
    "974IPG  ", "976IPG  ",
}, 1, &indexTDC};
static_assert(largeur(TDC) == 8);

inline constexpr liste versionVSE = {{"025"}};
static_assert(largeur(versionVSE) == 3);

inline constexpr liste BDN8 = {{"BDN     "}};
static_assert(largeur(BDN8) == 8);

inline constexpr liste BDN031 = {{"031BDN  "}};
static_assert(largeur(BDN031) == 8);

inline constexpr liste TOUQ = {{"3", "4"}};
static_assert(largeur(TOUQ) == 1);

inline constexpr liste NOUU = {{"N", "U"}};
static_assert(largeur(NOUU) == 1);

// Blank and starred fields.
inline constexpr liste ET1 = {{"*"}};
static_assert(largeur(ET1) == 1);

inline constexpr liste ET4 = {{"****"}};
static_assert(largeur(ET4) == 4);

inline constexpr liste ET12 = {{"************"}};
static_assert(largeur(ET12) == 12);

inline constexpr liste deuxBlancs = {{"  "}};
static_assert(largeur(deuxBlancs) == 2);

inline constexpr liste quatreBlancs = {{"    "}};
static_assert(largeur(quatreBlancs) == 4);

inline constexpr liste cinqBlancs = {{"     "}};
static_assert(largeur(cinqBlancs) == 5);

inline constexpr liste HuitBlancs = {{"        "}};
static_assert(largeur(HuitBlancs) == 8);

inline constexpr liste DouzeBlancs = {{"            "}};
static_assert(largeur(DouzeBlancs) == 12);

inline constexpr liste quatorzeBlancs = {{"              "}};
static_assert(largeur(quatorzeBlancs) == 14);

inline constexpr liste vingtBlancs = {{"                    "}};
static_assert(largeur(vingtBlancs) == 20);

inline constexpr liste trenteBlancs = {{"                              "}};
static_assert(largeur(trenteBlancs) == 30);

inline constexpr liste soixanteBlancs = {{
    "                                                            ",
}};
static_assert(largeur(soixanteBlancs) == 60);

inline constexpr liste HuitBlancsFal = {{"        ", "********"}};
static_assert(largeur(HuitBlancsFal) == 8);

// Short codes.
inline constexpr liste FR = {{"FR"}};
static_assert(largeur(FR) == 2);

inline constexpr liste UN = {{"1"}};
static_assert(largeur(UN) == 1);

inline constexpr liste SEX = {{"1", "2"}};
static_assert(largeur(SEX) == 1);

inline constexpr liste BOOL = {{"0", "1"}};
static_assert(largeur(BOOL) == 1);

inline constexpr liste BOOLFal = {{" ", "*", "0", "1"}};
static_assert(largeur(BOOLFal) == 1);

inline constexpr liste ZERO = {{"0"}};
static_assert(largeur(ZERO) == 1);

inline constexpr liste Z = {{"Z"}};
static_assert(largeur(Z) == 1);

inline constexpr liste NB = {{"NB                            "}};
static_assert(largeur(NB) == 30);

inline constexpr liste NUM = {{"NUM", "              ", "**************"}, 3};
static_assert(largeur(NUM, 0) == 3 && largeur(NUM, 1) == 14 && largeur(NUM, 2) == 14);

// Reference dates, DDMMYYYY.
inline constexpr liste P5 = {{"01071999"}};
static_assert(largeur(P5) == 8);

inline constexpr liste P6 = {{"01071999"}};
static_assert(largeur(P6) == 8);

inline constexpr liste P7 = {{"01071999"}};
static_assert(largeur(P7) == 8);

inline constexpr liste P8 = {{"01011999"}};
static_assert(largeur(P8) == 8);

inline constexpr liste P17 = {{"01012011"}};
static_assert(largeur(P17) == 8);

inline constexpr liste P18 = {{"01052007"}};
static_assert(largeur(P18) == 8);

// Productions, tags, identifiers and orders.
inline constexpr liste PROD = {{"B", "C", "N", "O", "P", "V"}};
static_assert(largeur(PROD) == 1);

inline constexpr liste PROD_E = {{"P", "V"}};
static_assert(largeur(PROD_E) == 1);

inline constexpr liste PROD_EV = {{"D", "E", "F", "G", "H", "J", "K", "L", "M"}};
static_assert(largeur(PROD_EV) == 1);

inline constexpr liste FIL_V = {{"OEUF"}};
static_assert(largeur(FIL_V) == 4);

inline constexpr liste ELV_V = {{"0   ", "1   ", "2   ", "3   "}};
static_assert(largeur(ELV_V) == 4);

inline constexpr liste TEMOIN = {{"D", "E"}};
static_assert(largeur(TEMOIN) == 1);

inline constexpr liste TYP_IDENT = {{"D", "E"}};
static_assert(largeur(TYP_IDENT) == 1);

inline constexpr liste DEROUL_MARC = {{"A", "D", "E", "S"}};
static_assert(largeur(DEROUL_MARC) == 1);

inline constexpr liste UTIL_BOUC = {{"0", "1", "2", "3", "4", "5"}};
static_assert(largeur(UTIL_BOUC) == 1);

inline constexpr liste TYP_NUMERO = {{"SIREN", "SIRET", "AGRIN", "AGRIT", "AGRSA", "CEM  "}};
static_assert(largeur(TYP_NUMERO) == 5);

inline constexpr liste C2_MODEL = {{"Z", "C", "O"}};
static_assert(largeur(C2_MODEL) == 1);

inline constexpr liste C3_MODEL = {{"E", "C"}};
static_assert(largeur(C3_MODEL) == 1);

inline constexpr liste C3_MODEL_BV = {{"E", "C"}};
static_assert(largeur(C3_MODEL_BV) == 1);

inline constexpr liste C2_MODEL_BV = {{"B"}};
static_assert(largeur(C2_MODEL_BV) == 1);

inline constexpr liste FAB_REP = {{
    "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N",
}};
static_assert(largeur(FAB_REP) == 1);

inline constexpr liste TYP_COM = {{"I0", "I1", "I2", "I3", "I4", "I5", "PR", "PC"}};
static_assert(largeur(TYP_COM) == 2);

inline constexpr liste CAT_RECEN = {{
    "EFOLAN", "EFOVAN", "REOLAN", "REOVAN", "EFOEAP", "EFCAAN", "RECAAN", "EFCVAN", "RECVAN", "EFCEAP",
}};
static_assert(largeur(CAT_RECEN) == 6);

inline constexpr liste TTE = {{"10", "20", "31", "32", "33", "34", "40", "50", "90"}};
static_assert(largeur(TTE) == 2);

inline constexpr liste TCEP = {{"00", "01", "02", "03", "04", "05", "06", "07", "08", "09"}};
static_assert(largeur(TCEP) == 2);

// Movement causes: cause, last day on which it is valid ("TOUJOURS": always).
inline constexpr liste TCME = {{
    "A", "TOUJOURS",  "J", "TOUJOURS",  "L", "01011999",  "N", "TOUJOURS",
    "P", "TOUJOURS",  "F", "TOUJOURS",  "G", "31122004",
}, 2};
static_assert(largeur(TCME, 0) == 1 && largeur(TCME, 1) == 8);

inline constexpr liste TCMS = {{
    "B", "TOUJOURS",  "C", "TOUJOURS",  "D", "01011999",  "E", "TOUJOURS",
    "H", "TOUJOURS",  "J", "TOUJOURS",  "L", "01011999",  "M", "TOUJOURS",
    "P", "01011999",  "U", "01011999",  "S", "TOUJOURS",  "T", "31122004",
}, 2};
static_assert(largeur(TCMS, 0) == 1 && largeur(TCMS, 1) == 8);

// Department groups that count as one: a group is a row.
inline constexpr liste DPT2 = {{
    "004", "083",
    "013", "084",
}, 2};
static_assert(largeur(DPT2) == 3);

inline constexpr liste DPT3 = {{"010", "045", "089"}, 3};
static_assert(largeur(DPT3) == 3);

inline constexpr liste DPT4 = {{
    "022", "029", "035", "056",
    "002", "060", "062", "080",
}, 4};
static_assert(largeur(DPT4) == 3);

inline constexpr liste DPT5 = {{
    "025", "039", "052", "070", "090",
    "054", "055", "057", "068", "088",
}, 5};
static_assert(largeur(DPT5) == 3);

inline constexpr liste DPT6 = {{"014", "027", "050", "053", "061", "076"}, 6};
static_assert(largeur(DPT6) == 3);

inline constexpr liste DPT7 = {{"016", "017", "037", "044", "049", "079", "086"}, 7};
static_assert(largeur(DPT7) == 3);

inline constexpr liste DPT8 = {{"075", "077", "078", "091", "092", "093", "094", "095"}, 8};
static_assert(largeur(DPT8) == 3);

inline constexpr liste DPT17 = {{
    "009", "011", "012", "015", "02A", "020", "030", "031", "032", "033", "034", "047", "048", "065", "066",
    "081", "082",
}, 17};
static_assert(largeur(DPT17) == 3);

// Departments: two digits, three characters.
inline constexpr liste TD = {{
    "01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12", "13", "14", "15",
    "16", "17", "18", "19", "21", "22", "23", "24", "25", "26", "27", "28", "29", "30", "31",
    "32", "33", "34", "35", "36", "37", "38", "39", "40", "41", "42", "43", "44", "45", "46",
    "47", "48", "49", "50", "51", "52", "53", "54", "55", "56", "57", "58", "59", "60", "61",
    "62", "63", "64", "65", "66", "67", "68", "69", "70", "71", "72", "73", "74", "75", "76",
    "77", "78", "79", "80", "81", "82", "83", "84", "85", "86", "87", "88", "89", "90", "91",
    "92", "93", "94", "95", "20", "97", "98",
}, 1, &indexTD};
static_assert(largeur(TD) == 2);

inline constexpr liste TDD = {{
    "001", "002", "003", "004", "005", "006", "007", "008", "009", "010", "011", "012", "013", "014", "015",
    "016", "017", "018", "019", "021", "022", "023", "024", "025", "026", "027", "028", "029", "030", "031",
    "032", "033", "034", "035", "036", "037", "038", "039", "040", "041", "042", "043", "044", "045", "046",
    "047", "048", "049", "050", "051", "052", "053", "054", "055", "056", "057", "058", "059", "060", "061",
    "062", "063", "064", "065", "066", "067", "068", "069", "070", "071", "072", "073", "074", "075", "076",
    "077", "078", "079", "080", "081", "082", "083", "084", "085", "086", "087", "088", "089", "090", "091",
    "092", "093", "094", "095", "02A", "02B", "971", "972", "973", "976", "974", "098",
}, 1, &indexTDD};
static_assert(largeur(TDD) == 3);

// Countries: European Union, exchange partners, all, outside each of the first two.
inline constexpr liste TCEE = {{
    "AT", "BE", "BG", "CY", "CZ", "DE", "DK", "EE", "EL", "ES", "FI", "FR", "HR", "HU", "IE", "IT", "LU", "LV",
    "LT", "MT", "NL", "PL", "PT", "RO", "SE", "SI", "UK", "SK", "XI",
}, 1, &indexTCEE};
static_assert(largeur(TCEE) == 2);

inline constexpr liste TECH = {{
    "AT", "BE", "BG", "CH", "CY", "CZ", "DE", "DK", "EE", "EL", "ES", "FI", "FR", "HR", "HU", "IE", "IT", "LU",
    "LV", "LT", "MT", "NL", "PL", "PT", "RO", "SE", "SI", "UK", "SK", "XI",
}, 1, &indexTECH};
static_assert(largeur(TECH) == 2);

inline constexpr liste TP = {{
    "AF", "ZA", "AL", "DZ", "DE", "AD", "AO", "AI", "AQ", "AG", "AN", "SA", "AR", "AM", "AW", "AU", "AT", "AZ",
    "BS", "BH", "BD", "BB", "BY", "BE", "BZ", "BJ", "BM", "BT", "BO", "BA", "BW", "BV", "BR", "BN", "BG", "BF",
    "BI", "KY", "KH", "CM", "CA", "CV", "CF", "CL", "CN", "CX", "CY", "CC", "CO", "KM", "CG", "CK", "KR", "KP",
    "CR", "CI", "HR", "CU", "DK", "DJ", "DO", "DM", "EG", "SV", "AE", "EC", "ER", "ES", "EE", "US", "ET", "FK",
    "FO", "FJ", "FI", "FR", "FX", "GA", "GM", "GE", "GS", "GH", "GI", "EL", "GD", "GL", "GP", "GU", "GT", "GN",
    "GW", "GQ", "GY", "GF", "HT", "HM", "HN", "HK", "HU", "UM", "VG", "VI", "IN", "ID", "IR", "IQ", "IE", "IS",
    "IL", "IT", "JM", "JP", "JO", "KZ", "KE", "KG", "KI", "KW", "LA", "LS", "LV", "LB", "LR", "LY", "LI", "LT",
    "LU", "MO", "MG", "MY", "MW", "MV", "ML", "MT", "MP", "MA", "MH", "MQ", "MU", "MR", "YT", "MX", "FM", "MC",
    "MD", "MN", "MS", "MZ", "MM", "NA", "NR", "NP", "NI", "NE", "NG", "NU", "NF", "NO", "NC", "NZ", "IO", "OM",
    "UG", "UZ", "PK", "PW", "PA", "PG", "PY", "NL", "PE", "PH", "PN", "PL", "PF", "PR", "PT", "QA", "RE", "RO",
    "UK", "RU", "RW", "EH", "SH", "KN", "LC", "SM", "PM", "VC", "SB", "WS", "AS", "ST", "SN", "SC", "SL", "SG",
    "SK", "SI", "SO", "SD", "LK", "SE", "CH", "SR", "SJ", "SZ", "SY", "TJ", "TW", "TZ", "TD", "CZ", "TF", "TH",
    "TG", "TK", "TO", "TT", "TN", "TM", "TC", "TR", "TV", "UA", "UY", "VU", "VA", "VE", "VN", "WF", "YE", "ZM",
    "ZW", "CD", "MK", "ME", "RS", "PS", "TL", "BL", "MF", "GB", "XI",
}, 1, &indexTP};
static_assert(largeur(TP) == 2);

inline constexpr liste TCPNOCEE = {{
    "AF", "ZA", "AL", "DZ", "AD", "AO", "AI", "AQ", "AG", "AN", "SA", "AR", "AM", "AW", "AU", "AZ", "BS", "BH",
    "BD", "BB", "BY", "BZ", "BJ", "BM", "BT", "BO", "BA", "BW", "BV", "BR", "BN", "BF", "BI", "KY", "KH", "CM",
    "CA", "CV", "CF", "CL", "CN", "CX", "CC", "CO", "KM", "CG", "CK", "KR", "KP", "CR", "CI", "CU", "DJ", "DO",
    "DM", "EG", "SV", "AE", "EC", "ER", "US", "ET", "FK", "FO", "FJ", "FX", "GA", "GM", "GE", "GS", "GH", "GI",
    "GD", "GL", "GP", "GU", "GT", "GN", "GW", "GQ", "GY", "GF", "HT", "HM", "HN", "HK", "UM", "VG", "VI", "IN",
    "ID", "IR", "IQ", "IS", "IL", "JM", "JP", "JO", "KZ", "KE", "KG", "KI", "KW", "LA", "LS", "LB", "LR", "LY",
    "LI", "MO", "MG", "MY", "MW", "MV", "ML", "MP", "MA", "MH", "MQ", "MU", "MR", "YT", "MX", "FM", "MC", "MD",
    "MN", "MS", "MZ", "MM", "NA", "NR", "NP", "NI", "NE", "NG", "NU", "NF", "NO", "NC", "NZ", "IO", "OM", "UG",
    "UZ", "PK", "PW", "PA", "PG", "PY", "PE", "PH", "PN", "PF", "PR", "QA", "RE", "RU", "RW", "EH", "SH", "KN",
    "LC", "SM", "PM", "VC", "SB", "WS", "AS", "ST", "SN", "SC", "SL", "SG", "SO", "SD", "LK", "CH", "SR", "SJ",
    "SZ", "SY", "TJ", "TW", "TZ", "TD", "TF", "TH", "TG", "TK", "TO", "TT", "TN", "TM", "TC", "TR", "TV", "UA",
    "UY", "VU", "VA", "VE", "VN", "WF", "YE", "ZM", "ZW", "CD", "MK", "ME", "XS", "PS", "TL", "BL", "MF", "GB",
}, 1, &indexTCPNOCEE};
static_assert(largeur(TCPNOCEE) == 2);

inline constexpr liste TCPNOECH = {{
    "AF", "ZA", "AL", "DZ", "AD", "AO", "AI", "AQ", "AG", "AN", "SA", "AR", "AM", "AW", "AU", "AZ", "BS", "BH",
    "BD", "BB", "BY", "BZ", "BJ", "BM", "BT", "BO", "BA", "BW", "BV", "BR", "BN", "BF", "BI", "KY", "KH", "CM",
    "CA", "CV", "CF", "CL", "CN", "CX", "CC", "CO", "KM", "CG", "CK", "KR", "KP", "CR", "CI", "CU", "DJ", "DO",
    "DM", "EG", "SV", "AE", "EC", "ER", "US", "ET", "FK", "FO", "FJ", "FX", "GA", "GM", "GE", "GS", "GH", "GI",
    "GD", "GL", "GP", "GU", "GT", "GN", "GW", "GQ", "GY", "GF", "HT", "HM", "HN", "HK", "UM", "VG", "VI", "IN",
    "ID", "IR", "IQ", "IS", "IL", "JM", "JP", "JO", "KZ", "KE", "KG", "KI", "KW", "LA", "LS", "LB", "LR", "LY",
    "LI", "MO", "MG", "MY", "MW", "MV", "ML", "MP", "MA", "MH", "MQ", "MU", "MR", "YT", "MX", "FM", "MC", "MD",
    "MN", "MS", "MZ", "MM", "NA", "NR", "NP", "NI", "NE", "NG", "NU", "NF", "NO", "NC", "NZ", "IO", "OM", "UG",
    "UZ", "PK", "PW", "PA", "PG", "PY", "PE", "PH", "PN", "PF", "PR", "QA", "RE", "RU", "RW", "EH", "SH", "KN",
    "LC", "SM", "PM", "VC", "SB", "WS", "AS", "ST", "SN", "SC", "SL", "SG", "SO", "SD", "LK", "SR", "SJ", "SZ",
    "SY", "TJ", "TW", "TZ", "TD", "TF", "TH", "TG", "TK", "TO", "TT", "TN", "TM", "TC", "TR", "TV", "UA", "UY",
    "VU", "VA", "VE", "VN", "WF", "YE", "ZM", "ZW", "CD", "MK", "ME", "XS", "PS", "TL", "BL", "MF", "GB",
}, 1, &indexTCPNOECH};
static_assert(largeur(TCPNOECH) == 2);

// Cattle breeds.
inline constexpr liste TR = {{
    "00", "10", "11", "12", "13", "14", "15", "17", "18", "19", "20", "21", "22", "23", "24",
    "25", "26", "28", "29", "30", "31", "32", "33", "34", "35", "36", "37", "38", "39", "41",
    "42", "43", "44", "45", "46", "48", "49", "51", "52", "53", "54", "55", "56", "57", "58",
    "61", "63", "64", "65", "66", "69", "71", "72", "73", "74", "75", "76", "77", "78", "79",
    "80", "81", "82", "85", "86", "88", "90", "92", "95", "97",
}, 1, &indexTR};
static_assert(largeur(TR) == 2);

inline constexpr liste TRFNV = {{
    "00", "10", "12", "14", "15", "17", "18", "19", "20", "21", "23", "24", "25", "26", "29",
    "30", "31", "32", "33", "34", "35", "36", "37", "38", "39", "41", "42", "43", "44", "45",
    "46", "48", "49", "51", "52", "53", "54", "55", "56", "57", "58", "61", "63", "65", "66",
    "69", "71", "72", "73", "74", "75", "76", "77", "78", "79", "81", "82", "85", "86", "88",
    "92", "95", "97",
}, 1, &indexTRFNV};
static_assert(largeur(TRFNV) == 2);

inline constexpr liste TRG = {{
    "10", "12", "14", "15", "16", "17", "18", "19", "20", "21", "22", "23", "24", "25", "26",
    "27", "28", "29", "30", "31", "32", "33", "34", "35", "36", "37", "38", "39", "40", "41",
    "42", "43", "44", "45", "46", "47", "48", "49", "50", "51", "52", "53", "54", "55", "56",
    "57", "58", "59", "60", "61", "62", "63", "65", "66", "67", "68", "69", "70", "71", "72",
    "73", "74", "75", "76", "77", "78", "79", "81", "82", "83", "84", "85", "86", "87", "88",
    "89", "91", "92", "94", "95", "96", "97", "98", "99",
}, 1, &indexTRG};
static_assert(largeur(TRG) == 2);

// Legal forms accepted on creation and on modification.
inline constexpr liste TRSCRE = {{
    "ASS.", "CAT ", "CUMA", "EARL", "GAEC", "GIE ", "M   ", "M.ME", "MM  ", "MME ", "SA  ", "SARL", "SCA ",
    "SCEA", "SCEL", "SCI ", "SEA ", "SEF ", "SICA", "EPL ", "GFA ", "STEF", "VVE ", "MMES", "GAPE", "INDI",
    "COEX", "EURL", "COOP", "CEQU", "MAIR", "CIA ", "SNC ", "LEPA", "AUTR", "SAS ", "AFP ", "GP  ", "SCL ",
    "SCP ", "ENTR", "MLLE", "SOC ", "EIRL", "SASU", "EI  ", "SCIC",
}, 1, &indexTRSCRE};
static_assert(largeur(TRSCRE) == 4);

inline constexpr liste TRSMOD = {{
    "ASS.", "CAT ", "CUMA", "EARL", "ETS ", "GAEC", "GIE ", "M   ", "MR  ", "M.ME", "MLE ", "MM  ", "MME ",
    "SA  ", "SARL", "SCA ", "SCEA", "SCEL", "SCI ", "SEA ", "SEF ", "SICA", "STE ", "EPL ", "GFA ", "STEF",
    "VVE ", "MMES", "GAPE", "MRS ", "INDI", "COEX", "EURL", "COOP", "CEQU", "MAIR", "CIA ", "SNC ", "LEPA",
    "AUTR", "SAS ", "AFP ", "GP  ", "SCL ", "SCP ", "ENTR", "MLLE", "SOC ", "EIRL", "SASU", "EI  ", "SCIC",
}, 1, &indexTRSMOD};
static_assert(largeur(TRSMOD) == 4);

// Series letters that each departmental body may issue: body, letters.
inline constexpr liste NEV = {{
    "001IPG", "AA,BA,,HL",
    "002IPG", "CA,DA,,IL",
    "003IPG", "EA,FA,OH,JL,JQ,KQ",
    "004IPG", "GA,PH,KL",
    "005IPG", "HA,QH,LL",
    "006IPG", "IA,RH,ML",
    "007IPG", "JA,KA,LA,SH,NL",
    "008IPG", "MA,TH,OL",
    "009IPG", "NA,UH,PL",
    "010IPG", "OA,VH,QL",
    "011IPG", "PA,WH,RL",
    "012IPG", "QA,XH,SL",
    "013IPG", "RA,YH,TL",
    "014IPG", "SA,TA,ZH,UL",
    "015IPG", "UA,AI,VL",
    "016IPG", "VA,BI,WL",
    "017IPG", "WA,CI,XL",
    "018IPG", "XA,DI,YL",
    "019IPG", "YA,EI,ZL",
    "02AIPG", "ZA,FI,AM",
    "02BIPG", "AB,GI,BM",
    "021IPG", "BB,HI,CM",
    "022IPG", "CB,DB,EB,FB,GB,HB,IB,JB,KB,LB,MB,NB,OB,PB,QB,RB,SB,TB,UB,VB,WB,XB,YB,ZB,AC,BC,II,DM,CP,DP,EP",
    "023IPG", "CC,JI,EM",
    "024IPG", "DC,KI,FM,QZ",
    "025IPG", "EC,LI,GM",
    "026IPG", "FC,GC,HC,IC,JC,KC,LC,MC,MI,HM",
    "027IPG", "NC,OC,NI,IM",
    "028IPG", "PC,QC,RC,OI,JM",
    "029IPG", "SC,TC,UC,VC,WC,XC,PI,KM,FP",
    "030IPG", "YC,QI,LM",
    "031IPG", "ZC,RI,MM",
    "032IPG", "AD,SI,NM,GP",
    "033IPG", "BD,TI,OM",
    "034IPG", "CD,UI,PM",
    "035IPG", "DD,ED,FD,VI,QM",
    "036IPG", "GD,WI,RM",
    "037IPG", "HD,ID,XI,SM",
    "038IPG", "JD,KD,YI,TM,RQ,QQ",
    "039IPG", "LD,ZI,UM",
    "040IPG", "MD,AJ,VM",
    "041IPG", "ND,BJ,WM",
    "042IPG", "OD,CJ,XM",
    "043IPG", "PD,DJ,YM",
    "044IPG", "QD,RD,EJ,ZM,HP,LQ",
    "045IPG", "SD,TD,FJ,AN",
    "046IPG", "UD,GJ,BN,GQ",
    "047IPG", "VD,WD,HJ,CN,HQ,IQ",
    "048IPG", "XD,IJ,DN",
    "049IPG", "YD,ZD,AE,JJ,EN,YP",
    "050IPG", "BE,CE,KJ,FN,JP",
    "051IPG", "DE,LJ,GN",
    "052IPG", "EE,MJ,HN",
    "053IPG", "FE,GE,HE,NJ,IN,NQ,OQ,PQ",
    "054IPG", "IE,JE,OJ,JN",
    "055IPG", "KE,PJ,KN",
    "056IPG", "LE,ME,NE,OE,PE,QE,RE,SE,TE,UE,QJ,LN,KP",
    "057IPG", "VE,RJ,MN",
    "058IPG", "WE,SJ,NN",
    "059IPG", "XE,YE,ZE,AF,BF,CF,TJ,ON",
    "060IPG", "DF,EF,UJ,PN",
    "061IPG", "FF,VJ,QN",
    "062IPG", "GF,HF,IF,JF,KF,WJ,RN,LP",
    "063IPG", "LF,XJ,SN",
    "064IPG", "MF,YJ,TN,IP",
    "065IPG", "NF,ZJ,UN",
    "066IPG", "OF,PF,AK,VN",
    "067IPG", "QF,RF,BK,WN,MP",
    "068IPG", "SF,TF,CK,XN",
    "069IPG", "UF,DK,YN",
    "070IPG", "VF,EK,ZN",
    "071IPG", "WF,FK,AO",
    "072IPG", "XF,YF,ZF,AG,BG,GK,BO,NP,OP,PP,AQ,BQ,CQ,DQ,EQ,FQ",
    "073IPG", "CG,HK,CO",
    "074IPG", "DG,IK,DO",
    "075IPG", "EG",
    "076IPG", "FG,JK,EO,MQ",
    "077IPG", "GG,HG,KK,FO",
    "078IPG", "IG,LK,GO",
    "079IPG", "JG,KG,MK,HO,QP",
    "080IPG", "LG,MG,NG,NK,IO,RP",
    "081IPG", "OG,OK,JO",
    "082IPG", "PG,PK,KO,ZP",
    "083IPG", "QG,QK,LO",
    "084IPG", "RG,RK,MO",
    "085IPG", "SG,TG,UG,SK,NO,SP",
    "086IPG", "VG,TK,OO",
    "087IPG", "WG,UK,PO",
    "088IPG", "XG,YG,VK,QO",
    "089IPG", "ZG,WK,RO",
    "090IPG", "AH,XK,SO",
    "091IPG", "BH,YK,TO",
    "092IPG", "CH,ZK,UO",
    "093IPG", "DH,AL,VO",
    "094IPG", "EH,BL,WO",
    "095IPG", "FH,CL,XO",
    "971IPG", "GH,DL,YO,UP",
    "972IPG", "HH,EL,ZO",
    "973IPG", "IH,FL,AP,VP,WP",
    "974IPG", "JH,KH,LH,GL,BP",
    "976IPG", "XP",
}, 2};
static_assert(largeur(NEV, 0) == 6);  // the letters are as many as the body has series

// Ovine and caprine number ranges: body, lowest, highest.
inline constexpr liste IND_M = {{
    "001IPG", "100000", "104999",  "002IPG", "105000", "109999",  "003IPG", "110000", "119999",
    "004IPG", "120000", "124999",  "005IPG", "125000", "129999",  "006IPG", "130000", "134999",
    "007IPG", "135000", "139999",  "008IPG", "140000", "144999",  "009IPG", "145000", "149999",
    "010IPG", "150000", "154999",  "011IPG", "155000", "159999",  "012IPG", "160000", "169999",
    "013IPG", "170000", "174999",  "014IPG", "175000", "184999",  "015IPG", "185000", "189999",
    "016IPG", "190000", "194999",  "017IPG", "195000", "199999",  "018IPG", "200000", "204999",
    "019IPG", "205000", "209999",  "02AIPG", "210000", "211999",  "02BIPG", "212000", "214999",
    "021IPG", "215000", "219999",  "022IPG", "220000", "224999",  "023IPG", "225000", "229999",
    "024IPG", "230000", "234999",  "025IPG", "235000", "239999",  "026IPG", "240000", "244999",
    "027IPG", "245000", "249999",  "028IPG", "250000", "254999",  "029IPG", "255000", "259999",
    "030IPG", "260000", "264999",  "031IPG", "265000", "269999",  "032IPG", "270000", "274999",
    "033IPG", "275000", "279999",  "034IPG", "280000", "284999",  "035IPG", "285000", "289999",
    "036IPG", "290000", "294999",  "037IPG", "295000", "299999",  "038IPG", "300000", "304999",
    "039IPG", "305000", "309999",  "040IPG", "310000", "314999",  "041IPG", "315000", "319999",
    "042IPG", "320000", "324999",  "043IPG", "325000", "329999",  "044IPG", "330000", "339999",
    "045IPG", "340000", "344999",  "046IPG", "345000", "349999",  "047IPG", "350000", "354999",
    "048IPG", "355000", "359999",  "049IPG", "360000", "364999",  "050IPG", "365000", "379999",
    "051IPG", "380000", "384999",  "052IPG", "385000", "389999",  "053IPG", "390000", "394999",
    "054IPG", "395000", "399999",  "055IPG", "400000", "404999",  "056IPG", "405000", "409999",
    "057IPG", "410000", "414999",  "058IPG", "415000", "419999",  "059IPG", "420000", "424999",
    "060IPG", "425000", "429999",  "061IPG", "430000", "434999",  "062IPG", "435000", "439999",
    "063IPG", "440000", "449999",  "064IPG", "450000", "464999",  "065IPG", "465000", "469999",
    "066IPG", "470000", "474999",  "067IPG", "475000", "479999",  "068IPG", "480000", "484999",
    "069IPG", "485000", "489999",  "070IPG", "490000", "494999",  "071IPG", "495000", "504999",
    "072IPG", "505000", "509999",  "073IPG", "510000", "514999",  "074IPG", "515000", "519999",
    "075IPG", "614000", "614499",  "076IPG", "520000", "524999",  "077IPG", "525000", "529999",
    "078IPG", "530000", "534999",  "079IPG", "535000", "544999",  "080IPG", "545000", "549999",
    "081IPG", "550000", "554999",  "082IPG", "555000", "559999",  "083IPG", "560000", "564999",
    "084IPG", "565000", "569999",  "085IPG", "570000", "575009",  "086IPG", "575010", "584999",
    "087IPG", "585000", "594999",  "088IPG", "595000", "599999",  "089IPG", "600000", "604999",
    "090IPG", "605000", "609999",  "091IPG", "610000", "610999",  "092IPG", "614500", "614999",
    "093IPG", "611000", "611999",  "094IPG", "612000", "612999",  "095IPG", "613000", "613999",
    "971IPG", "615000", "624999",  "972IPG", "625000", "634999",  "973IPG", "635000", "639999",
    "974IPG", "640000", "649999",  "976IPG", "650000", "655000",
}, 3};
static_assert(largeur(IND_M) == 6);

// Emitter and departmental body that belong together. An empty row ends the
// table; the count of rows is larger than those stored, so that a search must
// stop at the empty row.
inline constexpr int LenTEDC = 92;
inline constexpr liste TEDC = {{
    "013ARS  ", "004IPG  ", "013ARS  ", "005IPG  ", "013ARS  ", "006IPG  ", "013ARS  ", "013IPG  ",
    "013ARS  ", "083IPG  ", "013ARS  ", "084IPG  ",
    "025ARS  ", "025IPG  ", "025ARS  ", "039IPG  ", "025ARS  ", "070IPG  ", "025ARS  ", "090IPG  ",
    "025ARS  ", "008IPG  ", "025ARS  ", "051IPG  ",
    "042ARS  ", "007IPG  ", "042ARS  ", "026IPG  ", "042ARS  ", "038IPG  ", "042ARS  ", "042IPG  ",
    "042ARS  ", "069IPG  ",
    "054ARS  ", "052IPG  ", "054ARS  ", "054IPG  ", "054ARS  ", "055IPG  ", "054ARS  ", "057IPG  ",
    "054ARS  ", "067IPG  ", "054ARS  ", "068IPG  ", "054ARS  ", "088IPG  ",
    "059ARS  ", "002IPG  ", "059ARS  ", "059IPG  ", "059ARS  ", "060IPG  ", "059ARS  ", "062IPG  ",
    "059ARS  ", "080IPG  ",
    "074ARS  ", "073IPG  ", "074ARS  ", "074IPG  ",
    "081ARS  ", "009IPG  ", "081ARS  ", "011IPG  ", "081ARS  ", "012IPG  ", "081ARS  ", "015IPG  ",
    "081ARS  ", "019IPG  ", "081ARS  ", "02AIPG  ", "081ARS  ", "024IPG  ", "081ARS  ", "030IPG  ",
    "081ARS  ", "031IPG  ", "081ARS  ", "032IPG  ", "081ARS  ", "033IPG  ", "081ARS  ", "034IPG  ",
    "081ARS  ", "040IPG  ", "081ARS  ", "046IPG  ", "081ARS  ", "047IPG  ", "081ARS  ", "048IPG  ",
    "081ARS  ", "064IPG  ", "081ARS  ", "065IPG  ", "081ARS  ", "066IPG  ", "081ARS  ", "081IPG  ",
    "081ARS  ", "082IPG  ", "081ARS  ", "087IPG  ",
    "089ARS  ", "010IPG  ", "089ARS  ", "045IPG  ", "089ARS  ", "075IPG  ", "089ARS  ", "077IPG  ",
    "089ARS  ", "078IPG  ", "089ARS  ", "089IPG  ", "089ARS  ", "091IPG  ", "089ARS  ", "092IPG  ",
    "089ARS  ", "093IPG  ", "089ARS  ", "094IPG  ", "089ARS  ", "095IPG  ",
    "350ARS  ", "014IPG  ", "350ARS  ", "016IPG  ", "350ARS  ", "017IPG  ", "350ARS  ", "022IPG  ",
    "350ARS  ", "027IPG  ", "350ARS  ", "028IPG  ", "350ARS  ", "029IPG  ", "350ARS  ", "035IPG  ",
    "350ARS  ", "037IPG  ", "350ARS  ", "041IPG  ", "350ARS  ", "044IPG  ", "350ARS  ", "049IPG  ",
    "350ARS  ", "050IPG  ", "350ARS  ", "053IPG  ", "350ARS  ", "056IPG  ", "350ARS  ", "061IPG  ",
    "350ARS  ", "072IPG  ", "350ARS  ", "076IPG  ", "350ARS  ", "079IPG  ", "350ARS  ", "085IPG  ",
    "350ARS  ", "086IPG  ",
    "NORM01  ", "NORMABEV",
    "NORM02  ", "NORMABEV",
    "PFOC01  ", "POINTFOC",
    "OVINFOS ", "OVINFOS ",
    nullptr, nullptr,
}, 2};
static_assert(largeur(TEDC) == 8);

// Read by no rule row and no check; kept for rows to come.
inline constexpr liste tE6ECQ = {{"ERRE"}};
static_assert(largeur(tE6ECQ) == 4);

inline constexpr liste ET2 = {{"**"}};
static_assert(largeur(ET2) == 2);

inline constexpr liste dixBlancs = {{"          "}};
static_assert(largeur(dixBlancs) == 10);

inline constexpr liste UNETCINQ = {{"1", "2", "3", "4", "5"}};
static_assert(largeur(UNETCINQ) == 1);

inline constexpr liste SEXFNV = {{"0", "1", "2"}};
static_assert(largeur(SEXFNV) == 1);

inline constexpr liste TOUN = {{"T", "N"}};
static_assert(largeur(TOUN) == 1);

inline constexpr liste COUE = {{"C", "E"}};
static_assert(largeur(COUE) == 1);

inline constexpr liste RES = {{"20", "30", "40"}};
static_assert(largeur(RES) == 2);

inline constexpr liste MORTNE = {{"MORTNE      "}};
static_assert(largeur(MORTNE) == 12);

inline constexpr liste P16 = {{"01012007"}};
static_assert(largeur(P16) == 8);

inline constexpr liste FIL = {{"VIAN", "GIBI", "LAIT", "OEUF", "REPR"}};
static_assert(largeur(FIL) == 4);

inline constexpr liste ELV = {{"0   ", "1   ", "2   ", "3   "}};
static_assert(largeur(ELV) == 4);

inline constexpr liste TCE = {{"1", "2", "3", "4"}};
static_assert(largeur(TCE) == 1);

inline constexpr liste D7F10 = {{"7", "10"}, 2};
static_assert(largeur(D7F10, 0) == 1 && largeur(D7F10, 1) == 2);  // column numbers

// clang-format on

}  // namespace quilvane

#endif
