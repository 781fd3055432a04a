/**
 * passage.h - a run in memory: records one by one, and the two files as they
 * grow.
 */
#ifndef QUILVANE_TESTS_SUPPORT_PASSAGE_H
#define QUILVANE_TESTS_SUPPORT_PASSAGE_H

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "controle/composition.h"
#include "controle/lot.h"
#include "controle/traitement.h"
#include "support/banc.h"

namespace essai {

struct passage {
    quilvane::lot l;
    quilvane::verdict v = {};
    std::string emis, erre;  // what has been added to either file

    passage() { recommencer(); }

    void recommencer() {
        quilvane::commencer(l);
        std::strcpy(l.VSEDate, ESTAMPILLE);
        v = {};
        emis.clear();
        erre.clear();
    }

    /** Judges the next record as if the stream had just cut it, with this
     *  length fault (`codLong`) and character fault. Gives its error numbers. */
    std::vector<int> traiter(const std::string& record, int codLong, int codCaract = 0,
                             int format = quilvane::CVERSE_UNIX) {
        using namespace quilvane;
        l.ligne = {};
        const std::size_t n = std::min<std::size_t>(record.size(), LARGEUR_VSE);
        std::memcpy(l.ligne.texte, record.data(), n);
        l.ligne.codLong = codLong;
        l.ligne.codCaract = codCaract;
        v = {};
        v.rang = l.nombreDeVSE;
        traitement(l, v);
        if (v.fatal != eFatal::AUCUN) return {};
        l.formatDuFichier = format;
        ++l.nombreDeVSE;
        ajouts a;
        ajouterVerdict(a, l, v);
        emis.append(a.emis.tampon, a.emis.longueur);
        erre.append(a.erre.tampon, a.erre.longueur);
        return {codeErreur, codeErreur + v.erreurs};
    }
    /** The same; the length fault is that of the record. */
    std::vector<int> traiter(const std::string& record) {
        return traiter(record, record.size() < quilvane::LARGEUR_VSE ? 2 : 0);
    }
};

}  // namespace essai

#endif
