/**
 * mouvement.h - what ENTR and SORT share: the rules about the other party of a
 * movement. The two types differ in the cause letters that relax them.
 */
#ifndef QUILVANE_MESSAGES_MOUVEMENT_H
#define QUILVANE_MESSAGES_MOUVEMENT_H

#include "vocabulaire/regle.h"

namespace quilvane::mouvement {

/** Cause letters (body C5) by what they change; each text is a set. */
struct causes {
    const char* exigentPays;       // C8 must be given
    const char* dispensentNumero;  // C8 may stand without C9
    const char* dispensentTexte;   // neither C9 nor C10 is needed
};

/** Whether a missing field is tolerated for movements before `P8`. */
enum eTolerance { STRICT, TOLERE_AVANT_P8 };

/** C5: F, G, S and T are causes of creations; `genre` is header E5. */
int causeSelonGenre(const char* genre);
/** C8: country of the other holding. */
int pays(const causes& lettres, const char* c8, eTolerance tolerance);
/** C9: number of the other holding is given, or need not be. */
int numeroPresent(const causes& lettres, const char* c9, eTolerance tolerance);
/** C9: the number has the form of its country. */
int numeroConforme(char* c9);
/** C10: the other party in words. */
int texte(const causes& lettres, const char* c10, eTolerance tolerance);

}  // namespace quilvane::mouvement

/**
 * Defines the checks of one type under the names that its rows use, from its
 * lower-case prefix and its cause letters. `_cre` serves creations; `_mod`
 * serves modifications and tolerates what is missing before `P8`.
 *
 *   fC5     causes F, G, S and T on creation only; the dependency is the
 *           transaction kind. Error 23.
 *   fC8     country (2) of the other holding: of `TP`, or blank unless the
 *           cause requires it. Error 24.
 *   fC9_1   number (12) of the other holding: given with its country, or not
 *           needed for the cause. Error 24.
 *   fC9_2   that number: blank, or of French form if its country (C8) is
 *           "FR". Error 68.
 *   fC10    the other party in words (60) when it has no number and the cause
 *           does not dispense with both. Error 24.
 */
// clang-format off
#define VERIFS_DE_MOUVEMENT(type, lettres) \
    int type##_fC5(const char* genre, char*, const liste&) { return mouvement::causeSelonGenre(genre); } \
    int type##_fC8_cre(const char*, char* c8, const liste&) { return mouvement::pays(lettres, c8, mouvement::STRICT); } \
    int type##_fC8_mod(const char*, char* c8, const liste&) { return mouvement::pays(lettres, c8, mouvement::TOLERE_AVANT_P8); } \
    int type##_fC9_1_cre(const char*, char* c9, const liste&) { return mouvement::numeroPresent(lettres, c9, mouvement::STRICT); } \
    int type##_fC9_1_mod(const char*, char* c9, const liste&) { return mouvement::numeroPresent(lettres, c9, mouvement::TOLERE_AVANT_P8); } \
    int type##_fC9_2_cre(const char*, char* c9, const liste&) { return mouvement::numeroConforme(c9); } \
    int type##_fC9_2_mod(const char*, char* c9, const liste&) { return mouvement::numeroConforme(c9); } \
    int type##_fC10_cre(const char*, char* c10, const liste&) { return mouvement::texte(lettres, c10, mouvement::STRICT); } \
    int type##_fC10_mod(const char*, char* c10, const liste&) { return mouvement::texte(lettres, c10, mouvement::TOLERE_AVANT_P8); } \
    static_assert(true)
// clang-format on

#endif
