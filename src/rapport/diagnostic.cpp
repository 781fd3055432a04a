#include "rapport/diagnostic.h"

#include <algorithm>
#include <numeric>

#include "catalogue/erreurs.h"
#include "rapport/explication.h"
#include "rapport/mots.h"

namespace quilvane {

namespace {

constexpr std::size_t AUTOUR = 16;  // columns shown on either side of a field

constexpr texte T_ERREUR = {"erreur {0} : {1}", "error {0}: {1}"};
constexpr texte T_AVERTISSEMENT = {"remarque : {0}", "note: {0}"};
constexpr texte T_COLONNES = {"{0} {1}, colonnes {2} à {3}", "{0} {1}, columns {2} to {3}"};
constexpr texte T_COLONNE = {"{0} {1}, colonne {2}", "{0} {1}, column {2}"};
constexpr texte T_VALEUR = {"reçu", "received"};
constexpr texte T_RIEN = {"rien : l'enregistrement s'arrête avant", "nothing: the record ends before it"};
constexpr accord T_BLANCS = {{"{0} blanc", "{0} blank"}, {"{0} blancs", "{0} blanks"}};
constexpr texte T_EXIGE = {"exigé", "required"};
constexpr texte T_REMEDE = {"à faire", "to do"};
constexpr texte T_LISTE = {"liste", "list"};
constexpr texte T_PROCHES = {"Peut-être {0} ?", "Perhaps {0}?"};
constexpr texte T_DECOULE = {"Découle sans doute de l'erreur {0}{1} : corrigez d'abord celle-là.",
                             "Probably follows from error {0}{1}: mend that one first."};
constexpr texte T_DERRIERE = {"(au-delà de la dixième erreur : quilvane ne l'écrit pas)",
                              "(beyond the tenth error: quilvane does not write it)"};
constexpr texte T_RECORD = {"enregistrement {0}", "record {0}"};
constexpr accord LUS = {{"{0} enregistrement lu", "{0} record read"},
                        {"{0} enregistrements lus", "{0} records read"}};
constexpr accord ACCEPTES = {{"{0} message accepté", "{0} message accepted"},
                             {"{0} messages acceptés", "{0} messages accepted"}};
constexpr accord REFUSES = {{"{0} enregistrement refusé", "{0} record refused"},
                            {"{0} enregistrements refusés", "{0} records refused"}};
constexpr texte T_ACCEPTE = {"ACCEPTÉ", "ACCEPTED"};
constexpr texte T_REFUSE = {"REFUSÉ", "REFUSED"};
constexpr texte T_ARRET = {"NON TRAITÉ", "NOT PROCESSED"};
constexpr texte T_PAR_NUMERO = {"Erreurs par numéro :", "Errors by number:"};
constexpr texte T_PAR_TYPE = {"Enregistrements refusés par type :", "Records refused by type:"};
constexpr texte T_SANS_TYPE = {"(sans type)", "(no type)"};
constexpr texte T_PREMIERE = {"première en ligne {0}", "first on line {0}"};
constexpr texte T_APRES = {"Si quilvane a déjà été lancé sur ce fichier : {0}",
                           "If quilvane has run on this file already: {0}"};
constexpr texte T_LIGNE = {"ligne {0}", "line {0}"};

std::string lieu(std::string_view nom, long long ligne, long long colonne) {
    return std::string(nom) + ":" + std::to_string(ligne) + ":" + std::to_string(colonne) + ": ";
}

/** The record around the field, with the column numbers at its ends, and a
 *  line that underlines the field. Bytes that are not printable are dots. */
std::string fenetre(const sRecordVu& r, const sErreurVue& e, const sStyles& s) {
    const auto debut = static_cast<std::size_t>(e.debut);
    const auto fin = static_cast<std::size_t>(e.fin);
    const std::size_t de = debut > AUTOUR ? debut - AUTOUR : 1;
    const std::size_t a = std::min<std::size_t>(fin + AUTOUR, LARGEUR_VSE);
    std::string texte;
    for (std::size_t col = de; col <= a; ++col) {
        const char c = col <= r.texte.size() ? r.texte[col - 1] : ' ';
        texte += c >= 0x20 && c <= 0x7E ? c : '.';
    }
    const std::string gauche = std::to_string(de);
    const std::string marge = "    " + std::string(3 - std::min<std::size_t>(gauche.size(), 3), ' ') + gauche;
    std::string t =
        s.discret + marge + " |" + s.fin + texte + s.discret + "| " + std::to_string(a) + s.fin + "\n";
    t += std::string(marge.size() + 2 + debut - de, ' ') + s.erreur + std::string(fin - debut + 1, '^') +
         s.fin + "\n";
    return t;
}

void ligneDe(std::string& t, const texte& titre, std::string_view contenu, eLangue langue, const sStyles& s) {
    const std::string tete = std::string("    ") + titre.en_langue(langue);
    t += s.discret + tete + s.fin + std::string(13 - std::min<std::size_t>(caracteres(tete), 12), ' ');
    const std::string pages = enPages(contenu, "             ", 90);
    t += pages.substr(13);
}

/** A value as it came; blanks are counted, for they cannot be seen. */
std::string valeurRecue(std::string_view valeur, eLangue langue) {
    if (valeur.empty()) return T_RIEN.en_langue(langue);
    if (sansBlancs(valeur).empty()) return accorder(T_BLANCS, static_cast<long long>(valeur.size()), langue);
    return cite(valeur, langue);
}

void erreurEnTexte(std::string& t, const sRecordVu& r, const sErreurVue& e, std::string_view nom,
                   eLangue langue, const sStyles& s) {
    const sErreur* const texte = erreurDe(e.numero);
    t += s.fort + lieu(nom, r.ligne, e.colonne) + s.fin + s.erreur +
         remplir(T_ERREUR, langue,
                 {std::to_string(e.numero), texte != nullptr ? texte->titre.en_langue(langue) : ""}) +
         s.fin + "\n";
    if (e.place.table != nullptr)
        t += "    " +
             (e.debut == e.fin
                  ? remplir(T_COLONNE, langue,
                            {nomDuChamp(e.place), libelleDuChamp(e.place, langue), std::to_string(e.debut)})
                  : remplir(T_COLONNES, langue,
                            {nomDuChamp(e.place), libelleDuChamp(e.place, langue), std::to_string(e.debut),
                             std::to_string(e.fin)})) +
             "\n";
    if (e.debut != 0) {
        t += fenetre(r, e, s);
        ligneDe(t, T_VALEUR, valeurRecue(e.valeur, langue), langue, s);
    }
    std::string exige = messageDe(e, langue);
    if (e.proches.nombre > 0) {
        std::string proches;
        for (int i = 0; i < e.proches.nombre; ++i)
            proches += (i > 0 ? ", " : "") + cite(e.proches.valeurs[i], langue);
        exige += " " + remplir(T_PROCHES, langue, {proches});
    }
    ligneDe(t, T_EXIGE, exige, langue, s);
    if (e.regle != nullptr && listeTue(*e.regle))
        ligneDe(t, T_LISTE, std::string("quilvane-guide listes ") + e.regle->liste->nom, langue, s);
    if (texte != nullptr) ligneDe(t, T_REMEDE, texte->remede.en_langue(langue), langue, s);
    if (e.decouleDe >= 0) {
        const sErreurVue& cause = r.erreurs[static_cast<std::size_t>(e.decouleDe)];
        const std::string champ = cause.place.table != nullptr ? " (" + nomDuChamp(cause.place) + ")" : "";
        t += "    " + remplir(T_DECOULE, langue, {std::to_string(cause.numero), champ}) + "\n";
    }
    if (e.derriere) t += std::string("    ") + T_DERRIERE.en_langue(langue) + "\n";
}

/** Records read, accepted, refused. */
std::string comptes(const sResume& r, eLangue langue) {
    return accorder(LUS, r.enregistrements, langue) + ", " + accorder(ACCEPTES, r.acceptes, langue) + ", " +
           accorder(REFUSES, r.refuses, langue);
}

const texte& verdictDe(int statut) { return statut == 0 ? T_ACCEPTE : statut == 2 ? T_REFUSE : T_ARRET; }
const char* styleDe(int statut, const sStyles& s) { return statut == 0 ? s.bon : s.erreur; }

/** Whether the blank at `i` belongs to the French punctuation after it, which begins no line. */
bool avantPonctuation(std::string_view t, std::size_t i) {
    constexpr std::string_view HAUTE = ":;!?";
    return i + 1 < t.size() && HAUTE.find(t[i + 1]) != std::string_view::npos;
}

/** Length of the piece up to the next blank outside of quotes, npos for all. */
std::size_t finDuMot(std::string_view t) {
    int guillemets = 0;
    for (std::size_t i = 0; i < t.size(); ++i) {
        if (t[i] == ' ' && guillemets <= 0 && !avantPonctuation(t, i)) return i;
        if (static_cast<unsigned char>(t[i]) < 0x80) continue;
        const std::string_view reste = t.substr(i);
        if (reste.starts_with("«") || reste.starts_with("“")) ++guillemets;
        if (reste.starts_with("»") || reste.starts_with("”")) --guillemets;
    }
    return t.find(' ') == std::string_view::npos || guillemets <= 0 ? std::string_view::npos : t.find(' ');
}

}  // namespace

const sStyles& styles(bool couleur) {
    static constexpr sStyles AVEC = {"\x1b[1m",    "\x1b[1;31m", "\x1b[1;33m",
                                     "\x1b[1;32m", "\x1b[2m",    "\x1b[0m"};
    static constexpr sStyles SANS = {"", "", "", "", "", ""};
    return couleur ? AVEC : SANS;
}

std::string enPages(std::string_view texte, std::string_view marge, std::size_t largeur) {
    std::string t;
    std::string ligne;
    std::size_t place = 0;  // characters of the line
    const auto poser = [&] {
        t += marge;
        t += ligne;
        t += '\n';
        ligne.clear();
        place = 0;
    };
    while (!texte.empty()) {
        const std::size_t n = finDuMot(texte);
        const std::string_view mot = texte.substr(0, n);
        const std::size_t duMot = caracteres(mot);
        if (!ligne.empty() && place + 1 + duMot > largeur - marge.size()) poser();
        place += duMot + (ligne.empty() ? 0 : 1);
        if (!ligne.empty()) ligne += ' ';
        ligne += mot;
        texte.remove_prefix(n == std::string_view::npos ? texte.size() : n + 1);
    }
    poser();
    return t;
}

std::string refusEnTexte(const sRecordVu& r, std::string_view nom, eLangue langue, bool couleur) {
    const sStyles& s = styles(couleur);
    std::string t;
    t += s.fort;
    t += remplir(T_RECORD, langue, {std::to_string(r.rang)});
    for (const std::string* p : {&r.type, &r.genre, &r.cle})
        if (!p->empty()) t += " " + visible(*p);
    t += s.fin;
    t += "\n";
    // First causes stand first.
    for (const bool suites : {false, true})
        for (const sErreurVue& e : r.erreurs)
            if ((e.decouleDe >= 0) == suites) erreurEnTexte(t, r, e, nom, langue, s);
    return t + "\n";
}

std::string avertissementEnTexte(const sAvertissement& a, std::string_view nom, eLangue langue,
                                 bool couleur) {
    const sStyles& s = styles(couleur);
    const std::string ou = a.ligne > 0 ? lieu(nom, a.ligne, a.colonne) : std::string(nom) + ": ";
    return s.fort + ou + s.fin + s.avis + remplir(T_AVERTISSEMENT, langue, {""}) + s.fin + a.message + "\n\n";
}

std::string resumeEnTexte(const sResume& r, std::string_view nom, eLangue langue, bool couleur) {
    const sStyles& s = styles(couleur);
    std::string t = s.fort + std::string(nom) + ": " + s.fin + styleDe(r.statut, s) +
                    verdictDe(r.statut).en_langue(langue) + s.fin + "\n";
    if (const sFatal* const f = fatalDe(codeDe(r.fatal)); f != nullptr) {
        t += "  " + std::string(f->code) + " " + f->titre.en_langue(langue);
        if (r.ligneFatale > 0) t += " (" + remplir(T_LIGNE, langue, {std::to_string(r.ligneFatale)}) + ")";
        t += "\n" + enPages(f->sens.en_langue(langue), "  ") +
             enPages(remplir(T_APRES, langue, {f->remede.en_langue(langue)}), "  ");
    }
    t += "  " + comptes(r, langue) + "\n" + enPages(issueDe(r, langue), "  ");
    std::vector<int> numeros(1000);
    std::iota(numeros.begin(), numeros.end(), 0);
    std::erase_if(numeros, [&r](int n) { return r.comptes[n] == 0; });
    std::stable_sort(numeros.begin(), numeros.end(),
                     [&r](int a, int b) { return r.comptes[a] > r.comptes[b]; });
    if (!numeros.empty()) t += std::string("  ") + T_PAR_NUMERO.en_langue(langue) + "\n";
    for (const int n : numeros) {
        const sErreur* const e = erreurDe(n);
        std::string compte = std::to_string(r.comptes[n]);
        compte.insert(0, 7 - std::min<std::size_t>(compte.size(), 7), ' ');
        t += compte + " x " + codeDErreur(n) + "  " + (e != nullptr ? e->titre.en_langue(langue) : "") +
             " (" + remplir(T_PREMIERE, langue, {std::to_string(r.premiers[n])}) + ")\n";
    }
    if (!r.types.empty()) {
        t += std::string("  ") + T_PAR_TYPE.en_langue(langue);
        for (const auto& [type, nombre] : r.types) {
            const bool nomme = type.find_first_not_of(' ') != std::string::npos;
            t += " " + (nomme ? visible(type) : T_SANS_TYPE.en_langue(langue)) + " " + std::to_string(nombre);
        }
        t += "\n";
    }
    return t;
}

std::string bilanEnTexte(std::span<const sResume> fichiers, eLangue langue, bool couleur) {
    const sStyles& s = styles(couleur);
    std::string t = "\n";
    for (const sResume& r : fichiers)
        t += s.fort + visible(r.nom) + ": " + s.fin + styleDe(r.statut, s) +
             verdictDe(r.statut).en_langue(langue) + s.fin + ", " + comptes(r, langue) + "\n";
    return t;
}

}  // namespace quilvane
