#include "forms/messages/frmZTGestErrores.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>

#include "core/base/Pantalla.h"
#include "core/run/ErrorADisco.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "ui_frmZTGestErrores.h"

namespace {

constexpr int kTwipsPorPixel = 15;
/// Heights of the form with its first part alone and with the details.
constexpr int kAltoCerrado = 2040;
constexpr int kAltoAbierto = 4965;
/// The two places of the image.
constexpr int kArriba = 90;
constexpr int kAbajo = 4080;
constexpr int kLadoImagen = 32;

}  // namespace

frmZTGestErrores::frmZTGestErrores()
    : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTGestErrores>()) {
    m_ui->setupUi(this);
    QLabel& imagen = *m_ui->Image1;
    imagen.setPixmap(style()
                         ->standardIcon(QStyle::SP_MessageBoxCritical)
                         .pixmap(QSize(kLadoImagen, kLadoImagen), devicePixelRatioF()));
    imagen.setGeometry(m_ui->layPrincipal->contentsMargins().left(), kArriba / kTwipsPorPixel, kLadoImagen,
                       kLadoImagen);
    imagen.installEventFilter(this);
    Conectar(*this, m_ui->cmdMas, &QAbstractButton::clicked, [this] { AbrirDetalles(); });
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked,
             [this] { Formularios::Descargar(Nombre()); });
}

frmZTGestErrores::~frmZTGestErrores() = default;

void frmZTGestErrores::Form_Load() {
    Pantalla().PonerPuntero(Puntero::Normal);
    m_ui->fraDetalle->setEnabled(false);
    m_ui->fraDetalle->hide();
    PonerAlto(kAltoCerrado);
}

void frmZTGestErrores::Form_Unload() { Pantalla().PonerPuntero(Puntero::Normal); }

void frmZTGestErrores::Mostrar(const QString& formulario, const QString& evento, const QString& descripcion) {
    m_ui->txtError_0->setText(formulario);
    m_ui->txtError_1->setText(evento);
    m_ui->txtError_2->setText(ErrorADisco(formulario, evento, descripcion));
    m_ui->txtError_3->setPlainText(descripcion);
    Formularios::MostrarModal(Nombre());
}

bool frmZTGestErrores::eventFilter(QObject* objeto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::MouseMove:
            if (static_cast<QMouseEvent*>(evento)->buttons().testFlag(Qt::LeftButton)) {
                Evento([this] { ArrastrarImagen(); });
            }
            return true;
        case QEvent::DragEnter:
        case QEvent::Drop: {
            auto& suelta = *static_cast<QDropEvent*>(evento);
            if (!suelta.mimeData()->hasFormat(kArrastre.toString())) {
                return false;
            }
            suelta.acceptProposedAction();
            if (evento->type() == QEvent::Drop) {
                Evento([this] { SoltarImagen(); });
            }
            return true;
        }
        default:
            return FormularioModal::eventFilter(objeto, evento);
    }
}

QAbstractButton* frmZTGestErrores::BotonDeEscape() { return m_ui->cmdAceptar; }

void frmZTGestErrores::AbrirDetalles() {
    m_ui->fraDetalle->show();
    m_ui->fraDetalle->setEnabled(true);
    m_ui->cmdMas->setEnabled(false);
    PonerAlto(kAltoAbierto);
}

/// The given heights hold for the design's font; with a larger one the part shown decides.
void frmZTGestErrores::PonerAlto(int twips) {
    m_ui->layPrincipal->activate();
    resize(width(), std::max(twips / kTwipsPorPixel, minimumSizeHint().height()));
}

void frmZTGestErrores::ArrastrarImagen() {
    auto* datos = new QMimeData;
    datos->setData(kArrastre.toString(), {});
    auto* arrastre = new QDrag(m_ui->Image1);
    arrastre->setMimeData(datos);
    arrastre->setPixmap(m_ui->Image1->pixmap());
    arrastre->exec(Qt::MoveAction);
}

/// Each drop takes the image to the other one of its two places.
void frmZTGestErrores::SoltarImagen() {
    const bool arriba = m_ui->Image1->y() == kArriba / kTwipsPorPixel;
    m_ui->Image1->move(m_ui->Image1->x(), (arriba ? kAbajo : kArriba) / kTwipsPorPixel);
}
