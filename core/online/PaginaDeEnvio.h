#pragma once

#include <QString>

/// The page that makes the browser ask for an address with the POST method: one form without fields that
/// submits itself. The address stands in it as given, with no escaping.
QString PaginaDeEnvio(const QString& direccion);

/// Puts the page "temphtm.HTM" for that address into the program's folder, in the place of the one before it,
/// and gives its path. Raises 75 when it cannot be written and 20001 for an address that the 8-bit code page
/// cannot hold.
QString EscribirPaginaDeEnvio(const QString& direccion);
