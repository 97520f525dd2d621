#include "core/records/cZTDeclarante.h"

#include "core/base/Formatos.h"
#include "core/base/Instancias.h"
#include "core/base/Pantalla.h"
#include "core/records/CambioDeOtro.h"
#include "core/run/Entorno.h"
#include "core/run/Faltas.h"
#include "core/run/ProcedimientoInformado.h"
#include "core/services/SvrKLComunLib/cMiscelaneos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/services/svrZELT/cZTDeclarante.h"

using namespace Qt::StringLiterals;

namespace {

using Fila = svrZELT::CamposDeDeclarante;

template <class F>
auto Informado(const QString& nombre, F&& cuerpo) {
    return ProcedimientoInformado(u"cZTDeclarante"_s, nombre, std::forward<F>(cuerpo));
}

svrZELT::cZTDeclarante Servidor() { return ServidorDeUsuario<svrZELT::cZTDeclarante>(); }

svrZELT::cZTDeclaraciones ServidorDeDeclaraciones() { return ServidorDeUsuario<svrZELT::cZTDeclaraciones>(); }

QString CodigoPostal(qint32 cpost) { return Formatear(Valor(cpost), u"00000"); }

}  // namespace

void cZTDeclarante::Vaciar() {
    const qint32 modo = Modo;
    const qint32 procedencia = Procedencia;
    *this = cZTDeclarante();
    Modo = modo;
    Procedencia = procedencia;
    Siglas = u"CL"_s;
    Provin = kProvinciaPropia;
}

void cZTDeclarante::InicializaDatos() {
    Informado(u"cDeclarante.InicializaDatos"_s, [this] {
        Modificado = false;
        if (Modo == kModoExistente) {
            CargarDeclarante(oDeclarante().CSDE);
        } else if (Modo == kModoNuevo) {
            Vaciar();
        }
    });
}

void cZTDeclarante::CargarDeclarante(qint32 csde) {
    Informado(u"cDeclarante.CargarDeclarante"_s, [&] {
        Registro r;
        Servidor().CargarDeclarante(csde, r, &m_leido);
        CargarCampos(*this, Campos(), r);
    });
}

qint32 cZTDeclarante::GuardarDeclarante() {
    return Informado(u"cDeclarante.GuardarDeclarante"_s, [this] {
        Registro r(Fila::kElementos);
        if (Modo != kModoNuevo) {
            r[Fila::kCSDE] = CSDE;
        }
        PonerCampos(*this, Campos(), r);
        qint32 clave = 0;
        if (GuardarSalvoCambioDeOtro(u"cambio_declarante", u"cambio_titulo",
                                     [&] { clave = Servidor().GuardarDeclarante(r, &m_leido); })) {
            oDeclarante().Modificado = false;
        }
        return clave;
    });
}

qint32 cZTDeclarante::NifRepetido(const QString& nif) { return Servidor().NifRepetido(nif); }

bool cZTDeclarante::EsElDe(qint32 CSDE, const QString& NIF) {
    Registro guardado;
    Servidor().CargarDeclarante(CSDE, guardado);
    return Elemento(guardado, svrZELT::CamposDeDeclarante::kNIF).aTexto() == NIF;
}

bool cZTDeclarante::ValidarDatos() const {
    return Informado(u"cDeclarante.ValidarDatos"_s, [this] {
        Faltas faltas;
        const auto exigir = [&faltas](bool bien, qint16 orden, qint16 codigo) {
            if (!bien) {
                faltas.Anadir(orden, codigo);
            }
        };
        const QString postal = CodigoPostal(CPost);
        exigir(SvrKLComunLib::cMiscelaneos().ValidaNifCif(NIF), 1, 0);
        exigir(oDeclarante().Modo != kModoNuevo || NifRepetido(oDeclarante().NIF) <= 0, 6, 3);
        exigir(!Nombre.isEmpty(), 7, 1);
        exigir(!Domicilio.isEmpty(), 8, 2);
        exigir(!Siglas.isEmpty(), 9, 4);
        // The words of the repeated NIF: docs/reglas.md, provincia-con-texto-de-nif.
        exigir(Provin != 0, 10, 3);
        exigir(CPost != 0 && postal.size() >= 5, 11, 6);
        exigir(postal.left(2) == Formatear(Valor(Provin), u"00"), 12, 7);
        exigir(!Munici.isEmpty(), 13, 8);
        // See docs/reglas.md, telefono-sin-sitio.
        if (QString::number(TelNum).size() > 6 && QString::number(Telepre).size() > 2) {
            faltas.AnadirSinCrecer(9, 18);
        }
        if (faltas.Ninguna()) {
            return true;
        }
        Pantalla().MostrarListaErrores(faltas.Lista());
        return false;
    });
}

void cZTDeclarante::EliminarDeclarante() const {
    Informado(u"cDeclarante.EliminarDeclarante"_s, [this] { Servidor().EliminarDeclarante(CSDE); });
}

bool cZTDeclarante::TieneDeclaraciones() const {
    return Informado(u"cDeclarante.TieneDeclaraciones"_s,
                     [this] { return ServidorDeDeclaraciones().TieneDeclaraciones(CSDE); });
}

bool cZTDeclarante::TieneEstablecimientos() const {
    return Informado(u"cDeclarante.TieneEstablecimientos"_s,
                     [this] { return ServidorDeDeclaraciones().TieneEstablecimientos(CSDE); });
}

cZTDeclarante& oDeclarante() { return InstanciaUnica<cZTDeclarante>(); }
