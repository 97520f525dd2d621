#pragma once

#include <QString>

/// Path of a file of the program folder.
QString EnCarpetaPrograma(const QString& nombre);
