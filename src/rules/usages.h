/**
 * usages.h - what a check does with the list of its row. The checks of the
 * library that are given a list stand here; a message type states those of its
 * own beside its table.
 */
#ifndef QUILVANE_RULES_USAGES_H
#define QUILVANE_RULES_USAGES_H

#include "checks/abattage.h"
#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/identifiants.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "vocabulaire/regle.h"

namespace quilvane {

enum eUsage {
    AUCUN_USAGE,     // is given no list
    ENTIER,          // compares the whole field: entries as wide as the field
    DEUX_COLONNES,   // compares the first two columns, a department
    TROIS_COLONNES,  // compares the first three columns
    UNE_COLONNE,     // compares one column
    CAUSES,          // pairs: code as wide as the field, date or "TOUJOURS"
    SERIES,          // pairs: body of six columns, series letters
    PLAGES,          // triples of six columns
    NON_LUE,         // is given a list and does not read it
};

struct usageDeListe {
    fVerif* verif;
    eUsage usage;
};

// clang-format off
inline constexpr usageDeListe USAGES[] = {
    {fVerifValAut,           ENTIER},
    {fVerifDiffNull,         ENTIER},
    {fVDIFFNULLVTAB,         ENTIER},
    {fVTABP5,                ENTIER},
    {fVTABP6,                ENTIER},
    {fVTABP8,                ENTIER},
    {fVTABDIFFFR,            ENTIER},
    {fVDIFFVD,               ENTIER},
    {fCDIFF,                 ENTIER},
    {fConform8,              DEUX_COLONNES},
    {fConform8FR,            DEUX_COLONNES},
    {fCONFORM8FRNULL,        DEUX_COLONNES},
    {fConform10,             DEUX_COLONNES},
    {fConform10FR,           DEUX_COLONNES},
    {fCONFORM10FRNULL,       DEUX_COLONNES},
    {fConform10FRnonECHAnon, DEUX_COLONNES},
    {fConform3,              TROIS_COLONNES},
    {fConform_OC_model2,     UNE_COLONNE},
    {fConform_OC_model3,     UNE_COLONNE},
    {fConform_OC_model4,     UNE_COLONNE},
    {fConform_BV_model2,     UNE_COLONNE},
    {fConform_BV_model3,     UNE_COLONNE},
    {fConform_BV_model4,     UNE_COLONNE},
    {fVerifValAutDate,       CAUSES},
    {fConformEget,           SERIES},
    {fCoherenCCEget,         SERIES},
    {fCoheren_OC_IND_M,      PLAGES},
    {fConform_temoin_bouc1,  NON_LUE},
    {fConform_OC_FR,         NON_LUE},
    {fConform_OC_TP,         NON_LUE},
    {presence_C5,            NON_LUE},
    {fVerif_NUM_ASDA,        NON_LUE},
    {fVerif_CODEPE_ABATNOT,  NON_LUE},
    {fVerif_INDIC_ABAT,      NON_LUE},
};
// clang-format on

}  // namespace quilvane

#endif
