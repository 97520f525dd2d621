#include "core/services/OrdenesDeTabla.h"

namespace {

/// What `parte` gives for each column, joined by commas.
template <class F>
std::string Unir(ColumnasDeAlmacen columnas, F&& parte) {
    std::string texto;
    for (const ColumnaDeAlmacen& columna : columnas) {
        texto += (texto.empty() ? "" : ", ") + parte(columna);
    }
    return texto;
}

std::string Nombre(const ColumnaDeAlmacen& columna) { return columna.nombre; }

std::string Parametro(const ColumnaDeAlmacen& columna) { return '?' + std::to_string(columna.lugar + 1); }

std::string Asignacion(const ColumnaDeAlmacen& columna) {
    return Nombre(columna) + " = " + Parametro(columna);
}

}  // namespace

std::string OrdenDeLeer(ColumnasDeAlmacen columnas, const char* resto) {
    return "SELECT " + Unir(columnas, Nombre) + ' ' + resto;
}

std::string OrdenDeInsertar(const char* tabla, ColumnasDeAlmacen columnas) {
    return std::string("INSERT INTO ") + tabla + " (" + Unir(columnas, Nombre) + ") VALUES (nullif(?1, 0), " +
           Unir(columnas.subspan(1), Parametro) + ')';
}

std::string OrdenDeCambiar(const char* tabla, ColumnasDeAlmacen columnas) {
    return std::string("UPDATE ") + tabla + " SET " + Unir(columnas.subspan(1), Asignacion) + " WHERE " +
           Asignacion(columnas.front());
}

void PonerRegistro(Consulta& orden, ColumnasDeAlmacen columnas, const Registro& registro) {
    for (const ColumnaDeAlmacen& columna : columnas) {
        orden.Poner(columna.lugar + 1, columna.tipo, Elemento(registro, columna.lugar));
    }
}
