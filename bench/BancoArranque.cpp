// The program's own start, from process start to splash and main window. The four seconds of the splash are
// taken out by a clock that jumps over them once the splash has been painted.

#include "app/Main.h"
#include "app/ZTAplicacion.h"
#include "bench/Cronometro.h"
#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/cZTFecha.h"
#include "core/start/Arranque.h"
#include "core/start/Instalacion.h"

namespace {

/// A user's store whose owner has chosen a language and no update check, so that no dialog comes up.
void Preparar() {
    InicializarTodo();
    if (!Traspaso()) {
        oFecha().IDI(QStringLiteral("C"));
        oActOnline().ActOnline = 0;
        oActOnline().GuardarActOnline();
    }
}

}  // namespace

int main(int argc, char** argv) {
    const ZTAplicacion aplicacion(argc, argv);
    PrepararCarpetaPrograma();
    if (QCoreApplication::arguments().contains(QStringLiteral("--preparar"))) {
        Preparar();
        return 0;
    }
    const AlPintar inicio(QStringLiteral("frmZTInicio"), {});
    const AlPintar marco(QStringLiteral("MDIZT"), TerminarConMemoria);
    qint64 ahora = 0;
    Entorno().Milisegundos = [&ahora] { return ahora += 5000; };
    Main();
    return QApplication::exec();
}
