#include "support/vse.h"

#include <cstdio>

namespace essai {

void poser(std::string& record, int col, std::string_view texte) {
    record.replace(static_cast<std::size_t>(col - 1), texte.size(), texte);
}

std::string vse(std::string_view type, std::string_view genre, const std::vector<pose>& corps) {
    std::string r(256, ' ');
    poser(r, 1, "11");
    poser(r, 3, "089ARS  ");
    poser(r, 11, "031BDN  ");
    poser(r, 19, genre);
    poser(r, 22, type);
    poser(r, 26, "1");
    poser(r, 27, "078IPG  ");
    poser(r, 35, "EMETTEUR");
    poser(r, 43, "BDN     ");
    poser(r, 51, "0000000001");
    poser(r, 61, "3N");
    for (const pose& p : corps)
        poser(r, p.col, p.texte);
    poser(r, 231, DATE_FIN);
    poser(r, 239, HEURE_FIN);
    poser(r, 245, "025");
    poser(r, 256, "*");
    return r;
}

std::string fich(int nombre, std::string_view emetteur) {
    char compte[16];
    std::snprintf(compte, sizeof compte, "%06d", nombre);
    std::string r = vse("FICH", "INF",
                        {{63, "FICHIER000000001"},
                         {79, "FICHIER000000002"},
                         {95, compte},
                         {101, "000001"},
                         {107, "000002"},
                         {113, "000003"},
                         {119, "000004"},
                         {125, "5"}});
    poser(r, 3, emetteur);
    return r;
}

std::string acti() {
    return vse("ACTI", "CRE",
               {{63, "FR"},
                {65, "78123456    "},
                {77, "20"},
                {79, "1"},
                {80, "01022024"},
                {88, "        "},
                {96, "B"}});
}

std::string fichier(const std::vector<std::string>& records, std::string_view finDeLigne) {
    std::string f;
    for (const std::string& r : records)
        f.append(r).append(finDeLigne);
    return f;
}

}  // namespace essai
