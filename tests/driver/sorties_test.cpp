#include "driver/sorties.h"

#include <gtest/gtest.h>
#include <stdio_ext.h>

#include <cstring>
#include <string>

#include "calendar/horloge.h"
#include "driver/etat.h"
#include "support/champ.h"
#include "support/modeles.h"

using namespace quilvane;
using namespace essai;

namespace {

class Sorties : public testing::Test {
protected:
    Sorties() {
        initialiserEtat();
        commencer(l);
        fp_emis = std::tmpfile();
        fp_erre = std::tmpfile();
        std::strcpy(l.VSEDate, ESTAMPILLE);
        const std::string f = fich(1);
        remplir(valFichEnteteVSE[E3], colonnes(f, 3, 10));
        remplir(valFichEnteteVSE[E4], colonnes(f, 11, 18));
        remplir(valFichCorpsVSE[C1], colonnes(f, 63, 78));
        remplir(valFichFinVSE[F1], colonnes(f, 231, 256));
    }
    ~Sorties() override {
        std::fclose(fp_emis);
        std::fclose(fp_erre);
        initialiserEtat();
        leStore = {};
    }

    static std::string contenu(std::FILE* fp) {
        std::string r;
        std::rewind(fp);
        for (int c; (c = std::getc(fp)) != EOF;)
            r += static_cast<char>(c);
        return r;
    }

    lot l;
};

/** Whether the text is the stamp of some second between two times. */
bool estampilleEntre(const std::string& texte, std::time_t avant, std::time_t apres) {
    for (std::time_t t = avant; t <= apres; ++t) {
        char attendu[64];
        if (std::strftime(attendu, sizeof attendu, "%d%m%Y%H%M%S025        *", std::localtime(&t)) > 0 &&
            texte == attendu)
            return true;
    }
    return false;
}

}  // namespace

TEST_F(Sorties, GrandsBlocsSansVerrouEtPlaceDeLaFICH) {
    preparerSorties();
    for (std::FILE* const fp : {fp_emis, fp_erre}) {
        EXPECT_EQ(__fbufsize(fp), 65536U);
        EXPECT_EQ(__fsetlocking(fp, FSETLOCKING_QUERY), FSETLOCKING_BYCALLER);
    }
    // Each its own block: what one writes is not the other's.
    std::fputs("emis", fp_emis);
    std::fputs("erre", fp_erre);
    EXPECT_EQ(contenu(fp_emis), blancs(256) + "emis");
    EXPECT_EQ(contenu(fp_erre), blancs(256) + "erre");
}

TEST_F(Sorties, ChaqueAjoutVaDansSonFichier) {
    preparerSorties();
    ajouts a;
    ecrireAjouts(a);  // nothing
    a.emis.texte("\nun record");
    ecrireAjouts(a);
    EXPECT_EQ(a.emis.longueur, 0U);
    ecrireAjouts(a);  // not twice
    ajouts b;
    b.erre.texte("\nune erreur\n");
    b.erre.octets("\0", 1);
    ecrireAjouts(b);
    EXPECT_EQ(contenu(fp_emis), blancs(256) + "\nun record");
    EXPECT_EQ(contenu(fp_erre), blancs(256) + "\nune erreur\n" + std::string(1, '\0'));
}

TEST_F(Sorties, LaFICHPrendSaPlaceDansLeFichierAPublier) {
    for (const bool valide : {true, false}) {
        std::fclose(fp_emis);
        std::fclose(fp_erre);
        fp_emis = std::tmpfile();
        fp_erre = std::tmpfile();
        preparerSorties();
        ajouts a;
        a.emis.texte("\nemis");
        a.erre.texte("\nerre");
        ecrireAjouts(a);
        l.nombreDeVSE = 3;
        l.nbVSE_Err = valide ? 0 : 2;
        ligneVSE attendue;
        const std::time_t avant = maintenant();
        ecrireVSEFICH(l, valide);
        const std::time_t apres = maintenant();
        const std::string publie = contenu(valide ? fp_emis : fp_erre);
        const std::string autre = contenu(valide ? fp_erre : fp_emis);
        EXPECT_EQ(autre, blancs(256) + (valide ? "\nerre" : "\nemis"));
        if (valide) {
            faireVSEFICHOk(attendue, l);
        } else {
            // The stamp is the time of writing, not that of the run.
            faireVSEFICHNok(attendue, l, "");
            const std::string moment = publie.substr(attendue.longueur, 26);
            EXPECT_TRUE(estampilleEntre(moment, avant, apres)) << publie;
            attendue.texte(moment.c_str());
        }
        const std::string f(attendue.tampon, attendue.longueur);
        // A shorter record leaves the rest of its place blank.
        EXPECT_LT(f.size(), 256U);
        EXPECT_EQ(publie, f + std::string(256 - f.size(), ' ') + (valide ? "\nemis" : "\nerre"));
    }
}
