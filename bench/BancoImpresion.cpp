// Printing to PDF beside a bare loop over the toolkit's printer that draws as many texts, lines, boxes and
// pictures in the same fonts, and has each file reach the disk: four copies of one declaration, and annexes
// of 25, 50 and 100 pages. The counters are the medians of the two and their ratio.

#include <benchmark/benchmark.h>

#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

#include "app/ZTAplicacion.h"
#include "bench/DeclaracionDeBanco.h"
#include "bench/PantallaMuda.h"
#include "core/base/Instancias.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "core/printing/DispositivoImpresion.h"
#include "core/printing/ImprimirZT.h"
#include "core/printing/cZTImprimir.h"
#include "forms/printing/ImagenesDeImpreso.h"

namespace {

constexpr qint16 kEjercicio = 2007;
constexpr int kPasadas = 15;
constexpr double kMilisegundos = 1000;
constexpr double kMilimetrosPorPulgada = 25.4;
constexpr double kPixelesPorPulgada = 96;

/// What the drawing asks of the bare loop: a call on a painter whose unit is the dot of the printer.
using Orden = std::function<void(QPainter&, double puntosPorMilimetro)>;
using Documento = std::vector<std::vector<Orden>>;

/// Takes down the elements of the documents, in their fonts and about in their places.
class Copista : public DispositivoImpresion {
  public:
    void EmpezarLote() override {}
    void TerminarLote() override {}
    void AbandonarLote() noexcept override {}
    void NombrarDocumento(const QString& /*nombre*/) override { documentos.push_back({{}}); }
    void FirmarDocumento(const QString& /*autor*/) override {}
    void UsarMilimetros() override {}
    void FijarNombreDeLetra(const QString& nombre) override { m_letra.setFamily(nombre); }
    void FijarTamanoDeLetra(double puntos) override { m_letra.setPointSizeF(puntos); }
    void FijarNegrita(bool negrita) override { m_letra.setBold(negrita); }
    double AnchoDeTexto(const QString& texto) override { return 1.5 * static_cast<double>(texto.size()); }
    double AltoDeTexto(const QString& /*texto*/) override { return 3; }
    void SituarPluma(double x, double y) override { m_pluma = QPointF(x, y); }
    void Escribir(const QString& texto) override {
        Anadir([texto, letra = m_letra, lugar = m_pluma](QPainter& pintor, double escala) {
            pintor.setFont(letra);
            pintor.drawText(lugar * escala, texto);
        });
    }
    void Linea(double x1, double y1, double x2, double y2) override {
        Anadir([a = QPointF(x1, y1), b = QPointF(x2, y2)](QPainter& pintor, double escala) {
            pintor.drawLine(a * escala, b * escala);
        });
    }
    void FijarRellenoBlanco() override {}
    void Rectangulo(double x1, double y1, double x2, double y2) override {
        Anadir([a = QPointF(x1, y1), b = QPointF(x2, y2)](QPainter& pintor, double escala) {
            pintor.drawRect(QRectF(a * escala, b * escala));
        });
    }
    void PintarImagen(ImagenDeImpreso imagen, double x, double y) override {
        QPixmap mapa(TamanoDeImagen(imagen));
        mapa.fill(Qt::white);
        Anadir([mapa, lugar = QPointF(x, y)](QPainter& pintor, double escala) {
            const double porPixel = kMilimetrosPorPulgada / kPixelesPorPulgada * escala;
            pintor.drawPixmap(QRectF(lugar * escala, QSizeF(mapa.size()) * porPixel), mapa, mapa.rect());
        });
    }
    int NumeroDePagina() override { return static_cast<int>(documentos.back().size()); }
    void NuevaPagina() override { documentos.back().emplace_back(); }
    void TerminarDocumento() override {}

    std::vector<Documento> documentos;

  private:
    void Anadir(Orden orden) { documentos.back().back().push_back(std::move(orden)); }

