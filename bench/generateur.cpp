/**
 * generateur - writes a file of records made from a seed to standard output.
 *
 *   generateur [graine=N] [nombre=N] [fautes=PER CENT] [types=A,B,...] [fin=dos|unix]
 */
#include "support/generateur.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>

int main(int argc, char* argv[]) {
    essai::commande c;
    for (int i = 1; i < argc; ++i) {
        const std::string mot = argv[i];
        const auto egal = mot.find('=');
        const std::string nom = mot.substr(0, egal);
        const std::string valeur = egal == std::string::npos ? "" : mot.substr(egal + 1);
        if (nom == "graine") {
            c.graine = std::strtoull(valeur.c_str(), nullptr, 10);
        } else if (nom == "nombre") {
            c.nombre = std::atoi(valeur.c_str());
        } else if (nom == "fautes") {
            c.fautes = std::atoi(valeur.c_str());
        } else if (nom == "fin") {
            c.finDeLigne = valeur == "dos" ? "\r\n" : "\n";
        } else if (nom == "types") {
            std::istringstream flux(valeur);
            for (std::string type; std::getline(flux, type, ',');)
                c.types.push_back(type);
        } else {
            std::fprintf(stderr, "generateur: unknown word \"%s\"\n", argv[i]);
            return 1;
        }
    }
    const std::string f = essai::fichierGenere(c);
    return std::fwrite(f.data(), 1, f.size(), stdout) == f.size() ? 0 : 1;
}
