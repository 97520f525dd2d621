#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/EscrituraDeUsuario.h"

#include <array>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

#include "core/base/Redondeo.h"
#include "core/services/OperacionesUsuario.h"
#include "core/store/Consulta.h"

using namespace Qt::StringLiterals;

namespace svrZELT {

namespace {

constexpr qint16 kProductos = 6;
constexpr double kCentesimas = 100.0;
constexpr double kMillonesimas = 1'000'000.0;

struct Linea {
    qint32 CSES;
    qint16 producto;
    double SUMEX;
    double BASIM;
    double TIPIM;
    double CUOTA;
};

/// The quota as the screen shows it, in whole hundredths, so that sums of quotas are exact.
double Cuota(double BASIM, double TIPIM) {
    const double base = Redondear(BASIM / kCentesimas, 2);
    const double tipo = Redondear(TIPIM / kMillonesimas, 6);
    return std::round(CuotaDe(base, tipo) * kCentesimas);
}

Linea LeerLinea(const Tabla& buffer, int fila, const std::optional<Registro>& tasas) {
    const qint16 producto = buffer(3, fila).aEntero16();
    if (producto < 1 || producto > kProductos) {
        throw ErrorZT(NumError::Subindice);
    }
    Linea linea{buffer(2, fila).aEntero32(), producto, buffer(4, fila).aDoble(),
                buffer(5, fila).aDoble(),    0,        0};
    linea.TIPIM = (tasas ? Elemento(*tasas, producto - 1) : buffer(6, fila)).aDoble();
    linea.CUOTA = Cuota(linea.BASIM, linea.TIPIM);
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

void ReemplazarLineas(Almacen& almacen, qint32 CSDC, const std::vector<Linea>& lineas) {
    const Claves claves = LeerClaves(almacen, CSDC);
    Consulta(almacen, "DELETE FROM T08_ANEXOS WHERE T08_CSDC = ?", CSDC).Ejecutar();
    for (const Linea& linea : lineas) {
        const auto clave = claves.find({linea.CSES, linea.producto});
        Consulta(almacen,
                 "INSERT INTO T08_ANEXOS (T08_CSAN, T08_CSDC, T08_CSES, T08_PRODUCTO, T08_SUMEX, T08_BASIM, "
                 "T08_TIPIM, T08_CUOTA) VALUES (nullif(?, 0), ?, ?, ?, ?, ?, ?, ?)",
                 clave == claves.end() ? 0 : clave->second, CSDC, linea.CSES, linea.producto, linea.SUMEX,
                 linea.BASIM, linea.TIPIM, linea.CUOTA)
            .Ejecutar();
    }
}

void PonerTasa(Almacen& almacen, qint32 CSDC, qint16 producto, double TIPIM) {
    Consulta(almacen, "UPDATE T10_LIQUIDACION SET T10_TIPIM = ? WHERE T10_CSDC = ? AND T10_PRODUCTO = ?",
             TIPIM, CSDC, producto)
        .Ejecutar();
}

void PonerTasas(Almacen& almacen, qint32 CSDC, const std::vector<Linea>& lineas,
                const std::optional<Registro>& tasas) {
    for (const Linea& linea : lineas) {
        PonerTasa(almacen, CSDC, linea.producto, linea.TIPIM);
    }
    for (qint16 producto = 1; tasas && producto <= kProductos; ++producto) {
        PonerTasa(almacen, CSDC, producto, Elemento(*tasas, producto - 1).aDoble());
    }
}

void ExigirDeclaracion(Almacen& almacen, qint32 CSDC) {
    if (!Consulta(almacen, "SELECT 1 FROM T07_DECLARACIONES WHERE T07_CSDC = ?", CSDC).Siguiente()) {
        throw FalloDeAlmacen(NumError::AlmacenOrden, almacen.Ruta(),
                             u"La declaración %1 ya no existe."_s.arg(CSDC));
    }
}

}  // namespace

Tabla cZTAnexos::CargarAnexos(qint32 CSDC) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(
            almacen,
            "SELECT T08_CSAN, T08_CSDC, T08_CSES, T08_PRODUCTO, T08_SUMEX, T08_BASIM, T08_TIPIM, "
            "T08_CUOTA FROM T08_ANEXOS WHERE T08_CSDC = ? ORDER BY T08_CSES, T08_PRODUCTO",
            CSDC);
        return LeerLista(consulta, {Campo::Entero32, Campo::Entero32, Campo::Entero32, Campo::Entero16,
                                    Campo::Doble, Campo::Doble, Campo::Doble, Campo::Doble});
    });
}

bool cZTAnexos::GuardarAnexos(const Tabla& BufferAnexos, const std::optional<Registro>& vBufferTasas,
                              qint32 CSDC) {
    Causa.clear();
    const std::vector<Linea> lineas = LeerLineas(BufferAnexos, vBufferTasas);
    try {
        EscribirUsuario(mdbmod, [&](Almacen& almacen) {
            ExigirDeclaracion(almacen, CSDC);
            ReemplazarLineas(almacen, CSDC, lineas);
            PonerTasas(almacen, CSDC, lineas, vBufferTasas);
            SumarAnexos(almacen, CSDC);
            MarcarTitularDeDeclaracion(almacen, CSDC);
        });
    } catch (const ErrorZT& error) {
        if (!EsFalloDeAlmacen(error)) {
            throw;
        }
        Causa = error.Descripcion();
        return false;
    }
    return true;
}

Tabla cZTAnexos::CargarEstablecimientos(qint32 CSDC) const {
    return LeerUsuario(mdbmod, [&](Almacen& almacen) {
        Consulta consulta(almacen,
                          "SELECT T06_CIM, T06_DOMICILIO, T06_PROVIN, T06_MUNICI, T08_PRODUCTO, T08_SUMEX, "
                          "T08_BASIM, T08_TIPIM, T08_CUOTA "
                          "FROM T08_ANEXOS JOIN T06_ESTABLECIMIENTOS ON T06_CSES = T08_CSES "
                          "WHERE T08_CSDC = ? ORDER BY T06_CIM, T06_CSES, T08_PRODUCTO",
                          CSDC);
        return LeerLista(consulta, {Campo::Texto, Campo::Texto, Campo::Entero16, Campo::Texto,
                                    Campo::Entero16, Campo::Doble, Campo::Doble, Campo::Doble, Campo::Doble});
    });
}

}  // namespace svrZELT