    QFont m_letra{QStringLiteral("Arial")};
    QPointF m_pluma;
};

void Pintar(const Documento& documento, const QString& ruta) {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setOutputFileName(ruta);
    impresora.setFullPage(true);
    QPainter pintor(&impresora);
    bool primera = true;
    for (const auto& pagina : documento) {
        if (!primera) {
            impresora.newPage();
        }
        primera = false;
        for (const Orden& orden : pagina) {
            orden(pintor, impresora.resolution() / kMilimetrosPorPulgada);
        }
    }
}

void ImprimirSinMas(const std::vector<Documento>& documentos, const QString& carpeta) {
    int numero = 0;
    for (const Documento& documento : documentos) {
        const QString ruta = QStringLiteral("%1/%2.pdf").arg(carpeta).arg(++numero);
        Pintar(documento, ruta);
        SincronizarFichero(ruta);
    }
}

double Segundos(const std::function<void()>& cuerpo) {
    const auto antes = std::chrono::steady_clock::now();
    cuerpo();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
}

double Mediana(std::vector<double> tiempos) {
    std::ranges::sort(tiempos);
    return tiempos.at(tiempos.size() / 2);
}

void Vaciar(const QString& carpeta) {
    QDir(carpeta).removeRecursively();
    QDir().mkpath(carpeta);
}

/// A declaration of that year with lines for so many establishments, open, to be printed in these copies.
void Preparar(const AlmacenDeBanco& almacen, int establecimientos, bool cuatroEjemplares) {
    AbrirDeclaracionDeBanco(almacen, kEjercicio, establecimientos);
    oDeclarante().NIF = QStringLiteral("12345678Z");
    oDeclarante().Nombre = QStringLiteral("GASOLINERAS DE MEDIDA SL");
    oImprimir().Ejercicio = kEjercicio;
    oImprimir().Periodo = 2;
    oImprimir().FechaPresentacion = QStringLiteral("15/01/2007");
    oImprimir().Administracion = true;
    oImprimir().Interesado = oImprimir().Borrador = oImprimir().EntBank = cuatroEjemplares;
}

/// Measures what `oImprimir()` asks for, the two taking turns.
void Medir(benchmark::State& estado) {
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    Copista copista;
    DispositivoImpresion& propia = Impresora();
    FijarImpresora(&copista);
    ImprimirDeclaracion();
    FijarImpresora(&propia);
    std::vector<double> sinMas;
    std::vector<double> propios;
    for (auto _ : estado) {
        Vaciar(documentos);
        sinMas.push_back(Segundos([&] { ImprimirSinMas(copista.documentos, documentos); }));
        Vaciar(documentos);
        propios.push_back(Segundos(ImprimirDeclaracion));
        estado.SetIterationTime(propios.back());
    }
    estado.counters["desnudo ms"] = Mediana(sinMas) * kMilisegundos;
    estado.counters["propio ms"] = Mediana(propios) * kMilisegundos;
    estado.counters["proporcion"] = Mediana(propios) / Mediana(sinMas);
}

void CuatroEjemplares(benchmark::State& estado) {
    const AlmacenDeBanco almacen;
    Preparar(almacen, 1, true);
    Medir(estado);
}

/// The argument is the number of establishments: five lines each, and a page every 23 lines.
void Anexo(benchmark::State& estado) {
    const AlmacenDeBanco almacen;
    Preparar(almacen, static_cast<int>(estado.range(0)), false);
    Medir(estado);
}

BENCHMARK(CuatroEjemplares)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(kPasadas);
BENCHMARK(Anexo)
    ->Arg(113)
    ->Arg(228)
    ->Arg(458)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(kPasadas);

}  // namespace

int main(int argc, char** argv) {
    // Nobody's printer and nobody's documents.
    const QTemporaryDir casa;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", QFile::encodeName(casa.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(casa.path()));
    qputenv("CUPS_SERVER", QFile::encodeName(casa.filePath(QStringLiteral("sin_cola"))));
    const ZTAplicacion aplicacion(argc, argv);
    PantallaMuda pantalla;
    FijarPantalla(&pantalla);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    ReiniciarInstancias();
    return 0;
}
