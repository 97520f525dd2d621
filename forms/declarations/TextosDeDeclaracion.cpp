#include "forms/declarations/TextosDeDeclaracion.h"

#include <QLabel>

#include "core/records/Productos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/FamiliaDeControles.h"

using namespace Qt::StringLiterals;

void PonerTextosDeDeclaracion(const QWidget& formulario) {
    const auto poner = [&formulario](const QString& etiqueta, const QString& texto) {
        ElControl<QLabel>(formulario, etiqueta).setText(texto);
    };
    const cZTDeclaraciones& declaracion = oDeclaraciones();
    poner(u"lblDatosDte"_s, Texto(Id::DatosDelDeclarante));
    poner(u"lblDeclarante"_s, Texto(Id::MenuDeclarante) + u':');
    poner(u"lblDec"_s, oDeclarante().Nombre);
    poner(u"lblNIF"_s, Texto(Id::NIF) + u':');
    poner(u"lblDNI"_s, oDeclarante().NIF);
    poner(u"lblDatosDeclaracion"_s, Texto(Id::DatosDeclaracion));
    poner(u"lblEjercicio"_s, Texto(Id::Ejercicio) + u':');
    poner(u"lblEjer"_s, QString::number(declaracion.Ejercicio));
    poner(u"lblPeriodo"_s, Texto(Id::Periodo) + u':');
    poner(u"lblPer"_s, DameStringPeriodo(declaracion.Periodo));
    poner(u"lblExento"_s, Texto(Id::Exento));
    poner(u"lblBaseImp"_s, Texto(Id::BaseImponible));
    poner(u"lblTipo"_s, Texto(Id::Tipo));
    poner(u"lblCuota"_s, Texto(Id::Cuota));
    const FamiliaDeControles<QLabel> productos(formulario, u"lblProducto");
    for (int k = 1; k <= kProductos; ++k) {
        productos(k).setText(ProductoEnUso(k, declaracion.Ejercicio) ? Texto(TextoDeProducto(k)) : QString());
    }
}

int AnchoDeImporte(const QWidget& control) {
    return control.fontMetrics().horizontalAdvance(u"  -99.999.999.999,99  "_s);
}

int AnchoDeTipo(const QWidget& control) {
    return control.fontMetrics().horizontalAdvance(u"  99,999999  "_s);
}
