#include "shell/ZTAplicacion.h"

#include <QFont>

#include "shell/Eventos.h"
#include "shell/Imagenes.h"
#include "shell/Main.h"

using namespace Qt::StringLiterals;

namespace {

/// The printed forms and the screens are laid out for Arial's widths; Liberation Sans has them.
void SustituirLetras() {
    for (const QString& familia : {u"Arial"_s, u"MS Sans Serif"_s}) {
        QFont::insertSubstitution(familia, u"Liberation Sans"_s);
    }
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
    RegistrarFormularios();
}

ZTAplicacion::~ZTAplicacion() { FijarPantalla(nullptr); }

bool ZTAplicacion::notify(QObject* receptor, QEvent* evento) {
    bool hecho = false;
    Evento([&] { hecho = QApplication::notify(receptor, evento); });
    return hecho;
}
