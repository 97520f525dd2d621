#pragma once

#include <QString>

// Values as the printed forms show them, with the separators of the regional settings.

namespace impreso {

/// Money or a quantity, with two decimals and groups of thousands.
QString Importe(double importe);
/// The same, but nothing for a zero.
QString ImporteOBlanco(double importe);

/// Of the declarant that is open: kind and name of the way, house number, and telephone with its prefix.
/// Numbers that are zero are blank.
QString ViaPublica();
QString NumeroDeCasa();
QString Telefono();
/// Name of the declarant's province, as `NombreDeProvincia`.
QString ProvinciaDelDeclarante();

/// Name of a province in Castellano, whatever the language of the screen, in capitals; empty for an unknown
/// code. Raises what the reference store raises.
QString NombreDeProvincia(qint16 codigo);

/// The date of presentation in both languages, Euskera first with its ending: "2007/01/15ean /// 15/01/2007".
QString FechaEnAmbosIdiomas();

}  // namespace impreso
