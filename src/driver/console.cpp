#include "driver/console.h"

#include <cstdio>

#include "rules/latin1.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

constexpr texteLatin1 MSG_CARACTERE("VSE  cars non autorisés \n");

const char* messageDeCadrage(int numero) {
    switch (numero) {
        case 106: return MSG_CARACTERE;
        case 107: return "VSE trop long ";
        default: return "VSE trop court ";
    }
}

/** Mode -i: one line for each record, "C1.31;" for each error. */
void voirInformatique(void*, const sVu& vu) {
    switch (vu.quoi) {
        case VU_CADRAGE: std::fputs(messageDeCadrage(vu.numero), stdout); break;
        case VU_REFUSEE:
        case VU_INTERDITE: std::printf("%s%i.%i;", vu.partie, vu.emplacement + 1, vu.numero); break;
        case VU_TERMINE: std::fputc('\n', stdout); break;
        default: break;
    }
}

/** Mode -d: each record, each field with its verdict. */
void voirDecriptee(void*, const sVu& vu) {
    switch (vu.quoi) {
        case VU_RECORD: std::printf("VSE=|%s|\n", xdebug); break;
        case VU_COUPE: std::fputc('\n', stdout); break;
        case VU_LIGNE: std::printf("champ: %d  ", vu.ligne->numChamp + 1); break;
        case VU_IGNOREE: std::printf("verif ignoree! '%s'\n", vu.valeur); break;
        case VU_VERIFIEE: std::printf("'%s'\n", vu.valeur); break;
        case VU_REFUSEE: std::printf("! erreurChamp sur [%s]\n", vu.valeur); break;
        case VU_INTERDITE: std::printf("verifOblg = [%d]\n", vu.presence); break;
        default: break;
    }
}

constexpr temoin INFORMATIQUE = {voirInformatique, nullptr};
constexpr temoin DECRIPTEE = {voirDecriptee, nullptr};

}  // namespace

const temoin* affichageVSE(int visu) {
    if (visu == VISU_INFORMATIQUE) return &INFORMATIQUE;
    return visu == VISU_DECRIPTEE ? &DECRIPTEE : nullptr;
}

void tracer(const char* s) { std::printf("    [****] xdebug message:\"%s\" [****]\n", s); }

}  // namespace quilvane
