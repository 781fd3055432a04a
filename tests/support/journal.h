/**
 * journal.h - a witness that writes down all that it is told.
 */
#ifndef QUILVANE_TESTS_SUPPORT_JOURNAL_H
#define QUILVANE_TESTS_SUPPORT_JOURNAL_H

#include <string>
#include <vector>

#include "rules/temoin.h"

namespace essai {

/** One line for each event; for rows section and slot (from 1) in front. */
struct journal {
    std::string texte;
    std::string refus;                              // "C1.31;" for each error of a row
    std::vector<const quilvane::sCorps*> refusees;  // and its row
    quilvane::temoin vu = {noter, this};

    journal() = default;
    journal(const journal&) = delete;
    journal& operator=(const journal&) = delete;

    void vider() {
        texte.clear();
        refus.clear();
        refusees.clear();
    }

    static void noter(void* qui, const quilvane::sVu& vu) {
        using namespace quilvane;
        journal& j = *static_cast<journal*>(qui);
        const std::string place = vu.partie + std::to_string(vu.emplacement + 1);
        const std::string valeur = std::string(" '") + vu.valeur + "'";
        const std::string numero = " " + std::to_string(vu.numero);
        const auto ecrire = [&j](const std::string& ligne) { j.texte += ligne + "\n"; };
        switch (vu.quoi) {
            case VU_RECORD: ecrire("record"); break;
            case VU_COUPE: ecrire("coupe"); break;
            case VU_CADRAGE: ecrire("cadrage" + numero); break;
            case VU_LIGNE: ecrire(place + " champ " + std::to_string(vu.ligne->numChamp + 1)); break;
            case VU_IGNOREE: ecrire(place + " ignoree" + valeur); break;
            case VU_VERIFIEE: ecrire(place + valeur); break;
            case VU_REFUSEE: ecrire(place + " refusee" + valeur + numero); break;
            case VU_INTERDITE:
                ecrire(place + " interdite " + std::to_string(vu.presence) + valeur + numero);
                break;
            case VU_TERMINE: ecrire("termine"); break;
        }
        if (vu.quoi != VU_REFUSEE && vu.quoi != VU_INTERDITE) return;
        j.refus += place + "." + std::to_string(vu.numero) + ";";
        j.refusees.push_back(vu.ligne);
    }
};

}  // namespace essai

#endif
