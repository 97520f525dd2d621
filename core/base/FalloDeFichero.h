#pragma once

#include <QFileDevice>

#include "core/base/ErrorZT.h"

/// The failure `numero` of a file or folder: the platform's text, the path with native separators, and the
/// cause when there is one to be told.
ErrorZT FalloDeFichero(NumError numero, const QString& ruta, const QString& causa = {});

/// The same of which nothing tells a cause: text and path alone, with no full stop.
ErrorZT FalloSinCausa(NumError numero, const QString& ruta);

/// The number of a failed write: 61 where the disk has no room, 57 otherwise.
NumError NumeroDeEscritura(QFileDevice::FileError error);

/// What a write to an open file has just failed for. `ruta` is the file that the user knows of.
ErrorZT FalloDeEscritura(const QFileDevice& fichero, const QString& ruta);
