#include "core/services/OperacionesUsuario.h"

#include "core/base/TextosPropios.h"

using namespace Qt::StringLiterals;

namespace {

void MarcarTitular(Almacen& almacen, const char* sql, qint32 clave) {
    Consulta consulta(almacen, sql, clave);
    if (consulta.Siguiente()) {
        MarcarDeclarante(almacen, consulta.Entero32(0));
    }
}

}  // namespace

qint32 GuardarFila(Almacen& almacen, Consulta& orden, qint32 clave) {
    if (orden.Ejecutar() == 0) {
        throw FalloDeAlmacen(NumError::AlmacenOrden, almacen.Ruta(),
                             TextoPropio(u"causa_registro_borrado").arg(clave));
    }
    return clave != 0 ? clave : static_cast<qint32>(almacen.Base().getLastInsertRowid());
}

void MarcarDeclarante(Almacen& almacen, qint32 CSDE) {
    Consulta(almacen,
             "UPDATE T05_DECLARANTES "
             "SET T05_ESCRITURA = (SELECT max(T05_ESCRITURA) + 1 FROM T05_DECLARANTES) WHERE T05_CSDE = ?",
             CSDE)
        .Ejecutar();
}

void MarcarTitularDeDeclaracion(Almacen& almacen, qint32 CSDC) {
    MarcarTitular(almacen, "SELECT T07_CSDE FROM T07_DECLARACIONES WHERE T07_CSDC = ?", CSDC);
}

void MarcarTitularDeEstablecimiento(Almacen& almacen, qint32 CSES) {
    MarcarTitular(almacen, "SELECT T06_CSDE FROM T06_ESTABLECIMIENTOS WHERE T06_CSES = ?", CSES);
}

void SumarAnexos(Almacen& almacen, qint32 CSDC) {
    Consulta(
        almacen,
        "UPDATE T10_LIQUIDACION SET (T10_SUMEX, T10_BASIM, T10_CUOTA) = "
        "(SELECT coalesce(sum(T08_SUMEX), 0.0), coalesce(sum(T08_BASIM), 0.0), coalesce(sum(T08_CUOTA), 0.0) "
        "FROM T08_ANEXOS WHERE T08_CSDC = T10_CSDC AND T08_PRODUCTO = T10_PRODUCTO) WHERE T10_CSDC = ?",
        CSDC)
        .Ejecutar();
    Consulta(almacen,
             "UPDATE T07_DECLARACIONES SET T07_TOTCUO = "
             "(SELECT coalesce(sum(T10_CUOTA), 0.0) FROM T10_LIQUIDACION WHERE T10_CSDC = T07_CSDC) "
             "WHERE T07_CSDC = ?",
             CSDC)
        .Ejecutar();
}

qint32 ContarDeclaraciones(Almacen& almacen, qint32 CSDE) {
    Consulta consulta(almacen, "SELECT count(*) FROM T07_DECLARACIONES WHERE T07_CSDE = ?", CSDE);
    consulta.Siguiente();
    return consulta.Entero32(0);
}
