#include "support/generateur.h"

#include <algorithm>
#include <sstream>

#include "checks/valautorise.h"
#include "support/vse.h"
#include "vocabulaire/store.h"

namespace essai {

namespace {

/**
 * A type's correct body. In the texts '@' stands for the department's two
 * digits, '#' for a digit, '^' for a capital, '$' for a number of the
 * department's ovine and caprine range; each run is replaced as a whole.
 */
struct modele {
    const char* type;
    const char* genres;
    std::vector<pose> corps;
};

const std::vector<modele>& modeles() {
    static const std::vector<modele> TOUS = {
        {"ABAT",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@########  "},
          {77, "10"},
          {79, "FR"},
          {81, "@@######    "},
          {93, "10032024"},
          {101, "12032024"},
          {109, "@@######"},
          {117, "0###,##"},
          {124, "FR"},
          {126, "@@######    "},
          {138, "C"}}},
        {"ACTI",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@######    "},
          {77, "20"},
          {79, "1"},
          {80, "01022024"},
          {88, "01032024"},
          {96, "B"}}},
        {"ASSO",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@######    "},
          {79, "E"},
          {80, "SIRET"},
          {85, "73282932000074      "},
          {105, "01012020"}}},
        {"DETE",
         "CRE DEM INV MOD",
         {{63, "FR"},
          {65, "0@@         "},
          {79, "EARL"},
          {83, "DU MOULIN ^^^^"},
          {113, "## RUE HAUTE"},
          {173, "@@000"},
          {178, "VILLE ^^^^"},
          {222, "FR"},
          {224, "D"}}},
        {"DETI",
         "CRE INV MOD",
         {{63, "FR"}, {65, "0@@#########"}, {79, "1"}, {80, "01022024"}, {88, "01032024"}}},
        {"ECBO",
         "CRE INV",
         {{63, "FR"},
          {65, "@@########  "},
          {79, "10"},
          {81, "0"},
          {82, "1"},
          {83, "FR"},
          {85, "@@########  "},
          {111, "12"},
          {113, "DE"},
          {115, "##########  "},
          {137, "14"}}},
        {"ECHA",
         "CRE INV MOD",
         {{63, "BE"},
          {65, "##########  "},
          {79, "1"},
          {80, "10"},
          {82, "01022023"},
          {90, "^^^^"},
          {137, "FR"},
          {139, "@@######    "},
          {151, "FR"},
          {153, "@@######    "},
          {175, "1"},
          {176, "0"},
          {177, "10022024"}}},
        {"EGET",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@^##       "},
          {79, "P"},
          {80, "SITE ^^^^"},
          {110, "## CHEMIN BAS"},
          {140, "@@000"},
          {145, "VILLE ^^^^"}}},
        {"ENTR",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@########  "},
          {79, "01022024"},
          {87, "A"},
          {88, "FR"},
          {90, "@@######    "},
          {102, "FR"},
          {104, "77######    "},
          {176, "01022024"},
          {185, "10022024"}}},
        {"ERRE",
         "ECQ",
         {{63, "ABAT"},
          {67, "CRE"},
          {70, "FR"},
          {72, "@@########  "},
          {84, "FR"},
          {86, "@@######    "},
          {98, "FR"},
          {100, "78######    "},
          {112, "00##"},
          {116, "1"},
          {162, "FR"},
          {164, "78######    "},
          {176, "FR"},
          {178, "78########  "},
          {190, "01022020"},
          {198, "01022023"},
          {206, "01022024"},
          {214, "01022024"}}},
        {"ERTI",
         "CRE INV MOD",
         {{63, "FR"}, {65, "@@^##       "}, {79, "P"}, {81, "01022024"}, {97, "01022024"}}},
        {"EXP1",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@######    "},
          {79, "EARL"},
          {83, "DU MOULIN ^^^^"},
          {113, "## RUE HAUTE"},
          {143, "BOITE ##"},
          {173, "@@000"},
          {178, "VILLE ^^^^"},
          {222, "10"}}},
        {"EXP2",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@######    "},
          {79, "FR"},
          {81, "0@@#########"},
          {97, "FR"},
          {99, "0@@#########"},
          {141, "01022024"},
          {149, "01022024"}}},
        {"GROC",
         "CRE DEM",
         {{63, "FR"},
          {65, "$$$$$$##### "},
          {79, "FR"},
          {81, "@@######    "},
          {93, "01022024"},
          {101, "AZE###  "},
          {109, "FR"},
          {111, "3"},
          {112, "02022024"},
          {122, "120000"}}},
        {"IMOC",
         "CRE INV",
         {{63, "FR"}, {65, "$$$$$$      "}, {79, "FR"}, {81, "@@######    "}, {93, "Z"}, {94, "01022024"}}},
        {"IMPO",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@######1#  "},
          {79, "1"},
          {80, "10"},
          {82, "01022023"},
          {90, "^^^^"},
          {151, "FR"},
          {153, "@@######    "},
          {165, "BE"},
          {167, "CERTIFICAT####"},
          {181, "0"},
          {182, "0"},
          {183, "10022024"}}},
        {"INFO", "DEM", {{63, "FR"}, {65, "@@########  "}}},
        {"JALO",
         "CRE",
         {{63, "FR"},
          {65, "@@########  "},
          {79, "FR"},
          {81, "@@######    "},
          {93, "01022024"},
          {101, "MOTIF ^^^^"},
          {161, "LIEU ^^^^"},
          {221, "0"},
          {222, "A"}}},
        {"NAIS",
         "CRE DEM INV MOD",
         {{63, "FR"},
          {65, "@@######1#  "},
          {79, "1"},
          {80, "10"},
          {82, "01022024"},
          {90, "^^^^"},
          {105, "FR"},
          {107, "@@########  "},
          {119, "10"},
          {135, "10"},
          {137, "FR"},
          {139, "@@######    "},
          {159, "0"},
          {160, "0"},
          {161, "10022024"}}},
        {"NUMA",
         "CRE MOD",
         {{63, "FR"},
          {65, "@@######    "},
          {79, "FR"},
          {81, "@@0#######  "},
          {93, "0001##"},
          {99, "01022024"},
          {107, "1"},
          {108, "ABE###  "},
          {116, "NBC###  "}}},
        {"NVMN",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@######1#  "},
          {79, "1"},
          {80, "10"},
          {82, "01022024"},
          {105, "FR"},
          {107, "@@########  "},
          {119, "10"},
          {135, "10"},
          {137, "FR"},
          {139, "@@######    "},
          {151, "10022024"}}},
        {"PASS",
         "DEM INV EDI",
         {{63, "FR"},
          {65, "@@########  "},
          {79, "FR"},
          {81, "@@######    "},
          {93, "01"},
          {95, "01022024"},
          {105, "01022024"},
          {113, "120000"},
          {119, "0"}}},
        {"PICO",
         "CRE",
         {{63, "FR"},
          {65, "@@######    "},
          {79, "FR"},
          {81, "$$$$$$0#### "},
          {93, "0001##"},
          {99, "01022024"},
          {107, "AZE###  "},
          {115, "I0"},
          {117, "FR"},
          {119, "3"}}},
        {"RACO",
         "CRE INV MOD",
         {{63, "FR"}, {65, "@@######    "}, {79, "2023"}, {83, "EFOLAN"}, {89, "######"}, {95, "01022024"}}},
        {"RATA",
         "CRE MOD",
         {{63, "FR"},
          {65, "@@^##       "},
          {79, "P"},
          {80, "FR"},
          {82, "@@######    "},
          {94, "FR"},
          {96, "@@######    "},
          {108, "01022024"},
          {116, "01022024"}}},
        {"REBO",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@########  "},
          {79, "01022024"},
          {87, "FR"},
          {89, "@@######    "},
          {212, "01022024"},
          {220, "ABE###  "},
          {228, "1"}}},
        {"SORT",
         "CRE INV MOD",
         {{63, "FR"},
          {65, "@@########  "},
          {79, "01022024"},
          {87, "B"},
          {88, "FR"},
          {90, "@@######    "},
          {102, "FR"},
          {104, "77######    "},
          {176, "01022024"},
          {184, "10022024"}}},
    };
    return TOUS;
}

