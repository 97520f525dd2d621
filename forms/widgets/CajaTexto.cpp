#include "forms/widgets/CajaTexto.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QStyleHints>
#include <algorithm>

#include "core/run/GeneralZT.h"

namespace {

/// True for a key that brings in text; keys held with Ctrl are commands.
bool TraeTexto(const QKeyEvent& evento) {
    const auto modificadores = evento.modifiers() & ~Qt::KeypadModifier;
    const bool orden =
        modificadores == Qt::ControlModifier || modificadores == (Qt::ControlModifier | Qt::ShiftModifier);
    const QString texto = evento.text();
    return !orden && !texto.isEmpty() && (texto.front().isPrint() || texto.front().isSurrogate());
}

}  // namespace

CajaTexto::CajaTexto(QWidget* padre) : QLineEdit(padre) {
    connect(this, &QLineEdit::textEdited, this, &CajaTexto::Cambiado);
}

QString CajaTexto::Filtrar(const QString& texto) const {
    if (m_filtro == Ninguno) {
        return texto;
    }
    QString aceptado;
    // A letter and its mark can come as two characters; the filters know the joined one.
    for (const QChar c : texto.normalized(QString::NormalizationForm_C)) {
        int codigo = c.isPrint() ? c.unicode() : 0;
        if (m_filtro == Naturales) {
            Keypress_Naturales(codigo);
        } else {
            codigo = CaracterAceptable(codigo);
        }
        if (codigo != 0) {
            aceptado += QChar(static_cast<char16_t>(codigo));
        }
    }
    return aceptado;
}

void CajaTexto::Pegar(QClipboard::Mode modo) {
    const QString portapapeles = QGuiApplication::clipboard()->text(modo);
    if (isReadOnly() || portapapeles.isEmpty()) {
        return;
    }
    const QString texto = Filtrar(portapapeles);
    const QString antes = this->text();
    const bool otro = texto.isEmpty() || texto != selectedText();
    if (!texto.isEmpty()) {
        insert(texto);
    }
    if (otro && this->text() == antes) {
        Rechazar();
    }
}

void CajaTexto::keyPressEvent(QKeyEvent* evento) {
    m_focoPorClic = false;
    if (evento->matches(QKeySequence::Paste)) {
        // Shift and Ctrl with Insert is the paste of the selection of the mouse.
        const bool raton = evento->key() == Qt::Key_Insert &&
                           evento->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        Pegar(raton ? QClipboard::Selection : QClipboard::Clipboard);
        evento->accept();
        return;
    }
    const QString texto = TraeTexto(*evento) ? Filtrar(evento->text()) : evento->text();
    if (texto == evento->text()) {
        QLineEdit::keyPressEvent(evento);
    } else if (texto.isEmpty()) {
        evento->accept();
    } else {
        QKeyEvent filtrado(evento->type(), evento->key(), evento->modifiers(), texto, evento->isAutoRepeat(),
                           static_cast<quint16>(evento->count()));
        QLineEdit::keyPressEvent(&filtrado);
        evento->setAccepted(filtrado.isAccepted());
    }
}

void CajaTexto::inputMethodEvent(QInputMethodEvent* evento) {
    const QString texto = Filtrar(evento->commitString());
    QInputMethodEvent filtrado(evento->preeditString(), evento->attributes());
    filtrado.setCommitString(texto, evento->replacementStart(), evento->replacementLength());
    QLineEdit::inputMethodEvent(&filtrado);
    evento->setAccepted(filtrado.isAccepted());
}

void CajaTexto::dropEvent(QDropEvent* evento) {
    const QString texto = Filtrar(evento->mimeData()->text());
    if (texto.isEmpty()) {
        evento->ignore();
        Rechazar();
        return;
    }
    const QString antes = text();
    QMimeData datos;
    datos.setText(texto);
    QDropEvent filtrado(evento->position(), evento->possibleActions(), &datos, evento->buttons(),
                        evento->modifiers());
    filtrado.setDropAction(evento->dropAction());
    QLineEdit::dropEvent(&filtrado);
    evento->setDropAction(filtrado.dropAction());
    evento->setAccepted(filtrado.isAccepted());
    if (text() == antes) {
        Rechazar();
    }
}

void CajaTexto::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu* menu = createStandardContextMenu();
    if (menu == nullptr) {
        return;
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QList<QAction*> entradas = menu->actions();
    const QString pegar = QLineEdit::tr("&Paste");
    const auto entrada = std::ranges::find_if(
        entradas, [&](const QAction* accion) { return accion->text().startsWith(pegar); });
    if (entrada != entradas.end()) {
        (*entrada)->disconnect(this);
        connect(*entrada, &QAction::triggered, this, [this] { Pegar(QClipboard::Clipboard); });
    }
    menu->popup(evento->globalPos());
}

void CajaTexto::focusInEvent(QFocusEvent* evento) {
    m_focoPorClic = evento->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(evento);
}

void CajaTexto::mousePressEvent(QMouseEvent* evento) {
    const int inicio = selectionStart();
    const auto largo = static_cast<int>(selectionLength());
    const bool conservar = m_focoPorClic && evento->button() == Qt::LeftButton && largo > 0;
    m_focoPorClic = false;
    m_clicDeFoco.reset();
    QLineEdit::mousePressEvent(evento);
    if (conservar) {
        setSelection(inicio, largo);
        m_clicDeFoco = evento->position().toPoint();
    }
}

void CajaTexto::mouseMoveEvent(QMouseEvent* evento) {
    if (m_clicDeFoco && evento->buttons().testFlag(Qt::LeftButton)) {
        const QPoint recorrido = evento->position().toPoint() - *m_clicDeFoco;
        if (recorrido.manhattanLength() < QGuiApplication::styleHints()->startDragDistance()) {
            return;
        }
        setCursorPosition(cursorPositionAt(*m_clicDeFoco));
        m_clicDeFoco.reset();
    }
    QLineEdit::mouseMoveEvent(evento);
}

void CajaTexto::mouseReleaseEvent(QMouseEvent* evento) {
    m_clicDeFoco.reset();
    if (evento->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
        if (rect().contains(evento->position().toPoint())) {
            deselect();
            Pegar(QClipboard::Selection);
        }
        return;
    }
    QLineEdit::mouseReleaseEvent(evento);
}
