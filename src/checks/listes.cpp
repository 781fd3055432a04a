/**
 * listes - membership of value lists, absence of blanks, emptiness, and the
 * form of foreign numbers: the checks that the other families are built of.
 */
#include "checks/lecture.h"
#include "checks/utils.h"

namespace quilvane {

namespace {

/** National emitters whose codes pass every list-membership test. */
constexpr tValAutorise CODES_SPECIAUX[] = {"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "};

}  // namespace

int dansListeStricte(const char* texte, const tValAutorise* liste, int nombreEntrees) {
    const std::uint64_t debut = tValAutorise::cle(texte);
    for (int i = 0; i < nombreEntrees; ++i)
        if (liste[i].debut == debut && egal(liste[i].valeur, texte)) return 1;
    return 0;
}

int dansListe(const char* texte, const tValAutorise* liste, int nombreEntrees) {
    for (const tValAutorise& code : CODES_SPECIAUX)
        if (egal(code.valeur, texte)) return 1;
    return dansListeStricte(texte, liste, nombreEntrees);
}

int debutDansListe(const char* texte, const tValAutorise* liste, int nombreEntrees, int n) {
    const std::uint64_t masque = n >= 8 ? ~std::uint64_t{0} : (std::uint64_t{1} << (8 * n)) - 1;
    const std::uint64_t debut = tValAutorise::cle(texte) & masque;
    for (int i = 0; i < nombreEntrees; ++i)
        if ((liste[i].debut & masque) == debut) return 1;
    return 0;
}

int fVerifValAut(const char*, char* champ, const void* sverif, int lenSverif) {
    return dansListe(champ, listeDe(sverif), lenSverif);
}

int fVerifDiffNull(const char*, char* champ, const void* sverif, int lenSverif) {
    return !dansListeStricte(champ, listeDe(sverif), lenSverif);
}

int fVerifAucunBlanc(const char*, char* champ, const void*, int) {
    return std::strchr(champ, ' ') == nullptr;
}

int fVerifAucunBlanc_SD(const char*, char* champ, const void*, int) {
    if (champ[0] == '\0') return 1;
    const int dernier = dernierNonBlanc(champ);
    return dernier >= 0 && !contientBlanc(champ, 1, dernier + 1);
}

int fVerifAucunBlanc_SDN(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return champOuvert(champ) || fVerifAucunBlanc_SD(dependance, champ, sverif, lenSverif);
}

int fVerifNumEtranger(const char* dependance, char* champ, const void*, int) {
    const int dernier = dernierNonBlanc(champ);
    if (dernier < 0) return 0;
    if (!tous(champ, 1, dernier + 1, [](char c) { return estChiffre(c) || estMajuscule(c); })) return 0;
    return !memeDebut(dependance, champ, 2);
}

int fVerifNumEtrangerN(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return champOuvert(champ) || fVerifNumEtranger(dependance, champ, sverif, lenSverif);
}

int champOuvert(const char* champ) {
    return dansListe(champ, DouzeBlancs, LenDouzeBlancs) || dansListe(champ, ET12, LenET12);
}

int champVide(const char* texte) { return videOuBlanc(texte); }

}  // namespace quilvane
