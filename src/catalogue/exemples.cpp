#include "catalogue/exemples.h"

#include <algorithm>
#include <iterator>

namespace quilvane {

namespace {

// clang-format off
constexpr sZone cAbat[] = {
    {63, "FR"},
    {65, "7812345678  ", "@@########  "},
    {77, "10"},
    {79, "FR"},
    {81, "78123456    ", "@@######    "},
    {93, "10032024"},
    {101, "12032024"},
    {109, "78123456", "@@######"},
    {117, "0350,50", "0###,##"},
    {124, "FR"},
    {126, "78123456    ", "@@######    "},
    {138, "C"},
};
constexpr sZone cActi[] = {
    {63, "FR"},
    {65, "78123456    ", "@@######    "},
    {77, "20"},
    {79, "1"},
    {80, "01022024"},
    {88, "01032024"},
    {96, "B"},
};
constexpr sZone cAsso[] = {
    {63, "FR"},
    {65, "78123456    ", "@@######    "},
    {79, "E"},
    {80, "SIRET"},
    {85, "73282932000074      "},
    {105, "01012020"},
};
constexpr sZone cDete[] = {
    {63, "FR"},
    {65, "078000042   ", "0@@         "},
    {79, "EARL"},
    {83, "DU MOULIN", "DU MOULIN ^^^^"},
    {113, "12 RUE HAUTE", "## RUE HAUTE"},
    {173, "78000", "@@000"},
    {178, "VERSAILLES", "VILLE ^^^^"},
    {222, "FR"},
    {224, "D"},
};
constexpr sZone cDeti[] = {
    {63, "FR"},
    {65, "078000042   ", "0@@#########"},
    {79, "1"},
    {80, "01022024"},
    {88, "01032024"},
};
constexpr sZone cEcbo[] = {
    {63, "FR"},
    {65, "7812345678  ", "@@########  "},
    {79, "10"},
    {81, "0"},
    {82, "1"},
    {83, "FR"},
    {85, "7800000001  ", "@@########  "},
    {111, "12"},
    {113, "DE"},
    {115, "0123456789  ", "##########  "},
    {137, "14"},
};
constexpr sZone cEcha[] = {
    {63, "BE"},
    {65, "0123456789  ", "##########  "},
    {79, "1"},
    {80, "10"},
    {82, "01022023"},
    {90, "BELL", "^^^^"},
    {137, "FR"},
    {139, "78123456    ", "@@######    "},
    {151, "FR"},
    {153, "78123456    ", "@@######    "},
    {175, "1"},
    {176, "0"},
    {177, "10022024"},
};
constexpr sZone cEget[] = {
    {63, "FR"},
    {65, "78A12       ", "@@^##       "},
    {79, "P"},
    {80, "SITE DU MOULIN", "SITE ^^^^"},
    {110, "12 CHEMIN BAS", "## CHEMIN BAS"},
    {140, "78000", "@@000"},
    {145, "VERSAILLES", "VILLE ^^^^"},
};
constexpr sZone cEntr[] = {
    {63, "FR"},
    {65, "7812345678  ", "@@########  "},
    {79, "01022024"},
    {87, "A"},
    {88, "FR"},
    {90, "78123456    ", "@@######    "},
    {102, "FR"},
    {104, "77654321    ", "77######    "},
    {176, "01022024"},
    {185, "10022024"},
};
constexpr sZone cErre[] = {
    {63, "ABAT"},
    {67, "CRE"},
    {70, "FR"},
    {72, "7812345678  ", "@@########  "},
    {84, "FR"},
    {86, "78123456    ", "@@######    "},
    {98, "FR"},
    {100, "78123456    ", "78######    "},
    {112, "0067", "00##"},
    {116, "1"},
    {162, "FR"},
    {164, "78123456    ", "78######    "},
    {176, "FR"},
    {178, "7812345678  ", "78########  "},
    {190, "01022020"},
    {198, "01022023"},
    {206, "01022024"},
    {214, "01022024"},
};
constexpr sZone cErti[] = {
    {63, "FR"},
    {65, "78A12       ", "@@^##       "},
    {79, "P"},
    {81, "01022024", nullptr, "MOD"},
    {97, "01022024"},
};
constexpr sZone cExp1[] = {
    {63, "FR"},
    {65, "78123456    ", "@@######    "},
    {79, "EARL"},
    {83, "DU MOULIN", "DU MOULIN ^^^^"},
    {113, "12 RUE HAUTE", "## RUE HAUTE"},
    {143, "BOITE 34", "BOITE ##"},
    {173, "78000", "@@000"},
    {178, "VERSAILLES", "VILLE ^^^^"},
    {222, "10"},
};
constexpr sZone cExp2[] = {
    {63, "FR"},
    {65, "78123456    ", "@@######    "},
    {79, "FR"},
    {81, "078000042   ", "0@@#########"},
    {97, "FR"},
    {99, "078000043   ", "0@@#########"},
    {141, "01022024"},
    {149, "01022024"},
};
constexpr sZone cGroc[] = {
    {63, "FR"},
    {65, "53000100001 ", "$$$$$$##### "},
    {79, "FR"},
    {81, "78123456    ", "@@######    "},
    {93, "01022024"},
    {101, "AZE123  ", "AZE###  "},
    {109, "FR"},
    {111, "3"},
    {112, "02022024"},
    {122, "120000"},
};
constexpr sZone cImoc[] = {
    {63, "FR"},
    {65, "530001      ", "$$$$$$      "},
    {79, "FR"},
    {81, "78123456    ", "@@######    "},
    {93, "Z"},
    {94, "01022024"},
};
constexpr sZone cImpo[] = {
    {63, "FR"},
    {65, "7812345612  ", "@@######1#  "},
    {79, "1"},
    {80, "10"},
    {82, "01022023"},
    {90, "LUNE", "^^^^"},
    {151, "FR"},
    {153, "78123456    ", "@@######    "},
    {165, "BE"},
    {167, "CERTIFICAT0042", "CERTIFICAT####"},
    {181, "0"},
    {182, "0"},
    {183, "10022024"},
};
constexpr sZone cInfo[] = {
    {63, "FR"},
    {65, "7812345678  ", "@@########  "},
};
constexpr sZone cJalo[] = {
    {63, "FR"},
    {65, "7812345678  ", "@@########  "},
    {79, "FR"},
    {81, "78123456    ", "@@######    "},
    {93, "01022024"},
    {101, "BOUCLE PERDUE", "MOTIF ^^^^"},
    {161, "ETABLE DU BAS", "LIEU ^^^^"},
    {221, "0"},
    {222, "A"},
};
constexpr sZone cNais[] = {
    {63, "FR"},
    {65, "7812345612  ", "@@######1#  "},
    {79, "1"},
    {80, "10"},
    {82, "01022024"},
    {90, "LUNE", "^^^^"},
    {105, "FR"},
    {107, "7800000001  ", "@@########  "},
    {119, "10"},
    {135, "10"},
    {137, "FR"},
    {139, "78123456    ", "@@######    "},
    {159, "0"},
    {160, "0"},
    {161, "10022024"},
};
constexpr sZone cNuma[] = {
    {63, "FR"},
    {65, "78123456    ", "@@######    "},
    {79, "FR"},
    {81, "7800000001  ", "@@0#######  "},
    {93, "000150", "0001##"},
    {99, "01022024"},
    {107, "1"},
    {108, "ABE123  ", "ABE###  "},
    {116, "NBC123  ", "NBC###  "},
};
constexpr sZone cNvmn[] = {
    {63, "FR"},
    {65, "7812345612  ", "@@######1#  "},
    {79, "1"},
    {80, "10"},
    {82, "01022024"},
    {105, "FR"},
    {107, "7800000001  ", "@@########  "},
    {119, "10"},
    {135, "10"},
    {137, "FR"},
    {139, "78123456    ", "@@######    "},
    {151, "10022024"},
};
constexpr sZone cPass[] = {
    {63, "FR"},
    {65, "7812345678  ", "@@########  "},
    {79, "FR"},
    {81, "78123456    ", "@@######    "},
    {93, "01"},
    {95, "01022024"},
    {105, "01022024"},
    {113, "120000"},
    {119, "0"},
};
constexpr sZone cPico[] = {
    {63, "FR"},
    {65, "78123456    ", "@@######    "},
    {79, "FR"},
    {81, "53000100001 ", "$$$$$$0#### "},
    {93, "000150", "0001##"},
    {99, "01022024"},
    {107, "AZE123  ", "AZE###  "},
    {115, "I0"},
    {117, "FR"},
    {119, "3"},
};
constexpr sZone cRaco[] = {
    {63, "FR"},
    {65, "78123456    ", "@@######    "},
    {79, "2023"},
    {83, "EFOLAN"},
    {89, "000042", "######"},
    {95, "01022024"},
};
constexpr sZone cRata[] = {
    {63, "FR"},
    {65, "78A12       ", "@@^##       "},
    {79, "P"},
    {80, "FR"},
    {82, "78123456    ", "@@######    "},
    {94, "FR"},
    {96, "78654321    ", "@@######    "},
    {108, "01022024"},
    {116, "01022024"},
};
constexpr sZone cRebo[] = {
    {63, "FR"},
    {65, "7812345678  ", "@@########  "},
    {79, "01022024"},
    {87, "FR"},
    {89, "78123456    ", "@@######    "},
    {212, "01022024"},
    {220, "ABE123  ", "ABE###  "},
    {228, "1"},
};
constexpr sZone cSort[] = {
    {63, "FR"},
    {65, "7812345678  ", "@@########  "},
    {79, "01022024"},
    {87, "B"},
    {88, "FR"},
    {90, "78123456    ", "@@######    "},
    {102, "FR"},
    {104, "77654321    ", "77######    "},
    {176, "01022024"},
    {184, "10022024"},
};

constexpr sModele tModeles[] = {
    //type   kinds               emitter     body        fields
    {"ABAT", "CRE INV MOD",      "NORM01  ", "NORMABEV", cAbat},
    {"ACTI", "CRE INV MOD",      "089ARS  ", "078IPG  ", cActi},
    {"ASSO", "CRE INV MOD",      "089ARS  ", "078IPG  ", cAsso},
    {"DETE", "CRE DEM INV MOD",  "089ARS  ", "078IPG  ", cDete},
    {"DETI", "CRE INV MOD",      "089ARS  ", "078IPG  ", cDeti},
    {"ECBO", "CRE INV",          "089ARS  ", "078IPG  ", cEcbo},
    {"ECHA", "CRE INV MOD",      "089ARS  ", "078IPG  ", cEcha},
    {"EGET", "CRE INV MOD",      "089ARS  ", "078IPG  ", cEget},
    {"ENTR", "CRE INV MOD",      "089ARS  ", "078IPG  ", cEntr},
    {"ERRE", "ECQ",              "089ARS  ", "078IPG  ", cErre},
    {"ERTI", "CRE INV MOD",      "089ARS  ", "078IPG  ", cErti},
    {"EXP1", "CRE INV MOD",      "089ARS  ", "078IPG  ", cExp1},
    {"EXP2", "CRE INV MOD",      "089ARS  ", "078IPG  ", cExp2},
    {"GROC", "CRE DEM",          "089ARS  ", "078IPG  ", cGroc},
    {"IMOC", "CRE INV",          "089ARS  ", "078IPG  ", cImoc},
    {"IMPO", "CRE INV MOD",      "089ARS  ", "078IPG  ", cImpo},
    {"INFO", "DEM",              "NORM02  ", "078IPG  ", cInfo},
    {"JALO", "CRE",              "089ARS  ", "078IPG  ", cJalo},
    {"NAIS", "CRE DEM INV MOD",  "089ARS  ", "078IPG  ", cNais},
    {"NUMA", "CRE MOD",          "089ARS  ", "078IPG  ", cNuma},
    {"NVMN", "CRE INV MOD",      "089ARS  ", "078IPG  ", cNvmn},
    {"PASS", "DEM INV EDI",      "089ARS  ", "078IPG  ", cPass},
    {"PICO", "CRE",              "089ARS  ", "078IPG  ", cPico},
    {"RACO", "CRE INV MOD",      "089ARS  ", "078IPG  ", cRaco},
    {"RATA", "CRE MOD",          "089ARS  ", "078IPG  ", cRata},
    {"REBO", "CRE INV MOD",      "089ARS  ", "078IPG  ", cRebo},
    {"SORT", "CRE INV MOD",      "089ARS  ", "078IPG  ", cSort},
};
// clang-format on

/** Header and footer of every record, kind and type left blank: columns 1 to 62
 *  and 231 to 256. The date of the record is not before any in its body. */
constexpr std::string_view ENTETE = "11        031BDN         1        EMETTEURBDN     00000000013N";
constexpr std::string_view FIN = "15032024102030025        *";
constexpr std::size_t LARGEUR = 256;
static_assert(ENTETE.size() == 62 && FIN.size() == 26);

/** Writes `texte` over the columns from `debut` (1-based) on. */
void poser(std::string& record, int debut, std::string_view texte) {
    record.replace(static_cast<std::size_t>(debut - 1), texte.size(), texte);
}

std::string vierge(std::string_view type, std::string_view genre, const sModele& modele) {
    std::string record(ENTETE);
    record.resize(LARGEUR - FIN.size(), ' ');
    record += FIN;
    poser(record, 3, modele.emetteur);
    poser(record, 19, genre);
    poser(record, 22, type);
    poser(record, 27, modele.organisme);
    return record;
}

std::string enregistrement(const sModele& modele, std::string_view genre) {
    std::string record = vierge(modele.type, genre, modele);
    for (const sZone& zone : modele.corps)
        if (zone.sauf != genre) poser(record, zone.debut, zone.valeur);
    return record;
}

/** The FICH record of a file with fewer than ten message records. */
std::string enregistrementFICH(const sModele& modele, std::size_t nombre) {
    std::string record = vierge("FICH", "INF", modele);
    poser(record, 63, "078-2024-0000042");
    poser(record, 95, "00000" + std::to_string(nombre));
    poser(record, 101, "0000010000010000000000001");
    return record;
}

/** The type that must follow a creation of `type`; empty when none must. */
std::string_view compagnon(std::string_view type) {
    if (type == "EXP1") return "EXP2";
    if (type == "EGET") return "RATA";
    return "";
}

}  // namespace

const std::span<const sModele> modeles = tModeles;

const sModele* modeleDe(std::string_view type) {
    const sModele* const trouve = std::find_if(std::begin(tModeles), std::end(tModeles),
                                               [=](const sModele& modele) { return modele.type == type; });
    return trouve != std::end(tModeles) ? trouve : nullptr;
}

std::vector<std::string_view> genresDe(std::string_view type) {
    const sModele* const modele = modeleDe(type);
    std::vector<std::string_view> resultat;
    if (modele == nullptr) return resultat;
    constexpr std::size_t LARGEUR_GENRE = 3;
    const std::string_view genres = modele->genres;
    for (std::size_t debut = 0; debut < genres.size(); debut += LARGEUR_GENRE + 1)
        resultat.push_back(genres.substr(debut, LARGEUR_GENRE));
    return resultat;
}

std::string exemple(std::string_view type, std::string_view genre) {
    const std::vector<std::string_view> genres = genresDe(type);
    if (std::find(genres.begin(), genres.end(), genre) == genres.end()) return "";
    const sModele& modele = *modeleDe(type);
    std::vector<std::string> records = {enregistrement(modele, genre)};
    if (genre == "CRE" && !compagnon(type).empty())
        records.push_back(enregistrement(*modeleDe(compagnon(type)), genre));

    std::string fichier = enregistrementFICH(modele, records.size()) + "\n";
    for (const std::string& record : records)
        fichier += record + "\n";
    return fichier;
}

}  // namespace quilvane
