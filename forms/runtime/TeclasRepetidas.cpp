#include "forms/runtime/TeclasRepetidas.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "core/run/Entorno.h"

namespace {

constexpr char kPregunta[] = "EsPregunta";

/// The longest that systems wait before a held key begins to repeat.
constexpr qint64 kCalladaMs = 1000;

bool EsIntro(int tecla) { return tecla == Qt::Key_Return || tecla == Qt::Key_Enter; }

bool EsIntroOEspacio(int tecla) {
    return EsIntro(tecla) || tecla == Qt::Key_Space || tecla == Qt::Key_Select;
}

/// Keys that move within a menu or a message box, where any other activates.
bool EsDeMovimiento(int tecla) {
    return (tecla >= Qt::Key_Home && tecla <= Qt::Key_PageDown) || tecla == Qt::Key_Tab ||
           tecla == Qt::Key_Backtab;
}

bool TodaTeclaActiva(const QObject& control) {
    return qobject_cast<const QMenu*>(&control) != nullptr ||
           qobject_cast<const QMenuBar*>(&control) != nullptr ||
           qobject_cast<const QMessageBox*>(&control) != nullptr;
}

/// Whether the key is text to the control, or scrolls it.
bool EsTexto(const QObject& control, int tecla) {
    if (const auto* caja = qobject_cast<const QLineEdit*>(&control)) {
        return tecla == Qt::Key_Space && !caja->isReadOnly();
    }
    const auto deVariasLineas = [tecla](const auto* texto) {
        return texto != nullptr && (tecla == Qt::Key_Space || (EsIntro(tecla) && !texto->isReadOnly()));
    };
    return deVariasLineas(qobject_cast<const QPlainTextEdit*>(&control)) ||
           deVariasLineas(qobject_cast<const QTextEdit*>(&control));
}

/// Whether a repeat of the key would press something.
bool Activa(const QObject& control, int tecla) {
    if (TodaTeclaActiva(control)) {
        return !EsDeMovimiento(tecla);
    }
    return tecla == Qt::Key_Escape || (EsIntroOEspacio(tecla) && !EsTexto(control, tecla));
}

bool EsUnaPregunta(const QWidget& ventana) {
    const auto* caja = qobject_cast<const QMessageBox*>(&ventana);
    return ventana.property(kPregunta).toBool() || (caja != nullptr && caja->buttons().size() > 1);
}

}  // namespace

TeclasRepetidas::TeclasRepetidas() { qApp->installEventFilter(this); }

void TeclasRepetidas::EsPregunta(QWidget& ventana, bool pregunta) {
    ventana.setProperty(kPregunta, pregunta);
}

bool TeclasRepetidas::eventFilter(QObject* objeto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::Show:
            if (objeto->isWidgetType()) {
                AlMostrar(*static_cast<QWidget*>(objeto));
            }
            break;
        case QEvent::Hide:
            if (qobject_cast<QMenu*>(objeto) != nullptr) {
                // The release of the key that chose in it may come while no window has the keyboard.
                m_abajo.clear();
            }
            break;
        case QEvent::ShortcutOverride:
            m_atajoRepetido = static_cast<const QKeyEvent*>(evento)->isAutoRepeat();
            break;
        case QEvent::Shortcut:
            return m_atajoRepetido;
        case QEvent::KeyPress:
            if (AlApretar(objeto, *static_cast<const QKeyEvent*>(evento))) {
                evento->accept();
                return true;
            }
            break;
        case QEvent::KeyRelease:
            AlSoltar(*static_cast<const QKeyEvent*>(evento));
            break;
        case QEvent::ApplicationDeactivate:
            // They are let go in another program.
            m_abajo.clear();
            break;
        default:
            break;
    }
    return QObject::eventFilter(objeto, evento);
}

void TeclasRepetidas::AlMostrar(QWidget& ventana) {
    if (ventana.isWindow() && EsUnaPregunta(ventana)) {
        m_pregunta = &ventana;
        const QList<int> abajo = m_abajo.keys();
        m_porSoltar = QSet<int>(abajo.begin(), abajo.end());
        OlvidarLasCalladas();
    }
}

bool TeclasRepetidas::AlApretar(QObject* objeto, const QKeyEvent& tecla) {
    const bool suya = EsIntroOEspacio(tecla.key());
    if (suya) {
        m_abajo.insert(tecla.key(), Entorno().Milisegundos());
        OlvidarLasCalladas();
    }
    if (!objeto->isWidgetType()) {
        return false;
    }
    const bool retenida =
        suya && static_cast<const QWidget*>(objeto)->window() == m_pregunta && !m_porSoltar.isEmpty();
    return retenida || (tecla.isAutoRepeat() && Activa(*objeto, tecla.key()));
}

void TeclasRepetidas::OlvidarLasCalladas() {
    const qint64 ahora = Entorno().Milisegundos();
    m_porSoltar.removeIf([&](int tecla) { return ahora - m_abajo.value(tecla) > kCalladaMs; });
}

void TeclasRepetidas::AlSoltar(const QKeyEvent& tecla) {
    if (!tecla.isAutoRepeat()) {
        m_abajo.remove(tecla.key());
        m_porSoltar.remove(tecla.key());
    }
}
