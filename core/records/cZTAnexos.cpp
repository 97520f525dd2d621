#include "core/records/cZTAnexos.h"

#include "core/base/Instancias.h"
#include "core/base/Procedimiento.h"
#include "core/records/ListaDeEstablecimientos.h"
#include "core/records/ProductosDeLineas.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "core/services/Cuota.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"

namespace {

using Campos = svrZELT::CamposDeAnexo;
using Columna = cZTAnexos::Columna;

/// Between rate times base on the stored scale and the quota that a change of rates gives a line.
constexpr double kDivisorDeCuota = 100'000'000.0;

svrZELT::cZTAnexos Servidor() { return ServidorDeUsuario<svrZELT::cZTAnexos>(); }

/// Number of lines, in rows 1 to the result.
int Lineas(const Tabla& anexos) { return anexos.EsNula() ? 0 : anexos.UltimaFila(); }

}  // namespace

double cZTAnexos::SUMEX(int k) const { return m_figuras(k).SUMEX.Redondeado(); }
double cZTAnexos::BASIM(int k) const { return m_figuras(k).BASIM.Redondeado(); }
double cZTAnexos::TIPIM(int k) const { return m_figuras(k).TIPIM.Redondeado(); }
double cZTAnexos::CUOTA(int k) const { return m_figuras(k).CUOTA.Redondeado(); }

void cZTAnexos::SUMEX(int k, double valor) { m_figuras(k).SUMEX = Centesimas::DePublico(valor); }
void cZTAnexos::BASIM(int k, double valor) { m_figuras(k).BASIM = Centesimas::DePublico(valor); }
void cZTAnexos::TIPIM(int k, double valor) { m_figuras(k).TIPIM = Millonesimas::DePublico(valor); }
void cZTAnexos::CUOTA(int k, double valor) { m_figuras(k).CUOTA = Centesimas::DePublico(valor); }

void cZTAnexos::RellenarEstDecl() {
    Procedimiento(u"cZTAnexos.RellenarEstDecl", [this] {
        BufferEstDecl =
            ServidorDeUsuario<svrZELT::cZTEstablecimientos>().ObtenerEstablecimientos(oDeclarante().CSDE);
    });
}

QString cZTAnexos::ProductosEstablecimiento(qint32 lngCSES) const {
    return ProductosDeLineas(BufferAnexos).De(lngCSES);
}

void cZTAnexos::CargarAnexos() {
    Procedimiento(u"cZTAnexos.CargarAnexos",
                  [this] { BufferAnexos = Servidor().CargarAnexos(oDeclaraciones().CSDC, &m_leido); });
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
            BufferAnexos = Tabla(Campos::kUltimaColumna, 0);
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
        if (figuras.SUMEX <= Centesimas() && figuras.BASIM <= Centesimas()) {
            return false;
        }
        AnadirLinea(k);
        return true;
    }
    if (figuras.SUMEX == Centesimas() && figuras.BASIM == Centesimas()) {
        QuitarAnexoProducto(k);
        return true;
    }
    PonerLinea(fila, figuras);
    return false;
}

/// Row of the line of a product of the establishment on the screen; 0 when there is none.
int cZTAnexos::BuscarLinea(int k) const {
    for (int fila = 1; fila <= Lineas(BufferAnexos); ++fila) {
        if (BufferAnexos(Columna::kCSES, fila).aEntero32() == CSES &&
            BufferAnexos(Columna::kProducto, fila).aEntero16() == k) {
            return fila;
        }
    }
    return 0;
}

void cZTAnexos::PonerLinea(int fila, const Figuras& figuras) {
    PonerFiguras(figuras, [&](int figura) -> Valor& { return BufferAnexos(Campos::Lugar(figura), fila); });
}

void cZTAnexos::AnadirLinea(int k) {
    const int fila = BufferAnexos.UltimaFila() + 1;
    BufferAnexos.RedimensionarFilas(fila);
    BufferAnexos(Columna::kCSDC, fila) = oDeclaraciones().CSDC;
    BufferAnexos(Columna::kCSES, fila) = CSES;
    BufferAnexos(Columna::kProducto, fila) = static_cast<qint16>(k);
    PonerLinea(fila, m_figuras(k));
}

void cZTAnexos::QuitarAnexoProducto(int k) {
    Tabla quedan(Campos::kUltimaColumna, 0);
    for (int fila = 1; fila <= BufferAnexos.UltimaFila(); ++fila) {
        if (BufferAnexos(Columna::kProducto, fila).aEntero16() == k &&
            BufferAnexos(Columna::kCSES, fila).aEntero32() == CSES) {
            continue;
        }
        const int nueva = quedan.UltimaFila() + 1;
        quedan.RedimensionarFilas(nueva);
        for (int columna = 0; columna <= Campos::kUltimaColumna; ++columna) {
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
        const qint16 k = BufferAnexos(Columna::kProducto, fila).aEntero16();
        if (BufferAnexos(Columna::kCSES, fila).aEntero32() == CSES && k >= 1 && k <= kProductos) {
            m_figuras(k) = LeerFiguras(
                [&](int figura) -> const Valor& { return BufferAnexos(Campos::Lugar(figura), fila); });
        }
    }
}

void cZTAnexos::ComprobarDiferenciasDeTipo() {
    const cZTDeclaraciones& declaracion = oDeclaraciones();
    vBufferTasas = LeerTasas(declaracion.Ejercicio, declaracion.Periodo);
    DiferenciasDeTipo = false;
    for (int k = 1; k <= kProductos; ++k) {
        // The rate of the declaration is on its public scale already.
        const double d = Millonesimas(declaracion.TIPIM(k)).Publico();
        DiferenciasDeTipo = Tasa(vBufferTasas, k).aDoble() != d || DiferenciasDeTipo;
    }
}

void cZTAnexos::ActualizarTipos() {
    for (int k = 1; k <= kProductos; ++k) {
        Tomar(m_figuras(k).TIPIM, Tasa(vBufferTasas, k));
    }
    for (int fila = 1; fila <= Lineas(BufferAnexos); ++fila) {
        const double t = Tasa(vBufferTasas, BufferAnexos(Columna::kProducto, fila).aEntero16()).aDoble();
        if (t != BufferAnexos(Columna::kTIPIM, fila).aDoble()) {
            BufferAnexos(Columna::kTIPIM, fila) = t;
            BufferAnexos(Columna::kCUOTA, fila) =
                t * Centesimas(BufferAnexos(Columna::kBASIM, fila).aDoble()).Publico() / kDivisorDeCuota;
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
        m_figuras(k).CUOTA = CuotaDe(m_figuras(k).BASIM, m_figuras(k).TIPIM);
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
    const bool guardada = servidor.GuardarAnexos(BufferAnexos, vBufferTasas, oDeclaraciones().CSDC, &m_leido);
    CausaDelFallo = servidor.CambiadaPorOtro ? TextoPropio(u"cambio_anexos") : servidor.Causa;
    return guardada;
}

cZTAnexos& oAnexos() { return InstanciaUnica<cZTAnexos>(); }
