#pragma once

#include <QString>

// The on-line assistance, as the commands of the main window ask for it, in the language in force.

/// Opens the on-line assistance.
void AbrirAsistencia();

/// Describes the service, modal to the window with that handle.
void DescribirAsistencia(qint32 ventana);

/// Opens an address of the authority in the user's browser, or tells the user which it is where there is no
/// browser. Raises 5 for what is no web address.
void AbrirEnNavegador(const QString& direccion);
