/**
 * Labels say no more than the rules do: where a rule only looks at the form of
 * a field, so does its label. Kinds in parentheses are those for which the field
 * is checked; a label without any says nothing about kinds.
 */
#include "catalogue/champs.h"

#include <algorithm>
#include <iterator>

#include "vocabulaire/pack.h"

namespace quilvane {

namespace {

// clang-format off

// Several types
constexpr texte LIBRE = {"Zone non contrôlée", "Not checked"};
constexpr texte RESULTAT = {"Code résultat, mis à 40 à l'acceptation",
                            "Result code, set to 40 on acceptance"};
constexpr texte INDICATEUR = {"Indicateur 0 ou 1", "Flag, 0 or 1"};
constexpr texte INDICATEUR_CRE = {"Indicateur 0 ou 1 (CRE)", "Flag, 0 or 1 (CRE)"};
constexpr texte INDICATEUR_MOD = {"Indicateur 0 ou 1 (MOD)", "Flag, 0 or 1 (MOD)"};
constexpr texte QUATRE = {"Quatre caractères, non tous blancs", "Four characters, not all blank"};
constexpr texte CINQ = {"Cinq caractères, non tous blancs", "Five characters, not all blank"};
constexpr texte TRENTE = {"Trente caractères, non tous blancs", "Thirty characters, not all blank"};
constexpr texte TRENTE_C5 = {"Trente caractères, obligatoires si C5 est blanc",
                             "Thirty characters, required when C5 is blank"};
constexpr texte TRENTE_C6 = {"Trente caractères, obligatoires si C6 est blanc",
                             "Thirty characters, required when C6 is blank"};
constexpr texte TRENTE_C7 = {"Trente caractères, obligatoires si C7 est blanc",
                             "Thirty characters, required when C7 is blank"};
constexpr texte SOIXANTE = {"Soixante caractères, non tous blancs", "Sixty characters, not all blank"};

// Animals
constexpr texte PAYS_ANIMAL = {"Code pays de l'animal", "Country code of the animal"};
constexpr texte NUM_ANIMAL = {"Numéro de l'animal", "Number of the animal"};
constexpr texte PAYS_ANIMAL_2 = {"Code pays du deuxième animal", "Country code of the second animal"};
constexpr texte NUM_ANIMAL_2 = {"Numéro du deuxième animal", "Number of the second animal"};
constexpr texte PAYS_ANIMAL_3 = {"Code pays du troisième animal", "Country code of the third animal"};
constexpr texte NUM_ANIMAL_3 = {"Numéro du troisième animal", "Number of the third animal"};
constexpr texte PAYS_NUM_2 = {"Code pays du deuxième numéro", "Country code of the second number"};
constexpr texte NUM_2 = {"Deuxième numéro", "Second number"};
constexpr texte PAYS_NUM_3 = {"Code pays du troisième numéro", "Country code of the third number"};
constexpr texte NUM_3 = {"Troisième numéro", "Third number"};
constexpr texte SEXE = {"Sexe, 1 ou 2", "Sex, 1 or 2"};
constexpr texte RACE = {"Code race", "Breed code"};
constexpr texte RACE_2 = {"Deuxième code race", "Second breed code"};
constexpr texte RACE_3 = {"Troisième code race", "Third breed code"};
constexpr texte NAISSANCE = {"Date de naissance", "Date of birth"};
constexpr texte PAYS_OVIN = {"Code pays du numéro ovin ou caprin",
                             "Country code of the ovine or caprine number"};
constexpr texte NUM_OVIN = {"Numéro ovin ou caprin", "Ovine or caprine number"};

// Holdings and keepers
constexpr texte PAYS_EXPL = {"Code pays de l'exploitation", "Country code of the holding"};
constexpr texte NUM_EXPL = {"Numéro de l'exploitation", "Number of the holding"};
constexpr texte PAYS_AUTRE = {"Code pays d'une autre exploitation", "Country code of another holding"};
constexpr texte NUM_AUTRE = {"Numéro d'une autre exploitation", "Number of another holding"};
constexpr texte PAYS_PROVENANCE = {"Code pays de l'exploitation de provenance",
                                   "Country code of the provenance holding"};
constexpr texte NUM_PROVENANCE = {"Numéro de l'exploitation de provenance",
                                  "Number of the provenance holding"};
constexpr texte PAYS_DETENTEUR = {"Code pays du détenteur", "Country code of the keeper"};
constexpr texte NUM_DETENTEUR = {"Code du détenteur", "Keeper code"};
constexpr texte FORME = {"Forme juridique", "Legal form"};
constexpr texte PAYS_SITE = {"Code pays du site", "Country code of the site"};
constexpr texte NUM_SITE = {"Code du site, de la forme que demande C4", "Site code, in the form that C4 asks for"};
constexpr texte PRODUCTION = {"Genre de production, P ou V", "Kind of production, P or V"};

// Movements
constexpr texte MOUVEMENT = {"Date du mouvement", "Date of the movement"};
constexpr texte CAUSE = {"Cause du mouvement", "Cause of the movement"};
constexpr texte NUM_DECLARANTE = {"Exploitation où le mouvement est déclaré",
                                  "Holding where the movement is declared"};
constexpr texte TEXTE_PARTIE = {"Texte libre sur l'autre partie", "Free text about the other party"};
constexpr texte SECONDE_DATE = {"Deuxième date (INV, MOD)", "Second date (INV, MOD)"};

// Dates
constexpr texte RECEPTION = {"Date de réception", "Receipt date"};
constexpr texte DATE = {"Date complète", "Complete date"};
constexpr texte DATE_CRE = {"Date complète (CRE)", "Complete date (CRE)"};
constexpr texte DATE_MOD = {"Date complète (MOD)", "Complete date (MOD)"};
constexpr texte DATE_CRE_MOD = {"Date complète (CRE, MOD)", "Complete date (CRE, MOD)"};
constexpr texte DATE_INV_MOD = {"Date complète (INV, MOD)", "Complete date (INV, MOD)"};
constexpr texte DATE_I_INV_MOD = {"Date, peut être incomplète (INV, MOD)",
                                  "Date, may be incomplete (INV, MOD)"};
constexpr texte DATE_FACULTATIVE = {"Date complète, facultative", "Complete date, optional"};

// Tags and ranges
constexpr texte MODELE = {"Modèle de boucle", "Tag model"};
constexpr texte PREMIER = {"Premier numéro de la plage", "First number of the range"};
constexpr texte PAYS_PREMIER = {"Code pays du premier numéro", "Country code of the first number"};
constexpr texte COMPTE = {"Nombre de numéros de la plage", "Count of numbers in the range"};
constexpr texte PAYS_ORIGINE = {"Code pays d'origine", "Country code of origin"};

constexpr sChamp tChamps[] = {
    // ABAT
    {"ABAT", C1,    PAYS_ANIMAL},
    {"ABAT", C2,    NUM_ANIMAL},
    {"ABAT", C3,    RESULTAT},
    {"ABAT", C4,    PAYS_PROVENANCE},
    {"ABAT", C5,    NUM_PROVENANCE},
    {"ABAT", C6,    {"Date d'entrée à l'abattoir", "Date of entry into the slaughterhouse"}},
    {"ABAT", C7,    {"Date d'abattage", "Slaughter date"}},
    {"ABAT", C8,    {"Numéro de l'abattoir", "Number of the slaughterhouse"}},
    {"ABAT", C9,    {"Poids de la carcasse, en kilogrammes", "Carcass weight, in kilograms"}},
    {"ABAT", C10,   {"Code pays du notificateur", "Country code of the notifier"}},
    {"ABAT", C11,   {"Identification du notificateur", "Identification of the notifier"}},
    {"ABAT", C12,   {"Indicateur de création ou d'invalidation, non contrôlé",
                     "Creation or invalidation indicator, not checked"}},
    // ACTI
    {"ACTI", C1,    PAYS_EXPL},
    {"ACTI", C2,    NUM_EXPL},
    {"ACTI", C3,    RESULTAT},
    {"ACTI", C4,    INDICATEUR},
    {"ACTI", C5,    DATE_CRE_MOD},
    {"ACTI", C6,    DATE_I_INV_MOD},
    {"ACTI", C7,    {"Code de production", "Production code"}},
    {"ACTI", C8,    LIBRE},
    // ASSO
    {"ASSO", C1,    PAYS_EXPL},
    {"ASSO", C2,    NUM_EXPL},
    {"ASSO", C3,    RESULTAT},
    {"ASSO", C4,    {"Genre d'identifiant, D ou E", "Kind of identifier, D or E"}},
    {"ASSO", C5,    {"Type de numéro", "Type of number"}},
    {"ASSO", C6,    {"Numéro, de la forme de son type C5", "Number, in the form of its type C5"}},
    {"ASSO", C7,    {"Date de début", "Start date"}},
    {"ASSO", C8,    {"Date de fin, facultative", "End date, optional"}},
    {"ASSO", C9,    LIBRE},
    // DETE
    {"DETE", C1,    PAYS_DETENTEUR},
    {"DETE", C2,    {"Code du détenteur, ou en DEM ce que dit C12", "Keeper code, or for DEM what C12 says"}},
    {"DETE", C3,    RESULTAT},
    {"DETE", C4,    FORME},
    {"DETE", C5,    TRENTE},
    {"DETE", C6,    {"Première ligne d'adresse", "First address line"}},
    {"DETE", C7,    {"Deuxième ligne d'adresse", "Second address line"}},
    {"DETE", C8,    CINQ},
    {"DETE", C9,    TRENTE},
    {"DETE", C10,   LIBRE},
    {"DETE", C11,   {"Code pays", "Country code"}},
    {"DETE", C12,   {"D ou E, choisit le contrôle de C2 (DEM)", "D or E, chooses how C2 is checked (DEM)"}},
    {"DETE", C13,   LIBRE},
    // DETI
    {"DETI", C1,    PAYS_DETENTEUR},
    {"DETI", C2,    NUM_DETENTEUR},
    {"DETI", C3,    RESULTAT},
    {"DETI", C4,    INDICATEUR},
    {"DETI", C5,    DATE_CRE_MOD},
    {"DETI", C6,    DATE_I_INV_MOD},
    {"DETI", C7,    LIBRE},
    // E
    {"E", E1,       LIBRE},
    {"E", E2,       LIBRE},
    {"E", E3,       {"Émetteur (contrôlé sur l'enregistrement FICH)",
                     "Emitter (checked on the FICH record)"}},
    {"E", E4,       {"Récepteur (contrôlé sur l'enregistrement FICH)",
                     "Receiver (checked on the FICH record)"}},
    {"E", E5,       {"Genre de transaction", "Transaction kind"}},
    {"E", E6,       {"Type de message", "Message type"}},
    {"E", E7,       LIBRE},
    {"E", E8,       {"Organisme départemental (non contrôlé sur FICH)",
                     "Departmental body (not checked on FICH)"}},
    {"E", E9,       {"Code sans blanc (non contrôlé sur FICH)", "Code without blanks (not checked on FICH)"}},
    {"E", E10,      {"Base de données destinataire (non contrôlée sur FICH)",
                     "Destination database (not checked on FICH)"}},
    {"E", E11,      LIBRE},
    {"E", E12,      {"Code 3 ou 4 (contrôlé sur FICH seulement)", "Code 3 or 4 (checked on FICH only)"}},
    {"E", E13,      {"Code N ou U (contrôlé sur FICH seulement)", "Code N or U (checked on FICH only)"}},
    // ECBO
    {"ECBO", C1,    PAYS_ANIMAL},
    {"ECBO", C2,    NUM_ANIMAL},
    {"ECBO", C3,    RESULTAT},
    {"ECBO", C4,    RACE},
    {"ECBO", C5,    {"Code 0, 1, * ou blanc", "Code 0, 1, * or blank"}},
    {"ECBO", C6,    {"Code 0, 1, * ou blanc", "Code 0, 1, * or blank"}},
    {"ECBO", C7,    PAYS_NUM_2},
    {"ECBO", C8,    NUM_2},
    {"ECBO", C9,    LIBRE},
    {"ECBO", C10,   LIBRE},
    {"ECBO", C11,   RACE_2},
    {"ECBO", C12,   PAYS_NUM_3},
    {"ECBO", C13,   NUM_3},
    {"ECBO", C14,   LIBRE},
    {"ECBO", C15,   RACE_3},
    {"ECBO", C16,   LIBRE},
    // ECHA
    {"ECHA", C1,    PAYS_ANIMAL},
    {"ECHA", C2,    NUM_ANIMAL},
    {"ECHA", C3,    RESULTAT},
    {"ECHA", C4,    SEXE},
    {"ECHA", C5,    RACE},
    {"ECHA", C6,    NAISSANCE},
    {"ECHA", C7,    QUATRE},
    {"ECHA", C8,    LIBRE},
    {"ECHA", C9,    LIBRE},
    {"ECHA", C10,   PAYS_NUM_2},
    {"ECHA", C11,   NUM_2},
    {"ECHA", C12,   RACE_2},
    {"ECHA", C13,   PAYS_NUM_3},
    {"ECHA", C14,   NUM_3},
    {"ECHA", C15,   RACE_3},
    {"ECHA", C16,   PAYS_AUTRE},
    {"ECHA", C17,   NUM_AUTRE},
    {"ECHA", C18,   PAYS_EXPL},
    {"ECHA", C19,   NUM_EXPL},
    {"ECHA", C20,   LIBRE},
    {"ECHA", C21,   {"Toujours 1 (CRE, MOD)", "Always 1 (CRE, MOD)"}},
    {"ECHA", C22,   INDICATEUR_MOD},
    {"ECHA", C23,   RECEPTION},
    {"ECHA", C24,   LIBRE},
    // EGET
    {"EGET", C1,    PAYS_SITE},
    {"EGET", C2,    NUM_SITE},
    {"EGET", C3,    RESULTAT},
    {"EGET", C4,    PRODUCTION},
    {"EGET", C5,    TRENTE_C6},
    {"EGET", C6,    TRENTE_C5},
    {"EGET", C7,    CINQ},
    {"EGET", C8,    TRENTE},
    {"EGET", C9,    LIBRE},
    // ENTR
    {"ENTR", C1,    PAYS_ANIMAL},
    {"ENTR", C2,    NUM_ANIMAL},
    {"ENTR", C3,    RESULTAT},
    {"ENTR", C4,    MOUVEMENT},
    {"ENTR", C5,    CAUSE},
    {"ENTR", C6,    PAYS_EXPL},
    {"ENTR", C7,    NUM_DECLARANTE},
    {"ENTR", C8,    PAYS_PROVENANCE},
    {"ENTR", C9,    NUM_PROVENANCE},
    {"ENTR", C10,   TEXTE_PARTIE},
    {"ENTR", C11,   SECONDE_DATE},
    {"ENTR", C12,   LIBRE},
    {"ENTR", C13,   RECEPTION},
    {"ENTR", C14,   LIBRE},
    // ERRE
    {"ERRE", C1,    {"Type du message en erreur, ABAT", "Type of the message in error, ABAT"}},
    {"ERRE", C2,    {"Genre de transaction du message en erreur",
                     "Transaction kind of the message in error"}},
    {"ERRE", C3,    {"Code pays", "Country code"}},
    {"ERRE", C4,    {"Identifiant, non blanc", "Identifier, not blank"}},
    {"ERRE", C5,    {"Code pays du numéro C6", "Country code of the number C6"}},
    {"ERRE", C6,    {"Numéro d'identification", "Identification number"}},
    {"ERRE", C7,    PAYS_EXPL},
    {"ERRE", C8,    {"Numéro d'agrément ou d'exploitation", "Approval or holding number"}},
    {"ERRE", C9,    {"Quatre lettres ou chiffres", "Four letters or digits"}},
    {"ERRE", C10,   {"Un caractère non blanc", "One character that is not blank"}},
    {"ERRE", C29,   {"Code pays FR, facultatif", "Country code FR, optional"}},
    {"ERRE", C30,   {"Numéro d'agrément ou d'exploitation, facultatif",
                     "Approval or holding number, optional"}},
    {"ERRE", C31,   {"Code pays de l'animal, facultatif", "Country code of the animal, optional"}},
    {"ERRE", C32,   {"Numéro de l'animal, facultatif", "Number of the animal, optional"}},
    {"ERRE", C33,   DATE_FACULTATIVE},
    {"ERRE", C34,   DATE_FACULTATIVE},
    {"ERRE", C35,   DATE_FACULTATIVE},
    {"ERRE", C36,   DATE},
    {"ERRE", C37,   {"Organisme départemental ou national, facultatif",
                     "Departmental or national body, optional"}},
    // ERTI
    {"ERTI", C1,    PAYS_SITE},
    {"ERTI", C2,    NUM_SITE},
    {"ERTI", C3,    RESULTAT},
    {"ERTI", C4,    PRODUCTION},
    {"ERTI", C5,    {"Lettre de production si C4 est V, sinon blanc",
                     "Production letter when C4 is V, otherwise blank"}},
    {"ERTI", C6,    {"Date complète (CRE) ou blanche (MOD)", "Complete date (CRE) or blank (MOD)"}},
    {"ERTI", C7,    {"Date complète, facultative (CRE, MOD)", "Complete date, optional (CRE, MOD)"}},
    {"ERTI", C8,    DATE_INV_MOD},
    {"ERTI", C9,    {"OEUF si C5 est M, sinon blanc (CRE, MOD)",
                     "OEUF when C5 is M, otherwise blank (CRE, MOD)"}},
    {"ERTI", C10,   {"Code 0 à 3 si C5 est M, sinon blanc (CRE, MOD)",
                     "Code 0 to 3 when C5 is M, otherwise blank (CRE, MOD)"}},
    {"ERTI", C11,   LIBRE},
    // EXP1
    {"EXP1", C1,    PAYS_EXPL},
    {"EXP1", C2,    NUM_EXPL},
    {"EXP1", C3,    RESULTAT},
    {"EXP1", C4,    {"Forme juridique, facultative", "Legal form, optional"}},
    {"EXP1", C5,    LIBRE},
    {"EXP1", C6,    TRENTE_C7},
    {"EXP1", C7,    TRENTE_C6},
    {"EXP1", C8,    CINQ},
    {"EXP1", C9,    TRENTE},
    {"EXP1", C10,   LIBRE},
    {"EXP1", C11,   {"Code 10, 20, 31 à 34, 40, 50 ou 90", "Code 10, 20, 31 to 34, 40, 50 or 90"}},
    {"EXP1", C12,   LIBRE},
    // EXP2
    {"EXP2", C1,    PAYS_EXPL},
    {"EXP2", C2,    NUM_EXPL},
    {"EXP2", C3,    RESULTAT},
    {"EXP2", C4,    {"Code pays du code C5 (CRE, MOD)", "Country code of the code C5 (CRE, MOD)"}},
    {"EXP2", C5,    {"Code de la forme d'un code de détenteur (CRE, MOD)",
                     "Code in the form of a keeper code (CRE, MOD)"}},
    {"EXP2", C6,    LIBRE},
    {"EXP2", C7,    LIBRE},
    {"EXP2", C8,    LIBRE},
    {"EXP2", C9,    LIBRE},
    {"EXP2", C10,   {"Code pays du code C11 (INV, MOD)", "Country code of the code C11 (INV, MOD)"}},
    {"EXP2", C11,   {"Code de la forme d'un code de détenteur (INV, MOD)",
                     "Code in the form of a keeper code (INV, MOD)"}},
    {"EXP2", C12,   LIBRE},
    {"EXP2", C13,   LIBRE},
    {"EXP2", C14,   LIBRE},
    {"EXP2", C15,   DATE_CRE_MOD},
    {"EXP2", C16,   DATE_INV_MOD},
    {"EXP2", C17,   LIBRE},
    // F
    {"F", F1,       {"Date de l'enregistrement", "Date of the record"}},
    {"F", F2,       {"Heure de l'enregistrement", "Time of the record"}},
    {"F", F3,       {"Version du format (contrôlée sur FICH seulement)",
                     "Format version (checked on FICH only)"}},
    {"F", F4,       LIBRE},
    {"F", F5,       {"Marque de fin, *", "End mark, *"}},
    // FICH
    {"FICH", C1,    {"Numéro du fichier émis", "Number of the emitted file"}},
    {"FICH", C2,    LIBRE},
    {"FICH", C3,    {"Nombre d'enregistrements qui suivent", "Number of records that follow"}},
    {"FICH", C4,    LIBRE},
    {"FICH", C5,    LIBRE},
    {"FICH", C6,    LIBRE},
    {"FICH", C7,    LIBRE},
    {"FICH", C8,    LIBRE},
    {"FICH", C9,    LIBRE},
    // GROC
    {"GROC", C1,    PAYS_OVIN},
    {"GROC", C2,    NUM_OVIN},
    {"GROC", C3,    RESULTAT},
    {"GROC", C4,    PAYS_EXPL},
    {"GROC", C5,    NUM_EXPL},
    {"GROC", C6,    DATE_CRE},
    {"GROC", C7,    MODELE},
    {"GROC", C8,    PAYS_ORIGINE},
    {"GROC", C9,    {"Compteur, selon le modèle C7", "Counter, as the model C7 allows"}},
    {"GROC", C10,   {"Date complète, facultative (CRE)", "Complete date, optional (CRE)"}},
    {"GROC", C11,   LIBRE},
    {"GROC", C12,   {"Heure si C10 est remplie, sinon blanc (CRE)",
                     "Time when C10 is filled, otherwise blank (CRE)"}},
    {"GROC", C13,   LIBRE},
    // IMOC
    {"IMOC", C1,    PAYS_OVIN},
    {"IMOC", C2,    NUM_OVIN},
    {"IMOC", C3,    RESULTAT},
    {"IMOC", C4,    PAYS_EXPL},
    {"IMOC", C5,    NUM_EXPL},
    {"IMOC", C6,    {"Code Z, C ou O (CRE)", "Code Z, C or O (CRE)"}},
    {"IMOC", C7,    DATE_CRE},
    {"IMOC", C8,    LIBRE},
    // IMPO
    {"IMPO", C1,    PAYS_ANIMAL},
    {"IMPO", C2,    NUM_ANIMAL},
    {"IMPO", C3,    RESULTAT},
    {"IMPO", C4,    SEXE},
    {"IMPO", C5,    RACE},
    {"IMPO", C6,    {"Date, même incomplète, blanche ou en astérisques", "Date, also incomplete, blank or asterisks"}},
    {"IMPO", C7,    QUATRE},
    {"IMPO", C8,    LIBRE},
    {"IMPO", C9,    LIBRE},
    {"IMPO", C10,   PAYS_NUM_2},
    {"IMPO", C11,   NUM_2},
    {"IMPO", C12,   RACE_2},
    {"IMPO", C13,   PAYS_NUM_3},
    {"IMPO", C14,   NUM_3},
    {"IMPO", C15,   RACE_3},
    {"IMPO", C16,   PAYS_AUTRE},
    {"IMPO", C17,   NUM_AUTRE},
    {"IMPO", C18,   PAYS_EXPL},
    {"IMPO", C19,   NUM_EXPL},
    {"IMPO", C20,   {"Code d'un pays étranger", "Code of a foreign country"}},
    {"IMPO", C21,   {"Quatorze caractères, non tous blancs", "Fourteen characters, not all blank"}},
    {"IMPO", C22,   {"Toujours 0 (CRE, MOD)", "Always 0 (CRE, MOD)"}},
    {"IMPO", C23,   INDICATEUR_MOD},
    {"IMPO", C24,   RECEPTION},
    {"IMPO", C25,   LIBRE},
    // INFO
    {"INFO", C1,    PAYS_ANIMAL},
    {"INFO", C2,    NUM_ANIMAL},
    {"INFO", C3,    RESULTAT},
    {"INFO", C4,    LIBRE},
    // JALO
    {"JALO", C1,    PAYS_ANIMAL},
    {"JALO", C2,    NUM_ANIMAL},
    {"JALO", C3,    RESULTAT},
    {"JALO", C4,    PAYS_EXPL},
    {"JALO", C5,    NUM_EXPL},
    {"JALO", C6,    DATE},
    {"JALO", C7,    SOIXANTE},
    {"JALO", C8,    SOIXANTE},
    {"JALO", C9,    INDICATEUR},
    {"JALO", C10,   {"Code A, D, E ou S", "Code A, D, E or S"}},
    {"JALO", C11,   LIBRE},
    // NAIS
    {"NAIS", C1,    PAYS_ANIMAL},
    {"NAIS", C2,    NUM_ANIMAL},
    {"NAIS", C3,    RESULTAT},
    {"NAIS", C4,    SEXE},
    {"NAIS", C5,    RACE},
    {"NAIS", C6,    NAISSANCE},
    {"NAIS", C7,    QUATRE},
    {"NAIS", C8,    LIBRE},
    {"NAIS", C9,    LIBRE},
    {"NAIS", C10,   PAYS_ANIMAL_2},
    {"NAIS", C11,   NUM_ANIMAL_2},
    {"NAIS", C12,   RACE_2},
    {"NAIS", C13,   PAYS_ANIMAL_3},
    {"NAIS", C14,   NUM_ANIMAL_3},
    {"NAIS", C15,   RACE_3},
    {"NAIS", C16,   PAYS_EXPL},
    {"NAIS", C17,   NUM_EXPL},
    {"NAIS", C24,   INDICATEUR_CRE},
    {"NAIS", C25,   INDICATEUR_MOD},
    {"NAIS", C26,   RECEPTION},
    {"NAIS", C27,   LIBRE},
    // NUMA
    {"NUMA", C1,    PAYS_EXPL},
    {"NUMA", C2,    NUM_EXPL},
    {"NUMA", C3,    RESULTAT},
    {"NUMA", C4,    PAYS_PREMIER},
    {"NUMA", C5,    PREMIER},
    {"NUMA", C6,    COMPTE},
    {"NUMA", C7,    DATE_CRE},
    {"NUMA", C8,    {"Code 0 à 5 (MOD)", "Code 0 to 5 (MOD)"}},
    {"NUMA", C9,    {"Premier modèle de boucle", "First tag model"}},
    {"NUMA", C10,   {"Deuxième modèle de boucle", "Second tag model"}},
    {"NUMA", C11,   LIBRE},
    // NVMN
    {"NVMN", C1,    PAYS_ANIMAL},
    {"NVMN", C2,    NUM_ANIMAL},
    {"NVMN", C3,    RESULTAT},
    {"NVMN", C4,    SEXE},
    {"NVMN", C5,    RACE},
    {"NVMN", C6,    NAISSANCE},
    {"NVMN", C7,    LIBRE},
    {"NVMN", C8,    LIBRE},
    {"NVMN", C9,    LIBRE},
    {"NVMN", C10,   PAYS_ANIMAL_2},
    {"NVMN", C11,   NUM_ANIMAL_2},
    {"NVMN", C12,   RACE_2},
    {"NVMN", C13,   PAYS_ANIMAL_3},
    {"NVMN", C14,   NUM_ANIMAL_3},
    {"NVMN", C15,   RACE_3},
    {"NVMN", C16,   PAYS_EXPL},
    {"NVMN", C17,   NUM_EXPL},
    {"NVMN", C18,   RECEPTION},
    {"NVMN", C19,   LIBRE},
    // PASS
    {"PASS", C1,    PAYS_ANIMAL},
    {"PASS", C2,    NUM_ANIMAL},
    {"PASS", C3,    RESULTAT},
    {"PASS", C4,    PAYS_EXPL},
    {"PASS", C5,    NUM_EXPL},
    {"PASS", C6,    {"Code 00 à 09", "Code 00 to 09"}},
    {"PASS", C7,    {"Date complète (INV, EDI si C11 est 0)", "Complete date (INV, EDI when C11 is 0)"}},
    {"PASS", C8,    LIBRE},
    {"PASS", C9,    {"Date complète (EDI)", "Complete date (EDI)"}},
    {"PASS", C10,   {"Heure (INV, EDI si C11 est 0)", "Time (INV, EDI when C11 is 0)"}},
    {"PASS", C11,   {"Indicateur 0 ou 1 (EDI)", "Flag, 0 or 1 (EDI)"}},
    {"PASS", C12,   LIBRE},
    // PICO
    {"PICO", C1,    PAYS_EXPL},
    {"PICO", C2,    NUM_EXPL},
    {"PICO", C3,    RESULTAT},
    {"PICO", C4,    PAYS_PREMIER},
    {"PICO", C5,    PREMIER},
    {"PICO", C6,    COMPTE},
    {"PICO", C7,    DATE},
    {"PICO", C8,    MODELE},
    {"PICO", C9,    {"Type de commande, I0 à I5, PR ou PC", "Order type, I0 to I5, PR or PC"}},
    {"PICO", C10,   PAYS_ORIGINE},
    {"PICO", C11,   {"Compteur, selon le modèle C8", "Counter, as the model C8 allows"}},
    {"PICO", C12,   LIBRE},
    // RACO
    {"RACO", C1,    PAYS_EXPL},
    {"RACO", C2,    NUM_EXPL},
    {"RACO", C3,    RESULTAT},
    {"RACO", C4,    {"Année, antérieure à celle de l'enregistrement",
                     "Year, earlier than that of the record"}},
    {"RACO", C5,    {"Code de catégorie, six lettres", "Category code, six letters"}},
    {"RACO", C6,    {"Six chiffres (CRE, MOD)", "Six digits (CRE, MOD)"}},
    {"RACO", C7,    RECEPTION},
    {"RACO", C8,    LIBRE},
    // RATA
    {"RATA", C1,    PAYS_SITE},
    {"RATA", C2,    NUM_SITE},
    {"RATA", C3,    RESULTAT},
    {"RATA", C4,    PRODUCTION},
    {"RATA", C5,    PAYS_EXPL},
    {"RATA", C6,    NUM_EXPL},
    {"RATA", C7,    {"Code pays d'une autre exploitation (MOD)", "Country code of another holding (MOD)"}},
    {"RATA", C8,    {"Numéro d'une autre exploitation (MOD)", "Number of another holding (MOD)"}},
    {"RATA", C9,    DATE_CRE_MOD},
    {"RATA", C10,   DATE_MOD},
    {"RATA", C11,   LIBRE},
    // REBO
    {"REBO", C1,    PAYS_ANIMAL},
    {"REBO", C2,    NUM_ANIMAL},
    {"REBO", C3,    RESULTAT},
    {"REBO", C4,    DATE_CRE_MOD},
    {"REBO", C5,    PAYS_EXPL},
    {"REBO", C6,    NUM_EXPL},
    {"REBO", C23,   DATE_INV_MOD},
    {"REBO", C24,   {"Modèle de boucle (CRE)", "Tag model (CRE)"}},
    {"REBO", C25,   {"Témoin de boucle, autre que 0 (MOD)",
                     "Tag witness, other than 0 (MOD)"}},
    {"REBO", C26,   LIBRE},
    // SORT
    {"SORT", C1,    PAYS_ANIMAL},
    {"SORT", C2,    NUM_ANIMAL},
    {"SORT", C3,    RESULTAT},
    {"SORT", C4,    MOUVEMENT},
    {"SORT", C5,    CAUSE},
    {"SORT", C6,    PAYS_EXPL},
    {"SORT", C7,    NUM_DECLARANTE},
    {"SORT", C8,    {"Code pays de l'exploitation de destination",
                     "Country code of the destination holding"}},
    {"SORT", C9,    {"Numéro de l'exploitation de destination", "Number of the destination holding"}},
    {"SORT", C10,   TEXTE_PARTIE},
    {"SORT", C11,   SECONDE_DATE},
    {"SORT", C12,   RECEPTION},
    {"SORT", C13,   LIBRE},
};

constexpr sNom tTypes[] = {
    {"ABAT", {"Avis d'abattage", "Slaughter notice"}},
    {"ACTI", {"Activité d'une exploitation", "Activity of a holding"}},
    {"ASSO", {"Identifiant d'une exploitation", "Identifier of a holding"}},
    {"DETE", {"Détenteur", "Keeper"}},
    {"DETI", {"Activité d'un détenteur", "Activity of a keeper"}},
    {"ECBO", {"Données d'un bovin", "Bovine data"}},
    {"ECHA", {"Échange intracommunautaire", "Intra-community exchange"}},
    {"EGET", {"Site de production", "Production site"}},
    {"ENTR", {"Entrée dans une exploitation", "Entry onto a holding"}},
    {"ERRE", {"Retour d'erreur sur un avis d'abattage", "Error return about a slaughter notice"}},
    {"ERTI", {"Production d'un site", "Production of a site"}},
    {"EXP1", {"Exportation, exploitation", "Export, holding"}},
    {"EXP2", {"Exportation, détenteur", "Export, keeper"}},
    {"FICH", {"Enregistrement du fichier", "File record"}},
    {"GROC", {"Commande de boucles, ovins et caprins", "Tag order, ovine and caprine"}},
    {"IMOC", {"Marque d'ovin ou de caprin", "Ovine and caprine mark"}},
    {"IMPO", {"Importation", "Import"}},
    {"INFO", {"Demande des données d'un animal", "Request for an animal's data"}},
    {"JALO", {"Demande de marquage", "Marking request"}},
    {"NAIS", {"Naissance", "Birth"}},
    {"NUMA", {"Plage de numéros d'animaux", "Range of animal numbers"}},
    {"NVMN", {"Naissance, forme courte", "Birth, short form"}},
    {"PASS", {"Passeport", "Passport"}},
    {"PICO", {"Plage de numéros de boucles", "Range of tag numbers"}},
    {"RACO", {"Recensement annuel", "Yearly census"}},
    {"RATA", {"Site et exploitations", "Site and holdings"}},
    {"REBO", {"Remplacement d'une boucle", "Tag replacement"}},
    {"SORT", {"Sortie d'une exploitation", "Exit from a holding"}},
};

constexpr sNom tGenres[] = {
    {"CRE", {"Création", "Creation"}},
    {"DEM", {"Demande", "Request"}},
    {"ECQ", {"Genre des enregistrements ERRE", "Kind of ERRE records"}},
    {"EDI", {"Genre propre au type PASS", "Kind for the type PASS alone"}},
    {"INF", {"Genre de l'enregistrement FICH", "Kind of the FICH record"}},
    {"INV", {"Inventaire", "Inventory"}},
    {"MOD", {"Modification", "Modification"}},
};
// clang-format on

/** Characters of a UTF-8 text: all bytes but those that continue one. */
constexpr int largeur(std::string_view utf8) {
    return static_cast<int>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

constexpr int LARGEUR_LIBELLE = 60;

constexpr bool courte(std::string_view utf8) {
    return !utf8.empty() && largeur(utf8) <= LARGEUR_LIBELLE && utf8.back() != '.';
}
constexpr bool lisible(const texte& libelle) { return courte(libelle.fr) && courte(libelle.en); }

constexpr bool avant(const sChamp& a, const sChamp& b) {
    const int ordre = std::string_view(a.table).compare(b.table);
    return ordre < 0 || (ordre == 0 && a.numChamp < b.numChamp);
}
constexpr bool avantNom(const sNom& a, const sNom& b) { return std::string_view(a.code) < b.code; }

/** Sorted without duplicates, and every label short. */
template <typename T, std::size_t N>
constexpr bool bienTenue(const T (&table)[N], bool (*precede)(const T&, const T&)) {
    const auto mauvaisOrdre = [=](const T& a, const T& b) { return !precede(a, b); };
    return std::adjacent_find(table, table + N, mauvaisOrdre) == table + N &&
           std::all_of(table, table + N, [](const T& entree) { return lisible(entree.libelle); });
}
static_assert(bienTenue(tChamps, avant));
static_assert(bienTenue(tTypes, avantNom));
static_assert(bienTenue(tGenres, avantNom));

template <std::size_t N>
const sNom* nomDe(const sNom (&table)[N], std::string_view code) {
    const sNom* const trouve =
        std::find_if(table, table + N, [=](const sNom& nom) { return nom.code == code; });
    return trouve != table + N ? trouve : nullptr;
}

}  // namespace

const std::span<const sChamp> champs = tChamps;
const std::span<const sNom> typesDeVSE = tTypes;
const std::span<const sNom> genres = tGenres;

const sChamp* libelleDe(std::string_view table, int numChamp) {
    const sChamp* const trouve = std::find_if(std::begin(tChamps), std::end(tChamps), [=](const sChamp& c) {
        return c.numChamp == numChamp && c.table == table;
    });
    return trouve != std::end(tChamps) ? trouve : nullptr;
}

const sNom* typeDe(std::string_view code) { return nomDe(tTypes, code); }
const sNom* genreDe(std::string_view code) { return nomDe(tGenres, code); }

}  // namespace quilvane
