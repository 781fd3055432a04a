#include "rapport/tables.h"

#include <array>

#include "messages/aiguillage.h"
#include "rules/constat.h"
#include "rules/entete.h"

namespace quilvane {

namespace {

constexpr int NB_TABLES = LEN_AIGUILLAGE - 1 + 3;

const std::array<sTable, NB_TABLES>& toutes() {
    static const std::array<sTable, NB_TABLES> TOUTES = [] {
        std::array<sTable, NB_TABLES> t{};
        std::size_t n = 0;
        t[n++] = {"E", "E", tEntete, lEntete};
        t[n++] = {"FICH", "C", tFich, lFich};
        for (const sAiguillage& route : tAiguillage)
            if (route.tabVerif != nullptr) t[n++] = {route.nomVSE, "C", route.tabVerif, *route.pLenTabVerif};
        t[n++] = {"F", "F", tFin, lFin};
        return t;
    }();
    return TOUTES;
}

/** The slot that a text is, -1 when it is none of them. */
template <std::size_t N>
int slotDe(const valeurVSE (&slots)[N], const char* texte) {
    for (std::size_t i = 0; i < N; ++i)
        if (slots[i].valeur == texte) return static_cast<int>(i);
    return -1;
}

}  // namespace

std::span<const sTable> tables() { return toutes(); }

const sTable* tableDe(const sCorps* ligne) {
    for (const sTable& t : tables())
        if (ligne >= t.lignes && ligne < t.lignes + t.nombre) return &t;
    return nullptr;
}

const sTable* tableNommee(std::string_view nom) {
    for (const sTable& t : tables())
        if (t.nom == nom) return &t;
    return nullptr;
}

sPlace auSlot(const sTable* table, int emplacement) {
    int rang = -1;
    for (int i = 0; i < table->nombre; ++i)
        if (table->lignes[i].debut != 0 && ++rang == emplacement) return {table, &table->lignes[i], rang};
    return {nullptr, nullptr, 0};
}

sPlace placeDe(const sCorps* ligne) {
    const sTable* const table = tableDe(ligne);
    const sCorps* const champ = champDe(ligne);
    int emplacement = 0;
    for (const sCorps* l = table->lignes; l != champ; ++l)
        if (l->debut != 0) ++emplacement;
    return {table, champ, emplacement};
}

sPlace dependanceDe(const sCorps* ligne) {
    const char* const texte = ligne->dependance;
    if (const int e = slotDe(valEnteteVSE, texte); e >= 0) return auSlot(&toutes().front(), e);
    if (const int e = slotDe(valFichEnteteVSE, texte); e >= 0) return auSlot(&toutes().front(), e);
    if (const int e = slotDe(valFinVSE, texte); e >= 0) return auSlot(&toutes().back(), e);
    if (const int e = slotDe(valCorpsVSE, texte); e >= 0) return auSlot(tableDe(ligne), e);
    return {nullptr, nullptr, 0};
}

std::string nomDuChamp(const sPlace& p) { return p.table->partie + std::to_string(p.champ->numChamp + 1); }

const char* libelleDuChamp(const sPlace& p, eLangue langue) {
    const sChamp* const c = libelleDe(p.table->nom, p.champ->numChamp);
    return c != nullptr ? c->libelle.en_langue(langue) : "";
}

const sListe* listeDeLigne(const sCorps* ligne) { return listeEnMots(ligne->sverif); }

int presenceDe(const sTable& table, const sCorps* ligne, std::string_view genre) {
    if (table.partie[0] != 'C' || table.lignes == tFich) return 0;
    if (genre == "CRE" || genre == "ECQ") return ligne->typeCRE;
    if (genre == "DEM") return ligne->typeDEM;
    if (genre == "INV") return ligne->typeINV;
    if (genre == "EDI") return ligne->typeEDI;
    if (genre == "MOD") return ligne->typeMOD;
    return 2;
}

bool accepte(const sCorps* ligne, char* valeur) {
    return ligne->pfVerif(ligne->dependance, valeur, *ligne->sverif) != 0;
}

}  // namespace quilvane
