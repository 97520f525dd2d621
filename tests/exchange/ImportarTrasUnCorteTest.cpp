// The process is killed at random moments of an import: every line counted before is stored whole, the others
// are as they were or whole too, and the store is sound.

#include <QFileInfo>
#include <QProcess>
#include <QThread>
#include <random>

#include "data/svrZELT/cZTDeclarante.h"
#include "exchange/RegistroDeIntercambio.h"
#include "tests/exchange/DatosDeIntercambio.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kCortes = 200;
constexpr int kLineas = 60;

/// The declarant of a line in that round: the round stands in its first fields and in its last one.
Registro Declarante(int linea, int vuelta) {
    Registro declarante = DeclaranteDePrueba(NifDePersona(linea), u"VUELTA %1"_s.arg(vuelta));
    declarante[4] = u"CALLE %1"_s.arg(vuelta);
    declarante[5] = vuelta;
    declarante[15] = vuelta;
    return declarante;
}

QByteArray Fichero(int vuelta) {
    QByteArray fichero;
    for (int linea = 1; linea <= kLineas; ++linea) {
        fichero += LineaDeDeclarante(Declarante(linea, vuelta)).toLatin1() + "\r\n";
    }
    return fichero;
}

/// Imports the file in a process that is killed some time after its first line; gives the lines that it
/// counted.
int CortarUnaImportacion(const QStringList& argumentos, int milisegundos) {
    QProcess proceso;
    proceso.start(QStringLiteral(ZELT_IMPORTAR_SIN_PARAR), argumentos);
    EXPECT_TRUE(proceso.waitForReadyRead()) << proceso.readAllStandardError().constData();
    QThread::msleep(static_cast<unsigned long>(milisegundos));
    proceso.kill();
    EXPECT_TRUE(proceso.waitForFinished());
    const QByteArray cuenta = proceso.readAllStandardOutput();
    return static_cast<int>(cuenta.count('\n'));
}

/// Checks the store after that round, of which so many lines were counted. Gives the rounds of the lines.
std::vector<int> EsperarEntero(const AlmacenTemporal& almacen, int vuelta, int contadas,
                               const std::vector<int>& antes) {
    std::vector<int> ahora(antes.size(), 0);
    const auto servidor = almacen.Con<svrZELT::cZTDeclarante>();
    for (int linea = 1; linea <= kLineas; ++linea) {
        const qint32 CSDE = servidor.NifRepetido(NifDePersona(linea));
        const int vieja = antes.at(static_cast<std::size_t>(linea));
        if (CSDE == 0) {
            EXPECT_GT(linea, contadas);
            EXPECT_EQ(vieja, 0);
            continue;
        }
        Registro guardado;
        servidor.CargarDeclarante(CSDE, guardado);
        const int suya = guardado[5].aEntero32();
        EXPECT_TRUE(suya == vuelta || (suya == vieja && linea > contadas)) << linea;
        Registro esperado = Declarante(linea, suya);
        esperado[0] = CSDE;
        EXPECT_EQ(guardado, esperado);
        ahora.at(static_cast<std::size_t>(linea)) = suya;
    }
    EXPECT_EQ(almacen.Usuario()->Base().execAndGet("PRAGMA integrity_check").getString(), "ok");
    return ahora;
}

}  // namespace

TEST(ImportarTrasUnCorteTest, AKilledImportKeepsEveryCountedLineWholeAndTheStoreSound) {
    const AlmacenTemporal almacen;
    CerrarAlmacenes();
    const QString fichero = almacen.mdbPath() + u"Declaran.txt"_s;
    const QStringList argumentos{almacen.mdbmod(), fichero, almacen.mdbPath()};

    std::minstd_rand azar(569);
    std::uniform_int_distribution<int> momento(0, 40);
    std::vector<int> vueltas(kLineas + 1, 0);
    int aMedias = 0;
    int enPlenaEscritura = 0;
    for (int vuelta = 1; vuelta <= kCortes && !testing::Test::HasFailure(); ++vuelta) {
        SCOPED_TRACE(vuelta);
        EscribirFichero(fichero, Fichero(vuelta));
        const int contadas = CortarUnaImportacion(argumentos, momento(azar));
        aMedias += contadas < kLineas ? 1 : 0;
        enPlenaEscritura += QFileInfo::exists(almacen.mdbmod() + u"-journal"_s) ? 1 : 0;
        FijarEsperaDeAlmacen(5000);
        vueltas = EsperarEntero(almacen, vuelta, contadas, vueltas);
        CerrarAlmacenes();
    }
    EXPECT_GT(aMedias, kCortes / 2) << "most processes had come to their end";
    EXPECT_GT(enPlenaEscritura, 0) << "no process was killed within a write";
}
