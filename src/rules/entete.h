/**
 * entete.h - the header and footer that every record carries: their rule
 * tables and the checks that only they use.
 *
 * A header check's dependency is the message type (E6): some rules hold on the
 * FICH record only, others on message records only.
 */
#ifndef QUILVANE_RULES_ENTETE_H
#define QUILVANE_RULES_ENTETE_H

#include "rules/parcours.h"
#include "vocabulaire/regle.h"

namespace quilvane {

/** Header: 13 fields in columns 1 to 62, cut into `valEnteteVSE`. */
extern const sCorps tEntete[];
extern const int lEntete;
extern const parcours pEntete;

/** Footer: 5 fields in columns 231 to 256, cut into `valFinVSE`. */
extern const sCorps tFin[];
extern const int lFin;
extern const parcours pFin;

/** Emitter of the FICH record (8): in `TEC`, or a national or ovine one by its
 *  first six or eight characters. Message records pass. Error 95. */
fVerif enteteE3;
/** Receiver of the FICH record (8): in the list. Error 96. */
fVerif enteteE4;
/** Departmental body of a message record (8): in `TDC`, or a national or ovine
 *  one. The FICH record passes. Error 87. */
fVerif enteteE8;
/** A code without blanks on message records (8); all blank only when header E8
 *  names a national body. Error 89. */
fVerif enteteE9;
/** Destination database of a message record (8): in the list. Error 88. */
fVerif enteteE10;
/** One-character codes of the FICH record: in the list. Errors 97 and 98. */
fVerif enteteE12;
fVerif enteteE13;
/** Format version of the FICH record (3): in the list; message records may
 *  carry any. Error 93. */
fVerif finF3;
/** The message type (`champ`) is allowed for the transaction kind
 *  (`dependance`); kind "ECQ" allows every type. Error 86. */
fVerif fVerifDepE6;

}  // namespace quilvane

#endif
