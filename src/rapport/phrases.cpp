#include "rapport/phrases.h"

#include <unordered_map>

#include "rapport/mots.h"

namespace quilvane {

namespace {

constexpr int LISTE_COURTE = 12;  // entries that a sentence spells out
/** Stands in a prepared sentence for the value of the field depended on. */
constexpr char REPERE = '\x01';

constexpr texte T_CHAMP = {"le champ {0} ({1})", "the field {0} ({1})"};
constexpr texte T_CHAMP_VALEUR = {"le champ {0} ({1}, {2})", "the field {0} ({1}, {2})"};
constexpr texte T_LISTE = {"la liste {0} ({1})", "the list {0} ({1})"};
constexpr texte T_LISTE_VALEURS = {"la liste {0} ({1} : {2})", "the list {0} ({1}: {2})"};

bool longue(const sListe& l) { return l.colonnes != 1 || l.nombre > LISTE_COURTE; }

/** "la liste TD (codes de département à deux chiffres)"; short lists with
 *  their values. */
std::string listeEnPhrase(const sListe& l, eLangue langue) {
    const char* const titre = l.titre.en_langue(langue);
    if (longue(l)) return remplir(T_LISTE, langue, {l.nom, titre});
    std::string valeurs;
    for (int i = 0; i < l.nombre; ++i)
        valeurs += (i > 0 ? ", " : "") + cite(l.entrees[i].valeur, langue);
    return remplir(T_LISTE_VALEURS, langue, {l.nom, titre, valeurs});
}

std::vector<std::string> couper(const std::string& phrase) {
    std::vector<std::string> morceaux(1);
    for (const char c : phrase) {
        if (c == REPERE)
            morceaux.emplace_back();
        else
            morceaux.back() += c;
    }
    return morceaux;
}

/** "le champ C1 (pays, « DE »)", with `REPERE` for the value in its quotes;
 *  "le champ C1 (pays)" without. Empty for no field. */
std::string champEnMots(const sPlace& p, bool avecValeur, eLangue langue) {
    if (p.table == nullptr) return "";
    const std::string nom = nomDuChamp(p);
    const char* const libelle = libelleDuChamp(p, langue);
    if (!avecValeur) return remplir(T_CHAMP, langue, {nom, libelle});
    return remplir(T_CHAMP_VALEUR, langue, {nom, libelle, std::string_view(&REPERE, 1)});
}

sRegle faireRegle(const sCorps* ligne, eLangue langue) {
    sRegle r = {placeDe(ligne), dependanceDe(ligne), verifDe(ligne->pfVerif), listeDeLigne(ligne), "", {""}};
    if (r.verif == nullptr) return r;
    const std::string liste = r.liste != nullptr ? listeEnPhrase(*r.liste, langue) : "";
    r.phrase = phraseDe(*r.verif, langue, liste, champEnMots(r.dependance, false, langue));
    r.morceaux = couper(phraseDe(*r.verif, langue, liste, champEnMots(r.dependance, true, langue)));
    return r;
}

}  // namespace

const sRegle& regleDe(const sCorps* ligne, eLangue langue) {
    static std::unordered_map<const sCorps*, sRegle> faites[2];
    const auto trouvee = faites[langue].find(ligne);
    if (trouvee != faites[langue].end()) return trouvee->second;
    return faites[langue].emplace(ligne, faireRegle(ligne, langue)).first->second;
}

bool listeTue(const sRegle& r) { return r.liste != nullptr && longue(*r.liste); }

std::string phraseAvecValeur(const sRegle& r, std::string_view valeur, eLangue langue) {
    std::string phrase = r.morceaux.front();
    for (std::size_t i = 1; i < r.morceaux.size(); ++i)
        phrase += cite(valeur, langue) + r.morceaux[i];
    return phrase;
}

}  // namespace quilvane
