#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QString>
#include <string>

/// Changes `VersionDatos` in the reference store at `ruta`.
inline void PonerVersionDeDatos(const QString& ruta, int version) {
    SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Statement orden(base, "UPDATE T01_DATOS SET T01_VALOR = ? WHERE T01_CLAVE = 'VersionDatos'");
    orden.bind(1, std::to_string(version));
    orden.exec();
}

/// Changes the version of the schema that the store at `ruta` says it has.
inline void PonerVersionDeEsquema(const QString& ruta, int version) {
    SQLite::Database(ruta.toStdString(), SQLite::OPEN_READWRITE)
        .exec("PRAGMA user_version = " + std::to_string(version));
}

/// Sets all rates in the reference store at `ruta` to 0.
inline void PonerTiposACero(const QString& ruta) {
    SQLite::Database(ruta.toStdString(), SQLite::OPEN_READWRITE).exec("UPDATE T09_TIPOS SET T09_TIPO = 0");
}
