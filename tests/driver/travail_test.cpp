#include "driver/travail.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <map>
#include <string>

#include "support/banc.h"

using namespace quilvane;
using namespace essai;
namespace fs = std::filesystem;

namespace {

using fichiers = std::map<std::string, std::string>;

/** A lock of another run. */
struct verrou {
    int fd;
    explicit verrou(const std::string& nom, int genre = LOCK_EX)
        : fd(open(nom.c_str(), O_RDONLY | O_CLOEXEC)) {
        EXPECT_EQ(flock(fd, genre | LOCK_NB), 0);
    }
    ~verrou() { close(fd); }
    verrou(const verrou&) = delete;
    verrou& operator=(const verrou&) = delete;
};

/** A held input "in", and the name of a temporary file. */
class Travail : public testing::Test {
protected:
    Travail() : in(d.nom("in")), r(d.nom("in_r")), e(d.nom("in_e")) {
        d.ecrire("in", "entree");
        EXPECT_TRUE(tenirEntree(in.c_str()));
    }
    ~Travail() override { relacherFichiers(); }

    /** Makes the temporary file; 0 or why it could not be. */
    int ouvrir() {
        errno = 0;
        std::FILE* const fp = ouvrirTravail(e.c_str(), tenu_tmp_emis);
        if (fp == nullptr) return errno;
        std::fputs("resultat", fp);
        std::fclose(fp);
        return 0;
    }
    int renommer() {
        errno = 0;
        return renommerEntree(in.c_str(), r.c_str()) ? 0 : errno;
    }
    int sortir(const std::string& nom) {
        errno = 0;
        return ouvrirSortie(d.nom(nom).c_str()) ? 0 : errno;
    }

    dossier d;
    std::string in, r, e;
};

}  // namespace

TEST_F(Travail, UnFichierEstFaitEtTenuJusquALaFin) {
    EXPECT_EQ(ouvrir(), 0);
    EXPECT_EQ(d.contenu(), (fichiers{{"in", "entree"}, {"in_e", "resultat"}}));
    EXPECT_TRUE(estTenu(e.c_str(), tenu_tmp_emis));
    EXPECT_TRUE(synchroniser(tenu_tmp_emis));
    // Closing the stream did not let go of it: another run fails.
    fichierTenu voisin;
    EXPECT_EQ(ouvrirTravail(e.c_str(), voisin), nullptr);
    EXPECT_EQ(errno, EWOULDBLOCK);
    EXPECT_EQ(d.lire("in_e"), "resultat");
    relacher(tenu_tmp_emis);
    std::FILE* const fp = ouvrirTravail(e.c_str(), voisin);
    ASSERT_NE(fp, nullptr);
    std::fclose(fp);
    EXPECT_EQ(d.lire("in_e"), "");
    relacher(voisin);
}

TEST_F(Travail, CeQuiResteSousLeNomEstRetireMaisNonSaCible) {
    d.ecrire("victime", "gardee");
    const std::string victime = d.nom("victime");
    d.ecrire("in_e", "reste");
    EXPECT_EQ(ouvrir(), 0);
    for (const bool dur : {false, true}) {
        relacher(tenu_tmp_emis);
        fs::remove(e);
        if (dur)
            fs::create_hard_link(victime, e);
        else
            fs::create_symlink("victime", e);
        EXPECT_EQ(ouvrir(), 0);
        EXPECT_EQ(d.contenu(), (fichiers{{"in", "entree"}, {"in_e", "resultat"}, {"victime", "gardee"}}));
        EXPECT_FALSE(fs::is_symlink(e));
    }
    relacher(tenu_tmp_emis);
    fs::remove(e);
    fs::create_symlink("nulle part", e);
    EXPECT_EQ(ouvrir(), 0);
}

TEST_F(Travail, CeQuiNePeutEtreRetire) {
    d.creerDossier("in_e");
    EXPECT_EQ(ouvrir(), EISDIR);
    fs::remove(e);
    ASSERT_EQ(mkfifo(e.c_str(), 0600), 0);
    EXPECT_EQ(ouvrir(), ENOTSUP);
    fs::remove(e);
    e = d.nom("nulle/in_e");
    EXPECT_EQ(ouvrir(), ENOENT);
    e = "";
    EXPECT_EQ(ouvrir(), ENOENT);
    EXPECT_EQ(tenu_tmp_emis.fd, -1);
}

