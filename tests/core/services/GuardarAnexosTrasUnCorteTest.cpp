// The process is killed at random moments of a save: what is stored afterwards is always one whole
// declaration, the old or the new one, and its sums are those of its lines.

#include <QFileInfo>
#include <QProcess>
#include <QThread>
#include <random>
#include <set>

#include "core/base/Fraccion.h"
#include "core/base/Modelo.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kCortes = 200;
constexpr int kEstablecimientos = 12;
constexpr double kTasa = 24.0;
/// As it is stored.
constexpr double kTasaGuardada = Millonesimas::DePublico(kTasa).Guardado();

using Columna = svrZELT::CamposDeAnexo::Columna;

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
    EXPECT_EQ(lineas.UltimaFila(), kEstablecimientos * kProductosEnUso);
    const double base = lineas(Columna::kBASIM, 1).aDoble();
    for (int fila = 1; fila <= lineas.UltimaFila(); ++fila) {
        EXPECT_EQ(lineas(Columna::kSUMEX, fila).aDoble(), base);
        EXPECT_EQ(lineas(Columna::kBASIM, fila).aDoble(), base);
        EXPECT_EQ(lineas(Columna::kTIPIM, fila).aDoble(), kTasaGuardada);
        EXPECT_EQ(lineas(Columna::kCUOTA, fila).aDoble(), base * kTasa);
    }
    return base;
}

/// The sums of the declaration are those of its lines.
void EsperarSumas(const Registro& declaracion, double base) {
    using Campos = svrZELT::CamposDeDeclaracion;
    const double suma = base * kEstablecimientos;
    for (int k = 1; k <= kProductosEnUso; ++k) {
        EXPECT_EQ(Elemento(declaracion, Campos::Lugar(k, svrZELT::Figura::kSUMEX)).aDoble(), suma);
        EXPECT_EQ(Elemento(declaracion, Campos::Lugar(k, svrZELT::Figura::kBASIM)).aDoble(), suma);
        EXPECT_EQ(Elemento(declaracion, Campos::Lugar(k, svrZELT::Figura::kTIPIM)).aDoble(), kTasaGuardada);
        EXPECT_EQ(Elemento(declaracion, Campos::Lugar(k, svrZELT::Figura::kCUOTA)).aDoble(), suma * kTasa);
    }
    EXPECT_EQ(Elemento(declaracion, Campos::kTOTCUO).aDoble(), suma * kTasa * kProductosEnUso);
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
