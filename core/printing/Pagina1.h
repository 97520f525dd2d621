#pragma once

#include "core/printing/DatosDeAnexo.h"
#include "core/printing/Ejemplares.h"

// The six blocks of page 1 of the return, from top to bottom. Each leaves the font "Arial" behind, not bold.

namespace impreso {

void ImprimirCabecera();
/// Declarant, and the establishment when there is just one.
void ImprimirIdentificacion(const DatosDeAnexo& anexo);
/// Products and total; the bank's copy has the total alone. The frames go over the rules of the grid, and are
/// not filled. A product without quantities has no row, whatever its quota; one with quantities shows its
/// quota, also of zero.
void ImprimirLiquidacion(TipoDeEjemplar Tipo);
void ImprimirSinIngreso();
void ImprimirFirma();
void ImprimirCartaDePago();

}  // namespace impreso
