// The process is killed at random moments of a save: what is stored afterwards is always one whole
// declaration, the old or the new one, and its sums are those of its lines.

#include <QProcess>
#include <QThread>
#include <random>

#include "data/svrZELT/cZTAnexos.h"
#include "data/svrZELT/cZTDeclaraciones.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kCortes = 200;
constexpr int kEstablecimientos = 12;
constexpr int kProductos = 5;
constexpr double kTasa = 24.0;

void CortarUnGuardado(const QStringList& argumentos, int milisegundos) {
    QProcess proceso;
    proceso.start(QStringLiteral(ZELT_GUARDAR_SIN_PARAR), argumentos);
    ASSERT_TRUE(proceso.waitForStarted());
    ASSERT_TRUE(proceso.waitForReadyRead()) << proceso.readAllStandardError().constData();
    QThread::msleep(static_cast<unsigned long>(milisegundos));
    proceso.kill();
    ASSERT_TRUE(proceso.waitForFinished());
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
    for (int corte = 0; corte < kCortes; ++corte) {
        CortarUnGuardado(argumentos, momento(azar));
        FijarEsperaDeAlmacen(5000);
        const Tabla lineas = almacen.Con<svrZELT::cZTAnexos>().CargarAnexos(CSDC);
        ASSERT_EQ(lineas.UltimaFila(), kEstablecimientos * kProductos) << corte;
        const double base = lineas(5, 1).aDoble();
        ASSERT_TRUE(base == 10000.0 || base == 20000.0) << base;
        double cuotas = 0.0;
        for (int fila = 1; fila <= lineas.UltimaFila(); ++fila) {
            ASSERT_EQ(lineas(4, fila).aDoble(), base) << corte;
            ASSERT_EQ(lineas(5, fila).aDoble(), base) << corte;
            ASSERT_EQ(lineas(7, fila).aDoble(), base * kTasa) << corte;
            cuotas += lineas(7, fila).aDoble();
        }
        const Registro declaracion = almacen.Con<svrZELT::cZTDeclaraciones>().CargarDeclaracion(CSDC);
        for (int producto = 0; producto < kProductos; ++producto) {
            ASSERT_EQ(Elemento(declaracion, 5 + 4 * producto).aDoble(), base * kEstablecimientos) << corte;
        }
        ASSERT_EQ(Elemento(declaracion, 28).aDoble(), cuotas) << corte;
        CerrarAlmacenes();
    }
}
