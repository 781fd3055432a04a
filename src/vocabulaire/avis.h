/**
 * avis.h - the slaughter notice as its checks look at it: all fields at once,
 * beside their slots.
 */
#ifndef QUILVANE_VOCABULAIRE_AVIS_H
#define QUILVANE_VOCABULAIRE_AVIS_H

namespace quilvane {

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

/** Fills the extract `cp` (store.h) from the current record; a member whose
 *  columns the record does not reach is shorter or empty. */
void getVseCorps();

}  // namespace quilvane

#endif
