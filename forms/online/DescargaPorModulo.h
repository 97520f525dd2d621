#pragma once

#include "core/online/Descargador.h"

/// Where the network's module stands: in the folder "lib/zelt" beside that of the program file. The toolkit
/// adds what the platform's modules have before and after their name.
QString RutaDelModuloDeRed();

/// As `Descargador` promises, by the module at that path, which is loaded at the first call and stays.
/// Nothing, too, when there is no module or it is not one of this program.
std::optional<QByteArray> DescargarPorModulo(const QString& direccion, const LimitesDeDescarga& limites = {},
                                             const QString& modulo = RutaDelModuloDeRed());
