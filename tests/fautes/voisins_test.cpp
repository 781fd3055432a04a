/**
 * Two runs that want the same names: neither takes the other's files, at
 * whatever instant.
 */
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <future>

#include "fautes/fautes.h"

using namespace essai;
namespace fs = std::filesystem;

namespace {

/** A folder with an input of one name for each of two runs. */
struct voisinage {
    dossier d;
    passage p[2];
    options communes;

    voisinage(const passage& un, const passage& deux, const std::string& travail) : p{un, deux} {
        for (const char* nom : {"a", "b", "o", "t"})
            d.creerDossier(nom);
        d.ecrire("a/lot", p[0].octets);
        d.ecrire("b/lot", p[1].octets);
        if (!travail.empty()) communes.milieu["TMPDIR"] = travail;
    }
    std::string entree(int i) const { return i == 0 ? "a/lot" : "b/lot"; }
    std::string sortie(int i) const { return i == 0 ? "o/a.out" : "o/b.out"; }

    std::future<resultat> lancerUn(int i, options o = {}) const {
        o.milieu.insert(communes.milieu.begin(), communes.milieu.end());
        return std::async(std::launch::async, [this, i, o] {
            return lancer(d, {entree(i), sortie(i), "o/" + std::to_string(i) + ".log"}, o);
        });
    }
    bool contient(const std::string& nom, const std::string& octets) const {
        return d.existe(nom) && d.lire(nom) == octets;
    }
    /** What must hold of run `i`, which ended with `r`; whether it went through. */
    bool verifier(int i, const resultat& r) const {
        SCOPED_TRACE("run " + std::to_string(i) + ", status " + std::to_string(r.statut) + " " + r.erreur);
        EXPECT_EQ(r.signal, 0);
        const bool sien = r.statut == p[i].statut && r.erreur.empty();
        if (sien && !p[i].publie.empty()) {
            EXPECT_TRUE(contient(sortie(i), p[i].publie));
        } else if (sien) {
            EXPECT_TRUE(contient(entree(i), p[i].octets));
        } else {
            EXPECT_EQ(r.statut, 1);
            EXPECT_TRUE(contient(entree(i), p[i].octets) || contient(entree(i) + "_r", p[i].octets) ||
                        contient("t/lot_r", p[i].octets));
        }
        return sien;
    }
};

/** What an earlier, killed run or somebody else left under the working names. */
void laisserUnReste(const voisinage& v, const std::string& ou, int genre) {
    for (const char* nom : {"lot_e", "lot_o"}) {
        if (genre == 1) v.d.ecrire(ou + nom, "reste");
        if (genre == 2) fs::create_symlink("victime", v.d.nom(ou + nom));
    }
    v.d.ecrire(ou + "victime", "gardee");
}

/** Two runs that meet may refuse each other, each for what the other holds for a
 *  moment; nothing is lost then, and a later try finds the way free. That it
 *  never does would be a fault. */
template <typename Essai>
void unPasseBientot(Essai essayer) {
    bool passe = false;
    for (int essais = 0; essais < 5 && !passe; ++essais)
        passe = essayer();
    EXPECT_TRUE(passe) << "both refused, time after time";
}

}  // namespace

TEST(Voisins, UneCourseEntierePendantUnArret) {
    // One run waits before each of its calls in turn while another goes through.
    const std::vector<passage> tous = passages();
    for (const std::string travail : {"", "t"}) {
        const std::string ou = travail.empty() ? "o/" : "t/";
        for (int genre = 0; genre < 3; ++genre) {
            for (int n = 1;; ++n) {
                ASSERT_LT(n, ASSEZ);
                SCOPED_TRACE(ou + ", leftover " + std::to_string(genre) + ", call " + std::to_string(n));
                const voisinage v(tous[static_cast<std::size_t>(n) % 3],
                                  tous[static_cast<std::size_t>(n) % 2], travail);
                laisserUnReste(v, ou, genre);
                const temoin t;
                std::future<resultat> course =
                    v.lancerUn(0, t.sous("tout:" + std::to_string(n) + ":attendre"));
                while (!t.atteint() &&
                       course.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
                }
                const bool atteint = t.atteint();
                const resultat deux = v.lancerUn(1).get();
                t.d.ecrire("feu", "");
                v.verifier(0, course.get());
                v.verifier(1, deux);
                EXPECT_TRUE(v.contient(ou + "victime", "gardee"));
                if (!atteint) break;
            }
        }
    }
}

TEST(Voisins, EnsembleDesLeDepart) {
    // Neither waits for the other: whatever instants meet.
    const std::vector<passage> tous = passages(20);
    for (const std::string travail : {"", "t"}) {
        for (std::size_t tour = 0; tour < 150; ++tour) {
            SCOPED_TRACE(travail + " " + std::to_string(tour));
            unPasseBientot([&] {
                const voisinage v(tous[tour % 3], tous[tour % 2], travail);
                laisserUnReste(v, travail.empty() ? "o/" : "t/", static_cast<int>(tour % 4));
                std::future<resultat> un = v.lancerUn(0);
                std::future<resultat> deux = v.lancerUn(1);
                const resultat r[2] = {un.get(), deux.get()};
                const bool passe[2] = {v.verifier(0, r[0]), v.verifier(1, r[1])};
                return passe[0] || passe[1];
            });
        }
    }
}

TEST(Voisins, EnsembleDepuisChaqueAppel) {
    // Both stop before the same call, then go on at once.
    const std::vector<passage> tous = passages();
    for (int n = 1; n < 50; ++n) {
        for (int genre = 0; genre < 3; ++genre) {
            SCOPED_TRACE("call " + std::to_string(n) + ", leftover " + std::to_string(genre));
            unPasseBientot([&] {
                const voisinage v(tous[static_cast<std::size_t>(n) % 2], tous[0], "");
                laisserUnReste(v, "o/", genre);
                const dossier feu;
                const temoin temoins[2];
                std::future<resultat> courses[2];
                for (int i = 0; i < 2; ++i) {
                    options o = temoins[i].sous("tout:" + std::to_string(n) + ":attendre");
                    o.milieu["QUILVANE_FEU"] = feu.nom("feu");
                    courses[i] = v.lancerUn(i, o);
                }
                for (int i = 0; i < 2; ++i)
                    while (!temoins[i].atteint() &&
                           courses[i].wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
                    }
                feu.ecrire("feu", "");
                const bool passe[2] = {v.verifier(0, courses[0].get()), v.verifier(1, courses[1].get())};
                return passe[0] || passe[1];
            });
        }
    }
}
