#pragma once

#include <QString>
#include <functional>
#include <span>

#include "core/store/Almacen.h"
#include "core/store/esquema/Esquema.h"

// What a user's store has to be. Each raises 3049 with the cause where it is not.

/// Takes how many parts of how many have been looked through.
using AvanceDeRevision = std::function<void(int hechas, int total)>;

/// The schema is exactly that of the version of the store by those steps, and the general row is there and
/// can be read. As quick for a large store as for a small one.
void ComprobarEstructura(Almacen& almacen, std::span<const PasoDeEsquema> pasos = PasosDelUsuario());

/// Every page and every value is sound, the indexes fit their tables, and no row refers to one that is
/// missing. Reads the whole store, table by table: between two of them others can write.
void ComprobarContenido(Almacen& almacen, const AvanceDeRevision& avance);

/// Both, in one go.
void ComprobarIntegridad(Almacen& almacen, std::span<const PasoDeEsquema> pasos = PasosDelUsuario());
