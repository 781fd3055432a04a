/**
 * cas.h - small tools for the tests of message types: records that differ from
 * a correct one in a few columns, and the presence codes of whole tables.
 */
#ifndef QUILVANE_TESTS_MESSAGES_CAS_H
#define QUILVANE_TESTS_MESSAGES_CAS_H

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "catalogue/verifs.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "support/champ.h"
#include "support/lignes.h"

namespace essai {

/** A correct record with some columns changed, and all its errors in order. */
struct casVSE {
    std::string nom;
    std::string genre;
    std::vector<pose> poses;
    std::vector<int> codes;
};

inline void prouverVSE(const std::function<std::string(const std::string&)>& modele,
                       const std::vector<casVSE>& cas, const std::string& emetteur = "089ARS  ") {
    for (const casVSE& c : cas) {
        std::string record = modele(c.genre);
        for (const pose& p : c.poses)
            poser(record, p.col, p.texte);
        EXPECT_EQ(codesDe(record, emetteur), c.codes) << c.genre << ": " << c.nom;
    }
}

/** A field text and whether a check accepts it. */
struct verdict {
    std::string champ;
    bool attendu;
};

inline void prouverChamps(quilvane::fVerif* verif, const std::string& dependance,
                          const std::vector<verdict>& cas,
                          const quilvane::liste& sverif = quilvane::sansListe) {
    for (const verdict& v : cas)
        EXPECT_EQ(accepte(verif, dependance, v.champ, sverif), v.attendu) << "[" << v.champ << "]";
}

/** The record that checks on columns look at. */
inline void presenter(const std::string& record) {
    std::snprintf(quilvane::xdebug, quilvane::TAILLE_XDEBUG, "%s", record.c_str());
}

/** Every row that has a check carries the presence code `code` in the column `genre`. */
inline void prouverPresence(const std::string& type, int quilvane::sCorps::*genre, int code) {
    const quilvane::sAiguillage& route = quilvane::tAiguillage[quilvane::aiguiller(type.c_str())];
    ASSERT_EQ(route.nomVSE, type);
    for (int i = 0; i < *route.pLenTabVerif; ++i) {
        const quilvane::sCorps& ligne = route.tabVerif[i];
        if (ligne.pfVerif == nullptr) continue;
        EXPECT_EQ(ligne.*genre, code) << type << " row " << i;
    }
}

/** Ten times error 86: every place that a record has. */
inline const std::vector<int> TOUT_REFUSE(10, 86);

}  // namespace essai

#endif
