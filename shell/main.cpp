#include "shell/Main.h"
#include "shell/Eventos.h"
#include "shell/Instalacion.h"
#include "shell/ZTAplicacion.h"

int main(int argc, char** argv) {
    const ZTAplicacion aplicacion(argc, argv);
    Evento([] {
        PrepararCarpetaPrograma();
        Main();
    });
    return QApplication::exec();
}
