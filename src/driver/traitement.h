/**
 * traitement.h - what happens to one record, from its header to its place in
 * the output or error file.
 */
#ifndef QUILVANE_DRIVER_TRAITEMENT_H
#define QUILVANE_DRIVER_TRAITEMENT_H

namespace quilvane {

/** Result of `traitement` when a fatal condition has been logged. */
inline constexpr int FATAL = -2;

/**
 * Processes one record of at most 256 columns. `nombreDeVSE` is its place in
 * the file; the first is the FICH record, which is only kept. Every other
 * record goes to the output file, or to the error file with its error numbers,
 * behind a line end of the file's format. Returns the error count, or `FATAL`.
 */
int traitement(const char* tampon, int visu, int nombreDeVSE, int formatDuFichier);

/** Whether the record before still waits for its companion (EXP2 for a created
 *  EXP1, RATA for a created EGET). */
bool attendCompagnon();

/** Writes the error record that was prepared for a record whose companion did
 *  not come. */
void rejeterSansCompagnon(int formatDuFichier);

/** Whether the pairing rules are on: always 1. */
int dependanceVSE();

}  // namespace quilvane

#endif
