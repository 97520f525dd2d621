#include "forms/messages/frmZTMsgBox.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "core/base/Pantalla.h"
#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/TeclasRepetidas.h"
#include "forms/widgets/Imagenes.h"
#include "ui_frmZTMsgBox.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLadoImagen = 32;
/// Lines of text that are shown without scrolling.
constexpr int kLineasVisibles = 14;

/// The caption of a button as a title: without the mark of its access key and the blanks that make room for
/// its picture.
QString SinTeclaDeAcceso(QString titulo) {
    static const QRegularExpression marca(u"&(?=[\\p{L}\\p{N}])"_s);
    return titulo.remove(marca).trimmed();
}

}  // namespace

frmZTMsgBox::frmZTMsgBox() : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTMsgBox>()) {
    m_ui->setupUi(this);
    m_ui->txtMensaje->viewport()->setAutoFillBackground(false);
    m_ui->txtMensaje->document()->setDocumentMargin(0);
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { Responder(kRespuestaAceptar); });
    Conectar(*this, m_ui->cmdCancelar, &QAbstractButton::clicked, [this] { Responder(kRespuestaCancelar); });
}

frmZTMsgBox::~frmZTMsgBox() = default;

void frmZTMsgBox::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        m_ui->cmdAceptar->setText(Texto(Id::Aceptar));
        m_ui->cmdCancelar->setText(Texto(Id::Cancelar));
    });
}

void frmZTMsgBox::Form_Load() {
    AnadirCaptions();
    // The box of the text takes the focus too, to be read and copied; the first place is the button's.
    m_ui->cmdAceptar->setFocus();
}

void frmZTMsgBox::Form_Unload() { Pantalla().PonerPuntero(Puntero::Normal); }

qint16 frmZTMsgBox::Preguntar(const QString& texto, const QString& titulo, bool unBoton) {
    // Alone in its row, the button moves to the middle.
    m_ui->cmdCancelar->setVisible(!unBoton);
    TeclasRepetidas::EsPregunta(*this, !unBoton);
    const QString tituloVisible = SinTeclaDeAcceso(titulo);
    m_ui->lblTitulo->setText(tituloVisible);
    PonerDibujo(*m_ui->imgMsgBox, ilsMDI32(unBoton ? Imagen32::Aviso : Imagen32::Pregunta), kLadoImagen);
    PonerMensaje(texto);
    // Screen readers speak it when the box opens.
    setAccessibleName(tituloVisible);
    setAccessibleDescription(texto);
    adjustSize();
    Formularios::MostrarModal(Nombre());
    return Entorno().RespuestaMensaje;
}

QAbstractButton* frmZTMsgBox::BotonDeEscape() {
    return m_ui->cmdCancelar->isHidden() ? m_ui->cmdAceptar : m_ui->cmdCancelar;
}

/// The box of the text is as high as the text needs; a very long one scrolls.
void frmZTMsgBox::PonerMensaje(const QString& texto) {
    QPlainTextEdit& caja = *m_ui->txtMensaje;
    caja.setPlainText(texto);
    QTextDocument medida;
    medida.setDocumentMargin(0);
    medida.setDefaultFont(caja.font());
    medida.setPlainText(texto);
    medida.setTextWidth(caja.minimumWidth());
    const double maximo = kLineasVisibles * caja.fontMetrics().lineSpacing();
    // A bar would take width, and the text then need more lines and the bar.
    const bool cabe = medida.size().height() <= maximo;
    caja.setVerticalScrollBarPolicy(cabe ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    // The box scrolls by a line until it is a pixel higher than its text.
    caja.setFixedHeight(static_cast<int>(std::ceil(std::min(medida.size().height(), maximo))) + 1);
}

void frmZTMsgBox::Responder(qint16 respuesta) {
    Pantalla().PonerPuntero(Puntero::Espera);
    Entorno().RespuestaMensaje = respuesta;
    Formularios::Descargar(Nombre());
}
