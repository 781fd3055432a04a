/**
 * modeles.h - correct records of the types that are sent in pairs, and the
 * records that the program must make of a record or of a FICH record.
 */
#ifndef QUILVANE_TESTS_SUPPORT_MODELES_H
#define QUILVANE_TESTS_SUPPORT_MODELES_H

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "support/banc.h"
#include "support/vse.h"

namespace essai {

/** The record with columns changed. */
inline std::string avec(std::string record, const std::vector<pose>& poses) {
    for (const pose& p : poses)
        poser(record, p.col, p.texte);
    return record;
}

/** Columns `de` to `a` of a record. */
inline std::string colonnes(const std::string& record, int de, int a) {
    return record.substr(static_cast<std::size_t>(de - 1), static_cast<std::size_t>(a - de + 1));
}

inline std::string blancs(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

/** Body C2 of the correct EXP1/EXP2 and EGET/RATA pairs. */
inline constexpr const char* LIEN_EXP = "78123456    ";
inline constexpr const char* LIEN_EGET = "IGA12       ";

inline std::string exp1(const std::string& lien = LIEN_EXP) {
    return vse("EXP1", "CRE",
               {{63, "FR"},
                {65, lien},
                {77, "20"},
                {113, "FERME DU BAS"},
                {173, "78000"},
                {178, "VERSAILLES"},
                {222, "10"}});
}

inline std::string exp2(const std::string& lien = LIEN_EXP) {
    return vse("EXP2", "CRE",
               {{63, "FR"}, {65, lien}, {77, "20"}, {79, "FR"}, {81, "078000001111"}, {141, "01022024"}});
}

inline std::string eget(const std::string& lien = LIEN_EGET) {
    return vse("EGET", "CRE",
               {{63, "FR"},
                {65, lien},
                {77, "20"},
                {79, "V"},
                {80, "ELEVAGE DU HAUT"},
                {140, "78000"},
                {145, "VERSAILLES"}});
}

inline std::string rata(const std::string& lien = LIEN_EGET) {
    return vse(
        "RATA", "CRE",
        {{63, "FR"}, {65, lien}, {77, "20"}, {79, "V"}, {80, "FR"}, {82, LIEN_EXP}, {108, "01022024"}});
}

/** The accepted record as it is emitted. */
inline std::string emise(const std::string& record) { return avec(record, {{77, "40"}}); }

inline std::string compteur(int n) {
    char texte[16];
    std::snprintf(texte, sizeof texte, "%06d", n);
    return texte;
}

/** Error codes as they stand from column 112 on. */
inline std::string codesErreur(const std::vector<int>& codes) {
    std::string r;
    for (const int code : codes) {
        char texte[16];
        std::snprintf(texte, sizeof texte, "I%03d1", code);
        r += texte;
    }
    return r;
}

/**
 * The ERRE record of a record of 256 columns. `cle7` and `cle8` are its key
 * fields, `c1c2` its first two body fields (blank for an unknown type).
 */
inline std::string vseErreur(const std::string& record, const std::vector<int>& codes,
                             const std::string& cle7, const std::string& cle8, const std::string& c1c2,
                             const std::string& emetteurDuFichier = "089ARS  ",
                             const std::string& estampille = ESTAMPILLE) {
    return avec(blancs(256), {{1, colonnes(record, 1, 2)},
                              {3, colonnes(record, 11, 18)},
                              {11, colonnes(record, 3, 10)},
                              {19, "ERRERRE"},
                              {26, colonnes(record, 26, 26)},
                              {27, "INTERFAC"},
                              {35, colonnes(record, 35, 42)},
                              {43, emetteurDuFichier},
                              {51, colonnes(record, 51, 62)},
                              {63, colonnes(record, 22, 25)},
                              {67, colonnes(record, 19, 21)},
                              {70, c1c2},
                              {98, cle7},
                              {100, cle8},
                              {112, codesErreur(codes)},
                              {231, estampille}});
}

/** The same for a type whose key fields are C1 and C2 (ACTI, EXP1, EXP2). */
inline std::string vseErreurC1C2(const std::string& record, const std::vector<int>& codes) {
    return vseErreur(record, codes, colonnes(record, 63, 64), colonnes(record, 65, 76),
                     colonnes(record, 63, 76));
}

/** The same for a known type without key fields (EGET, RATA, ABAT, INFO). */
inline std::string vseErreurSansCle(const std::string& record, const std::vector<int>& codes) {
    return vseErreur(record, codes, blancs(2), blancs(12), colonnes(record, 63, 76));
}

/** The same for an unknown type or for the FICH record itself. */
inline std::string vseErreurInconnue(const std::string& record, const std::vector<int>& codes) {
    return vseErreur(record, codes, blancs(2), blancs(12), blancs(14));
}

/** The FICH record of an output file. */
inline std::string fichEmise(const std::string& fichRecue, int messages) {
    return avec(fichRecue, {{19, "INF"}, {113, compteur(messages)}, {126, blancs(105)}});
}

/** The FICH record of an error file. */
inline std::string fichErreur(const std::string& fichRecue, int enErreur, int messages, int valides,
                              const std::string& estampille = ESTAMPILLE) {
    return avec(fichRecue, {{3, colonnes(fichRecue, 11, 18)},
                            {11, colonnes(fichRecue, 3, 10)},
                            {19, "INF"},
                            {79, colonnes(fichRecue, 63, 78)},
                            {95, compteur(enErreur)},
                            {101, compteur(messages)},
                            {107, compteur(enErreur)},
                            {113, compteur(valides)},
                            {125, "1"},
                            {126, blancs(105)},
                            {231, estampille}});
}

/** Runs the program on `entree`, given as "recu", and compares its status and
 *  all that it leaves in the folder. */
inline void verifierPassage(const std::string& nom, const std::string& entree, int statut,
                            const std::map<std::string, std::string>& laisse) {
    const dossier d;
    d.ecrire("recu", entree);
    const resultat r = lancer(d, {"recu", "emis", "log"});
    EXPECT_EQ(r.statut, statut) << nom;
    EXPECT_EQ(r.sortie + r.erreur, "") << nom;
    EXPECT_EQ(d.contenu(), laisse) << nom;
}

/** A run that publishes these records: status 0 or 2, the log empty. */
inline void verifierPublie(const std::string& nom, const std::string& entree, int statut,
                           const std::vector<std::string>& publies, std::string_view finDeLigne = "\n") {
    verifierPassage(nom, entree, statut, {{"emis", fichier(publies, finDeLigne)}, {"log", ""}});
}

/** A run that ends on a fatal condition and gives the input back. */
inline void verifierAnnule(const std::string& nom, const std::string& entree, const std::string& message) {
    verifierPassage(nom, entree, 1, {{"recu", entree}, {"log", DEBUT_LOG + latin1(message) + "\n"}});
}

}  // namespace essai

#endif
