/**
 * listes - membership of value lists, absence of blanks, emptiness, and the
 * form of foreign numbers: the checks that the other families are built of.
 */
#include "checks/listes.h"

#include <algorithm>

#include "checks/index.h"
#include "checks/lecture.h"
#include "checks/valautorise.h"

namespace quilvane {

namespace {

/** Whether a text is one of the national emitters that belong to every list. */
bool codeSpecial(const char* texte) {
    if (texte[0] != 'N' && texte[0] != 'P') return false;
    return vaut(texte, "NORMABEV") || vaut(texte, "NORM01  ") || vaut(texte, "NORM02  ") ||
           vaut(texte, "PFOC01  ");
}

/** Membership in a list of few entries: they differ mostly in their first
 *  character. */
int parcourir(const char* texte, const liste& l) {
    for (const tValAutorise& entree : l)
        if (static_cast<char>(entree.debut) == texte[0] && egal(entree.valeur, texte)) return 1;
    return 0;
}

/** Membership in a longer list, by the first eight characters at once. */
int chercher(const char* texte, const liste& l) {
    const std::uint64_t cle = tValAutorise::cle(texte);
    const bool entier = cle >> 56 == 0;  // the text ends within its key
    if (l.index != nullptr) return l.index->contient(cle) && (entier || texte[8] == '\0');
    const auto memeCle = [cle](const tValAutorise& entree) { return entree.debut == cle; };
    for (auto e = l.begin(); (e = std::find_if(e, l.end(), memeCle)) != l.end(); ++e)
        if (entier || egal(e->valeur + 8, texte + 8)) return 1;
    return 0;
}

}  // namespace

int dansListeStricte(const char* texte, const liste& l) {
    constexpr int PEU = 8;
    return l.nombre() > PEU ? chercher(texte, l) : parcourir(texte, l);
}

int dansListe(const char* texte, const liste& l) { return codeSpecial(texte) || dansListeStricte(texte, l); }

int debutDansListe(const char* texte, const liste& l, int n) {
    const std::uint64_t masque = n >= 8 ? ~std::uint64_t{0} : (std::uint64_t{1} << (8 * n)) - 1;
    const std::uint64_t debut = tValAutorise::cle(texte) & masque;
    // Entries that the cut leaves whole can be looked up by what is left of the text.
    if (l.index != nullptr && l.index->largeur <= n) return l.index->contient(debut);
    return std::any_of(l.begin(), l.end(),
                       [=](const tValAutorise& entree) { return (entree.debut & masque) == debut; });
}

int fVerifValAut(const char*, char* champ, const liste& sverif) { return dansListe(champ, sverif); }

int fVerifDiffNull(const char*, char* champ, const liste& sverif) { return !dansListeStricte(champ, sverif); }

int fVerifAucunBlanc(const char*, char* champ, const liste&) { return std::strchr(champ, ' ') == nullptr; }

int fVerifAucunBlanc_SD(const char*, char* champ, const liste&) {
    if (champ[0] == '\0') return 1;
    const int dernier = dernierNonBlanc(champ);
    return dernier >= 0 && !contientBlanc(champ, 1, dernier + 1);
}

int fVerifAucunBlanc_SDN(const char* dependance, char* champ, const liste& sverif) {
    return champOuvert(champ) || fVerifAucunBlanc_SD(dependance, champ, sverif);
}

int fVerifNumEtranger(const char* dependance, char* champ, const liste&) {
    const int dernier = dernierNonBlanc(champ);
    if (dernier < 0) return 0;
    if (!tous(champ, 1, dernier + 1, [](char c) { return estChiffre(c) || estMajuscule(c); })) return 0;
    return !memeDebut(dependance, champ, 2);
}

int fVerifNumEtrangerN(const char* dependance, char* champ, const liste& sverif) {
    return champOuvert(champ) || fVerifNumEtranger(dependance, champ, sverif);
}

int champOuvert(const char* champ) { return dansListe(champ, DouzeBlancs) || dansListe(champ, ET12); }

int champVide(const char* texte) { return videOuBlanc(texte); }

}  // namespace quilvane
