#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/services/EscrituraDeUsuario.h"

#include <array>

#include "core/services/OperacionesUsuario.h"
#include "core/store/Consulta.h"

namespace svrZELT {

namespace {

constexpr qint16 kProductos = 6;
constexpr std::size_t kFiguras = 4;
constexpr std::size_t kPrimeraFigura = 4;
constexpr int kPrimeraTasa = 3;
constexpr std::size_t kTotal = kPrimeraFigura + kProductos * kFiguras;

Registro EnBlancoDeclaracion() {
    Registro registro(kTotal + 1, EnBlanco(Campo::Doble));
    constexpr std::array kCabeza{Campo::Entero32, Campo::Entero32, Campo::Entero16, Campo::Entero16};
    std::size_t i = 0;
    for (const Campo campo : kCabeza) {
        registro.at(i++) = EnBlanco(campo);
    }
    return registro;
}

/// One row a product: head of the declaration, product, its figures, and the total.
constexpr auto kCargar =
    "SELECT T07_CSDC, T07_CSDE, T07_EJERCICIO, T07_PERIODO, T10_PRODUCTO, T10_SUMEX, T10_BASIM, T10_TIPIM, "
    "T10_CUOTA, T07_TOTCUO FROM T07_DECLARACIONES JOIN T10_LIQUIDACION ON T10_CSDC = T07_CSDC "
    "WHERE T07_CSDC = ?";

void LeerProducto(const Consulta& consulta, Registro& registro) {
    registro.at(0) = consulta.Entero32(0);
    registro.at(1) = consulta.Entero32(1);
    registro.at(2) = consulta.Entero16(2);
    registro.at(3) = consulta.Entero16(3);
    std::size_t elemento = kPrimeraFigura + static_cast<std::size_t>(consulta.Entero16(4) - 1) * kFiguras;
    for (const int columna : {5, 6, 7, 8}) {
        registro.at(elemento++) = consulta.Doble(columna);
    }
    registro.at(kTotal) = consulta.Doble(9);
}

}  // namespace

Registro cZTDeclaraciones::CargarDeclaracion(qint32 CSDC) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        Registro registro = EnBlancoDeclaracion();
        Consulta consulta(almacen, kCargar, CSDC);
        while (consulta.Siguiente()) {
            LeerProducto(consulta, registro);
        }
        return registro;
    });
}

qint32 cZTDeclaraciones::GuardarDeclaraciones(const Registro& registro) const {
    const qint32 CSDE = Elemento(registro, 0).aEntero32();
    return EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta declaracion(
            almacen, "INSERT INTO T07_DECLARACIONES (T07_CSDE, T07_EJERCICIO, T07_PERIODO) VALUES (?, ?, ?)",
            CSDE, Elemento(registro, 1).aEntero16(), Elemento(registro, 2).aEntero16());
        const qint32 CSDC = GuardarFila(almacen, declaracion, 0);
        for (qint16 producto = 1; producto <= kProductos; ++producto) {
            Consulta(almacen,
                     "INSERT INTO T10_LIQUIDACION (T10_CSDC, T10_PRODUCTO, T10_TIPIM) VALUES (?, ?, ?)", CSDC,
                     producto, Elemento(registro, kPrimeraTasa + producto - 1).aDoble())
                .Ejecutar();
        }
        MarcarDeclarante(almacen, CSDE);
        return CSDC;
    });
}

void cZTDeclaraciones::EliminarDeclaraciones(qint32 CSDC) const {
    EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        MarcarTitularDeDeclaracion(almacen, CSDC);
        Consulta(almacen, "DELETE FROM T07_DECLARACIONES WHERE T07_CSDC = ?", CSDC).Ejecutar();
    });
}

Tabla cZTDeclaraciones::ObtenerDeclaraciones(qint32 CSDE) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(
            almacen,
            "SELECT T07_CSDC, T07_EJERCICIO, T07_PERIODO, T07_TOTCUO / 100 FROM T07_DECLARACIONES "
            "WHERE T07_CSDE = ? ORDER BY T07_EJERCICIO, T07_PERIODO",
            CSDE);
        return LeerLista(consulta, {Campo::Entero32, Campo::Entero16, Campo::Entero16, Campo::Doble});
    });
}

qint16 cZTDeclaraciones::NumeroDeclaraciones(qint32 CSDE) const {
    return LeerUsuario(
        mdbmod, [&](Almacen& almacen) { return Valor(ContarDeclaraciones(almacen, CSDE)).aEntero16(); });
}

bool cZTDeclaraciones::DecDuplicadas(qint32 CSDE, qint16 Ejercicio, qint16 Periodo) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        return Consulta(almacen,
                        "SELECT 1 FROM T07_DECLARACIONES "
                        "WHERE T07_CSDE = ? AND T07_EJERCICIO = ? AND T07_PERIODO = ?",
                        CSDE, Ejercicio, Periodo)
            .Siguiente();
    });
}

bool cZTDeclaraciones::TieneDeclaraciones(qint32 CSDE) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) { return ContarDeclaraciones(almacen, CSDE) > 0; });
}

bool cZTDeclaraciones::TieneEstablecimientos(qint32 CSDE) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        return Consulta(almacen, "SELECT 1 FROM T06_ESTABLECIMIENTOS WHERE T06_CSDE = ?", CSDE).Siguiente();
    });
}

}  // namespace svrZELT
