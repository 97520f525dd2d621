#include "core/services/svrZELT/cZTAnexos.h"
#include "core/base/TextosPropios.h"
#include "core/services/EscrituraDeUsuario.h"

#include <cmath>
#include <map>
#include <utility>
#include <vector>

#include "core/base/Modelo.h"
#include "core/services/Cuota.h"
#include "core/services/OperacionesUsuario.h"
#include "core/services/OrdenesDeTabla.h"

using namespace Qt::StringLiterals;

namespace svrZELT {

namespace {

using Campos = CamposDeAnexo;

struct Linea {
    qint32 CSES = 0;
    qint16 producto = 0;
    Centesimas SUMEX{};
    Centesimas BASIM{};
    Millonesimas TIPIM{};
    Centesimas CUOTA{};
};

/// The quota as the screen shows it, in whole hundredths, so that sums of quotas are exact.
Centesimas CuotaEntera(const Linea& linea) {
    return Centesimas(std::round(CuotaDe(linea.BASIM, linea.TIPIM).Guardado()));
}

Linea LeerLinea(const Tabla& buffer, int fila, const std::optional<Registro>& tasas) {
    const qint16 producto = buffer(Campos::kProducto, fila).aEntero16();
    if (producto < 1 || producto > kProductos) {
        throw ErrorZT(NumError::Subindice);
    }
    Linea linea{.CSES = buffer(Campos::kCSES, fila).aEntero32(),
                .producto = producto,
                .SUMEX = Centesimas(buffer(Campos::kSUMEX, fila).aDoble()),
                .BASIM = Centesimas(buffer(Campos::kBASIM, fila).aDoble())};
    linea.TIPIM =
        Millonesimas((tasas ? Elemento(*tasas, producto - 1) : buffer(Campos::kTIPIM, fila)).aDoble());
    linea.CUOTA = CuotaEntera(linea);
    return linea;
}

std::vector<Linea> LeerLineas(const Tabla& buffer, const std::optional<Registro>& tasas) {
    std::vector<Linea> lineas;
    const int ultima = buffer.EsNula() ? 0 : buffer.UltimaFila();
    for (int fila = 1; fila <= ultima; ++fila) {
        lineas.push_back(LeerLinea(buffer, fila, tasas));
    }
    return lineas;
}

using Claves = std::map<std::pair<qint32, qint16>, qint32>;

/// Keys of the lines that stand, by establishment and product.
Claves LeerClaves(Almacen& almacen, qint32 CSDC) {
    Consulta consulta(almacen, "SELECT T08_CSES, T08_PRODUCTO, T08_CSAN FROM T08_ANEXOS WHERE T08_CSDC = ?",
                      CSDC);
    Claves claves;
    while (consulta.Siguiente()) {
        claves[{consulta.Entero32(0), consulta.Entero16(1)}] = consulta.Entero32(2);
    }
    return claves;
}

Registro FilaDe(const Linea& linea, qint32 CSAN, qint32 CSDC) {
    Registro fila(Campos::kColumnas.size());
    fila[Campos::kCSAN] = CSAN;
    fila[Campos::kCSDC] = CSDC;
    fila[Campos::kCSES] = linea.CSES;
    fila[Campos::kProducto] = linea.producto;
    fila[Campos::kSUMEX] = linea.SUMEX.Guardado();
    fila[Campos::kBASIM] = linea.BASIM.Guardado();
    fila[Campos::kTIPIM] = linea.TIPIM.Guardado();
    fila[Campos::kCUOTA] = linea.CUOTA.Guardado();
    return fila;
}

void ReemplazarLineas(Almacen& almacen, qint32 CSDC, const std::vector<Linea>& lineas) {
    const Claves claves = LeerClaves(almacen, CSDC);
    Consulta(almacen, "DELETE FROM T08_ANEXOS WHERE T08_CSDC = ?", CSDC).Ejecutar();
    static const std::string orden = OrdenDeInsertar("T08_ANEXOS", Campos::kColumnas);
    Consulta insertar(almacen, orden.c_str());
    for (const Linea& linea : lineas) {
        const auto clave = claves.find({linea.CSES, linea.producto});
        const qint32 CSAN = clave == claves.end() ? 0 : clave->second;
        PonerRegistro(insertar, Campos::kColumnas, FilaDe(linea, CSAN, CSDC));
        insertar.Ejecutar();
    }
}

void PonerTasa(Almacen& almacen, qint32 CSDC, qint16 producto, Millonesimas TIPIM) {
    Consulta(almacen, "UPDATE T10_LIQUIDACION SET T10_TIPIM = ? WHERE T10_CSDC = ? AND T10_PRODUCTO = ?",
             TIPIM.Guardado(), CSDC, producto)
        .Ejecutar();
}

void PonerTasas(Almacen& almacen, qint32 CSDC, const std::vector<Linea>& lineas,
                const std::optional<Registro>& tasas) {
    for (const Linea& linea : lineas) {
        PonerTasa(almacen, CSDC, linea.producto, linea.TIPIM);
    }
    for (qint16 producto = 1; tasas && producto <= kProductos; ++producto) {
        PonerTasa(almacen, CSDC, producto, Millonesimas(Elemento(*tasas, producto - 1).aDoble()));
    }
}

void ExigirDeclaracion(Almacen& almacen, qint32 CSDC) {
    if (!Consulta(almacen, "SELECT 1 FROM T07_DECLARACIONES WHERE T07_CSDC = ?", CSDC).Siguiente()) {
        throw FalloDeAlmacen(NumError::AlmacenOrden, almacen.Ruta(),
                             TextoPropio(u"causa_declaracion_borrada").arg(CSDC));
    }
}

const char* OrdenDeCargar() {
    static const std::string orden =
        OrdenDeLeer(Campos::kColumnas, "FROM T08_ANEXOS WHERE T08_CSDC = ? ORDER BY T08_CSES, T08_PRODUCTO");
    return orden.c_str();
}

/// Whose declaration it is, and of which quarter: another one can bear its key in a restored store.
constexpr auto kOrdenDeCabeza =
    "SELECT T07_CSDE, T07_EJERCICIO, T07_PERIODO FROM T07_DECLARACIONES WHERE T07_CSDC = ?";

/// Writes within the caller's transaction.
void GuardarLineas(Almacen& almacen, qint32 CSDC, const std::vector<Linea>& lineas,
                   const std::optional<Registro>& tasas) {
    ExigirDeclaracion(almacen, CSDC);
    ReemplazarLineas(almacen, CSDC, lineas);
    PonerTasas(almacen, CSDC, lineas, tasas);
    SumarAnexos(almacen, CSDC);
    MarcarTitularDeDeclaracion(almacen, CSDC);
}

}  // namespace

Tabla cZTAnexos::CargarAnexos(qint32 CSDC, EstadoLeido* leido) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        const Lectura lectura(almacen);
        TomarEstado(almacen, {kOrdenDeCabeza, OrdenDeCargar()}, CSDC, leido);
        Consulta consulta(almacen, OrdenDeCargar(), CSDC);
        return LeerLista(consulta, Campos::kColumnas);
    });
}

