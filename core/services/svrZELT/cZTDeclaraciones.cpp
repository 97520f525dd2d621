#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/services/EscrituraDeUsuario.h"

#include "core/base/Modelo.h"
#include "core/services/OperacionesUsuario.h"
#include "core/services/OrdenesDeTabla.h"

namespace svrZELT {

namespace {

using Campos = CamposDeDeclaracion;
using Nueva = CamposDeNuevaDeclaracion;

/// Columns of `kProductoYTotal`, behind those of the head.
enum ColumnaDeProducto : int {
    kProducto = Campos::kPrimeraFigura,
    kFiguraDeProducto,
    kTotal = kFiguraDeProducto + kFiguras
};

/// One row a product: head of the declaration, product, its figures, and the total.
constexpr auto kProductoYTotal =
    ", T10_PRODUCTO, T10_SUMEX, T10_BASIM, T10_TIPIM, T10_CUOTA, T07_TOTCUO "
    "FROM T07_DECLARACIONES JOIN T10_LIQUIDACION ON T10_CSDC = T07_CSDC WHERE T07_CSDC = ?";

Registro EnBlancoDeclaracion() {
    Registro registro(Campos::kElementos, EnBlanco(TipoDeColumna::Doble));
    for (const ColumnaDeAlmacen& columna : Campos::kCabeza) {
        registro.at(static_cast<std::size_t>(columna.lugar)) = EnBlanco(columna.tipo);
    }
    return registro;
}

void LeerProducto(const Consulta& consulta, Registro& registro) {
    const auto elemento = [&registro](int i) -> Valor& { return registro.at(static_cast<std::size_t>(i)); };
    for (const ColumnaDeAlmacen& columna : Campos::kCabeza) {
        elemento(columna.lugar) = consulta.Leer(columna.lugar, columna.tipo);
    }
    const int k = consulta.Entero16(kProducto);
    for (int figura = 0; figura < kFiguras; ++figura) {
        elemento(Campos::Lugar(k, figura)) = consulta.Doble(kFiguraDeProducto + figura);
    }
    elemento(Campos::kTOTCUO) = consulta.Doble(kTotal);
}

Tabla LeerLineas(Almacen& almacen, qint32 CSDC) {
    static const std::string orden = OrdenDeLeer(
        CamposDeAnexo::kColumnas, "FROM T08_ANEXOS WHERE T08_CSDC = ? ORDER BY T08_CSES, T08_PRODUCTO");
    Consulta consulta(almacen, orden.c_str(), CSDC);
    return LeerLista(consulta, CamposDeAnexo::kColumnas);
}

}  // namespace

Registro cZTDeclaraciones::CargarDeclaracion(qint32 CSDC, Tabla* lineas) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        const Lectura lectura(almacen);
        if (lineas != nullptr) {
            *lineas = LeerLineas(almacen, CSDC);
        }
        Registro registro = EnBlancoDeclaracion();
        static const std::string orden = OrdenDeLeer(Campos::kCabeza, kProductoYTotal);
        Consulta consulta(almacen, orden.c_str(), CSDC);
        while (consulta.Siguiente()) {
            LeerProducto(consulta, registro);
        }
        return registro;
    });
}

qint32 cZTDeclaraciones::GuardarDeclaraciones(const Registro& registro) const {
    const qint32 CSDE = Elemento(registro, Nueva::kCSDE).aEntero32();
    return EscribirUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta declaracion(
            almacen, "INSERT INTO T07_DECLARACIONES (T07_CSDE, T07_EJERCICIO, T07_PERIODO) VALUES (?, ?, ?)",
            CSDE, Elemento(registro, Nueva::kEjercicio).aEntero16(),
            Elemento(registro, Nueva::kPeriodo).aEntero16());
        const qint32 CSDC = GuardarFila(almacen, declaracion, 0);
        for (qint16 producto = 1; producto <= kProductos; ++producto) {
            Consulta(almacen,
                     "INSERT INTO T10_LIQUIDACION (T10_CSDC, T10_PRODUCTO, T10_TIPIM) VALUES (?, ?, ?)", CSDC,
                     producto, Elemento(registro, Nueva::LugarDeTasa(producto)).aDoble())
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
        static const std::string orden =
            OrdenDeLeer(ListadoDeDeclaraciones::kColumnas,
                        "FROM T07_DECLARACIONES WHERE T07_CSDE = ? ORDER BY T07_EJERCICIO, T07_PERIODO");
        Consulta consulta(almacen, orden.c_str(), CSDE);
        return LeerLista(consulta, ListadoDeDeclaraciones::kColumnas);
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
