#pragma once

#include <QByteArray>
#include <QString>

// The two small files that the on-line services leave in the program's folder.

/// Deletes what stands under that name; a link itself, never what it leads to. Nothing there is no failure.
/// Raises 75 with file and cause.
void BorrarSiExiste(const QString& ruta);

/// Writes a file: under another name beside it, then in its place once it is whole. What stands there is
/// deleted first, so that a link is never followed. Raises 75 with file and cause, and leaves nothing half
/// written.
void EscribirEntero(const QString& ruta, const QByteArray& contenido);
