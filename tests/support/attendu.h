/**
 * attendu.h - the files that a run must leave behind, put together column by
 * column from the records that went in.
 */
#ifndef QUILVANE_TESTS_SUPPORT_ATTENDU_H
#define QUILVANE_TESTS_SUPPORT_ATTENDU_H

#include <cstdio>
#include <string>
#include <vector>

#include "support/banc.h"
#include "support/vse.h"

namespace essai {

/** Columns `debut` to `fin` of a record, as far as it goes. */
inline std::string colonnes(const std::string& record, std::size_t debut, std::size_t fin) {
    return record.size() < debut ? "" : record.substr(debut - 1, fin - debut + 1);
}

inline std::string sixChiffres(int n) {
    char c[16];
    std::snprintf(c, sizeof c, "%06d", n);
    return c;
}

/** An accepted record as it is emitted. */
inline std::string emise(std::string record) {
    poser(record, 77, "40");
    return record;
}

/** What names the subject of an error record. */
struct clesErre {
    std::string c1, c2, c7, c8;
};

/** Of a record whose first two fields name the holding concerned, as ACTI. */
inline clesErre clesExploitation(const std::string& r) {
    const std::string c1 = colonnes(r, 63, 64);
    const std::string c2 = colonnes(r, 65, 76);
    return {c1, c2, c1, c2};
}

/** Of the FICH record and of a record of unknown type. */
inline clesErre clesBlanches() { return {"  ", std::string(12, ' '), "  ", std::string(12, ' ')}; }

/** The error record of `r` with its error numbers, in a file opened by `fichVSE`. */
inline std::string erre(const std::string& r, const std::vector<int>& codes, const clesErre& cles,
                        const std::string& fichVSE = fich(1)) {
    std::string zone;
    for (const int code : codes) {
        char c[16];
        std::snprintf(c, sizeof c, "I%03d1", code);
        zone += c;
    }
    zone.resize(119, ' ');
    return colonnes(r, 1, 2) + colonnes(r, 11, 18) + colonnes(r, 3, 10) + "ERRERRE" + colonnes(r, 26, 26) +
           "INTERFAC" + colonnes(r, 35, 42) + colonnes(fichVSE, 3, 10) + colonnes(r, 51, 62) +
           colonnes(r, 22, 25) + colonnes(r, 19, 21) + cles.c1 + cles.c2 + std::string(14, ' ') + cles.c7 +
           cles.c8 + zone + ESTAMPILLE;
}

/** A FICH record is written over 256 blanks. */
inline std::string surBlancs(std::string fichVSE) {
    if (fichVSE.size() < 256) fichVSE.resize(256, ' ');
    return fichVSE;
}

/** Every part followed by a line end. */
inline std::string fichierEmis(const std::string& fichVSE, int nombre,
                               const std::vector<std::string>& records,
                               const std::string& finDeLigne = "\n") {
    const std::string f =
        surBlancs(colonnes(fichVSE, 1, 18) + "INF" + colonnes(fichVSE, 22, 112) + sixChiffres(nombre) +
                  colonnes(fichVSE, 119, 125) + std::string(105, ' ') + colonnes(fichVSE, 231, 256));
    std::vector<std::string> lignes = {f};
    for (const std::string& r : records)
        lignes.push_back(emise(r));
    return fichier(lignes, finDeLigne);
}

/** Counts of the error file's FICH record. */
struct comptes {
    int enErreur, recus, valides;
};

inline std::string fichierErreurs(const std::string& fichVSE, const comptes& n,
                                  const std::vector<std::string>& erres,
                                  const std::string& finDeLigne = "\n") {
    const std::string c1 = colonnes(fichVSE, 63, 78);
    const std::string f =
        surBlancs(colonnes(fichVSE, 1, 2) + colonnes(fichVSE, 11, 18) + colonnes(fichVSE, 3, 10) + "INF" +
                  colonnes(fichVSE, 22, 62) + c1 + c1 + sixChiffres(n.enErreur) + sixChiffres(n.recus) +
                  sixChiffres(n.enErreur) + sixChiffres(n.valides) + colonnes(fichVSE, 119, 124) + "1" +
                  std::string(105, ' ') + ESTAMPILLE);
    std::vector<std::string> lignes = {f};
    lignes.insert(lignes.end(), erres.begin(), erres.end());
    return fichier(lignes, finDeLigne);
}

/** The log after a fatal condition; `message` is UTF-8. */
inline std::string ligneLog(const std::string& message) { return DEBUT_LOG + latin1(message) + "\n"; }

// Messages of the log, UTF-8.
inline constexpr const char* LOG_IG003 =
    "IG003: Données incorrectes ou absentes : impossible d'accéder au fichier temporaire à traiter";
inline constexpr const char* LOG_IG008 = "IG008: Differents formats de VSE (DOS, UNIX, MAC)";
inline constexpr const char* LOG_IG009 =
    "IG009: Données incorrectes ou absentes : impossible de renommer le fichier reçu";
inline constexpr const char* LOG_IG010 =
    "IG010: Données incorrectes ou absentes : impossible de renommer le fichier à envoyer";
inline constexpr const char* LOG_IG011 = "IG011: Données incorrectes ou absentes : VSE FICH n'existe pas";
inline constexpr const char* LOG_IG014 = "IG014: Pas de VSE de base";
inline constexpr const char* LOG_IG015 = "IG015: Présence de VSE de longueur nulle";
inline constexpr const char* LOG_I073 = "I073 : Plus de 10000 enregistrements dans le fichier";
inline constexpr const char* LOG_I099 = "I099 : Donnée absente : numéro du fichier émis";

}  // namespace essai

#endif
