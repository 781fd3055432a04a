// The texts of the error numbers and fatal codes against the rule tables: none
// missing, none too many, each fit to be read.
#include "catalogue/erreurs.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "driver/publication.h"
#include "messages/aiguillage.h"
#include "rules/entete.h"

using namespace quilvane;

namespace {

/** Numbers that no row raises: the framing of a record, its place in the file,
 *  and who sends what to whom. */
const std::set<int> HORS_TABLES = {51, 64, 100, 105, 106, 107, 108, 109, 110, 138, 182};

/** Every number that a row raises, with one place where it does. */
std::map<int, std::string> numerosDesTables() {
    std::map<int, std::string> r;
    const auto lire = [&r](const char* lettre, const std::string& table, const sCorps* lignes, int longueur) {
        for (const sCorps* l = lignes; l != lignes + longueur; ++l)
            if (l->pfVerif != nullptr)
                r.try_emplace(l->noErr, table + " " + lettre + std::to_string(l->numChamp + 1));
    };
    lire("E", "the header", tEntete, lEntete);
    lire("F", "the footer", tFin, lFin);
    lire("C", "FICH", tFich, lFich);
    for (const sAiguillage& route : tAiguillage)
        if (route.tabVerif != nullptr) lire("C", route.nomVSE, route.tabVerif, *route.pLenTabVerif);
    return r;
}

/** One text with the words that name it in a failure. */
struct lu {
    std::string ou;  // "error 68, title, French"
    std::string texte;
    eLangue langue;
};

/** The two languages of a text. */
std::vector<lu> deux(const std::string& ou, const texte& t) {
    std::vector<lu> r;
    for (const eLangue l : {FRANCAIS, ANGLAIS}) {
        const char* const c = t.en_langue(l);
        r.push_back({ou + (l == FRANCAIS ? ", French" : ", English"), c != nullptr ? c : "", l});
    }
    return r;
}

/** An entry of either table. */
struct entree {
    std::string nom;  // "error 68", "IG008"
    texte titre;
    texte sens;
    texte remede;
};

std::vector<entree> entrees() {
    std::vector<entree> r;
    for (const sErreur& e : erreurs)
        r.push_back({"error " + std::to_string(e.numero), e.titre, e.sens, e.remede});
    for (const sFatal& f : fatals)
        r.push_back({f.code, f.titre, f.sens, f.remede});
    return r;
}

enum ePart { TITRE, PHRASES };

/** Calls `f(text, part)` for every text of both tables in both languages. */
template <typename Fonction>
void pourChaqueTexte(Fonction f) {
    for (const entree& e : entrees()) {
        for (const lu& t : deux(e.nom + ", title", e.titre))
            f(t, TITRE);
        for (const lu& t : deux(e.nom + ", meaning", e.sens))
            f(t, PHRASES);
        for (const lu& t : deux(e.nom + ", remedy", e.remede))
            f(t, PHRASES);
    }
}

/** Length of the UTF-8 character that begins at `i`; 0 when none does. Only the
 *  two- and three-byte forms occur in the two languages. */
std::size_t caractereUtf8(const std::string& s, std::size_t i) {
    const auto octet = [&s](std::size_t j) { return j < s.size() ? static_cast<unsigned char>(s[j]) : 0U; };
    const auto suite = [&octet](std::size_t j) { return (octet(j) & 0xC0U) == 0x80U; };
    if (octet(i) >= 0x20 && octet(i) < 0x7F) return 1;
    if (octet(i) >= 0xC2 && octet(i) <= 0xDF && suite(i + 1)) return 2;
    if (octet(i) >= 0xE1 && octet(i) <= 0xEC && suite(i + 1) && suite(i + 2)) return 3;
    return 0;
}

bool contientSansCasse(const std::string& texte, const std::string& mot) {
    std::string bas = texte;
    for (char& c : bas)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return bas.find(mot) != std::string::npos;
}

/** A name of the source rather than a word: a small letter before a capital. */
bool nomDuSource(const std::string& texte) {
    for (std::size_t i = 1; i < texte.size(); ++i)
        if (texte[i - 1] >= 'a' && texte[i - 1] <= 'z' && texte[i] >= 'A' && texte[i] <= 'Z') return true;
    return false;
}

/** Code at the start of a log line: "IG008" of "IG008: ...". */
std::string codeDe(const char* ligneDeLog) {
    const std::string ligne = ligneDeLog;
    return ligne.substr(0, ligne.find_first_of(" :"));
}

}  // namespace

TEST(TextesDesErreurs, ChaqueNumeroDUneLigneAUneEntree) {
    for (const auto& [numero, ou] : numerosDesTables())
        EXPECT_NE(erreurDe(numero), nullptr)
            << "error " << numero << ", raised by " << ou << ", has no entry in catalogue/erreurs.cpp";
    for (const int numero : HORS_TABLES)
        EXPECT_NE(erreurDe(numero), nullptr)
            << "error " << numero << ", raised outside the tables, has no entry in catalogue/erreurs.cpp";
}

TEST(TextesDesErreurs, ChaqueEntreeSertAUneLigne) {
    const std::map<int, std::string> deLignes = numerosDesTables();
    for (const sErreur& e : erreurs)
        EXPECT_TRUE(deLignes.contains(e.numero) || HORS_TABLES.contains(e.numero))
            << "catalogue/erreurs.cpp explains error " << e.numero << ", which nothing raises";
    for (const auto& [numero, ou] : deLignes)
        EXPECT_FALSE(HORS_TABLES.contains(numero))
            << "error " << numero << " is said to be raised outside the tables, but " << ou << " raises it";
}

