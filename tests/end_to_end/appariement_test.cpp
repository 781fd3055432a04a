#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/modeles.h"

using namespace essai;

namespace {

/** A correct EXP2 of kind MOD. */
std::string exp2Mod() {
    return avec(exp2(), {{19, "MOD"}, {97, "FR"}, {99, "078000001111"}, {149, "01022024"}});
}

std::string fausse(const std::string& record) { return avec(record, {{256, " "}}); }

/** The error record of an EXP1 or EGET whose companion did not come. */
std::string orpheline(const std::string& record) {
    return colonnes(record, 22, 25) == "EXP1" ? vseErreurC1C2(record, {105})
                                              : vseErreurSansCle(record, {138});
}

}  // namespace

TEST(Appariement, PairesCompletes) {
    const std::vector<std::vector<std::string>> fichiers = {
        {exp1(), exp2()},
        {eget(), rata()},
        {acti(), exp1(), exp2(), eget(), rata(), exp1("78654321    "), exp2("78654321    "), acti()},
        // Only creations wait for a companion, and a companion may come alone.
        {exp2(), rata(), exp2Mod()},
        {avec(exp1(), {{19, "INV"}}), acti(), avec(eget(), {{19, "INV"}}), acti()},
    };
    for (const auto& messages : fichiers) {
        for (const char* fin : {"\n", "\r\n"}) {
            const int n = static_cast<int>(messages.size());
            std::vector<std::string> entree = {fich(n)};
            std::vector<std::string> sortie = {fichEmise(fich(n), n)};
            for (const std::string& m : messages) {
                entree.push_back(m);
                sortie.push_back(emise(m));
            }
            verifierPublie(std::to_string(n) + " messages", fichier(entree, fin), 0, sortie, fin);
        }
    }
}

TEST(Appariement, CompagnonQuiNeVientPas) {
    const std::string autre = exp1("78654321    ");
    const std::string exp2Faux = fausse(exp2());
    const std::string exp2ModFaux = fausse(exp2Mod());
    const std::string rataMod = avec(rata(), {{19, "MOD"}, {94, "FR"}, {96, LIEN_EXP}, {116, "01022024"}});
    const std::string inconnue = avec(exp2(), {{22, "XXXX"}});
    const struct {
        const char* nom;
        std::vector<std::string> messages;
        std::vector<std::string> erreurs;  // in the order of the file
    } cas[] = {
        {"another type", {exp1(), acti()}, {orpheline(exp1())}},
        {"another type", {eget(), acti()}, {orpheline(eget())}},
        {"wrong order", {exp2(), exp1()}, {orpheline(exp1())}},
        {"wrong order", {rata(), eget()}, {orpheline(eget())}},
        {"one record between", {exp1(), acti(), exp2()}, {orpheline(exp1())}},
        {"companion of the other pair",
         {exp1(), rata(), eget(), exp2()},
         {orpheline(exp1()), orpheline(eget())}},
        {"kind of EXP2", {exp1(), exp2Mod()}, {orpheline(exp1())}},
        {"kind of EXP2, in error itself",
         {exp1(), exp2ModFaux},
         {vseErreurC1C2(exp2ModFaux, {94}), orpheline(exp1())}},
        {"kind of RATA", {eget(), rataMod}, {orpheline(eget())}},
        {"link of EXP2", {exp1(), exp2("78654321    ")}, {orpheline(exp1())}},
        {"link of RATA", {eget(), rata("IGA13       ")}, {orpheline(eget())}},
        {"missing in the middle", {acti(), exp1(), acti(), acti()}, {orpheline(exp1())}},
        {"missing at the end", {acti(), exp1()}, {orpheline(exp1())}},
        {"missing at the end", {acti(), eget()}, {orpheline(eget())}},
        {"two EXP1, one EXP2", {exp1(), autre, exp2("78654321    ")}, {orpheline(exp1())}},
        {"two EXP1, the EXP2 of the first", {exp1(), autre, exp2()}, {orpheline(exp1()), orpheline(autre)}},
        {"two EXP1 and no EXP2", {exp1(), autre}, {orpheline(exp1()), orpheline(autre)}},
        {"three EGET", {eget(), eget(), eget()}, {orpheline(eget()), orpheline(eget()), orpheline(eget())}},
        {"EXP1 between EGET and RATA", {eget(), exp1(), rata()}, {orpheline(eget()), orpheline(exp1())}},
        {"unknown type", {exp1(), inconnue}, {vseErreurInconnue(inconnue, {85, 86}), orpheline(exp1())}},
        {"second FICH record",
         {exp1(), fich(1), acti()},
         {vseErreurInconnue(fich(1), {109}), orpheline(exp1())}},
        // A record in error waits for nothing.
        {"EXP1 in error, no EXP2", {fausse(exp1()), acti()}, {vseErreurC1C2(fausse(exp1()), {94})}},
        {"EXP1 in error at the end", {acti(), fausse(exp1())}, {vseErreurC1C2(fausse(exp1()), {94})}},
        {"EGET in error and its RATA", {fausse(eget()), rata()}, {vseErreurSansCle(fausse(eget()), {94})}},
        // A companion in error is a companion.
        {"EXP2 in error", {exp1(), exp2Faux}, {vseErreurC1C2(exp2Faux, {94})}},
        {"RATA in error", {eget(), fausse(rata())}, {vseErreurSansCle(fausse(rata()), {94})}},
        {"EXP2 in error by its holding",
         {exp1(), exp2(blancs(12))},
         {vseErreurC1C2(exp2(blancs(12)), {31, 68, 50}), orpheline(exp1())}},
        // The error of the record before is not carried further.
        {"error before an EXP1", {fausse(acti()), exp1(), exp2()}, {vseErreurC1C2(fausse(acti()), {94})}},
    };
    for (const auto& c : cas) {
        for (const char* fin : {"\n", "\r\n"}) {
            const int n = static_cast<int>(c.messages.size());
            const int e = static_cast<int>(c.erreurs.size());
            std::vector<std::string> entree = {fich(n)};
            entree.insert(entree.end(), c.messages.begin(), c.messages.end());
            std::vector<std::string> sortie = {fichErreur(fich(n), e, n, n - e)};
            sortie.insert(sortie.end(), c.erreurs.begin(), c.erreurs.end());
            verifierPublie(c.nom, fichier(entree, fin), 2, sortie, fin);
        }
    }
}

