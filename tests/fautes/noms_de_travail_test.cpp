/**
 * An output that is given the name of one of the run's own files: nothing is
 * lost, whatever happens.
 */
#include <gtest/gtest.h>

#include "fautes/fautes.h"

using namespace essai;

namespace {

constexpr const char* ABSENT = "rename: No such file or directory\n";
constexpr const char* OCCUPE = "rename: Device or resource busy\n";

struct attente {
    int statut;
    contenu fichiers;
    std::string erreur;
};

void verifier(const passage& p, const std::string& out, const attente& a, const std::string& faute = "") {
    SCOPED_TRACE(std::string(p.nom) + ", output " + out + ", " + faute);
    const dossier d;
    const temoin t;
    d.ecrire("in", p.octets);
    const resultat r = lancer(d, {"in", out, "log"}, t.sous(faute));
    EXPECT_EQ(r.statut, a.statut);
    EXPECT_EQ(r.sortie, "");
    EXPECT_EQ(r.erreur, a.erreur);
    EXPECT_EQ(d.contenu(), a.fichiers);
    EXPECT_EQ(t.atteint(), !faute.empty());
    EXPECT_EQ(t.ouverts(), std::vector<std::string>{});
}

attente rendu(const passage& p) {
    return {p.statut == 0 ? 0 : 1, {{"in", p.octets}, {"log", ligneLog(LOG_IG010)}}, ABSENT};
}

}  // namespace

TEST(NomsDeTravail, SortieSousUnNomDeTravail) {
    for (const passage& p : passages()) {
        for (const std::string suffixe : {"_r", "_e", "_o"}) {
            const std::string out = "in" + suffixe;
            // The result is removed to make room for itself; the input comes back.
            if (suffixe == p.travail)
                verifier(p, out, rendu(p));
            else
                verifier(p, out, {p.statut, laisse(p, "in", out), ""});
        }
    }
}

TEST(NomsDeTravail, ReussiteApresUnAncienFichier) {
    // The same when the names were taken before.
    for (const passage& p : passages()) {
        for (const std::string suffixe : {"_r", "_e", "_o"}) {
            const std::string out = "in" + suffixe;
            SCOPED_TRACE(std::string(p.nom) + ", output " + out);
            const dossier d;
            for (const char* nom : {"in_r", "in_e", "in_o"})
                d.ecrire(nom, ANCIEN);
            d.ecrire("in", p.octets);
            attente a = suffixe == p.travail ? rendu(p) : attente{p.statut, laisse(p, "in", out), ""};
            a.fichiers["in_r.~1~"] = ANCIEN;
            const resultat r = lancer(d, {"in", out, "log"});
            EXPECT_EQ(r.statut, a.statut);
            EXPECT_EQ(r.erreur, a.erreur);
            EXPECT_EQ(d.contenu(), a.fichiers);
        }
    }
}

TEST(NomsDeTravail, PublicationImpossible) {
    for (const passage& p : passages()) {
        if (p.publie.empty()) continue;
        for (const char* out : {"in", "in_r", "in_e", "in_o"}) {
            attente a = rendu(p);
            a.erreur = OCCUPE;
            verifier(p, out, a, "rename:1:refuser");
        }
    }
}

TEST(NomsDeTravail, ResultatIncomplet) {
    for (const passage& p : passages()) {
        if (p.publie.empty()) continue;
        for (const char* out : {"in", "in_r", "in_e", "in_o"}) {
            attente a = rendu(p);
            a.statut = 1;
            a.erreur = "rename: Input/output error\n";
            verifier(p, out, a, "fwrite:3:toujours");
        }
    }
}
