#include "core/printing/Ejemplares.h"

#include <QStringList>
#include <array>

#include "core/printing/OperacionesDeImpreso.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/cZTDeclarante.h"

using namespace Qt::StringLiterals;

namespace impreso {

namespace {

struct Ejemplar {
    QStringView etiqueta;
    QStringView documento;
};

/// By `TipoDeEjemplar`.
constexpr std::array kEjemplares{
    Ejemplar{u"ZIRRIBORROA / BORRADOR", u"borrador"},
    Ejemplar{u"ADMINISTRAZIOARENTZAKO ALEA / EJEMPLAR PARA LA ADMINISTRACION", u"administracion"},
    Ejemplar{u"AITORTZAILEAREN ALEA / EJEMPLAR PARA EL INTERESADO", u"interesado"},
    Ejemplar{u"BANKUARENTZAKO ALEA / EJEMPLAR PARA LA ENTIDAD BANCARIA", u"entidad-bancaria"}};

constexpr double kIzquierda = 12;
constexpr double kAncho = 180;

const Ejemplar& De(TipoDeEjemplar Tipo) { return kEjemplares.at(static_cast<std::size_t>(Tipo)); }

}  // namespace

void ImprimirEtiqueta(TipoDeEjemplar Tipo, double y) {
    TextoCentrado(kIzquierda, y, kAncho, De(Tipo).etiqueta.toString());
}

QString NombreDeEjemplar(TipoDeEjemplar Tipo) {
    QStringList partes{u"569"_s, oDeclarante().NIF, QString::number(oImprimir().Ejercicio),
                       QString::number(oImprimir().Periodo) + u'T', De(Tipo).documento.toString()};
    partes.removeAll(QString());
    return partes.join(u'_');
}

}  // namespace impreso
