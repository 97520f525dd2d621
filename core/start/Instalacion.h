#pragma once

#include <QString>

/// Root of the data of a program folder: the folder itself or, when it holds "cliente" (in any case), its
/// part in front of the separator before that word. Raises 5 when nothing stands in front of it.
QString RaizDeDatos(const QString& carpeta);

/// Chooses the program folder and lays it out.
///
/// It is the folder of the program file (`carpetaEjecutable`) when the root that `RaizDeDatos` makes of it
/// holds "Tablas"; otherwise the user's own folder (`carpetaUsuario`), which gets "Tablas", "Ayuda" and
/// "backups" at the first start. The reference store and the help are copied from `origen`: the former anew
/// when the installed one is newer, the topics of the latter when its list of checksums differs or there is
/// none. The user's store is never touched. Files and folders are on disk on return, and what killed copies
/// of the program have left in them is gone.
///
/// A reference store in use that is damaged or none is named to the user, set aside as it is under its name
/// and
/// ".N.rechazado", and copied anew. Raises 75 with file and cause when something can't be written, and for a
/// folder in whose name a byte is no UTF-8.
void PrepararCarpetaPrograma(const QString& carpetaEjecutable, const QString& carpetaUsuario,
                             const QString& origen);

/// The same with the folders of this machine.
void PrepararCarpetaPrograma();
