// The list of declarants with 10,000 of them, beside a bare list of as many rows.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTreeWidget>

#include "app/ZTAplicacion.h"
#include "bench/AlmacenDeBanco.h"
#include "core/records/cZTListaDeclarantes.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/widgets/ListaZT.h"

namespace {

constexpr int kDeclarantes = 10'000;

double MiB(std::size_t antes) { return static_cast<double>(mallinfo2().uordblks - antes) / (1 << 20); }

void AbrirListaDeDeclarantes(benchmark::State& estado) {
    const QString lista = QStringLiteral("frmZTListaDeclarantes");
    for (auto _ : estado) {
        const std::size_t antes = mallinfo2().uordblks;
        oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
        Formularios::Mostrar(lista);
        QCoreApplication::processEvents();
        estado.PauseTiming();
        estado.counters["MiB"] = MiB(antes);
        Formularios::Descargar(lista);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        oListaDeclarantes().vBufferDeclarantes = Tabla();
        estado.ResumeTiming();
    }
}
BENCHMARK(AbrirListaDeDeclarantes)->Unit(benchmark::kMillisecond);

void OrdenarListaDeDeclarantes(benchmark::State& estado) {
    const QString lista = QStringLiteral("frmZTListaDeclarantes");
    oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
    Formularios::Mostrar(lista);
    QWidget& ventana = Formularios::Obtener(lista).Ventana();
    auto* filas = ventana.findChild<ListaZT*>(QStringLiteral("lsvDeclarantes"));
    auto* orden = ventana.findChild<QWidget*>(QStringLiteral("picOrden"));
    qint16 columna = 1;
    for (auto _ : estado) {
        columna = columna == 1 ? 2 : 1;
        OrdenarColumna(*filas, columna, ventana, *orden);
        QCoreApplication::processEvents();
    }
    Formularios::Descargar(lista);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
BENCHMARK(OrdenarListaDeDeclarantes)->Unit(benchmark::kMillisecond);

void AbrirListaDesnuda(benchmark::State& estado) {
    const Tabla declarantes = oListaDeclarantes().ObtenerDeclarantes();
    for (auto _ : estado) {
        const std::size_t antes = mallinfo2().uordblks;
        auto lista = std::make_unique<QTreeWidget>();
        lista->setColumnCount(5);
        lista->setUniformRowHeights(true);
        QList<QTreeWidgetItem*> filas;
        for (int fila = 1; fila <= declarantes.UltimaFila(); ++fila) {
            QStringList textos;
            for (int columna = 0; columna < 5; ++columna) {
                textos += declarantes(columna, fila).aTexto();
            }
            filas += new QTreeWidgetItem(textos);
        }
        lista->addTopLevelItems(filas);
        lista->show();
        QCoreApplication::processEvents();
        estado.PauseTiming();
        estado.counters["MiB"] = MiB(antes);
        lista.reset();
        estado.ResumeTiming();
    }
}
BENCHMARK(AbrirListaDesnuda)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const ZTAplicacion aplicacion(argc, argv);
    const AlmacenDeBanco almacen;
    almacen.CrearDeclarantes(kDeclarantes);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
