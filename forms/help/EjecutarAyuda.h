#pragma once

#include <QString>

class QWidget;

/// Folder of the help set of the language in force, in the program folder.
QString CarpetaDeAyuda();

/// Shows a help topic in the help window, above the given form.
void EjecutarAyuda(const QString& tema, QWidget& formulario);

/// Turns a help window that is open to the help set of the language in force.
void PonerAyudaEnIdioma();

/// Shows the topic of the form that is in use; the first topic where there is none.
void EjecutarAyudaDelFormulario(QWidget& marco);
