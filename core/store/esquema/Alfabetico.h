#pragma once

#include <QStringView>

struct sqlite3;

/// Order of names in lists, the same in both languages and on every system: accents, diaereses and case do
/// not separate names, Ñ comes after N and Ç after C; names that differ in nothing else are ordered by
/// their characters. Below 0, 0 or above 0, as `a` comes before, with or after `b`.
int CompararAlfabetico(QStringView a, QStringView b);

/// Makes the order known to a connection under the name ALFABETICO, which the reference store's columns of
/// names bear. Gives the storage library's result code.
int RegistrarAlfabetico(sqlite3* conexion);
