/**
 * manuel - the manual page and the completions of the shells, made from the
 * tables of subcommands and options.
 */
#include <cstring>
#include <sstream>

#include "catalogue/listes.h"
#include "guide/commandes.h"
#include "rapport/diagnostic.h"
#include "rapport/mots.h"
#include "rapport/tables.h"

namespace quilvane::guide {

namespace {

constexpr texte T_COQUILLES = {"completion : valeurs admises bash|zsh|fish",
                               "completion: allowed values bash|zsh|fish"};
constexpr texte T_NOM = {"dit à l'avance ce que quilvane refuserait, et pourquoi",
                         "tells beforehand what quilvane would refuse, and why"};
constexpr texte T_DESCRIPTION = {
    "lit des fichiers de VSE sans y toucher et explique chaque enregistrement que quilvane(1) refuserait : "
    "la "
    "place, le champ, la valeur reçue, ce qui est exigé et comment corriger.",
    "reads files of VSE records without touching them and explains each record that quilvane(1) would "
    "refuse: the "
    "place, the field, the value received, what is required and how to mend it."};
// Titles of sections; those that tools look for are known to them in both languages.
constexpr texte T_TITRE_NOM = {"NOM", "NAME"};
constexpr texte T_COMMANDES = {"COMMANDES", "COMMANDS"};
constexpr texte T_TITRE_ENVIRONNEMENT = {"ENVIRONNEMENT", "ENVIRONMENT"};
constexpr texte T_TITRE_STATUTS = {"STATUT DE SORTIE", "EXIT STATUS"};
constexpr texte T_TITRE_EXEMPLES = {"EXEMPLES", "EXAMPLES"};
constexpr texte T_TITRE_VOIR = {"VOIR AUSSI", "SEE ALSO"};
constexpr texte T_EXEMPLE_AVANT = {"Avant l'envoi, une page à ouvrir dans un navigateur :",
                                   "Before a file is sent, a page to be opened in a browser:"};
constexpr texte T_EXEMPLE_APRES = {"Un fichier d'erreurs revenu, avec le fichier envoyé :",
                                   "An error file that came back, with the file that was sent:"};
constexpr texte T_ENVIRONNEMENT = {
    "La langue vient de LC_ALL, LC_MESSAGES ou LANG, la première qui n'est pas vide. NO_COLOR supprime les "
    "couleurs.",
    "The language comes from LC_ALL, LC_MESSAGES or LANG, the first that is not empty. NO_COLOR removes "
    "colours."};
constexpr texte T_STATUTS[] = {
    {"chaque fichier serait accepté, ou la commande a répondu",
     "every file would be accepted, or the command has answered"},
    {"un fichier ne peut être traité, ou la réponse n'a pu être écrite",
     "some file cannot be processed, or the answer could not be written"},
    {"un enregistrement au moins serait refusé", "at least one record would be refused"},
    {"mauvais usage", "wrong usage"}};

/** A word or phrase of mdoc: nothing in it is taken for a request. */
std::string mdoc(std::string_view t) {
    std::string r = t.starts_with('.') || t.starts_with('\'') ? "\\&" : "";
    for (const char c : t) {
        if (c == '\\')
            r += "\\e";
        else if (c == '-')
            r += "\\-";
        else
            r += c;
    }
    return r;
}

/** A paragraph of mdoc: each sentence begins a line, no line is long. */
std::string paragraphe(std::string_view t) {
    constexpr std::size_t LARGEUR = 44;  // an accented letter counts as eight bytes to mandoc
    std::string r;
    while (!t.empty()) {
        const std::size_t n = t.find(". ");
        const std::size_t fin = n == std::string_view::npos ? t.size() : n + 1;
        std::istringstream lignes(enPages(t.substr(0, fin), "", LARGEUR));
        for (std::string ligne; std::getline(lignes, ligne);)
            r += mdoc(ligne) + "\n";
        t.remove_prefix(fin < t.size() ? fin + 1 : fin);
    }
    return r;
}

/** How an option is written: "Fl o , Fl \-sortie Ar FILE". */
std::string ecritureMdoc(const sOption& o, eLangue langue) {
    std::string t;
    if (o.lettre >= 'a') t += std::string("Fl ") + o.lettre + " , ";
    t += std::string("Fl \\-") + o.longue;
    if (o.autre != nullptr) t += std::string(" , Fl \\-") + o.autre;
    if (aArgument(o)) t += std::string(" Ar ") + o.argument.en_langue(langue);
    return t;
}

std::string optionMdoc(const sOption& o, eLangue langue) {
    return ".It " + ecritureMdoc(o, langue) + "\n" + paragraphe(std::string(o.aide.en_langue(langue)) + ".");
}

/** The values that a word list of a shell takes: "a|b" as "a b". */
std::string mots(std::string_view valeurs) {
    std::string r(valeurs);
    for (char& c : r)
        if (c == '|') c = ' ';
    return r;
}

/** The words that a subcommand's argument may be; "" when it is a file's name
 *  or free. */
std::string motsDArgument(const sCommande& c) {
    const std::string_view a = c.arguments;
    std::string r;
    if (a.find('|') != std::string_view::npos) return mots(a);
    if (a.starts_with("TYPE") || a.starts_with("[TYPE"))
        for (const sTable& t : tables())
            r += (r.empty() ? "" : " ") + std::string(t.nom);
    if (a == "[NOM]")
        for (const sListe& l : listes)
            r += (r.empty() ? "" : " ") + std::string(l.nom);
    return r;
}

bool prendUnFichier(const sCommande& c) { return std::string_view(c.arguments).starts_with("FICHIER"); }

std::string nomsDeCommandes() {
    std::string r;
    for (const sCommande& c : commandes)
        r += (r.empty() ? "" : " ") + std::string(c.nom);
    return r;
}

std::string optionsDe(const sCommande& c) {
    std::string r;
    for (const sOption& o : options)
        for (const char* const nom : {o.longue, o.autre})
            if (connait(c, o) && nom != nullptr) r += (r.empty() ? "--" : " --") + std::string(nom);
    return r;
}

std::string pourBash() {
    std::string t =
        "# bash completion for quilvane-guide\n"
        "_quilvane_guide() {\n"
        "    local mot=${COMP_WORDS[COMP_CWORD]} avant=${COMP_WORDS[COMP_CWORD-1]} "
        "commande=${COMP_WORDS[1]}\n"
        "    COMPREPLY=()\n"
        "    case $avant in\n";
    for (const sOption& o : options)
        if (*o.valeurs != '\0')
            t += std::string("    --") + o.longue + ") COMPREPLY=($(compgen -W '" + mots(o.valeurs) +
                 "' -- \"$mot\")); return ;;\n";
    t += "    --sortie|--source|-o) COMPREPLY=($(compgen -f -- \"$mot\")); return ;;\n"
         "    --format)\n        case $commande in\n";
    for (const sCommande& c : commandes)
        if (*c.formats != '\0')
            t += std::string("        ") + c.nom + ") COMPREPLY=($(compgen -W '" + mots(c.formats) +
                 "' -- \"$mot\")) ;;\n";
    t += "        esac\n        return ;;\n    esac\n"
         "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n        COMPREPLY=($(compgen -W '" +
         nomsDeCommandes() +
         " --help --version' -- \"$mot\"))\n        return\n    fi\n"
         "    case $mot in\n    -*)\n        case $commande in\n";
    for (const sCommande& c : commandes)
        t += std::string("        ") + c.nom + ") COMPREPLY=($(compgen -W '" + optionsDe(c) +
             "' -- \"$mot\")) ;;\n";
    t += "        esac ;;\n    *)\n        case $commande in\n";
    for (const sCommande& c : commandes)
        if (const std::string m = motsDArgument(c); !m.empty() || prendUnFichier(c))
            t += std::string("        ") + c.nom + ") COMPREPLY=($(compgen " +
                 (m.empty() ? "-f" : "-W '" + m + "'") + " -- \"$mot\")) ;;\n";
    return t +
           "        esac ;;\n    esac\n}\n"
           "complete -o filenames -F _quilvane_guide quilvane-guide\n";
}

/** A text between single quotes of a shell. */
std::string entreApostrophes(std::string_view t) {
    std::string r = "'";
    for (const char c : t)
        r += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return r + "'";
}

std::string pourZsh(eLangue langue) {
    std::string t = "#compdef quilvane-guide\n_quilvane_guide() {\n    local -a commandes\n    commandes=(\n";
    for (const sCommande& c : commandes)
        t += "        " + entreApostrophes(std::string(c.nom) + ":" + c.resume.en_langue(langue)) + "\n";
    t += "    )\n    if (( CURRENT == 2 )); then\n        _describe 'quilvane-guide' commandes\n        "
         "return\n    fi\n"
         "    case $words[2] in\n";
    for (const sCommande& c : commandes) {
        t += std::string("    ") + c.nom + ") _arguments";
        for (const sOption& o : options) {
            if (!connait(c, o)) continue;
            std::string element = std::string("--") + o.longue + (aArgument(o) ? "=" : "") + "[" +
                                  o.aide.en_langue(langue) + "]";
            const std::string_view valeurs = o.lettre == 'F' ? c.formats : o.valeurs;
            if (!valeurs.empty())
                element += ":" + std::string(o.longue) + ":(" + mots(valeurs) + ")";
            else if (aArgument(o))
                element += ":" + std::string(o.longue) + ":_files";
            t += " \\\n        " + entreApostrophes(element);
        }
        const std::string m = motsDArgument(c);
        t += " \\\n        " + entreApostrophes(m.empty() ? "*:fichier:_files" : "*:mot:(" + m + ")") +
             " ;;\n";
    }
    return t + "    esac\n}\n_quilvane_guide \"$@\"\n";
}

std::string pourFish(eLangue langue) {
    std::string t = "# fish completion for quilvane-guide\n";
    for (const sCommande& c : commandes)
        t += std::string("complete -c quilvane-guide -n __fish_use_subcommand -a ") + c.nom + " -d " +
             entreApostrophes(c.resume.en_langue(langue)) + "\n";
    for (const sCommande& c : commandes) {
        if (const std::string m = motsDArgument(c); !m.empty())
            t += std::string("complete -c quilvane-guide -f -n '__fish_seen_subcommand_from ") + c.nom +
                 "' -a " + entreApostrophes(m) + "\n";
        for (const sOption& o : options) {
            if (!connait(c, o)) continue;
            t += std::string("complete -c quilvane-guide -n '__fish_seen_subcommand_from ") + c.nom +
                 "' -l " + o.longue;
            if (o.lettre >= 'a') t += std::string(" -s ") + o.lettre;
            const std::string_view valeurs = o.lettre == 'F' ? c.formats : o.valeurs;
            if (!valeurs.empty())
                t += " -x -a '" + mots(valeurs) + "'";
            else if (aArgument(o))
                t += " -r";
            t += " -d " + entreApostrophes(o.aide.en_langue(langue)) + "\n";
        }
    }
    return t;
}

}  // namespace

int manuel(const sDemandeLue& d) {
    const eLangue langue = d.langue;
    const auto section = [langue](const texte& titre) {
        return std::string(".Sh ") + titre.en_langue(langue) + "\n";
    };
    std::string t = ".Dd November 22, 2026\n.Dt QUILVANE\\-GUIDE 1\n.Os\n" + section(T_TITRE_NOM);
    t += ".Nm quilvane\\-guide\n.Nd " + mdoc(T_NOM.en_langue(langue)) + "\n.Sh SYNOPSIS\n";
    for (const sCommande& c : commandes)
        t += std::string(".Nm\n.Cm ") + c.nom + "\n.Op Ar options\n" +
             (*c.arguments != '\0' ? ".Ar " + mdoc(c.arguments) + "\n" : "");
    t += ".Sh DESCRIPTION\n.Nm\n" + paragraphe(T_DESCRIPTION.en_langue(langue)) + section(T_COMMANDES) +
         ".Bl -tag -width Ds\n";
    for (const sCommande& c : commandes) {
        t += std::string(".It Cm ") + c.nom + (*c.arguments != '\0' ? " Ar " + mdoc(c.arguments) : "") +
             "\n" + paragraphe(c.detail.en_langue(langue));
        if (*c.formats != '\0') t += ".br\n.Fl \\-format Ar " + mdoc(c.formats) + "\n";
        for (const sOption& o : options)
            if (!o.partout && o.lettre != 'F' && connait(c, o))
                t += ".br\n." + ecritureMdoc(o, langue) + "\n";
    }
    t += ".El\n.Sh OPTIONS\n.Bl -tag -width Ds\n";
    for (const sOption& o : options)
        t += optionMdoc(o, langue);
    t += ".El\n" + section(T_TITRE_ENVIRONNEMENT) + paragraphe(T_ENVIRONNEMENT.en_langue(langue)) +
         section(T_TITRE_STATUTS) + ".Bl -tag -width Ds\n";
    for (int k = 0; k < 4; ++k)
        t += ".It " + std::to_string(k) + "\n" + paragraphe(T_STATUTS[k].en_langue(langue));
    t += ".El\n" + section(T_TITRE_EXEMPLES) + paragraphe(T_EXEMPLE_AVANT.en_langue(langue)) +
         ".Pp\n.Dl quilvane\\-guide verifier \\-\\-format html \\-o acti.html acti.vse\n.Pp\n" +
         paragraphe(T_EXEMPLE_APRES.en_langue(langue)) +
         ".Pp\n.Dl quilvane\\-guide retour \\-\\-source acti.vse acti.out\n";
    t += section(T_TITRE_VOIR) + ".Xr quilvane 1 ,\n.Xr quilvane\\-lot 1\n";
    return imprimer(t, langue) ? STATUT_ACCEPTE : STATUT_ARRET;
}

int completion(const sDemandeLue& d) {
    const std::string& coquille = d.arguments[0];
    if (coquille == "bash") return imprimer(pourBash(), d.langue) ? STATUT_ACCEPTE : STATUT_ARRET;
    if (coquille == "zsh") return imprimer(pourZsh(d.langue), d.langue) ? STATUT_ACCEPTE : STATUT_ARRET;
    if (coquille == "fish") return imprimer(pourFish(d.langue), d.langue) ? STATUT_ACCEPTE : STATUT_ARRET;
    std::fprintf(stderr, "quilvane-guide: %s\n", T_COQUILLES.en_langue(d.langue));
    return STATUT_USAGE;
}

}  // namespace quilvane::guide
