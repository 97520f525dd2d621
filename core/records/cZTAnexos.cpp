#include "core/records/cZTAnexos.h"

#include "core/base/Instancias.h"
#include "core/base/Procedimiento.h"
#include "core/base/Redondeo.h"
#include "core/records/ListaDeEstablecimientos.h"
#include "core/records/ProductosDeLineas.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"

namespace {

/// Columns of `BufferAnexos`.
enum Columna : int { kCSAN, kCSDC, kCSES, kProducto, kSUMEX, kBASIM, kTIPIM, kCUOTA };

/// Sub-item of the list of establishments that shows the products.
constexpr int kSubitemDeProductos = 5;
/// Between rate times base on the stored scale and the quota that a change of rates gives a line.
constexpr double kDivisorDeCuota = 100'000'000.0;

svrZELT::cZTAnexos Servidor() {
    svrZELT::cZTAnexos servidor;
    servidor.mdbmod = Entorno().mdbmod;
    return servidor;
}

/// Number of lines, in rows 1 to the result.
int Lineas(const Tabla& anexos) { return anexos.EsNula() ? 0 : anexos.UltimaFila(); }

}  // namespace

double cZTAnexos::SUMEX(int k) const { return Redondear(m_figuras(k).SUMEX / kCentesimas, 2); }
double cZTAnexos::BASIM(int k) const { return Redondear(m_figuras(k).BASIM / kCentesimas, 2); }
double cZTAnexos::TIPIM(int k) const { return Redondear(m_figuras(k).TIPIM / kMillonesimas, 6); }
double cZTAnexos::CUOTA(int k) const { return Redondear(m_figuras(k).CUOTA / kCentesimas, 2); }

void cZTAnexos::SUMEX(int k, double valor) { m_figuras(k).SUMEX = valor * kCentesimas; }
void cZTAnexos::BASIM(int k, double valor) { m_figuras(k).BASIM = valor * kCentesimas; }
void cZTAnexos::TIPIM(int k, double valor) { m_figuras(k).TIPIM = valor * kMillonesimas; }
void cZTAnexos::CUOTA(int k, double valor) { m_figuras(k).CUOTA = valor * kCentesimas; }

void cZTAnexos::RellenarEstDecl() {
    Procedimiento(u"cZTAnexos.RellenarEstDecl", [this] {
        svrZELT::cZTEstablecimientos servidor;
        servidor.mdbmod = Entorno().mdbmod;
        BufferEstDecl = servidor.ObtenerEstablecimientos(oDeclarante().CSDE);
    });
}

QString cZTAnexos::ProductosEstablecimiento(qint32 lngCSES) const {
    return ProductosDeLineas(BufferAnexos).De(lngCSES);
}

void cZTAnexos::CargarAnexos() {
    Procedimiento(u"cZTAnexos.CargarAnexos",
                  [this] { BufferAnexos = Servidor().CargarAnexos(oDeclaraciones().CSDC); });
}

void cZTAnexos::InicializarDatos() {
    // The name of another class: docs/reglas.md, traza-de-otro-formulario.
    Procedimiento(u"cZTDeclaraciones.InicializarDatos", [this] {
        for (int k = 1; k <= kProductos; ++k) {
            m_figuras(k) = Figuras{.TIPIM = m_figuras(k).TIPIM};
        }
        TOTCUO = 0.0;
    });
}

bool cZTAnexos::GuardarAnexo(ListaDeEstablecimientos& lista) {
    return Procedimiento(u"cZTAnexos.GuardarAnexo", [&] {
        if (BufferAnexos.EsNula()) {
            BufferAnexos = Tabla(kCUOTA, 0);
        }
        bool cambiado = false;
        for (int k = 1; k <= kProductos; ++k) {
            cambiado = GuardarProducto(k) || cambiado;
        }
        if (cambiado) {
            MostrarProductos(lista);
        }
        return false;
    });
}

/// True when a line has come or gone.
bool cZTAnexos::GuardarProducto(int k) {
    const Figuras& figuras = m_figuras(k);
    const int fila = BuscarLinea(k);
    if (fila == 0) {
        // A negative figure keeps a line, but does not make one.
        if (figuras.SUMEX <= 0.0 && figuras.BASIM <= 0.0) {
            return false;
        }
        AnadirLinea(k);
        return true;
    }
    if (figuras.SUMEX == 0.0 && figuras.BASIM == 0.0) {
        QuitarAnexoProducto(k);
        return true;
    }
    PonerFiguras(fila, figuras);
    return false;
}

/// Row of the line of a product of the establishment on the screen; 0 when there is none.
int cZTAnexos::BuscarLinea(int k) const {
    for (int fila = 1; fila <= Lineas(BufferAnexos); ++fila) {
        if (BufferAnexos(kCSES, fila).aEntero32() == CSES && BufferAnexos(kProducto, fila).aEntero16() == k) {
            return fila;
        }
    }
    return 0;
}

void cZTAnexos::PonerFiguras(int fila, const Figuras& figuras) {
    BufferAnexos(kSUMEX, fila) = figuras.SUMEX;
    BufferAnexos(kBASIM, fila) = figuras.BASIM;
    BufferAnexos(kTIPIM, fila) = figuras.TIPIM;
    BufferAnexos(kCUOTA, fila) = figuras.CUOTA;
}

