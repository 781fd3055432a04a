#include "driver/flux.h"

#include <cstring>

#include "vocabulaire/store.h"

namespace quilvane {

namespace {

constexpr int CTRL_Z = 0x1A;
constexpr int RIEN = -1;  // behind the last byte

/** The input, read in large blocks and handed out byte by byte. Written by the
 *  functions of this source only. */
struct etatDuFlux {
    std::FILE* fichier = nullptr;
    bool epuise = false;  // the file has nothing behind this block
    std::size_t position = 0;
    std::size_t taille = 0;
    unsigned char bloc[1 << 16] = {};
};
constinit etatDuFlux flux;

/** The next byte without taking it, or `RIEN`. */
int regarder() {
    if (flux.position == flux.taille) {
        if (flux.epuise) return RIEN;
        flux.position = 0;
        flux.taille = std::fread(flux.bloc, 1, sizeof flux.bloc, flux.fichier);
        flux.epuise = flux.taille < sizeof flux.bloc;
        if (flux.taille == 0) return RIEN;
    }
    return flux.bloc[flux.position];
}

constexpr bool imprimable(unsigned char c) { return static_cast<unsigned char>(c - 0x20) <= 0x7E - 0x20; }

/** Takes a whole record of printable characters at once; 0 when the block does
 *  not hold one, and the bytes are then looked at one by one. */
int prendreLigneEntiere(char* tampon) {
    if (flux.taille - flux.position < LARGEUR_VSE) return 0;
    const unsigned char* const debut = flux.bloc + flux.position;
    // No early end, and bytes only: the compiler then tests many at a time.
    unsigned char mauvais = 0;
    for (int i = 0; i < LARGEUR_VSE; ++i)
        mauvais |= static_cast<unsigned char>(!imprimable(debut[i]));
    if (mauvais != 0) return 0;
    std::memcpy(tampon, debut, LARGEUR_VSE);
    flux.position += LARGEUR_VSE;
    return LARGEUR_VSE;
}

/** Ends a line of `longueur` characters that was read up to a line end. */
cverseFgetsRet finDeLigne(int longueur, cverseFgetsRet genre) {
    if (longueur == 0) return CVERSE_LONGNULLE;
    if (longueur < LARGEUR_VSE) codLong = 2;
    return genre;
}

}  // namespace

void ouvrirFlux(std::FILE* fichier) {
    flux.fichier = fichier;
    flux.epuise = false;
    flux.position = 0;
    flux.taille = 0;
}

cverseFgetsRet cverseFgets(char* tampon) {
    codLong = 0;
    codCaract = 0;
    int longueur = prendreLigneEntiere(tampon);
    for (;;) {
        const int octet = regarder();
        tampon[longueur] = '\0';
        if (octet == RIEN) return CVERSE_EOF;
        ++flux.position;
        switch (octet) {
            case CTRL_Z:
                if (longueur > 0 && longueur < LARGEUR_VSE) codLong = 2;
                return CVERSE_CTRLZ;
            case '\r':
                if (regarder() != '\n') return finDeLigne(longueur, CVERSE_MAC);
                ++flux.position;
                return finDeLigne(longueur, CVERSE_DOS);
            case '\n': return finDeLigne(longueur, CVERSE_UNIX);
            default:
                if (!imprimable(static_cast<unsigned char>(octet))) codCaract = 1;
                if (longueur == LARGEUR_VSE)
                    codLong = 1;
                else
                    tampon[longueur++] = static_cast<char>(octet);
        }
    }
}

bool fluxEnErreur() { return std::ferror(flux.fichier) != 0; }

}  // namespace quilvane
