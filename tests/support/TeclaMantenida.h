#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>

// Keys as the window system sends them: to the window that has the focus, whichever that is by then.

inline void EnviarTecla(bool apretar, Qt::Key tecla, Qt::KeyboardModifiers modificadores, bool repetida) {
    QWindow* ventana = QGuiApplication::focusWindow();
    ASSERT_NE(ventana, nullptr) << "keys go nowhere";
    QString texto;
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
        texto = QStringLiteral("\r");
    } else if (tecla < Qt::Key_Escape && modificadores == Qt::NoModifier) {
        texto = QString(QChar(static_cast<char16_t>(tecla))).toLower();
    }
    QTest::simulateEvent(ventana, apretar, tecla, modificadores, texto, repetida);
}

inline void ApretarTecla(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) {
    EnviarTecla(true, tecla, modificadores, false);
}
inline void SoltarTecla(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) {
    EnviarTecla(false, tecla, modificadores, false);
}
/// One repeat: the system sends a release and a press.
inline void RepetirTecla(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) {
    EnviarTecla(false, tecla, modificadores, true);
    EnviarTecla(true, tecla, modificadores, true);
}

/// Holds a key down for some repeats while the event loop runs, also in dialogs that the key opens, and lets
/// it go. Then, wherever the program stands, `alFinal` runs, which is to close what is still open.
class TeclaMantenida : public QObject {
  public:
    TeclaMantenida(Qt::Key tecla, std::function<void()> alFinal)
        : m_tecla(tecla), m_alFinal(std::move(alFinal)) {}

    /// Returns when the key is up and everything that it has started has ended.
    void Mantener(int repeticiones = 30) {
        Seguir(repeticiones);
        ApretarTecla(m_tecla);
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_hecho; }));
    }

  private:
    void Seguir(int quedan) {
        constexpr int kMilisegundos = 5;
        QTimer::singleShot(kMilisegundos, this, [this, quedan] {
            if (quedan > 0) {
                // First, since the key may open a dialog, which ends later.
                Seguir(quedan - 1);
                RepetirTecla(m_tecla);
            } else {
                QTimer::singleShot(kMilisegundos, this, [this] {
                    m_hecho = true;
                    m_alFinal();
                });
                SoltarTecla(m_tecla);
            }
        });
    }

    Qt::Key m_tecla;
    std::function<void()> m_alFinal;
    bool m_hecho = false;
};
