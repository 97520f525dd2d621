#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>
#include <utility>

#include "tests/support/EsperarActiva.h"

/// Works the platform's dialog of class D that opens next. To be made before what opens it, and to live
/// beyond it: at its end one must have come.
template <class D>
class AlDialogo {
  public:
    explicit AlDialogo(std::function<void(D&)> accion) : m_accion(std::move(accion)) {
        constexpr int kMilisegundos = 5;
        QObject::connect(&m_reloj, &QTimer::timeout, [this] { Mirar(); });
        m_reloj.start(kMilisegundos);
    }
    ~AlDialogo() { EXPECT_TRUE(m_hecho) << "no dialog came"; }
    AlDialogo(const AlDialogo&) = delete;
    AlDialogo& operator=(const AlDialogo&) = delete;

  private:
    void Mirar() {
        auto* dialogo = qobject_cast<D*>(QApplication::activeModalWidget());
        if (dialogo == nullptr) {
            return;
        }
        // Waiting runs the timers too.
        m_reloj.stop();
        EXPECT_TRUE(EsperarActiva(dialogo));
        m_hecho = true;
        m_accion(*dialogo);
    }

    QTimer m_reloj;
    std::function<void(D&)> m_accion;
    bool m_hecho = false;
};
