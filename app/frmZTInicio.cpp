#include "app/frmZTInicio.h"

#include <QDeadlineTimer>
#include <QIcon>
#include <QScreen>
#include <QWindow>

#include "core/base/Pantalla.h"
#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/Espera.h"
#include "core/run/Textos.h"
#include "core/start/Arranque.h"
#include "forms/runtime/Eventos.h"
#include "ui_frmZTInicio.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kDuracionMs = 4000;
/// How long the window system may take to show the window.
constexpr int kPlazoVisibleMs = 500;
constexpr QSize kTamanoImagen(180, 220);

}  // namespace

frmZTInicio::frmZTInicio() : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTInicio>()) {
    m_ui->setupUi(this);
    // The window keeps its size when the label comes and goes.
    QSizePolicy politica = m_ui->lblAct->sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    m_ui->lblAct->setSizePolicy(politica);
    m_ui->fraRevision->hide();
    Conectar(*this, m_ui->cmdOmitir, &QAbstractButton::clicked, [] { oRevision().Saltar(); });
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_ui->imgInicio->setPixmap(QIcon(u":/imagenes/inicio.svg"_s).pixmap(kTamanoImagen, devicePixelRatioF()));
}

frmZTInicio::~frmZTInicio() = default;

void frmZTInicio::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        m_ui->lblVersion->setText(u"Bertsioa/Versión"_s + Entorno().VersionPrograma);
        m_ui->lblTitulo->setText(u"569 EREDUA / MODELO 569"_s);
        m_ui->lblTitulo1->setText(
            u"Zenbait Hidrokarburoren Txikizkako Salmenten gaineko Zerga / Impuesto sobre Ventas Minoristas "
            u"de Determinados Hidrocarburos"_s);
        m_ui->lblRevision->setText(TextoPropio(u"inicio_revision"));
        m_ui->barRevision->setAccessibleName(TextoPropio(u"inicio_avance"));
        m_ui->cmdOmitir->setText(TextoPropio(u"inicio_omitir"));
        m_ui->lblAct->setText(Texto(Id::BuscandoActualizacion));
    });
}

void frmZTInicio::Form_Load() {
    AnadirCaptions();
    setWindowTitle(u"Acerca de ZELT"_s);
    HacerVisible();
    oRevision().Empezar(Entorno().mdbmod);
    const qint64 momento = Entorno().Milisegundos() + kDuracionMs;
    if (oActOnline().ActOnline == 1) {
        BuscarActualizacion();
    }
    EsperarHasta([momento] { return Entorno().Milisegundos() >= momento; });
    EsperarRevision();
}

void frmZTInicio::HacerVisible() {
    m_ui->lblAct->hide();
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    show();
    // Painted before anything that keeps control; a window system that never says so is not waited for.
    const QDeadlineTimer plazo(kPlazoVisibleMs);
    EsperarHasta([&] { return windowHandle()->isExposed() || plazo.hasExpired(); });
    Pantalla().CederUnaVez();
}

void frmZTInicio::BuscarActualizacion() {
    m_ui->lblAct->show();
    Pantalla().CederUnaVez();
    Entorno().ComprobarActualizacion();
    m_ui->lblAct->hide();
}

void frmZTInicio::EsperarRevision() {
    if (oRevision().Acabada()) {
        return;
    }
    m_ui->fraRevision->show();
    m_ui->cmdOmitir->setFocus();
    m_ui->barRevision->Empezar();
    EsperarHasta([this] {
        m_ui->barRevision->Avanzar(oRevision().Hechas(), oRevision().Total());
        return oRevision().Acabada();
    });
    m_ui->fraRevision->hide();
}
