#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "core/services/EscrituraDeUsuario.h"

#include <array>
#include <vector>

#include "core/services/OperacionesUsuario.h"
#include "core/store/Consulta.h"

namespace svrZELT {

namespace {

// Kinds of the elements 0 to 6 of a record.
constexpr std::array kCampos{Campo::Entero32, Campo::Entero32, Campo::Texto, Campo::Texto,
                             Campo::Entero16, Campo::Entero16, Campo::Texto};

constexpr auto kCargar =
    "SELECT T06_CSES, T06_CSDE, T06_CIM, T06_DOMICILIO, T06_PROVIN, T06_CMUNI, T06_MUNICI "
    "FROM T06_ESTABLECIMIENTOS WHERE T06_CSES = ?";

// Parameters 1 to 6 are the elements 1 to 6 of the record.
constexpr auto kInsertar =
    "INSERT INTO T06_ESTABLECIMIENTOS (T06_CSDE, T06_CIM, T06_DOMICILIO, T06_PROVIN, T06_CMUNI, T06_MUNICI) "
    "VALUES (?, ?, ?, ?, ?, ?)";

constexpr auto kCambiar =
    "UPDATE T06_ESTABLECIMIENTOS SET T06_CSDE = ?1, T06_CIM = ?2, T06_DOMICILIO = ?3, T06_PROVIN = ?4, "
    "T06_CMUNI = ?5, T06_MUNICI = ?6 WHERE T06_CSES = ?7";

/// Declarations in which the establishment has lines.
std::vector<qint32> Declaraciones(Almacen& almacen, qint32 CSES) {
    Consulta consulta(almacen, "SELECT DISTINCT T08_CSDC FROM T08_ANEXOS WHERE T08_CSES = ?", CSES);
    std::vector<qint32> declaraciones;
    while (consulta.Siguiente()) {
        declaraciones.push_back(consulta.Entero32(0));
    }
    return declaraciones;
}

}  // namespace

Tabla cZTEstablecimientos::ObtenerEstablecimientos(qint32 CSDE) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(almacen,
                          "SELECT T06_CSES, T06_CIM, T06_DOMICILIO, T06_PROVIN, T06_CMUNI, T06_MUNICI "
                          "FROM T06_ESTABLECIMIENTOS WHERE T06_CSDE = ? ORDER BY T06_CIM, T06_CSES",
                          CSDE);
        return LeerLista(consulta, {Campo::Entero32, Campo::Texto, Campo::Texto, Campo::Entero16,
                                    Campo::Entero16, Campo::Texto});
    });
}

void cZTEstablecimientos::CargarEstablecimiento(qint32 CSES, Registro& buffer) const {
    buffer = LeerUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(almacen, kCargar, CSES);
        return LeerRegistro(consulta, kCampos);
    });
}

qint32 cZTEstablecimientos::GuardaEstablecimiento(const Registro& registro) const {
    const qint32 clave = Elemento(registro, 0).aEntero32();
    return EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(almacen, clave == 0 ? kInsertar : kCambiar);
        for (int i = 1; i < static_cast<int>(kCampos.size()); ++i) {
            consulta.Poner(i, kCampos.at(static_cast<std::size_t>(i)), Elemento(registro, i));
        }
        if (clave != 0) {
            consulta.Poner(static_cast<int>(kCampos.size()), clave);
        }
        const qint32 guardada = GuardarFila(almacen, consulta, clave);
        MarcarTitularDeEstablecimiento(almacen, guardada);
        return guardada;
    });
}

void cZTEstablecimientos::EliminarEstablecimiento(qint32 CSES) const {
    EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        const std::vector<qint32> afectadas = Declaraciones(almacen, CSES);
        MarcarTitularDeEstablecimiento(almacen, CSES);
        Consulta(almacen, "DELETE FROM T08_ANEXOS WHERE T08_CSES = ?", CSES).Ejecutar();
        Consulta(almacen, "DELETE FROM T06_ESTABLECIMIENTOS WHERE T06_CSES = ?", CSES).Ejecutar();
        for (const qint32 CSDC : afectadas) {
            SumarAnexos(almacen, CSDC);
        }
    });
}

qint32 cZTEstablecimientos::NumeroDeclaraciones(qint32 CSDE) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) { return ContarDeclaraciones(almacen, CSDE); });
}

bool cZTEstablecimientos::CIMRepetido(const QString& CIM) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        return Consulta(almacen, "SELECT 1 FROM T06_ESTABLECIMIENTOS WHERE T06_CIM = ?", CIM.trimmed())
            .Siguiente();
    });
}

bool cZTEstablecimientos::EstablecimientosSinAnexos(qint32 lngNumCSES) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        return !Consulta(almacen, "SELECT 1 FROM T08_ANEXOS WHERE T08_CSES = ?", lngNumCSES).Siguiente();
    });
}

}  // namespace svrZELT
