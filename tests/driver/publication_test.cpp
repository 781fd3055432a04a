#include "driver/publication.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <map>
#include <string>

#include "calendar/horloge.h"
#include "driver/etat.h"
#include "driver/travail.h"
#include "support/banc.h"

using namespace quilvane;
using namespace essai;

namespace {

using fichiers = std::map<std::string, std::string>;

constexpr const char* PAS_DE_FICHIER = "rename: No such file or directory\n";

/** A run whose four files are closed and whose log is open, in a folder. */
class Publication : public testing::Test {
protected:
    Publication() {
        initialiserEtat();
        for (const char* nom : {"recu_r", "emis", "recu_e", "recu_o"})
            d.ecrire(nom, std::string("contenu de ") + nom);
        recu = d.nom("recu");
        emis = d.nom("emis");
        log = d.nom("log");
        tmpRecu = d.nom("recu_r");
        tmpEmis = d.nom("recu_e");
        erre = d.nom("recu_o");
        name_recu = recu.c_str();
        name_emis = emis.c_str();
        name_log = log.c_str();
        name_tmp_recu = tmpRecu.c_str();
        name_tmp_emis = tmpEmis.c_str();
        name_erre = erre.c_str();
        fp_log = std::fopen(name_log, "w");
        prendre(name_tmp_recu, tenu_recu);
        prendre(name_emis, tenu_emis);
        prendre(name_tmp_emis, tenu_tmp_emis);
        prendre(name_erre, tenu_erre);
    }
    ~Publication() override {
        fermer(fp_log);
        fermerFichiers();
        relacherFichiers();
        initialiserEtat();
    }

    static void prendre(const char* nom, fichierTenu& tenu) {
        EXPECT_TRUE(tenir(nom, open(nom, O_RDONLY | O_CLOEXEC), tenu));
    }

    /** What the folder holds beside the log. */
    fichiers reste() const {
        fichiers f = d.contenu();
        f.erase("log");
        return f;
    }

    /** The log's message without its date; the date must be that of now. */
    std::string message() const {
        const std::string ligne = d.lire("log");
        const std::time_t present = maintenant();
        for (std::time_t t = present - 60; t <= present; ++t) {
            char debut[64];
            std::strftime(debut, sizeof debut, "Le %d/%m/%Y a %H:%M:%S : ", std::localtime(&t));
            if (ligne.starts_with(debut)) return ligne.substr(std::string(debut).size());
        }
        return ligne.empty() ? "" : "no date: " + ligne;
    }

    template <typename Action>
    static std::string erreurStandard(Action action) {
        testing::internal::CaptureStderr();
        action();
        return testing::internal::GetCapturedStderr();
    }

    dossier d;
    std::string recu, emis, log, tmpRecu, tmpEmis, erre;
};

}  // namespace

TEST_F(Publication, TextesDesMessages) {
    const std::string absent = "Données incorrectes ou absentes : ";
    const struct {
        const char* message;
        std::string texte;
    } messages[] = {
        {IG001, "IG001: " + absent + "impossible d'accéder au fichier de log"},
        {IG002, "IG002: " + absent + "impossible d'accéder au fichier d'erreur"},
        {IG003, "IG003: " + absent + "impossible d'accéder au fichier temporaire à traiter"},
        {IG004, "IG004: " + absent + "impossible d'accéder au fichier à émettre"},
        {IG008, "IG008: Differents formats de VSE (DOS, UNIX, MAC)"},
        {IG009, "IG009: " + absent + "impossible de renommer le fichier reçu"},
        {IG010, "IG010: " + absent + "impossible de renommer le fichier à envoyer"},
        {IG011, "IG011: " + absent + "VSE FICH n'existe pas"},
        {IG014, "IG014: Pas de VSE de base"},
        {IG015, "IG015: Présence de VSE de longueur nulle"},
        {I073, "I073 : Plus de 10000 enregistrements dans le fichier"},
        {I099, "I099 : Donnée absente : numéro du fichier émis"},
    };
    for (const auto& m : messages)
        EXPECT_EQ(m.message, latin1(m.texte));
}

TEST_F(Publication, ConsignerUneLigne) {
    consigner("IG014: Pas de VSE de base", fp_log);
    EXPECT_EQ(fp_log, nullptr);
    EXPECT_EQ(message(), "IG014: Pas de VSE de base\n");
}

TEST_F(Publication, ConsignerUnSecondMessageSePerd) {
    consigner("premier", fp_log);
    consigner("second", fp_log);
    EXPECT_EQ(message(), "premier\n");
}

