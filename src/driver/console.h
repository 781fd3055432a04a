/**
 * console.h - the console modes -i and -d: a witness of the records' checks
 * that prints what it sees.
 */
#ifndef QUILVANE_DRIVER_CONSOLE_H
#define QUILVANE_DRIVER_CONSOLE_H

#include "rules/temoin.h"

namespace quilvane {

/** Console mode. */
enum eVisu { VISU_AUCUNE = 0, VISU_INFORMATIQUE = 1, VISU_DECRIPTEE = 2 };

/** The witness of a console mode, null for `VISU_AUCUNE`. */
const temoin* affichageVSE(int visu);

/** Debug aid: prints a text to the console. */
void tracer(const char* s);

}  // namespace quilvane

#endif
