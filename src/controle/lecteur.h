/**
 * lecteur.h - the record stream: cuts bytes into lines at their line ends and
 * notes framing faults. Where the bytes come from is the caller's affair.
 */
#ifndef QUILVANE_CONTROLE_LECTEUR_H
#define QUILVANE_CONTROLE_LECTEUR_H

#include <cstddef>

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

/** Where bytes come from: puts up to `taille` of them into `bloc` and returns
 *  how many; fewer than `taille` only at the end, or at a read error, which it
 *  tells by setting `erreur`. */
using fRemplir = std::size_t(void* source, unsigned char* bloc, std::size_t taille, bool& erreur);

/** A source of bytes, read in large blocks and handed out byte by byte. Made
 *  from the first two members; the rest is written by `cverseFgets` only. */
struct lecteur {
    fRemplir* remplir = nullptr;
    void* source = nullptr;
    bool erreur = false;   // reading stopped at an error, not at the end
    bool epuise = false;   // nothing follows this block
    long long lignes = 0;  // line ends read so far
    long long avant = 0;   // bytes before this block
    std::size_t position = 0;
    std::size_t taille = 0;
    unsigned char bloc[1 << 16] = {};
};

/** One line, as `cverseFgets` read it. */
struct ligneLue {
    char texte[TAILLE_TAMPON];   // at most 256 characters, zero-terminated
    cverseFgetsRet fin;          // how it ended
    int codLong;                 // 0 length correct, 1 longer than 256 columns, 2 shorter
    int codCaract;               // 1 for a byte outside 0x20..0x7E anywhere in it
    long long numero;            // its number in the file, from 1
    long long debut;             // offset of its first byte
    long long longueur;          // bytes before its end
    long long colonneInterdite;  // column of the first byte outside 0x20..0x7E, 0 for none
};

/**
 * Reads the next line. A line without line end, before the end of the file or
 * a Ctrl-Z, is read but is no record. Returns how it ended; behind an end of
 * file `lecteur::erreur` tells whether a read error was the cause.
 */
cverseFgetsRet cverseFgets(lecteur& l, ligneLue& ligne);

}  // namespace quilvane

#endif
