#include "driver/noms.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "controle/lot.h"

namespace quilvane {

namespace {

/** A new text of the first `n` characters. */
char* copie(const char* texte, std::size_t n) {
    auto* const nouveau = static_cast<char*>(std::malloc(n + 1));
    if (nouveau == nullptr) return nullptr;
    std::memcpy(nouveau, texte, n);
    nouveau[n] = '\0';
    return nouveau;
}

bool estSeparateur(char c) { return c == '/' || c == '\\'; }

/** The last '/', failing that the last '\', else null. */
const char* dernierSeparateur(const char* chemin) {
    const char* const barre = std::strrchr(chemin, '/');
    return barre != nullptr ? barre : std::strrchr(chemin, '\\');
}

char* dossierDe(const char* chemin, std::size_t separateursGardes) {
    const char* p = dernierSeparateur(chemin);
    if (p == nullptr) return copie(".", 1);
    while (p > chemin && estSeparateur(p[-1]))
        --p;
    return copie(chemin, static_cast<std::size_t>(p - chemin) + separateursGardes);
}

}  // namespace

char* nomDuRep(const char* chemin) { return dossierDe(chemin, 0); }

char* nomDuRep2(const char* chemin) { return dossierDe(chemin, 1); }

char* nomDuFic(const char* chemin) {
    const char* const separateur = dernierSeparateur(chemin);
    const char* const nom = separateur != nullptr ? separateur + 1 : chemin;
    return copie(nom, std::strlen(nom));
}

char* nomDeTravail(const char* dossier, const char* fichier, const char* suffixe) {
    // Only the folder of this name is used, so that its being free does not matter.
    char* const libre = tempnam(dossier, nullptr);
    if (libre == nullptr) return nullptr;
    char* const choisi = nomDuRep2(libre);
    std::free(libre);
    if (choisi == nullptr) return nullptr;
    const char* const variante = std::strcmp(VARIANTE, "QUILVANEPF") == 0 ? "_pf" : "";
    const std::size_t taille =
        std::strlen(choisi) + std::strlen(fichier) + std::strlen(suffixe) + std::strlen(variante) + 1;
    auto* const nom = static_cast<char*>(std::malloc(taille));
    if (nom != nullptr) std::snprintf(nom, taille, "%s%s%s%s", choisi, fichier, suffixe, variante);
    std::free(choisi);
    return nom;
}

void jetonDuNom(const char* argument, char* jeton, int taille) {
    jeton[0] = '\0';
    const char* const debut = std::strchr(argument, '_');
    if (debut == nullptr) return;
    std::size_t n = std::strcspn(debut + 1, "_");
    if (n >= static_cast<std::size_t>(taille)) n = static_cast<std::size_t>(taille) - 1;
    std::memcpy(jeton, debut + 1, n);
    jeton[n] = '\0';
}

}  // namespace quilvane
