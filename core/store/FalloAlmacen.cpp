#include "core/store/FalloAlmacen.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>

#include "core/base/FalloDeFichero.h"
#include "core/base/FicheroProvisional.h"
#include "core/base/TextosPropios.h"
#include "core/base/plataforma/SistemaFicheros.h"

namespace {

constexpr int kCodigoPrimario = 0xFF;

struct Equivalencia {
    int codigo;
    NumError numero;
};

constexpr std::array kEquivalencias{
    Equivalencia{SQLITE_BUSY, NumError::AlmacenOcupado},
    Equivalencia{SQLITE_LOCKED, NumError::AlmacenOcupado},
    Equivalencia{SQLITE_PROTOCOL, NumError::AlmacenOcupado},
    Equivalencia{SQLITE_FULL, NumError::AlmacenDiscoLleno},
    Equivalencia{SQLITE_READONLY, NumError::AlmacenSoloLectura},
    Equivalencia{SQLITE_CANTOPEN, NumError::AlmacenSinPermiso},
    Equivalencia{SQLITE_PERM, NumError::AlmacenSinPermiso},
    Equivalencia{SQLITE_IOERR, NumError::AlmacenErrorDisco},
    Equivalencia{SQLITE_CORRUPT, NumError::AlmacenDanado},
    Equivalencia{SQLITE_NOTADB, NumError::AlmacenAjeno},
};

QString CausaDeRestriccion(int codigoExtendido) {
    switch (codigoExtendido) {
        case SQLITE_CONSTRAINT_FOREIGNKEY:
            return TextoPropio(u"causa_sin_padre");
        case SQLITE_CONSTRAINT_UNIQUE:
        case SQLITE_CONSTRAINT_PRIMARYKEY:
            return TextoPropio(u"causa_repetido");
        case SQLITE_CONSTRAINT_NOTNULL:
            return TextoPropio(u"causa_falta_valor");
        default:
            return TextoPropio(u"causa_fuera_de_limites");
    }
}

/// Whether there is room for one more file beside the store. A journal that cannot be made is looked for once
/// more as one to be read, and what the system says of that hides the cause.
bool CabeOtroFichero(SQLite::Database& base) {
    try {
        const FicheroProvisional otro(QString::fromUtf8(sqlite3_db_filename(base.getHandle(), "main")));
    } catch (const ErrorZT& fallo) {
        return fallo.Numero() != static_cast<int>(NumError::DiscoLleno);
    }
    return true;
}

}  // namespace

ErrorZT FalloDeAlmacen(NumError numero, const QString& ruta, const QString& causa) {
    return FalloDeFichero(numero, ruta, causa);
}

ErrorZT FalloDeAlmacen(const SQLite::Exception& error, const QString& ruta) {
    const int codigo = error.getErrorCode() & kCodigoPrimario;
    const auto* fila = std::ranges::find(kEquivalencias, codigo, &Equivalencia::codigo);
    if (fila != kEquivalencias.end()) {
        return FalloDeAlmacen(fila->numero, ruta);
    }
    const QString causa = codigo == SQLITE_CONSTRAINT
                              ? CausaDeRestriccion(error.getExtendedErrorCode())
                              : TextoPropio(u"causa_respuesta").arg(error.getExtendedErrorCode());
    return FalloDeAlmacen(NumError::AlmacenOrden, ruta, causa);
}

void ExigirSitio(SQLite::Database& base, const SQLite::Exception& error) {
    const int codigo = error.getErrorCode() & kCodigoPrimario;
    // The library keeps the number of the system for what fails in an order, and not for a commit.
    const bool sinSitio = EsFaltaDeSitio(sqlite3_system_errno(base.getHandle())) ||
                          NumeroDelUltimoFallo(NumError::AlmacenErrorDisco) == NumError::DiscoLleno;
    if ((codigo == SQLITE_IOERR && sinSitio) ||
        (codigo == SQLITE_CANTOPEN && (sinSitio || !CabeOtroFichero(base)))) {
        throw SQLite::Exception(sqlite3_errstr(SQLITE_FULL), SQLITE_FULL);
    }
}

void ConOrdenesPropias(const QString& ruta, const std::function<void()>& cuerpo) {
    try {
        cuerpo();
    } catch (const SQLite::Exception& error) {
        if (FalloDeAlmacen(error, ruta).Numero() != static_cast<int>(NumError::AlmacenOrden)) {
            throw;
        }
        throw FalloDeAlmacen(NumError::AlmacenDanado, ruta, TextoPropio(u"causa_incoherente"));
    }
}

bool EsFalloDeAlmacen(const ErrorZT& error) {
    constexpr std::array kDeAlmacen{
        NumError::AlmacenNoEncontrado, NumError::AlmacenSoloLectura, NumError::AlmacenDiscoLleno,
        NumError::AlmacenErrorDisco,   NumError::AlmacenDanado,      NumError::AlmacenSinPermiso,
        NumError::AlmacenOrden,        NumError::AlmacenOcupado,     NumError::AlmacenVersion,
        NumError::AlmacenAjeno,        NumError::AlmacenCambiado};
    return std::ranges::any_of(kDeAlmacen, [&](NumError n) { return static_cast<int>(n) == error.Numero(); });
}
