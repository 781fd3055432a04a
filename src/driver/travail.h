/**
 * travail.h - opening the files of a run so that nothing else is lost: what
 * stands under a name is put aside or left alone, and what the run has made is
 * held by a lock until its end.
 *
 * Functions that can fail return false, a null stream or -1, with the reason
 * in `errno`. None of them waits, for a lock or for a FIFO.
 */
#ifndef QUILVANE_DRIVER_TRAVAIL_H
#define QUILVANE_DRIVER_TRAVAIL_H

#include <sys/stat.h>

#include <cstdio>

namespace quilvane {

/** A file that the run holds: the descriptor that carries its lock, -1 for
 *  none, and the file or link that stood under its name when it was taken. */
struct fichierTenu {
    int fd = -1;
    struct stat noeud = {};
};

/** The files of the run. Written by this source, let go by `relacherFichiers`. */
extern fichierTenu tenu_recu;      // input
extern fichierTenu tenu_emis;      // output, as it is opened at the start
extern fichierTenu tenu_tmp_emis;  // temporary output file
extern fichierTenu tenu_erre;      // temporary error file

/** Whether two names, themselves or as links, denote one file. */
bool memeFichier(const char* nom, const char* autre);

/** Whether nothing but a regular file or a folder, links followed, stands under
 *  `nom`: a device, a FIFO or a socket is neither read nor replaced. */
bool estFichierOuDossier(const char* nom);

/** Opens the log, emptied. It may be a device. */
std::FILE* ouvrirLog(const char* nom);

/** Tests that the input can be read and takes hold of it. */
bool tenirEntree(const char* nom);

/** Gives the held input `nom` the name `travail`. A file or link that stands
 *  there is first renamed to "<travail>.~N~", N the first number from 1 that
 *  is free, unless another run holds it; nothing is ever overwritten. */
bool renommerEntree(const char* nom, const char* travail);

/** Opens the renamed input, which must be the file that is held. */
std::FILE* ouvrirEntree(const char* travail);

/** Makes or empties the output file and takes hold of it. One that denotes the
 *  input is not emptied, and one that is another run's temporary file fails. */
bool ouvrirSortie(const char* nom);

/**
 * Makes the temporary file `nom` and holds it. A regular file that stands there
 * and that no other run holds is removed first, and so is a link, whose target
 * is left alone. Anything else that stands there, and a name that denotes the
 * input, fails.
 */
std::FILE* ouvrirTravail(const char* nom, fichierTenu& tenu);

/** Takes hold of the file `nom` behind descriptor `fd`. */
bool tenir(const char* nom, int fd, fichierTenu& tenu);

/** Whether `nom` still is the very file or link that was taken hold of. */
bool estTenu(const char* nom, const fichierTenu& tenu);

/** Removes `nom` if it still is the file that is held. */
void retirer(const char* nom, const fichierTenu& tenu);

/** Writes a held file to the disk; false when the disk did not take it. */
bool synchroniser(const fichierTenu& tenu);

/** Writes the folder of file `nom` to the disk, where it can be. */
void synchroniserDossier(const char* nom);

/** Lets go of one file, and of all of them. */
void relacher(fichierTenu& tenu);
void relacherFichiers();

}  // namespace quilvane

#endif
