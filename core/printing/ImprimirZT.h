#pragma once

#include "core/printing/Ejemplares.h"

/// Prints the return of the open declaration (`oDeclaraciones().CSDC`) for the open declarant on the device
/// in force: the copies that `oImprimir()` asks for, in the order administration, taxpayer, draft, bank, each
/// a document of its own. Loads the declaration anew and writes nothing to the store.
///
/// A declaration that another program has deleted or replaced since it was listed is not printed; the user is
/// told.
///
/// Failures of a store or of the device pass as they are, after the device has given up its batch; documents
/// already ended stay printed.
void ImprimirDeclaracion();

namespace impreso {

/// Prints one copy, within a batch: page 1 and, where there are two or more establishments and it is not the
/// bank's, the annex.
void ImprimirEjemplar(TipoDeEjemplar Tipo);

}  // namespace impreso
