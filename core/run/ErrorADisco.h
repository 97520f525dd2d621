#pragma once

#include <QString>

/// Temporary folder, ending in a separator; empty when the platform gives none.
QString pathTemporal();

/// Name of the machine; empty when the platform gives none.
QString NombrePC();

/// Writes the failure log: one file per failure in the temporary folder, named "Error", the moment
/// ("yy-mm-dd hh-mm-ss") and ".log". Best effort: a step that fails is skipped, so that a log that can't be
/// written never stops the dialog. Closes every open file of the program. Gives the path of the log.
QString ErrorADisco(const QString& formulario, const QString& evento, const QString& descripcion);