TEST(TextesDesErreurs, ChaqueCodeFatalAUneEntreeEtUneSeule) {
    std::set<std::string> journal;
    for (const char* const ligne :
         {IG001, IG002, IG003, IG004, IG008, IG009, IG010, IG011, IG014, IG015, I073, I099}) {
        const std::string code = codeDe(ligne);
        EXPECT_TRUE(journal.insert(code).second) << code << " begins two log lines";
        EXPECT_NE(fatalDe(code), nullptr)
            << code << " can be logged and has no entry in catalogue/erreurs.cpp";
    }
    for (const sFatal& f : fatals)
        EXPECT_TRUE(journal.contains(f.code))
            << "catalogue/erreurs.cpp explains " << f.code << ", which is never logged";
}

TEST(TextesDesErreurs, UneEntreeSeTrouveParSaCle) {
    for (const sErreur& e : erreurs)
        EXPECT_EQ(erreurDe(e.numero), &e) << "error " << e.numero << " is looked up wrongly";
    for (const sFatal& f : fatals)
        EXPECT_EQ(fatalDe(f.code), &f) << f.code << " is looked up wrongly";
    for (const int absent : {-1, 0, 15, erreurs.back().numero + 1, 806, 807, 1000})
        EXPECT_EQ(erreurDe(absent), nullptr) << "error " << absent << " should not be found";
    for (const char* const absent : {"", "I072", "IG", "IG0", "IG005", "IG0080", "ig008", "IG999"})
        EXPECT_EQ(fatalDe(absent), nullptr) << "\"" << absent << "\" should not be found";
}

TEST(TextesDesErreurs, AucunTexteNEstVideOuMalCode) {
    pourChaqueTexte([](const lu& t, ePart) {
        EXPECT_FALSE(t.texte.empty()) << t.ou << " is empty";
        for (std::size_t i = 0; i < t.texte.size();) {
            const std::size_t n = caractereUtf8(t.texte, i);
            ASSERT_NE(n, 0U) << t.ou << " holds a byte that is no character, behind \""
                             << t.texte.substr(0, i) << "\"";
            i += n;
        }
    });
}

TEST(TextesDesErreurs, LeFrancaisNEstPasLAnglais) {
    for (const entree& e : entrees()) {
        EXPECT_STRNE(e.titre.fr, e.titre.en) << e.nom << ", title, is the same in both languages";
        EXPECT_STRNE(e.sens.fr, e.sens.en) << e.nom << ", meaning, is the same in both languages";
        EXPECT_STRNE(e.remede.fr, e.remede.en) << e.nom << ", remedy, is the same in both languages";
    }
}

TEST(TextesDesErreurs, UnTitreNeSertQuUneFois) {
    std::map<std::string, std::string> vus[2];
    pourChaqueTexte([&vus](const lu& t, ePart part) {
        if (part != TITRE) return;
        const auto [autre, nouveau] = vus[t.langue].try_emplace(t.texte, t.ou);
        EXPECT_TRUE(nouveau) << t.ou << " is also that of " << autre->second << ": " << t.texte;
    });
}

TEST(TextesDesErreurs, LaPonctuationEstCelleDeLaLangue) {
    pourChaqueTexte([](const lu& t, ePart part) {
        if (t.texte.empty()) return;
        EXPECT_EQ(t.texte.back() == '.', part == PHRASES)
            << t.ou << (part == TITRE ? " ends with a stop" : " does not end with a stop");
        EXPECT_EQ(t.texte.find("  "), std::string::npos) << t.ou << " holds two blanks in a row";
        EXPECT_TRUE(t.texte.front() != ' ' && t.texte.back() != ' ')
            << t.ou << " begins or ends with a blank";
        for (std::size_t i = 1; i < t.texte.size(); ++i) {
            if (std::string(":;?!").find(t.texte[i]) == std::string::npos) continue;
            EXPECT_EQ(t.texte[i - 1] == ' ', t.langue == FRANCAIS)
                << t.ou << " has a wrong blank before '" << t.texte[i] << "'";
        }
    });
}

TEST(TextesDesErreurs, LesDeuxLanguesCitentLesMemesNombres) {
    // Columns, codes and dates: a digit changed in one language alone is a slip.
    const auto chiffres = [](const char* texte) {
        std::multiset<std::string> r;
        std::string nombre;
        for (const char* p = texte;; ++p) {
            if (std::isdigit(static_cast<unsigned char>(*p))) {
                nombre += *p;
                continue;
            }
            if (!nombre.empty()) r.insert(nombre);
            nombre.clear();
            if (*p == '\0') return r;
        }
    };
    for (const entree& e : entrees()) {
        EXPECT_TRUE(chiffres(e.titre.fr) == chiffres(e.titre.en))
            << e.nom << ", title, differs in its numbers";
        EXPECT_TRUE(chiffres(e.sens.fr) == chiffres(e.sens.en))
            << e.nom << ", meaning, differs in its numbers";
        EXPECT_TRUE(chiffres(e.remede.fr) == chiffres(e.remede.en))
            << e.nom << ", remedy, differs in its numbers";
    }
}

TEST(TextesDesErreurs, AucunMotDefendu) {
    // Words that blame or belittle, and marks of an unfinished text.
    const std::vector<std::string> DEFENDUS = {
        "votre faute", "vous avez",  "oublié", "stupid",    "evident", "évident", "simplement", "you have",
        "you forgot",  "your fault", "fault",  "obviously", "simply",  "todo",    "fixme",      "???"};
    pourChaqueTexte([&DEFENDUS](const lu& t, ePart) {
        for (const std::string& mot : DEFENDUS)
            EXPECT_FALSE(contientSansCasse(t.texte, mot)) << t.ou << " says \"" << mot << "\"";
        EXPECT_FALSE(nomDuSource(t.texte)) << t.ou << " holds a name of the source: " << t.texte;
    });
}
