/**
 * lignes.h - proof that every rule row of a message type can pass and can
 * fail: for each row with a check and each transaction kind that runs it there
 * is a record that is wrong in that field alone and gets that row's error.
 */
#ifndef QUILVANE_TESTS_SUPPORT_LIGNES_H
#define QUILVANE_TESTS_SUPPORT_LIGNES_H

#include <functional>
#include <string>
#include <vector>

#include "support/vse.h"
#include "vocabulaire/regle.h"

namespace essai {

/** A rule row of a body table by its field, its check and its error number; by
 *  its list as well when two such rows run in one kind. */
struct nomDeLigne {
    int champ;  // from 0
    quilvane::fVerif* verif;
    const char* nomVerif;
    int erreur;
    const quilvane::liste* sverif = nullptr;  // null: any
};
#define LIGNE(champ, verif, erreur, ...) \
    essai::nomDeLigne { quilvane::champ, quilvane::verif, #verif, erreur __VA_OPT__(, ) __VA_ARGS__ }

/** A record wrong in one field: what to change in the correct record of a kind
 *  and the exact error numbers, in order, that must come of it. */
struct casLigne {
    nomDeLigne ligne;
    std::string genres;       // transaction kinds, blank-separated: "CRE INV MOD"
    std::vector<pose> poses;  // columns to change
    std::vector<int> codes;   // all errors of the record
    std::string raison = "";  // why rows fail together; required with several codes
};

/** A row that no record can make fail in the kinds named. */
struct ligneSansEchec {
    nomDeLigne ligne;
    std::string genres;
    std::string raison;
};

struct preuveType {
    std::string type;                                       // message type, header E6
    std::string genres;                                     // kinds that have a correct record
    std::function<std::string(const std::string&)> modele;  // correct record of a kind
    std::string dependances;                                // of its rows, as `dependancesDe` tells them
    std::vector<casLigne> cas;
    std::vector<ligneSansEchec> sansEchec = {};
    std::string emetteur = "089ARS  ";  // emitter of the file
};

/** Error numbers that record processing gives a record, behind a correct FICH
 *  record of emitter `emetteur`, in a run of its own. */
std::vector<int> codesDe(const std::string& record, const std::string& emetteur = "089ARS  ");

/** The rows of a table that depend on another field, in order: field, error and
 *  the field they depend on, "C2/68:C1 C5/52:F1". `lettre` is that of the table's
 *  fields. (A check that ignores its dependency is given it too.) */
std::string dependancesDe(const quilvane::sCorps* table, int lignes, char lettre);

/**
 * Checks the whole proof: every kind's correct record has no error; every case
 * gives exactly its codes and names its row's error; every row with a check has
 * a case or a reason for every kind that runs it; rows depend on the fields named
 * and on no other. Reports through GoogleTest.
 */
void prouverLignes(const preuveType& preuve);

}  // namespace essai

#endif
