#include "app/ZTAplicacion.h"

#include <QFont>

#include "app/AtenderDano.h"
#include "app/Main.h"
#include "core/online/ActualizacionOnlineZT.h"
#include "core/run/Entorno.h"
#include "forms/online/ActualizacionQt.h"
#include "forms/runtime/Eventos.h"
#include "forms/widgets/Imagenes.h"

using namespace Qt::StringLiterals;

namespace {

void ComprobarPorLaRed() {
    ActualizacionQt canal;
    ComprobarActualizacion(canal);
}

}  // namespace

void SustituirLetras() {
    for (const QString& familia : {u"Arial"_s, u"MS Sans Serif"_s}) {
        QFont::insertSubstitution(familia, u"Liberation Sans"_s);
    }
}

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
    Entorno().Atender = AtenderDano;
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
