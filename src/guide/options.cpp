#include "guide/options.h"

#include <getopt.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "guide/commandes.h"
#include "rapport/mots.h"

namespace quilvane::guide {

namespace {

constexpr const char* VERSION = "quilvane-guide 2.23.0\n";
constexpr texte AUCUN = {"", ""};

constexpr sCommande COMMANDES[] = {
    {"verifier",
     "FICHIER...",
     1,
     -1,
     "texte|json|jsonl|csv|html",
     "otR",
     {"dit ce que quilvane ferait de chaque fichier, et pourquoi",
      "tells what quilvane would do with each file, and why"},
     {"Lit chaque fichier sans y toucher et explique chaque enregistrement qui serait refusé : la place, le "
      "champ, la valeur reçue, ce qui est exigé et comment corriger. « - » lit l'entrée standard.",
      "Reads each file without touching it and explains each record that would be refused: the place, the "
      "field, "
      "the value received, what is required and how to mend it. “-” reads standard input."},
     verifier},
    {"retour",
     "FICHIER",
     1,
     1,
     "",
     "S",
     {"explique un fichier d'erreurs revenu de quilvane", "explains an error file that quilvane published"},
     {"Explique chaque enregistrement ERRE du fichier. Avec --source, le fichier auquel il répond, chaque "
      "erreur "
      "est rattachée à son enregistrement, sa ligne et sa colonne.",
      "Explains each ERRE record of the file. With --source, the file that it answers, each error is led "
      "back to "
      "its record, line and column."},
     retour},
    {"expliquer",
     "NUMERO [TYPE [CHAMP]]",
     1,
     3,
     "",
     "",
     {"explique un numéro d'erreur ou un code du log", "explains an error number or a code of the log"},
     {"NUMERO s'écrit 68, I0681, IG008 ou I073. Avec un type de message, puis un champ, seules les règles de "
      "ce "
      "type et de ce champ sont montrées.",
      "NUMERO is written 68, I0681, IG008 or I073. With a message type, then a field, only the rules of that "
      "type "
      "and field are shown."},
     expliquerNumero},
    {"erreurs",
     "",
     0,
     0,
     "texte|markdown",
     "",
     {"donne tous les numéros avec leur titre", "lists every number with its title"},
     {"En markdown, chaque numéro avec son sens, son remède et les champs où il se rencontre.",
      "As markdown, each number with its meaning, its remedy and the fields where it arises."},
     listerErreurs},
    {"catalogue",
     "[TYPE]",
     0,
     1,
     "texte|markdown|html|json",
     "",
     {"décrit les champs et les règles des messages", "describes the fields and rules of the messages"},
     {"Tous les types, ou un seul : champs, colonnes, genres, règles, listes. E est l'en-tête, F le pied et "
      "FICH "
      "l'enregistrement de tête.",
      "Every type, or one: fields, columns, kinds, rules, lists. E is the header, F the footer and FICH the "
      "record "
      "that opens a file."},
     catalogue},
    {"exemple",
     "TYPE [GENRE]",
     1,
     2,
     "",
     "",
     {"écrit un fichier correct d'un type de message", "writes a correct file of a message type"},
     {"Le fichier porte l'enregistrement et, s'il en faut un, son compagnon ; il est écrit sur la sortie "
      "standard.",
      "The file holds the record and, where one is needed, its companion; it is written to standard output."},
     donnerExemple},
    {"listes",
     "[NOM]",
     0,
     1,
     "",
     "",
     {"donne les valeurs admises", "lists the allowed values"},
     {"Toutes les listes avec leur titre, ou les valeurs d'une seule.",
      "Every list with its title, or the values of one."},
     listerValeurs},
    {"manuel",
     "",
     0,
     0,
     "",
     "",
     {"écrit la page de manuel (mdoc)", "writes the manual page (mdoc)"},
     {"Se lit avec « quilvane-guide manuel | man -l - ».",
      "Read it with “quilvane-guide manuel | man -l -”."},
     manuel},
    {"completion",
     "bash|zsh|fish",
     1,
     1,
     "",
     "",
     {"écrit la complétion d'un interpréteur de commandes", "writes the completion of a shell"},
     {"À placer où l'interpréteur cherche ses complétions.",
      "To be put where the shell looks for completions."},
     completion},
};

constexpr sOption OPTIONS[] = {
    {'F', "format", nullptr, {"FORMAT", "FORMAT"}, "", false, {"forme de la réponse", "form of the answer"}},
    {'o',
     "sortie",
     "output",
     {"SORTIE", "FILE"},
     "",
     false,
     {"écrit dans ce fichier, qui ne doit pas exister", "writes to this file, which must not exist"}},
    {'R',
     "remplacer",
     nullptr,
     AUCUN,
     "",
     false,
     {"remplace le fichier de -o s'il existe", "replaces the file of -o if it exists"}},
    {'t',
     "tout",
     nullptr,
     AUCUN,
     "",
     false,
     {"donne aussi les erreurs au-delà de la dixième", "also tells the errors beyond the tenth"}},
    {'S',
     "source",
     nullptr,
     {"ORIGINE", "FILE"},
     "",
     false,
     {"le fichier auquel le fichier d'erreurs répond", "the file that the error file answers"}},
    {'L',
     "langue",
     nullptr,
     {"fr|en", "fr|en"},
     "fr|en",
     true,
     {"langue des textes ; sinon celle de l'environnement",
      "language of the texts; else that of the environment"}},
    {'C',
     "couleur",
     nullptr,
     {"auto|toujours|jamais", "auto|toujours|jamais"},
     "auto|toujours|jamais",
     true,
     {"couleurs du terminal (NO_COLOR est respecté)", "colours of the terminal (NO_COLOR is respected)"}},
    {'h', "help", "aide", AUCUN, "", true, {"montre cette aide", "shows this help"}},
    {'V', "version", nullptr, AUCUN, "", true, {"donne la version", "prints the version"}},
};

constexpr texte T_USAGE = {"Usage : quilvane-guide COMMANDE [OPTIONS] [ARGUMENTS]\n",
                           "Usage: quilvane-guide COMMAND [OPTIONS] [ARGUMENTS]\n"};
constexpr texte T_BUT = {
    "Dit à l'avance ce que quilvane refuserait dans un fichier, et pourquoi. Ne modifie aucun fichier.\n",
    "Tells beforehand what quilvane would refuse in a file, and why. Changes no file.\n"};
constexpr texte T_COMMANDES = {"Commandes :\n", "Commands:\n"};
constexpr texte T_OPTIONS = {"Options :\n", "Options:\n"};
constexpr texte T_STATUTS = {
    "Statut : 0 tout serait accepté, 2 un enregistrement serait refusé, 1 un fichier ne peut être traité, 3 "
    "mauvais usage.\n",
    "Status: 0 all would be accepted, 2 some record would be refused, 1 some file cannot be processed, 3 "
    "wrong "
    "usage.\n"};
constexpr texte T_FORMATS = {" : ", ": "};
constexpr texte T_COMMANDE_INCONNUE = {"commande inconnue : {0}", "unknown command: {0}"};
constexpr texte T_SANS_COMMANDE = {"il manque une commande", "a command is missing"};
constexpr texte T_OPTION_INCONNUE = {"option inconnue ou incomplète : {0}",
                                     "unknown or incomplete option: {0}"};
constexpr texte T_OPTION_AUTRE = {"la commande {0} n'a pas d'option {1}",
                                  "the command {0} has no option {1}"};
constexpr texte T_VALEUR = {"{0} : valeurs admises {1}", "{0}: allowed values {1}"};
constexpr texte T_ARGUMENTS = {"la commande {0} attend : {1}", "the command {0} takes: {1}"};
constexpr texte T_VOIR = {"Voir quilvane-guide --aide", "See quilvane-guide --help"};

bool parmi(std::string_view valeur, std::string_view valeurs) {
    while (!valeurs.empty()) {
        const std::size_t n = valeurs.find('|');
        if (valeurs.substr(0, n) == valeur) return true;
        valeurs.remove_prefix(n == std::string_view::npos ? valeurs.size() : n + 1);
    }
    return false;
}

eLecture faux(eLangue langue, const std::string& message) {
    std::fprintf(stderr, "quilvane-guide: %s\n%s\n", message.c_str(), T_VOIR.en_langue(langue));
    return LECTURE_FAUSSE;
}

/** The tables in the form that getopt_long takes. */
struct sGetopt {
    std::string courtes = ":";
    std::vector<option> longues;
    sGetopt() {
        for (const sOption& o : OPTIONS) {
            const int arg = aArgument(o) ? required_argument : no_argument;
            longues.push_back({o.longue, arg, nullptr, o.lettre});
            if (o.autre != nullptr) longues.push_back({o.autre, arg, nullptr, o.lettre});
            if (o.lettre < 'a') continue;
            courtes += o.lettre;
            if (aArgument(o)) courtes += ':';
        }
        longues.push_back({nullptr, 0, nullptr, 0});
    }
};

const sOption* optionDe(int lettre) {
    for (const sOption& o : OPTIONS)
        if (o.lettre == lettre) return &o;
    return nullptr;
}

std::string nomLong(const sOption& o) { return std::string("--") + o.longue; }

void prendre(sDemandeLue& d, char lettre, const char* valeur) {
    switch (lettre) {
        case 'F': d.format = valeur; break;
        case 'o': d.sortie = valeur; break;
        case 'S': d.source = valeur; break;
        case 'R': d.remplacer = true; break;
        case 't': d.tout = true; break;
        case 'L': d.langue = std::strcmp(valeur, "fr") == 0 ? FRANCAIS : ANGLAIS; break;
        case 'C':
            d.couleur = std::strcmp(valeur, "toujours") == 0 ? COULEUR_TOUJOURS
                        : std::strcmp(valeur, "jamais") == 0 ? COULEUR_JAMAIS
                                                             : COULEUR_AUTO;
            break;
        default: break;
    }
}

std::string optionEnUsage(const sOption& o, eLangue langue) {
    std::string t = o.lettre >= 'a' ? std::string("-") + o.lettre + ", " : "    ";
    t += nomLong(o);
    if (o.autre != nullptr) t += std::string(", --") + o.autre;
    if (aArgument(o)) t += std::string(" ") + o.argument.en_langue(langue);
    return t;
}

void colonnes(std::string& t, const std::string& gauche, std::string_view droite) {
    constexpr std::size_t LARGEUR = 38;
    t += "  " + gauche;
    t.append(caracteres(gauche) < LARGEUR ? LARGEUR - caracteres(gauche) : 1, ' ');
    t += droite;
    t += '\n';
}

}  // namespace

constinit const std::span<const sCommande> commandes(COMMANDES);
constinit const std::span<const sOption> options(OPTIONS);

bool aArgument(const sOption& o) { return *o.argument.fr != '\0'; }

bool connait(const sCommande& c, const sOption& o) {
    return o.partout || std::strchr(c.options, o.lettre) != nullptr ||
           (o.lettre == 'F' && *c.formats != '\0');
}

const sCommande* commandeDe(std::string_view nom) {
    for (const sCommande& c : COMMANDES)
        if (c.nom == nom) return &c;
    return nullptr;
}

eLangue langueDuMilieu() {
    for (const char* nom : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const valeur = std::getenv(nom);
        if (valeur == nullptr || *valeur == '\0') continue;
        return std::strncmp(valeur, "fr", 2) == 0 ? FRANCAIS : ANGLAIS;
    }
    return ANGLAIS;
}

std::string aide(eLangue langue, const sCommande* seule) {
    std::string t;
    if (seule != nullptr) {
        t += remplir(
            {"Usage : quilvane-guide {0} [OPTIONS] {1}\n\n", "Usage: quilvane-guide {0} [OPTIONS] {1}\n\n"},
            langue, {seule->nom, seule->arguments});
        t += std::string(seule->detail.en_langue(langue)) + "\n\n";
    } else {
        t += std::string(T_USAGE.en_langue(langue)) + T_BUT.en_langue(langue) + "\n" +
             T_COMMANDES.en_langue(langue);
        for (const sCommande& c : COMMANDES)
            colonnes(t, std::string(c.nom) + " " + c.arguments, c.resume.en_langue(langue));
        t += "\n";
    }
    t += T_OPTIONS.en_langue(langue);
    for (const sOption& o : OPTIONS) {
        if (seule != nullptr && !connait(*seule, o)) continue;
        std::string texteAide = o.aide.en_langue(langue);
        if (o.lettre == 'F' && seule != nullptr)
            texteAide += std::string(T_FORMATS.en_langue(langue)) + seule->formats;
        colonnes(t, optionEnUsage(o, langue), texteAide);
    }
    return t + "\n" + T_STATUTS.en_langue(langue);
}

eLecture lireLigne(int argc, char* argv[], sDemandeLue& d) {
    d.langue = langueDuMilieu();
    static const sGetopt G;
    std::vector<const sOption*> vues;
    bool aideVoulue = false;
    bool versionVoulue = false;
    opterr = 0;
    for (int lettre = 0;
         (lettre = getopt_long(argc, argv, G.courtes.c_str(), G.longues.data(), nullptr)) != -1;) {
        const sOption* const o = optionDe(lettre);
        if (o == nullptr)
            return faux(d.langue, remplir(T_OPTION_INCONNUE, d.langue, {visible(argv[optind - 1])}));
        if (*o->valeurs != '\0' && !parmi(optarg, o->valeurs))
            return faux(d.langue, remplir(T_VALEUR, d.langue, {nomLong(*o), o->valeurs}));
        if (lettre == 'h') aideVoulue = true;
        if (lettre == 'V') versionVoulue = true;
        prendre(d, static_cast<char>(lettre), optarg);
        vues.push_back(o);
    }
    const sCommande* const c = optind < argc ? commandeDe(argv[optind]) : nullptr;
    if (versionVoulue) return imprimer(VERSION, d.langue) ? LECTURE_FINIE : LECTURE_RATEE;
    if (aideVoulue) return imprimer(aide(d.langue, c), d.langue) ? LECTURE_FINIE : LECTURE_RATEE;
    if (optind >= argc) return faux(d.langue, T_SANS_COMMANDE.en_langue(d.langue));
    if (c == nullptr) return faux(d.langue, remplir(T_COMMANDE_INCONNUE, d.langue, {visible(argv[optind])}));
    for (const sOption* o : vues)
        if (!connait(*c, *o)) return faux(d.langue, remplir(T_OPTION_AUTRE, d.langue, {c->nom, nomLong(*o)}));
    if (!d.format.empty() && !parmi(d.format, c->formats))
        return faux(d.langue, remplir(T_VALEUR, d.langue, {"--format", c->formats}));
    d.commande = c->nom;
    d.arguments.assign(argv + optind + 1, argv + argc);
    const int n = static_cast<int>(d.arguments.size());
    if (n < c->min || (c->max >= 0 && n > c->max))
        return faux(d.langue,
                    remplir(T_ARGUMENTS, d.langue, {c->nom, *c->arguments != '\0' ? c->arguments : "-"}));
    return LECTURE_BONNE;
}

}  // namespace quilvane::guide
