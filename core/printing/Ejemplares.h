#pragma once

#include <QString>

namespace impreso {

/// The copies of the return.
enum class TipoDeEjemplar { Borrador = 0, Administracion = 1, Interesado = 2, Banco = 3 };

/// Prints at that height what copy this is, in the font that the device has.
void ImprimirEtiqueta(TipoDeEjemplar Tipo, double y);

/// Name of the document of one copy of the return that `oImprimir()` tells of: model, declarant's NIF, year,
/// quarter and copy, as in "569_B48000012_2007_2T_administracion". An empty NIF is left out. The NIF stands
/// as typed: devices that make a file of the document see to the characters that a file's name may not have.
QString NombreDeEjemplar(TipoDeEjemplar Tipo);

}  // namespace impreso
