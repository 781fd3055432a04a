/**
 * mouvement.h - what ENTR and SORT share: the rules about the other party of a
 * movement. The two types differ in the cause letters that relax them.
 */
#ifndef QUILVANE_MESSAGES_MOUVEMENT_H
#define QUILVANE_MESSAGES_MOUVEMENT_H

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

#endif
