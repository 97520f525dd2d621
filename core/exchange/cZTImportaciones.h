#pragma once

#include <variant>

#include "core/base/Tabla.h"

/// The declarant being stored by the import and, at its end, what it counted; one instance,
/// `oImportaciones()`.
class cZTImportaciones {
  public:
    /// Nothing; the record of the line being stored, as `TrocearRegistro` gives it; or the results, elements
    /// 0 to 8: 0 imported, 1 faulty, 2 replaced, 3 ignored (16-bit), 4 the sum of these (32-bit), 5 to 7
    /// three counters that nothing raises, 8 the sum of those.
    std::variant<std::monostate, Tabla, Registro> vBufferImportados;

    /// Stores the record in `vBufferImportados`, in the place of the declarant with that key or, for 0, as a
    /// new one. Raises what `svrZELT::cZTDeclarante::ImportarDte` raises.
    void ImportarDeclarante(qint32 lngCSDE = 0);
};

/// The shared instance.
cZTImportaciones& oImportaciones();
