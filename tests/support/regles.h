/**
 * regles.h - every rule row of the product, so that a proof leaves none out.
 */
#ifndef QUILVANE_TESTS_SUPPORT_REGLES_H
#define QUILVANE_TESTS_SUPPORT_REGLES_H

#include <string>
#include <vector>

#include "messages/aiguillage.h"
#include "rules/entete.h"

namespace essai {

/** One rule table: "E" the header, "F" the footer, else the message type. */
struct tableDeRegles {
    std::string nom;
    const quilvane::sCorps* lignes;
    int nombre;
};

/** Header, footer, FICH body and every table that a message type is routed to. */
inline std::vector<tableDeRegles> tablesDeRegles() {
    using namespace quilvane;
    std::vector<tableDeRegles> tables = {{"E", tEntete, lEntete}, {"F", tFin, lFin}, {"FICH", tFich, lFich}};
    for (const sAiguillage& route : tAiguillage)
        if (route.tabVerif != nullptr) tables.push_back({route.nomVSE, route.tabVerif, *route.pLenTabVerif});
    return tables;
}

/** One rule row and the columns of the field that it checks. */
struct regle {
    std::string table;
    const quilvane::sCorps* ligne;
    int debut, fin;

    int largeur() const { return fin - debut + 1; }
    std::string nom() const { return table + " C" + std::to_string(ligne->numChamp + 1); }
};

/** Every row with a check. */
inline std::vector<regle> reglesAvecVerif() {
    std::vector<regle> regles;
    for (const tableDeRegles& t : tablesDeRegles()) {
        int debut = 0, fin = 0;
        for (const quilvane::sCorps* l = t.lignes; l != t.lignes + t.nombre; ++l) {
            if (l->debut != 0) debut = l->debut, fin = l->fin;
            if (l->pfVerif != nullptr) regles.push_back({t.nom, l, debut, fin});
        }
    }
    return regles;
}

}  // namespace essai

#endif
