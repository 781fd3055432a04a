/**
 * listes - membership of value lists, absence of blanks, emptiness, and the
 * form of foreign numbers: the checks that the other families are built of.
 */
#include <algorithm>

#include "checks/index.h"
#include "checks/lecture.h"
#include "checks/utils.h"

namespace quilvane {

namespace {

/** Whether a text is one of the national emitters that belong to every list. */
bool codeSpecial(const char* texte) {
    if (texte[0] != 'N' && texte[0] != 'P') return false;
    return vaut(texte, "NORMABEV") || vaut(texte, "NORM01  ") || vaut(texte, "NORM02  ") ||
           vaut(texte, "PFOC01  ");
}

/** The index of a list, null when it has none. */
const indexListe* indexDe(const tValAutorise* liste, int nombreEntrees) {
    if (nombreEntrees <= indexListe::COURTE) return nullptr;
    for (const indexListe& index : tIndex)
        if (index.liste == liste && index.nombre == nombreEntrees) return &index;
    return nullptr;
}

/** Membership in a list of few entries: they differ mostly in their first
 *  character. */
int parcourir(const char* texte, const tValAutorise* liste, const tValAutorise* bout) {
    for (; liste != bout; ++liste)
        if (static_cast<char>(liste->debut) == texte[0] && egal(liste->valeur, texte)) return 1;
    return 0;
}

/** Membership in a longer list, by the first eight characters at once. */
int chercher(const char* texte, const tValAutorise* liste, int nombreEntrees) {
    const std::uint64_t cle = tValAutorise::cle(texte);
    const bool entier = cle >> 56 == 0;  // the text ends within its key
    if (const indexListe* const index = indexDe(liste, nombreEntrees); index != nullptr)
        return index->contient(cle) && (entier || texte[8] == '\0');
    const tValAutorise* const bout = liste + nombreEntrees;
    const auto memeCle = [cle](const tValAutorise& entree) { return entree.debut == cle; };
    for (; (liste = std::find_if(liste, bout, memeCle)) != bout; ++liste)
        if (entier || egal(liste->valeur + 8, texte + 8)) return 1;
    return 0;
}

}  // namespace

int dansListeStricte(const char* texte, const tValAutorise* liste, int nombreEntrees) {
    constexpr int PEU = 8;
    if (nombreEntrees > PEU) return chercher(texte, liste, nombreEntrees);
    return parcourir(texte, liste, liste + (nombreEntrees > 0 ? nombreEntrees : 0));
}

int dansListe(const char* texte, const tValAutorise* liste, int nombreEntrees) {
    return codeSpecial(texte) || dansListeStricte(texte, liste, nombreEntrees);
}

int debutDansListe(const char* texte, const tValAutorise* liste, int nombreEntrees, int n) {
    const std::uint64_t masque = n >= 8 ? ~std::uint64_t{0} : (std::uint64_t{1} << (8 * n)) - 1;
    const std::uint64_t debut = tValAutorise::cle(texte) & masque;
    // Entries that the cut leaves whole can be looked up by what is left of the text.
    if (const indexListe* const index = indexDe(liste, nombreEntrees);
        index != nullptr && index->largeur <= n)
        return index->contient(debut);
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
