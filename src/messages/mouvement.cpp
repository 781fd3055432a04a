#include "messages/mouvement.h"

#include "checks/conformite.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/valautorise.h"
#include "vocabulaire/store.h"

namespace quilvane::mouvement {

namespace {

bool causeParmi(const char* lettres) {
    const char cause = *corps(C5);
    return cause != '\0' && std::strchr(lettres, cause) != nullptr;
}

bool depuisP8() { return fVTABP(corps(C4), P8[0].valeur); }

/** Verdict on a missing field: only the tolerance can save it. */
int manque(eTolerance tolerance) { return tolerance == TOLERE_AVANT_P8 && !depuisP8(); }

bool c8Blanc(const char* c8) { return blancs(c8, 1, 2); }
bool c9Blanc(const char* c9) { return blancs(c9, 1, 12); }

}  // namespace

int causeSelonGenre(const char* genre) { return !causeParmi("FGST") || memeDebut(genre, "CRE", 3); }

int pays(const causes& lettres, const char* c8, eTolerance tolerance) {
    if (!c8Blanc(c8)) return dansListe(c8, TP);
    return !causeParmi(lettres.exigentPays) || manque(tolerance);
}

int numeroPresent(const causes& lettres, const char* c9, eTolerance tolerance) {
    const bool sansPays = c8Blanc(corps(C8));
    if (!c9Blanc(c9)) return !sansPays;
    return sansPays || causeParmi(lettres.dispensentNumero) || manque(tolerance);
}

int numeroConforme(char* c9) { return c9Blanc(c9) || fConform8FR(corps(C8), c9, TD); }

int texte(const causes& lettres, const char* c10, eTolerance tolerance) {
    if (!blancs(c10, 1, 60) || causeParmi(lettres.dispensentTexte)) return 1;
    return !c9Blanc(corps(C9)) || manque(tolerance);
}

}  // namespace quilvane::mouvement
