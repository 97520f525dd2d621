// Backup, restore and refusal of a copy, with 10,000 declarants of four declarations each.

#include <benchmark/benchmark.h>

#include <QFile>

#include "app/ZTAplicacion.h"
#include "bench/AlmacenDeBanco.h"
#include "core/copies/CopiaDeAlmacen.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/copies/RestauracionDeAlmacen.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"

namespace {

constexpr int kDeclarantes = 10'000;

QString Copia() { return Entorno().CarpetaPrograma + QStringLiteral("/copia.mdb"); }

void CrearDeclaraciones(qint32 ultimo) {
    AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base().exec("PRAGMA synchronous = OFF");
    svrZELT::cZTDeclaraciones servidor;
    servidor.mdbmod = Entorno().mdbmod;
    for (qint32 CSDE = 1; CSDE <= ultimo; ++CSDE) {
        for (qint16 periodo = 1; periodo <= 4; ++periodo) {
            (void)servidor.GuardarDeclaraciones(
                {CSDE, qint16{2007}, periodo, 24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
        }
    }
    CerrarAlmacenes();
}

void HacerCopia(benchmark::State& estado) {
    for (auto _ : estado) {
        CopiarAlmacen(Entorno().mdbmod, Copia(), std::nullopt, SinAvance);
    }
    estado.counters["MiB"] = static_cast<double>(QFile(Copia()).size()) / (1 << 20);
}
BENCHMARK(HacerCopia)->Unit(benchmark::kMillisecond);

void ExaminarCopia(benchmark::State& estado) {
    for (auto _ : estado) {
        benchmark::DoNotOptimize(RevisarCopia(Copia()));
    }
}
BENCHMARK(ExaminarCopia)->Unit(benchmark::kMillisecond);

void RestaurarCopia(benchmark::State& estado) {
    for (auto _ : estado) {
        RestaurarAlmacen(Copia(), Entorno().mdbmod, AhoraDeCopias(), SinAvance);
    }
}
BENCHMARK(RestaurarCopia)->Unit(benchmark::kMillisecond);

/// What the first change of a day adds to it.
void CopiaAutomatica(benchmark::State& estado) {
    for (auto _ : estado) {
        const auto almacen = AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod);
        const QString ruta =
            HacerCopiaAutomatica(almacen->Base(), Entorno().mdbmod, Ocasion::Diaria, AhoraDeCopias());
        PodarCopiasAutomaticas(CarpetaDeCopiasAutomaticas(Entorno().mdbmod), ruta);
    }
}
BENCHMARK(CopiaAutomatica)->Unit(benchmark::kMillisecond);

/// A copy whose last bit is another one: refused only when all of it has been read.
void RechazarCopia(benchmark::State& estado) {
    CopiarAlmacen(Entorno().mdbmod, Copia(), std::nullopt, SinAvance);
    QFile fichero(Copia());
    if (!fichero.open(QIODevice::ReadWrite)) {
        estado.SkipWithError("the copy cannot be changed");
        return;
    }
    fichero.seek(fichero.size() - 1);
    char ultimo = 0;
    fichero.getChar(&ultimo);
    fichero.seek(fichero.size() - 1);
    fichero.putChar(static_cast<char>(ultimo ^ 1));
    fichero.close();
    for (auto _ : estado) {
        const auto fallo = Intentar(
            Copia(), [] { RestaurarAlmacen(Copia(), Entorno().mdbmod, AhoraDeCopias(), SinAvance); });
        if (!fallo) {
            estado.SkipWithError("the copy was not refused");
        }
    }
}
BENCHMARK(RechazarCopia)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const ZTAplicacion aplicacion(argc, argv);
    const AlmacenDeBanco almacen;
    CrearDeclaraciones(almacen.CrearDeclarantes(kDeclarantes));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
