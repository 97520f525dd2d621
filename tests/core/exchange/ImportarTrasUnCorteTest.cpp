// The process is killed at random moments of an import: every line counted before is stored whole, the others
// are as they were or whole too, and the store is sound.

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>
#include <chrono>
#include <random>

#include "core/exchange/RegistroDeIntercambio.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/DatosDeIntercambio.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kCortes = 80;
constexpr int kLineas = 200;
/// The process is killed on one of its first so many lines, far from its end.
constexpr int kUltimaAntesDelCorte = 15;

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

/// Imports the file in a process that is killed as soon as it has counted so many lines or, given the name of
/// the journal of the store, in the write after them; gives the lines that it counted in all.
int CortarUnaImportacion(const QStringList& argumentos, int lineas, const QString& diario) {
    QProcess proceso;
    proceso.start(QStringLiteral(ZELT_IMPORTAR_SIN_PARAR), argumentos);
    QByteArray cuenta;
    while (cuenta.count('\n') < lineas && proceso.waitForReadyRead()) {
        cuenta += proceso.readAllStandardOutput();
    }
    EXPECT_GE(cuenta.count('\n'), lineas) << proceso.readAllStandardError().constData();
    const QDeadlineTimer limite(std::chrono::seconds(5));
    while (!diario.isEmpty() && !QFileInfo::exists(diario) && !limite.hasExpired()) {
    }
    proceso.kill();
    EXPECT_TRUE(proceso.waitForFinished());
    cuenta += proceso.readAllStandardOutput();
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
            // Lines are taken in their order: the others are not there either.
            const Tabla declarantes = servidor.ObtenerDeclarantes();
            EXPECT_EQ(declarantes.EsNula() ? 0 : declarantes.UltimaFila(), linea - 1);
            break;
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
    const QString diario = almacen.mdbmod() + u"-journal"_s;
    const QStringList argumentos{almacen.mdbmod(), fichero, almacen.mdbPath()};

    std::minstd_rand azar(569);
    std::uniform_int_distribution<int> ultima(1, kUltimaAntesDelCorte);
    std::vector<int> vueltas(kLineas + 1, 0);
    int aMedias = 0;
    int enPlenaEscritura = 0;
    for (int vuelta = 1; vuelta <= kCortes && !testing::Test::HasFailure(); ++vuelta) {
        SCOPED_TRACE(vuelta);
        EscribirFichero(fichero, Fichero(vuelta));
        const int contadas =
            CortarUnaImportacion(argumentos, ultima(azar), vuelta % 2 == 0 ? diario : QString());
        aMedias += contadas < kLineas ? 1 : 0;
        enPlenaEscritura += QFileInfo::exists(diario) ? 1 : 0;
        FijarEsperaDeAlmacen(5000);
        vueltas = EsperarEntero(almacen, vuelta, contadas, vueltas);
        CerrarAlmacenes();
    }
    EXPECT_GT(aMedias, kCortes / 2) << "most processes had come to their end";
    EXPECT_GT(enPlenaEscritura, 0) << "no process was killed within a write";
}
