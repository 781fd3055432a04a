/**
 * noms.h - file names: their parts, and the names under which a run works.
 *
 * Every result is a new text of whatever length it takes, null when memory is
 * exhausted; the caller frees it.
 */
#ifndef QUILVANE_DRIVER_NOMS_H
#define QUILVANE_DRIVER_NOMS_H

namespace quilvane {

/** Folder of a path without trailing separator: what stands before the last
 *  '/' (or failing that the last '\') and the run of separators that ends
 *  there; "." without a separator, empty for a name right below the root. */
char* nomDuRep(const char* chemin);

/** The same with one trailing separator. */
char* nomDuRep2(const char* chemin);

/** File name of a path: what follows the last '/', or failing that the last '\'. */
char* nomDuFic(const char* chemin);

/** Working name of file `fichier` with a two-character suffix, in the folder
 *  that the platform's `tempnam` chooses for `dossier`. */
char* nomDeTravail(const char* dossier, const char* fichier, const char* suffixe);

/** Copies to `jeton` (`taille` bytes) what stands in `argument` between its
 *  first '_' and the next one or the end, cut to fit; empty without a '_'. */
void jetonDuNom(const char* argument, char* jeton, int taille);

}  // namespace quilvane

#endif
