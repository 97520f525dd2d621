#pragma once

#include <QDateTime>
#include <QString>
#include <span>

#include "core/store/Almacen.h"
#include "core/store/esquema/Esquema.h"

/// Brings an older store up by those steps, after it has gone among the automatic copies, and wants the
/// result to be sound; leaves one that is up to date as it is, and looks at its structure alone
/// (`RevisionDeFondo` reads it whole). Raises the failure of the store, which then is as it was.
void MigrarConCopia(Almacen& almacen, std::span<const PasoDeEsquema> pasos, const QDateTime& ahora);

/// Makes the user's store at `ruta` where there is none, and brings it to the version of this program. A
/// newer, foreign, empty or read-only file, and one whose length, structure or general row are damaged, is
/// left as it is and raises 3340, 3343, 3049 or 3027 with the file and the cause.
void MigrarAlmacen(const QString& ruta, const QDateTime& ahora);
