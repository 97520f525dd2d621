#pragma once

#include <QString>

/// Temporary folder, ending in a separator; empty when the platform gives none.
QString pathTemporal();

/// Name of the machine; empty when the platform gives none.
QString NombrePC();

/// Writes the failure log: one file per failure in the temporary folder, named "Error", the moment
/// ("yy-mm-dd hh-mm-ss") and ".log". It is new and for the user alone; a link or a file of another kind that
/// bears the name stays as it is, and " (2)" and so on is put behind the moment. Best effort: a step that
/// fails is skipped, so that a log that can't be written never stops the dialog. Closes every open file of
/// the program. Gives the path of the log.
QString ErrorADisco(const QString& formulario, const QString& evento, const QString& descripcion);
