#include "core/store/Integridad.h"

#include <QStringList>
#include <algorithm>
#include <string>

#include "core/base/TextosPropios.h"
#include "core/store/FalloAlmacen.h"
#include "core/store/PasosDeEsquema.h"

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void Danado(Almacen& almacen, QStringView causa) {
    throw FalloDeAlmacen(NumError::AlmacenDanado, almacen.Ruta(), TextoPropio(causa));
}

QStringList Textos(SQLite::Database& base, const char* sql) {
    SQLite::Statement orden(base, sql);
    QStringList textos;
    while (orden.executeStep()) {
        textos += QString::fromUtf8(orden.getColumn(0).getText());
    }
    return textos;
}

/// Name, kind and text of everything in a schema, in a fixed order.
QStringList Contenido(SQLite::Database& base) {
    return Textos(base,
                  "SELECT type || '|' || name || '|' || coalesce(sql, '') FROM sqlite_schema ORDER BY 1");
}

/// That of a fresh store of that version.
QStringList ContenidoEsperado(qint32 version, std::span<const PasoDeEsquema> pasos) {
    const auto siguiente =
        std::ranges::find_if(pasos, [&](const PasoDeEsquema& p) { return p.hasta > version; });
    SQLite::Database base(":memory:", SQLite::OPEN_READWRITE);
    MigrarBase(base, 0, {pasos.begin(), siguiente});
    return Contenido(base);
}

void ExigirPaginas(Almacen& almacen, const std::string& orden) {
    if (QString::fromUtf8(almacen.Base().execAndGet(orden).getText()) != u"ok") {
        Danado(almacen, u"causa_incoherente");
    }
}

/// No row refers to one that is missing. `tabla` with its parentheses, or nothing for all tables.
void ExigirReferencias(Almacen& almacen, const std::string& tabla) {
    if (SQLite::Statement(almacen.Base(), "PRAGMA foreign_key_check" + tabla).executeStep()) {
        Danado(almacen, u"causa_dependientes");
    }
}

void ExigirEsquema(Almacen& almacen, std::span<const PasoDeEsquema> pasos) {
    if (Contenido(almacen.Base()) != ContenidoEsperado(almacen.Version(), pasos)) {
        Danado(almacen, u"causa_estructura");
    }
}

void ExigirFilaGeneral(Almacen& almacen) {
    if (almacen.Base().execAndGet("SELECT count(*) FROM T00_GENERAL").getInt() != 1) {
        Danado(almacen, u"causa_sin_generales");
    }
}

}  // namespace

void ComprobarEstructura(Almacen& almacen, std::span<const PasoDeEsquema> pasos) {
    ConOrdenesPropias(almacen.Ruta(), [&] {
        ExigirEsquema(almacen, pasos);
        ExigirPaginas(almacen, "PRAGMA integrity_check(\"T00_GENERAL\")");
        ExigirFilaGeneral(almacen);
    });
}

void ComprobarContenido(Almacen& almacen, const AvanceDeRevision& avance) {
    ConOrdenesPropias(almacen.Ruta(), [&] {
        const QStringList tablas =
            Textos(almacen.Base(), "SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name");
        const auto total = static_cast<int>(tablas.size()) + 1;
        int hechas = 0;
        for (const QString& tabla : tablas) {
            // The names come out of a schema that has been found to be the program's own.
            const std::string nombre = "(\"" + tabla.toStdString() + "\")";
            ExigirPaginas(almacen, "PRAGMA integrity_check" + nombre);
            ExigirReferencias(almacen, nombre);
            avance(++hechas, total);
        }
        // What belongs to no table: free pages, and pages that two of them have. The indexes are done.
        ExigirPaginas(almacen, "PRAGMA quick_check(1)");
        avance(total, total);
    });
}

void ComprobarIntegridad(Almacen& almacen, std::span<const PasoDeEsquema> pasos) {
    ConOrdenesPropias(almacen.Ruta(), [&] {
        ExigirPaginas(almacen, "PRAGMA integrity_check(1)");
        ExigirEsquema(almacen, pasos);
        ExigirReferencias(almacen, {});
        ExigirFilaGeneral(almacen);
    });
}
