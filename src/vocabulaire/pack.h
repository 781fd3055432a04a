/**
 * pack.h - the layout of a record: its columns, its field numbers, and two
 * words that checks are called with.
 */
#ifndef QUILVANE_VOCABULAIRE_PACK_H
#define QUILVANE_VOCABULAIRE_PACK_H

namespace quilvane {

/** Columns of a record; they are numbered from 1. 1 to 62 is the header, 63 to
 *  230 the body, 231 to 256 the footer. */
inline constexpr int LARGEUR_VSE = 256;
/** Error numbers that one record may carry. */
inline constexpr int MAX_ERREURS = 10;

/** Header fields; the value is the slot of `valEnteteVSE`. */
enum numEnteteVSE : unsigned { E1, E2, E3, E4, E5, E6, E7, E8, E9, E10, E11, E12, E13 };

/** Footer fields; the value is the slot of `valFinVSE`. */
enum numFinVSE : unsigned { F1, F2, F3, F4, F5 };

/** Body fields C1 to C100; `CINC` means "no field". */
// clang-format off
enum numCorpsVSE : unsigned {
    C1,  C2,  C3,  C4,  C5,  C6,  C7,  C8,  C9,  C10, C11, C12, C13, C14, C15, C16, C17, C18, C19, C20,
    C21, C22, C23, C24, C25, C26, C27, C28, C29, C30, C31, C32, C33, C34, C35, C36, C37, C38, C39, C40,
    C41, C42, C43, C44, C45, C46, C47, C48, C49, C50, C51, C52, C53, C54, C55, C56, C57, C58, C59, C60,
    C61, C62, C63, C64, C65, C66, C67, C68, C69, C70, C71, C72, C73, C74, C75, C76, C77, C78, C79, C80,
    C81, C82, C83, C84, C85, C86, C87, C88, C89, C90, C91, C92, C93, C94, C95, C96, C97, C98, C99, C100,
    CINC
};
// clang-format on

/** Sense of a date comparison: the field is on or after / on or before the reference. */
enum esupInf { SUP = 0, INF = 1 };

/** How a date is read: all of it, or with a blank day, or blank day and month. */
enum eCouI { COMPLETE = 0, INCOMPLETE = 1 };

}  // namespace quilvane

#endif
