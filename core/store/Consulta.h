#pragma once

#include <QString>
#include <memory>

#include "core/base/Tabla.h"
#include "core/store/Almacen.h"
#include "core/store/ColumnaDeAlmacen.h"

/// One use of a prepared statement of an open store: bind, run, read. Parameters and columns count as in
/// the storage library: parameters from 1, columns from 0. Lives within one call of a server.
class Consulta {
  public:
    /// `sql` has to be a text of static storage; `parametros` are bound from 1 on.
    template <class... T>
    explicit Consulta(Almacen& almacen, const char* sql, const T&... parametros)
        : m_almacen(almacen), m_sql(sql), m_orden(almacen.Tomar(sql)) {
        int indice = 0;
        (Poner(++indice, parametros), ...);
    }
    ~Consulta();
    Consulta(const Consulta&) = delete;
    Consulta& operator=(const Consulta&) = delete;

    void Poner(int indice, qint16 valor) { m_orden->bind(indice, qint32{valor}); }
    void Poner(int indice, qint32 valor) { m_orden->bind(indice, valor); }
    void Poner(int indice, double valor) { m_orden->bind(indice, valor); }
    void Poner(int indice, const QString& valor);
    /// Converts strictly to the kind of the field. Raises 13, 6 or 94.
    void Poner(int indice, TipoDeColumna tipo, const Valor& valor);

    /// Goes to the next row; False when there is none.
    bool Siguiente() { return m_orden->executeStep(); }
    /// Runs an order without result, and gives the number of rows that it changed. It may run again with
    /// other parameters.
    int Ejecutar();

    /// Columns of the row. Integers outside their range, as only a file of others can hold, raise 6.
    [[nodiscard]] qint16 Entero16(int columna) const;
    [[nodiscard]] qint32 Entero32(int columna) const;
    [[nodiscard]] double Doble(int columna) const;
    [[nodiscard]] QString Texto(int columna) const;
    [[nodiscard]] Valor Leer(int columna, TipoDeColumna tipo) const;
    /// Number of columns of a row.
    [[nodiscard]] int Columnas() const { return m_orden->getColumnCount(); }

  private:
    Almacen& m_almacen;
    const char* m_sql;
    std::unique_ptr<SQLite::Statement> m_orden;
};

/// Reads all rows as a list: columns in their places, records in rows from 1, row 0 unused, Null when
/// there are none.
Tabla LeerLista(Consulta& consulta, ColumnasDeAlmacen columnas);

/// Blank or zero, by the kind of the field.
Valor EnBlanco(TipoDeColumna tipo);

/// Reads one row as a record, element i being column i; blanks and zeros when there is no row.
Registro LeerRegistro(Consulta& consulta, ColumnasDeAlmacen columnas);