const modele& modeleDe(const std::string& type) {
    return *std::find_if(modeles().begin(), modeles().end(), [&](const modele& m) { return type == m.type; });
}

/** A number of the department's ovine and caprine range. */
std::string indicatif(const std::string& dep, hasard& h) {
    for (int i = 0; i < quilvane::IND_M.lignes(3); ++i) {
        const quilvane::tValAutorise* const plage = quilvane::IND_M.ligne(i);
        if (std::string(plage[0].valeur) != "0" + dep + "IPG") continue;
        const int bas = std::stoi(plage[1].valeur);
        const int haut = std::stoi(plage[2].valeur);
        return std::to_string(bas + h.jusqua(haut - bas + 1));
    }
    return "";
}

std::string remplacer(std::string texte, const std::string& dep, hasard& h) {
    std::string plage;
    std::size_t rangPlage = 0;
    std::size_t rangDep = 0;
    for (char& c : texte) {
        if (c == '@')
            c = dep[rangDep++ % 2];
        else if (c == '#')
            c = static_cast<char>('0' + h.jusqua(10));
        else if (c == '^')
            c = static_cast<char>('A' + h.jusqua(26));
        else if (c == '$') {
            if (plage.empty()) plage = indicatif(dep, h);
            c = plage[rangPlage++];
        }
    }
    return texte;
}

