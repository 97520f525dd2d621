#include "core/store/DatosGenerales.h"

#include "core/base/TextosPropios.h"
#include "core/store/Consulta.h"

using namespace Qt::StringLiterals;

QString LeerDatoGeneral(const QString& mdblec, QStringView clave) {
    return LeerReferencia(mdblec, [&](Almacen& almacen) {
        Consulta consulta(almacen, "SELECT T01_VALOR FROM T01_DATOS WHERE T01_CLAVE = ?", clave.toString());
        if (!consulta.Siguiente()) {
            throw FalloDeAlmacen(NumError::AlmacenDanado, mdblec,
                                 TextoPropio(u"causa_falta_dato").arg(clave));
        }
        return consulta.Texto(0);
    });
}

qint32 VersionDeReferencia(const QString& ruta) {
    if (ExaminarFichero(ruta).clase == ClaseFichero::NoExiste) {
        return 0;
    }
    try {
        Almacen almacen(ClaseAlmacen::Referencia, ruta);
        Consulta consulta(almacen, "SELECT T01_VALOR FROM T01_DATOS WHERE T01_CLAVE = ?",
                          QStringView(kVersionDatos).toString());
        return consulta.Siguiente() ? consulta.Texto(0).toInt() : 0;
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, ruta);
    }
}
