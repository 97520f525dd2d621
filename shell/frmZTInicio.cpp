#include "shell/frmZTInicio.h"

#include <QCoreApplication>
#include <QIcon>
#include <QScreen>
#include <QTimer>

#include "base/Pantalla.h"
#include "online/cZTActOnline.h"
#include "shell/Entorno.h"
#include "shell/Textos.h"
#include "ui_frmZTInicio.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextoBuscando = 206;
constexpr qint64 kDuracionMs = 4000;
/// How often the wait looks at the clock.
constexpr int kLatidoMs = 20;
constexpr QSize kTamanoImagen(180, 220);

/// Turns the event loop until that moment of `Milisegundos`, asleep between the events.
void EsperarHasta(qint64 momento) {
    QTimer latido;
    latido.start(kLatidoMs);
    while (Entorno().Milisegundos() < momento) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

}  // namespace

frmZTInicio::frmZTInicio()
    : FormularioTrabajo(kNombre.toString()), m_ui(std::make_unique<Ui::frmZTInicio>()) {
    m_ui->setupUi(this);
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_ui->imgInicio->setPixmap(QIcon(u":/imagenes/inicio.svg"_s).pixmap(kTamanoImagen, devicePixelRatioF()));
}

frmZTInicio::~frmZTInicio() = default;

void frmZTInicio::AnadirCaptions() {
    m_ui->lblVersion->setText(u"Bertsioa/Versión"_s + Entorno().VersionPrograma);
    m_ui->lblTitulo->setText(u"569 EREDUA / MODELO 569"_s);
    m_ui->lblTitulo1->setText(
        u"Zenbait Hidrokarburoren Txikizkako Salmenten gaineko Zerga / Impuesto sobre Ventas Minoristas de "
        "Determinados Hidrocarburos"_s);
    m_ui->lblAct->setText(Texto(kTextoBuscando));
}

void frmZTInicio::Form_Load() {
    AnadirCaptions();
    setWindowTitle(u"Acerca de ZELT"_s);
    HacerVisible();
    const qint64 momento = Entorno().Milisegundos() + kDuracionMs;
    if (oActOnline().ActOnline == 1) {
        BuscarActualizacion();
    }
    EsperarHasta(momento);
}

void frmZTInicio::HacerVisible() {
    m_ui->lblAct->hide();
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    show();
    Pantalla().CederUnaVez();
}

void frmZTInicio::BuscarActualizacion() {
    m_ui->lblAct->show();
    Pantalla().CederUnaVez();
    if (Entorno().ComprobarActualizacion) {
        Entorno().ComprobarActualizacion();
    }
    m_ui->lblAct->hide();
}
