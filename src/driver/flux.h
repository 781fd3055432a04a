/**
 * flux.h - the record stream: cuts the input file into records at its line
 * ends and flags framing faults.
 */
#ifndef QUILVANE_DRIVER_FLUX_H
#define QUILVANE_DRIVER_FLUX_H

#include <cstdio>

namespace quilvane {

/** How a read ended: at the end of the file, at a line end of one of three
 *  kinds, at the end of an empty line, or at a Ctrl-Z, which ends the file. */
enum cverseFgetsRet {
    CVERSE_EOF = 0,
    CVERSE_DOS = 1,        // CR LF
    CVERSE_UNIX = 2,       // LF
    CVERSE_MAC = 3,        // CR alone
    CVERSE_LONGNULLE = 4,  // line end with nothing before it
    CVERSE_CTRLZ = 5
};

/** Size of a record buffer. At most 256 characters of it are used. */
inline constexpr int TAILLE_TAMPON = 513;

/** Starts reading `fichier` (open in binary mode) from its current position. */
void ouvrirFlux(std::FILE* fichier);

/**
 * Reads the next line into `tampon` (`TAILLE_TAMPON` bytes), at most 256
 * characters of it, and terminates it. Sets `codLong` (1 longer than 256
 * columns, 2 shorter) and `codCaract` (1 for a byte outside 0x20..0x7E
 * anywhere in the line). A line without line end, before the end of the file
 * or a Ctrl-Z, is read but is no record.
 */
cverseFgetsRet cverseFgets(char* tampon);

/** Whether reading stopped at a read error rather than at the end of the file;
 *  asked once the stream was opened. */
bool fluxEnErreur();

}  // namespace quilvane

#endif
