// What stays of a round of work: open a declaration and its annexes, change, save, print, close. Prints the
// memory in use and the resident memory of some rounds, in KiB, and fails when the last one has more than the
// limit beyond round 20.
//   banco_memoria [rounds]

#include <malloc.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <cstdio>

#include "app/ZTAplicacion.h"
#include "bench/DeclaracionDeBanco.h"
#include "core/base/Instancias.h"
#include "core/online/cZTActOnline.h"
#include "core/run/cZTFecha.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "tests/support/RondaDeTrabajo.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kRondas = 1000;
/// By then caches are full and everything that is made once has been made.
constexpr int kPrimeraMedida = 20;
constexpr int kCadaCuantas = 100;
constexpr long kLimiteKiB = 1024;
constexpr long kBytesPorKiB = 1024;

struct Memoria {
    long enUso = 0;
    long residente = 0;
};

/// In KiB. What the allocator holds for nobody goes back to the system before.
Memoria Medir() {
    malloc_trim(0);
    const struct mallinfo2 informe = mallinfo2();
    long paginas = 0;
    long residentes = 0;
    if (FILE* estado = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(estado, "%ld %ld", &paginas, &residentes) != 2) {
            residentes = 0;
        }
        std::fclose(estado);
    }
    return {static_cast<long>(informe.uordblks + informe.hblkhd) / kBytesPorKiB,
            residentes * (sysconf(_SC_PAGESIZE) / kBytesPorKiB)};
}

Memoria MedirTras(int ronda) {
    const Memoria memoria = Medir();
    std::printf("ronda %5d: en uso %7ld KiB, residente %7ld KiB\n", ronda, memoria.enUso, memoria.residente);
    std::fflush(stdout);
    return memoria;
}

/// True when it stays within the limit.
bool Medir(int rondas) {
    RondaDeTrabajo ronda;
    Memoria primera;
    Memoria ultima;
    for (int n = 1; n <= rondas; ++n) {
        ronda.Hacer(n);
        if (n == kPrimeraMedida) {
            primera = MedirTras(n);
        } else if (n % kCadaCuantas == 0 || n == rondas) {
            ultima = MedirTras(n);
        }
    }
    std::printf("crece: en uso %ld KiB, residente %ld KiB\n", ultima.enUso - primera.enUso,
                ultima.residente - primera.residente);
    return ronda.Impresos() == rondas && ultima.enUso - primera.enUso <= kLimiteKiB &&
           ultima.residente - primera.residente <= kLimiteKiB;
}

}  // namespace

int main(int argc, char** argv) {
    // Nobody's printer and nobody's documents.
    const QTemporaryDir casa;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", QFile::encodeName(casa.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(casa.path()));
    qputenv("CUPS_SERVER", QFile::encodeName(casa.filePath(u"sin_cola"_s)));
    const ZTAplicacion aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    bool bien = false;
    {
        const AlmacenDeBanco almacen;
        AbrirDeclaracionDeBanco(almacen, 2007, 3);
        oFecha().IDI(u"C"_s);
        oActOnline().ActOnline = 0;
        oActOnline().GuardarActOnline();
        Formularios::Mostrar(Forma::MDIZT);
        Formularios::Mostrar(Forma::ListaDeclaraciones);
        bien = Medir(argumentos.size() > 1 ? argumentos.at(1).toInt() : kRondas);
        Formularios::Reiniciar();
    }
    ReiniciarInstancias();
    return bien ? 0 : 1;
}
