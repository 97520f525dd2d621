#include "printing/ValoresDeImpreso.h"

#include "base/Formatos.h"
#include "data/svrZELT/cZTDatosGeneral.h"
#include "declarants/cZTDeclarante.h"
#include "declarations/Productos.h"
#include "printing/cZTImprimir.h"
#include "shell/Entorno.h"
#include "shell/GeneralZT.h"
#include "shell/cZTFecha.h"

using namespace Qt::StringLiterals;

namespace impreso {

namespace {

/// A date is YYYYMMDD.
constexpr qint32 kDias = 100;

}  // namespace

QString Importe(double importe) { return Formatear(importe, kMascaraImporte); }

QString ImporteOBlanco(double importe) { return Formatear(CB(importe), kMascaraImporte); }

QString ViaPublica() { return oDeclarante().Siglas + u"/ "_s + oDeclarante().Domicilio; }

QString NumeroDeCasa() { return CB(oDeclarante().Numero).aTexto(); }

QString Telefono() { return CB(oDeclarante().Telepre).aTexto() + u' ' + CB(oDeclarante().TelNum).aTexto(); }

QString ProvinciaDelDeclarante() { return NombreDeProvincia(oDeclarante().Provin); }

QString NombreDeProvincia(qint16 codigo) {
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdblec = Entorno().mdblec;
    return servidor.ObtenerNombreProvincia(codigo, kOffsetCastellano).toUpper();
}

QString FechaEnAmbosIdiomas() {
    const qint32 fecha = oFecha().StringToLong(oImprimir().FechaPresentacion);
    const auto dia = static_cast<qint16>(fecha % kDias);
    return oFecha().LongToString(fecha, false, u"E"_s) + cZTFecha::SufijoFecha(dia) + u" /// "_s +
           oFecha().LongToString(fecha, false, u"C"_s);
}

}  // namespace impreso
