#include "core/records/cZTNuevaDec.h"

#include "core/base/Conversiones.h"
#include "core/base/Instancias.h"
#include "core/base/Modelo.h"
#include "core/base/Pantalla.h"
#include "core/base/Procedimiento.h"
#include "core/records/ListaDeTrimestres.h"
#include "core/records/Tasas.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/run/Entorno.h"
#include "core/run/Faltas.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kCifrasDeUnAno = 4;
/// What the column of quarters is narrower than its list, in twips.
constexpr int kMargenDeColumna = 240;

svrZELT::cZTDeclaraciones Servidor() { return ServidorDeUsuario<svrZELT::cZTDeclaraciones>(); }

void Avisar(const QString& texto) { Mensaje(texto, Texto(Id::PerderModificaciones), true); }

void AvisarDelLimite(Id idTexto, qint16 limite) {
    const QString texto = Texto(idTexto);
    const QString ano = QString::number(limite);
    Avisar(IDI(texto + u' ' + ano, u"Ekitaldia "_s + ano + texto));
}

/// A number of the list of declarations.
qint16 Numero(const Valor& valor) { return Valor(valor.aTexto().trimmed()).aEntero16(); }

}  // namespace

void cZTNuevaDec::InicializaDatos() {
    Periodo = 0;
    Ejercicio = 0;
}

void cZTNuevaDec::CargaPeriodos(ListaDeTrimestres& lista) const {
    Procedimiento(u"cNuevaDec.CargaPeriodos", [&] {
        lista.Limpiar();
        lista.LimpiarColumnas();
        lista.AnadirColumna(u"periodo"_s, lista.Ancho() - kMargenDeColumna);
        lista.PermitirReordenarColumnas();
        for (qint16 periodo = 1; periodo <= kTrimestres; ++periodo) {
            const QString texto = DameStringPeriodo(periodo);
            lista.Anadir(u'c' + QString::number(periodo) + texto, texto);
        }
    });
}

void cZTNuevaDec::ObtPeriodo(const QString& strPeriodo) { Periodo = ObtenerPeriodo(strPeriodo).aEntero16(); }

void cZTNuevaDec::Sugerencia() {
    Procedimiento(u"cNuevaDec.Sugerencia", [this] {
        const Tabla& declaraciones = oListaDeclaraciones().BufferDeclaraciones;
        if (declaraciones.EsNula()) {
            return;
        }
        const int ultima = declaraciones.UltimaFila();
        const qint16 y = Numero(declaraciones(cZTListaDeclaraciones::Columna::kEjercicio, ultima));
        const qint16 p = Numero(declaraciones(cZTListaDeclaraciones::Columna::kPeriodo, ultima));
        const EntornoZT& e = Entorno();
        Ejercicio = 0;
        Periodo = 0;
        if (y < e.EjercicioMinimo || y > e.EjercicioMaximo) {
            return;
        }
        if (p < kTrimestres) {
            Ejercicio = y;
            Periodo = static_cast<qint16>(p + 1);
        } else if (y < e.EjercicioMaximo) {
            Ejercicio = static_cast<qint16>(y + 1);
            Periodo = 1;
        }
    });
}

CambioDeEjercicio cZTNuevaDec::ComprobarEjercicio(const QString& texto) {
    if (texto.size() != kCifrasDeUnAno) {
        Ejercicio = BC(texto).aEntero16();
        return CambioDeEjercicio::Tomado;
    }
    const EntornoZT& e = Entorno();
    const qint16 a = DobleAEntero16(ValorInicial(texto));
    if (a > e.EjercicioMaximo || a < e.EjercicioMinimo) {
        if (a > e.EjercicioMaximo) {
            AvisarDelLimite(Id::EjercicioMaximo, e.EjercicioMaximo);
        } else {
            AvisarDelLimite(Id::EjercicioMinimo, e.EjercicioMinimo);
        }
        Ejercicio = 0;
        return CambioDeEjercicio::Rechazado;
    }
    if (a == Ejercicio) {
        return CambioDeEjercicio::Ninguno;
    }
    Ejercicio = a;
    return CambioDeEjercicio::Tomado;
}

bool cZTNuevaDec::ValidarPeriodo(const QString& strPeriodo) const {
    const EntornoZT& e = Entorno();
    if (Ejercicio != e.EjercicioMaximo || ObtenerPeriodo(strPeriodo).aEntero16() <= e.PeriodoMaximo) {
        return true;
    }
    Avisar(Texto(Id::PeriodoMaximo) + u' ' + DameStringPeriodo(e.PeriodoMaximo));
    return false;
}

bool cZTNuevaDec::ValidarDatos() const {
    return Procedimiento(u"cNuevaDec.ValidarDatos", [this] {
        Faltas faltas;
        if (Ejercicio == 0) {
            faltas.Anadir(1, 11);
        }
        if (Periodo == 0) {
            faltas.Anadir(2, 12);
        }
        if (DecDuplicadas()) {
            faltas.Anadir(5, 13);
        }
        if (faltas.Ninguna()) {
            return true;
        }
        Pantalla().MostrarListaErrores(faltas.Lista());
        return false;
    });
}

qint32 cZTNuevaDec::GuardarDeclaracion() const {
    return Procedimiento(u"cNuevaDec.GuardarDeclaracion", [this] {
        const Tasas tasas = LeerTasas(oNuevaDec().Ejercicio, oNuevaDec().Periodo);
        Registro registro{oDeclarante().CSDE, Ejercicio, Periodo};
        for (int k = 1; k <= kProductos; ++k) {
            registro.push_back(Tasa(tasas, k));
        }
        return Servidor().GuardarDeclaraciones(registro);
    });
}

bool cZTNuevaDec::DecDuplicadas() const {
    return Procedimiento(u"cNuevaDec.DecDuplicadas",
                         [this] { return Servidor().DecDuplicadas(oDeclarante().CSDE, Ejercicio, Periodo); });
}

cZTNuevaDec& oNuevaDec() { return InstanciaUnica<cZTNuevaDec>(); }
