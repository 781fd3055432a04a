#include "support/generateur.h"

#include <algorithm>

#include "catalogue/exemples.h"
#include "checks/valautorise.h"
#include "support/vse.h"
#include "vocabulaire/store.h"

namespace essai {

namespace {

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

/** A text of the form that a model gives (catalogue/exemples.h). */
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
        for (const quilvane::sModele& m : quilvane::modeles)
            r.emplace_back(m.type);
        return r;
    }();
    return TYPES;
}

std::vector<std::string> genresDe(const std::string& type) {
    const std::vector<std::string_view> genres = quilvane::genresDe(type);
    return {genres.begin(), genres.end()};
}

std::string emetteurPour(const std::string& type) { return type == "INFO" ? "NORM02  " : "NORM01  "; }

std::string recordCorrect(const std::string& type, const std::string& genre, hasard& h) {
    constexpr const char* DEPARTEMENTS[] = {"01", "14", "29", "35", "49", "61", "72", "78", "85", "95"};
    const std::string dep = DEPARTEMENTS[h.jusqua(10)];
    std::string r = vse(type, genre);
    poser(r, 3, emetteurPour(type));
    poser(r, 27, type == "ABAT" ? "NORMABEV" : "0" + dep + "IPG  ");
    for (const quilvane::sZone& zone : quilvane::modeleDe(type)->corps)
        if (zone.sauf != genre)
            poser(r, zone.debut, remplacer(zone.forme != nullptr ? zone.forme : zone.valeur, dep, h));
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
