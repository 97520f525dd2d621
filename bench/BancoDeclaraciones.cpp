// A declaration with many establishments and five products each: opening the entry of its annexes, changing
// the establishment, and saving. The argument is the number of establishments; lines are five times as many.

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include "app/ZTAplicacion.h"
#include "bench/DeclaracionDeBanco.h"
#include "forms/declarations/frmZTDetDeclaracion.h"
#include "forms/runtime/Formularios.h"

namespace {

/// A declaration of the second quarter of 2007 with lines for all establishments, open as the hub opens it.
class Declaracion {
  public:
    explicit Declaracion(int establecimientos) {
        AbrirDeclaracionDeBanco(m_almacen, 2007, establecimientos);
        oAnexos().Procedencia = cZTAnexos::kDesdeDeclaracion;
    }

    static void AbrirFormulario() {
        Formularios::Mostrar(Nombre());
        QCoreApplication::processEvents();
    }
    static void CerrarFormulario() {
        Formularios::Descargar(Nombre());
        Formularios::Descargar(QStringLiteral("frmZTDeclaracion"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

  private:
    static QString Nombre() { return frmZTDetDeclaracion::kNombre.toString(); }

    AlmacenDeBanco m_almacen;
};

void AbrirAnexos(benchmark::State& estado) {
    const Declaracion declaracion(static_cast<int>(estado.range(0)));
    for (auto _ : estado) {
        Declaracion::AbrirFormulario();
        estado.PauseTiming();
        Declaracion::CerrarFormulario();
        estado.ResumeTiming();
    }
    estado.SetComplexityN(estado.range(0));
}

void CambiarDeEstablecimiento(benchmark::State& estado) {
    const Declaracion declaracion(static_cast<int>(estado.range(0)));
    Declaracion::AbrirFormulario();
    auto& formulario = ElFormulario<frmZTDetDeclaracion>();
    int fila = 0;
    for (auto _ : estado) {
        fila = fila % static_cast<int>(estado.range(0)) + 1;
        formulario.CargarAnexos(EstablecimientoDeBanco(fila));
        QCoreApplication::processEvents();
    }
    Declaracion::CerrarFormulario();
    estado.SetComplexityN(estado.range(0));
}

void GuardarAnexos(benchmark::State& estado) {
    const Declaracion declaracion(static_cast<int>(estado.range(0)));
    for (auto _ : estado) {
        if (!oAnexos().GuardarDeclaracion()) {
            estado.SkipWithError("refused");
        }
    }
    estado.SetComplexityN(estado.range(0));
}

void Escalas(benchmark::internal::Benchmark* banco) {
    banco->Arg(100)->Arg(500)->Arg(1000)->Arg(10'000)->Unit(benchmark::kMillisecond)->Complexity();
}
BENCHMARK(AbrirAnexos)->Apply(Escalas);
BENCHMARK(CambiarDeEstablecimiento)->Apply(Escalas);
BENCHMARK(GuardarAnexos)->Apply(Escalas);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const ZTAplicacion aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
