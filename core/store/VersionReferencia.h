#pragma once

#include <QString>

/// `VersionDatos` of the reference store in the file at `ruta`: the higher one is the newer. 0 when there is
/// no such file. One that is not a reference store of this version of the program, or can't be read, raises
/// what `Almacen` raises, with the file and the cause: it is not for the program to replace it. Keeps no
/// connection.
qint32 VersionDeReferencia(const QString& ruta);
