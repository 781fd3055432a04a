/**
 * coherence - comparison of a field with another field of its record: numbers
 * with the departmental body, dates with the record's own date; and the date
 * reader on which every date check rests.
 */
#include "checks/coherence.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "calendar/datecalc.h"
#include "checks/lecture.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

/** The movement cause of ENTR and SORT. */
bool causeJ() { return vaut(corps(C5), "J"); }

/** Number ranges given to a departmental body beside its row of `IND_M`. */
struct plage {
    const char* code;
    const char* bas;
    const char* haut;
};

// "043IPG" and "049IPG" share 674500 to 674999.
// clang-format off
constexpr plage PLAGES_SUPPLEMENTAIRES[] = {
    {"076IPG", "655001", "655499"},
    {"022IPG", "655500", "657499"},
    {"035IPG", "657500", "659499"},
    {"076IPG", "659500", "660499"},
    {"022IPG", "660500", "661999"},
    {"024IPG", "662000", "664499"},
    {"029IPG", "664500", "667499"},
    {"031IPG", "667500", "667999"},
    {"033IPG", "668000", "668499"},
    {"035IPG", "668500", "673499"},
    {"042IPG", "673500", "673999"},
    {"043IPG", "674000", "674999"},
    {"049IPG", "674500", "674999"},
    {"053IPG", "675000", "677499"},
    {"056IPG", "677500", "677999"},
    {"059IPG", "678000", "678999"},
    {"061IPG", "679000", "679999"},
    {"072IPG", "680000", "680499"},
    {"076IPG", "680500", "683499"},
};
// clang-format on

/** Whether one of the department groups, which are rows, holds both. */
bool memeGroupe(const liste& groupes, const char* a, const char* b) {
    const int n = groupes.colonnes;
    for (int rang = 0; rang < groupes.lignes(n); ++rang) {
        const auto contient = [groupe = groupes.ligne(rang), n](const char* code) {
            return std::any_of(groupe, groupe + n,
                               [code](const tValAutorise& d) { return memeDebut(d.valeur, code, 3); });
        };
        if (contient(a) && contient(b)) return true;
    }
    return false;
}

/** The date is not after `reference`, its year moved on by `ansDePlus`. */
int pasApresDecale(const char* reference, const char* date, int ansDePlus) {
    if (ansDePlus == 0) return fCoherenDCSupInf(reference, date, INF);
    const dateInversee origine(reference);
    char limite[16];
    // The year is plain digits and may grow to five. A date cut inside or
    // before its year has neither month nor day; a year that is not there is 0.
    char* const suite = std::to_chars(limite, limite + 8, nombre(reference, 5, 4) + ansDePlus).ptr;
    std::strcpy(suite, aPartirDe(origine.texte, 5));
    dateInversee champ(date);
    champ.blancsEnZeros();
    return std::strcmp(champ.texte, limite) <= 0;
}

}  // namespace

int fCoherenCC(const char* dependance, char* champ, const liste&) {
    constexpr const char* OUTRE_MER[] = {"971", "972", "973", "974", "976"};
    if (memeDebut(dependance, "POINTFOC", 8)) return 1;
    if (memeDebut(dependance, "02A", 3) || memeDebut(dependance, "02B", 3)) return memeDebut(champ, "20", 2);
    for (const char* dep : OUTRE_MER) {
        if (!memeDebut(dependance, dep, 3)) continue;
        return memeDebut(champ, dep, 3) || (memeDebut(champ, "98", 2) && vaut(dep, "974"));
    }
    return memeDebut(champ, aPartirDe(dependance, 2), 2);
}

int fCoherenCC_tr(const char* dependance, char* champ, const liste& sverif) {
    return causeJ() || fCoherenCC(dependance, champ, sverif);
}

int fCoherenCCD(const char* dependance, char* champ, const liste&) {
    return memeDebut(champ, dependance, 3) || (memeDebut(champ, "098", 3) && memeDebut(dependance, "974", 3));
}

int fCoherenCCDR(const char* dependance, char* champ, const liste&) {
    if (memeDebut(dependance, champ, 3)) return 1;
    constexpr const liste* GROUPES[] = {&DPT2, &DPT3, &DPT4, &DPT5, &DPT6, &DPT7, &DPT8, &DPT17};
    return std::any_of(std::begin(GROUPES), std::end(GROUPES),
                       [=](const liste* groupes) { return memeGroupe(*groupes, dependance, champ); });
}

int fCoherenCCE(const char* emetteur, const char* codeDep) {
    if (egal(emetteur, codeDep)) return 1;
    if (memeDebut(emetteur, "NORM01", 6) || memeDebut(emetteur, "NORM02", 6) ||
        memeDebut(emetteur, "PFOC01", 6))
        return 1;
    return pairesTEDC(emetteur, codeDep);
}

