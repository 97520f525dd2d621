#include "core/store/ConsultaLibre.h"

#include <sqlite3.h>

#include <QByteArray>
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Cierre {
    void operator()(sqlite3_stmt* orden) const { sqlite3_finalize(orden); }
};
using Orden = std::unique_ptr<sqlite3_stmt, Cierre>;

/// Prepared by hand: the library's class runs the first order of a text and hides what follows it.
Orden Preparar(Almacen& almacen, const QString& sql) {
    const QByteArray texto = sql.toUtf8();
    const char* resto = nullptr;
    sqlite3_stmt* preparada = nullptr;
    almacen.Base().check(sqlite3_prepare_v2(almacen.Base().getHandle(), texto.constData(),
                                            static_cast<int>(texto.size()) + 1, &preparada, &resto));
    Orden orden(preparada);
    const bool lectura = orden && sqlite3_stmt_readonly(orden.get()) != 0 &&
                         sqlite3_stmt_isexplain(orden.get()) == 0 && sqlite3_column_count(orden.get()) > 0;
    if (!lectura || !QByteArrayView(resto).trimmed().isEmpty()) {
        throw FalloDeAlmacen(NumError::AlmacenOrden, almacen.Ruta(), u"Solo se admite una consulta."_s);
    }
    return orden;
}

Valor Celda(sqlite3_stmt* orden, int columna) {
    switch (sqlite3_column_type(orden, columna)) {
        case SQLITE_INTEGER: {
            const sqlite3_int64 n = sqlite3_column_int64(orden, columna);
            const bool cabe =
                n >= std::numeric_limits<qint32>::min() && n <= std::numeric_limits<qint32>::max();
            return cabe ? Valor(static_cast<qint32>(n)) : Valor(static_cast<double>(n));
        }
        case SQLITE_FLOAT:
            return sqlite3_column_double(orden, columna);
        case SQLITE_TEXT: {
            const unsigned char* texto = sqlite3_column_text(orden, columna);
            return QString::fromUtf8(reinterpret_cast<const char*>(texto),
                                     sqlite3_column_bytes(orden, columna));
        }
        case SQLITE_NULL:
            return Valor::Nulo();
        default:
            throw ErrorZT(NumError::NoCoincidenTipos);
    }
}

bool Siguiente(Almacen& almacen, sqlite3_stmt* orden) {
    const int resultado = sqlite3_step(orden);
    if (resultado != SQLITE_ROW && resultado != SQLITE_DONE) {
        throw SQLite::Exception(almacen.Base().getHandle(), resultado);
    }
    return resultado == SQLITE_ROW;
}

}  // namespace

Tabla ConsultaLibre(Almacen& almacen, const QString& sql) {
    const Orden orden = Preparar(almacen, sql);
    const int columnas = sqlite3_column_count(orden.get());
    Tabla filas;
    for (int fila = 0; Siguiente(almacen, orden.get()); ++fila) {
        if (fila == 0) {
            filas = Tabla(columnas - 1, 0);
        } else {
            filas.RedimensionarFilas(fila);
        }
        for (int columna = 0; columna < columnas; ++columna) {
            filas(columna, fila) = Celda(orden.get(), columna);
        }
    }
    return filas;
}
