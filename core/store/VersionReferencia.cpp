#include "core/store/VersionReferencia.h"

#include "core/store/Consulta.h"
#include "core/store/DatosGenerales.h"

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
