#include "controle/lecteur.h"

#include <cstring>

#include "vocabulaire/pack.h"

namespace quilvane {

namespace {

constexpr int CTRL_Z = 0x1A;
constexpr int RIEN = -1;  // behind the last byte

/** The next byte without taking it, or `RIEN`. */
int regarder(lecteur& l) {
    if (l.position == l.taille) {
        if (l.epuise) return RIEN;
        l.avant += static_cast<long long>(l.taille);
        l.position = 0;
        l.taille = l.remplir(l.source, l.bloc, sizeof l.bloc, l.erreur);
        l.epuise = l.taille < sizeof l.bloc;
        if (l.taille == 0) return RIEN;
    }
    return l.bloc[l.position];
}

constexpr bool imprimable(unsigned char c) { return static_cast<unsigned char>(c - 0x20) <= 0x7E - 0x20; }

/** Takes a whole record of printable characters at once; 0 when the block does
 *  not hold one, and the bytes are then looked at one by one. */
int prendreLigneEntiere(lecteur& l, char* tampon) {
    if (l.taille - l.position < LARGEUR_VSE) return 0;
    const unsigned char* const debut = l.bloc + l.position;
    // No early end, and bytes only: the compiler then tests many at a time.
    unsigned char mauvais = 0;
    for (int i = 0; i < LARGEUR_VSE; ++i)
        mauvais |= static_cast<unsigned char>(!imprimable(debut[i]));
    if (mauvais != 0) return 0;
    std::memcpy(tampon, debut, LARGEUR_VSE);
    l.position += LARGEUR_VSE;
    return LARGEUR_VSE;
}

/** Ends a line that was read up to a line end. */
cverseFgetsRet finDeLigne(lecteur& l, ligneLue& ligne, cverseFgetsRet genre) {
    ++l.lignes;
    if (ligne.longueur == 0) return CVERSE_LONGNULLE;
    if (ligne.longueur < LARGEUR_VSE) ligne.codLong = 2;
    return genre;
}

/** Takes the bytes up to the end of the line. */
cverseFgetsRet prendre(lecteur& l, ligneLue& ligne) {
    for (int stockes = static_cast<int>(ligne.longueur);;) {
        const int octet = regarder(l);
        ligne.texte[stockes] = '\0';
        if (octet == RIEN) return CVERSE_EOF;
        ++l.position;
        switch (octet) {
            case CTRL_Z:
                if (ligne.longueur > 0 && ligne.longueur < LARGEUR_VSE) ligne.codLong = 2;
                return CVERSE_CTRLZ;
            case '\r':
                if (regarder(l) != '\n') return finDeLigne(l, ligne, CVERSE_MAC);
                ++l.position;
                return finDeLigne(l, ligne, CVERSE_DOS);
            case '\n': return finDeLigne(l, ligne, CVERSE_UNIX);
            default:
                ++ligne.longueur;
                if (!imprimable(static_cast<unsigned char>(octet)) && ligne.codCaract == 0) {
                    ligne.codCaract = 1;
                    ligne.colonneInterdite = ligne.longueur;
                }
                if (stockes == LARGEUR_VSE)
                    ligne.codLong = 1;
                else
                    ligne.texte[stockes++] = static_cast<char>(octet);
        }
    }
}

}  // namespace

cverseFgetsRet cverseFgets(lecteur& l, ligneLue& ligne) {
    ligne.codLong = 0;
    ligne.codCaract = 0;
    ligne.colonneInterdite = 0;
    ligne.numero = l.lignes + 1;
    ligne.debut = l.avant + static_cast<long long>(l.position);
    ligne.longueur = prendreLigneEntiere(l, ligne.texte);
    ligne.fin = prendre(l, ligne);
    return ligne.fin;
}

}  // namespace quilvane
