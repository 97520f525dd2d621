#include "core/printing/ValoresDeImpreso.h"

#include "core/base/Formatos.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/Productos.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/run/cZTFecha.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"

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
    return ServidorDeReferencia<svrZELT::cZTDatosGeneral>()
        .ObtenerNombreProvincia(codigo, kOffsetCastellano)
        .toUpper();
}

QString FechaEnAmbosIdiomas() {
    const qint32 fecha = oFecha().StringToLong(oImprimir().FechaPresentacion);
    const auto dia = static_cast<qint16>(fecha % kDias);
    return oFecha().LongToString(fecha, false, u"E"_s) + cZTFecha::SufijoFecha(dia) + u" /// "_s +
           oFecha().LongToString(fecha, false, u"C"_s);
}

}  // namespace impreso
