/**
 * The script that keeps files and the console out of the core, on this core
 * and on small ones that break a rule each.
 */
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/banc.h"

using namespace essai;

namespace {

const std::string SCRIPT = std::string(QUILVANE_RACINE) + "/scripts/sans_fichiers.sh";

resultat passer(const dossier& d, const std::vector<std::string>& arguments) {
    options o;
    o.horloge = "";
    return lancerProgramme(SCRIPT, d, arguments, o);
}

/** A core of one source for each room, all in order; `chemin` then holds `texte`. */
resultat avec(const std::string& chemin, const std::string& texte) {
    const dossier d;
    for (const char* salle :
         {"vocabulaire", "calendar", "checks", "rules", "messages", "controle", "driver"}) {
        d.creerDossier(salle);
        d.ecrire(std::string(salle) + "/a.h", "#include <cstring>\n");
    }
    d.ecrire(chemin, texte);
    return passer(d, {"."});
}

}  // namespace

TEST(SansFichiers, CeNoyau) {
    const dossier d;
    const resultat r = passer(d, {});
    EXPECT_EQ(r.statut, 0) << r.erreur;
    EXPECT_EQ(r.sortie, "The core uses no files and its rooms are in order.\n");
}

TEST(SansFichiers, CeQuiEstPermis) {
    const std::vector<std::pair<std::string, std::string>> cas = {
        {"checks/b.cpp", "#include \"calendar/datecalc.h\"\n#include \"vocabulaire/pack.h\"\n"},
        {"rules/b.cpp", "#include \"checks/lecture.h\"\n#include \"vocabulaire/pack.h\"\n"},
        {"messages/b.h", "#include \"rules/entete.h\"\n#include \"checks/dates.h\"\n"},
        {"controle/b.cpp", "#include \"messages/aiguillage.h\"\n"},
        {"driver/b.cpp", "#include <cstdio>\n#include \"controle/lot.h\"\nvoid f() { std::puts(\"\"); }\n"},
        // Words are no calls, and neither comments nor texts are code.
        {"controle/b.cpp",
         "// open(nom), or \"fopen(\"\n/* printf(1); */ int open;\n/**\n * remove(nom)\n */\n"
         "const char* t = \"puts(\\\"x\\\") // rename(\";\nchar c = '\"'; // unlink(\nvoid ouvrir(int);\n"
         "int reopen(int); int x = s.read(1) + p->write(2) + relire(3);\n"},
    };
    for (const auto& [chemin, texte] : cas) {
        const resultat r = avec(chemin, texte);
        EXPECT_EQ(r.statut, 0) << chemin << "\n" << texte << r.erreur;
    }
}

TEST(SansFichiers, CeQuiEstRefuse) {
    const struct {
        std::string chemin, texte, faute;
    } cas[] = {
        {"calendar/b.cpp", "#include <cstdio>\n", "1: includes <cstdio>"},
        {"checks/b.cpp", "\n#include <stdio.h>\n", "2: includes <stdio.h>"},
        {"rules/b.h", "#include <fstream>\n", "1: includes <fstream>"},
        {"messages/b.cpp", "  #  include <iostream>\n", "1: includes <iostream>"},
        {"controle/b.cpp", "#include <stdio_ext.h>\n", "1: includes <stdio_ext.h>"},
        {"controle/b.cpp", "#include <filesystem>\n", "1: includes <filesystem>"},
        {"controle/b.cpp", "#include <unistd.h>\n", "1: includes <unistd.h>"},
        {"controle/b.cpp", "#include <sys/stat.h>\n", "1: includes <sys/stat.h>"},
        {"controle/b.cpp", "/* a\n b */ int f = open(nom);\n", "2: calls open"},
        {"controle/b.cpp", "x = 1; ::fopen (nom, \"r\");\n", "1: calls fopen"},
        {"checks/b.cpp", "std::snprintf(t, 3, \"\");\n", "1: calls snprintf"},
        {"checks/b.cpp", "std::printf(\"\"); std::vfprintf(f);\n", "1: calls vfprintf"},
        {"messages/b.cpp", "std::rename(a, b);\n", "1: calls rename"},
        {"messages/b.cpp", "remove(a);\n", "1: calls remove"},
        {"rules/b.cpp", "if (unlink(a)) return;\n", "1: calls unlink"},
        {"rules/b.cpp", "std::exit(1);\n", "1: calls exit"},
        {"calendar/b.cpp", "#include \"vocabulaire/pack.h\"\n",
         "1: includes vocabulaire/pack.h, which the room calendar may not"},
        {"checks/b.cpp", "#include \"rules/moteur.h\"\n",
         "1: includes rules/moteur.h, which the room checks may not"},
        {"checks/b.h", "#include \"messages/messages.h\"\n",
         "1: includes messages/messages.h, which the room checks may not"},
        {"rules/b.h", "#include \"messages/messages.h\"\n",
         "1: includes messages/messages.h, which the room rules may not"},
        {"messages/b.h", "#include \"controle/lot.h\"\n",
         "1: includes controle/lot.h, which the room messages may not"},
        {"controle/b.h", "#include \"driver/etat.h\"\n",
         "1: includes driver/etat.h, which the room controle may not"},
        {"controle/b.h", "#include \"attgetopt/attgetopt.h\"\n",
         "1: includes attgetopt/attgetopt.h, which the room controle may not"},
        {"rules/b.h", "#include \"../driver/etat.h\"\n",
         "1: includes ../driver/etat.h, which the room rules may not"},
    };
    for (const auto& c : cas) {
        const resultat r = avec(c.chemin, c.texte);
        EXPECT_EQ(r.statut, 1) << c.texte;
        EXPECT_EQ(r.sortie, "") << c.texte;
        EXPECT_TRUE(r.erreur.find("./" + c.chemin + ":" + c.faute + "\n") != std::string::npos)
            << c.texte << r.erreur;
    }
}

TEST(SansFichiers, UnDossierSansSources) {
    const dossier d;
    const resultat r = passer(d, {"."});
    EXPECT_EQ(r.statut, 1);
    EXPECT_TRUE(r.erreur.starts_with("./vocabulaire: no sources\n")) << r.erreur;
}
