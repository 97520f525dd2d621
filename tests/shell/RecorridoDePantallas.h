#pragma once

#include <QWidget>

#include "online/cZTActOnline.h"
#include "shell/Main.h"
#include "tests/support/FormularioDePrueba.h"

/// Base of the walks over every registered form: no form asks for the language, looks for updates or waits.
class RecorridoDePantallas : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
        qint64 ahora = 0;
        Entorno().Milisegundos = [ahora]() mutable { return ahora += 1000; };
        oActOnline().ActOnline = 0;
    }

    /// Shows a form and gives its window.
    static QWidget& Abrir(const QString& formulario) {
        Formularios::Mostrar(formulario);
        QCoreApplication::processEvents();
        return Formularios::Obtener(formulario).Ventana();
    }
};

/// Names of all forms of the program.
inline QStringList TodosLosFormularios() {
    RegistrarFormularios();
    return Formularios::Registrados();
}

/// A part of one of the toolkit's own controls.
inline bool EsDeQt(const QWidget& control) { return control.objectName().startsWith(u"qt_"); }

/// A place where the Tab key can stop.
inline bool EsParada(const QWidget& control) {
    return (control.focusPolicy() & Qt::TabFocus) != 0 && control.focusProxy() == nullptr && !EsDeQt(control);
}

/// What is said of a control when a test fails.
inline std::string Nombre(const QWidget& control) {
    return control.metaObject()->className() + (' ' + control.objectName().toStdString()) + " \"" +
           control.property("text").toString().toStdString() + '"';
}