int pairesTEDC(const char* emetteur, const char* codeDep) {
    for (int rang = 0; rang < LenTEDC && TEDC.ligne(rang)[0].valeur != nullptr; ++rang)
        if (egal(TEDC.ligne(rang)[0].valeur, emetteur) && egal(TEDC.ligne(rang)[1].valeur, codeDep)) return 1;
    return 0;
}

int fCoherenCCEget(const char* dependance, char* champ, const liste& sverif) {
    const char* const production = corps(C4);
    if (vaut(production, "V")) {
        const char serie[3] = {carac(champ, 1), carac(champ, 2), '\0'};
        for (int paire = 0; paire < sverif.lignes(2); ++paire)
            if (const tValAutorise* const series = sverif.ligne(paire);
                memeDebut(series[0].valeur, dependance, 6))
                return std::strstr(series[1].valeur, serie) != nullptr;
        return 0;
    }
    if (!vaut(production, "P")) return 0;
    if (memeDebut(dependance, "971IPG", 6))
        return memeDebut(champ, "971", 3) || memeDebut(champ, "97A", 3) || memeDebut(champ, "97C", 3) ||
               memeDebut(champ, "97D", 3);
    if (memeDebut(dependance, "972IPG", 6)) return memeDebut(champ, "972", 3) || memeDebut(champ, "97B", 3);
    if (memeDebut(dependance, "973IPG", 6)) return memeDebut(champ, "973", 3);
    if (memeDebut(dependance, "976IPG", 6)) return memeDebut(champ, "976", 3);
    if (memeDebut(dependance, "974IPG", 6)) return memeDebut(champ, "98", 2);  // not "974"
    return memeDebut(champ, aPartirDe(dependance, 2), 2);
}

int fCoheren_OC_IND_M(const char* dependance, char* champ, const liste& sverif) {
    const int triples = sverif.lignes(3);
    int courant = 0;
    // An unknown body stops on the last triple, whose range is then used.
    while (courant < triples - 1 && !memeDebut(sverif.ligne(courant)[0].valeur, dependance, 6))
        ++courant;
    if (triples > 0 && entre(champ, sverif.ligne(courant)[1].valeur, sverif.ligne(courant)[2].valeur, 6))
        return 1;
    for (const plage& p : PLAGES_SUPPLEMENTAIRES)
        if (memeDebut(p.code, dependance, 6) && entre(champ, p.bas, p.haut, 6)) return 1;
    return 0;
}

int fCoherenDCSupInf(const char* reference, const char* date, esupInf sens) {
    const dateInversee d(reference);
    dateInversee c(date);
    c.blancsEnZeros();
    return sens == INF ? c.ordre <= d.ordre : c.ordre >= d.ordre;
}

int fCoherenDC(const char* dependance, char* champ, const liste&) {
    return fCoherenDCSupInf(dependance, champ, INF);
}

int fCoherenDateSup(const char* dependance, char* champ, const liste&) {
    return fCoherenDCSupInf(dependance, champ, SUP);
}

int fCoherenDC_tr(const char* dependance, char* champ, const liste&) {
    return pasApresDecale(dependance, champ, causeJ() ? 1 : 0);
}

int fCoherenDC_tr2(const char* dependance, char* champ, const liste&) {
    return pasApresDecale(dependance, champ, 1);
}

int fCoherenD_OC_an_1(const char*, char* champ, const liste&) { return chiffres(champ, 1, 4); }

int fCoherenD_OC_an_2(const char* dependance, char* champ, const liste&) {
    const dateInversee d(dependance);
    char annee[5] = {};
    std::memcpy(annee, d.texte, strnlen(d.texte, 4));
    return std::strcmp(champ, annee) < 0;
}

int fDATECouI(char* champ, eCouI mode) {
    if (mode == INCOMPLETE) {
        if (blancs(champ, 1, 4)) {
            std::memcpy(champ, "0000", 4);
        } else {
            const bool jourEcritZero = memeDebut(champ, "00", 2);
            if (blancs(champ, 1, 2)) std::memcpy(champ, "00", 2);
            // Unknown parts are blanks, never zeros: the first character is
            // spoilt so that the digit test below refuses the field.
            if (champ[0] == ' ' || jourEcritZero || memeDebut(aPartirDe(champ, 3), "00", 2)) champ[0] = ' ';
        }
    }
    if (!chiffres(champ, 1, 8)) return 0;
    int jour = deuxChiffres(champ);
    int mois = deuxChiffres(champ + 2);
    const int annee = 100 * deuxChiffres(champ + 4) + deuxChiffres(champ + 6);
    if (mode == INCOMPLETE) {
        if (jour == 0) jour = 1;
        if (mois == 0) mois = 1;
    }
    return annee >= 1900 && DateCalc_check_date(annee, mois, jour);
}

}  // namespace quilvane