TEST_F(Travail, UnNomQuiDesigneLEntreeEchoue) {
    fs::create_symlink("in", e);
    EXPECT_EQ(ouvrir(), EEXIST);
    fs::remove(e);
    fs::create_hard_link(in, e);
    EXPECT_EQ(ouvrir(), EEXIST);
    EXPECT_EQ(renommer(), 0);
    fs::remove(e);
    fs::create_symlink("in_r", e);
    EXPECT_EQ(ouvrir(), EEXIST);
    EXPECT_EQ(d.lire("in_r"), "entree");
}

TEST_F(Travail, CeQuUnAutreTientEchoue) {
    d.ecrire("in_e", "au voisin");
    {
        const verrou v(e);
        EXPECT_EQ(ouvrir(), EWOULDBLOCK);
        EXPECT_EQ(d.lire("in_e"), "au voisin");
    }
    fs::remove(e);
    fs::create_symlink("in_e2", e);
    {
        const verrou v(d.chemin);  // while another run removes a link in this folder
        EXPECT_EQ(ouvrir(), EWOULDBLOCK);
        EXPECT_TRUE(fs::is_symlink(e));
    }
    EXPECT_EQ(ouvrir(), 0);
}

TEST_F(Travail, LaSortieSousUnNomDeTravail) {
    EXPECT_EQ(sortir("in_e"), 0);
    EXPECT_EQ(ouvrir(), 0);
    EXPECT_FALSE(estTenu(e.c_str(), tenu_emis));
    EXPECT_TRUE(estTenu(e.c_str(), tenu_tmp_emis));
}

TEST_F(Travail, RenommerSansRienPerdre) {
    EXPECT_EQ(renommer(), 0);
    EXPECT_EQ(d.contenu(), (fichiers{{"in_r", "entree"}}));
    EXPECT_TRUE(estTenu(r.c_str(), tenu_recu));
    relacherFichiers();
    d.ecrire("in", "deux");
    d.ecrire("in_r.~2~", "occupe");
    ASSERT_TRUE(tenirEntree(in.c_str()));
    EXPECT_EQ(renommer(), 0);
    relacherFichiers();
    d.ecrire("in", "trois");
    ASSERT_TRUE(tenirEntree(in.c_str()));
    EXPECT_EQ(renommer(), 0);
    EXPECT_EQ(
        d.contenu(),
        (fichiers{{"in_r", "trois"}, {"in_r.~1~", "entree"}, {"in_r.~2~", "occupe"}, {"in_r.~3~", "deux"}}));
}

TEST_F(Travail, RenommerEcarteAussiUnLien) {
    d.ecrire("cible", "gardee");
    for (const char* cible : {"cible", "nulle part", "in"}) {
        fs::create_symlink(cible, r);
        EXPECT_EQ(renommer(), 0) << cible;
        EXPECT_EQ(fs::read_symlink(d.nom("in_r.~1~")), cible);
        EXPECT_EQ(d.lire("in_r"), "entree");
        fs::remove(d.nom("in_r.~1~"));
        fs::rename(r, in);
    }
    fs::create_hard_link(in, r);
    EXPECT_EQ(renommer(), 0);
    EXPECT_EQ(d.contenu(), (fichiers{{"cible", "gardee"}, {"in_r", "entree"}, {"in_r.~1~", "entree"}}));
}

TEST_F(Travail, RenommerEchoue) {
    d.ecrire("in_r", "entree d'un voisin");
    {
        const verrou v(r);
        EXPECT_EQ(renommer(), EWOULDBLOCK);
    }
    EXPECT_EQ(d.contenu(), (fichiers{{"in", "entree"}, {"in_r", "entree d'un voisin"}}));
    fs::remove(r);
    d.creerDossier("in_r");
    EXPECT_EQ(renommer(), EISDIR);
    r = d.nom("nulle/in_r");
    EXPECT_EQ(renommer(), ENOENT);
    const std::string longNom(255, 'a');  // no room for a number
    d.ecrire(longNom, "reste");
    r = d.nom(longNom);
    EXPECT_EQ(renommer(), ENAMETOOLONG);
    EXPECT_EQ(d.lire("in"), "entree");
    EXPECT_EQ(d.lire(longNom), "reste");
}

TEST_F(Travail, OuvrirLEntreeQuiFutEprouvee) {
    EXPECT_EQ(renommer(), 0);
    std::FILE* const fp = ouvrirEntree(r.c_str());
    ASSERT_NE(fp, nullptr);
    std::fclose(fp);
    fs::rename(r, in);
    EXPECT_EQ(ouvrirEntree(r.c_str()), nullptr);
    EXPECT_EQ(errno, ENOENT);
    d.ecrire("in_r", "entree");
    EXPECT_EQ(ouvrirEntree(r.c_str()), nullptr);
    EXPECT_EQ(errno, ESTALE);
}

