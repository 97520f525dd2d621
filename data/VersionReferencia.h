#pragma once

#include <QString>

/// `VersionDatos` of the reference store in the file at `ruta`: the higher one is the newer. 0 when there is
/// no such file or it is not a reference store that this program reads: it may then be replaced, as nothing
/// of the user's stands in it. Keeps no connection.
qint32 VersionDeReferencia(const QString& ruta);
