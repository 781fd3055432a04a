/**
 * releve.h - a report on its way to the caller, in pieces of whole JSON values
 * (`eMorceau`), so that neither side ever holds it as one long text.
 */
#ifndef QUILVANE_MODULE_RELEVE_H
#define QUILVANE_MODULE_RELEVE_H

#include <string>

#include "module/module.h"
#include "rapport/rapport.h"

namespace quilvane::module {

/** JSON values of one kind, handed on when there are enough of them. */
struct sPile {
    eMorceau morceau;
    std::string valeurs = {};

    void ajouter(std::string_view valeur);
    void vider();
};

/** A report being told. Made from its language. */
struct sReleve {
    eLangue langue;
    long long constats = 0;
    sPile liste = {MORCEAU_CONSTATS};
    sPile textes = {MORCEAU_TEXTES};
    sPile avertissements = {MORCEAU_AVERTISSEMENTS};
};

/** As the members of a `sRendu`; `qui` is a `sReleve`. */
void releverRefus(void* qui, const sRecordVu& r);
void releverAvertissement(void* qui, const sAvertissement& a);

/** Hands on what is left, and the members that are known at the end. */
void terminerReleve(sReleve& t, const sResume& r);

}  // namespace quilvane::module

#endif
