#include "core/records/cZTEstablecimientos.h"

#include "core/base/Instancias.h"
#include "core/base/Pantalla.h"
#include "core/records/CambioDeOtro.h"
#include "core/records/FormatoCIM.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/run/Entorno.h"
#include "core/run/Faltas.h"
#include "core/run/ProcedimientoInformado.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"

using namespace Qt::StringLiterals;

namespace {

using Fila = svrZELT::CamposDeEstablecimiento;

constexpr qsizetype kLargoDelCIM = 8;

template <class F>
auto Informado(const QString& procedimiento, F&& cuerpo) {
    return ProcedimientoInformado(u"cZTEstablecimientos"_s, u"cZTEstablecimientos."_s + procedimiento,
                                  std::forward<F>(cuerpo));
}

svrZELT::cZTEstablecimientos Servidor() { return ServidorDeUsuario<svrZELT::cZTEstablecimientos>(); }

}  // namespace

void cZTEstablecimientos::RellenarEstablecimientos() {
    Informado(u"RellenarEstablecimientos"_s,
              [this] { BufferEstablecimientos = Servidor().ObtenerEstablecimientos(oDeclarante().CSDE); });
}

void cZTEstablecimientos::EliminarEstablecimiento(qint32 lngCSES) const {
    Informado(u"EliminarEstablecimiento"_s, [&] {
        oEstablecimientos().CSES = lngCSES;
        Servidor().EliminarEstablecimiento(lngCSES);
    });
}

void cZTEstablecimientos::NumeroDeDeclaraciones() const {
    Informado(u"NumeroDeDeclaraciones"_s, [] {
        oListaDeclaraciones().NumDecla =
            Valor(Servidor().NumeroDeclaraciones(oDeclarante().CSDE)).aEntero16();
    });
}

void cZTEstablecimientos::InicializarDatos() {
    CSDE = oDeclarante().CSDE;
    if (Modo != kModoNuevo) {
        CargarEstablecimiento();
        return;
    }
    VaciarCampos(*this, Campos());
    Modificado = false;
}

void cZTEstablecimientos::CargarEstablecimiento() {
    Informado(u"CargarEstablecimiento"_s, [this] {
        Registro r;
        Servidor().CargarEstablecimiento(CSES, r, &m_leido);
        CargarCampos(*this, Campos(), r);
    });
}

bool cZTEstablecimientos::CIMRepetido() const {
    return Informado(u"CIMRepetido"_s, [this] { return Modo == kModoNuevo && Servidor().CIMRepetido(CIM); });
}

bool cZTEstablecimientos::ValidarDatos() const {
    return Informado(u"ValidarDatos"_s, [this] {
        Faltas faltas;
        const auto exigir = [&faltas](bool bien, qint16 orden, qint16 codigo) {
            if (!bien) {
                faltas.Anadir(orden, codigo);
            }
        };
        exigir(CIM.size() == kLargoDelCIM, 0, 15);
        exigir(ComprobarFormatoCIM(CIM), 1, 16);
        exigir(!CIMRepetido(), 2, 14);
        exigir(!Domicilio.isEmpty(), 3, 17);
        exigir(Provin != 0, 4, 5);
        exigir(!Munici.isEmpty(), 5, 8);
        if (faltas.Ninguna()) {
            return true;
        }
        Pantalla().MostrarListaErrores(faltas.Lista());
        return false;
    });
}

void cZTEstablecimientos::GuardaEstablecimiento() {
    Informado(u"GuardaEstablecimiento"_s, [this] {
        Registro r(Fila::kElementos);
        if (Modo != kModoNuevo) {
            r[Fila::kCSES] = CSES;
        }
        r[Fila::kCSDE] = CSDE;
        PonerCampos(*this, Campos(), r);
        qint32 clave = 0;
        if (!GuardarSalvoCambioDeOtro(u"cambio_establecimiento", u"cambio_titulo",
                                      [&] { clave = Servidor().GuardaEstablecimiento(r, &m_leido); })) {
            return;
        }
        if (Modo == kModoNuevo) {
            CSES = clave;
        }
        oEstablecimientos().Modificado = false;
    });
}

bool cZTEstablecimientos::EstablecimientosSinAnexos(qint32 lngNumCSES) {
    return Informado(u"CargarEstablecimiento"_s,
                     [&] { return Servidor().EstablecimientosSinAnexos(lngNumCSES); });
}

cZTEstablecimientos& oEstablecimientos() { return InstanciaUnica<cZTEstablecimientos>(); }
