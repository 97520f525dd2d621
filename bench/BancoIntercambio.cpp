// The exchange of declarants: reading and cutting lines, the automatic import beside a bare loop of durable
// one-row transactions, and the export in growing sizes.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <vector>

#include "bench/AlmacenDeBanco.h"
#include "bench/PantallaMuda.h"
#include "core/base/Windows1252.h"
#include "core/exchange/ExporacionZT.h"
#include "core/exchange/ImportacionZT.h"
#include "core/exchange/LectorDeLineas.h"
#include "core/exchange/PantallasDeIntercambio.h"
#include "core/exchange/RegistroDeIntercambio.h"
#include "core/exchange/cZTExportaciones.h"
#include "core/exchange/cZTImportaciones.h"

namespace {

constexpr int kLineas = 100'000;
constexpr int kImportados = 10'000;

/// A screen that shows nothing and looks at the memory now and then.
class Testigo : public PantallaDeExportacion {
  public:
    explicit Testigo(QString fichero) : m_fichero(std::move(fichero)) {}
    [[nodiscard]] QString Fichero() const override { return m_fichero; }
    [[nodiscard]] QString Titulo() const override { return {}; }
    void Empezar() override {}
    void Terminar() override {}
    void MostrarBarra() override {}
    void Avanzar(int hechos, int /*total*/) override {
        constexpr int kCada = 1000;
        if (hechos % kCada == 0) {
            m_maximo = std::max(m_maximo, mallinfo2().uordblks);
        }
    }
    /// Most memory in use during the work above that before it.
    [[nodiscard]] double MiB() const { return static_cast<double>(m_maximo - m_antes) / (1 << 20); }

  private:
    QString m_fichero;
    std::size_t m_antes = mallinfo2().uordblks;
    std::size_t m_maximo = m_antes;
};

class Importacion : public PantallaDeImportacion {
  public:
    [[nodiscard]] bool Automatico() const override { return true; }
    void MostrarBarra() override {}
    void Avanzar(int /*hechos*/, int /*total*/) override {}
};

Registro Declarante(int i) {
    const QString letras = QStringLiteral("TRWAGMYFPDXBNJZSQVHLCKE");
    return {Valor(),
            QStringLiteral("%1").arg(i, 8, 10, QChar(u'0')) + letras.at(i % 23),
            QStringLiteral("EMPRESA NÚMERO %1 ÑANDÚ").arg(i),
            QStringLiteral("CL"),
            QStringLiteral("MAYOR"),
            qint32{i % 300},
            QStringLiteral("A"),
            QString(),
            QStringLiteral("3º"),
            QStringLiteral("DCH"),
            qint16{20},
            qint32{20001},
            qint16{1},
            QStringLiteral("ABARZELAI"),
            qint16{943},
            qint32{123456},
            Valor(),
            Valor()};
}

std::vector<Registro> Declarantes(int desde, int cuantos) {
    std::vector<Registro> declarantes;
    for (int i = desde; i < desde + cuantos; ++i) {
        declarantes.push_back(Declarante(i));
    }
    return declarantes;
}

void EscribirLineas(const QString& ruta, int desde, int cuantas) {
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly)) {
        qFatal("%s", qUtf8Printable(fichero.errorString()));
    }
    for (int i = desde; i < desde + cuantas; ++i) {
        fichero.write(AWindows1252(LineaDeDeclarante(Declarante(i))) + "\r\n");
    }
}

void LeerYTrocear(benchmark::State& estado) {
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(QStringLiteral("Declaran.txt"));
    EscribirLineas(ruta, 0, kLineas);
    for (auto _ : estado) {
        QFile fichero(ruta);
        fichero.open(QIODevice::ReadOnly);
        LectorDeLineas lector(fichero, kLargoDeRegistro);
        while (const auto linea = lector.Siguiente()) {
            benchmark::DoNotOptimize(TrocearRegistro(DeWindows1252(*linea)));
        }
    }
    estado.SetItemsProcessed(estado.iterations() * kLineas);
}
BENCHMARK(LeerYTrocear)->Unit(benchmark::kMillisecond);

