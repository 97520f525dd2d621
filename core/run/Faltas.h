#pragma once

#include "core/base/Tabla.h"

/// The faults that the validation of a record finds: column 0 the display order (group) of the fault, column
/// 1 its code; rows from 0. An Empty element (0, 0) means that nothing failed.
class Faltas {
  public:
    /// Grows the table by one row and stores the fault there.
    void Anadir(qint16 orden, qint16 codigo) {
        m_tabla.RedimensionarFilas(m_cuenta);
        AnadirSinCrecer(orden, codigo);
    }

    /// Stores the fault without growing the table: only the first fault of all finds room. Raises 9 when an
    /// earlier one has been stored.
    void AnadirSinCrecer(qint16 orden, qint16 codigo) {
        m_tabla(1, m_cuenta) = codigo;
        m_tabla(0, m_cuenta) = orden;
        ++m_cuenta;
    }

    [[nodiscard]] bool Ninguna() const { return m_tabla(0, 0).EsVacio(); }
    [[nodiscard]] const Tabla& Lista() const { return m_tabla; }

  private:
    Tabla m_tabla{1, 0};
    int m_cuenta = 0;
};
