#include "forms/widgets/CajaNumerica.h"

#include <QKeyEvent>
#include <QStyleOptionFrame>
#include <QValidator>
#include <tuple>

#include "core/base/EntradaNumerica.h"
#include "core/base/Formatos.h"
#include "core/base/Pantalla.h"
#include "core/base/Regional.h"
#include "core/records/Productos.h"
#include "forms/widgets/Foco.h"

namespace {

/// Undoes every change that would leave something else than a number in the course of entry, whichever way
/// it came.
class ValidadorDeEntrada : public QValidator {
  public:
    explicit ValidadorDeEntrada(CajaNumerica* caja) : QValidator(caja), m_caja(*caja) {}

    State validate(QString& texto, int& /*posicion*/) const override {
        return EsEntradaNumerica(texto, EnterosDeMascara(m_caja.Mascara())) ? Acceptable : Invalid;
    }

  private:
    const CajaNumerica& m_caja;
};

bool EsDecimalDelTeclado(const QKeyEvent& evento) {
    return evento.modifiers().testFlag(Qt::KeypadModifier) &&
           (evento.key() == Qt::Key_Period || evento.key() == Qt::Key_Comma);
}

}  // namespace

CajaNumerica::CajaNumerica(QWidget* padre)
    : CajaTexto(padre), m_mascara(QString::fromUtf16(kMascaraImporte)) {
    setAlignment(Qt::AlignRight);
    setValidator(new ValidadorDeEntrada(this));
}

void CajaNumerica::setAppearance(int apariencia) {
    m_apariencia = apariencia;
    update();
}

QString CajaNumerica::Filtrar(const QString& texto) const {
    return texto.size() == 1 ? TeclaNumerica(texto.front()) : LimpiarNumero(texto);
}

void CajaNumerica::Rechazar() {
    if (!isReadOnly()) {
        Pantalla().Pitar();
    }
}

void CajaNumerica::keyPressEvent(QKeyEvent* evento) {
    if (!EsDecimalDelTeclado(*evento)) {
        const bool digito = evento->text().size() == 1 && evento->text().front().isDigit();
        const auto estado = [this] { return std::tuple(text(), cursorPosition(), selectedText()); };
        const auto antes = estado();
        CajaTexto::keyPressEvent(evento);
        // A digit that finds no room is not left out in silence: the figure would be another one.
        if (digito && estado() == antes) {
            Rechazar();
        }
        return;
    }
    QKeyEvent decimal(evento->type(), evento->key(), evento->modifiers(), Regional().decimal,
                      evento->isAutoRepeat(), static_cast<quint16>(evento->count()));
    CajaTexto::keyPressEvent(&decimal);
    evento->setAccepted(decimal.isAccepted());
}

void CajaNumerica::focusOutEvent(QFocusEvent* evento) {
    if (DentroDelPrograma(*evento)) {
        MostrarPorMascara();
    }
    CajaTexto::focusOutEvent(evento);
}

void CajaNumerica::initStyleOption(QStyleOptionFrame* opcion) const {
    CajaTexto::initStyleOption(opcion);
    opcion->features.setFlag(QStyleOptionFrame::Flat, m_apariencia == 0);
}

void CajaNumerica::MostrarPorMascara() {
    if (text().isEmpty()) {
        return;
    }
    const auto numero = LeerEntrada(text(), EnterosDeMascara(m_mascara));
    if (!numero && text() != m_anterior) {
        Rechazar();
    }
    const QString mostrado = numero ? Formatear(*numero, m_mascara) : m_anterior;
    if (mostrado != text()) {
        setText(mostrado);
    }
}
