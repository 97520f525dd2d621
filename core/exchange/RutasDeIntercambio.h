#pragma once

#include <QString>

/// The exchange file that both screens suggest, in the program folder.
[[nodiscard]] QString RutaDeDeclarantes();

/// The file of the faults of an import, in the program folder; not the log of failures.
[[nodiscard]] QString RutaDeErrores();
