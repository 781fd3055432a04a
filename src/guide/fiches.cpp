#include "guide/fiches.h"

#include <algorithm>

#include "catalogue/exemples.h"
#include "catalogue/verifs.h"
#include "page/page.h"
#include "rapport/catalogue_json.h"
#include "rapport/mots.h"
#include "rapport/phrases.h"

namespace quilvane::guide {

namespace {

constexpr texte T_OU = {"Où :", "Where:"};
constexpr texte T_FAIRE = {"À faire : ", "To do: "};
constexpr texte T_COLONNES = {"colonnes {0} à {1}", "columns {0} to {1}"};
constexpr texte T_COLONNE = {"colonne {0}", "column {0}"};
constexpr texte T_NON_CONTROLE = {"non contrôlé", "not checked"};
constexpr texte T_GENRES = {"Genres : {0}.", "Transaction kinds: {0}."};
constexpr texte T_VERIFIE = {"contrôlé pour {0}", "checked for {0}"};
constexpr texte T_INTERDIT = {"interdit pour {0} (erreur 86)", "not allowed for {0} (error 86)"};
constexpr texte T_TOUJOURS = {"contrôlé dans tout enregistrement", "checked in every record"};
constexpr texte T_TITRE_CATALOGUE = {"Champs et règles des messages", "Fields and rules of the messages"};
constexpr texte T_TITRE_ERREURS = {"Numéros d'erreur", "Error numbers"};
constexpr texte T_TITRE_FATALES = {"Codes du log", "Codes of the log"};
constexpr texte T_TITRE_LISTES = {"Listes de valeurs", "Value lists"};
constexpr texte T_ECRIT = {
    "Écrit par `quilvane-guide {0} --format markdown --langue fr` ; ne pas modifier à la main.",
    "Written by `quilvane-guide {0} --format markdown --langue en`; not to be changed by hand."};
constexpr texte T_CODES_SPECIAUX = {
    "Les codes « NORMABEV », « NORM01 », « NORM02 » et « PFOC01 » (huit colonnes, complétés de blancs) "
    "appartiennent à toute liste.",
    "The codes “NORMABEV”, “NORM01”, “NORM02” and “PFOC01” (eight columns, padded with blanks) belong to "
    "every "
    "list."};
constexpr texte T_ENTETE_TABLEAU = {
    "| champ | colonnes | contenu | règle | erreur | genres |\n|---|---|---|---|---|---|\n",
    "| field | columns | content | rule | error | kinds |\n|---|---|---|---|---|---|\n"};

std::string colonnesEnMots(const sCorps* champ, eLangue langue) {
    if (champ->debut == champ->fin) return remplir(T_COLONNE, langue, {std::to_string(champ->debut)});
    return remplir(T_COLONNES, langue, {std::to_string(champ->debut), std::to_string(champ->fin)});
}

/** The transaction kinds of a table in which a row has a presence code. */
std::string genresAvec(const sTable& t, const sCorps* ligne, int presence) {
    std::string r;
    for (const char* genre : GENRES_A_COLONNE)
        if (presenceDe(t, ligne, genre) == presence) r += (r.empty() ? "" : ", ") + std::string(genre);
    return r;
}

bool selonGenre(const sTable& t) { return t.partie[0] == 'C' && std::string_view(t.nom) != "FICH"; }

std::string presenceEnMots(const sTable& t, const sCorps* ligne, eLangue langue) {
    if (!selonGenre(t)) return T_TOUJOURS.en_langue(langue);
    std::string r = remplir(T_VERIFIE, langue, {genresAvec(t, ligne, 0)});
    const std::string interdits = genresAvec(t, ligne, 2);
    if (!interdits.empty()) r += ", " + remplir(T_INTERDIT, langue, {interdits});
    return r;
}

std::string phraseDeLigne(const sCorps* ligne, eLangue langue) { return regleDe(ligne, langue).phrase; }

/** One row as text. */
std::string ligneEnTexte(const sTable& t, const sCorps* ligne, eLangue langue, const sStyles& s) {
    const sErreur* const e = erreurDe(ligne->noErr);
    return enPages(phraseDeLigne(ligne, langue), "      ") + s.discret +
           enPages(std::to_string(ligne->noErr) + " " + (e != nullptr ? e->titre.en_langue(langue) : "") +
                       "; " + presenceEnMots(t, ligne, langue),
                   "        ") +
           s.fin;
}

std::string champEnTete(const sTable& t, const sCorps* ligne, eLangue langue, const sStyles& s) {
    const sPlace p = placeDe(ligne);
    return s.fort + std::string("  ") + (t.partie[0] == 'C' ? std::string(t.nom) + " " : "") + nomDuChamp(p) +
           s.fin + "  " + libelleDuChamp(p, langue) + ", " + colonnesEnMots(p.champ, langue) + "\n";
}

/** Whether a row may give the number under the choice made. */
bool estChoisie(const sTable& t, const sCorps* ligne, int numero, const sChoix& choix) {
    constexpr int ERR_INTERDIT = 86;
    if (ligne->pfVerif == nullptr || (choix.table != nullptr && choix.table != &t)) return false;
    if (!choix.champ.empty() && nomDuChamp(placeDe(ligne)) != choix.champ) return false;
    const bool unGenre = !choix.genre.empty() && selonGenre(t);
    const int presence = unGenre ? presenceDe(t, ligne, choix.genre) : 0;
    if (numero == ERR_INTERDIT && choix.table != nullptr && selonGenre(t))
        return unGenre ? presence == 2 : !genresAvec(t, ligne, 2).empty();
    return ligne->noErr == numero && presence == 0;
}

std::string tableEnTexte(const sTable& t, eLangue langue, const sStyles& s) {
    std::string r = s.fort + std::string(t.nom) + s.fin + "  " + titreDeTable(t, langue) + "\n";
    for (const sCorps* ligne = t.lignes; ligne != t.lignes + t.nombre; ++ligne) {
        if (ligne->debut != 0) r += champEnTete(t, ligne, langue, s);
        if (ligne->pfVerif != nullptr)
            r += ligneEnTexte(t, ligne, langue, s);
        else if (ligne->debut != 0)
            r += s.discret + std::string("      ") + T_NON_CONTROLE.en_langue(langue) + s.fin + "\n";
    }
    return r;
}

/** A text as the cell of a Markdown table. */
std::string enCellule(std::string_view t) {
    std::string r;
    for (const char c : t) {
        if (c == '|' || c == '*' || c == '<') r += '\\';
        r += c;
    }
    return r;
}

std::string tableMarkdown(const sTable& t, eLangue langue) {
    std::string r = "## " + std::string(t.nom) + " : " + titreDeTable(t, langue) + "\n\n";
    if (langue == ANGLAIS) r = "## " + std::string(t.nom) + ": " + titreDeTable(t, langue) + "\n\n";
    const auto permis = genresDe(t.nom);
    std::string liste;
    for (const std::string_view g : permis)
        liste += (liste.empty() ? "" : ", ") + std::string(g);
    if (!liste.empty()) r += remplir(T_GENRES, langue, {liste}) + "\n\n";
    r += T_ENTETE_TABLEAU.en_langue(langue);
    for (const sCorps* ligne = t.lignes; ligne != t.lignes + t.nombre; ++ligne) {
        const bool champ = ligne->debut != 0;
        if (!champ && ligne->pfVerif == nullptr) continue;
        const sPlace p = placeDe(ligne);
        const std::string colonnes = p.champ->debut == p.champ->fin ? std::to_string(p.champ->debut)
                                                                    : std::to_string(p.champ->debut) + "-" +
                                                                          std::to_string(p.champ->fin);
        r += "| " + (champ ? nomDuChamp(p) : "") + " | " + (champ ? colonnes : "") + " | " +
             (champ ? enCellule(libelleDuChamp(p, langue)) : "") + " | ";
        if (ligne->pfVerif != nullptr)
            r += enCellule(phraseDeLigne(ligne, langue)) + " | " + std::to_string(ligne->noErr) + " | " +
                 presenceEnMots(t, ligne, langue) + " |\n";
        else
            r += std::string(T_NON_CONTROLE.en_langue(langue)) + " | | |\n";
    }
    return r + "\n";
}

std::string valeursEnLigne(const sListe& l) {
    std::string r;
    for (int i = 0; i < l.nombre; i += l.colonnes) {
        if (i > 0) r += ", ";
        for (int k = 0; k < l.colonnes; ++k)
            r += (k > 0 ? " / \"" : "\"") + visible(l.entrees[i + k].valeur) + "\"";
    }
    return r;
}

}  // namespace

std::string ficheErreur(const sErreur& e, eLangue langue, const sStyles& s) {
    return s.fort + std::to_string(e.numero) + " (" + codeDErreur(e.numero) + ")  " +
           e.titre.en_langue(langue) + s.fin + "\n\n" + enPages(e.sens.en_langue(langue), "  ") +
           enPages(std::string(T_FAIRE.en_langue(langue)) + e.remede.en_langue(langue), "  ");
}

std::string ficheFatale(const sFatal& f, eLangue langue, const sStyles& s) {
    return s.fort + std::string(f.code) + "  " + f.titre.en_langue(langue) + s.fin + "\n\n" +
           enPages(f.sens.en_langue(langue), "  ") +
           enPages(std::string(T_FAIRE.en_langue(langue)) + f.remede.en_langue(langue), "  ");
}

std::string ficheListe(const sListe& l, eLangue langue, const sStyles& s) {
    return s.fort + std::string(l.nom) + "  " + l.titre.en_langue(langue) + s.fin + "\n" +
           enPages(l.contenu.en_langue(langue), "  ") + "\n" + enPages(valeursEnLigne(l), "  ");
}

std::string reglesDuNumero(int numero, const sChoix& choix, eLangue langue, const sStyles& s) {
    std::string r;
    for (const sTable& t : tables())
        for (const sCorps* ligne = t.lignes; ligne != t.lignes + t.nombre; ++ligne)
            if (estChoisie(t, ligne, numero, choix))
                r += champEnTete(t, ligne, langue, s) + enPages(regleDe(ligne, langue).phrase, "      ") +
                     s.discret + enPages(presenceEnMots(t, ligne, langue), "        ") + s.fin;
    return r.empty() ? r : std::string(T_OU.en_langue(langue)) + "\n" + r;
}

std::string catalogueTexte(eLangue langue, const sTable* seule, const sStyles& s) {
    std::string r;
    for (const sTable& t : tables())
        if (seule == nullptr || seule == &t) r += (r.empty() ? "" : "\n") + tableEnTexte(t, langue, s);
    return r;
}

std::string catalogueMarkdown(eLangue langue, const sTable* seule) {
    std::string r = std::string("# ") + T_TITRE_CATALOGUE.en_langue(langue) + "\n\n";
    r += remplir(T_ECRIT, langue, {seule != nullptr ? std::string("catalogue ") + seule->nom : "catalogue"}) +
         "\n\n";
    r += std::string(T_CODES_SPECIAUX.en_langue(langue)) + "\n\n";
    for (const sTable& t : tables())
        if (seule == nullptr || seule == &t) r += tableMarkdown(t, langue);
    if (seule != nullptr) return r;
    r += std::string("## ") + T_TITRE_LISTES.en_langue(langue) + "\n\n";
    for (const sListe& l : listes)
        r += "### " + std::string(l.nom) + "\n\n" + l.titre.en_langue(langue) + ". " +
             l.contenu.en_langue(langue) + "\n\n" + enPages(enCellule(valeursEnLigne(l)), "") + "\n";
    return r;
}

std::string catalogueHtml(eLangue langue, const sTable* seule) {
    const std::string code = langue == FRANCAIS ? "fr" : "en";
    std::string r(pageDebut);
    r += code;
    r += pageRapport;
    r += R"({"format":"quilvane-rapport/1","langue":")" + code + R"(","fichiers":[]})";
    r += pageCatalogue;
    r += dansLaPage(catalogueJson(langue, seule));
    r += pageFin;
    return r;
}

std::string erreursMarkdown(eLangue langue) {
    std::string r = std::string("# ") + T_TITRE_ERREURS.en_langue(langue) + "\n\n";
    r += remplir(T_ECRIT, langue, {"erreurs"}) + "\n\n";
    for (const sErreur& e : erreurs) {
        r += "## " + std::to_string(e.numero) + " (" + codeDErreur(e.numero) + ") " +
             e.titre.en_langue(langue) + "\n\n" + enPages(e.sens.en_langue(langue), "") + "\n" +
             enPages(std::string(T_FAIRE.en_langue(langue)) + e.remede.en_langue(langue), "") + "\n";
        std::string ou;
        for (const std::string& lieu : lieuxDe(e.numero))
            ou += (ou.empty() ? "" : ", ") + lieu;
        if (!ou.empty()) r += enPages(std::string(T_OU.en_langue(langue)) + " " + ou + ".", "") + "\n";
    }
    r += std::string("# ") + T_TITRE_FATALES.en_langue(langue) + "\n\n";
    for (const sFatal& f : fatals)
        r += "## " + std::string(f.code) + " " + f.titre.en_langue(langue) + "\n\n" +
             enPages(f.sens.en_langue(langue), "") + "\n" +
             enPages(std::string(T_FAIRE.en_langue(langue)) + f.remede.en_langue(langue), "") + "\n";
    return r;
}

}  // namespace quilvane::guide
