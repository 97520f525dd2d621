#include "app/Main.h"
#include "app/ZTAplicacion.h"
#include "core/start/Instalacion.h"
#include "core/start/plataforma/CarpetaPersonal.h"
#include "forms/runtime/Eventos.h"

int main(int argc, char** argv) {
    AsegurarCarpetaPersonal();
    const ZTAplicacion aplicacion(argc, argv);
    Evento([] {
        PrepararCarpetaPrograma();
        Main();
    });
    return QApplication::exec();
}
