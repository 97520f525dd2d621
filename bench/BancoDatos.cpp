// Look-ups of names through the service, an object made for each call as the program does.

#include <benchmark/benchmark.h>

#include "core/services/svrZELT/cZTDatosGeneral.h"

namespace {

void NombresDeProvincia(benchmark::State& estado) {
    constexpr int kBusquedas = 10'000;
    for (auto _ : estado) {
        for (int i = 0; i < kBusquedas; ++i) {
            svrZELT::cZTDatosGeneral servidor;
            servidor.mdblec = QStringLiteral(ZELT_REFERENCIA);
            benchmark::DoNotOptimize(servidor.ObtenerNombreProvincia(static_cast<qint16>(1 + i % 52), 0));
        }
    }
    estado.SetItemsProcessed(estado.iterations() * kBusquedas);
}
BENCHMARK(NombresDeProvincia)->Unit(benchmark::kMillisecond);

}  // namespace
