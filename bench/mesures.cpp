/**
 * mesures - the record loop, the engine per message type, list searches and
 * the heaviest checks, under Google Benchmark.
 */
#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <vector>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "driver/etat.h"
#include "driver/flux.h"
#include "driver/sorties.h"
#include "driver/traitement.h"
#include "messages/aiguillage.h"
#include "rules/moteur.h"
#include "support/generateur.h"
#include "support/vse.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;

namespace {

/** Fresh state with outputs that go nowhere. */
struct depart {
    depart() {
        initialiserEtat();
        faireVSEDate(VSEDate);
        fp_emis = std::fopen("/dev/null", "w");
        fp_erre = std::fopen("/dev/null", "w");
        preparerSorties();
    }
    ~depart() {
        std::fclose(fp_emis);
        std::fclose(fp_erre);
        fp_emis = fp_erre = nullptr;
    }
    depart(const depart&) = delete;
    depart& operator=(const depart&) = delete;
};

/** Reading and processing of a whole file of 10000 records. */
void boucle(benchmark::State& etat, int fautes) {
    std::string fichier = essai::fichierGenere({.graine = 1, .fautes = fautes});
    std::int64_t records = 0;
    for (auto _ : etat) {
        const depart d;
        std::FILE* const entree = fmemopen(fichier.data(), fichier.size(), "rb");
        ouvrirFlux(entree);
        char tampon[TAILLE_TAMPON];
        int nombre = 1;
        for (cverseFgetsRet fin; (fin = cverseFgets(tampon)) == CVERSE_UNIX; ++nombre) {
            benchmark::DoNotOptimize(traitement(tampon, VISU_AUCUNE, nombre, fin));
            nbErreur = 0;
        }
        records += nombre - 1;
        std::fclose(entree);
    }
    etat.SetItemsProcessed(records);
}
BENCHMARK_CAPTURE(boucle, acceptes, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(boucle, rejetes, 100)->Unit(benchmark::kMillisecond);

/** One record of a type, from its header to the output. */
void record(benchmark::State& etat, const std::string& type) {
    const depart d;
    essai::hasard h(1);
    const std::string r = essai::recordCorrect(type, essai::genresDe(type).front(), h);
    traitement(essai::fich(1, essai::emetteurPour(type)).c_str(), VISU_AUCUNE, 1, CVERSE_UNIX);
    for (auto _ : etat) {
        nbErreur = 0;
        benchmark::DoNotOptimize(traitement(r.c_str(), VISU_AUCUNE, 2, CVERSE_UNIX));
    }
    etat.SetItemsProcessed(etat.iterations());
}

void recherche(benchmark::State& etat, const liste& valeurs, const char* texte) {
    for (auto _ : etat)
        benchmark::DoNotOptimize(dansListe(texte, valeurs));
}
BENCHMARK_CAPTURE(recherche, TP_premier, TP, "AF");
BENCHMARK_CAPTURE(recherche, TP_FR, TP, "FR");
BENCHMARK_CAPTURE(recherche, TP_absent, TP, "QQ");
BENCHMARK_CAPTURE(recherche, TDC_078, TDC, "078IPG  ");
BENCHMARK_CAPTURE(recherche, TRSMOD_dernier, TRSMOD, "SCIC");

void verif(benchmark::State& etat, fVerif* v, const char* dependance, const char* texte,
           const liste& sverif) {
    char champ[64];
    for (auto _ : etat) {
        std::strcpy(champ, texte);
        benchmark::DoNotOptimize(v(dependance, champ, sverif));
    }
}
BENCHMARK_CAPTURE(verif, fDATEC, fDATEC, "", "29022024", sansListe);
BENCHMARK_CAPTURE(verif, fCoherenDC, fCoherenDC, "15032024", "29022024", sansListe);
BENCHMARK_CAPTURE(verif, fConform10, fConform10, "", "9512345678  ", TD);
BENCHMARK_CAPTURE(verif, fCoheren_OC_IND_M, fCoheren_OC_IND_M, "976IPG  ", "650001      ", IND_M);
BENCHMARK_CAPTURE(verif, fVerifNumEtranger, fVerifNumEtranger, "BE", "ABCDEFGH1234", sansListe);

}  // namespace

int main(int argc, char* argv[]) {
    for (const std::string& type : essai::typesDeMessage())
        benchmark::RegisterBenchmark(("record/" + type).c_str(),
                                     [type](benchmark::State& e) { record(e, type); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
