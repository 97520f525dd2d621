#pragma once

#include <QByteArray>
#include <QString>

/// Adds whole lines to a log of the program's own, which is made for the user alone. What stands there and is
/// a link is not written to; a log that cannot be written is no failure.
void AnadirARegistro(const QString& ruta, const QByteArray& lineas);
