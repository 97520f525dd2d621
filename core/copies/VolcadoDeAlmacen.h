#pragma once

#include <SQLiteCpp/Database.h>

#include <QString>
#include <optional>

#include "core/copies/CanalCopias.h"

/// Where the date of a copy is noted: table and column of the general row, and the date as YYYYMMDD.
struct FechaDeCopia {
    QString tabla;
    QString campo;
    qint32 fecha = 0;
};

/// Writes the date into the general row. Raises 3075 for a table or column of another name than those of
/// identifiers.
void AnotarFecha(SQLite::Database& base, const FechaDeCopia& fecha);

/// The day noted there in the user's store at `ruta`; not valid while there is none. Raises the failure of
/// the store.
QDate FechaAnotada(const QString& ruta, const QString& tabla, const QString& campo);

/// Copies the store on a connection that is in no transaction into the empty file at `ruta`, as it stands at
/// one moment, whatever others write meanwhile; notes the date in the copy when one is given; reads the copy
/// back whole; and has it on disk on return. Failures of the library come out as they are.
void VolcarAlmacen(SQLite::Database& origen, const QString& ruta, const std::optional<FechaDeCopia>& fecha,
                   const AvanceDeCopia& avance);

/// The part of a progress from `desde` to `hasta` per cent.
AvanceDeCopia Tramo(const AvanceDeCopia& avance, int desde, int hasta);

/// For those whom nobody watches.
inline void SinAvance(int /*porcentaje*/) {}
