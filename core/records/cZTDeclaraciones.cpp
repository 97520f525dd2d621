#include "core/records/cZTDeclaraciones.h"

#include "core/base/Instancias.h"
#include "core/base/Procedimiento.h"
#include "core/base/Redondeo.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTNuevaDec.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"

namespace {

/// Places in the row of the store. From `kPrimeraFigura` on, each product has its four figures.
constexpr int kEjercicio = 2;
constexpr int kPeriodo = 3;
constexpr int kPrimeraFigura = 4;
constexpr int kFigurasPorProducto = 4;
constexpr int kTotcuo = kPrimeraFigura + kProductos * kFigurasPorProducto;

}  // namespace

double cZTDeclaraciones::SUMEX(int k) const { return Redondear(m_figuras(k).SUMEX / kCentesimas, 2); }
double cZTDeclaraciones::BASIM(int k) const { return Redondear(m_figuras(k).BASIM / kCentesimas, 2); }
double cZTDeclaraciones::TIPIM(int k) const { return Redondear(m_figuras(k).TIPIM / kMillonesimas, 6); }
double cZTDeclaraciones::CUOTA(int k) const { return Redondear(m_figuras(k).CUOTA / kCentesimas, 6); }
double cZTDeclaraciones::TOTCUO() const { return m_totcuo / kCentesimas; }

void cZTDeclaraciones::SUMEX(int k, double valor) {
    // Only the first product takes the public scale here: docs/reglas.md, sumex-del-primero.
    m_figuras(k).SUMEX = k == 1 ? valor * kCentesimas : valor;
}
void cZTDeclaraciones::BASIM(int k, double valor) { m_figuras(k).BASIM = valor; }
void cZTDeclaraciones::TIPIM(int k, double valor) { m_figuras(k).TIPIM = valor; }
void cZTDeclaraciones::CUOTA(int k, double valor) { m_figuras(k).CUOTA = valor; }
void cZTDeclaraciones::TOTCUO(double valor) { m_totcuo = valor; }

void cZTDeclaraciones::InicializarDatos() {
    Procedimiento(u"cZTDeclaraciones.InicializarDatos", [this] {
        if (Modo == kModoNuevo) {
            m_figuras = FigurasPorProducto();
            m_totcuo = 0.0;
            Ejercicio = 0;
            Periodo = 0;
            CargarTipImp(oNuevaDec().Ejercicio, oNuevaDec().Periodo);
        } else if (Modo == kModoExistente) {
            CargarDeclaracion();
        }
    });
}

void cZTDeclaraciones::CargarDeclaracion() {
    Procedimiento(u"cZTDeclaraciones.CargarDeclaracion", [this] {
        svrZELT::cZTDeclaraciones servidor;
        servidor.mdbmod = Entorno().mdbmod;
        m_fila = servidor.CargarDeclaracion(CSDC);
        int elemento = kPrimeraFigura;
        for (int k = 1; k <= kProductos; ++k) {
            Figuras& figuras = m_figuras(k);
            figuras.SUMEX = Elemento(m_fila, elemento++).aDoble();
            figuras.BASIM = Elemento(m_fila, elemento++).aDoble();
            figuras.TIPIM = Elemento(m_fila, elemento++).aDoble();
            oAnexos().TIPIM(k, figuras.TIPIM / kMillonesimas);
            figuras.CUOTA = Elemento(m_fila, elemento++).aDoble();
        }
        m_totcuo = Elemento(m_fila, kTotcuo).aDoble();
        if (TIPIM(1) == 0.0) {
            CargarTipImp(Elemento(m_fila, kEjercicio).aEntero16(), Elemento(m_fila, kPeriodo).aEntero16());
        }
    });
}

void cZTDeclaraciones::CargarTipImp(qint16 intEjercicio, qint16 intPeriodo) {
    Procedimiento(u"cZTDeclaraciones.CargarTipImp", [&] {
        vBufferTasas = LeerTasas(intEjercicio, intPeriodo);
        if (!vBufferTasas) {
            return;
        }
        for (int k = 1; k <= kProductos; ++k) {
            m_figuras(k).TIPIM = Tasa(vBufferTasas, k).aDoble();
        }
        for (int k = 1; k <= kProductos; ++k) {
            oAnexos().TIPIM(k, TIPIM(k));
        }
    });
}

cZTDeclaraciones& oDeclaraciones() { return InstanciaUnica<cZTDeclaraciones>(); }
