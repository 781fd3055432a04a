#include "driver/etat.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

using namespace quilvane;

// Runs that follow each other in one process start alike.
TEST(Etat, RevientAuDebutDuProcessus) {
    struct variable {
        const char* nom;
        void* adresse;
        std::size_t taille;
    };
#define VARIABLE(nom) \
    { #nom, static_cast < void*>(&nom), sizeof nom }
    const variable VARIABLES[] = {
        VARIABLE(name_recu),     VARIABLE(name_emis), VARIABLE(name_log), VARIABLE(name_tmp_recu),
        VARIABLE(name_tmp_emis), VARIABLE(name_erre), VARIABLE(fp_log),   VARIABLE(fp_recu),
        VARIABLE(fp_emis),       VARIABLE(fp_erre),   VARIABLE(visu),
    };
#undef VARIABLE
    for (const variable& v : VARIABLES)
        std::memset(v.adresse, 0x5A, v.taille);
    initialiserEtat();
    for (const variable& v : VARIABLES) {
        const std::string attendus(v.taille, '\0');
        EXPECT_TRUE(std::memcmp(v.adresse, attendus.data(), v.taille) == 0) << v.nom;
    }
}
