#pragma once

#include <QByteArray>
#include <initializer_list>

#include "core/store/Consulta.h"

/// What rows of the store were when a record was read from them or last saved to them: a digest of all their
/// values. Empty where nothing has been read.
using EstadoLeido = QByteArray;

/// The state of the rows that the orders give for a key. No row at all has a state too. The orders are texts
/// of static storage with the key as their one parameter, and give their rows in a fixed order.
[[nodiscard]] EstadoLeido LeerEstado(Almacen& almacen, std::initializer_list<const char*> ordenes,
                                     qint32 clave);

/// Raises 3197 when the rows are no longer what they were at `leido`: another program has changed or deleted
/// them, or put others under their key by restoring a copy. Nothing is looked at where `leido` is null or
/// empty.
void ExigirSinCambios(Almacen& almacen, std::initializer_list<const char*> ordenes, qint32 clave,
                      const EstadoLeido* leido);

/// Leaves the state of the rows in `leido`, unless it is null.
void TomarEstado(Almacen& almacen, std::initializer_list<const char*> ordenes, qint32 clave,
                 EstadoLeido* leido);

/// Takes the state over once its write is on disk; nothing where `leido` is null.
void RenovarEstado(EstadoLeido* leido, const EstadoLeido& ahora);

/// Whether a failure is that of `ExigirSinCambios`.
[[nodiscard]] bool EsCambioDeOtro(const ErrorZT& error);
