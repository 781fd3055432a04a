/**
 * What surrounds a run: language, time zone, clock. Only the stamps may change.
 */
#include <gtest/gtest.h>

#include "support/attendu.h"
#include "support/generateur.h"

using namespace essai;

namespace {

using contenu = std::map<std::string, std::string>;

/** Everything that a run can print or leave, with its accents. */
struct image {
    std::vector<int> statuts;
    std::vector<std::string> textes;
    bool operator==(const image&) const = default;
};

image photographier(const options& o) {
    std::string tab = acti();
    poser(tab, 126, "\t");
    const std::string octets = fichier({fich(2), acti(), tab});
    commande melange;
    melange.graine = 5;
    melange.nombre = 60;
    melange.fautes = 40;
    image r;
    const auto ajouter = [&](const dossier& d, const std::vector<std::string>& arguments) {
        const resultat s = lancer(d, arguments, o);
        r.statuts.push_back(s.statut);
        r.textes.insert(r.textes.end(), {s.sortie, s.erreur});
        for (const auto& [nom, contenuDe] : d.contenu())
            r.textes.insert(r.textes.end(), {nom, contenuDe});
    };
    for (const char* option : {"-i", "-d"}) {
        const dossier d;
        d.ecrire("in", octets);
        ajouter(d, {option, "in", "out", "log"});
    }
    const dossier d;
    ajouter(d, {"-x"});
    ajouter(d, {"in", "out", "log"});  // perror and log line
    d.ecrire("in", fichier({fich(1), ""}));
    ajouter(d, {"in", "out", "log"});  // log line only
    d.ecrire("in", fichier({fich(1), acti()}));
    ajouter(d, {"in", "nulle/out", "log"});
    d.ecrire("in", fichierGenere(melange));
    ajouter(d, {"in", "out", "log"});
    return r;
}

/** A run at `instant` (seconds since 1970), whatever the time zone. */
options alInstant(const std::string& zone, const std::string& instant) {
    options o;
    o.horloge = instant;
    o.milieu = {{"TZ", zone}, {"FAKETIME_FMT", "%s"}};
    return o;
}

}  // namespace

TEST(Milieu, LaLangueNeChangeRien) {
    const image attendue = photographier({});
    EXPECT_EQ(attendue.statuts, (std::vector<int>{2, 2, 3, 1, 1, 1, 2}));
    for (const char* langue :
         {"fr_FR.UTF-8", "C.UTF-8", "fr_FR.ISO-8859-1", "tr_TR.UTF-8", "POSIX", "", "nulle"}) {
        options o;
        o.milieu = {{"LANG", langue}, {"LC_ALL", langue}, {"LANGUAGE", "fr"}};
        EXPECT_TRUE(photographier(o) == attendue) << "LANG=" << langue;
    }
}

