#include "core/records/cZTDeclaraciones.h"

#include "core/base/Instancias.h"
#include "core/base/Procedimiento.h"
#include "core/records/Descuadres.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTNuevaDec.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"

namespace {

using Campos = svrZELT::CamposDeDeclaracion;

/// Unlike in `cZTAnexos`, a quota is rounded here as a rate is.
constexpr qint16 kDecimalesDeCuota = 6;

}  // namespace

double cZTDeclaraciones::SUMEX(int k) const { return m_figuras(k).SUMEX.Redondeado(); }
double cZTDeclaraciones::BASIM(int k) const { return m_figuras(k).BASIM.Redondeado(); }
double cZTDeclaraciones::TIPIM(int k) const { return m_figuras(k).TIPIM.Redondeado(); }
double cZTDeclaraciones::CUOTA(int k) const { return m_figuras(k).CUOTA.Redondeado(kDecimalesDeCuota); }
double cZTDeclaraciones::TOTCUO() const { return m_totcuo.Publico(); }

void cZTDeclaraciones::SUMEX(int k, double valor) {
    // Only the first product takes the public scale here: docs/reglas.md, sumex-del-primero.
    m_figuras(k).SUMEX = k == 1 ? Centesimas::DePublico(valor) : Centesimas(valor);
}
void cZTDeclaraciones::BASIM(int k, double valor) { m_figuras(k).BASIM = Centesimas(valor); }
void cZTDeclaraciones::TIPIM(int k, double valor) { m_figuras(k).TIPIM = Millonesimas(valor); }
void cZTDeclaraciones::CUOTA(int k, double valor) { m_figuras(k).CUOTA = Centesimas(valor); }
void cZTDeclaraciones::TOTCUO(double valor) { m_totcuo = Centesimas(valor); }

void cZTDeclaraciones::InicializarDatos() {
    Procedimiento(u"cZTDeclaraciones.InicializarDatos", [this] {
        if (Modo == kModoNuevo) {
            m_figuras = FigurasPorProducto();
            m_totcuo = Centesimas();
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
        Tabla lineas;
        m_fila = ServidorDeUsuario<svrZELT::cZTDeclaraciones>().CargarDeclaracion(CSDC, &lineas);
        Cuadrar(lineas);
        for (int k = 1; k <= kProductos; ++k) {
            m_figuras(k) = LeerFiguras(
                [&](int figura) -> const Valor& { return Elemento(m_fila, Campos::Lugar(k, figura)); });
            oAnexos().TIPIM(k, m_figuras(k).TIPIM.Publico());
        }
        Tomar(m_totcuo, Elemento(m_fila, Campos::kTOTCUO));
        if (TIPIM(1) == 0.0) {
            CargarTipImp(Elemento(m_fila, Campos::kEjercicio).aEntero16(),
                         Elemento(m_fila, Campos::kPeriodo).aEntero16());
        }
    });
}

void cZTDeclaraciones::Cuadrar(const Tabla& lineas) {
    const std::vector<Descuadre> descuadres = DescuadresDe(m_fila, lineas);
    m_descuadrada = !descuadres.empty();
    AnotarDescuadres(QStringLiteral("declaración %1, %2/%3")
                         .arg(CSDC)
                         .arg(Elemento(m_fila, Campos::kEjercicio).aEntero16())
                         .arg(Elemento(m_fila, Campos::kPeriodo).aEntero16()),
                     descuadres);
}

bool cZTDeclaraciones::EsLaDe(qint32 CSDE, qint16 ejercicio, qint16 periodo) const {
    return !m_fila.empty() && Elemento(m_fila, Campos::kCSDC).aEntero32() == CSDC &&
           Elemento(m_fila, Campos::kCSDE).aEntero32() == CSDE &&
           Elemento(m_fila, Campos::kEjercicio).aEntero16() == ejercicio &&
           Elemento(m_fila, Campos::kPeriodo).aEntero16() == periodo;
}

void cZTDeclaraciones::CargarTipImp(qint16 intEjercicio, qint16 intPeriodo) {
    Procedimiento(u"cZTDeclaraciones.CargarTipImp", [&] {
        vBufferTasas = LeerTasas(intEjercicio, intPeriodo);
        if (!vBufferTasas) {
            return;
        }
        for (int k = 1; k <= kProductos; ++k) {
            Tomar(m_figuras(k).TIPIM, Tasa(vBufferTasas, k));
        }
        for (int k = 1; k <= kProductos; ++k) {
            oAnexos().TIPIM(k, TIPIM(k));
        }
    });
}

cZTDeclaraciones& oDeclaraciones() { return InstanciaUnica<cZTDeclaraciones>(); }
