#pragma once

#include <QtGlobal>
#include <span>

// Identity and schema of the two kinds of store. The SQL stands in the .sql files of this folder and is
// compiled in.

/// `application_id` of the user's store ("ZTMO") and of the reference store ("ZTLE").
inline constexpr qint32 kAplicacionUsuario = 0x5A544D4F;
inline constexpr qint32 kAplicacionReferencia = 0x5A544C45;

/// `user_version` that this program writes and reads.
inline constexpr qint32 kVersionUsuario = 1;
inline constexpr qint32 kVersionReferencia = 1;

/// A step of the user's store from version `hasta` - 1 to `hasta`: statements to be run in a transaction.
struct PasoDeEsquema {
    qint32 hasta;
    const char* sql;
};

/// The steps by ascending version, 1 to `kVersionUsuario`. The first makes a store out of nothing, so that
/// all of them in a row make a fresh one.
std::span<const PasoDeEsquema> PasosDelUsuario();

/// The schema of the reference store.
const char* EsquemaDeReferencia();
