/**
 * erreurs - the texts of the error numbers and of the fatal codes. A number
 * that several message types share has one text, which holds for all of them
 * and says where they differ.
 */
#include "catalogue/erreurs.h"

#include <algorithm>

namespace quilvane {

namespace {

// clang-format off
// number, {title}, {what it means}, {how to mend it}, each in French and in English
constexpr sErreur tErreurs[] = {
    {1,
     {"Pays ou numéro d'identification incorrect", "Country or identification number not valid"},
     {"Le code pays n'est pas admis dans ce type de message, le numéro de l'animal est vide, ou un numéro "
      "étranger n'a pas la forme attendue. Dans ERRE, les codes pays C3, C5 et C31 sont aussi contrôlés. "
      "NVMN, IMPO et NAIS (sauf genre DEM) n'admettent que FR ; GROC admet les pays d'échange, ECHA les "
      "mêmes sans FR.",
      "The country code is not accepted in this message type, the animal number is blank, or a foreign "
      "number does not have the expected form. In ERRE the country codes C3, C5 and C31 are checked too. "
      "NVMN, IMPO and NAIS (except kind DEM) accept FR only; GROC accepts the exchange countries, ECHA "
      "the same without FR."},
     {"Contrôlez le code pays, puis le numéro. Un numéro étranger s'écrit à gauche, en majuscules et "
      "chiffres, sans blanc à l'intérieur, et ne commence pas par son code pays.",
      "Check the country code, then the number. A foreign number is written from the left in capitals "
      "and digits, without a blank inside, and does not begin with its country code."}},
    {2,
     {"Pays ou numéro d'exploitation C16-C17 incorrect", "Holding country or number C16-C17 not valid"},
     {"L'exploitation des champs C16 (pays) et C17 (numéro) est incomplète ou mal écrite. NAIS et NVMN "
      "demandent le pays FR et un numéro ; dans NAIS MOD, tous deux peuvent rester en blanc pour une "
      "naissance avant le 01/07/1999. ECHA et IMPO admettent tout pays connu et refusent un numéro "
      "étranger vide ou coupé par un blanc.",
      "The holding in the fields C16 (country) and C17 (number) is incomplete or not well written. NAIS "
      "and NVMN ask for the country FR and a number; in NAIS MOD both may stay blank for a birth before "
      "01/07/1999. ECHA and IMPO accept every known country and refuse a foreign number that is blank or "
      "has a blank inside."},
     {"Donnez un code pays admis dans C16 et, dans C17, le numéro cadré à gauche, sans blanc à l'intérieur.",
      "Give an accepted country code in C16 and the number in C17, from the left and without a blank "
      "inside."}},
    {3,
     {"Sexe autre que 1 ou 2", "Sex other than 1 or 2"},
     {"Le sexe de l'animal (champ C4, colonne 79) vaut autre chose que 1 ou 2 dans un ECHA, un IMPO, un "
      "NAIS ou un NVMN.",
      "The sex of the animal (field C4, column 79) is something other than 1 or 2 in an ECHA, IMPO, NAIS "
      "or NVMN record."},
     {"Inscrivez 1 ou 2 dans la colonne 79.", "Write 1 or 2 in column 79."}},
    {4,
     {"Code race C5 inconnu", "Breed code C5 unknown"},
     {"Le code race de l'animal (champ C5, colonnes 80 et 81) n'est pas dans la liste, dans un ECHA, un "
      "IMPO, un NAIS ou un NVMN.",
      "The breed code of the animal (field C5, columns 80 and 81) is not in the list, in an ECHA, IMPO, "
      "NAIS or NVMN record."},
     {"Inscrivez un code race de la liste, sur deux chiffres.",
      "Write a breed code of the list, in two digits."}},
    {5,
     {"Date de naissance, ou date C33 d'ERRE, incorrecte", "Date of birth, or date C33 of ERRE, not valid"},
     {"La date n'existe pas ou n'est pas complète alors qu'elle doit l'être. NAIS CRE et NVMN veulent une "
      "date complète ; NAIS MOD et ECHA admettent un jour, ou un jour et un mois, en blanc avant le "
      "01/07/1999. IMPO admet aussi une date incomplète, huit blancs ou huit astérisques ; le champ C33 "
      "d'ERRE peut rester en blanc.",
      "The date does not exist, or is not complete where it must be. NAIS CRE and NVMN want a complete "
      "date; NAIS MOD and ECHA accept a blank day, or a blank day and month, before 01/07/1999. IMPO also "
      "accepts an incomplete date, eight blanks or eight asterisks; field C33 of ERRE may stay blank."},
     {"Écrivez une date qui existe, sous la forme JJMMAAAA. Là où une partie inconnue est admise, "
      "laissez-la en blanc et n'écrivez pas de zéros.",
      "Write a date that exists, as DDMMYYYY. Where an unknown part is accepted, leave it blank and do "
      "not write zeros."}},
    {6,
     {"Pays ou numéro du deuxième animal incorrect", "Country or number of the second animal not valid"},
     {"Le pays (C10) du deuxième animal n'est pas connu, ou son numéro (C11) n'a pas la forme d'un numéro "
      "étranger. ECHA et IMPO acceptent que les deux champs soient laissés en blanc ou remplis "
      "d'astérisques ; NAIS CRE et NVMN les veulent renseignés.",
      "The country (C10) of the second animal is not known, or its number (C11) does not have the form of "
      "a foreign number. ECHA and IMPO accept both fields blank or filled with asterisks; NAIS CRE and "
      "NVMN want both given."},
     {"Contrôlez le pays, puis le numéro. Un numéro étranger s'écrit à gauche, en majuscules et chiffres, "
      "sans blanc à l'intérieur, et ne commence pas par son code pays.",
      "Check the country, then the number. A foreign number is written from the left in capitals and "
      "digits, without a blank inside, and does not begin with its country code."}},
    {7,
     {"Pays ou numéro du deuxième animal absent ou inconnu",
      "Country or number of the second animal missing or unknown"},
     {"Dans NVMN et NAIS MOD, le pays du deuxième animal (C10) n'est pas dans la liste, ou son numéro "
      "(C11) est vide. NAIS MOD accepte que ces champs soient en blanc pour une naissance avant le "
      "01/07/1999.",
      "In NVMN and NAIS MOD, the country of the second animal (C10) is not in the list, or its number "
      "(C11) is blank. NAIS MOD accepts these fields blank for a birth before 01/07/1999."},
     {"Inscrivez un code pays connu dans C10 et le numéro de l'animal dans C11.",
      "Write a known country code in C10 and the number of the animal in C11."}},
    {8,
     {"Code race C12 absent ou inconnu", "Breed code C12 missing or unknown"},
     {"Le code race du champ C12 (colonnes 119 et 120) n'est pas dans la liste. NAIS CRE et NVMN le "
      "veulent rempli ; NAIS MOD l'accepte en blanc pour une naissance avant le 01/01/1999, ECHA et IMPO "
      "en blanc ou rempli d'astérisques.",
      "The breed code in field C12 (columns 119 and 120) is not in the list. NAIS CRE and NVMN want it "
      "filled; NAIS MOD accepts it blank for a birth before 01/01/1999, ECHA and IMPO blank or filled "
      "with asterisks."},
     {"Inscrivez un code race de la liste, sur deux chiffres.",
      "Write a breed code of the list, in two digits."}},
    {9,
     {"Code race C15 absent ou inconnu", "Breed code C15 missing or unknown"},
     {"Le code race du champ C15 (colonnes 135 et 136) n'est pas dans la liste. NAIS CRE et NVMN le "
      "veulent rempli ; NAIS MOD l'accepte en blanc pour une naissance avant le 01/01/1999, ECHA et IMPO "
      "en blanc ou rempli d'astérisques.",
      "The breed code in field C15 (columns 135 and 136) is not in the list. NAIS CRE and NVMN want it "
      "filled; NAIS MOD accepts it blank for a birth before 01/01/1999, ECHA and IMPO blank or filled "
      "with asterisks."},
     {"Inscrivez un code race de la liste, sur deux chiffres.",
      "Write a breed code of the list, in two digits."}},
    {10,
     {"Champ C7 non renseigné", "Field C7 left blank"},
     {"Les quatre colonnes du champ C7 (90 à 93) sont en blanc dans un ECHA, un IMPO ou un NAIS.",
      "The four columns of field C7 (90 to 93) are blank in an ECHA, IMPO or NAIS record."},
     {"Remplissez le champ C7 ; aucune liste ne limite son contenu.",
      "Fill field C7; no list limits what it holds."}},
    {11,
     {"Code race C4 inconnu (ECBO)", "Breed code C4 unknown (ECBO)"},
     {"Le code race du champ C4 (colonnes 79 et 80) d'un ECBO n'est pas dans la liste.",
      "The breed code in field C4 (columns 79 and 80) of an ECBO record is not in the list."},
     {"Inscrivez un code race de la liste, sur deux chiffres.",
      "Write a breed code of the list, in two digits."}},
    {12,
     {"Indicateur C5 incorrect (ECBO)", "Flag C5 not valid (ECBO)"},
     {"L'indicateur du champ C5 (colonne 81) d'un ECBO n'est ni 0, ni 1, ni un astérisque, ni un blanc.",
      "The flag in field C5 (column 81) of an ECBO record is neither 0, nor 1, nor an asterisk, nor a "
      "blank."},
     {"Inscrivez 0 ou 1 dans la colonne 81 ; un astérisque ou un blanc y sont aussi admis.",
      "Write 0 or 1 in column 81; an asterisk or a blank is accepted there too."}},
    {13,
     {"Indicateur C6 incorrect (ECBO)", "Flag C6 not valid (ECBO)"},
     {"L'indicateur du champ C6 (colonne 82) d'un ECBO n'est ni 0, ni 1, ni un astérisque, ni un blanc.",
      "The flag in field C6 (column 82) of an ECBO record is neither 0, nor 1, nor an asterisk, nor a "
      "blank."},
     {"Inscrivez 0 ou 1 dans la colonne 82 ; un astérisque ou un blanc y sont aussi admis.",
      "Write 0 or 1 in column 82; an asterisk or a blank is accepted there too."}},
    {14,
     {"Autre animal : pays ou numéro incorrect", "Other animal: country or number not valid"},
     {"Le pays d'un autre animal n'est pas connu, ou son numéro n'est pas bien formé. Dans ECHA, IMPO, "
      "NAIS et NVMN, il s'agit de C13 et C14, qui peuvent rester en blanc ou porter des astérisques. Dans "
      "ECBO, il s'agit de C12 et C13, à remplir ensemble avec C15 ou à laisser tous trois en blanc.",
      "The country of another animal is not known, or its number is not well formed. In ECHA, IMPO, NAIS "
      "and NVMN this means C13 and C14, which may stay blank or hold asterisks. In ECBO it means C12 and "
      "C13, to be filled together with C15, or all three left blank."},
     {"Donnez le pays et le numéro ensemble, ou ni l'un ni l'autre. Un numéro étranger s'écrit à gauche, "
      "en majuscules et chiffres, sans blanc à l'intérieur, et ne commence pas par son code pays.",
      "Give the country and the number together, or neither. A foreign number is written from the left "
      "in capitals and digits, without a blank inside, and does not begin with its country code."}},
    {16,
     {"Code race C15 incorrect (ECBO)", "Breed code C15 not valid (ECBO)"},
     {"Le code race du champ C15 (colonnes 137 et 138) d'un ECBO n'est pas dans la liste. Il ne peut "
      "rester en blanc que si C12 et C13 le sont aussi.",
      "The breed code in field C15 (columns 137 and 138) of an ECBO record is not in the list. It may "
      "stay blank only when C12 and C13 are blank too."},
     {"Inscrivez un code race de la liste, ou laissez C12, C13 et C15 tous trois en blanc.",
      "Write a breed code of the list, or leave C12, C13 and C15 all blank."}},
    {17,
     {"Pays ou numéro C7-C8 incorrect (ECBO)", "Country or number C7-C8 not valid (ECBO)"},
     {"Dans un ECBO, le code pays C7 n'est pas connu, le numéro C8 est vide, ou ce numéro, pour un pays "
      "autre que FR, n'a pas la forme d'un numéro étranger.",
      "In an ECBO record the country code C7 is not known, the number C8 is blank, or that number, for a "
      "country other than FR, does not have the form of a foreign number."},
     {"Remplissez les deux champs. Un numéro étranger s'écrit à gauche, en majuscules et chiffres, sans "
      "blanc à l'intérieur, et ne commence pas par son code pays.",
      "Fill both fields. A foreign number is written from the left in capitals and digits, without a "
      "blank inside, and does not begin with its country code."}},
    {20,
     {"Code race C11 inconnu (ECBO)", "Breed code C11 unknown (ECBO)"},
     {"Le code race du champ C11 (colonnes 111 et 112) d'un ECBO n'est pas dans la liste.",
      "The breed code in field C11 (columns 111 and 112) of an ECBO record is not in the list."},
     {"Inscrivez un code race de la liste, sur deux chiffres.",
      "Write a breed code of the list, in two digits."}},
    {21,
     {"Exploitation : pays ou numéro refusé (ENTR, SORT...)",
      "Holding: country or number refused (ENTR, SORT...)"},
     {"Le code pays de l'exploitation n'est pas FR, ou son numéro est vide. Sont concernés C6 et C7 d'ENTR "
      "et de SORT, C18 et C19 d'IMPO, C4 et C5 de JALO, C7 et C8 d'ERRE (où C8 est un numéro d'agrément), "
      "et le seul pays C18 d'ECHA.",
      "The country code of the holding is not FR, or its number is blank. This concerns C6 and C7 of ENTR "
      "and SORT, C18 and C19 of IMPO, C4 and C5 of JALO, C7 and C8 of ERRE (where C8 is an approval "
      "number), and of ECHA the country C18 only."},
     {"Inscrivez FR comme code pays et remplissez le numéro.",
      "Write FR as the country code and fill the number."}},
    {22,
     {"Date incorrecte (mouvement, EXP2, JALO ou ERRE)", "Date not valid (movement, EXP2, JALO or ERRE)"},
     {"Une date n'existe pas ou n'est pas complète : C4 d'ENTR et de SORT, C15 ou C16 d'EXP2, C6 de JALO, "
      "C34 ou C35 d'ERRE. Celles d'ERRE peuvent rester en blanc. ENTR MOD et SORT MOD admettent un jour, "
      "ou un jour et un mois, en blanc avant le 01/07/1999.",
      "A date does not exist or is not complete: C4 of ENTR and SORT, C15 or C16 of EXP2, C6 of JALO, C34 "
      "or C35 of ERRE. Those of ERRE may stay blank. ENTR MOD and SORT MOD accept a blank day, or a blank "
      "day and month, before 01/07/1999."},
     {"Écrivez une date qui existe, sous la forme JJMMAAAA. Là où une partie inconnue est admise, "
      "laissez-la en blanc et n'écrivez pas de zéros.",
      "Write a date that exists, as DDMMYYYY. Where an unknown part is accepted, leave it blank and do "
      "not write zeros."}},
    {23,
     {"Cause du mouvement refusée", "Cause of the movement refused"},
     {"Dans ENTR ou SORT, la cause (C5, colonne 87) n'est pas dans la liste, n'est plus valable à la date "
      "du mouvement C4, ou ne va pas avec le genre : F, G, S et T sont réservées au genre CRE.",
      "In ENTR or SORT the cause (C5, column 87) is not in the list, is no longer valid on the date of "
      "the movement C4, or does not go with the kind: F, G, S and T are for kind CRE only."},
     {"Choisissez une cause de la liste du type de message, valable à la date C4. Contrôlez aussi cette "
      "date et le genre.",
      "Choose a cause of the message type's list that is valid on the date C4. Check that date and the "
      "kind as well."}},
    {24,
     {"Autre partie du mouvement, ou texte de JALO, incorrect",
      "Other party of the movement, or text of JALO, not valid"},
     {"Dans ENTR et SORT, l'autre exploitation (pays C8, numéro C9) ou le texte C10 manque, ou le pays est "
      "inconnu ; les causes F et G (ENTR), S et T (SORT) rendent le pays obligatoire. Le genre MOD tolère "
      "ces absences pour un mouvement avant le 01/01/1999, et la cause N d'ENTR se passe de numéro et de "
      "texte ; un numéro donné sans son pays reste refusé. Dans JALO, le texte C7 ou C8 est vide.",
      "In ENTR and SORT the other holding (country C8, number C9) or the text C10 is missing, or the country "
      "is unknown; the causes F and G (ENTR), S and T (SORT) make the country compulsory. Kind MOD tolerates "
      "this for a movement before 01/01/1999, and cause N of ENTR needs neither number nor text; a number "
      "given without its country stays refused. In JALO the text C7 or C8 is blank."},
     {"Donnez ensemble le pays et le numéro de l'autre exploitation. Sans numéro, décrivez l'autre partie "
      "dans C10 et ne donnez le pays seul que pour les causes F et G (ENTR), S, T et M (SORT). Dans JALO, "
      "remplissez C7 et C8.",
      "Give the country and the number of the other holding together. Without a number, describe the "
      "other party in C10 and give the country alone only for the causes F and G (ENTR), S, T and M "
      "(SORT). In JALO fill C7 and C8."}},
    {25,
     {"Exploitation : pays ou numéro refusé (PASS)", "Holding: country or number refused (PASS)"},
     {"Dans un PASS, le code pays de l'exploitation (C4) n'est pas FR, ou son numéro (C5) est vide.",
      "In a PASS record the country code of the holding (C4) is not FR, or its number (C5) is blank."},
     {"Inscrivez FR dans C4 et le numéro d'exploitation dans C5.",
      "Write FR in C4 and the holding number in C5."}},
    {26,
     {"Premier numéro de la plage refusé (NUMA)", "First number of the range refused (NUMA)"},
     {"Dans un NUMA, le code pays du premier numéro de la plage (C4) n'est pas FR, ou ce numéro (C5) est "
      "vide.",
      "In a NUMA record the country code of the first number of the range (C4) is not FR, or that number "
      "(C5) is blank."},
     {"Inscrivez FR dans C4 et le premier numéro de la plage dans C5.",
      "Write FR in C4 and the first number of the range in C5."}},
    {27,
     {"Exploitation : pays ou numéro refusé (NUMA, RACO...)",
      "Holding: country or number refused (NUMA, RACO...)"},
     {"Le code pays de l'exploitation n'est pas FR, ou son numéro est vide. Sont concernés C1 et C2 de "
      "NUMA, de PICO et de RACO, C4 et C5 de GROC et d'IMOC, C5 et C6 de REBO.",
      "The country code of the holding is not FR, or its number is blank. This concerns C1 and C2 of "
      "NUMA, PICO and RACO, C4 and C5 of GROC and IMOC, C5 and C6 of REBO."},
     {"Inscrivez FR comme code pays et remplissez le numéro d'exploitation.",
      "Write FR as the country code and fill the holding number."}},
    {28,
     {"Date incorrecte (commande, plage ou remplacement)", "Date not valid (order, range or replacement)"},
     {"Une date n'existe pas ou n'est pas complète : C6 de GROC, C7 de NUMA ou de PICO, C4 ou C23 de REBO.",
      "A date does not exist or is not complete: C6 of GROC, C7 of NUMA or PICO, C4 or C23 of REBO."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {29,
     {"Date C6 incorrecte (ACTI, DETI)", "Date C6 not valid (ACTI, DETI)"},
     {"La date du champ C6 (colonnes 88 à 95) d'un ACTI ou d'un DETI de genre INV ou MOD n'existe pas. Le "
      "jour, ou le jour et le mois, peuvent être inconnus : ils sont alors en blanc, jamais en zéros.",
      "The date in field C6 (columns 88 to 95) of an ACTI or DETI record of kind INV or MOD does not "
      "exist. The day, or the day and the month, may be unknown: they are then blank, never zeros."},
     {"Écrivez une date qui existe, sous la forme JJMMAAAA, et laissez en blanc les parties inconnues.",
      "Write a date that exists, as DDMMYYYY, and leave unknown parts blank."}},
    {30,
     {"Détenteur ou exploitation : pays ou code refusé", "Keeper or holding: country or code refused"},
     {"Le code pays n'est pas FR, ou le code du détenteur est vide : C1 et C2 d'ASSO, de DETE et de DETI (C2 "
      "est le numéro d'une exploitation dans ASSO et, parfois, dans DETE DEM), C4 et C5 d'EXP2. Dans EXP2, "
      "les trois premiers caractères de C5 doivent aussi être un département connu.",
      "The country code is not FR, or the keeper code is blank: C1 and C2 of ASSO, DETE and DETI (C2 is the "
      "number of a holding in ASSO and sometimes in DETE DEM), C4 and C5 of EXP2. In EXP2 the first three "
      "characters of C5 must also be a known department."},
     {"Inscrivez FR comme code pays et remplissez le code. Dans EXP2, commencez-le par le département sur "
      "trois caractères, par exemple 078.",
      "Write FR as the country code and fill the code. In EXP2 begin it with the department in three "
      "characters, for example 078."}},
    {31,
     {"Exploitation : pays ou numéro refusé (ACTI, EXP1...)",
      "Holding: country or number refused (ACTI, EXP1...)"},
     {"Le code pays d'une exploitation n'est pas admis, ou son numéro est vide. ACTI, EXP1 et EXP2 (C1, "
      "C2) et RATA (C5, C6 et, en genre MOD, C7, C8) demandent FR. ABAT (C4, C5), pour l'exploitation de "
      "provenance, accepte tout pays connu.",
      "The country code of a holding is not accepted, or its number is blank. ACTI, EXP1 and EXP2 (C1, "
      "C2) and RATA (C5, C6 and, with kind MOD, C7, C8) ask for FR. ABAT (C4, C5), for the provenance "
      "holding, accepts every known country."},
     {"Inscrivez un code pays admis, FR sauf dans ABAT, et remplissez le numéro d'exploitation.",
      "Write an accepted country code, FR except in ABAT, and fill the holding number."}},
    {32,
     {"Forme juridique inconnue (EXP1)", "Legal form unknown (EXP1)"},
     {"La forme juridique (C4, colonnes 79 à 82) d'un EXP1 n'est pas dans la liste. Les genres CRE et MOD "
      "ont chacun leur liste.",
      "The legal form (C4, columns 79 to 82) of an EXP1 record is not in the list. The kinds CRE and MOD "
      "have a list each."},
     {"Inscrivez une forme juridique de la liste du genre, cadrée à gauche ; quatre blancs ou quatre "
      "astérisques sont aussi admis.",
      "Write a legal form of the kind's list, from the left; four blanks or four asterisks are accepted "
      "too."}},
    {33,
     {"Champ C8 non renseigné (EXP1)", "Field C8 left blank (EXP1)"},
     {"Les cinq colonnes du champ C8 (173 à 177) d'un EXP1 de genre CRE ou MOD sont en blanc.",
      "The five columns of field C8 (173 to 177) of an EXP1 record of kind CRE or MOD are blank."},
     {"Remplissez le champ C8 ; aucune liste ne limite son contenu.",
      "Fill field C8; no list limits what it holds."}},
    {35,
     {"Code C11 inconnu (EXP1)", "Code C11 unknown (EXP1)"},
     {"Le code du champ C11 (colonnes 222 et 223) d'un EXP1 n'est pas dans la liste.",
      "The code in field C11 (columns 222 and 223) of an EXP1 record is not in the list."},
     {"Inscrivez l'un des codes 10, 20, 31, 32, 33, 34, 40, 50 ou 90.",
      "Write one of the codes 10, 20, 31, 32, 33, 34, 40, 50 or 90."}},
    {36,
     {"Date C5 incorrecte (ACTI)", "Date C5 not valid (ACTI)"},
     {"La date du champ C5 (colonnes 80 à 87) d'un ACTI de genre CRE ou MOD n'existe pas ou n'est pas "
      "complète.",
      "The date in field C5 (columns 80 to 87) of an ACTI record of kind CRE or MOD does not exist or is "
      "not complete."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {39,
     {"Forme juridique ou champ C5 refusé (DETE)", "Legal form or field C5 refused (DETE)"},
     {"Dans un DETE, la forme juridique (C4, colonnes 79 à 82) n'est pas dans la liste du genre CRE ou MOD, "
      "ou le champ C5 (colonnes 83 à 112) est vide.",
      "In a DETE record the legal form (C4, columns 79 to 82) is not in the list of kind CRE or MOD, or "
      "field C5 (columns 83 to 112) is blank."},
     {"Inscrivez une forme juridique de la liste du genre, cadrée à gauche, et remplissez C5.",
      "Write a legal form of the kind's list, from the left, and fill C5."}},
    {40,
     {"Champ C8 non renseigné (DETE)", "Field C8 left blank (DETE)"},
     {"Les cinq colonnes du champ C8 (173 à 177) d'un DETE de genre CRE ou MOD sont en blanc.",
      "The five columns of field C8 (173 to 177) of a DETE record of kind CRE or MOD are blank."},
     {"Remplissez le champ C8 ; aucune liste ne limite son contenu.",
      "Fill field C8; no list limits what it holds."}},
    {41,
     {"Numéro SIRET incorrect", "SIRET number not valid"},
     {"Dans un ASSO dont le type de numéro (C5) est SIRET, le numéro C6 ne compte pas quatorze chiffres "
      "suivis de six blancs. En genre CRE ou MOD, sa clé de contrôle (Luhn) doit aussi être juste.",
      "In an ASSO record whose type of number (C5) is SIRET, the number C6 is not fourteen digits "
      "followed by six blanks. With kind CRE or MOD its check digit (Luhn) must be right as well."},
     {"Recopiez le SIRET, quatorze chiffres sans blanc, à gauche du champ. Si sa forme est bonne, un "
      "chiffre est sans doute à corriger.",
      "Copy the SIRET again, fourteen digits without a blank, from the left of the field. If its form is "
      "right, a digit probably needs correcting."}},
    {42,
     {"Date C5 incorrecte (DETI)", "Date C5 not valid (DETI)"},
     {"La date du champ C5 (colonnes 80 à 87) d'un DETI de genre CRE ou MOD n'existe pas ou n'est pas "
      "complète.",
      "The date in field C5 (columns 80 to 87) of a DETI record of kind CRE or MOD does not exist or is "
      "not complete."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {44,
     {"Code C6 inconnu (PASS)", "Code C6 unknown (PASS)"},
     {"Le code C6 (colonnes 93 et 94) d'un PASS n'est pas dans la liste, de 00 à 09.",
      "The code C6 (columns 93 and 94) of a PASS record is not in the list, from 00 to 09."},
     {"Inscrivez un code de 00 à 09, sur deux chiffres.", "Write a code from 00 to 09, in two digits."}},
    {48,
     {"Quantité mal écrite ou nulle (NUMA, PICO)", "Count not well written or zero (NUMA, PICO)"},
     {"La quantité de numéros (C6, colonnes 93 à 98) d'un NUMA ou d'un PICO n'est pas écrite sur six "
      "chiffres, ou vaut zéro.",
      "The count of numbers (C6, columns 93 to 98) of a NUMA or PICO record is not written in six digits, "
      "or is zero."},
     {"Écrivez la quantité sur six chiffres, avec des zéros à gauche, par exemple 000100.",
      "Write the count in six digits, with zeros on the left, for example 000100."}},
    {49,
     {"Pays C20 ou champ C21 incorrect (IMPO)", "Country C20 or field C21 not valid (IMPO)"},
     {"Dans un IMPO, le code pays C20 (colonnes 165 et 166) n'est pas connu ou vaut FR, ou le champ C21 "
      "(colonnes 167 à 180) est vide.",
      "In an IMPO record the country code C20 (columns 165 and 166) is not known or is FR, or field C21 "
      "(columns 167 to 180) is blank."},
     {"Inscrivez dans C20 un code pays connu autre que FR et remplissez C21.",
      "Write a known country code other than FR in C20 and fill C21."}},
    {50,
     {"Numéro hors du ressort de l'organisme départemental", "Number outside the departmental body's area"},
     {"Le numéro ne relève pas de l'organisme départemental de l'en-tête (E8) : département d'une "
      "exploitation, d'un animal ou d'un détenteur, code d'un site (EGET, ERTI, RATA), plage de numéros "
      "ovins et caprins (IMOC, PICO). Dans DETI et DETE MOD, c'est le département du détenteur lui-même "
      "qui est inconnu. Dans DETE DEM, C12 dit ce que C2 contient : avec D, un code de détenteur dont le "
      "département doit être connu ; sinon, un numéro d'exploitation français.",
      "The number does not belong to the departmental body of the header (E8): department of a holding, "
      "an animal or a keeper, code of a site (EGET, ERTI, RATA), range of ovine and caprine numbers "
      "(IMOC, PICO). In DETI and DETE MOD it is the keeper's department itself that is unknown. In DETE "
      "DEM, C12 says what C2 holds: with D a keeper code whose department must be known, otherwise a "
      "French holding number."},
     {"Comparez le début du numéro avec l'organisme E8 et corrigez celui des deux qui est faux. La Corse "
      "s'écrit 20 dans les numéros d'exploitation et d'animal.",
      "Compare the beginning of the number with the body E8 and correct the one that is wrong. Corsica "
      "is written 20 in holding and animal numbers."}},
    {51,
     {"xx en colonnes 77 et 78", "xx in columns 77 and 78"},
     {"Le champ C3 (colonnes 77 et 78) contient xx, et l'émetteur du fichier n'est pas l'un des émetteurs "
      "nationaux NORM01, NORM02 et PFOC01. Tous les types de message sont concernés, sauf ERRE.",
      "Field C3 (columns 77 and 78) holds xx, and the emitter of the file is not one of the national "
      "emitters NORM01, NORM02 and PFOC01. This concerns every message type but ERRE."},
     {"Remplacez xx par deux blancs.", "Replace xx with two blanks."}},
    {52,
     {"Date postérieure à celle de l'enregistrement", "Date later than that of the record"},
     {"Une date du corps est postérieure à la date de l'enregistrement (F1, colonnes 231 à 238). Dans ENTR "
      "et SORT, la date C11 peut la dépasser d'un an au plus, de même que C4 pour la cause J.",
      "A date of the body is later than the date of the record (F1, columns 231 to 238). In ENTR and SORT "
      "the date C11 may be up to one year later, and so may C4 with cause J."},
     {"Contrôlez le jour, le mois et l'année des deux dates, et corrigez celle qui est fausse.",
      "Check the day, month and year of both dates, and correct the one that is wrong."}},
    {54,
     {"Indicateur à valeur fixe incorrect (ECHA, IMPO)", "Fixed flag not valid (ECHA, IMPO)"},
     {"L'indicateur C21 (colonne 175) d'un ECHA doit valoir 1, l'indicateur C22 (colonne 181) d'un IMPO "
      "doit valoir 0.",
      "The flag C21 (column 175) of an ECHA record must be 1, the flag C22 (column 181) of an IMPO record "
      "must be 0."},
     {"Inscrivez 1 en colonne 175 d'un ECHA, 0 en colonne 181 d'un IMPO.",
      "Write 1 in column 175 of an ECHA record, 0 in column 181 of an IMPO record."}},
    {55,
     {"Exploitation C16-C17 obligatoire (ECHA)", "Holding C16-C17 compulsory (ECHA)"},
     {"Dans un ECHA, le pays C16 ou le numéro C17 est vide, alors que l'animal est né à partir du "
      "01/07/1999.",
      "In an ECHA record the country C16 or the number C17 is blank, although the animal was born on or "
      "after 01/07/1999."},
     {"Remplissez C16 et C17, ou corrigez la date de naissance C6.",
      "Fill C16 and C17, or correct the date of birth C6."}},
    {58,
     {"Date C11 incorrecte (ENTR, SORT)", "Date C11 not valid (ENTR, SORT)"},
     {"La date C11 (colonnes 176 à 183) d'un ENTR ou d'un SORT de genre INV ou MOD n'existe pas ou n'est "
      "pas complète. Avant le 01/07/1999, le jour, ou le jour et le mois, peuvent être en blanc.",
      "The date C11 (columns 176 to 183) of an ENTR or SORT record of kind INV or MOD does not exist or "
      "is not complete. Before 01/07/1999 the day, or the day and the month, may be blank."},
     {"Écrivez une date qui existe, sous la forme JJMMAAAA, sans zéros à la place d'une partie inconnue.",
      "Write a date that exists, as DDMMYYYY, without zeros in the place of an unknown part."}},
    {64,
     {"xx en colonnes 77 et 78 (émetteur national)", "xx in columns 77 and 78 (national emitter)"},
     {"Le champ C3 (colonnes 77 et 78) contient xx dans un fichier d'un émetteur national (NORM01, NORM02 "
      "ou PFOC01). Tous les types de message sont concernés, sauf ERRE.",
      "Field C3 (columns 77 and 78) holds xx in a file of a national emitter (NORM01, NORM02 or PFOC01). "
      "This concerns every message type but ERRE."},
     {"Remplacez xx par deux blancs.", "Replace xx with two blanks."}},
    {67,
     {"Numéro d'animal français mal formé", "French animal number not well formed"},
     {"Le numéro n'a pas la forme française : dix chiffres, qui commencent par un département connu, puis "
      "deux blancs. La règle vaut quand le pays de l'animal est FR, et toujours pour C2 de NAIS (sauf "
      "genre DEM) et de NVMN et pour C5 de NUMA. Pour C2 de NAIS CRE, de NVMN CRE et de NVMN MOD, les "
      "positions 7 à 10 ne peuvent pas être 0000.",
      "The number does not have the French form: ten digits that begin with a known department, then two "
      "blanks. The rule holds when the country of the animal is FR, and always for C2 of NAIS (except "
      "kind DEM) and of NVMN and for C5 of NUMA. For C2 of NAIS CRE, NVMN CRE and NVMN MOD the positions "
      "7 to 10 may not be 0000."},
     {"Écrivez les dix chiffres à gauche du champ, sans le code pays. La Corse s'écrit 20 ; outre-mer, 97 "
      "est suivi de 1, 2, 3, 4 ou 6 (de 1 à 4 seulement dans ABAT et ERRE).",
      "Write the ten digits from the left of the field, without the country code. Corsica is written 20; "
      "overseas, 97 is followed by 1, 2, 3, 4 or 6 (1 to 4 only in ABAT and ERRE)."}},
    {68,
     {"Numéro d'exploitation, d'abattoir ou d'agrément mal formé",
      "Holding, slaughterhouse or approval number not well formed"},
     {"Un numéro d'exploitation française n'est pas fait de huit chiffres, qui commencent par un département "
      "connu, puis de quatre blancs. Dans ABAT, le numéro d'abattoir C8 (lettres et chiffres, ou tout en "
      "blanc) et l'identifiant du notificateur C11 (sept ou huit caractères qui commencent par un "
      "département, OFFICE ou ONICAB) sont aussi concernés. Dans ERRE, c'est le numéro d'agrément sanitaire "
      "C8.",
      "A French holding number is not eight digits that begin with a known department, then four blanks. In "
      "ABAT the slaughterhouse number C8 (letters and digits, or all blank) and the notifier's "
      "identification C11 (seven or eight characters that begin with a department, OFFICE or ONICAB) are "
      "concerned too. In ERRE it is the sanitary approval number C8."},
     {"Écrivez le numéro à gauche du champ, sans blanc à l'intérieur ni code pays. Contrôlez le "
      "département : la Corse s'écrit 20 dans les numéros d'exploitation.",
      "Write the number from the left of the field, without a blank inside and without a country code. "
      "Check the department: Corsica is written 20 in holding numbers."}},
    {74,
     {"Adresse : C6 et C7 vides (DETE)", "Address: C6 and C7 both blank (DETE)"},
     {"Les deux champs C6 et C7 (colonnes 113 à 172) d'un DETE de genre CRE ou MOD sont en blanc. L'erreur "
      "est donnée pour chacun des deux.",
      "Both fields C6 and C7 (columns 113 to 172) of a DETE record of kind CRE or MOD are blank. The "
      "error is given for each of the two."},
     {"Remplissez au moins l'un des deux champs.", "Fill at least one of the two fields."}},
    {75,
     {"C6 et C7 tous deux vides (EXP1)", "C6 and C7 both blank (EXP1)"},
     {"Les deux champs C6 et C7 (colonnes 113 à 172) d'un EXP1 de genre CRE ou MOD sont en blanc. L'erreur "
      "est donnée pour chacun des deux.",
      "Both fields C6 and C7 (columns 113 to 172) of an EXP1 record of kind CRE or MOD are blank. The "
      "error is given for each of the two."},
     {"Remplissez au moins l'un des deux champs.", "Fill at least one of the two fields."}},
    {76,
     {"Détenteur C10-C11 : pays ou code refusé (EXP2)", "Keeper C10-C11: country or code refused (EXP2)"},
     {"Dans un EXP2 de genre INV ou MOD, le code pays C10 n'est pas FR, ou le code du détenteur C11 est "
      "vide ou ne commence pas par un département connu sur trois caractères.",
      "In an EXP2 record of kind INV or MOD the country code C10 is not FR, or the keeper code C11 is "
      "blank or does not begin with a known department in three characters."},
     {"Inscrivez FR dans C10 et, dans C11, un code qui commence par le département sur trois caractères, "
      "par exemple 078.",
      "Write FR in C10 and, in C11, a code that begins with the department in three characters, for "
      "example 078."}},
    {77,
     {"Date C9 incorrecte (PASS)", "Date C9 not valid (PASS)"},
     {"La date C9 (colonnes 105 à 112) d'un PASS de genre EDI n'existe pas ou n'est pas complète.",
      "The date C9 (columns 105 to 112) of a PASS record of kind EDI does not exist or is not complete."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {79,
     {"Champ C9 non renseigné (DETE)", "Field C9 left blank (DETE)"},
     {"Le champ C9 (colonnes 178 à 207) d'un DETE de genre CRE ou MOD est en blanc.",
      "Field C9 (columns 178 to 207) of a DETE record of kind CRE or MOD is blank."},
     {"Remplissez le champ C9 ; aucune liste ne limite son contenu.",
      "Fill field C9; no list limits what it holds."}},
    {80,
     {"Code pays C11 inconnu (DETE)", "Country code C11 unknown (DETE)"},
     {"Le code pays C11 (colonnes 222 et 223) d'un DETE de genre CRE ou MOD n'est pas dans la liste.",
      "The country code C11 (columns 222 and 223) of a DETE record of kind CRE or MOD is not in the list."},
     {"Inscrivez un code pays connu, en deux majuscules.", "Write a known country code, in two capitals."}},
    {81,
     {"Indicateur C4 autre que 0 ou 1 (ACTI, DETI)", "Flag C4 other than 0 or 1 (ACTI, DETI)"},
     {"L'indicateur C4 (colonne 79) d'un ACTI ou d'un DETI vaut autre chose que 0 ou 1.",
      "The flag C4 (column 79) of an ACTI or DETI record is something other than 0 or 1."},
     {"Inscrivez 0 ou 1 dans la colonne 79.", "Write 0 or 1 in column 79."}},
    {82,
     {"Champ C9 non renseigné (EXP1)", "Field C9 left blank (EXP1)"},
     {"Le champ C9 (colonnes 178 à 207) d'un EXP1 de genre CRE ou MOD est en blanc.",
      "Field C9 (columns 178 to 207) of an EXP1 record of kind CRE or MOD is blank."},
     {"Remplissez le champ C9 ; aucune liste ne limite son contenu.",
      "Fill field C9; no list limits what it holds."}},
    {83,
     {"Indicateur C24 autre que 0 ou 1 (NAIS)", "Flag C24 other than 0 or 1 (NAIS)"},
     {"L'indicateur C24 (colonne 159) d'un NAIS de genre CRE vaut autre chose que 0 ou 1.",
      "The flag C24 (column 159) of a NAIS record of kind CRE is something other than 0 or 1."},
     {"Inscrivez 0 ou 1 dans la colonne 159.", "Write 0 or 1 in column 159."}},
    {84,
     {"Genre inconnu", "Transaction kind unknown"},
     {"Le genre (E5, colonnes 19 à 21) n'est pas l'un des sept connus, ou celui que cite un ERRE (C2, "
      "colonnes 67 à 69) ne l'est pas.",
      "The transaction kind (E5, columns 19 to 21) is not one of the seven that are known, or the one "
      "that an ERRE record cites (C2, columns 67 to 69) is not."},
     {"Inscrivez CRE, INV, MOD, DEM, EDI, INF ou ECQ, en majuscules.",
      "Write CRE, INV, MOD, DEM, EDI, INF or ECQ, in capitals."}},
    {85,
     {"Type de message inconnu ou mauvais récepteur", "Message type unknown, or wrong receiver"},
     {"Le type de message (E6, colonnes 22 à 25) n'est pas connu, ou celui que cite un ERRE (C1, colonnes "
      "63 à 66) ne l'est pas. Un INFO de genre DEM reçoit aussi ce numéro quand le récepteur du fichier "
      "n'est pas 031BDN.",
      "The message type (E6, columns 22 to 25) is not known, or the one that an ERRE record cites (C1, "
      "columns 63 to 66) is not. An INFO record of kind DEM also gets this number when the receiver of "
      "the file is not 031BDN."},
     {"Inscrivez un type connu, en quatre majuscules ou chiffres. Pour un INFO, inscrivez 031BDN comme "
      "récepteur dans l'enregistrement FICH (colonnes 11 à 18).",
      "Write a known type, in four capitals or digits. For an INFO record, write 031BDN as the receiver "
      "in the FICH record (columns 11 to 18)."}},
    {86,
     {"Type ou champ non admis pour ce genre", "Type or field not allowed for this kind"},
     {"Le type de message (E6) ne s'emploie pas avec ce genre (E5), ou un contrôle du corps exclut ce "
      "genre. Un même enregistrement peut porter ce numéro plusieurs fois, une fois pour l'en-tête et une "
      "fois pour chaque contrôle du corps qui exclut le genre.",
      "The message type (E6) is not used with this transaction kind (E5), or a check of the body excludes "
      "this kind. One record may carry this number several times, once for the header and once for each "
      "check of the body that excludes the kind."},
     {"Choisissez un genre que le type de message admet, ou corrigez le type.",
      "Choose a kind that the message type allows, or correct the type."}},
    {87,
     {"Organisme départemental inconnu", "Departmental body unknown"},
     {"L'organisme départemental (E8, colonnes 27 à 34) n'est ni dans la liste, ni un organisme national "
      "reconnu. Dans ERRE, il peut aussi s'agir du champ C37 (colonnes 222 à 229), qui peut rester en "
      "blanc.",
      "The departmental body (E8, columns 27 to 34) is neither in the list nor a recognised national "
      "body. In ERRE it may also be field C37 (columns 222 to 229), which may stay blank."},
     {"Inscrivez le département sur trois caractères, IPG, puis deux blancs, par exemple 078IPG.",
      "Write the department in three characters, IPG, then two blanks, for example 078IPG."}},
    {88,
     {"Base destinataire autre que BDN", "Destination database other than BDN"},
     {"La base destinataire (E10, colonnes 43 à 50) n'est pas BDN suivi de cinq blancs.",
      "The destination database (E10, columns 43 to 50) is not BDN followed by five blanks."},
     {"Inscrivez BDN suivi de cinq blancs dans les colonnes 43 à 50.",
      "Write BDN followed by five blanks in columns 43 to 50."}},
    {89,
     {"Code E9 avec un blanc", "Code E9 with a blank"},
     {"Le code E9 (colonnes 35 à 42) contient un blanc. Il ne peut être tout en blanc que si l'organisme "
      "E8 est NORMABEV ou commence par OFFICE ou ONICAB.",
      "The code E9 (columns 35 to 42) holds a blank. It may be all blank only when the body E8 is "
      "NORMABEV or begins with OFFICE or ONICAB."},
     {"Remplissez les huit colonnes 35 à 42, sans blanc.",
      "Fill all eight columns 35 to 42, without a blank."}},
    {90,
     {"Date de l'enregistrement incorrecte", "Date of the record not valid"},
     {"La date du pied (F1, colonnes 231 à 238) n'existe pas ou n'est pas complète. Les dates du corps "
      "sont comparées avec elle : d'autres erreurs peuvent en découler.",
      "The date in the footer (F1, columns 231 to 238) does not exist or is not complete. The dates of "
      "the body are compared with it: other errors may follow from it."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900. Si le pied "
      "est décalé, contrôlez la longueur de l'enregistrement.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on. If the footer is shifted, "
      "check the length of the record."}},
    {91,
     {"Heure de l'enregistrement incorrecte", "Time of the record not valid"},
     {"L'heure du pied (F2, colonnes 239 à 244) n'est pas une heure de 000000 à 235959.",
      "The time in the footer (F2, columns 239 to 244) is not a time from 000000 to 235959."},
     {"Écrivez l'heure sur six chiffres, sous la forme HHMMSS.", "Write the time in six digits, as HHMMSS."}},
    {93,
     {"Version du format autre que 025", "Format version other than 025"},
     {"La version du format (F3, colonnes 245 à 247) de l'enregistrement FICH n'est pas 025. Les autres "
      "enregistrements ne sont pas contrôlés sur ce point.",
      "The format version (F3, columns 245 to 247) of the FICH record is not 025. Other records are not "
      "checked for it."},
     {"Inscrivez 025 dans les colonnes 245 à 247 de l'enregistrement FICH.",
      "Write 025 in columns 245 to 247 of the FICH record."}},
    {94,
     {"Marque de fin absente", "End mark missing"},
     {"La colonne 256 (F5) ne contient pas l'astérisque qui termine un enregistrement.",
      "Column 256 (F5) does not hold the asterisk that ends a record."},
     {"Mettez un astérisque en colonne 256. Si l'enregistrement est trop court ou décalé, rétablissez "
      "d'abord ses 256 colonnes.",
      "Put an asterisk in column 256. If the record is too short or shifted, first restore its 256 "
      "columns."}},
    {95,
     {"Émetteur du fichier inconnu", "Emitter of the file unknown"},
     {"L'émetteur du fichier (E3, colonnes 3 à 10 de l'enregistrement FICH) n'est ni dans la liste, ni un "
      "émetteur national reconnu.",
      "The emitter of the file (E3, columns 3 to 10 of the FICH record) is neither in the list nor a "
      "recognised national emitter."},
     {"Inscrivez dans l'enregistrement FICH un émetteur connu, cadré à gauche et complété par des blancs.",
      "Write a known emitter in the FICH record, from the left and filled up with blanks."}},
    {96,
     {"Récepteur du fichier incorrect", "Receiver of the file not valid"},
     {"Le récepteur du fichier (E4, colonnes 11 à 18 de l'enregistrement FICH) n'est pas reconnu.",
      "The receiver of the file (E4, columns 11 to 18 of the FICH record) is not recognised."},
     {"Inscrivez 031BDN suivi de deux blancs dans les colonnes 11 à 18.",
      "Write 031BDN followed by two blanks in columns 11 to 18."}},
    {97,
     {"Code E12 autre que 3 ou 4 (FICH)", "Code E12 other than 3 or 4 (FICH)"},
     {"Le code E12 (colonne 61) de l'enregistrement FICH n'est ni 3 ni 4.",
      "The code E12 (column 61) of the FICH record is neither 3 nor 4."},
     {"Inscrivez 3 ou 4 dans la colonne 61 de l'enregistrement FICH.",
      "Write 3 or 4 in column 61 of the FICH record."}},
    {98,
     {"Code E13 autre que N ou U (FICH)", "Code E13 other than N or U (FICH)"},
     {"Le code E13 (colonne 62) de l'enregistrement FICH n'est ni N ni U.",
      "The code E13 (column 62) of the FICH record is neither N nor U."},
     {"Inscrivez N ou U dans la colonne 62 de l'enregistrement FICH.",
      "Write N or U in column 62 of the FICH record."}},
    {100,
     {"Nombre d'enregistrements annoncé inexact", "Announced number of records not right"},
     {"Le nombre annoncé par l'enregistrement FICH (C3, colonnes 95 à 100) n'est pas celui des "
      "enregistrements qui le suivent. Un fichier vide ou sans fin de ligne reçoit aussi ce numéro.",
      "The number that the FICH record announces (C3, columns 95 to 100) is not that of the records that "
      "follow it. A file that is empty or has no line end gets this number too."},
     {"Comptez les enregistrements sans l'enregistrement FICH et inscrivez ce nombre sur six chiffres. Si "
      "le nombre était juste, vérifiez que la dernière ligne a sa fin de ligne : sans elle, elle n'est pas "
      "lue.",
      "Count the records without the FICH record and write that number in six digits. If the number was "
      "right, check that the last line has its line end: without it that line is not read."}},
    {102,
     {"Date incorrecte (GROC C10, PASS C7)", "Date not valid (GROC C10, PASS C7)"},
     {"La date n'existe pas ou n'est pas complète : C10 d'un GROC CRE, qui peut rester en blanc, ou C7 "
      "d'un PASS, obligatoire en genre INV et, en genre EDI, quand l'indicateur C11 vaut 0.",
      "The date does not exist or is not complete: C10 of a GROC CRE record, which may stay blank, or C7 "
      "of a PASS record, compulsory with kind INV and, with kind EDI, when the flag C11 is 0."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {103,
     {"Heure incorrecte (GROC C12, PASS C10)", "Time not valid (GROC C12, PASS C10)"},
     {"L'heure n'est pas une heure de 000000 à 235959 : C12 d'un GROC CRE, qui va avec la date C10 et "
      "reste en blanc sans elle, ou C10 d'un PASS, obligatoire en genre INV et, en genre EDI, quand "
      "l'indicateur C11 vaut 0.",
      "The time is not a time from 000000 to 235959: C12 of a GROC CRE record, which goes with the date "
      "C10 and stays blank without it, or C10 of a PASS record, compulsory with kind INV and, with kind "
      "EDI, when the flag C11 is 0."},
     {"Écrivez l'heure sur six chiffres, sous la forme HHMMSS. Dans GROC, donnez la date et l'heure "
      "ensemble, ou ni l'une ni l'autre.",
      "Write the time in six digits, as HHMMSS. In GROC give the date and the time together, or neither."}},
    {104,
     {"Indicateur C11 autre que 0 ou 1 (PASS)", "Flag C11 other than 0 or 1 (PASS)"},
     {"L'indicateur C11 (colonne 119) d'un PASS de genre EDI vaut autre chose que 0 ou 1. Avec 0, la date "
      "C7 et l'heure C10 sont obligatoires.",
      "The flag C11 (column 119) of a PASS record of kind EDI is something other than 0 or 1. With 0 the "
      "date C7 and the time C10 are compulsory."},
     {"Inscrivez 0 ou 1 dans la colonne 119.", "Write 0 or 1 in column 119."}},
    {105,
     {"EXP1 sans son EXP2", "EXP1 without its EXP2"},
     {"Un EXP1 de genre CRE, sans autre erreur, n'est pas suivi aussitôt d'un EXP2 de genre CRE avec le "
      "même numéro d'exploitation C2. Un rejet est alors écrit pour l'EXP1.",
      "An EXP1 record of kind CRE, with no other error, is not followed at once by an EXP2 record of kind "
      "CRE with the same holding number C2. A rejection is then written for the EXP1."},
     {"Placez l'EXP2 juste après son EXP1 et recopiez les douze caractères de C2 à l'identique.",
      "Put the EXP2 right after its EXP1 and copy the twelve characters of C2 exactly."}},
    {106,
     {"Caractère non autorisé", "Character not allowed"},
     {"L'enregistrement contient un octet qui n'est pas un caractère imprimable simple (0x20 à 0x7E) : "
      "lettre accentuée, tabulation ou caractère de commande, par exemple.",
      "The record holds a byte that is not a plain printable character (0x20 to 0x7E): an accented "
      "letter, a tab or a control character, for example."},
     {"Remplacez ce caractère, une lettre accentuée par la lettre sans accent, une tabulation par des "
      "blancs. Vérifiez que les champs sont restés dans leurs colonnes.",
      "Replace that character, an accented letter by the plain letter, a tab by blanks. Check that the "
      "fields are still in their columns."}},
    {107,
     {"Enregistrement trop long", "Record too long"},
     {"L'enregistrement compte plus de 256 caractères ; ce qui dépasse la colonne 256 n'est pas lu comme "
      "donnée.",
      "The record has more than 256 characters; what stands beyond column 256 is not read as data."},
     {"Ramenez l'enregistrement à 256 caractères : cherchez un champ trop large, ou une fin de ligne "
      "perdue entre deux enregistrements.",
      "Bring the record back to 256 characters: look for a field that is too wide, or for a line end "
      "lost between two records."}},
    {108,
     {"Enregistrement trop court", "Record too short"},
     {"L'enregistrement compte moins de 256 caractères : les champs qu'il n'atteint pas sont vides ou "
      "coupés, et d'autres erreurs peuvent en découler.",
      "The record has fewer than 256 characters: the fields that it does not reach are empty or cut, and "
      "other errors may follow from that."},
     {"Complétez l'enregistrement à 256 caractères, l'astérisque final en colonne 256. Cherchez un champ "
      "trop étroit, ou des blancs supprimés.",
      "Fill the record up to 256 characters, with the final asterisk in column 256. Look for a field "
      "that is too narrow, or for blanks that were removed."}},
    {109,
     {"Deuxième enregistrement FICH", "Second FICH record"},
     {"Un enregistrement FICH se trouve ailleurs qu'en tête du fichier.",
      "A FICH record stands elsewhere than at the head of the file."},
     {"Gardez un seul enregistrement FICH, le premier, et ajustez le nombre qu'il annonce. Envoyez "
      "séparément les fichiers qui ont été réunis.",
      "Keep one FICH record, the first, and adjust the number that it announces. Send separately the "
      "files that were joined."}},
    {110,
     {"Type de message non admis de cet émetteur", "Message type not accepted from this emitter"},
     {"L'émetteur du fichier n'envoie pas ce type : un INFO de genre DEM vient de NORM02 ou de PFOC01, un "
      "ABAT vient de NORM01 ou d'un émetteur qui commence par OFFICE ou ONICAB.",
      "The emitter of the file does not send this type: an INFO record of kind DEM comes from NORM02 or "
      "PFOC01, an ABAT record from NORM01 or from an emitter that begins with OFFICE or ONICAB."},
     {"Contrôlez l'émetteur dans l'enregistrement FICH (colonnes 3 à 10). S'il est juste, retirez "
      "l'enregistrement de ce fichier.",
      "Check the emitter in the FICH record (columns 3 to 10). If it is right, take the record out of "
      "this file."}},
    {113,
     {"C10 et C11 à remplir ensemble", "C10 and C11 to be filled together"},
     {"Dans un ECHA, un IMPO ou un NAIS MOD, un seul des champs C10 (pays) et C11 (numéro) du deuxième "
      "animal est rempli.",
      "In an ECHA, IMPO or NAIS MOD record, only one of the fields C10 (country) and C11 (number) of the "
      "second animal is filled."},
     {"Remplissez les deux champs, ou laissez-les tous deux en blanc là où c'est admis.",
      "Fill both fields, or leave both blank where that is accepted."}},
    {114,
     {"C13 et C14 à remplir ensemble", "C13 and C14 to be filled together"},
     {"Dans un ECHA, un IMPO, un NAIS ou un NVMN, un seul des champs C13 (pays) et C14 (numéro) du "
      "troisième animal est rempli.",
      "In an ECHA, IMPO, NAIS or NVMN record, only one of the fields C13 (country) and C14 (number) of "
      "the third animal is filled."},
     {"Remplissez les deux champs, ou laissez-les tous deux en blanc.",
      "Fill both fields, or leave both blank."}},
    {115,
     {"C16 et C17 à remplir ensemble", "C16 and C17 to be filled together"},
     {"Dans un ECHA, un IMPO ou un NAIS MOD, un seul des champs C16 (pays) et C17 (numéro) de "
      "l'exploitation est rempli.",
      "In an ECHA, IMPO or NAIS MOD record, only one of the fields C16 (country) and C17 (number) of the "
      "holding is filled."},
     {"Remplissez les deux champs, ou laissez-les tous deux en blanc là où c'est admis.",
      "Fill both fields, or leave both blank where that is accepted."}},
    {117,
     {"Indicateur C9 autre que 0 ou 1 (JALO)", "Flag C9 other than 0 or 1 (JALO)"},
     {"L'indicateur C9 (colonne 221) d'un JALO vaut autre chose que 0 ou 1.",
      "The flag C9 (column 221) of a JALO record is something other than 0 or 1."},
     {"Inscrivez 0 ou 1 dans la colonne 221.", "Write 0 or 1 in column 221."}},
    {118,
     {"Numéro d'animal : forme française attendue", "Animal number: French form expected"},
     {"Pour un animal dont le pays n'est pas un pays d'échange, ou pour C2 d'un IMPO, le numéro doit avoir "
      "la forme française : dix chiffres, qui commencent par un département connu, puis deux blancs. Dans "
      "IMPO, les positions 7 à 10 ne peuvent pas être 0000 ; ERRE ne compte comme pays d'échange que CH et "
      "quinze États membres.",
      "For an animal whose country is not an exchange country, or for C2 of an IMPO record, the number "
      "must have the French form: ten digits that begin with a known department, then two blanks. In IMPO "
      "the positions 7 to 10 may not be 0000; ERRE counts only CH and fifteen member states as exchange "
      "countries."},
     {"Contrôlez le code pays : s'il est faux, corrigez-le. S'il est juste, donnez le numéro de forme "
      "française de l'animal.",
      "Check the country code: if it is wrong, correct it. If it is right, give the animal's number of "
      "French form."}},
    {119,
     {"Code C10 inconnu (JALO)", "Code C10 unknown (JALO)"},
     {"Le code C10 (colonne 222) d'un JALO n'est pas dans la liste.",
      "The code C10 (column 222) of a JALO record is not in the list."},
     {"Inscrivez A, D, E ou S dans la colonne 222.", "Write A, D, E or S in column 222."}},
    {120,
     {"Date d'entrée à l'abattoir incorrecte", "Slaughterhouse entry date not valid"},
     {"La date d'entrée à l'abattoir (C6, colonnes 93 à 100) d'un ABAT n'existe pas ou n'est pas complète. "
      "Elle peut rester en blanc.",
      "The date of entry into the slaughterhouse (C6, columns 93 to 100) of an ABAT record does not exist or "
      "is not complete. It may stay blank."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, ou huit blancs.",
      "Write a complete date that exists, as DDMMYYYY, or eight blanks."}},
    {121,
     {"Date d'entrée à l'abattoir trop ancienne", "Slaughterhouse entry date too early"},
     {"L'année de la date d'entrée à l'abattoir (C6, colonnes 93 à 100) d'un ABAT n'est pas postérieure à "
      "1997.",
      "The year of the date of entry into the slaughterhouse (C6, columns 93 to 100) of an ABAT record is "
      "not later than 1997."},
     {"Corrigez la date : elle est du 01/01/1998 ou plus récente, ou laissée en blanc.",
      "Correct the date: it is 01/01/1998 or later, or left blank."}},
    {122,
     {"Date d'abattage, ou date C36 d'ERRE, incorrecte", "Slaughter date, or date C36 of ERRE, not valid"},
     {"La date d'abattage (C7, colonnes 101 à 108) d'un ABAT, ou la date C36 (colonnes 214 à 221) d'un "
      "ERRE, n'existe pas ou n'est pas complète. Elle est obligatoire.",
      "The slaughter date (C7, columns 101 to 108) of an ABAT record, or the date C36 (columns 214 to "
      "221) of an ERRE record, does not exist or is not complete. It is compulsory."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {123,
     {"Date d'abattage trop ancienne", "Slaughter date too early"},
     {"L'année de la date d'abattage (C7, colonnes 101 à 108) d'un ABAT n'est pas postérieure à 1997.",
      "The year of the slaughter date (C7, columns 101 to 108) of an ABAT record is not later than 1997."},
     {"Corrigez la date d'abattage : elle est du 01/01/1998 ou plus récente.",
      "Correct the slaughter date: it is 01/01/1998 or later."}},
    {124,
     {"Abattage avant l'entrée à l'abattoir", "Slaughter before entry into the slaughterhouse"},
     {"Dans un ABAT, la date d'abattage (C7) est antérieure à la date d'entrée à l'abattoir (C6).",
      "In an ABAT record the slaughter date (C7) is earlier than the date of entry into the slaughterhouse "
      "(C6)."},
     {"Comparez les deux dates et corrigez celle qui est fausse.",
      "Compare the two dates and correct the one that is wrong."}},
    {125,
     {"Poids de carcasse mal écrit", "Carcass weight not well written"},
     {"Le poids de carcasse (C9, colonnes 117 à 123) d'un ABAT n'est pas écrit avec quatre chiffres, une "
      "virgule et deux chiffres. Il peut rester en blanc.",
      "The carcass weight (C9, columns 117 to 123) of an ABAT record is not written as four digits, a "
      "comma and two digits. It may stay blank."},
     {"Écrivez le poids en kilogrammes sous la forme 0350,50, ou laissez les sept colonnes en blanc.",
      "Write the weight in kilograms as in 0350,50, or leave the seven columns blank."}},
    {126,
     {"Poids de carcasse supérieur à 1000 kg", "Carcass weight above 1000 kg"},
     {"Le poids de carcasse (C9, colonnes 117 à 123) d'un ABAT dépasse 1000 kg.",
      "The carcass weight (C9, columns 117 to 123) of an ABAT record is above 1000 kg."},
     {"Contrôlez le poids et la place de la virgule : 0350,50 vaut trois cent cinquante kilogrammes et "
      "demi.",
      "Check the weight and the place of the comma: 0350,50 is three hundred and fifty and a half "
      "kilograms."}},
    {127,
     {"Notificateur : pays incorrect ou identifiant absent",
      "Notifier: country not valid or identification missing"},
     {"Dans un ABAT, le pays du notificateur (C10) n'est pas FR, ou son identifiant (C11) est vide. Si "
      "l'identifiant commence par OFFICE ou ONICAB, le pays doit être celui qui le suit, aux positions 7 et "
      "8.",
      "In an ABAT record the notifier's country (C10) is not FR, or its identification (C11) is blank. If "
      "the identification begins with OFFICE or ONICAB, the country must be the one that follows it, in "
      "positions 7 and 8."},
     {"Remplissez C11 et inscrivez FR dans C10, ou le pays qui suit OFFICE ou ONICAB.",
      "Fill C11 and write FR in C10, or the country that follows OFFICE or ONICAB."}},
    {128,
     {"Numéro d'abattoir refusé", "Slaughterhouse number refused"},
     {"Le numéro d'abattoir (C8, colonnes 109 à 116) d'un ABAT ne commence pas par une lettre ou un chiffre. "
      "Si le notificateur (C11) commence par OFFICE, il doit être fait des deux codes pays C4 et C10, dans "
      "cet ordre. Il peut rester en blanc.",
      "The slaughterhouse number (C8, columns 109 to 116) of an ABAT record does not begin with a letter "
      "or a digit. If the notifier (C11) begins with OFFICE, it must be the two country codes C4 and C10, "
      "in that order. It may stay blank."},
     {"Écrivez le numéro à gauche du champ ; pour un notificateur OFFICE, écrivez le pays C4 puis le pays "
      "C10.",
      "Write the number from the left of the field; for an OFFICE notifier, write the country C4, then "
      "the country C10."}},
    {129,
     {"Avis d'abattage : organisme autre que NORMABEV", "Slaughter notice: body other than NORMABEV"},
     {"L'émetteur du fichier est NORM01, et l'organisme départemental (E8, colonnes 27 à 34) de l'ABAT "
      "n'est pas NORMABEV.",
      "The emitter of the file is NORM01, and the departmental body (E8, columns 27 to 34) of the ABAT "
      "record is not NORMABEV."},
     {"Inscrivez NORMABEV dans les colonnes 27 à 34, ou corrigez l'émetteur dans l'enregistrement FICH.",
      "Write NORMABEV in columns 27 to 34, or correct the emitter in the FICH record."}},
    {130,
     {"Code C12 autre que D ou E (DETE)", "Code C12 other than D or E (DETE)"},
     {"Le code C12 (colonne 224) d'un DETE de genre DEM n'est ni D ni E. Avec D, le champ C2 est lu comme "
      "un code de détenteur, sinon comme un numéro d'exploitation.",
      "The code C12 (column 224) of a DETE record of kind DEM is neither D nor E. With D, field C2 is "
      "read as a keeper code, otherwise as a holding number."},
     {"Inscrivez D pour un détenteur, E pour une exploitation.", "Write D for a keeper, E for a holding."}},
    {131,
     {"Production inconnue ou non admise", "Production unknown or not allowed"},
     {"Le code de production n'est pas admis : C7 d'ACTI (B, C, N, O, P ou V), C4 d'EGET, d'ERTI et de "
      "RATA (P ou V), ou C5 d'ERTI, qui est D, E, F, G, H, J, K, L ou M quand C4 vaut V, et un blanc sinon.",
      "The production code is not allowed: C7 of ACTI (B, C, N, O, P or V), C4 of EGET, ERTI and RATA (P "
      "or V), or C5 of ERTI, which is D, E, F, G, H, J, K, L or M when C4 is V, and a blank otherwise."},
     {"Inscrivez un code admis pour le champ. Dans ERTI, contrôlez C4 et C5 ensemble.",
      "Write a code that the field allows. In ERTI check C4 and C5 together."}},
    {132,
     {"Indicateur autre que 0 ou 1 (genre MOD)", "Flag other than 0 or 1 (kind MOD)"},
     {"Un indicateur vaut autre chose que 0 ou 1 : C22 (colonne 176) d'un ECHA MOD, C23 (colonne 182) d'un "
      "IMPO MOD, C25 (colonne 160) d'un NAIS MOD.",
      "A flag is something other than 0 or 1: C22 (column 176) of an ECHA MOD record, C23 (column 182) of "
      "an IMPO MOD record, C25 (column 160) of a NAIS MOD record."},
     {"Inscrivez 0 ou 1 dans cette colonne.", "Write 0 or 1 in that column."}},
    {134,
     {"Date de réception incorrecte", "Receipt date not valid"},
     {"La date de réception d'un enregistrement de genre CRE n'existe pas ou n'est pas complète. Elle est "
      "obligatoire dans ECHA, IMPO, NAIS et NVMN ; elle peut rester en blanc dans ENTR, SORT et RACO.",
      "The receipt date of a record of kind CRE does not exist or is not complete. It is compulsory in "
      "ECHA, IMPO, NAIS and NVMN; it may stay blank in ENTR, SORT and RACO."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {135,
     {"Émetteur non associé à cet organisme", "Emitter not associated with this body"},
     {"L'émetteur du fichier ne peut pas envoyer pour l'organisme départemental de l'enregistrement (E8, "
      "colonnes 27 à 34), ou l'organisme C37 d'un ERRE ne va pas avec cet émetteur.",
      "The emitter of the file may not send for the departmental body of the record (E8, columns 27 to "
      "34), or the body C37 of an ERRE record does not go with that emitter."},
     {"Contrôlez l'émetteur dans l'enregistrement FICH (colonnes 3 à 10) et l'organisme dans "
      "l'enregistrement. Envoyez par son propre émetteur ce qui relève d'un autre organisme.",
      "Check the emitter in the FICH record (columns 3 to 10) and the body in the record. What belongs "
      "to another body is sent through its own emitter."}},
    {136,
     {"Numéro SIREN incorrect", "SIREN number not valid"},
     {"Dans un ASSO dont le type de numéro (C5) est SIREN, le numéro C6 ne compte pas neuf chiffres suivis "
      "de onze blancs. En genre CRE ou MOD, sa clé de contrôle (Luhn) doit aussi être juste.",
      "In an ASSO record whose type of number (C5) is SIREN, the number C6 is not nine digits followed by "
      "eleven blanks. With kind CRE or MOD its check digit (Luhn) must be right as well."},
     {"Recopiez le SIREN, neuf chiffres sans blanc, à gauche du champ. Si sa forme est bonne, un chiffre "
      "est sans doute à corriger.",
      "Copy the SIREN again, nine digits without a blank, from the left of the field. If its form is "
      "right, a digit probably needs correcting."}},
    {137,
     {"Réception antérieure à l'événement", "Receipt earlier than the event"},
     {"En genre CRE, la date de réception est antérieure à la date de naissance C6 (ECHA, IMPO, NAIS, "
      "NVMN) ou à celle du mouvement C4 (ENTR et SORT, sauf cause J). Dans RACO, son année doit suivre "
      "celle du recensement (C4), sans l'égaler.",
      "With kind CRE the receipt date is earlier than the date of birth C6 (ECHA, IMPO, NAIS, NVMN) or "
      "than that of the movement C4 (ENTR and SORT, except cause J). In RACO its year must be later than "
      "that of the census (C4), not the same."},
     {"Comparez les deux dates et corrigez celle qui est fausse.",
      "Compare the two dates and correct the one that is wrong."}},
    {138,
     {"EGET sans son RATA", "EGET without its RATA"},
     {"Un EGET de genre CRE, sans autre erreur, n'est pas suivi aussitôt d'un RATA de genre CRE avec le "
      "même code de site C2. Un rejet est alors écrit pour l'EGET.",
      "An EGET record of kind CRE, with no other error, is not followed at once by a RATA record of kind "
      "CRE with the same site code C2. A rejection is then written for the EGET."},
     {"Placez le RATA juste après son EGET et recopiez les douze caractères de C2 à l'identique.",
      "Put the RATA right after its EGET and copy the twelve characters of C2 exactly."}},
    {139,
     {"Site : pays autre que FR ou code absent", "Site: country other than FR, or code missing"},
     {"Dans un EGET, un ERTI ou un RATA, le code pays C1 n'est pas FR, ou le code du site C2 est vide.",
      "In an EGET, ERTI or RATA record the country code C1 is not FR, or the site code C2 is blank."},
     {"Inscrivez FR dans C1 et le code du site dans C2.", "Write FR in C1 and the site code in C2."}},
    {140,
     {"Code de site mal formé", "Site code not well formed"},
     {"Le code de site C2 d'un EGET, d'un ERTI ou d'un RATA n'a pas la forme que veut la production C4 : "
      "pour V, une série de deux lettres connue, une majuscule et deux chiffres ; pour P, un département, "
      "puis des chiffres ou des majuscules. Cinq caractères en tout, puis sept blancs ; toute autre "
      "production est aussi refusée.",
      "The site code C2 of an EGET, ERTI or RATA record does not have the form that the production C4 "
      "asks for: for V a known series of two letters, a capital and two digits; for P a department, then "
      "digits or capitals. Five characters in all, then seven blanks; any other production is refused too."},
     {"Contrôlez d'abord la production C4, P ou V, puis écrivez les cinq caractères du code à gauche du "
      "champ.",
      "Check the production C4 first, P or V, then write the five characters of the code from the left "
      "of the field."}},
    {141,
     {"C5 et C6 tous deux vides (EGET)", "C5 and C6 both blank (EGET)"},
     {"Les deux champs C5 et C6 (colonnes 80 à 139) d'un EGET de genre CRE ou MOD sont en blanc. L'erreur "
      "est donnée pour chacun des deux.",
      "Both fields C5 and C6 (columns 80 to 139) of an EGET record of kind CRE or MOD are blank. The "
      "error is given for each of the two."},
     {"Remplissez au moins l'un des deux champs.", "Fill at least one of the two fields."}},
    {142,
     {"Champ C7 non renseigné (EGET)", "Field C7 left blank (EGET)"},
     {"Les cinq colonnes du champ C7 (140 à 144) d'un EGET de genre CRE ou MOD sont en blanc.",
      "The five columns of field C7 (140 to 144) of an EGET record of kind CRE or MOD are blank."},
     {"Remplissez le champ C7 ; aucune liste ne limite son contenu.",
      "Fill field C7; no list limits what it holds."}},
    {143,
     {"Champ C8 non renseigné (EGET)", "Field C8 left blank (EGET)"},
     {"Le champ C8 (colonnes 145 à 174) d'un EGET de genre CRE ou MOD est en blanc.",
      "Field C8 (columns 145 to 174) of an EGET record of kind CRE or MOD is blank."},
     {"Remplissez le champ C8 ; aucune liste ne limite son contenu.",
      "Fill field C8; no list limits what it holds."}},
    {144,
     {"Date C6 ou C8 incorrecte (ERTI)", "Date C6 or C8 not valid (ERTI)"},
     {"Dans un ERTI, une date n'existe pas ou n'est pas complète : C6 (colonnes 81 à 88) en genre CRE, C8 "
      "(colonnes 97 à 104) en genre INV ou MOD.",
      "In an ERTI record a date does not exist or is not complete: C6 (columns 81 to 88) with kind CRE, "
      "C8 (columns 97 to 104) with kind INV or MOD."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {145,
     {"Date C7 incorrecte (ERTI)", "Date C7 not valid (ERTI)"},
     {"La date C7 (colonnes 89 à 96) d'un ERTI de genre CRE ou MOD n'existe pas ou n'est pas complète. "
      "Elle peut rester en blanc.",
      "The date C7 (columns 89 to 96) of an ERTI record of kind CRE or MOD does not exist or is not "
      "complete. It may stay blank."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, ou huit blancs.",
      "Write a complete date that exists, as DDMMYYYY, or eight blanks."}},
    {146,
     {"Code C9 incorrect (ERTI)", "Code C9 not valid (ERTI)"},
     {"Le code C9 (colonnes 105 à 108) d'un ERTI de genre CRE ou MOD doit être OEUF quand la production C5 "
      "vaut M, et rester en blanc sinon.",
      "The code C9 (columns 105 to 108) of an ERTI record of kind CRE or MOD must be OEUF when the "
      "production C5 is M, and stay blank otherwise."},
     {"Contrôlez la production C5, puis inscrivez OEUF ou quatre blancs dans C9.",
      "Check the production C5, then write OEUF or four blanks in C9."}},
    {147,
     {"Code C10 incorrect (ERTI)", "Code C10 not valid (ERTI)"},
     {"Le code C10 (colonnes 109 à 112) d'un ERTI de genre CRE ou MOD doit être 0, 1, 2 ou 3 suivi de trois "
      "blancs quand la production C5 vaut M, et rester en blanc sinon.",
      "The code C10 (columns 109 to 112) of an ERTI record of kind CRE or MOD must be 0, 1, 2 or 3 followed "
      "by three blanks when the production C5 is M, and stay blank otherwise."},
     {"Contrôlez la production C5, puis inscrivez un chiffre de 0 à 3 à gauche du champ, ou quatre blancs.",
      "Check the production C5, then write a digit from 0 to 3 at the left of the field, or four blanks."}},
    {148,
     {"Date C9 ou C10 incorrecte (RATA)", "Date C9 or C10 not valid (RATA)"},
     {"Dans un RATA, une date n'existe pas ou n'est pas complète : C9 (colonnes 108 à 115) ou, en genre "
      "MOD, C10 (colonnes 116 à 123).",
      "In a RATA record a date does not exist or is not complete: C9 (columns 108 to 115) or, with kind "
      "MOD, C10 (columns 116 to 123)."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {149,
     {"Dates dans le désordre (ASSO, ERTI)", "Dates in the wrong order (ASSO, ERTI)"},
     {"Une date est antérieure à celle qui doit la précéder : C8 avant C7 dans un ASSO, C7 avant C6 dans "
      "un ERTI, en genre CRE ou MOD. La seconde date peut rester en blanc.",
      "A date is earlier than the one that must come before it: C8 before C7 in an ASSO record, C7 before "
      "C6 in an ERTI record, with kind CRE or MOD. The second date may stay blank."},
     {"Comparez les deux dates et corrigez celle qui est fausse.",
      "Compare the two dates and correct the one that is wrong."}},
    {150,
     {"Code ou témoin de boucle refusé (NUMA, REBO)", "Tag code or tag witness refused (NUMA, REBO)"},
     {"En genre MOD, le code C8 (colonne 107) d'un NUMA n'est pas un chiffre de 0 à 5, ou le témoin C25 "
      "(colonne 228) d'un REBO est en blanc alors que la date C4 est du 01/01/2011 ou plus récente.",
      "With kind MOD the code C8 (column 107) of a NUMA record is not a digit from 0 to 5, or the witness "
      "C25 (column 228) of a REBO record is blank although the date C4 is 01/01/2011 or later."},
     {"Inscrivez un chiffre de 0 à 5 dans NUMA ; remplissez la colonne 228 dans REBO, où 0 est refusé.",
      "Write a digit from 0 to 5 in NUMA; fill column 228 in REBO, where 0 is refused."}},
    {151,
     {"Numéro ovin ou caprin mal formé (GROC, PICO)", "Ovine or caprine number not well formed (GROC, PICO)"},
     {"Quand son pays est FR, le numéro commence par six chiffres de 100000 à 683499. C2 d'un GROC compte "
      "onze chiffres et un blanc ; C5 d'un PICO continue par R, C ou un chiffre (pour une commande PR, PC "
      "ou autre), quatre chiffres ou quatre blancs, et finit par un blanc.",
      "When its country is FR, the number begins with six digits from 100000 to 683499. C2 of a GROC "
      "record has eleven digits and a blank; C5 of a PICO record goes on with R, C or a digit (for an "
      "order PR, PC or other), four digits or four blanks, and ends with a blank."},
     {"Écrivez le numéro à gauche du champ, sans blanc entre les chiffres. Dans PICO, contrôlez aussi le "
      "type de commande C9.",
      "Write the number from the left of the field, without a blank between the digits. In PICO check "
      "the order type C9 as well."}},
    {152,
     {"Pays d'origine incorrect (GROC, PICO)", "Country of origin not valid (GROC, PICO)"},
     {"Le pays d'origine (C8 d'un GROC, C10 d'un PICO) n'est pas connu. Dans GROC, il doit rester en blanc "
      "quand le pays C1 n'est pas FR.",
      "The country of origin (C8 of a GROC record, C10 of a PICO record) is not known. In GROC it must "
      "stay blank when the country C1 is not FR."},
     {"Inscrivez un code pays connu ; dans un GROC dont le pays C1 n'est pas FR, laissez deux blancs.",
      "Write a known country code; in a GROC record whose country C1 is not FR, leave two blanks."}},
    {153,
     {"Modèle de boucle absent ou incomplet", "Tag model missing or incomplete"},
     {"Le modèle de boucle n'est pas fait de six caractères sans blanc suivis de deux blancs. Dans NUMA et "
      "REBO, il peut rester en blanc si la date (C7 de NUMA, C4 de REBO) est antérieure au 01/01/2011.",
      "The tag model is not six characters without a blank followed by two blanks. In NUMA and REBO it "
      "may stay blank if the date (C7 of NUMA, C4 of REBO) is before 01/01/2011."},
     {"Écrivez les six caractères du modèle à gauche du champ, puis deux blancs.",
      "Write the six characters of the model from the left of the field, then two blanks."}},
    {154,
     {"Modèle de boucle : premier caractère inconnu", "Tag model: first character unknown"},
     {"Le premier caractère du modèle de boucle n'est pas une lettre de A à N.",
      "The first character of the tag model is not a letter from A to N."},
     {"Inscrivez en première position une lettre de A à N.",
      "Write a letter from A to N in the first position."}},
    {155,
     {"Modèle de boucle : deuxième caractère inconnu", "Tag model: second character unknown"},
     {"Le deuxième caractère du modèle de boucle n'est pas admis : c'est B dans NUMA et REBO, Z, C ou O "
      "dans GROC et PICO.",
      "The second character of the tag model is not allowed: it is B in NUMA and REBO, Z, C or O in GROC "
      "and PICO."},
     {"Corrigez le deuxième caractère : B dans NUMA et REBO, Z, C ou O dans GROC et PICO.",
      "Correct the second character: B in NUMA and REBO, Z, C or O in GROC and PICO."}},
    {156,
     {"Modèle de boucle : troisième caractère inconnu", "Tag model: third character unknown"},
     {"Le troisième caractère du modèle de boucle n'est ni E ni C. Dans GROC et PICO, E rend le compteur "
      "obligatoire.",
      "The third character of the tag model is neither E nor C. In GROC and PICO, E makes the counter "
      "compulsory."},
     {"Inscrivez E ou C en troisième position.", "Write E or C in the third position."}},
    {157,
     {"Modèle de boucle : numéro mal écrit", "Tag model: number not well written"},
     {"Les positions 4 à 6 du modèle de boucle ne sont pas toutes des chiffres.",
      "Positions 4 to 6 of the tag model are not all digits."},
     {"Écrivez trois chiffres aux positions 4 à 6, avec des zéros à gauche si besoin.",
      "Write three digits in positions 4 to 6, with zeros on the left if needed."}},
    {158,
     {"Compteur incorrect (GROC, PICO)", "Counter not valid (GROC, PICO)"},
     {"Le compteur (C9 d'un GROC, C11 d'un PICO) doit être un chiffre de 0 à 7 quand le troisième "
      "caractère du modèle de boucle est E, et rester en blanc sinon.",
      "The counter (C9 of a GROC record, C11 of a PICO record) must be a digit from 0 to 7 when the third "
      "character of the tag model is E, and stay blank otherwise."},
     {"Contrôlez le modèle de boucle, puis inscrivez un chiffre de 0 à 7, ou un blanc.",
      "Check the tag model, then write a digit from 0 to 7, or a blank."}},
    {159,
     {"Pays C1 autre que FR (IMOC)", "Country C1 other than FR (IMOC)"},
     {"Le code pays C1 (colonnes 63 et 64) d'un IMOC n'est pas FR.",
      "The country code C1 (columns 63 and 64) of an IMOC record is not FR."},
     {"Inscrivez FR dans les colonnes 63 et 64.", "Write FR in columns 63 and 64."}},
    {160,
     {"Numéro ovin ou caprin absent (IMOC)", "Ovine or caprine number missing (IMOC)"},
     {"Le numéro C2 (colonnes 65 à 76) d'un IMOC est vide.",
      "The number C2 (columns 65 to 76) of an IMOC record is blank."},
     {"Inscrivez les six chiffres du numéro, puis six blancs.",
      "Write the six digits of the number, then six blanks."}},
    {161,
     {"Numéro ovin ou caprin mal formé (IMOC)", "Ovine or caprine number not well formed (IMOC)"},
     {"Le numéro C2 (colonnes 65 à 76) d'un IMOC n'est pas fait de six chiffres de 100000 à 683499, puis de "
      "six blancs.",
      "The number C2 (columns 65 to 76) of an IMOC record is not six digits from 100000 to 683499, then six "
      "blanks."},
     {"Écrivez les six chiffres à gauche du champ et laissez le reste en blanc.",
      "Write the six digits from the left of the field and leave the rest blank."}},
    {162,
     {"Code C6 inconnu (IMOC)", "Code C6 unknown (IMOC)"},
     {"Le code C6 (colonne 93) d'un IMOC de genre CRE n'est ni Z, ni C, ni O.",
      "The code C6 (column 93) of an IMOC record of kind CRE is neither Z, nor C, nor O."},
     {"Inscrivez Z, C ou O dans la colonne 93.", "Write Z, C or O in column 93."}},
    {163,
     {"Date C7 incorrecte (IMOC)", "Date C7 not valid (IMOC)"},
     {"La date C7 (colonnes 94 à 101) d'un IMOC de genre CRE n'existe pas ou n'est pas complète.",
      "The date C7 (columns 94 to 101) of an IMOC record of kind CRE does not exist or is not complete."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {164,
     {"Pays C4 autre que FR (PICO)", "Country C4 other than FR (PICO)"},
     {"Le code pays C4 (colonnes 79 et 80) du premier numéro de la plage d'un PICO n'est pas FR.",
      "The country code C4 (columns 79 and 80) of the first number of the range of a PICO record is not "
      "FR."},
     {"Inscrivez FR dans les colonnes 79 et 80.", "Write FR in columns 79 and 80."}},
    {165,
     {"Premier numéro de la plage absent (PICO)", "First number of the range missing (PICO)"},
     {"Le premier numéro de la plage C5 (colonnes 81 à 92) d'un PICO est vide.",
      "The first number of the range C5 (columns 81 to 92) of a PICO record is blank."},
     {"Inscrivez le premier numéro de la plage, à gauche du champ.",
      "Write the first number of the range, from the left of the field."}},
    {166,
     {"Type de commande inconnu (PICO)", "Order type unknown (PICO)"},
     {"Le type de commande C9 (colonnes 115 et 116) d'un PICO n'est pas dans la liste.",
      "The order type C9 (columns 115 and 116) of a PICO record is not in the list."},
     {"Inscrivez I0, I1, I2, I3, I4, I5, PR ou PC.", "Write I0, I1, I2, I3, I4, I5, PR or PC."}},
    {167,
     {"Année de recensement mal écrite (RACO)", "Census year not well written (RACO)"},
     {"L'année du recensement C4 (colonnes 79 à 82) d'un RACO n'est pas faite de quatre chiffres.",
      "The census year C4 (columns 79 to 82) of a RACO record is not four digits."},
     {"Écrivez l'année sur quatre chiffres.", "Write the year in four digits."}},
    {168,
     {"Année de recensement non écoulée (RACO)", "Census year not over (RACO)"},
     {"L'année du recensement C4 (colonnes 79 à 82) d'un RACO n'est pas antérieure à l'année de la date de "
      "l'enregistrement (F1).",
      "The census year C4 (columns 79 to 82) of a RACO record is not earlier than the year of the "
      "record's date (F1)."},
     {"Donnez une année antérieure à celle de l'enregistrement, ou corrigez la date F1.",
      "Give a year earlier than that of the record, or correct the date F1."}},
    {169,
     {"Catégorie de recensement inconnue (RACO)", "Census category unknown (RACO)"},
     {"La catégorie C5 (colonnes 83 à 88) d'un RACO n'est pas dans la liste.",
      "The category C5 (columns 83 to 88) of a RACO record is not in the list."},
     {"Inscrivez une catégorie de la liste, en six majuscules.",
      "Write a category of the list, in six capitals."}},
    {170,
     {"Champ C6 autre que six chiffres (RACO)", "Field C6 other than six digits (RACO)"},
     {"Le champ C6 (colonnes 89 à 94) d'un RACO de genre CRE ou MOD n'est pas écrit sur six chiffres.",
      "Field C6 (columns 89 to 94) of a RACO record of kind CRE or MOD is not written in six digits."},
     {"Écrivez un nombre sur six chiffres, avec des zéros à gauche, par exemple 000042.",
      "Write a number in six digits, with zeros on the left, for example 000042."}},
    {171,
     {"Genre d'identifiant autre que D ou E (ASSO)", "Kind of identifier other than D or E (ASSO)"},
     {"Le genre d'identifiant C4 (colonne 79) d'un ASSO n'est ni D ni E.",
      "The kind of identifier C4 (column 79) of an ASSO record is neither D nor E."},
     {"Inscrivez D ou E dans la colonne 79.", "Write D or E in column 79."}},
    {172,
     {"Type de numéro inconnu (ASSO)", "Type of number unknown (ASSO)"},
     {"Le type de numéro C5 (colonnes 80 à 84) d'un ASSO n'est pas dans la liste.",
      "The type of number C5 (columns 80 to 84) of an ASSO record is not in the list."},
     {"Inscrivez SIREN, SIRET, AGRIN, AGRIT, AGRSA ou CEM suivi de deux blancs.",
      "Write SIREN, SIRET, AGRIN, AGRIT, AGRSA, or CEM followed by two blanks."}},
    {173,
     {"Numéro absent (ASSO)", "Number missing (ASSO)"},
     {"Le numéro C6 (colonnes 85 à 104) d'un ASSO est vide.",
      "The number C6 (columns 85 to 104) of an ASSO record is blank."},
     {"Inscrivez le numéro, à gauche du champ, sous la forme que veut son type C5.",
      "Write the number, from the left of the field, in the form that its type C5 asks for."}},
    {174,
     {"Date de début incorrecte (ASSO)", "Start date not valid (ASSO)"},
     {"La date de début C7 (colonnes 105 à 112) d'un ASSO de genre CRE ou MOD n'existe pas ou n'est pas "
      "complète.",
      "The start date C7 (columns 105 to 112) of an ASSO record of kind CRE or MOD does not exist or is "
      "not complete."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, à partir de l'année 1900.",
      "Write a complete date that exists, as DDMMYYYY, from the year 1900 on."}},
    {175,
     {"Date de fin incorrecte (ASSO)", "End date not valid (ASSO)"},
     {"La date de fin C8 (colonnes 113 à 120) d'un ASSO de genre CRE ou MOD n'existe pas ou n'est pas "
      "complète. Elle peut rester en blanc.",
      "The end date C8 (columns 113 to 120) of an ASSO record of kind CRE or MOD does not exist or is not "
      "complete. It may stay blank."},
     {"Écrivez une date complète qui existe, sous la forme JJMMAAAA, ou huit blancs.",
      "Write a complete date that exists, as DDMMYYYY, or eight blanks."}},
    {177,
     {"Quantité hors de 1 à 1000 (NUMA)", "Count outside 1 to 1000 (NUMA)"},
     {"La quantité de numéros C6 (colonnes 93 à 98) d'un NUMA n'est pas comprise entre 1 et 1000.",
      "The count of numbers C6 (columns 93 to 98) of a NUMA record does not lie between 1 and 1000."},
     {"Donnez une quantité de 000001 à 001000 ; partagez une plage plus grande en plusieurs "
      "enregistrements.",
      "Give a count from 000001 to 001000; split a larger range into several records."}},
    {178,
     {"Quantité hors de 1 à 10000 (PICO)", "Count outside 1 to 10000 (PICO)"},
     {"La quantité de numéros C6 (colonnes 93 à 98) d'un PICO n'est pas comprise entre 1 et 10000.",
      "The count of numbers C6 (columns 93 to 98) of a PICO record does not lie between 1 and 10000."},
     {"Donnez une quantité de 000001 à 010000 ; partagez une plage plus grande en plusieurs "
      "enregistrements.",
      "Give a count from 000001 to 010000; split a larger range into several records."}},
    {179,
     {"Plage de numéros trop longue (NUMA)", "Range of numbers too long (NUMA)"},
     {"Dans un NUMA, le premier numéro C5 (ses huit chiffres après le département) et la quantité C6 "
      "dépassent ensemble 100000000 : la plage sort du département.",
      "In a NUMA record the first number C5 (its eight digits after the department) and the count C6 "
      "together exceed 100000000: the range leaves the department."},
     {"Réduisez la quantité, ou commencez la plage par un numéro plus petit.",
      "Reduce the count, or begin the range with a smaller number."}},
    {180,
     {"Plage de numéros trop longue (PICO)", "Range of numbers too long (PICO)"},
     {"Dans un PICO, le premier numéro C5 et la quantité C6 dépassent ensemble la série : 100000 pour les "
      "chiffres à partir de la position 7, ou 10000 à partir de la position 8 pour une commande PR ou PC.",
      "In a PICO record the first number C5 and the count C6 together exceed the series: 100000 for the "
      "digits from position 7 on, or 10000 from position 8 on for an order PR or PC."},
     {"Réduisez la quantité, ou commencez la plage par un numéro plus petit.",
      "Reduce the count, or begin the range with a smaller number."}},
    {181,
     {"Numéro AGRIN, AGRIT ou CEM mal formé (ASSO)", "AGRIN, AGRIT or CEM number not well formed (ASSO)"},
     {"Dans un ASSO, le numéro C6 n'a pas la forme de son type C5 : AGRIN est une majuscule et huit "
      "chiffres, AGRIT une majuscule et onze chiffres, CEM sept lettres ou chiffres ; le reste du champ "
      "est en blanc.",
      "In an ASSO record the number C6 does not have the form of its type C5: AGRIN is a capital and "
      "eight digits, AGRIT a capital and eleven digits, CEM seven letters or digits; the rest of the "
      "field is blank."},
     {"Contrôlez le type C5, puis écrivez le numéro à gauche du champ, sans blanc à l'intérieur.",
      "Check the type C5, then write the number from the left of the field, without a blank inside."}},
    {182,
     {"Enregistrement non admis de ce partenaire", "Record not accepted from this partner"},
     {"Le fichier vient de 000PFO ou de NORMABEV pour 031BDN. Seuls sont alors admis les INFO DEM, les "
      "JALO CRE, les ENTR CRE de cause F, les SORT CRE de cause S ou M, et les ABAT.",
      "The file comes from 000PFO or NORMABEV for 031BDN. Only INFO DEM, JALO CRE, ENTR CRE with cause F, "
      "SORT CRE with cause S or M, and ABAT records are then accepted."},
     {"Retirez cet enregistrement du fichier, ou contrôlez l'émetteur et le récepteur dans "
      "l'enregistrement FICH.",
      "Take this record out of the file, or check the emitter and the receiver in the FICH record."}},
    {183,
     {"Type de numéro inadapté au genre (ASSO)", "Type of number does not fit its kind (ASSO)"},
     {"Dans un ASSO de genre CRE ou MOD, le type de numéro C5 ne va pas avec le genre d'identifiant C4 : D "
      "demande SIREN ou AGRIN, E demande SIRET, AGRIT, AGRSA ou CEM.",
      "In an ASSO record of transaction kind CRE or MOD the type of number C5 does not go with the kind "
      "of identifier C4: D asks for SIREN or AGRIN, E for SIRET, AGRIT, AGRSA or CEM."},
     {"Corrigez C4 ou C5 pour qu'ils aillent ensemble.", "Correct C4 or C5 so that they go together."}},
    {184,
     {"Numéro d'agrément sanitaire mal formé (ASSO)", "Sanitary approval number not well formed (ASSO)"},
     {"Dans un ASSO dont le type C5 est AGRSA, le numéro C6 doit commencer par un département et avoir "
      "sept caractères sans blanc, un huitième libre, puis douze blancs. La Corse s'y écrit 2A ou 2B ; 20 "
      "et 98 sont refusés, et 97 est suivi de 1, 2, 3, 4 ou 6.",
      "In an ASSO record whose type C5 is AGRSA, the number C6 must begin with a department and have "
      "seven characters without a blank, a free eighth, then twelve blanks. Corsica is written 2A or 2B "
      "there; 20 and 98 are refused, and 97 is followed by 1, 2, 3, 4 or 6."},
     {"Écrivez le numéro d'agrément à gauche du champ, et contrôlez son département.",
      "Write the approval number from the left of the field, and check its department."}},
    {185,
     {"Identifiant C4 absent (ERRE)", "Identifier C4 missing (ERRE)"},
     {"L'identifiant C4 (colonnes 72 à 83) d'un ERRE est vide.",
      "The identifier C4 (columns 72 to 83) of an ERRE record is blank."},
     {"Remplissez le champ C4 ; aucune liste ne limite son contenu.",
      "Fill field C4; no list limits what it holds."}},
    {186,
     {"Numéro C6 absent ou mal formé (ERRE)", "Number C6 missing or not well formed (ERRE)"},
     {"Le numéro C6 (colonnes 86 à 97) d'un ERRE est vide, contient autre chose que des majuscules et des "
      "chiffres, ou commence par son code pays C5.",
      "The number C6 (columns 86 to 97) of an ERRE record is blank, holds something other than capitals "
      "and digits, or begins with its country code C5."},
     {"Écrivez le numéro à gauche du champ, en majuscules et chiffres, sans blanc à l'intérieur et sans le "
      "code pays.",
      "Write the number from the left of the field, in capitals and digits, without a blank inside and "
      "without the country code."}},
    {187,
     {"Code C9 mal formé (ERRE)", "Code C9 not well formed (ERRE)"},
     {"Le code C9 (colonnes 112 à 115) d'un ERRE n'est pas fait de quatre lettres ou chiffres.",
      "The code C9 (columns 112 to 115) of an ERRE record is not four letters or digits."},
     {"Remplissez les quatre colonnes de lettres ou de chiffres, sans blanc.",
      "Fill the four columns with letters or digits, without a blank."}},
    {188,
     {"Code C10 absent (ERRE)", "Code C10 missing (ERRE)"},
     {"La colonne 116 (C10) d'un ERRE est en blanc.", "Column 116 (C10) of an ERRE record is blank."},
     {"Remplissez la colonne 116 ; aucune liste ne limite son contenu.",
      "Fill column 116; no list limits what it holds."}},
    {189,
     {"Pays C29 ou numéro C30 incorrect (ERRE)", "Country C29 or number C30 not valid (ERRE)"},
     {"Dans un ERRE, le code pays C29 n'est ni FR ni en blanc, ou le numéro C30, quand il est donné, n'a "
      "pas la forme d'un numéro d'agrément sanitaire français.",
      "In an ERRE record the country code C29 is neither FR nor blank, or the number C30, when given, "
      "does not have the form of a French sanitary approval number."},
     {"Laissez les deux champs en blanc, ou inscrivez FR et un numéro d'agrément qui commence par un "
      "département : sept chiffres (2A ou 2B pour la Corse), un huitième chiffre ou un blanc, puis quatre "
      "blancs.",
      "Leave both fields blank, or write FR and an approval number that begins with a department: seven "
      "digits (2A or 2B for Corsica), an eighth digit or a blank, then four blanks."}},
    {190,
     {"ERRE sur un autre message qu'un ABAT", "ERRE about another message than ABAT"},
     {"Le type cité par un ERRE (C1, colonnes 63 à 66) n'est pas ABAT : seules les erreurs sur un avis "
      "d'abattage sont acceptées.",
      "The type that an ERRE record cites (C1, columns 63 to 66) is not ABAT: only errors about a "
      "slaughter notice are accepted."},
     {"Inscrivez ABAT dans C1, ou retirez l'enregistrement du fichier.",
      "Write ABAT in C1, or take the record out of the file."}},
    {191,
     {"Témoin de boucle égal à 0 (REBO)", "Tag witness equal to 0 (REBO)"},
     {"Le témoin C25 (colonne 228) d'un REBO de genre MOD vaut 0, ce qui est refusé.",
      "The witness C25 (column 228) of a REBO record of kind MOD is 0, which is refused."},
     {"Inscrivez une autre valeur que 0. Le blanc n'est admis que si la date C4 est antérieure au "
      "01/01/2011.",
      "Write a value other than 0. A blank is accepted only if the date C4 is before 01/01/2011."}},
    {192,
     {"Date C6 à laisser en blanc (ERTI MOD)", "Date C6 to be left blank (ERTI MOD)"},
     {"La date C6 (colonnes 81 à 88) d'un ERTI de genre MOD n'est pas en blanc : elle ne se modifie pas.",
      "The date C6 (columns 81 to 88) of an ERTI record of kind MOD is not blank: it cannot be modified."},
     {"Mettez huit blancs dans les colonnes 81 à 88.", "Put eight blanks in columns 81 to 88."}},
};

// code, {title}, {what it means}, {what the operator does and where the input is}
constexpr sFatal tFatals[] = {
    {"I073",
     {"Plus de 10000 enregistrements", "More than 10000 records"},
     {"Le fichier contient plus de 10000 enregistrements après l'enregistrement FICH. Le traitement "
      "s'arrête avec le statut 1 et rien n'est publié.",
      "The file holds more than 10000 records after the FICH record. The run ends with status 1 and nothing "
      "is published."},
     {"L'entrée est rendue sous son nom. Partagez-la en plusieurs fichiers, chacun avec son enregistrement "
      "FICH et le nombre qui lui correspond, puis relancez.",
      "The input is given back under its name. Split it into several files, each with its FICH record "
      "and the number that goes with it, then run again."}},
    {"I099",
     {"Numéro de fichier absent", "File number missing"},
     {"Le numéro du fichier (C1, colonnes 63 à 78 de l'enregistrement FICH) est en blanc. Le traitement "
      "s'arrête avec le statut 1 et rien n'est publié.",
      "The file number (C1, columns 63 to 78 of the FICH record) is blank. The run ends with status 1 and "
      "nothing is published."},
     {"L'entrée est rendue sous son nom. Inscrivez le numéro du fichier dans l'enregistrement FICH, puis "
      "relancez.",
      "The input is given back under its name. Write the file number in the FICH record, then run again."}},
    {"IG001",
     {"Fichier log inaccessible", "Log file not accessible"},
     {"Le fichier log ne peut pas être ouvert, ou son nom désigne le fichier à traiter. Comme il n'y a pas "
      "de log, seuls la sortie d'erreur standard et le statut 1 le disent.",
      "The log file cannot be opened, or its name denotes the file to process. As there is no log, only "
      "standard error and status 1 tell it."},
     {"L'entrée n'a pas été touchée. Donnez pour le log un nom à lui, dans un dossier où l'écriture est "
      "permise, puis relancez.",
      "The input was not touched. Give the log a name of its own, in a folder that can be written to, "
      "then run again."}},
    {"IG002",
     {"Fichier d'erreurs de travail inaccessible", "Working error file not accessible"},
     {"Le fichier de travail des rejets (suffixe _o) ne peut pas être ouvert. Le log reste vide : la "
      "sortie d'erreur standard donne la cause, et le statut est 1.",
      "The working file of the rejections (suffix _o) cannot be opened. The log stays empty: standard "
      "error gives the cause, and the status is 1."},
     {"L'entrée se trouve sous son nom de travail (suffixe _r). Vérifiez le dossier de travail (droits, "
      "place libre, TMPDIR), redonnez à l'entrée son nom, puis relancez.",
      "The input stands under its working name (suffix _r). Check the working folder (rights, free "
      "space, TMPDIR), give the input its name again, then run again."}},
    {"IG003",
     {"Fichier à traiter ou à émettre inaccessible", "Input or output file not accessible"},
     {"Le fichier à traiter ne peut pas être ouvert ou lu, ou le fichier à émettre ne peut pas être "
      "ouvert. Le traitement s'arrête avec le statut 1 ; quand une ouverture a échoué, la sortie d'erreur "
      "standard donne la cause.",
      "The file to process cannot be opened or read, or the file to emit cannot be opened. The run ends "
      "with status 1; when an opening failed, standard error gives the cause."},
     {"Vérifiez les deux noms et leurs droits. L'entrée, si elle existe, se trouve sous son nom ou, quand "
      "l'échec est venu après son renommage, sous son nom de travail (suffixe _r) : redonnez-lui alors son "
      "nom avant de relancer.",
      "Check both names and their rights. The input, if it exists, stands under its name or, when the "
      "failure came after its renaming, under its working name (suffix _r): then give it its name again "
      "before another run."}},
    {"IG004",
     {"Fichier résultat de travail inaccessible", "Working result file not accessible"},
     {"Le fichier de travail des enregistrements acceptés (suffixe _e) ne peut pas être ouvert. Le log "
      "reste vide : la sortie d'erreur standard donne la cause, et le statut est 1.",
      "The working file of the accepted records (suffix _e) cannot be opened. The log stays empty: "
      "standard error gives the cause, and the status is 1."},
     {"L'entrée se trouve sous son nom de travail (suffixe _r). Vérifiez le dossier de travail (droits, "
      "place libre, TMPDIR), redonnez à l'entrée son nom, puis relancez.",
      "The input stands under its working name (suffix _r). Check the working folder (rights, free "
      "space, TMPDIR), give the input its name again, then run again."}},
    {"IG008",
     {"Fins de ligne mélangées", "Mixed line ends"},
     {"Le fichier mêle deux sortes de fins de ligne, LF (UNIX) et CR LF (DOS). Le traitement s'arrête avec "
      "le statut 1 et rien n'est publié.",
      "The file mixes two kinds of line ends, LF (UNIX) and CR LF (DOS). The run ends with status 1 and "
      "nothing is published."},
     {"L'entrée se trouve sous son nom de travail (suffixe _r). Redonnez-lui son nom, mettez toutes ses "
      "fins de ligne sous une même forme, puis relancez. Les fichiers restés avec les suffixes _e et _o "
      "peuvent être supprimés.",
      "The input stands under its working name (suffix _r). Give it its name again, bring all its line "
      "ends to one form, then run again. The files left with the suffixes _e and _o may be removed."}},
    {"IG009",
     {"Fichier à traiter impossible à renommer", "Input file cannot be renamed"},
     {"L'entrée n'a pas pu être renommée avant le traitement : elle est alors intacte. Ou bien elle n'a "
      "pas pu être rendue après un échec : elle est alors supprimée avec les autres fichiers du traitement.",
      "The input could not be renamed before the run: it is then untouched. Or it could not be given back "
      "after a failure: it is then removed with the other files of the run."},
     {"Vérifiez que le dossier permet de renommer et que TMPDIR, s'il est défini, est sur le même système "
      "de fichiers. Si l'entrée n'existe plus, reprenez-en une copie, puis relancez.",
      "Check that the folder allows renaming and that TMPDIR, if set, is on the same file system. If the "
      "input no longer exists, take a copy of it, then run again."}},
    {"IG010",
     {"Résultat impossible à publier", "Result cannot be published"},
     {"Le résultat n'a pas pu être écrit en entier, ou n'a pas pu prendre le nom du fichier à émettre. Le "
      "statut peut être 0 si tous les enregistrements étaient acceptés : le log fait foi.",
      "The result could not be written whole, or could not take the name of the file to emit. The status "
      "may be 0 if every record was accepted: the log decides."},
     {"L'entrée est rendue sous son nom. Libérez de la place, vérifiez le nom et le dossier de sortie, et "
      "que TMPDIR, s'il est défini, est sur le même système de fichiers, puis relancez.",
      "The input is given back under its name. Free some space, check the name and folder of the output, "
      "and that TMPDIR, if set, is on the same file system, then run again."}},
    {"IG011",
     {"Enregistrement FICH absent en tête", "FICH record missing at the head"},
     {"Le premier enregistrement n'est pas un enregistrement FICH : ses colonnes 22 à 25 ne contiennent "
      "pas FICH. Le traitement s'arrête avec le statut 1 et rien n'est publié.",
      "The first record is not a FICH record: its columns 22 to 25 do not hold FICH. The run ends with "
      "status 1 and nothing is published."},
     {"L'entrée est rendue sous son nom. Placez l'enregistrement FICH en tête du fichier et vérifiez "
      "qu'aucun caractère ne le précède (marque d'ordre des octets, par exemple), puis relancez.",
      "The input is given back under its name. Put the FICH record at the head of the file and check "
      "that no character stands before it (a byte order mark, for example), then run again."}},
    {"IG014",
     {"Aucun enregistrement après FICH", "No record after FICH"},
     {"Le dernier enregistrement traité est un enregistrement FICH : aucun message ne le suit. Le "
      "traitement s'arrête avec le statut 1 et rien n'est publié.",
      "The last record processed is a FICH record: no message follows it. The run ends with status 1 and "
      "nothing is published."},
     {"L'entrée est rendue sous son nom. Ajoutez les enregistrements à envoyer, ou vérifiez leurs fins de "
      "ligne : une dernière ligne sans fin de ligne n'est pas lue, une ligne terminée par CR seul est "
      "sautée.",
      "The input is given back under its name. Add the records to send, or check their line ends: a last "
      "line without line end is not read, a line that ends in CR alone is skipped."}},
    {"IG015",
     {"Ligne vide", "Empty line"},
     {"Le fichier contient une ligne sans aucun caractère. Le traitement s'arrête avec le statut 1 et rien "
      "n'est publié.",
      "The file holds a line without any character. The run ends with status 1 and nothing is published."},
     {"L'entrée est rendue sous son nom. Supprimez les lignes vides, souvent à la fin du fichier, puis "
      "relancez.",
      "The input is given back under its name. Remove the empty lines, often at the end of the file, "
      "then run again."}},
};
// clang-format on

constexpr int LARGEUR_TITRE = 60;

/** Characters of a UTF-8 text: every byte but those that continue one. */
constexpr int caracteres(const char* octets) {
    int n = 0;
    for (; *octets != '\0'; ++octets)
        if ((static_cast<unsigned char>(*octets) & 0xC0) != 0x80) ++n;
    return n;
}

/** Whether every title is short enough in both languages. */
template <typename Entree, std::size_t N>
constexpr bool titresTiennent(const Entree (&table)[N]) {
    for (const Entree& e : table)
        if (caracteres(e.titre.fr) > LARGEUR_TITRE || caracteres(e.titre.en) > LARGEUR_TITRE) return false;
    return true;
}
static_assert(titresTiennent(tErreurs) && titresTiennent(tFatals));

constexpr int cle(const sErreur& e) { return e.numero; }
constexpr std::string_view cle(const sFatal& f) { return f.code; }

/** Whether each key is greater than the one before. */
template <typename Entree, std::size_t N>
constexpr bool croissante(const Entree (&table)[N]) {
    for (std::size_t i = 1; i < N; ++i)
        if (!(cle(table[i - 1]) < cle(table[i]))) return false;
    return true;
}
static_assert(croissante(tErreurs) && croissante(tFatals));

/** The entry with that key; null when there is none. */
template <typename Entree, typename Cle>
const Entree* chercher(std::span<const Entree> table, Cle voulue) {
    const auto place = std::lower_bound(table.begin(), table.end(), voulue,
                                        [](const Entree& e, Cle valeur) { return cle(e) < valeur; });
    return place != table.end() && cle(*place) == voulue ? &*place : nullptr;
}

}  // namespace

constexpr std::span<const sErreur> erreurs(tErreurs);
constexpr std::span<const sFatal> fatals(tFatals);

const sErreur* erreurDe(int numero) { return chercher(erreurs, numero); }
const sFatal* fatalDe(std::string_view code) { return chercher(fatals, code); }

}  // namespace quilvane
