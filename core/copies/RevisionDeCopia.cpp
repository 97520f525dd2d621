#include "core/copies/RevisionDeCopia.h"

#include <QFileInfo>

#include "core/base/FicheroProvisional.h"
#include "core/base/TextosPropios.h"
#include "core/copies/SumaDeFichero.h"
#include "core/store/Consulta.h"
#include "core/store/Integridad.h"

using namespace Qt::StringLiterals;

namespace {

qint32 Contar(Almacen& almacen, const char* sql) {
    Consulta consulta(almacen, sql);
    consulta.Siguiente();
    return consulta.Entero32(0);
}

/// A copy is as long as its pages: what follows them is none of its own.
void ExigirTamano(Almacen& almacen) {
    const qint64 paginas = almacen.Base().execAndGet("PRAGMA page_count").getInt64();
    const qint64 pagina = almacen.Base().execAndGet("PRAGMA page_size").getInt64();
    if (paginas * pagina != almacen.Estado().tamano) {
        throw FalloDeAlmacen(NumError::AlmacenDanado, almacen.Ruta(), TextoPropio(u"causa_cortado"));
    }
}

ResumenDeCopia Resumir(Almacen& almacen) {
    ExigirTamano(almacen);
    ComprobarIntegridad(almacen);
    ResumenDeCopia resumen;
    resumen.ruta = almacen.Ruta();
    resumen.declarantes = Contar(almacen, "SELECT count(*) FROM T05_DECLARANTES");
    resumen.declaraciones = Contar(almacen, "SELECT count(*) FROM T07_DECLARACIONES");
    Consulta general(almacen, "SELECT T00_IDIOMA, T00_BACKUP_TVC FROM T00_GENERAL");
    general.Siguiente();
    resumen.idioma = general.Texto(0);
    resumen.fecha = QDate::fromString(general.Texto(1), u"yyyyMMdd"_s);
    if (!resumen.fecha.isValid()) {
        resumen.fecha = QFileInfo(almacen.Ruta()).lastModified().date();
    }
    return resumen;
}

}  // namespace

ResumenDeCopia RevisarAlmacen(const QString& ruta) {
    try {
        Almacen almacen(ClaseAlmacen::Copia, ruta, Versiones::LaActualYAnteriores);
        return Resumir(almacen);
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, ruta);
    }
}

ResumenDeCopia RevisarCopia(const QString& ruta) {
    try {
        Almacen almacen(ClaseAlmacen::Copia, ruta, Versiones::LaActualYAnteriores);
        const QString real = RutaReal(ruta);
        if (SumaAnotada(real)) {
            ExigirSuma(real, SumaDeFichero(real));
        }
        return Resumir(almacen);
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, ruta);
    }
}