/// Seconds that a task takes.
template <class F>
double Segundos(F&& tarea) {
    const auto antes = std::chrono::steady_clock::now();
    tarea();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
}

/// Nothing but one row a transaction, through a connection with the settings of the store.
void InsertarSinMas(Almacen& almacen, const std::vector<Registro>& declarantes) {
    SQLite::Statement orden(
        almacen.Base(),
        "INSERT INTO T05_DECLARANTES (T05_NIF, T05_NOMBRE, T05_SIGLAS, T05_DOMICILIO, T05_NUMERO, T05_LETRA, "
        "T05_ESCAL, T05_PISO, T05_MANO, T05_PROVIN, T05_CPOST, T05_CMUNI, T05_MUNICI, T05_TELEPRE, "
        "T05_TELNUM) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (const Registro& declarante : declarantes) {
        for (int campo = 1; campo <= 15; ++campo) {
            const Valor& valor = Elemento(declarante, campo);
            if (valor.EsTexto()) {
                orden.bind(campo, valor.aTexto().toStdString());
            } else {
                orden.bind(campo, valor.aEntero32());
            }
        }
        Transaccion transaccion(almacen);
        orden.exec();
        transaccion.Confirmar();
        orden.reset();
    }
}

qint32 Importados() {
    const auto* resultados = std::get_if<Registro>(&oImportaciones().vBufferImportados);
    return resultados == nullptr ? 0 : Elemento(*resultados, 0).aEntero32();
}

/// The two take turns, so that what else the disk has to do weighs on both.
void ImportarDiezMilNuevos(benchmark::State& estado) {
    constexpr int kTurno = 500;
    for (auto _ : estado) {
        const AlmacenDeBanco deAlLado;
        Almacen desnudo(ClaseAlmacen::Usuario, Entorno().mdbmod);
        const AlmacenDeBanco almacen;
        const QString ruta = Entorno().CarpetaPrograma + QStringLiteral("/Declaran.txt");
        Importacion pantalla;
        double sinMas = 0.0;
        double importando = 0.0;
        for (int desde = 0; desde < kImportados; desde += kTurno) {
            EscribirLineas(ruta, desde, kTurno);
            const std::vector<Registro> declarantes = Declarantes(desde, kTurno);
            sinMas += Segundos([&] { InsertarSinMas(desnudo, declarantes); });
            importando += Segundos([&] { Import(ruta, pantalla); });
            if (Importados() != kTurno) {
                estado.SkipWithError("not all were imported");
            }
        }
        estado.counters["desnudo/s"] = kImportados / sinMas;
        estado.counters["importado/s"] = kImportados / importando;
        estado.counters["proporcion"] = sinMas / importando;
    }
}
BENCHMARK(ImportarDiezMilNuevos)->Unit(benchmark::kSecond)->Iterations(1);

void Exportar(benchmark::State& estado) {
    const AlmacenDeBanco almacen;
    const auto cuantos = static_cast<int>(estado.range(0));
    const qint32 ultimo = almacen.CrearDeclarantes(cuantos);
    oExportaciones().vBufferDtes.clear();
    for (qint32 clave = ultimo - cuantos + 1; clave <= ultimo; ++clave) {
        oExportaciones().vBufferDtes.emplace_back(clave);
    }
    const QString ruta = Entorno().CarpetaPrograma + QStringLiteral("/Declaran.txt");
    double MiB = 0.0;
    for (auto _ : estado) {
        QFile::remove(ruta);
        Testigo testigo(ruta);
        ExportarDeclarantes(testigo);
        MiB = testigo.MiB();
    }
    estado.SetItemsProcessed(estado.iterations() * cuantos);
    estado.SetComplexityN(cuantos);
    estado.counters["MiB"] = MiB;
}
BENCHMARK(Exportar)
    ->Unit(benchmark::kMillisecond)
    ->RangeMultiplier(2)
    ->Range(12'500, kLineas)
    ->Complexity(benchmark::oN);

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication aplicacion(argc, argv);
    PantallaMuda pantalla;
    FijarPantalla(&pantalla);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
