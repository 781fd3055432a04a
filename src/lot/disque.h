/**
 * disque.h - the file calls of the batch runner: every one says what failed,
 * none follows a link, none writes over a name.
 */
#ifndef QUILVANE_LOT_DISQUE_H
#define QUILVANE_LOT_DISQUE_H

#include <sys/stat.h>

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/texte.h"

namespace quilvane::lot {

/** Why the runner itself could not go on: the step, the name concerned and the
 *  system's error number (0 for none). Says nothing about the file processed. */
struct faute {
    texte etape = {"", ""};
    std::string nom;
    int cause = 0;
};

/** Fills `f` from a step and errno; always false, to be returned at once. */
bool echouer(faute& f, const texte& etape, std::string_view nom);

/** An open descriptor, closed at the end of its scope; -1 for none. */
struct descripteur {
    int fd = -1;

    descripteur() = default;
    explicit descripteur(int ouvert) : fd(ouvert) {}
    ~descripteur() { fermer(); }
    descripteur(descripteur&& autre) noexcept : fd(autre.fd) { autre.fd = -1; }
    descripteur& operator=(descripteur&& autre) noexcept;
    descripteur(const descripteur&) = delete;
    descripteur& operator=(const descripteur&) = delete;

    bool ouvert() const { return fd >= 0; }
    void fermer();
};

/** A folder, opened for reading; a link is refused. errno says why not. */
descripteur ouvrirDossier(int dossier, const std::string& nom);

/** A regular file, opened for reading without ever waiting. A link, folder,
 *  device or FIFO is refused with errno ELOOP or EINVAL. */
descripteur ouvrirFichier(int dossier, const std::string& nom);

/** fsync; a file system that cannot (EINVAL) counts as done. */
bool synchroniser(int fd);

/** Writes every byte, or says with errno why not. */
bool ecrireTout(int fd, std::string_view octets);

/** The bytes of a regular file, at most `limite` of them; false with errno. */
bool lireFichier(int dossier, const std::string& nom, std::string& octets, std::size_t limite);

/** Puts a file of these bytes under `nom`, in the place of an older one: made as
 *  "<nom>.part", synchronised, renamed, the folder synchronised. */
bool remplacerFichier(int dossier, const std::string& nom, std::string_view octets, faute& f);

/** What became of a move. */
enum eDeplacement { DEPLACE, NOM_PRIS, DEPLACEMENT_REFUSE };

/**
 * Moves a file to a name that must be free, in one step. Where the file system
 * cannot (NFS), by a link and the removal of the old name: a crash between the
 * two leaves both names on one file, and the next call then ends the move.
 */
eDeplacement deplacer(int de, const std::string& nom, int vers, const std::string& nouveau);

/** The names in a folder, but for "." and ".."; false with errno. */
bool lister(int dossier, std::vector<std::string>& noms);

/** Removes all that a folder holds, its folders included; links are removed,
 *  not followed. A folder that is not there counts as done. */
bool viderDossier(int dossier, const std::string& nom);

}  // namespace quilvane::lot

#endif
