#pragma once

#include <QFileDevice>

#include "core/base/ErrorZT.h"

/// The failure `numero` of a file or folder: its text, the path with native separators, and the cause when
/// there is one to be told, in the language in force. Of 61 the cause is the lack of room, whatever is given.
ErrorZT FalloDeFichero(NumError numero, const QString& ruta, const QString& causa = {});

/// The same of which nothing tells a cause: text and path alone, with no full stop.
ErrorZT FalloSinCausa(NumError numero, const QString& ruta);

/// The number of a failed write: 61 where the disk has no room, 57 otherwise.
NumError NumeroDeEscritura(QFileDevice::FileError error);

/// What the system has just refused, with its reason: 61 where there was no room, `otro` otherwise. To be
/// asked at once.
ErrorZT FalloDelSistema(NumError otro, const QString& ruta);

/// Writes all of `datos`: a disk that fills up takes a part first, and only the next write is told why.
/// Raises 61 or 57 over `ruta`, the file that the user knows of.
void EscribirTodo(QFileDevice& fichero, const QByteArray& datos, const QString& ruta);

/// What a write to an open file has just failed for. `ruta` is the file that the user knows of.
ErrorZT FalloDeEscritura(const QFileDevice& fichero, const QString& ruta);