TEST(Milieu, LeFuseauNeChangeQueLesEstampilles) {
    struct cas {
        const char* zone;
        const char* instant;
        const char* estampille;  // footer of the error records
        const char* date;        // start of the log line
    };
    const std::vector<cas> CAS = {
        {"UTC", "1710588153", "16032024112233", "Le 16/03/2024 a 11:22:33 : "},
        {"Europe/Paris", "1710588153", "16032024122233", "Le 16/03/2024 a 12:22:33 : "},
        {"Pacific/Auckland", "1710588153", "17032024002233", "Le 17/03/2024 a 00:22:33 : "},
        {"America/Guadeloupe", "1710588153", "16032024072233", "Le 16/03/2024 a 07:22:33 : "},
        {"CET-1CEST,M3.5.0,M10.5.0", "1721042553", "15072024132233", "Le 15/07/2024 a 13:22:33 : "},
        {"Nulle/Part", "1710588153", "16032024112233", "Le 16/03/2024 a 11:22:33 : "},
        {"UTC", "1735689599", "31122024235959", "Le 31/12/2024 a 23:59:59 : "},
        {"Europe/Paris", "1735689599", "01012025005959", "Le 01/01/2025 a 00:59:59 : "},
        {"UTC", "1104635045", "02012005030405", "Le 02/01/2005 a 03:04:05 : "},
    };
    std::string faux = acti();
    poser(faux, 256, "#");
    const std::string octets = fichier({fich(1), faux});
    const std::string attendu =
        fichierErreurs(fich(1), {1, 1, 0}, {erre(faux, {94}, clesExploitation(faux))});
    for (const cas& c : CAS) {
        SCOPED_TRACE(std::string(c.zone) + " " + c.instant);
        const dossier d;
        d.ecrire("in", octets);
        EXPECT_EQ(lancer(d, {"in", "out", "log"}, alInstant(c.zone, c.instant)).statut, 2);
        std::string out = attendu;
        for (const std::size_t debut : {230U, 257U + 230U})
            out.replace(debut, 14, c.estampille);
        EXPECT_EQ(d.contenu(), (contenu{{"out", out}, {"log", ""}}));

        // An accepted file carries the stamps that it came with.
        d.ecrire("in", fichier({fich(1), acti()}));
        EXPECT_EQ(lancer(d, {"in", "out", "log"}, alInstant(c.zone, c.instant)).statut, 0);
        EXPECT_EQ(d.contenu(), (contenu{{"out", fichierEmis(fich(1), 1, {acti()})}, {"log", ""}}));

        EXPECT_EQ(lancer(d, {"in", "out", "log"}, alInstant(c.zone, c.instant)).statut, 1);
        EXPECT_EQ(d.lire("log"), c.date + latin1(LOG_IG003) + "\n");
    }
}

TEST(Milieu, UneHorlogeQuiAvance) {
    // This clock runs 20000 times as fast as the true one: the error file's FICH
    // record is stamped when it is written, its error records with the start.
    const int n = 40;
    std::vector<std::string> records = {fich(n)};
    for (int i = 0; i < n; ++i) {
        records.push_back(acti());
        poser(records.back(), 256, "#");
    }
    const dossier d;
    d.ecrire("in", fichier(records));
    options o;
    o.horloge = "@2024-03-16 11:22:33 x20000";
    ASSERT_EQ(lancer(d, {"in", "out", "log"}, o).statut, 2);
    const std::string out = d.lire("out");
    ASSERT_EQ(out.size(), 257U * (n + 1));
    const std::string depart = out.substr(257 + 230, 14);
    EXPECT_EQ(depart.substr(0, 8), "16032024");
    for (std::size_t i = 2; i <= n; ++i)
        EXPECT_EQ(out.substr(257 * i + 230, 14), depart) << i;
    EXPECT_EQ(out.substr(230, 8), "16032024");
    EXPECT_GT(out.substr(238, 6), depart.substr(8));
    EXPECT_EQ(out.substr(244, 12), "025        *");
}

TEST(Milieu, LesOctetsDUneLigneDeLog) {
    const dossier d;
    d.ecrire("in", fichier({fich(1), ""}));
    EXPECT_EQ(lancer(d, {"in", "out", "log"}).statut, 1);
    EXPECT_EQ(d.lire("log"), "Le 16/03/2024 a 11:22:33 : IG015: Pr\xE9sence de VSE de longueur nulle\n");
    d.ecrire("in", fichier({acti()}));
    EXPECT_EQ(lancer(d, {"in", "out", "log"}).statut, 1);
    EXPECT_EQ(d.lire("log"),
              "Le 16/03/2024 a 11:22:33 : IG011: Donn\xE9"
              "es incorrectes ou absentes : VSE FICH n'existe pas\n");
    EXPECT_EQ(lancer(d, {"nulle", "out", "log"}).statut, 1);
    EXPECT_EQ(d.lire("log"),
              "Le 16/03/2024 a 11:22:33 : IG003: Donn\xE9"
              "es incorrectes ou absentes : impossible d'acc\xE9"
              "der au fichier temporaire \xE0 traiter\n");
}

TEST(Milieu, LesAutresVariablesNeComptentPas) {
    const image attendue = photographier({});
    options o;
    o.milieu = {
        {"POSIXLY_CORRECT", "1"}, {"HOME", "/nulle"}, {"OPTIND", "2"}, {"TMP", "/nulle"}, {"TEMP", "/nulle"}};
    EXPECT_TRUE(photographier(o) == attendue);
}
