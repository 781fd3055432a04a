/**
 * listes - membership of value lists, absence of blanks, emptiness, and the
 * form of foreign numbers: the checks that the other families are built of.
 */
#include <algorithm>

#include "checks/lecture.h"
#include "checks/utils.h"

namespace quilvane {

namespace {

// National emitters whose codes pass every list-membership test.
constexpr std::uint64_t NORMABEV = tValAutorise::cle("NORMABEV");
constexpr std::uint64_t NORM01 = tValAutorise::cle("NORM01  ");
constexpr std::uint64_t NORM02 = tValAutorise::cle("NORM02  ");
constexpr std::uint64_t PFOC01 = tValAutorise::cle("PFOC01  ");

/** Whether a text of first characters `cle` is one of them. */
bool codeSpecial(const char* texte, std::uint64_t cle) {
    const bool parmi = cle == NORMABEV || cle == NORM01 || cle == NORM02 || cle == PFOC01;
    return parmi && texte[8] == '\0';
}

/** Membership of a text whose first characters are `cle`. */
int chercher(const char* texte, std::uint64_t cle, const tValAutorise* liste, int nombreEntrees) {
    const tValAutorise* const bout = liste + (nombreEntrees > 0 ? nombreEntrees : 0);
    const auto memeCle = [cle](const tValAutorise& entree) { return entree.debut == cle; };
    for (; (liste = std::find_if(liste, bout, memeCle)) != bout; ++liste)
        if (egal(liste->valeur, texte)) return 1;
    return 0;
}

}  // namespace

int dansListeStricte(const char* texte, const tValAutorise* liste, int nombreEntrees) {
    return chercher(texte, tValAutorise::cle(texte), liste, nombreEntrees);
}

int dansListe(const char* texte, const tValAutorise* liste, int nombreEntrees) {
    const std::uint64_t cle = tValAutorise::cle(texte);
    return codeSpecial(texte, cle) || chercher(texte, cle, liste, nombreEntrees);
}

int debutDansListe(const char* texte, const tValAutorise* liste, int nombreEntrees, int n) {
    const std::uint64_t masque = n >= 8 ? ~std::uint64_t{0} : (std::uint64_t{1} << (8 * n)) - 1;
    const std::uint64_t debut = tValAutorise::cle(texte) & masque;
    return std::any_of(liste, liste + (nombreEntrees > 0 ? nombreEntrees : 0),
                       [=](const tValAutorise& entree) { return (entree.debut & masque) == debut; });
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