TEST_F(Publication, ConsignerSansFluxNeFaitRien) {
    consigner("perdu", nullptr);
    EXPECT_NE(fp_log, nullptr);
    consigner("gardé", fp_log);
    EXPECT_EQ(message(), "gardé\n");
}

TEST_F(Publication, ConsignerDansUnAutreFluxLaisseLeLog) {
    std::FILE* const autre = std::fopen("/dev/null", "w");
    consigner("ailleurs", autre);
    ASSERT_NE(fp_log, nullptr);
    consigner("ici", fp_log);
    EXPECT_EQ(message(), "ici\n");
}

TEST_F(Publication, EmettreRemplaceLaSortie) {
    EXPECT_EQ(erreurStandard([&] { EXPECT_EQ(emettre(name_tmp_emis), 0); }), "");
    EXPECT_EQ(reste(), (fichiers{{"emis", "contenu de recu_e"},
                                 {"recu_r", "contenu de recu_r"},
                                 {"recu_o", "contenu de recu_o"}}));
    EXPECT_NE(fp_log, nullptr);
    EXPECT_EQ(d.lire("log"), "");
}

TEST_F(Publication, EmettreLeFichierDesErreursSansSortie) {
    std::filesystem::remove(emis);
    EXPECT_EQ(emettre(name_erre), 0);
    EXPECT_EQ(d.lire("emis"), "contenu de recu_o");
}

TEST_F(Publication, EmettreSousLeNomDeLEntree) {
    name_emis = name_recu;
    EXPECT_EQ(emettre(name_tmp_emis), 0);
    EXPECT_EQ(d.lire("recu"), "contenu de recu_e");
    EXPECT_TRUE(d.existe("recu_r"));
}

TEST_F(Publication, EmettreEchoueEtRendLEntree) {
    std::filesystem::remove(tmpEmis);
    d.ecrire("recu", "another file that took the name");
    EXPECT_EQ(erreurStandard([&] { EXPECT_EQ(emettre(name_tmp_emis), 1); }), PAS_DE_FICHIER);
    EXPECT_EQ(reste(), (fichiers{{"recu", "contenu de recu_r"}}));
    EXPECT_EQ(message(), std::string(IG010) + "\n");
    EXPECT_EQ(fp_log, nullptr);
}

TEST_F(Publication, EmettreSurUnDossierPlein) {
    std::filesystem::remove(emis);
    d.creerDossier("emis");
    d.ecrire("emis/occupant", "reste");
    EXPECT_EQ(erreurStandard([&] { EXPECT_EQ(emettre(name_erre), 1); }), "rename: Is a directory\n");
    EXPECT_EQ(reste(), (fichiers{{"recu", "contenu de recu_r"}, {"emis/", ""}, {"emis/occupant", "reste"}}));
    EXPECT_EQ(message(), std::string(IG010) + "\n");
}

TEST_F(Publication, EmettreEchoueDeuxFois) {
    std::filesystem::remove(tmpEmis);
    std::filesystem::remove(tmpRecu);
    d.ecrire("recu", "removed to make room");
    EXPECT_EQ(erreurStandard([&] { EXPECT_EQ(emettre(name_tmp_emis), 1); }),
              std::string(PAS_DE_FICHIER) + PAS_DE_FICHIER);
    EXPECT_EQ(reste(), fichiers{});
    EXPECT_EQ(message(), std::string(IG009) + "\n");
}

TEST_F(Publication, EntreeQuiNePeutReprendreSonNom) {
    // A folder stands where the input was: the working file is removed as well.
    d.creerDossier("recu");
    d.ecrire("recu/occupant", "reste");
    EXPECT_EQ(erreurStandard([] { nePasEmettre(); }), "rename: Is a directory\n");
    EXPECT_EQ(reste(), (fichiers{{"recu/", ""}, {"recu/occupant", "reste"}}));
    EXPECT_EQ(message(), std::string(IG009) + "\n");
}

TEST_F(Publication, NePasEmettreRendLEntree) {
    EXPECT_EQ(erreurStandard([] { nePasEmettre(); }), "");
    EXPECT_EQ(reste(), (fichiers{{"recu", "contenu de recu_r"}}));
    EXPECT_NE(fp_log, nullptr);
    EXPECT_EQ(d.lire("log"), "");
}

TEST_F(Publication, NePasEmettreSansFichiersTemporaires) {
    for (const std::string& nom : {tmpEmis, emis, erre})
        std::filesystem::remove(nom);
    EXPECT_EQ(erreurStandard([] { nePasEmettre(); }), "");
    EXPECT_EQ(reste(), (fichiers{{"recu", "contenu de recu_r"}}));
}

