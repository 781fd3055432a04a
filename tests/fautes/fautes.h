/**
 * fautes.h - three files, what the program must make of each, and runs of the
 * program with the fault library in front of it.
 */
#ifndef QUILVANE_TESTS_FAUTES_FAUTES_H
#define QUILVANE_TESTS_FAUTES_FAUTES_H

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "support/attendu.h"

namespace essai {

using contenu = std::map<std::string, std::string>;

/** The content of an output name before the run. */
inline constexpr const char* ANCIEN = "ancien";

/** A file to process and what an undisturbed run makes of it. */
struct passage {
    const char* nom;
    std::string octets;
    int statut;
    std::string publie;   // what the output name holds then, empty for none
    std::string travail;  // suffix of the working file that is published
    std::string log;
    std::string tmpEmis;  // the working files before publication or undoing
    std::string erre;
};

/** An accepted, a rejected and a fatal file of `n` times the same records. */
inline std::vector<passage> passages(int n = 1) {
    std::string fausse = acti();
    poser(fausse, 256, "#");
    const std::string reserve(256, ' ');
    const std::string ligneEmise = "\n" + emise(acti());
    std::vector<std::string> bons = {fich(2 * n)};
    std::vector<std::string> mauvais = {fich(2 * n)};
    std::vector<std::string> emis;
    std::vector<std::string> erres;
    std::string moitie = reserve;
    for (int i = 0; i < n; ++i) {
        bons.insert(bons.end(), {acti(), acti()});
        mauvais.insert(mauvais.end(), {acti(), fausse});
        emis.insert(emis.end(), {acti(), acti()});
        erres.push_back(erre(fausse, {94}, clesExploitation(fausse), fich(2 * n)));
        moitie += ligneEmise;
    }
    const std::string valide = fichierEmis(fich(2 * n), 2 * n, emis);
    const std::string erreurs = fichierErreurs(fich(2 * n), {n, 2 * n, n}, erres);
    std::vector<std::string> coupe = bons;
    coupe.resize(static_cast<std::size_t>(n) + 1);
    coupe.push_back("");
    return {{"accepted", fichier(bons), 0, valide, "_e", "", valide, reserve},
            {"rejected", fichier(mauvais), 2, erreurs, "_o", "", moitie, erreurs},
            {"empty line", fichier(coupe), 1, "", "", ligneLog(LOG_IG015), moitie, reserve}};
}

/** What an undisturbed run over `p` leaves, its files being named `in`, `out`
 *  and `log`. */
inline contenu laisse(const passage& p, const std::string& in = "in", const std::string& out = "out",
                      const std::string& log = "log") {
    if (p.publie.empty()) return {{in, p.octets}, {log, p.log}};
    return {{out, p.publie}, {log, p.log}};
}

/** The folder in which the fault library keeps its own files. */
struct temoin {
    dossier d;

    /** A run under `faute`, in the form of injecteur.cpp. */
    options sous(const std::string& faute) const {
        options o;
        o.precharge = {QUILVANE_INJECTEUR};
        o.milieu = {{"QUILVANE_FAUTE", faute},
                    {"QUILVANE_TEMOIN", d.nom("temoin")},
                    {"QUILVANE_OUVERTS", d.nom("ouverts")},
                    {"QUILVANE_FEU", d.nom("feu")}};
        return o;
    }
    /** Names over which a call was met, one per call. */
    std::vector<std::string> touches() const { return lignes("temoin"); }
    /** Files that the run left open. */
    std::vector<std::string> ouverts() const { return lignes("ouverts"); }
    bool touche(const std::string& nom) const {
        for (const std::string& t : touches())
            if (t == nom) return true;
        return false;
    }
    bool atteint() const { return d.existe("temoin"); }

private:
    std::vector<std::string> lignes(const std::string& fichier) const {
        std::vector<std::string> r;
        if (!d.existe(fichier)) return r;
        std::string ligne;
        for (const char c : d.lire(fichier)) {
            if (c == '\n')
                r.push_back(std::exchange(ligne, ""));
            else
                ligne += c;
        }
        return r;
    }
};

/** More calls than any of these runs makes. */
inline constexpr int ASSEZ = 200;

}  // namespace essai

#endif
