#include "rapport/avertissements.h"

#include <cstring>

#include "rapport/mots.h"

namespace quilvane {

namespace {

constexpr long long DITES = 20;  // lines with the same fault that are told one by one
constexpr std::string_view BOM = "\xEF\xBB\xBF";

constexpr texte T_BOM = {
    "Le fichier commence par une marque d'ordre des octets (BOM) : trois octets invisibles qui décalent le "
    "premier enregistrement. Enregistrez le fichier en ASCII ou en « UTF-8 sans BOM ».",
    "The file begins with a byte order mark (BOM): three invisible bytes that shift the first record. Save "
    "the file as ASCII or as “UTF-8 without BOM”."};
constexpr texte T_UTF16 = {
    "Le fichier est écrit en UTF-16 : deux octets par caractère, dont un octet nul. Enregistrez le fichier "
    "en ASCII ou en « UTF-8 sans BOM ».",
    "The file is written in UTF-16: two bytes for each character, one of them zero. Save the file as ASCII "
    "or as “UTF-8 without BOM”."};
constexpr texte T_UTF8 = {
    "Cet enregistrement contient une lettre accentuée écrite en UTF-8 (deux octets ou plus) : elle n'est pas "
    "admise et décale toutes les colonnes qui suivent. Écrivez la lettre sans accent.",
    "This record contains an accented letter written in UTF-8 (two bytes or more): it is not allowed and "
    "shifts "
    "every column after it. Write the letter without accent."};
constexpr texte T_HAUT = {
    "Cet enregistrement contient un octet au-delà de 0x7E (lettre accentuée en Latin-1, par exemple) : "
    "écrivez la lettre sans accent.",
    "This record contains a byte above 0x7E (an accented letter in Latin-1, for example): write the letter "
    "without accent."};
constexpr texte T_TABULATION = {
    "Cet enregistrement contient une tabulation : remplacez-la par le nombre de blancs qu'elle représente.",
    "This record contains a tab: replace it with the number of blanks that it stands for."};
constexpr texte T_NUL = {"Cet enregistrement contient un octet nul : il n'est lu que jusque-là.",
                         "This record contains a zero byte: it is read up to there only."};
constexpr texte T_COMMANDE = {
    "Cet enregistrement contient un caractère de commande (octet {0}) : retirez-le.",
    "This record contains a control character (byte {0}): remove it."};
constexpr texte T_CR_SEUL = {
    "Cette ligne finit par un CR seul : elle est comptée mais l'enregistrement est perdu, sans erreur. "
    "Terminez-la comme les autres.",
    "This line ends in a CR alone: it is counted but its record is lost, without an error. End it like the "
    "others."};
constexpr texte T_SANS_FIN = {
    "La dernière ligne n'a pas de fin de ligne : son enregistrement est ignoré. Ajoutez une fin de ligne.",
    "The last line has no line end: its record is ignored. Add a line end."};
constexpr texte T_CTRL_Z = {"Un Ctrl-Z (octet 0x1A) termine le fichier ici : rien de ce qui suit n'est lu.",
                            "A Ctrl-Z (byte 0x1A) ends the file here: nothing after it is read."};
constexpr texte T_MELANGE = {
    "Les fins de ligne changent ici : {0} depuis la ligne {1}, {2} à partir de celle-ci. Un fichier n'en a "
    "qu'une sorte.",
    "The line ends change here: {0} from line {1} on, {2} from this one on. A file has only one kind."};
constexpr texte T_VIDE = {
    "Cette ligne est vide : retirez-la. Un fichier ne contient que des enregistrements.",
    "This line is empty: remove it. A file contains only records."};
constexpr texte T_RIEN = {"Le fichier ne contient aucun enregistrement complet.",
                          "The file contains no complete record."};

constexpr texte T_RESTE = {"{0} de plus avec la même faute ({1}).", "{0} more with the same fault ({1})."};
constexpr accord LIGNES = {{"{0} ligne", "{0} line"}, {"{0} lignes", "{0} lines"}};

/** By `eFauteDeLigne`. */
constexpr const char* CODES[NB_FAUTES_DE_LIGNE] = {"utf8",       "tabulation", "nul",
                                                   "octet_haut", "commande",   "cr_seul"};
constexpr texte TEXTES[NB_FAUTES_DE_LIGNE] = {T_UTF8, T_TABULATION, T_NUL, T_HAUT, T_COMMANDE, T_CR_SEUL};
constexpr texte NOMS[NB_FAUTES_DE_LIGNE] = {{"lettre en UTF-8", "letter in UTF-8"},
                                            {"tabulation", "tab"},
                                            {"octet nul", "zero byte"},
                                            {"octet au-delà de 0x7E", "byte above 0x7E"},
                                            {"caractère de commande", "control character"},
                                            {"CR seul en fin de ligne", "CR alone as line end"}};

const char* nomDeFin(int format) {
    return format == CVERSE_DOS ? "CR LF" : format == CVERSE_UNIX ? "LF" : "CR";
}

void dire(const sAvertisseur& a, long long ligne, long long colonne, const char* code, std::string message) {
    if (a.rendu->avertir != nullptr)
        a.rendu->avertir(a.rendu->qui, {ligne, colonne, code, std::move(message)});
}

void compter(sAvertisseur& a, eFauteDeLigne faute, const ligneLue& ligne, long long colonne,
             std::string_view octet) {
    if (++a.comptes[faute] <= DITES)
        dire(a, ligne.numero, colonne, CODES[faute], remplir(TEXTES[faute], a.langue, {visible(octet)}));
}

/** Whether a UTF-8 sequence of two bytes or more stands at `i`. */
bool sequenceUtf8(std::string_view t, std::size_t i) {
    const auto octet = [t](std::size_t k) { return k < t.size() ? static_cast<unsigned char>(t[k]) : 0U; };
    const unsigned tete = octet(i);
    const std::size_t suite = tete >= 0xC2 && tete <= 0xDF   ? 1
                              : tete >= 0xE0 && tete <= 0xEF ? 2
                              : tete >= 0xF0 && tete <= 0xF4 ? 3
                                                             : 0;
    for (std::size_t k = 1; k <= suite; ++k)
        if ((octet(i + k) & 0xC0) != 0x80) return false;
    return suite > 0;
}

/** Whether a file that begins like this is written in UTF-16: with the mark of
 *  its byte order, or with a zero beside each character. */
bool debutUtf16(std::string_view t) {
    if (t.starts_with("\xFF\xFE") || t.starts_with("\xFE\xFF")) return true;
    const auto nul = [t](std::size_t i) { return t[i] == '\0'; };
    return t.size() >= 4 && nul(0) != nul(1) && nul(0) == nul(2) && nul(1) == nul(3);
}

/** What the forbidden byte at `i` most likely is. */
eFauteDeLigne fauteDe(std::string_view t, std::size_t i) {
    if (sequenceUtf8(t, i)) return FAUTE_UTF8;
    if (t[i] == '\t') return FAUTE_TABULATION;
    if (t[i] == '\0') return FAUTE_NUL;
    return static_cast<unsigned char>(t[i]) > 0x7E ? FAUTE_OCTET_HAUT : FAUTE_COMMANDE;
}

}  // namespace

void avertirLigne(sAvertisseur& a, const ligneLue& ligne) {
    if (ligne.codCaract == 0 || ligne.colonneInterdite > LARGEUR_VSE) return;
    const long long retenus = ligne.longueur < LARGEUR_VSE ? ligne.longueur : LARGEUR_VSE;
    const std::string_view t(ligne.texte, static_cast<std::size_t>(retenus));
    if (ligne.debut == 0 && t.starts_with(BOM)) return dire(a, 1, 1, "bom", T_BOM.en_langue(a.langue));
    if (ligne.debut == 0 && debutUtf16(t)) return dire(a, 1, 1, "utf16", T_UTF16.en_langue(a.langue));
    const auto i = static_cast<std::size_t>(ligne.colonneInterdite - 1);
    compter(a, fauteDe(t, i), ligne, ligne.colonneInterdite, t.substr(i, 1));
}

void avertirSaut(sAvertisseur& a, const ligneLue& ligne) {
    compter(a, FAUTE_CR_SEUL, ligne, ligne.longueur + 1, "\r");
}

void avertirMelange(sAvertisseur& a, const ligneLue& ligne, int format, long long premiere) {
    dire(a, ligne.numero, ligne.longueur + 1, "fins_melangees",
         remplir(T_MELANGE, a.langue, {nomDeFin(format), std::to_string(premiere), nomDeFin(ligne.fin)}));
}

void avertirVide(sAvertisseur& a, const ligneLue& ligne) {
    dire(a, ligne.numero, 1, "ligne_vide", T_VIDE.en_langue(a.langue));
}

void avertirFin(sAvertisseur& a, const ligneLue& ligne) {
    if (ligne.fin == CVERSE_CTRLZ)
        dire(a, ligne.numero, ligne.longueur + 1, "ctrl_z", T_CTRL_Z.en_langue(a.langue));
    else if (ligne.longueur > 0)
        dire(a, ligne.numero, ligne.longueur + 1, "sans_fin", T_SANS_FIN.en_langue(a.langue));
    if (ligne.numero == 1) dire(a, 1, 1, "vide", T_RIEN.en_langue(a.langue));
}

void avertirReste(sAvertisseur& a) {
    for (int k = 0; k < NB_FAUTES_DE_LIGNE; ++k)
        if (a.comptes[k] > DITES)
            dire(a, 0, 0, CODES[k],
                 remplir(T_RESTE, a.langue,
                         {accorder(LIGNES, a.comptes[k] - DITES, a.langue), NOMS[k].en_langue(a.langue)}));
}

}  // namespace quilvane
