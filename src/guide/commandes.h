/**
 * commandes.h - what each subcommand of quilvane-guide does. Each prints its
 * answer and returns an `eStatut`.
 */
#ifndef QUILVANE_GUIDE_COMMANDES_H
#define QUILVANE_GUIDE_COMMANDES_H

#include "guide/options.h"
#include "rapport/sortie.h"

namespace quilvane::guide {

/** What quilvane would do with each file. */
int verifier(const sDemandeLue& d);
/** An error file that came back, explained; with the file that it answers. */
int retour(const sDemandeLue& d);
/** An error number or fatal code. */
int expliquerNumero(const sDemandeLue& d);
/** Every number with its title. */
int listerErreurs(const sDemandeLue& d);
/** Tables: fields, columns, kinds, rules. */
int catalogue(const sDemandeLue& d);
/** A correct file. */
int donnerExemple(const sDemandeLue& d);
/** Allowed values. */
int listerValeurs(const sDemandeLue& d);
/** The manual page, mdoc. */
int manuel(const sDemandeLue& d);
/** The completion of a shell. */
int completion(const sDemandeLue& d);

/** Prints a text to standard output; false, with a line on standard error,
 *  when it cannot be written whole. */
bool imprimer(std::string_view texte, eLangue langue);

/** Whether standard output is shown with colours. */
bool enCouleur(const sDemandeLue& d);

}  // namespace quilvane::guide

#endif
