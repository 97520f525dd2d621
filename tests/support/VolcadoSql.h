#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QString>
#include <string>

#include "tests/support/FicherosDePrueba.h"

// Stores as SQL texts, one order a line but for the tables: what the golden files of the migration hold.

inline QByteArray VolcadoSql(SQLite::Database& base) {
    std::string sql = "PRAGMA application_id = " + base.execAndGet("PRAGMA application_id").getString() +
                      ";\nPRAGMA user_version = " + base.execAndGet("PRAGMA user_version").getString() +
                      ";\n";
    SQLite::Statement esquema(base,
                              "SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL AND name NOT LIKE "
                              "'sqlite_%' ORDER BY rowid");
    while (esquema.executeStep()) {
        sql += esquema.getColumn(0).getString() + ";\n";
    }
    SQLite::Statement tablas(base, "SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name");
    while (tablas.executeStep()) {
        const std::string tabla = tablas.getColumn(0).getString();
        if (tabla == "sqlite_sequence") {
            sql += "DELETE FROM \"sqlite_sequence\";\n";
        }
        SQLite::Statement columnas(base,
                                   "SELECT group_concat('quote(\"' || name || '\")', ' || '', '' || ') "
                                   "FROM pragma_table_info(?)");
        columnas.bind(1, tabla);
        columnas.executeStep();
        SQLite::Statement filas(
            base, "SELECT " + columnas.getColumn(0).getString() + " FROM \"" + tabla + "\" ORDER BY 1");
        while (filas.executeStep()) {
            sql += "INSERT INTO \"" + tabla + "\" VALUES (" + filas.getColumn(0).getString() + ");\n";
        }
    }
    return QByteArray::fromStdString(sql);
}

/// Makes the store of a text in a new file.
inline void CrearDeVolcado(const QString& ruta, const QByteArray& sql) {
    QFile::remove(ruta);
    SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    base.exec("BEGIN");
    base.exec(sql.toStdString());
    base.exec("COMMIT");
}