TEST(Appariement, CompagnonCoupeDansC2) {
    // A slot cut short is written short: `n` columns are missing where it stands.
    const auto expCoupe = [](std::size_t n, const std::string& c2, const std::vector<int>& codes) {
        return vseErreur(exp2(), codes, "FR", c2, "FR" + c2)
            .erase(99 + c2.size(), n)
            .erase(71 + c2.size(), n);
    };
    const struct {
        const char* nom;
        std::string premier;
        std::string compagnon;
        std::string erreur;  // of the companion
        bool complet;        // the pair is
    } cas[] = {
        // The companion's C2 is compared whole: cut short it is another one.
        {"EXP2 cut in C2", exp1(), exp2().substr(0, 70),
         expCoupe(6, "781234", {108, 68, 30, 30, 22, 90, 91, 94}), false},
        {"EXP2 cut before C2", exp1(), exp2().substr(0, 64),
         expCoupe(12, "", {108, 68, 50, 30, 30, 22, 90, 91, 94}), false},
        {"RATA cut in C2", eget(), rata().substr(0, 75),
         vseErreurSansCle(rata(), {108, 140, 50, 131, 31, 68, 148, 90, 91, 94}).erase(82, 1), false},
        // Cut behind C2 it is the companion, although in error.
        {"EXP2 cut behind C2", exp1(), exp2().substr(0, 76),
         vseErreurC1C2(exp2(), {108, 30, 30, 22, 90, 91, 94}), true},
    };
    for (const auto& c : cas) {
        std::vector<std::string> sortie = {fichErreur(fich(2), 2, 2, 0), c.erreur, orpheline(c.premier)};
        if (c.complet) sortie = {fichErreur(fich(2), 1, 2, 1), c.erreur};
        verifierPublie(c.nom, fichier({fich(2), c.premier, c.compagnon}), 2, sortie);
    }
}

TEST(Appariement, LigneEnCRSeul) {
    const std::string saut = "ligne sans suite\r";
    const struct {
        const char* nom;
        std::string messages;
        int recus, enErreur;
        std::vector<std::string> erreurs;
    } cas[] = {
        // The pairing error of the record before is counted again.
        {"after a pairing error",
         exp1() + "\n" + acti() + "\n" + saut + acti() + "\n",
         4,
         2,
         {orpheline(exp1())}},
        {"two of them", exp1() + "\n" + acti() + "\n" + saut + saut, 4, 3, {orpheline(exp1())}},
        {"one record later", exp1() + "\n" + acti() + "\n" + acti() + "\n" + saut, 4, 1, {orpheline(exp1())}},
        // A field error is not.
        {"after a field error",
         fausse(acti()) + "\n" + saut + acti() + "\n",
         3,
         1,
         {vseErreurC1C2(fausse(acti()), {94})}},
        // The line does not come between a record and its companion.
        {"before a missing companion", exp1() + "\n" + saut + acti() + "\n", 3, 1, {orpheline(exp1())}},
        {"before the end", eget() + "\n" + saut, 2, 1, {orpheline(eget())}},
    };
    for (const auto& c : cas) {
        std::vector<std::string> sortie = {
            fichErreur(fich(c.recus), c.enErreur, c.recus, c.recus - c.enErreur)};
        sortie.insert(sortie.end(), c.erreurs.begin(), c.erreurs.end());
        verifierPublie(c.nom, fich(c.recus) + "\n" + c.messages, 2, sortie);
    }
    verifierPublie("between a pair", fich(3) + "\n" + exp1() + "\n" + saut + exp2() + "\n", 0,
                   {fichEmise(fich(3), 3), emise(exp1()), emise(exp2())});
}

TEST(Appariement, AvecUneVSEFICHEnErreur) {
    // 105 for the record and 100 for the count: one error record each.
    const std::string f = fich(5);
    verifierPublie("count and companion", fichier({f, acti(), exp1()}), 2,
                   {fichErreur(f, 2, 2, 1), orpheline(exp1()), vseErreurInconnue(f, {100})});
}
