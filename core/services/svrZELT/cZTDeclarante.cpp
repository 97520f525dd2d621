#include "core/services/svrZELT/cZTDeclarante.h"

#include "core/base/Formatos.h"
#include "core/services/EscrituraDeUsuario.h"
#include "core/services/OperacionesUsuario.h"
#include "core/services/OrdenesDeTabla.h"

namespace svrZELT {

namespace {

using Campos = CamposDeDeclarante;
constexpr auto kTabla = "T05_DECLARANTES";

const std::string& OrdenDeGuardar(qint32 clave) {
    static const std::string insertar = OrdenDeInsertar(kTabla, Campos::kColumnas);
    static const std::string cambiar = OrdenDeCambiar(kTabla, Campos::kColumnas);
    return clave == 0 ? insertar : cambiar;
}

const char* OrdenDeCargar() {
    static const std::string orden =
        OrdenDeLeer(Campos::kColumnas, "FROM T05_DECLARANTES WHERE T05_CSDE = ?");
    return orden.c_str();
}

}  // namespace

void cZTDeclarante::CargarDeclarante(qint32 CSDE, Registro& buffer, EstadoLeido* leido) const {
    buffer = LeerUsuario(mdbmod, [&](Almacen& almacen) {
        const Lectura lectura(almacen);
        TomarEstado(almacen, {OrdenDeCargar()}, CSDE, leido);
        Consulta consulta(almacen, OrdenDeCargar(), CSDE);
        return LeerRegistro(consulta, Campos::kColumnas);
    });
    buffer.resize(Campos::kElementos);
}

qint32 cZTDeclarante::GuardarDeclarante(const Registro& registro, EstadoLeido* leido) const {
    const qint32 clave = Elemento(registro, Campos::kCSDE).aEntero32();
    EstadoLeido ahora;
    const qint32 guardado = EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        ExigirSinCambios(almacen, {OrdenDeCargar()}, clave, clave == 0 ? nullptr : leido);
        Consulta consulta(almacen, OrdenDeGuardar(clave).c_str());
        PonerRegistro(consulta, Campos::kColumnas, registro);
        const qint32 guardada = GuardarFila(almacen, consulta, clave);
        MarcarDeclarante(almacen, guardada);
        TomarEstado(almacen, {OrdenDeCargar()}, guardada, leido == nullptr ? nullptr : &ahora);
        return guardada;
    });
    RenovarEstado(leido, ahora);
    return guardado;
}

qint32 cZTDeclarante::NifRepetido(const QString& nif) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(almacen, "SELECT T05_CSDE FROM T05_DECLARANTES WHERE T05_NIF = ? ORDER BY T05_CSDE",
                          nif.trimmed());
        return consulta.Siguiente() ? consulta.Entero32(0) : 0;
    });
}

void cZTDeclarante::EliminarDeclarante(qint32 CSDE) const {
    EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta(almacen, "DELETE FROM T05_DECLARANTES WHERE T05_CSDE = ?", CSDE).Ejecutar();
    });
}

Tabla cZTDeclarante::ObtenerDeclarantes() const {
    return LeerUsuario(mdbmod, [](Almacen& almacen) {
        static const std::string orden =
            OrdenDeLeer(ListadoDeDeclarantes::kColumnas, "FROM T05_DECLARANTES ORDER BY T05_NIF, T05_CSDE");
        Consulta consulta(almacen, orden.c_str());
        return LeerLista(consulta, ListadoDeDeclarantes::kColumnas);
    });
}

void cZTDeclarante::ImportarDte(const Tabla& registro) const {
    Registro fila;
    for (const ColumnaDeAlmacen& columna : Campos::kColumnas) {
        const Valor& valor = registro(RegistroDeIntercambio::kValor, columna.lugar);
        fila.push_back(valor.EsTexto() ? Valor(SinBlancosALaDerecha(valor.aTexto())) : valor);
    }
    (void)GuardarDeclarante(fila);
}

}  // namespace svrZELT
