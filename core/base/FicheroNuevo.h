#pragma once

#include <QByteArray>
#include <QString>

/// Writes a new file in a folder, which is made when it is missing and goes again when nothing comes to be in
/// it, and gives the path of the file. It bears the name
/// `nombre` + `extension`, or the first free one of "nombre (2)" and so on: a file that is there is never
/// replaced. It is written beside the place where it is to appear and gets its name only when its contents
/// are whole and on disk; where that fails nothing is left. What a killed process leaves beside it goes when
/// a file of that name is next written.
///
/// Raises the run-time's number for the cause (61 disk full, 57 other failures of the disk, 75 and 76 for a
/// folder that cannot be written or made) with file and cause in the text.
QString GuardarFicheroNuevo(const QString& carpeta, const QString& nombre, const QString& extension,
                            const QByteArray& contenido);

/// Writes a file in the place of the one that bears the name, if there is one: whoever looks, after a crash
/// too, finds the one or the other, whole. On disk on return. Raises what `GuardarFicheroNuevo` raises.
void ReponerFichero(const QString& ruta, const QByteArray& contenido);

/// Has the names of new files in that folder on disk on return, as far as the file system can: once for all
/// that have been written, since it takes as long as writing one.
void AsegurarFicherosNuevos(const QString& carpeta);
