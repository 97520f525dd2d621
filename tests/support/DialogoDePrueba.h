#pragma once

#include <QTest>

#include "app/Main.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/FormularioDePrueba.h"

/// The environment of the tests of the small dialogs: all forms are known.
class DialogoDePrueba : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
    }

    /// Works the modal form of that name as soon as it is the active window. `accion` takes its window and is
    /// to close it; a form left open fails the test and is closed here, so that the test goes on.
    template <class F>
    void AlAbrirse(QStringView nombre, F accion) {
        CuandoAparezca(nombre.toString(), [nombre = nombre.toString(), accion](QWidget& ventana) {
            EXPECT_TRUE(EsperarActiva(&ventana)) << nombre.toStdString();
            accion(ventana);
            if (Formularios::Cargado(nombre)) {
                ADD_FAILURE() << nombre.toStdString() << " is still open";
                Formularios::Descargar(nombre);
            }
        });
    }

    /// The control of that name. There must be one.
    template <class W = QWidget>
    static W& Control(const QWidget& ventana, const char* nombre) {
        auto* control = ventana.findChild<W*>(QString::fromLatin1(nombre));
        if (control == nullptr) {
            qFatal("no control %s", nombre);
        }
        return *control;
    }

    static void Pulsar(const QWidget& ventana, const char* nombre) {
        QTest::mouseClick(&Control(ventana, nombre), Qt::LeftButton);
    }
};
