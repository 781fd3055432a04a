/**
 * source.h - an input of the module's caller as a record stream.
 */
#ifndef QUILVANE_MODULE_SOURCE_H
#define QUILVANE_MODULE_SOURCE_H

#include <string>

#include "catalogue/texte.h"
#include "controle/lecteur.h"

namespace quilvane::module {

/** The caller's input as a stream, from its first byte. There is one stream
 *  for each `place` (0 or 1); it lives until the place is used again. */
lecteur& ouvrir(int source, int place = 0);

/** The input's name, UTF-8. */
std::string nomDe(int source);

/** 0 is French, anything else English. */
inline eLangue langueDe(int numero) { return numero == 0 ? FRANCAIS : ANGLAIS; }

}  // namespace quilvane::module

#endif
