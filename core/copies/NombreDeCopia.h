#pragma once

#include <QString>
#include <initializer_list>

// Folders and names of copies as the user gives them.

/// The path for a new copy. The name gets ".mdb" at its end unless it has it.
QString DestinoDeCopia(const QString& carpeta, const QString& nombre);

/// Raises unless a new copy can be put there. The name has to be one that a file can bear on every system to
/// which copies are carried. `sugerida`, the program's own folder of copies, is made when it is missing;
/// another one has to be there. 76 for a missing folder, 3051 for a folder or a device of that name, and
/// `ErrorDeCopia` for a name that is none or too long and for one of the files in `vivos`.
void ExigirDestino(const QString& carpeta, const QString& nombre, const QString& sugerida,
                   std::initializer_list<QString> vivos);

/// The path of an existing copy: as it is given, or with ".mdb" at the end where only that is there.
QString OrigenDeCopia(const QString& carpeta, const QString& nombre);

/// Raises `ErrorDeCopia` when the file at `ruta` is one of those.
void ExigirOtroFichero(const QString& ruta, std::initializer_list<QString> vivos);

/// A filter of file dialogs ("text (...)|*.mdb;mdb") in the toolkit's form ("text (*.mdb mdb)"); several
/// pairs are joined by ";;".
QString FiltroDelDialogo(const QString& filtro);
