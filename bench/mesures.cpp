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
#include "controle/composition.h"
#include "support/generateur.h"
#include "support/memoire.h"
#include "support/passage.h"
#include "support/vse.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;

namespace {

/** Reading, processing and composing of a whole file of 10000 records. */
void boucle(benchmark::State& etat, int fautes) {
    essai::memoire fichier(essai::fichierGenere({.graine = 1, .fautes = fautes}));
    static lecteur source;
    static lot l;
    std::int64_t records = 0;
    for (auto _ : etat) {
        commencer(l);
        fichier.ouvrir(source);
        for (verdict v; suivant(l, source, v) == SUITE_VERDICT; ++records) {
            ajouts a;
            ajouterVerdict(a, l, v);
            benchmark::DoNotOptimize(a);
        }
    }
    etat.SetItemsProcessed(records);
}
BENCHMARK_CAPTURE(boucle, acceptes, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(boucle, rejetes, 100)->Unit(benchmark::kMillisecond);

/** One record of a type, from its header to what it adds to a file. */
void record(benchmark::State& etat, const std::string& type) {
    essai::passage p;
    essai::hasard h(1);
    const std::string r = essai::recordCorrect(type, essai::genresDe(type).front(), h);
    p.traiter(essai::fich(1, essai::emetteurPour(type)));
    std::memcpy(p.l.ligne.texte, r.c_str(), r.size() + 1);
    for (auto _ : etat) {
        verdict v = {.fatal = eFatal::AUCUN, .rang = 2, .erreurs = 0, .itAiguil = 0, .sansCompagnon = 0};
        traitement(p.l, v);
        ajouts a;
        ajouterVerdict(a, p.l, v);
        benchmark::DoNotOptimize(a);
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
