#pragma once

#include <QString>

#include "core/base/Tabla.h"
#include "core/store/Almacen.h"

/// Runs one select, given as a text of any origin, on a reference store: records in rows from 0, columns in
/// the order of the select, Null when there are none. Integers come as 32-bit integers, or as 64-bit floats
/// when they do not fit; Null as Null. Raises 3075 for a text that the store does not take, that holds more
/// than one order, or that is anything but a select.
Tabla ConsultaLibre(Almacen& almacen, const QString& sql);
