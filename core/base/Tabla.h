#pragma once

#include <vector>

#include "core/base/Valor.h"

/// The two-dimensional result buffer, addressed (column, row).
///
/// Columns and rows both start at 0. Results of the servers hold their records in rows 1 to `UltimaFila()`
/// and leave row 0 unused; only results of free SQL hold them from row 0. A buffer can be Null: nothing was
/// found. Its bounds then do not exist, and asking for them raises 13.
class Tabla {
  public:
    /// The Null buffer.
    Tabla() = default;
    /// Columns 0 to `ultimaColumna`, rows 0 to `ultimaFila`, all Empty. Raises 9 for a bound below 0.
    Tabla(int ultimaColumna, int ultimaFila);

    [[nodiscard]] bool EsNula() const noexcept { return m_columnas == 0; }
    /// Upper bound of the columns. Raises 13 for the Null buffer.
    [[nodiscard]] int UltimaColumna() const;
    /// Upper bound of the rows. Raises 13 for the Null buffer.
    [[nodiscard]] int UltimaFila() const;

    /// Element (column, row). Raises 13 for the Null buffer, 9 outside the bounds.
    [[nodiscard]] const Valor& operator()(int columna, int fila) const {
        return m_datos[Lugar(columna, fila)];
    }
    [[nodiscard]] Valor& operator()(int columna, int fila) { return m_datos[Lugar(columna, fila)]; }

    /// Changes the upper bound of the rows and keeps the contents. Raises 13 for the Null buffer.
    void RedimensionarFilas(int ultimaFila);

    friend bool operator==(const Tabla&, const Tabla&) = default;

  private:
    [[nodiscard]] std::size_t Lugar(int columna, int fila) const;
    void ExigirNoNula() const;

    int m_columnas = 0;
    int m_filas = 0;
    std::vector<Valor> m_datos;
};

/// A record result: one dimension, from 0.
using Registro = std::vector<Valor>;

/// Element `indice` of a record. Raises 9 outside the bounds.
[[nodiscard]] const Valor& Elemento(const Registro& registro, int indice);
