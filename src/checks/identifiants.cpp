/**
 * identifiants - whether a text is a well-formed identifier: Luhn key, company
 * numbers, member states, French holding, approval and bovine numbers, EGET
 * holding codes.
 */
#include "checks/identifiants.h"

#include "calendar/datecalc.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

/** The first two characters of a number: its department. */
struct departement {
    char code[3];
    explicit departement(const char* numero) {
        int n = 0;
        for (; n < 2 && numero[n] != '\0'; ++n)
            code[n] = numero[n];
        code[n] = '\0';
    }
    bool est(const char (&autre)[3]) const { return vaut(code, autre); }
    bool corse() const { return est("2A") || est("2B"); }
};

bool chiffreOuMajuscule(char c) { return estChiffre(c) || estMajuscule(c); }

/** Kind "V": a series of some body of the list, a capital, two digits. */
bool codeVolailles(const char* champ, const liste& series) {
    const departement serie(champ);
    bool trouve = false;
    for (int paire = 0; paire < series.lignes(2) && !trouve; ++paire)
        trouve = std::strstr(series.ligne(paire)[1].valeur, serie.code) != nullptr;
    return trouve && estMajuscule(carac(champ, 3)) && chiffres(champ, 4, 5);
}

/** Kind "P": a department form, then two digits or capitals. */
bool codePorcins(const char* champ) {
    constexpr const char* OUTRE_MER[] = {"971", "97A", "97C", "97D", "972", "97B", "973", "976"};
    const departement dep(champ);
    if (dep.est("97")) {
        bool trouve = false;
        for (const char* prefixe : OUTRE_MER)
            trouve = trouve || memeDebut(champ, prefixe, 3);
        if (!trouve) return false;
    } else {
        if (!dep.est("98") && !dep.corse() && !dansListe(dep.code, TD)) return false;
        if (!chiffreOuMajuscule(carac(champ, 3))) return false;
    }
    return tous(champ, 4, 5, chiffreOuMajuscule);
}

}  // namespace

int fVerifLuhn(const char* texte) {
    constexpr int DOUBLE[10] = {0, 2, 4, 6, 8, 1, 3, 5, 7, 9};  // digit sum of twice the digit
    const auto longueur = static_cast<int>(std::strlen(texte));
    int total = 0;
    for (int rang = 1; rang <= longueur; ++rang) {
        const char c = texte[longueur - rang];
        if (!estChiffre(c)) return 0;
        const int chiffre = c - '0';
        total += rang % 2 == 1 ? chiffre : DOUBLE[chiffre];
    }
    return total % 10 == 0;
}

int fConformSiren(const char*, char* champ, const liste&) {
    if (egal(champ, quatorzeBlancs[0].valeur)) return 1;
    return !contientBlanc(champ, 1, 9) && egal(aPartirDe(champ, 10), cinqBlancs[0].valeur);
}

int fConformSiret(const char*, char* champ, const liste&) {
    return egal(champ, quatorzeBlancs[0].valeur) || !contientBlanc(champ, 1, 14);
}

int appartient_UE(const char* pays) {
    static constexpr liste MEMBRES = {
        {"DE", "AT", "BE", "DK", "ES", "FI", "FR", "EL", "IE", "LU", "NL", "PT", "UK", "SE", "IT"}};
    return dansListeStricte(pays, MEMBRES);
}

int verifNumAgrementSanitaireFr(const char* numero) {
    const char c2 = carac(numero, 2);
    if (!chiffres(numero, 1, 1) || !chiffres(numero, 3, 7)) return 0;
    if (!estChiffre(c2) && !(numero[0] == '2' && (c2 == 'A' || c2 == 'B'))) return 0;
    const char c8 = carac(numero, 8);
    if (!estChiffre(c8) && c8 != ' ') return 0;
    if (!blancs(numero, 9, 12)) return 0;

    const departement dep(numero);
    if (dep.corse()) return 1;
    if (!dansListeStricte(dep.code, TD) || dep.est("20") || dep.est("98")) return 0;
    if (!dep.est("97")) return 1;
    const char c3 = numero[2];
    return (c3 >= '1' && c3 <= '4') || c3 == '6';
}

int verifNumExploitFr(const char* numero) {
    return chiffres(numero, 1, 8) && blancs(numero, 9, 12) && dansListeStricte(departement(numero).code, TD);
}

int verifNumBovinFrOuImporte(const char* numero) {
    if (!chiffres(numero, 1, 10) || !blancs(numero, 11, 12)) return 0;
    const departement dep(numero);
    if (!dansListe(dep.code, TD)) return 0;
    return !dep.est("97") || (numero[2] >= '1' && numero[2] <= '4');
}

int verifDateCompleteEtCorrecte(const char* date) {
    if (std::strlen(date) != 8 || !chiffres(date, 1, 8)) return 0;
    const int annee = 100 * deuxChiffres(date + 4) + deuxChiffres(date + 6);
    return annee >= 1900 && DateCalc_check_date(annee, deuxChiffres(date + 2), deuxChiffres(date));
}

int fConformEget(const char*, char* champ, const liste& sverif) {
    const char* const production = corps(C4);
    if (vaut(production, "V")) {
        if (!codeVolailles(champ, sverif)) return 0;
    } else if (!vaut(production, "P") || !codePorcins(champ)) {
        return 0;
    }
    return vaut(aPartirDe(champ, 6), "       ");
}

int fConform3(const char*, char* champ, const liste& sverif) { return debutDansListe(champ, sverif, 3); }

}  // namespace quilvane
