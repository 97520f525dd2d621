#pragma once

#include <QString>
#include <optional>

#include "core/base/Tabla.h"
#include "core/services/EstadoLeido.h"
#include "core/services/svrZELT/CamposDeAnexo.h"

namespace svrZELT {

/// Annex lines of the user's store. Made for one call; failures of the store are raised (see `Almacen`).
///
/// Quantities and quotas are in hundredths, rates in millionths, all 64-bit floats.
class cZTAnexos {
  public:
    /// Path of the user's store.
    QString mdbmod;

    /// Why `GuardarAnexos` answered False: text for the detail of a message. Empty otherwise.
    QString Causa;

    /// Whether it answered False because another program has changed the declaration since it was read.
    bool CambiadaPorOtro = false;

    /// Lines of a declaration by establishment and product: columns of `CamposDeAnexo`; rows from 1; Null
    /// when there are none. Leaves the state of the declaration and its lines in `leido`.
    [[nodiscard]] Tabla CargarAnexos(qint32 CSDC, EstadoLeido* leido = nullptr) const;

    /// Replaces the lines of a declaration with those of `BufferAnexos` (shape of `CargarAnexos`;
    /// `CSAN`, `CSDC` and `CUOTA` are not read; Null or row 0 alone leaves no lines) and sets the
    /// declaration's figures.
    ///
    /// Lines and declaration get the rates of `vBufferTasas` (six, in millionths); where it is Null, lines
    /// keep their own, a product of the declaration takes that of its lines, and one without lines keeps
    /// what it had. The quota of each line is base times rate, each on its public scale, rounded by
    /// `Redondear` to the hundredth as on the screen; the declaration's figures are the sums of the lines.
    /// A line that stays keeps its key.
    ///
    /// True on success. False, with `Causa` set and nothing changed, when the store refuses. Raises 9 for a
    /// product other than 1 to 6, and what the conversions raise.
    ///
    /// With the state that they had when they were read in `leido`, a declaration and lines that are no
    /// longer as they were then are a refusal too. After a save `leido` is what now stands there.
    [[nodiscard]] bool GuardarAnexos(const Tabla& BufferAnexos, const std::optional<Registro>& vBufferTasas,
                                     qint32 CSDC, EstadoLeido* leido = nullptr);

    /// Lines of a declaration for printing, grouped by establishment in the order of the CIM, then by
    /// product: columns of `ListadoDeImpresion`; rows from 1; Null when there are none.
    [[nodiscard]] Tabla CargarEstablecimientos(qint32 CSDC) const;
};

}  // namespace svrZELT
