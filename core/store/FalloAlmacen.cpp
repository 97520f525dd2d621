#include "core/store/FalloAlmacen.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>

#include "core/base/FalloDeFichero.h"

using namespace Qt::StringLiterals;

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
            return u"Un registro del que dependen estos datos no existe."_s;
        case SQLITE_CONSTRAINT_UNIQUE:
        case SQLITE_CONSTRAINT_PRIMARYKEY:
            return u"Ya existe un registro con los mismos datos clave."_s;
        case SQLITE_CONSTRAINT_NOTNULL:
            return u"Falta un valor."_s;
        default:
            return u"Un valor está fuera de lo admitido."_s;
    }
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
    const QString causa = codigo == SQLITE_CONSTRAINT ? CausaDeRestriccion(error.getExtendedErrorCode())
                                                      : QString::fromUtf8(error.what());
    return FalloDeAlmacen(NumError::AlmacenOrden, ruta, causa);
}

void ConOrdenesPropias(const QString& ruta, const std::function<void()>& cuerpo) {
    try {
        cuerpo();
    } catch (const SQLite::Exception& error) {
        if (FalloDeAlmacen(error, ruta).Numero() != static_cast<int>(NumError::AlmacenOrden)) {
            throw;
        }
        throw FalloDeAlmacen(NumError::AlmacenDanado, ruta, QString::fromUtf8(error.what()));
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
