#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "core/services/EscrituraDeUsuario.h"

#include <vector>

#include "core/services/OperacionesUsuario.h"
#include "core/services/OrdenesDeTabla.h"

namespace svrZELT {

namespace {

using Campos = CamposDeEstablecimiento;
constexpr auto kTabla = "T06_ESTABLECIMIENTOS";

const std::string& OrdenDeGuardar(qint32 clave) {
    static const std::string insertar = OrdenDeInsertar(kTabla, Campos::kColumnas);
    static const std::string cambiar = OrdenDeCambiar(kTabla, Campos::kColumnas);
    return clave == 0 ? insertar : cambiar;
}

const char* OrdenDeCargar() {
    static const std::string orden =
        OrdenDeLeer(Campos::kColumnas, "FROM T06_ESTABLECIMIENTOS WHERE T06_CSES = ?");
    return orden.c_str();
}

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
        static const std::string orden =
            OrdenDeLeer(ListadoDeEstablecimientos::kColumnas,
                        "FROM T06_ESTABLECIMIENTOS WHERE T06_CSDE = ? ORDER BY T06_CIM, T06_CSES");
        Consulta consulta(almacen, orden.c_str(), CSDE);
        return LeerLista(consulta, ListadoDeEstablecimientos::kColumnas);
    });
}

void cZTEstablecimientos::CargarEstablecimiento(qint32 CSES, Registro& buffer, EstadoLeido* leido) const {
    buffer = LeerUsuario(mdbmod, [&](Almacen& almacen) {
        const Lectura lectura(almacen);
        TomarEstado(almacen, {OrdenDeCargar()}, CSES, leido);
        Consulta consulta(almacen, OrdenDeCargar(), CSES);
        return LeerRegistro(consulta, Campos::kColumnas);
    });
}

qint32 cZTEstablecimientos::GuardaEstablecimiento(const Registro& registro, EstadoLeido* leido) const {
    const qint32 clave = Elemento(registro, Campos::kCSES).aEntero32();
    EstadoLeido ahora;
    const qint32 guardado = EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        ExigirSinCambios(almacen, {OrdenDeCargar()}, clave, clave == 0 ? nullptr : leido);
        Consulta consulta(almacen, OrdenDeGuardar(clave).c_str());
        PonerRegistro(consulta, Campos::kColumnas, registro);
        const qint32 guardada = GuardarFila(almacen, consulta, clave);
        MarcarTitularDeEstablecimiento(almacen, guardada);
        TomarEstado(almacen, {OrdenDeCargar()}, guardada, leido == nullptr ? nullptr : &ahora);
        return guardada;
    });
    RenovarEstado(leido, ahora);
    return guardado;
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
