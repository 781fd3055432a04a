/**
 * depot_essai.h - a spool in a scratch folder, runs of the batch runner over it,
 * and the proof that nothing was lost and nothing doubled.
 */
#ifndef QUILVANE_TESTS_LOT_DEPOT_ESSAI_H
#define QUILVANE_TESTS_LOT_DEPOT_ESSAI_H

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "support/attendu.h"

namespace essai {

/** The files of the tests, by the folder in which they end. */
struct entreeLot {
    std::string octets;
    const char* lieu;
};

inline std::string refuse() {
    std::string r = acti();
    poser(r, 256, "#");
    return fichier({fich(2), acti(), r});
}
inline std::string accepte() { return fichier({fich(2), acti(), acti()}); }

inline std::map<std::string, entreeLot> troisEntrees() {
    return {{"bon.vse", {accepte(), "emis"}},
            {"faux.vse", {refuse(), "rejets"}},
            {"mauvais.vse", {"rien\n", "echecs"}}};
}

/** A spool; a bin/ beside it holds the runner and what it is to find. */
struct depotEssai {
    dossier d;

    explicit depotEssai(bool vraiQuilvane = true) {
        d.creerDossier("bin");
        d.creerDossier("depot/arrivee");
        std::filesystem::copy_file(QUILVANE_LOT, d.nom("bin/quilvane-lot"));
        if (vraiQuilvane) std::filesystem::copy_file(QUILVANE_BINAIRE, d.nom("bin/quilvane"));
    }

    /** A shell script in the place of a program. */
    void programme(const std::string& nom, const std::string& corps) const {
        std::filesystem::remove(d.nom("bin/" + nom));
        d.ecrire("bin/" + nom, "#!/bin/sh\n" + corps);
        chmod(d.nom("bin/" + nom).c_str(), 0755);
    }

    void deposer(const std::string& nom, const std::string& octets) const {
        d.ecrire("depot/arrivee/" + nom, octets);
    }
    void deposer(const std::map<std::string, entreeLot>& entrees) const {
        for (const auto& [nom, e] : entrees)
            deposer(nom, e.octets);
    }

    resultat lancerLot(std::vector<std::string> arguments = {}, options o = {}) const {
        o.horloge = "";
        arguments.insert(arguments.begin(), {"--repos", "0", "-j", "1"});
        arguments.push_back("depot");
        return lancerProgramme(d.nom("bin/quilvane-lot"), d, arguments, o);
    }

    std::vector<std::string> noms(const std::string& lieu) const {
        std::vector<std::string> r;
        if (!d.existe("depot/" + lieu)) return r;
        for (const auto& e : std::filesystem::directory_iterator(d.nom("depot/" + lieu)))
            r.push_back(e.path().filename().string());
        std::sort(r.begin(), r.end());
        return r;
    }
    bool est(const std::string& chemin) const { return d.existe("depot/" + chemin); }
    std::string lire(const std::string& chemin) const { return d.lire("depot/" + chemin); }

    std::vector<std::string> journal() const {
        std::vector<std::string> r;
        if (!est("journal.jsonl")) return r;
        std::istringstream flux(lire("journal.jsonl"));
        for (std::string ligne; std::getline(flux, ligne);)
            r.push_back(ligne);
        return r;
    }

    /** The archived files, by name. */
    std::map<std::string, std::string> archive() const {
        std::map<std::string, std::string> r;
        for (const auto& [chemin, octets] : d.contenu())
            if (chemin.starts_with("depot/archive/") && !chemin.ends_with("/"))
                r[chemin.substr(chemin.rfind('/') + 1)] = octets;
        return r;
    }
};

/** Every input stands once where it belongs, has one whole line in the journal
 *  and one copy in the archive; nothing else is left anywhere. */
inline void verifierDepot(const depotEssai& s, const std::map<std::string, entreeLot>& entrees) {
    EXPECT_EQ(s.noms("arrivee"), std::vector<std::string>{});
    EXPECT_EQ(s.noms("encours"), std::vector<std::string>{});
    std::map<std::string, std::vector<std::string>> attendus = {{"emis", {}}, {"rejets", {}}, {"echecs", {}}};
    std::map<std::string, std::string> archive;
    for (const auto& [nom, e] : entrees) {
        attendus[e.lieu].push_back(nom);
        if (std::string(e.lieu) == "echecs") attendus["echecs"].push_back(nom + ".raison.txt");
        archive[nom] = e.octets;
        int lignes = 0;
        for (const std::string& l : s.journal())
            if (l.starts_with("{\"format\":\"quilvane-journal/1\"") && l.ends_with("]}") &&
                l.find("\"nom\":\"" + nom + "\"") != std::string::npos &&
                l.find(std::string("\"issue\":\"") + e.lieu + "\"") != std::string::npos)
                ++lignes;
        EXPECT_EQ(lignes, 1) << nom;
        if (std::string(e.lieu) == "emis" && s.est("emis/" + nom)) {
            EXPECT_EQ(s.lire("emis/" + nom), fichierEmis(fich(2), 2, {acti(), acti()})) << nom;
        }
        if (std::string(e.lieu) == "echecs" && s.est("echecs/" + nom)) {
            EXPECT_EQ(s.lire("echecs/" + nom), e.octets) << nom;
        }
    }
    for (auto& [lieu, noms] : attendus) {
        std::sort(noms.begin(), noms.end());
        EXPECT_EQ(s.noms(lieu), noms) << lieu;
    }
    EXPECT_EQ(s.archive(), archive);
}

}  // namespace essai

#endif
