/**
 * Runs that are killed, and runs that go on side by side.
 */
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <future>
#include <stdexcept>

#include "fautes/fautes.h"

using namespace essai;
namespace fs = std::filesystem;

namespace {

/** Whether folder `d` holds a file with these very bytes. */
bool contient(const dossier& d, const std::string& nom, const std::string& octets) {
    return d.existe(nom) && d.lire(nom) == octets;
}

/** After a killed run over "in" the input or the whole result is there, and a
 *  second run over what was left ends as an undisturbed one. */
void verifierReprise(const dossier& d, const passage& p, const std::string& out) {
    const bool entreeRendue = contient(d, "in", p.octets);
    const bool entreeRenommee = contient(d, "in_r", p.octets);
    const bool publie = !p.publie.empty() && contient(d, out, p.publie);
    EXPECT_TRUE(entreeRendue || entreeRenommee || publie) << "neither the input nor a whole result is left";
    if (out != "in_e" && out != "in_o" && d.existe(out)) {
        const std::string octets = d.lire(out);
        EXPECT_TRUE(publie || octets.empty() || octets == ANCIEN || octets == p.octets)
            << out << " holds half a result";
    }
    if (!entreeRendue && !entreeRenommee) return;
    if (!entreeRendue) fs::rename(d.nom("in_r"), d.nom("in"));
    for (const char* nom : {"in_r", "in_e", "in_o"})
        fs::remove(d.nom(nom));
    EXPECT_EQ(lancer(d, {"in", "out", "log"}).statut, p.statut);
    contenu attendu = laisse(p);
    if (out == "in" && p.publie.empty()) attendu["in"] = p.octets;
    EXPECT_EQ(d.contenu(), attendu);
}

/** Waits until `ici` holds; it is false when the run `course` ends first. */
template <typename Condition>
bool attendre(Condition ici, const std::future<resultat>& course) {
    for (int i = 0; i < 60000; ++i) {
        if (ici()) return true;
        if (course.wait_for(std::chrono::milliseconds(1)) == std::future_status::ready) return ici();
    }
    throw std::runtime_error("a run neither stops nor ends");
}

std::future<resultat> lancerACote(const dossier& d, const std::string& nom, const options& o = {}) {
    return std::async(std::launch::async, [&d, nom, o] {
        return lancer(d, {nom, nom + ".out", nom + ".log"}, o);
    });
}

void ajouter(contenu& c, const passage& p, const std::string& nom) {
    c.merge(laisse(p, nom, nom + ".out", nom + ".log"));
}

}  // namespace

TEST(Arret, TueAvantChaqueAppel) {
    for (const passage& p : passages()) {
        for (const char* out : {"out", "in", "in_r", "in_e", "in_o"}) {
            int n = 1;
            for (;; ++n) {
                ASSERT_LT(n, ASSEZ);
                SCOPED_TRACE(std::string(p.nom) + ", output " + out + ", call " + std::to_string(n));
                const dossier d;
                const temoin t;
                d.ecrire("in", p.octets);
                if (std::string(out) == "out") d.ecrire(out, ANCIEN);
                const resultat r =
                    lancer(d, {"in", out, "log"}, t.sous("tout:" + std::to_string(n) + ":tuer"));
                EXPECT_EQ(r.signal, t.atteint() ? SIGKILL : 0);
                if (!t.atteint()) break;
                verifierReprise(d, p, out);
            }
            EXPECT_GT(n, 20);  // six openings, six closings, the reading, the writings, ...
        }
    }
}

TEST(Arret, TueNImporteQuand) {
    for (const passage& p : passages(1000)) {
        for (int i = 0; i < 20; ++i) {
            SCOPED_TRACE(std::string(p.nom) + ", after " + std::to_string(i * 700) + " microseconds");
            const dossier d;
            d.ecrire("in", p.octets);
            d.ecrire("out", ANCIEN);
            const resultat r = lancer(d, {"in", "out", "log"}, {.tuerApres = 1 + i * 700});
            if (r.signal == 0) {
                EXPECT_EQ(r.statut, p.statut);
                EXPECT_EQ(d.contenu(), laisse(p));
            } else {
                verifierReprise(d, p, "out");
            }
        }
    }
}

TEST(Cote, UnPassageEntierPendantUnArret) {
    // One run waits before each of its calls in turn while another goes through.
    const std::vector<passage> tous = passages();
    for (std::size_t i = 0; i < tous.size(); ++i) {
        for (int n = 1;; ++n) {
            ASSERT_LT(n, ASSEZ);
            const passage& p = tous[i];
            const passage& q = tous[(i + static_cast<std::size_t>(n)) % tous.size()];
            SCOPED_TRACE(std::string(p.nom) + " waits before call " + std::to_string(n) + ", " + q.nom);
            const dossier d;
            const temoin t;
            d.ecrire("p", p.octets);
            d.ecrire("q", q.octets);
            std::future<resultat> course =
                lancerACote(d, "p", t.sous("tout:" + std::to_string(n) + ":attendre"));
            const bool atteint = attendre([&] { return t.atteint(); }, course);
            const resultat rq = lancerACote(d, "q").get();
            t.d.ecrire("feu", "");
            const resultat rp = course.get();
            EXPECT_EQ(rp.statut, p.statut);
            EXPECT_EQ(rq.statut, q.statut);
            EXPECT_EQ(rp.erreur + rq.erreur, "");
            contenu attendu;
            ajouter(attendu, p, "p");
            ajouter(attendu, q, "q");
            EXPECT_EQ(d.contenu(), attendu);
            if (!atteint) break;
        }
    }
}

TEST(Cote, HuitPassagesALaFois) {
    // All have their files open before any goes on, then all write and publish.
    std::vector<passage> tous;
    for (const int n : {1, 40, 400})
        for (const passage& p : passages(n))
            tous.push_back(p);
    for (const char* depart : {"open:1:attendre", "open:6:attendre", "rename:1:attendre"}) {
        for (const std::size_t nombre : {std::size_t{2}, std::size_t{8}}) {
            SCOPED_TRACE(std::to_string(nombre) + " from " + depart);
            const dossier d;
            const dossier feu;
            std::vector<temoin> temoins(nombre);
            std::vector<std::future<resultat>> courses;
            contenu attendu;
            for (std::size_t i = 0; i < nombre; ++i) {
                const std::string nom = "in" + std::to_string(i);
                const passage& p = tous[(i + nombre) % tous.size()];
                d.ecrire(nom, p.octets);
                ajouter(attendu, p, nom);
                options o = temoins[i].sous(depart);
                o.milieu["QUILVANE_FEU"] = feu.nom("feu");
                courses.push_back(lancerACote(d, nom, o));
            }
            for (std::size_t i = 0; i < nombre; ++i)
                EXPECT_TRUE(attendre([&] { return temoins[i].atteint(); }, courses[i]));
            feu.ecrire("feu", "");
            for (std::size_t i = 0; i < nombre; ++i) {
                const resultat r = courses[i].get();
                EXPECT_EQ(r.statut, tous[(i + nombre) % tous.size()].statut);
                EXPECT_EQ(r.erreur, "");
            }
            EXPECT_EQ(d.contenu(), attendu);
        }
    }
}