void cZTAnexos::AnadirLinea(int k) {
    const int fila = BufferAnexos.UltimaFila() + 1;
    BufferAnexos.RedimensionarFilas(fila);
    BufferAnexos(kCSDC, fila) = oDeclaraciones().CSDC;
    BufferAnexos(kCSES, fila) = CSES;
    BufferAnexos(kProducto, fila) = static_cast<qint16>(k);
    PonerFiguras(fila, m_figuras(k));
}

void cZTAnexos::QuitarAnexoProducto(int k) {
    Tabla quedan(kCUOTA, 0);
    for (int fila = 1; fila <= BufferAnexos.UltimaFila(); ++fila) {
        if (BufferAnexos(kProducto, fila).aEntero16() == k && BufferAnexos(kCSES, fila).aEntero32() == CSES) {
            continue;
        }
        const int nueva = quedan.UltimaFila() + 1;
        quedan.RedimensionarFilas(nueva);
        for (int columna = kCSAN; columna <= kCUOTA; ++columna) {
            quedan(columna, nueva) = BufferAnexos(columna, fila);
        }
    }
    BufferAnexos = std::move(quedan);
}

void cZTAnexos::MostrarProductos(ListaDeEstablecimientos& lista) const {
    const QString clave = QString::number(CSES);
    for (int i = 1; i <= lista.Cuenta(); ++i) {
        if (lista.Texto(i) == clave) {
            lista.PonerSubitem(i, kSubitemDeProductos, ProductosEstablecimiento(CSES));
        }
    }
}

void cZTAnexos::ObtenerAnexoEstab() {
    for (int fila = 1; fila <= Lineas(BufferAnexos); ++fila) {
        const qint16 k = BufferAnexos(kProducto, fila).aEntero16();
        if (BufferAnexos(kCSES, fila).aEntero32() == CSES && k >= 1 && k <= kProductos) {
            m_figuras(k) = {.SUMEX = BufferAnexos(kSUMEX, fila).aDoble(),
                            .BASIM = BufferAnexos(kBASIM, fila).aDoble(),
                            .TIPIM = BufferAnexos(kTIPIM, fila).aDoble(),
                            .CUOTA = BufferAnexos(kCUOTA, fila).aDoble()};
        }
    }
}

void cZTAnexos::ComprobarDiferenciasDeTipo() {
    const cZTDeclaraciones& declaracion = oDeclaraciones();
    vBufferTasas = LeerTasas(declaracion.Ejercicio, declaracion.Periodo);
    DiferenciasDeTipo = false;
    for (int k = 1; k <= kProductos; ++k) {
        const double d = declaracion.TIPIM(k) / kMillonesimas;
        DiferenciasDeTipo = Tasa(vBufferTasas, k).aDoble() != d || DiferenciasDeTipo;
    }
}

void cZTAnexos::ActualizarTipos() {
    for (int k = 1; k <= kProductos; ++k) {
        m_figuras(k).TIPIM = Tasa(vBufferTasas, k).aDoble();
    }
    for (int fila = 1; fila <= Lineas(BufferAnexos); ++fila) {
        const double t = Tasa(vBufferTasas, BufferAnexos(kProducto, fila).aEntero16()).aDoble();
        if (t != BufferAnexos(kTIPIM, fila).aDoble()) {
            BufferAnexos(kTIPIM, fila) = t;
            BufferAnexos(kCUOTA, fila) =
                t * (BufferAnexos(kBASIM, fila).aDoble() / kCentesimas) / kDivisorDeCuota;
        }
    }
}

void cZTAnexos::AplicarTasasPendientes() {
    if (Modificado && DiferenciasDeTipo) {
        ActualizarTipos();
        DiferenciasDeTipo = false;
    }
}

void cZTAnexos::TomarExento(int k, const QString& texto) {
    const double valor = BC(texto).aDoble();
    if (valor != SUMEX(k)) {
        SUMEX(k, valor);
        Modificado = true;
    }
    AplicarTasasPendientes();
}

void cZTAnexos::TomarBaseImp(int k, const QString& texto) {
    const double valor = BC(texto).aDoble();
    if (valor != BASIM(k)) {
        BASIM(k, valor);
        Modificado = true;
    }
    AplicarTasasPendientes();
    CalcularCuotas();
}

void cZTAnexos::CalcularCuotas() {
    for (int k = 1; k <= kProductos; ++k) {
        CUOTA(k, CuotaDe(BASIM(k), TIPIM(k)));
    }
}

double cZTAnexos::SumaCuotas() const {
    double suma = 0.0;
    for (int k = 1; k <= kProductos; ++k) {
        suma += CUOTA(k);
    }
    return suma;
}

bool cZTAnexos::GuardarDeclaracion() {
    svrZELT::cZTAnexos servidor = Servidor();
    const bool guardada = servidor.GuardarAnexos(BufferAnexos, vBufferTasas, oDeclaraciones().CSDC);
    CausaDelFallo = servidor.Causa;
    return guardada;
}

cZTAnexos& oAnexos() { return InstanciaUnica<cZTAnexos>(); }
