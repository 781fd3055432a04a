/**
 * consulter - the subcommands that look things up: numbers, tables, examples,
 * allowed values.
 */
#include <algorithm>
#include <cstdio>

#include "catalogue/erreurs.h"
#include "catalogue/exemples.h"
#include "catalogue/listes.h"
#include "catalogue/verifs.h"
#include "guide/commandes.h"
#include "guide/fiches.h"
#include "rapport/catalogue_json.h"
#include "rapport/diagnostic.h"
#include "rapport/mots.h"

namespace quilvane::guide {

namespace {

constexpr texte T_NUMERO_INCONNU = {"{0} n'est ni un numéro d'erreur ni un code du log",
                                    "{0} is neither an error number nor a code of the log"};
constexpr texte T_TYPE_INCONNU = {"type de message inconnu : {0}", "unknown message type: {0}"};
constexpr texte T_GENRE_INCONNU = {"{0} n'a pas d'exemple de genre {1} ; genres : {2}",
                                   "{0} has no example of kind {1}; kinds: {2}"};
constexpr texte T_LISTE_INCONNUE = {"liste inconnue : {0}", "unknown list: {0}"};
constexpr texte T_PAS_ICI = {"Aucune règle de {0} ne donne cette erreur.",
                             "No rule of {0} gives this error."};
constexpr texte T_CHAMP_INCONNU = {"champ inconnu : {0}", "unknown field: {0}"};

int plaindre(const texte& m, eLangue langue, std::initializer_list<std::string_view> arguments) {
    std::fprintf(stderr, "quilvane-guide: %s\n", remplir(m, langue, arguments).c_str());
    return STATUT_USAGE;
}

int rendre(const std::string& t, eLangue langue) {
    return imprimer(t, langue) ? STATUT_ACCEPTE : STATUT_ARRET;
}

std::string enCapitales(std::string t) {
    std::transform(t.begin(), t.end(), t.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return t;
}

/** The number that "68", "I68" or "I0681" names, -1 for none. */
int numeroDe(std::string t) {
    if (t.size() == 5 && t[0] == 'I' && t[4] == '1') t = t.substr(1, 3);
    if (!t.empty() && t[0] == 'I') t.erase(0, 1);
    if (t.empty() || t.size() > 3 || t.find_first_not_of("0123456789") != std::string::npos) return -1;
    return std::stoi(t);
}

std::string genresEnLigne(const sTable& t) {
    std::string r;
    for (const std::string_view g : genresDe(t.nom))
        r += (r.empty() ? "" : ", ") + std::string(g);
    return r;
}

}  // namespace

int expliquerNumero(const sDemandeLue& d) {
    const std::string nom = enCapitales(d.arguments[0]);
    const sStyles& s = styles(enCouleur(d));
    if (const sFatal* const f = fatalDe(nom); f != nullptr)
        return rendre(ficheFatale(*f, d.langue, s), d.langue);
    const sErreur* const e = erreurDe(numeroDe(nom));
    if (e == nullptr) return plaindre(T_NUMERO_INCONNU, d.langue, {visible(d.arguments[0])});
    const sTable* table = nullptr;
    std::string champ;
    if (d.arguments.size() > 1) {
        table = tableNommee(enCapitales(d.arguments[1]));
        if (table == nullptr) return plaindre(T_TYPE_INCONNU, d.langue, {visible(d.arguments[1])});
    }
    if (table != nullptr && d.arguments.size() > 2) {
        champ = enCapitales(d.arguments[2]);
        bool connu = false;
        for (int i = 0; i < table->nombre; ++i)
            connu = connu || nomDuChamp(placeDe(&table->lignes[i])) == champ;
        if (!connu) return plaindre(T_CHAMP_INCONNU, d.langue, {visible(d.arguments[2])});
    }
    const std::string regles = reglesDuNumero(e->numero, {.table = table, .champ = champ}, d.langue, s);
    std::string t = ficheErreur(*e, d.langue, s);
    if (!regles.empty()) t += "\n" + regles;
    // A number that no table holds arises from the order of the records, as its sheet has said.
    if (regles.empty() && table != nullptr && !reglesDuNumero(e->numero, {}, d.langue, s).empty())
        t += "\n" +
             remplir(T_PAS_ICI, d.langue, {std::string(table->nom) + (champ.empty() ? "" : " " + champ)}) +
             "\n";
    return rendre(t, d.langue);
}

int listerErreurs(const sDemandeLue& d) {
    if (d.format == "markdown") return rendre(erreursMarkdown(d.langue), d.langue);
    std::string t;
    for (const sErreur& e : erreurs) {
        std::string numero = std::to_string(e.numero);
        numero.insert(0, 4 - numero.size(), ' ');
        t += numero + "  " + codeDErreur(e.numero) + "  " + e.titre.en_langue(d.langue) + "\n";
    }
    for (const sFatal& f : fatals)
        t += std::string("      ") + f.code + "  " + f.titre.en_langue(d.langue) + "\n";
    return rendre(t, d.langue);
}

int catalogue(const sDemandeLue& d) {
    const sTable* seule = nullptr;
    if (!d.arguments.empty()) {
        seule = tableNommee(enCapitales(d.arguments[0]));
        if (seule == nullptr) return plaindre(T_TYPE_INCONNU, d.langue, {visible(d.arguments[0])});
    }
    if (d.format == "json") return rendre(catalogueJson(d.langue, seule) + "\n", d.langue);
    if (d.format == "html") return rendre(catalogueHtml(d.langue, seule), d.langue);
    if (d.format == "markdown") return rendre(catalogueMarkdown(d.langue, seule), d.langue);
    return rendre(catalogueTexte(d.langue, seule, styles(enCouleur(d))), d.langue);
}

int donnerExemple(const sDemandeLue& d) {
    const sTable* const t = tableNommee(enCapitales(d.arguments[0]));
    if (t == nullptr || genresDe(t->nom).empty())
        return plaindre(T_TYPE_INCONNU, d.langue, {visible(d.arguments[0])});
    const std::string genre =
        d.arguments.size() > 1 ? enCapitales(d.arguments[1]) : std::string(genresDe(t->nom).front());
    const std::string fichier = exemple(t->nom, genre);
    if (fichier.empty())
        return plaindre(T_GENRE_INCONNU, d.langue, {t->nom, visible(genre), genresEnLigne(*t)});
    return rendre(fichier, d.langue);
}

int listerValeurs(const sDemandeLue& d) {
    std::string t;
    if (d.arguments.empty()) {
        for (const sListe& l : listes) {
            std::string nom = l.nom;
            nom.resize(std::max<std::size_t>(nom.size(), 16), ' ');
            t += nom + " " + l.titre.en_langue(d.langue) + "\n";
        }
        return rendre(t, d.langue);
    }
    const auto memeNom = [&](const sListe& l) { return enCapitales(l.nom) == enCapitales(d.arguments[0]); };
    const sListe* l = listeNommee(d.arguments[0]);
    if (l == nullptr) {
        const auto trouve = std::find_if(listes.begin(), listes.end(), memeNom);
        if (trouve == listes.end()) return plaindre(T_LISTE_INCONNUE, d.langue, {visible(d.arguments[0])});
        l = &*trouve;
    }
    return rendre(ficheListe(*l, d.langue, styles(enCouleur(d))), d.langue);
}

}  // namespace quilvane::guide
