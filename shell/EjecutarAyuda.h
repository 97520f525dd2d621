#pragma once

#include <QString>
#include <QUrl>

class QWidget;

/// Address of a help topic: the program folder, the help set of the language in force, the topic.
QUrl RutaDeAyuda(const QString& tema);

/// Shows a help topic in the help window, above the given form.
void EjecutarAyuda(const QString& tema, QWidget& formulario);
