// A declaration with many establishments and five products each: opening the entry of its annexes, changing
// the establishment, and saving. The argument is the number of establishments; lines are five times as many.

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include "bench/AlmacenDeBanco.h"
#include "declarants/cZTDeclarante.h"
#include "declarations/cZTAnexos.h"
#include "declarations/cZTDeclaraciones.h"
#include "declarations/cZTNuevaDec.h"
#include "declarations/frmZTDetDeclaracion.h"
#include "shell/Formularios.h"
#include "shell/ZTAplicacion.h"

namespace {

constexpr int kProductos = 5;

/// A declaration of the second quarter of 2007 with lines for all establishments, open as the hub opens it.
class Declaracion {
  public:
    explicit Declaracion(int establecimientos) {
        oDeclarante().CSDE = m_almacen.CrearDeclarantes(1);
        m_almacen.CrearEstablecimientos(oDeclarante().CSDE, establecimientos);
        oNuevaDec().Ejercicio = 2007;
        oNuevaDec().Periodo = 2;
        oDeclaraciones().CSDC = oNuevaDec().GuardarDeclaracion();
        oDeclaraciones().Ejercicio = 2007;
        oDeclaraciones().Periodo = 2;
        oDeclaraciones().CargarDeclaracion();
        oAnexos().RellenarEstDecl();
        oAnexos().ComprobarDiferenciasDeTipo();
        oAnexos().BufferAnexos = Lineas();
        (void)oAnexos().GuardarDeclaracion();
        oAnexos().Procedencia = cZTAnexos::kDesdeDeclaracion;
    }

    /// Key of an establishment by its row, from 1.
    static qint32 Establecimiento(int fila) { return oAnexos().BufferEstDecl(0, fila).aEntero32(); }

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

    static Tabla Lineas() {
        const int establecimientos = oAnexos().BufferEstDecl.UltimaFila();
        Tabla lineas(7, establecimientos * kProductos);
        for (int linea = 1; linea <= establecimientos * kProductos; ++linea) {
            lineas(1, linea) = oDeclaraciones().CSDC;
            lineas(2, linea) = Establecimiento(1 + (linea - 1) / kProductos);
            lineas(3, linea) = static_cast<qint16>(1 + (linea - 1) % kProductos);
            lineas(4, linea) = 1250.0;
            lineas(5, linea) = 10000.0 + linea;
            lineas(6, linea) = 24e6;
            lineas(7, linea) = 0.0;
        }
        return lineas;
    }

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
        formulario.CargarAnexos(Declaracion::Establecimiento(fila));
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
