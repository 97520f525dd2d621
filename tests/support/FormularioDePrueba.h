#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "forms/runtime/Formularios.h"
#include "tests/support/EntornoDePrueba.h"

/// Base of the tests of screens: the environment of the rules, and no form left over from other tests.
class PruebaDeFormularios : public EntornoDePrueba {
  protected:
    void TearDown() override {
        Formularios::Reiniciar();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EntornoDePrueba::TearDown();
    }

    /// Runs `cuerpo` once, as soon as the form of that name is on the screen; to be called before the line
    /// that shows it modally. A form that does not come within 10 seconds fails the test.
    void CuandoAparezca(const QString& nombre, std::function<void(QWidget&)> cuerpo) {
        auto* reloj = new QTimer(qApp);
        auto* intentos = new int(0);
        QObject::connect(reloj, &QTimer::timeout, qApp, [=] {
            const bool visible = Formularios::Visible(nombre);
            if (!visible && ++*intentos < 2000) {
                return;
            }
            reloj->stop();
            reloj->deleteLater();
            delete intentos;
            ASSERT_TRUE(visible) << "no aparece " << nombre.toStdString();
            cuerpo(Formularios::Obtener(nombre).Ventana());
        });
        reloj->start(5);
    }
};
