#include "core/services/svrZELT/cZTDeclarante.h"
#include "core/services/EscrituraDeUsuario.h"

#include <array>

#include "core/base/Formatos.h"
#include "core/services/OperacionesUsuario.h"
#include "core/store/Consulta.h"

using namespace Qt::StringLiterals;

namespace svrZELT {

namespace {

constexpr int kElementos = 18;

// Kinds of the elements 0 to 15, in the order of the columns of the orders below.
constexpr std::array kCampos{Campo::Entero32, Campo::Texto,    Campo::Texto,    Campo::Texto,
                             Campo::Texto,    Campo::Entero32, Campo::Texto,    Campo::Texto,
                             Campo::Texto,    Campo::Texto,    Campo::Entero16, Campo::Entero32,
                             Campo::Entero16, Campo::Texto,    Campo::Entero16, Campo::Entero32};

constexpr auto kCargar =
    "SELECT T05_CSDE, T05_NIF, T05_NOMBRE, T05_SIGLAS, T05_DOMICILIO, T05_NUMERO, T05_LETRA, T05_ESCAL, "
    "T05_PISO, T05_MANO, T05_PROVIN, T05_CPOST, T05_CMUNI, T05_MUNICI, T05_TELEPRE, T05_TELNUM "
    "FROM T05_DECLARANTES WHERE T05_CSDE = ?";

// Parameters 1 to 15 are the elements 1 to 15 of the record.
constexpr auto kInsertar =
    "INSERT INTO T05_DECLARANTES (T05_NIF, T05_NOMBRE, T05_SIGLAS, T05_DOMICILIO, T05_NUMERO, T05_LETRA, "
    "T05_ESCAL, T05_PISO, T05_MANO, T05_PROVIN, T05_CPOST, T05_CMUNI, T05_MUNICI, T05_TELEPRE, T05_TELNUM) "
    "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";

constexpr auto kCambiar =
    "UPDATE T05_DECLARANTES SET T05_NIF = ?1, T05_NOMBRE = ?2, T05_SIGLAS = ?3, T05_DOMICILIO = ?4, "
    "T05_NUMERO = ?5, T05_LETRA = ?6, T05_ESCAL = ?7, T05_PISO = ?8, T05_MANO = ?9, T05_PROVIN = ?10, "
    "T05_CPOST = ?11, T05_CMUNI = ?12, T05_MUNICI = ?13, T05_TELEPRE = ?14, T05_TELNUM = ?15 "
    "WHERE T05_CSDE = ?16";

void PonerCampos(Consulta& consulta, const Registro& registro) {
    for (int i = 1; i < static_cast<int>(kCampos.size()); ++i) {
        consulta.Poner(i, kCampos.at(static_cast<std::size_t>(i)), Elemento(registro, i));
    }
}

}  // namespace

void cZTDeclarante::CargarDeclarante(qint32 CSDE, Registro& buffer) const {
    buffer = LeerUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(almacen, kCargar, CSDE);
        return LeerRegistro(consulta, kCampos);
    });
    buffer.resize(kElementos);
}

qint32 cZTDeclarante::GuardarDeclarante(const Registro& registro) const {
    const qint32 clave = Elemento(registro, 0).aEntero32();
    return EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(almacen, clave == 0 ? kInsertar : kCambiar);
        PonerCampos(consulta, registro);
        if (clave != 0) {
            consulta.Poner(static_cast<int>(kCampos.size()), clave);
        }
        const qint32 guardada = GuardarFila(almacen, consulta, clave);
        MarcarDeclarante(almacen, guardada);
        return guardada;
    });
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
        Consulta consulta(almacen,
                          "SELECT T05_CSDE, T05_NIF, T05_NOMBRE, T05_MUNICI, T05_PROVIN FROM T05_DECLARANTES "
                          "ORDER BY T05_NIF, T05_CSDE");
        return LeerLista(consulta,
                         {Campo::Entero32, Campo::Texto, Campo::Texto, Campo::Texto, Campo::Entero16});
    });
}

void cZTDeclarante::ImportarDte(const Tabla& registro) const {
    Registro fila;
    for (int i = 0; i < static_cast<int>(kCampos.size()); ++i) {
        const Valor& valor = registro(0, i);
        fila.push_back(valor.EsTexto() ? Valor(SinBlancosALaDerecha(valor.aTexto())) : valor);
    }
    (void)GuardarDeclarante(fila);
}

}  // namespace svrZELT
