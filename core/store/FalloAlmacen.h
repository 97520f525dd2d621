#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>

#include <QString>
#include <functional>

#include "core/base/ErrorZT.h"

/// The failure `numero` of the store at `ruta`: the platform's text, the file with native separators, and
/// the cause when there is one to be told.
ErrorZT FalloDeAlmacen(NumError numero, const QString& ruta, const QString& causa = {});

/// What a failure of the storage library means for the user:
/// 3260 busy, 3183 disk full, 3027 read-only, 3051 not to be opened, 3043 I/O, 3049 damaged, 3343 foreign,
/// and 3075 for everything else, broken constraints included.
ErrorZT FalloDeAlmacen(const SQLite::Exception& error, const QString& ruta);

/// Raises the failure of a full disk where `error`, one of input or output or of opening a journal, met the
/// connection for want of room, as the system has told it.
void ExigirSitio(SQLite::Database& base, const SQLite::Exception& error);

/// Runs `cuerpo` on an open connection: a failure of input or output, or of opening a journal, that the
/// system met for want of room comes out as that of a full disk.
template <class F>
auto ConCausaDelSistema(SQLite::Database& base, F&& cuerpo) {
    try {
        return cuerpo();
    } catch (const SQLite::Exception& error) {
        ExigirSitio(base, error);
        throw;
    }
}

/// Runs `cuerpo`, which gives the store at `ruta` none but the program's own fixed orders: where the library
/// cannot carry one out for a reason without a number of its own (3075), the file is damaged. Raises 3049
/// then; other failures pass.
void ConOrdenesPropias(const QString& ruta, const std::function<void()>& cuerpo);

/// Whether the failure is a refusal of a store and not a fault of the caller's data.
bool EsFalloDeAlmacen(const ErrorZT& error);