bool cZTAnexos::GuardarAnexos(const Tabla& BufferAnexos, const std::optional<Registro>& vBufferTasas,
                              qint32 CSDC, EstadoLeido* leido) {
    Causa.clear();
    CambiadaPorOtro = false;
    const std::vector<Linea> lineas = LeerLineas(BufferAnexos, vBufferTasas);
    EstadoLeido ahora;
    try {
        EscribirUsuario(mdbmod, [&](Almacen& almacen) {
            ExigirSinCambios(almacen, {kOrdenDeCabeza, OrdenDeCargar()}, CSDC, leido);
            GuardarLineas(almacen, CSDC, lineas, vBufferTasas);
            TomarEstado(almacen, {kOrdenDeCabeza, OrdenDeCargar()}, CSDC,
                        leido == nullptr ? nullptr : &ahora);
        });
    } catch (const ErrorZT& error) {
        if (!EsFalloDeAlmacen(error)) {
            throw;
        }
        Causa = error.Descripcion();
        CambiadaPorOtro = EsCambioDeOtro(error);
        return false;
    }
    RenovarEstado(leido, ahora);
    return true;
}

Tabla cZTAnexos::CargarEstablecimientos(qint32 CSDC) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        static const std::string orden =
            OrdenDeLeer(ListadoDeImpresion::kColumnas,
                        "FROM T08_ANEXOS JOIN T06_ESTABLECIMIENTOS ON T06_CSES = T08_CSES "
                        "WHERE T08_CSDC = ? ORDER BY T06_CIM, T06_CSES, T08_PRODUCTO");
        Consulta consulta(almacen, orden.c_str(), CSDC);
        return LeerLista(consulta, ListadoDeImpresion::kColumnas);
    });
}

}  // namespace svrZELT
