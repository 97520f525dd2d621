#pragma once

#include <SQLiteCpp/Database.h>

#include <QDateTime>
#include <QString>
#include <vector>

#include "core/copies/CanalCopias.h"

// The automatic copies of the user's store: "ZELTMOD-20070704-090807-000-diaria.mdb" and the like, by day,
// time and occasion, so that their names stand in the order of their making, each with its checksum beside
// it. The last ten are kept. No file of another form of name is ever touched.

/// What a copy was made before.
enum class Ocasion { Diaria, Migracion, Restauracion };

/// The folder "backups/auto" beside that of the store.
QString CarpetaDeCopiasAutomaticas(const QString& almacen);

/// Copies the store on a connection that is in no transaction, checks the copy, and gives its path. `almacen`
/// is the path of the store. Makes the folder when it is missing. Raises 75, 76 or the failure of the store.
QString HacerCopiaAutomatica(SQLite::Database& base, const QString& almacen, Ocasion ocasion,
                             const QDateTime& ahora);

/// Removes the oldest beyond the last ten, never the one at `reciente`, whatever the clock says of the
/// others.
void PodarCopiasAutomaticas(const QString& carpeta, const QString& reciente);

/// Whether a copy was made before the first change of that day.
bool HayCopiaDelDia(const QString& carpeta, QDate dia);

/// Whether a sound copy holds declarants.
bool HayCopiaConDatos(const QString& carpeta);

/// The sound copies, the latest first, each with the moment of its making.
std::vector<ResumenDeCopia> CopiasAutomaticas(const QString& carpeta);
