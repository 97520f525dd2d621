#pragma once

#include <QString>
#include <span>

#include "core/store/Almacen.h"
#include "core/store/esquema/Esquema.h"

// Making of the user's store and bringing it from version to version.

/// Makes a fresh user's store at `ruta`: written whole under another name beside, then named in one step.
/// Never replaces a file that has appeared meanwhile. Remains of a journal under that name, which would be
/// taken for one of the new file, are set aside under a free name. Raises 76 when the folder is missing, 75
/// or a failure of the store otherwise.
void CrearAlmacenDeUsuario(const QString& ruta);

/// Brings an older store up in one transaction, at the end of which it is sound, or it stays as it was.
/// Nothing happens to one that is up to date.
void MigrarEsquema(Almacen& almacen, std::span<const PasoDeEsquema> pasos);

/// Sets what a crash or a lost store left beside the path of a store, and what would be taken for the journal
/// of a file that comes in its place, aside under free names. Raises 3051 when it cannot.
void ApartarRestos(const QString& ruta);
