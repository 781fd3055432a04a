/**
 * generateur.h - correct records of every message type, and whole files of
 * them, made from a seed. The same seed gives the same bytes everywhere.
 */
#ifndef QUILVANE_TESTS_SUPPORT_GENERATEUR_H
#define QUILVANE_TESTS_SUPPORT_GENERATEUR_H

#include <cstdint>
#include <string>
#include <vector>

namespace essai {

/** Pseudo-random numbers (SplitMix64). */
struct hasard {
    std::uint64_t etat;
    explicit hasard(std::uint64_t graine) : etat(graine) {}
    std::uint64_t suivant();
    /** A number from 0 to `borne` - 1. */
    int jusqua(int borne) { return static_cast<int>(suivant() % static_cast<std::uint64_t>(borne)); }
};

/** The 27 message types, in alphabetical order. */
const std::vector<std::string>& typesDeMessage();

/** Transaction kinds with which a type is accepted. */
std::vector<std::string> genresDe(const std::string& type);

/** Emitter of a file in which `type` is accepted: "NORM02  " for INFO, which
 *  may not send ABAT, else "NORM01  ". */
std::string emetteurPour(const std::string& type);

/** A correct record; numbers, departments and letters vary with `h`. */
std::string recordCorrect(const std::string& type, const std::string& genre, hasard& h);

/** What a generated file is made of. */
struct commande {
    std::uint64_t graine = 1;
    int nombre = 10000;                   // message records
    std::vector<std::string> types = {};  // empty: all that one emitter may send (INFO left out)
    int fautes = 0;                       // share of records in error, per cent
    std::string finDeLigne = "\n";
};

/** A whole file: the FICH record and `nombre` message records. An EXP1 or EGET
 *  creation is followed by its companion. */
std::string fichierGenere(const commande& c);

}  // namespace essai

#endif
