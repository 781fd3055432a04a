/**
 * cible.h - what the fuzz targets share: bytes taken from the input, and a
 * property that stops the run when it does not hold.
 */
#ifndef QUILVANE_FUZZ_CIBLE_H
#define QUILVANE_FUZZ_CIBLE_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace cible {

/** Hands out the input piece by piece; zeros and empty texts behind its end. */
struct octets {
    const std::uint8_t* donnees;
    std::size_t reste;

    std::uint8_t un() {
        if (reste == 0) return 0;
        --reste;
        return *donnees++;
    }
    std::string texte(std::size_t n) {
        if (n > reste) n = reste;
        std::string t(reinterpret_cast<const char*>(donnees), n);
        donnees += n;
        reste -= n;
        return t;
    }
    std::string tout() { return texte(reste); }
};

/** Stops when a property that must hold for every input does not. */
inline void verifier(bool vrai, const char* propriete) {
    if (vrai) return;
    std::fprintf(stderr, "property does not hold: %s\n", propriete);
    std::abort();
}

/** Frees the names of a run, closes what it left open, and starts afresh. */
void remettreAZero();

/** The bytes of a file, empty when it does not exist. */
std::string lire(const std::string& nom);
/** Whether a file exists. */
bool existe(const std::string& nom);
void ecrire(const std::string& nom, const std::string& contenu);

/** A folder of this process, in memory where the system has such a place; the
 *  process works in it and what it prints to standard output is dropped. */
const std::string& dossier();

/** Runs the whole program in this process on `contenu` as its input file, with
 *  `option` ("" for none), and gives its exit status and published bytes. */
struct issue {
    int statut;
    bool publie;
    std::string emis;
    std::string log;
};
issue executer(const std::string& contenu, const char* option);

}  // namespace cible

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

#endif
