#include "shell/ZTAplicacion.h"

#include "online/ActualizacionOnlineZT.h"
#include "online/ActualizacionQt.h"
#include "shell/Entorno.h"
#include "shell/Eventos.h"
#include "shell/Imagenes.h"
#include "shell/Letras.h"
#include "shell/Main.h"

using namespace Qt::StringLiterals;

namespace {

void ComprobarPorLaRed() {
    ActualizacionQt canal;
    ComprobarActualizacion(canal);
}

}  // namespace

ZTAplicacion::ZTAplicacion(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(u"ZELT"_s);
    setApplicationDisplayName(QString());
    setQuitOnLastWindowClosed(false);
    setWindowIcon(IconoDelPrograma());
    SustituirLetras();
    installTranslator(&m_textos);
    FijarPantalla(&m_pantalla);
    FijarAsistencia(&m_asistencia);
    FijarCopias(&m_copias);
    FijarImpresora(&m_impresora);
    Entorno().ComprobarActualizacion = ComprobarPorLaRed;
    RegistrarFormularios();
}

ZTAplicacion::~ZTAplicacion() {
    FijarImpresora(nullptr);
    FijarCopias(nullptr);
    FijarAsistencia(nullptr);
    FijarPantalla(nullptr);
}

bool ZTAplicacion::notify(QObject* receptor, QEvent* evento) {
    bool hecho = false;
    Evento([&] { hecho = QApplication::notify(receptor, evento); });
    return hecho;
}