TEST_F(Publication, NePasEmettreEchoue) {
    std::filesystem::remove(tmpRecu);
    EXPECT_EQ(erreurStandard([] { nePasEmettre(); }), PAS_DE_FICHIER);
    EXPECT_EQ(reste(), fichiers{});
    EXPECT_EQ(message(), std::string(IG009) + "\n");
    EXPECT_EQ(fp_log, nullptr);
}

TEST_F(Publication, UnNomDeLEntreeRendueNEstPasRetire) {
    std::filesystem::create_directory(d.nom("sous"));
    std::filesystem::remove(emis);
    std::filesystem::create_symlink("recu", d.nom("lien"));
    for (const std::string& nom : {recu, d.nom("sous/../recu"), d.nom("lien")}) {
        for (const bool publier : {false, true}) {
            d.ecrire("recu_r", "entree");
            prendre(name_tmp_recu, tenu_recu);
            std::filesystem::remove(recu);
            name_emis = nom.c_str();
            erreurStandard([&] {
                if (publier)
                    emettre(d.nom("absent").c_str());
                else
                    nePasEmettre();
            });
            EXPECT_TRUE(d.existe("recu") && d.lire("recu") == "entree") << nom << publier;
            EXPECT_FALSE(d.existe("recu_e") || d.existe("recu_o") || d.existe("recu_r")) << nom << publier;
        }
    }
}

TEST_F(Publication, RenoncerDitPourquoi) {
    errno = ENOSPC;
    EXPECT_EQ(erreurStandard([] { EXPECT_EQ(renoncer(), 1); }), "rename: No space left on device\n");
    EXPECT_EQ(reste(), (fichiers{{"recu", "contenu de recu_r"}}));
    EXPECT_EQ(message(), std::string(IG010) + "\n");
}

TEST_F(Publication, RenoncerSansPouvoirRendreLEntree) {
    std::filesystem::remove(tmpRecu);
    errno = EIO;
    EXPECT_EQ(erreurStandard([] { EXPECT_EQ(renoncer(), 1); }),
              std::string("rename: Input/output error\n") + PAS_DE_FICHIER);
    EXPECT_EQ(reste(), fichiers{});
    EXPECT_EQ(message(), std::string(IG009) + "\n");
}

TEST_F(Publication, AnnulerFermeDefaitEtConsigne) {
    fp_recu = std::fopen(name_tmp_recu, "rb");
    fp_emis = std::fopen(name_tmp_emis, "w");
    fp_erre = std::fopen(name_erre, "w");
    EXPECT_EQ(erreurStandard([] { annuler(IG015); }), "");
    EXPECT_EQ(fp_recu, nullptr);
    EXPECT_EQ(fp_emis, nullptr);
    EXPECT_EQ(fp_erre, nullptr);
    EXPECT_EQ(fp_log, nullptr);
    EXPECT_EQ(reste(), (fichiers{{"recu", "contenu de recu_r"}}));
    EXPECT_EQ(message(), std::string(IG015) + "\n");
}

TEST_F(Publication, AnnulerDefaitAvantDeConsigner) {
    // The undo's own message comes first and is the one that stays.
    std::filesystem::remove(tmpRecu);
    EXPECT_EQ(erreurStandard([] { annuler(IG015); }), PAS_DE_FICHIER);
    EXPECT_EQ(message(), std::string(IG009) + "\n");
}

TEST_F(Publication, FermerFichiersLaisseLeLog) {
    fp_recu = std::fopen(name_tmp_recu, "rb");
    fermerFichiers();
    EXPECT_EQ(fp_recu, nullptr);
    EXPECT_NE(fp_log, nullptr);
    fermerFichiers();
}

TEST_F(Publication, FermerSignaleUneEcritureIncomplete) {
    std::FILE* fp = nullptr;
    EXPECT_EQ(fermer(fp), 1);
    fp = std::fopen(name_tmp_emis, "w");
    ASSERT_NE(fp, nullptr);
    std::fputs("tout", fp);
    EXPECT_EQ(fermer(fp), 1);
    EXPECT_EQ(fp, nullptr);
    EXPECT_EQ(d.lire("recu_e"), "tout");

    // The failure shows at the close, or had already shown before it.
    for (const bool avant : {false, true}) {
        fp = std::fopen("/dev/full", "w");
        ASSERT_NE(fp, nullptr);
        std::fputs("trop", fp);
        if (avant) std::fflush(fp);
        errno = 0;
        EXPECT_EQ(fermer(fp), 0) << avant;
        EXPECT_EQ(fp, nullptr);
        EXPECT_NE(errno, 0) << avant;
    }
}
