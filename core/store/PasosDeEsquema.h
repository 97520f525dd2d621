#pragma once

#include <SQLiteCpp/Database.h>

#include <span>

#include "core/store/esquema/Esquema.h"

/// Runs every step above `version` on the connection and sets the new version. The caller holds the
/// transaction.
void MigrarBase(SQLite::Database& base, qint32 version, std::span<const PasoDeEsquema> pasos);
