// The process is killed at random moments of a save: what is stored afterwards is always one whole
// declaration, the old or the new one, and its sums are those of its lines.

#include <QFileInfo>
#include <QProcess>
#include <QThread>
#include <random>
#include <set>

#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kCortes = 200;
constexpr int kEstablecimientos = 12;
constexpr int kProductos = 5;
constexpr double kTasa = 24.0;
constexpr double kMillonesimas = 1e6;

void CortarUnGuardado(const QStringList& argumentos, int milisegundos) {
    QProcess proceso;
    proceso.start(QStringLiteral(ZELT_GUARDAR_SIN_PARAR), argumentos);
    ASSERT_TRUE(proceso.waitForStarted());
    ASSERT_TRUE(proceso.waitForReadyRead()) << proceso.readAllStandardError().constData();
    QThread::msleep(static_cast<unsigned long>(milisegundos));
    proceso.kill();
    ASSERT_TRUE(proceso.waitForFinished());
}

/// The one base of all lines, in hundredths, with all else that follows from it.
double BaseDeLasLineas(const Tabla& lineas) {
    EXPECT_EQ(lineas.UltimaFila(), kEstablecimientos * kProductos);
    const double base = lineas(5, 1).aDoble();
    for (int fila = 1; fila <= lineas.UltimaFila(); ++fila) {
        EXPECT_EQ(lineas(4, fila).aDoble(), base);
        EXPECT_EQ(lineas(5, fila).aDoble(), base);
        EXPECT_EQ(lineas(6, fila).aDoble(), kTasa * kMillonesimas);
        EXPECT_EQ(lineas(7, fila).aDoble(), base * kTasa);
    }
    return base;
}

/// The sums of the declaration are those of its lines.
void EsperarSumas(const Registro& declaracion, double base) {
    constexpr int kPrimeraFigura = 4;
    constexpr int kFigurasPorProducto = 4;
    constexpr int kTotal = 28;
    const double suma = base * kEstablecimientos;
    for (int producto = 0; producto < kProductos; ++producto) {
        const int SUMEX = kPrimeraFigura + kFigurasPorProducto * producto;
        EXPECT_EQ(Elemento(declaracion, SUMEX).aDoble(), suma);
        EXPECT_EQ(Elemento(declaracion, SUMEX + 1).aDoble(), suma);
        EXPECT_EQ(Elemento(declaracion, SUMEX + 2).aDoble(), kTasa * kMillonesimas);
        EXPECT_EQ(Elemento(declaracion, SUMEX + 3).aDoble(), suma * kTasa);
    }
    EXPECT_EQ(Elemento(declaracion, kTotal).aDoble(), suma * kTasa * kProductos);
}

}  // namespace

TEST(GuardarAnexosTrasUnCorteTest, AKilledSaveLeavesTheOldOrTheNewDeclarationWhole) {
    const AlmacenTemporal almacen;
    const qint32 CSDE = GuardarDeclarante(almacen, u"12345678Z"_s);
    const qint32 CSDC = GuardarDeclaracion(almacen, CSDE, 2007, 2);
    QStringList argumentos{almacen.mdbmod(), QString::number(CSDC)};
    for (int i = 0; i < kEstablecimientos; ++i) {
        argumentos +=
            QString::number(GuardarEstablecimiento(almacen, CSDE, u"20ES%1X"_s.arg(i, 3, 10, QChar(u'0'))));
    }
    CerrarAlmacenes();

    std::minstd_rand azar(569);
    std::uniform_int_distribution<int> momento(0, 12);
    std::set<double> bases;
    int enPlenoGuardado = 0;
    for (int corte = 0; corte < kCortes && !testing::Test::HasFailure(); ++corte) {
        SCOPED_TRACE(corte);
        CortarUnGuardado(argumentos, momento(azar));
        enPlenoGuardado += QFileInfo::exists(almacen.mdbmod() + u"-journal"_s) ? 1 : 0;
        FijarEsperaDeAlmacen(5000);
        const double base = BaseDeLasLineas(almacen.Con<svrZELT::cZTAnexos>().CargarAnexos(CSDC));
        EsperarSumas(almacen.Con<svrZELT::cZTDeclaraciones>().CargarDeclaracion(CSDC), base);
        bases.insert(base);
        CerrarAlmacenes();
    }
    EXPECT_GT(enPlenoGuardado, 0) << "no process was killed within a save";
    EXPECT_EQ(bases, (std::set{10000.0, 20000.0}));
}
