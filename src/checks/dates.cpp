/**
 * dates - whether a date or time is well formed and plausible: complete or
 * partly unknown, before or after another date of its record.
 */
#include "checks/dates.h"

#include <ctime>

#include "calendar/horloge.h"
#include "checks/coherence.h"
#include "checks/lecture.h"
#include "checks/reference.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

bool jourBlanc(const char* date) { return memeDebut(date, "  ", 2); }
bool moisBlanc(const char* date) { return memeDebut(aPartirDe(date, 3), "  ", 2); }
bool depuis(const char* date, const liste& reference) { return fVTABP(date, reference[0].valeur); }

/** Empty text or a run of at most thirty blanks. */
bool vide30(const char* texte) { return std::strlen(texte) <= 30 && videOuBlanc(texte); }

/** Year from which slaughter notices exist, excluded. */
constexpr int DERNIERE_ANNEE_SANS_AVIS = 1997;

}  // namespace

int fDATEC(const char*, char* champ, const liste&) { return fDATECouI(champ, COMPLETE); }

int fDATEI(const char*, char* champ, const liste&) { return fDATECouI(champ, INCOMPLETE); }

int fDATECxad(const char*, char* champ, const liste&) {
    return huitBlancs(champ) || fDATECouI(champ, COMPLETE);
}

int fDatRecCorr(const char* dependance, char* champ, const liste& sverif) {
    return fDATECxad(dependance, champ, sverif);
}

int fDATEC_INC(const char*, char* champ, const liste&) {
    return blancs(champ, 1, 8) || fDATECouI(champ, COMPLETE);
}

int fDATEC_xad(const char* dependance, char* champ, const liste& sverif) {
    return std::strlen(champ) == 8 && fDATECxad(dependance, champ, sverif);
}

int fDatRecCorr_O(const char*, char* champ, const liste&) {
    return !huitBlancs(champ) && fDATECouI(champ, COMPLETE);
}

int fDatRecCorr_O_P18(const char* dependance, char* champ, const liste&) {
    return huitBlancs(champ) ? !depuis(dependance, P18) : fDATECouI(champ, COMPLETE);
}

int fDATEP6(const char*, char* champ, const liste&) {
    if (depuis(champ, P6) && (moisBlanc(champ) || jourBlanc(champ))) return 0;
    return fDATECouI(champ, INCOMPLETE);
}

int fDATEP6P7(const char*, char* champ, const liste&) {
    const bool depuisP7 = depuis(champ, P7);
    if (depuis(champ, P6)) {
        if (depuisP7) return fDATECouI(champ, COMPLETE);
        if (moisBlanc(champ)) return 0;
    } else if (depuisP7 && jourBlanc(champ)) {
        return 0;
    }
    return fDATECouI(champ, INCOMPLETE);
}

int fDatRecCohe(const char* dependance, char* champ, const liste&) {
    return huitBlancs(champ) || fCoherenDCSupInf(dependance, champ, INF);
}

int fDatRecPost(const char* dependance, char* champ, const liste&) {
    return huitBlancs(champ) || fCoherenDCSupInf(dependance, champ, SUP);
}

int fDatRecPost_tr(const char* dependance, char* champ, const liste& sverif) {
    return vaut(corps(C5), "J") || fDatRecPost(dependance, champ, sverif);
}

int fDatRec_OC_Post(const char* dependance, char* champ, const liste&) {
    if (huitBlancs(champ)) return 1;
    const char* const depuisAnnee = aPartirDe(champ, 5);
    char annee[5] = {};
    std::memcpy(annee, depuisAnnee, strnlen(depuisAnnee, 4));
    return std::strcmp(annee, dependance) > 0;
}

int fVerifValAutDate(const char* dependance, char* champ, const liste& sverif) {
    for (int paire = 0; paire < sverif.lignes(2); ++paire) {
        const tValAutorise* const cause = sverif.ligne(paire);
        if (!egal(cause[0].valeur, champ)) continue;
        const char* const limite = cause[1].valeur;
        return vaut(limite, "TOUJOURS") || fCoherenDCSupInf(limite, dependance, INF);
    }
    return 0;
}

int fHEUREC(const char*, char* champ, const liste&) {
    return chiffres(champ, 1, 6) && deuxChiffres(champ) < 24 && deuxChiffres(champ + 2) < 60 &&
           deuxChiffres(champ + 4) < 60;
}

int fDATEHEUREC(const char* dependance, char* champ, const liste& sverif) {
    const std::time_t present = maintenant();
    if (!fHEUREC("", champ, sverif) || !chiffres(dependance, 1, 8)) return 0;
    const auto lire = [](const char* texte, int col, int largeur) {
        return static_cast<int>(nombre(texte, col, largeur));
    };
    const int jour = lire(dependance, 1, 2);
    const int mois = lire(dependance, 3, 2);
    const int annee = lire(dependance, 5, 4);
    if (mois == 0 || annee < 1970 || annee > 2038 || jour == 0) return 0;
    std::tm moment{};
    moment.tm_mday = jour;
    moment.tm_mon = mois - 1;
    moment.tm_year = annee - 1900;
    moment.tm_hour = lire(champ, 1, 2);
    moment.tm_min = lire(champ, 3, 2);
    moment.tm_sec = lire(champ, 5, 2);
    moment.tm_isdst = -1;
    // -1 is no failure here: it is the last second before 1970, which stands
    // in the calendar of 1970 east of Greenwich.
    const std::time_t instant = std::mktime(&moment);
    if (moment.tm_mday != jour || moment.tm_mon != mois - 1 || moment.tm_year != annee - 1900) return 0;
    return std::difftime(present, instant) > 0;
}

int fSimult(const char* dependance, char* champ, const liste&) { return vide30(dependance) == vide30(champ); }

int fVerifDateInput(const char*, char*, const liste&) { return 1; }

int fVerifDateInputCvse(const char*, char*, const liste&) { return 1; }

int fVerifDateInputPost(const char*, char* champ, const liste&) {
    return videOuBlanc(champ) || nombre(champ, 5, 4) > DERNIERE_ANNEE_SANS_AVIS;
}

int fVerifDateAbatPost(const char*, char* champ, const liste&) {
    return nombre(champ, 5, 4) > DERNIERE_ANNEE_SANS_AVIS;
}

int fVerifDateAbatPostEntr(const char*, char* champ, const liste&) {
    const char* const entree = cp.DATE_ENTREE_ABAT;
    if (huitBlancs(entree) || huitBlancs(champ)) return 1;
    const long long annees = nombre(entree, 5, 4) - nombre(champ, 5, 4);
    if (annees != 0) return annees < 0;
    const long long mois = nombre(entree, 3, 2) - nombre(champ, 3, 2);
    if (mois != 0) return mois < 0;
    return nombre(entree, 1, 2) <= nombre(champ, 1, 2);
}

}  // namespace quilvane
