#pragma once

#include <SQLiteCpp/Exception.h>

#include "core/store/FalloAlmacen.h"

/// Runs `cuerpo`, which gives the store at `ruta` none but the program's own fixed orders: where the library
/// cannot carry one out for a reason without a number of its own (3075), the file is damaged. Raises 3049
/// then; other failures pass.
template <class F>
void ConOrdenesPropias(const QString& ruta, F&& cuerpo) {
    try {
        cuerpo();
    } catch (const SQLite::Exception& error) {
        if (FalloDeAlmacen(error, ruta).Numero() != static_cast<int>(NumError::AlmacenOrden)) {
            throw;
        }
        throw FalloDeAlmacen(NumError::AlmacenDanado, ruta, QString::fromUtf8(error.what()));
    }
}
