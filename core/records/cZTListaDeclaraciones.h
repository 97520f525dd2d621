#pragma once

#include "core/base/Tabla.h"
#include "core/services/svrZELT/CamposDeDeclaracion.h"

/// The declarations of the open declarant; one instance, `oListaDeclaraciones()`.
class cZTListaDeclaraciones {
  public:
    /// A screen that nothing here sets or reads: docs/reglas.md, campos-sin-lector.
    qint32 Procedencia = 0;
    /// Declaration to select when the list is filled next; 0 none.
    qint32 SelCSDC = 0;
    /// Set to 0 when the entry of the declarant is cancelled, and read by nobody; `SelCSDC` is the key in
    /// use.
    qint32 CSDC = 0;
    /// Number of declarations of the open declarant.
    qint16 NumDecla = 0;
    /// Columns of `BufferDeclaraciones`; the amount to pay is in money.
    using Columna = svrZELT::ListadoDeDeclaraciones::Columna;
    /// Declarations of the open declarant, rows from 1, the latest last. Null when there are none.
    Tabla BufferDeclaraciones;

    /// Counts the declarations of the open declarant into `NumDecla`.
    void NumeroDeDeclaraciones();
    /// Counts them and reads `BufferDeclaraciones`; the store is not asked for the rows when there are none.
    void RellenarDeclaraciones();
    /// Deletes a declaration with its annexes and gives True; its key stays in `oDeclaraciones().CSDC`.
    [[nodiscard]] bool EliminarDeclaracion(qint32 lngCSDC) const;
};

/// The shared instance.
cZTListaDeclaraciones& oListaDeclaraciones();