/** Faults that every message type notices. */
const std::vector<std::vector<pose>>& fautes() {
    static const std::vector<std::vector<pose>> TOUTES = {
        {{256, "#"}},                                          // end mark
        {{231, "30022024"}},                                   // record date
        {{239, "246060"}},                                     // record time
        {{27, "020IPG  "}},                                    // departmental body
        {{35, "A B C D "}, {43, "AUTRE   "}},                  // header codes
        {{63, "??"}, {65, "            "}},                    // first body fields
        {{63, "??"}, {65, "ABCDEFGHIJKL"}, {79, "????????"}},  // more of them
    };
    return TOUTES;
}

/** Makes a correct record wrong. */
void gater(std::string& record, hasard& h) {
    const auto rang = static_cast<std::size_t>(h.jusqua(static_cast<int>(fautes().size())));
    for (const pose& p : fautes()[rang])
        poser(record, p.col, p.texte);
    // Some types leave a body field open; the end mark never is.
    if (record[62] == '?') poser(record, 256, "#");
}

}  // namespace

std::uint64_t hasard::suivant() {
    etat += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = etat;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

const std::vector<std::string>& typesDeMessage() {
    static const std::vector<std::string> TYPES = [] {
        std::vector<std::string> r;
        for (const modele& m : modeles())
            r.emplace_back(m.type);
        return r;
    }();
    return TYPES;
}

std::vector<std::string> genresDe(const std::string& type) {
    std::istringstream flux(modeleDe(type).genres);
    std::vector<std::string> r;
    for (std::string g; flux >> g;)
        r.push_back(g);
    return r;
}

std::string emetteurPour(const std::string& type) { return type == "INFO" ? "NORM02  " : "NORM01  "; }

std::string recordCorrect(const std::string& type, const std::string& genre, hasard& h) {
    constexpr const char* DEPARTEMENTS[] = {"01", "14", "29", "35", "49", "61", "72", "78", "85", "95"};
    const std::string dep = DEPARTEMENTS[h.jusqua(10)];
    std::string r = vse(type, genre);
    poser(r, 3, emetteurPour(type));
    poser(r, 27, type == "ABAT" ? "NORMABEV" : "0" + dep + "IPG  ");
    for (const pose& p : modeleDe(type).corps)
        poser(r, p.col, remplacer(p.texte, dep, h));
    if (type == "ERTI" && genre == "MOD") poser(r, 81, "        ");  // its date may not be modified
    return r;
}

std::string fichierGenere(const commande& c) {
    hasard h(c.graine);
    std::vector<std::string> types = c.types;
    if (types.empty())
        for (const std::string& t : typesDeMessage())
            if (t != "INFO") types.push_back(t);
    const bool info = std::find(types.begin(), types.end(), "INFO") != types.end();

    std::vector<std::string> records = {fich(c.nombre, info ? "NORM02  " : "NORM01  ")};
    const auto total = static_cast<std::size_t>(c.nombre) + 1;
    while (records.size() < total) {
        const std::string& type = types[static_cast<std::size_t>(h.jusqua(static_cast<int>(types.size())))];
        const std::vector<std::string> genres = genresDe(type);
        const std::string& genre =
            genres[static_cast<std::size_t>(h.jusqua(static_cast<int>(genres.size())))];
        const bool paire = (type == "EXP1" || type == "EGET") && genre == "CRE";
        if (paire && records.size() + 2 > total) continue;
        std::string r = recordCorrect(type, genre, h);
        records.push_back(r);
        if (paire) {
            std::string compagnon = recordCorrect(type == "EXP1" ? "EXP2" : "RATA", "CRE", h);
            poser(compagnon, 27, r.substr(26, 8));
            poser(compagnon, 65, r.substr(64, 12));
            records.push_back(compagnon);
        }
    }
    for (std::size_t i = 1; i < records.size(); ++i)
        if (h.jusqua(100) < c.fautes) gater(records[i], h);
    return fichier(records, c.finDeLigne);
}

}  // namespace essai
