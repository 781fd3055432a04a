#include <gtest/gtest.h>

#include "support/lignes.h"

using namespace essai;

TEST(Acti, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "ACTI",
        .genres = "CRE INV MOD",
        .modele =
            [](const std::string& genre) {
                std::string r = acti();
                poser(r, 19, genre);
                return r;
            },
        .cas = {},
    });
}
