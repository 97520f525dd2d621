#include "forms/runtime/CajasDeFormulario.h"

#include <QKeyEvent>
#include <QRegularExpression>
#include <QStyleOptionFrame>

#include "forms/runtime/Eventos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/widgets/CajaTexto.h"

using namespace Qt::StringLiterals;

namespace {

/// Room that the toolkit keeps at each side of the text of a box, and for the caret.
constexpr int kHolgura = 6;
/// What an empty maximum length reads as.
constexpr int kSinLimite = 32767;

void DarAncho(CajaTexto& caja) {
    if (caja.maxLength() == kSinLimite) {
        return;
    }
    const QChar tipica = caja.Filtro() == CajaTexto::Naturales ? u'0' : u'N';
    QStyleOptionFrame opcion;
    opcion.initFrom(&caja);
    opcion.lineWidth = caja.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &opcion, &caja);
    const QSize texto(caja.fontMetrics().horizontalAdvance(QString(caja.maxLength(), tipica)) + kHolgura, 0);
    caja.setFixedWidth(caja.style()->sizeFromContents(QStyle::CT_LineEdit, &opcion, texto, &caja).width());
}

/// Previews the keys of a form: hears their release before the control that has the focus.
class EscuchaDeTeclas : public QObject {
  public:
    EscuchaDeTeclas(Formulario& formulario, std::function<void()> cuerpo)
        : QObject(&formulario.Ventana()), m_formulario(formulario), m_cuerpo(std::move(cuerpo)) {
        for (QWidget* control : formulario.Ventana().findChildren<QWidget*>()) {
            if (control->focusPolicy() != Qt::NoFocus) {
                control->installEventFilter(this);
            }
        }
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::KeyRelease && !static_cast<QKeyEvent*>(evento)->isAutoRepeat() &&
            !m_formulario.Descargado()) {
            Evento(m_cuerpo);
        }
        return QObject::eventFilter(objeto, evento);
    }

  private:
    Formulario& m_formulario;
    std::function<void()> m_cuerpo;
};

}  // namespace

void PrepararCajas(Formulario& formulario, const std::function<void()>& alCambiar) {
    for (CajaTexto* caja : formulario.Ventana().findChildren<CajaTexto*>()) {
        DarAncho(*caja);
        AlRecibirFoco(formulario, caja, [caja] { SeleccionarTexto(*caja); });
        Conectar(formulario, caja, &CajaTexto::Cambiado, alCambiar);
    }
    new EscuchaDeTeclas(formulario, alCambiar);
}

QMap<QString, QString> TextosDeCajas(const QWidget& formulario) {
    QMap<QString, QString> textos;
    for (const CajaTexto* caja : formulario.findChildren<CajaTexto*>()) {
        textos.insert(caja->objectName(), caja->text());
    }
    return textos;
}

void PonerTextosEnCajas(const QWidget& formulario, const QMap<QString, QString>& textos) {
    static const QRegularExpression cifras(u"^[0-9]*$"_s);
    for (CajaTexto* caja : formulario.findChildren<CajaTexto*>()) {
        const QString texto = textos.value(caja->objectName(), caja->text()).left(caja->maxLength());
        if (caja->Filtro() != CajaTexto::Naturales || cifras.match(texto).hasMatch()) {
            caja->setText(texto);
        }
    }
}