TEST_F(Travail, UneEntreeVerrouilleeParQuiALanceLaCourse) {
    relacherFichiers();
    const verrou v(in);
    EXPECT_TRUE(tenirEntree(in.c_str()));
    EXPECT_EQ(renommer(), 0);
}

TEST_F(Travail, LaSortieEstVidee) {
    EXPECT_EQ(sortir("out"), 0);
    d.ecrire("autre", "ancien");
    fs::create_symlink("autre", d.nom("lien"));
    EXPECT_EQ(sortir("lien"), 0);
    EXPECT_TRUE(estTenu(d.nom("lien").c_str(), tenu_emis));
    EXPECT_FALSE(estTenu(d.nom("autre").c_str(), tenu_emis));
    EXPECT_EQ(sortir("in"), 0);
    EXPECT_EQ(d.contenu(), (fichiers{{"in", "entree"}, {"out", ""}, {"autre", ""}, {"lien", ""}}));
}

TEST_F(Travail, LaSortieNEstPasLeFichierDunVoisin) {
    d.ecrire("out", "au voisin");
    {
        const verrou v(d.nom("out"));
        EXPECT_EQ(sortir("out"), EWOULDBLOCK);
        EXPECT_EQ(d.lire("out"), "au voisin");
    }
    const verrou v(d.nom("out"), LOCK_SH);  // an output of both
    EXPECT_EQ(sortir("out"), 0);
    EXPECT_EQ(d.lire("out"), "");
}

TEST_F(Travail, NiTubeNiDossier) {
    ASSERT_EQ(mkfifo(d.nom("tube").c_str(), 0600), 0);
    const std::string tube = d.nom("tube");
    EXPECT_FALSE(estFichierOuDossier(tube.c_str()));
    EXPECT_EQ(errno, ENOTSUP);
    EXPECT_TRUE(estFichierOuDossier(d.chemin.c_str()));
    EXPECT_TRUE(estFichierOuDossier(in.c_str()));
    EXPECT_TRUE(estFichierOuDossier(d.nom("absent").c_str()));
    EXPECT_FALSE(tenirEntree(tube.c_str()));
    EXPECT_EQ(errno, ENOTSUP);
    EXPECT_EQ(sortir("tube"), ENXIO);
    const int lecteur = open(tube.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(sortir("tube"), ENOTSUP);
    close(lecteur);
    d.creerDossier("sous");
    EXPECT_EQ(sortir("sous"), EISDIR);
}

TEST_F(Travail, LeLog) {
    d.ecrire("log", "ancien");
    std::FILE* const fp = ouvrirLog(d.nom("log").c_str());
    ASSERT_NE(fp, nullptr);
    std::fclose(fp);
    EXPECT_EQ(d.lire("log"), "");
    EXPECT_EQ(ouvrirLog(d.chemin.c_str()), nullptr);
    EXPECT_EQ(errno, EISDIR);
    ASSERT_EQ(mkfifo(d.nom("tube").c_str(), 0600), 0);
    EXPECT_EQ(ouvrirLog(d.nom("tube").c_str()), nullptr);
    EXPECT_EQ(errno, ENXIO);
}

TEST_F(Travail, RetirerCeQuiEstTenuSeulement) {
    EXPECT_EQ(ouvrir(), 0);
    fs::rename(e, d.nom("ailleurs"));
    retirer(e.c_str(), tenu_tmp_emis);
    d.ecrire("in_e", "au voisin");
    retirer(e.c_str(), tenu_tmp_emis);
    EXPECT_EQ(d.lire("in_e"), "au voisin");
    retirer(d.nom("ailleurs").c_str(), tenu_tmp_emis);
    EXPECT_FALSE(d.existe("ailleurs"));
    retirer(e.c_str(), fichierTenu{});
    EXPECT_TRUE(d.existe("in_e"));
}

TEST_F(Travail, Synchroniser) {
    EXPECT_FALSE(synchroniser(fichierTenu{}));
    synchroniserDossier(e.c_str());
    synchroniserDossier("sans dossier");
    synchroniserDossier(d.nom("nulle/fichier").c_str());
    synchroniserDossier((std::string(5000, 'a') + "/b").c_str());
    EXPECT_EQ(d.contenu(), (fichiers{{"in", "entree"}}));
}
