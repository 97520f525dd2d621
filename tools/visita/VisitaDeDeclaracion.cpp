// The road of a return: a company with two establishments, all six products in the first quarter of 2002 and
// three in the second of 2007.

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "establishments/FormatoCIM.h"
#include "shell/Formularios.h"
#include "shell/ListaZT.h"
#include "shell/MDIZT.h"
#include "tools/visita/Exigir.h"
#include "tools/visita/Visita.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDeclarante = u"frmZTDeclarante";
constexpr auto kLista = u"frmZTListaDeclaraciones";
constexpr auto kEstablecimientos = u"frmZTListaEstablecimientos";
constexpr auto kEstablecimiento = u"frmZTEstablecimiento";
constexpr auto kDeclaracion = u"frmZTDeclaracion";
constexpr auto kAnexos = u"frmZTDetDeclaracion";

QString Nombre(const char16_t* formulario) { return QStringView(formulario).toString(); }

QString CimBueno(const QString& primeros) { return primeros + LetraDeControlCIM(primeros); }

}  // namespace

QWidget& Visita::EnPantalla(const QString& nombre) const {
    Exigir(Formularios::Visible(nombre), u"falta la pantalla "_s + nombre);
    return Formularios::Obtener(nombre).Ventana();
}

void Visita::Teclear(QWidget& formulario, const QString& caja, const QString& texto) const {
    auto* control = formulario.findChild<QLineEdit*>(caja);
    Exigir(control != nullptr, caja);
    control->setFocus();
    control->selectAll();
    QTest::keyClicks(control, texto);
    QTest::keyClick(control, Qt::Key_Tab);
}

void Visita::Pulsar(QWidget& formulario, const QString& boton) const {
    auto* control = formulario.findChild<QAbstractButton*>(boton);
    Exigir(control != nullptr && control->isEnabled(), boton);
    QTest::mouseClick(control, Qt::LeftButton);
}

void Visita::NuevoDeclarante() {
    ElFormulario<MDIZT>().findChild<QAction*>(u"mnuNuedec"_s)->trigger();
    QWidget& formulario = EnPantalla(Nombre(kDeclarante));
    Guardar(u"10-declarante-vacio"_s);
    for (const Casilla& casilla : {Casilla{u"txtNIF"_s, u"b20000113"_s},
                                   {u"txtNombre"_s, u"carburantes larzabaleta, s.l."_s},
                                   {u"txtSiglas"_s, u"cr"_s},
                                   {u"txtViaPub"_s, u"del puerto"_s},
                                   {u"txtNumero"_s, u"14"_s},
                                   {u"txtPiso"_s, u"1"_s},
                                   {u"txtMano"_s, u"izq"_s},
                                   {u"txtProvin"_s, u"20"_s},
                                   {u"txtCPost"_s, u"20015"_s},
                                   {u"txtMuni"_s, u"5"_s},
                                   {u"txtTelPre"_s, u"943"_s},
                                   {u"txtTelNum"_s, u"123456"_s}}) {
        Teclear(formulario, casilla.nombre, casilla.texto);
    }
    Guardar(u"11-declarante"_s);
    Pulsar(formulario, u"picProvin"_s);
    Guardar(u"12-declarante-lista"_s);
    QTest::keyClick(formulario.findChild<ListaZT*>(u"lsvProvin"_s), Qt::Key_Escape);
    Pulsar(formulario, u"cmdAceptar"_s);
    Exigir(!Formularios::Cargado(Nombre(kDeclarante)), u"el declarante no se ha guardado"_s);

    ElFormulario<MDIZT>().findChild<QAction*>(u"mnuAbrDec"_s)->trigger();
    QWidget& lista = EnPantalla(u"frmZTListaDeclarantes"_s);
    Guardar(u"13-lista-declarantes"_s);
    Pulsar(lista, u"cmdAceptar"_s);
    Guardar(u"14-lista-declaraciones-vacia"_s);
}

void Visita::NuevosEstablecimientos() {
    Pulsar(EnPantalla(Nombre(kLista)), u"cmdEstablecimientos"_s);
    for (const auto& [cim, domicilio] : {std::pair{u"20ES123"_s, u"carretera del puerto, km 2"_s},
                                         {u"20ES124"_s, u"avenida de la sierra, 40"_s}}) {
        Pulsar(EnPantalla(Nombre(kEstablecimientos)), u"cmdNuevo"_s);
        QWidget& formulario = EnPantalla(Nombre(kEstablecimiento));
        Teclear(formulario, u"txtCIM"_s, CimBueno(cim));
        Teclear(formulario, u"txtDomicilio"_s, domicilio);
        Teclear(formulario, u"txtProvin"_s, u"20"_s);
        Teclear(formulario, u"txtMuni"_s, u"5"_s);
        Guardar(u"15-establecimiento"_s);
        Pulsar(formulario, u"cmdAceptar"_s);
        Exigir(!Formularios::Cargado(Nombre(kEstablecimiento)), u"el establecimiento no se ha guardado"_s);
    }
    Guardar(u"16-lista-establecimientos"_s);
    Pulsar(EnPantalla(Nombre(kEstablecimientos)), u"cmdCerrarLista"_s);
}

void Visita::Declarar(const Ejemplo& ejemplo) {
    NuevaDeclaracion(ejemplo);
    Anexos(ejemplo);
    Comprobar(ejemplo.total);
    Guardar(u"20-declaracion-"_s + ejemplo.ejercicio);
    Pulsar(EnPantalla(Nombre(kDeclaracion)), u"cmdCerrarDec"_s);
    // What the store gives back is what was keyed.
    Pulsar(EnPantalla(Nombre(kLista)), u"cmddatdecla"_s);
    Comprobar(ejemplo.total);
    Pulsar(EnPantalla(Nombre(kDeclaracion)), u"cmdCerrarDec"_s);
}

void Visita::NuevaDeclaracion(const Ejemplo& ejemplo) {
    QWidget& lista = EnPantalla(Nombre(kLista));
    Pulsar(lista, u"cmdnuedecla"_s);
    Teclear(lista, u"txtEjercicio"_s, ejemplo.ejercicio);
    Pulsar(lista, u"picPeriodo"_s);
    Guardar(u"17-nueva-declaracion-"_s + ejemplo.ejercicio);
    auto* periodos = lista.findChild<ListaZT*>(u"lsvPeriodos"_s);
    periodos->Seleccionar(ejemplo.periodo);
    QTest::keyClick(periodos, Qt::Key_Return);
    Pulsar(lista, u"ImgNueva1"_s);
    Exigir(Formularios::Visible(Nombre(kDeclaracion)), u"la declaración no se ha creado"_s);
    Guardar(u"18-declaracion-nueva-"_s + ejemplo.ejercicio);
}

void Visita::Anexos(const Ejemplo& ejemplo) {
    Pulsar(EnPantalla(Nombre(kDeclaracion)), u"cmdDetalles"_s);
    QWidget& anexos = EnPantalla(Nombre(kAnexos));
    auto* establecimientos = anexos.findChild<ListaZT*>(u"lsvEstablecimientos"_s);
    int tecla = Qt::Key_Home;
    for (const std::vector<Casilla>& casillas : ejemplo.establecimientos) {
        establecimientos->setFocus();
        QTest::keyClick(establecimientos, static_cast<Qt::Key>(tecla));
        for (const Casilla& casilla : casillas) {
            Teclear(anexos, casilla.nombre, casilla.texto);
        }
        tecla = Qt::Key_Down;
    }
    Guardar(u"19-anexos-"_s + ejemplo.ejercicio);
    Pulsar(anexos, u"cmdGuardarDeclaracion"_s);
    Pulsar(anexos, u"cmdCerrarAnexo"_s);
}

void Visita::Declaraciones() {
    // All six products of 2002: 24 x 15 + 24 x 10 + 6 x 10 + 1 x 10 + 24 x 10 + 6 x 7.
    Declarar({.ejercicio = u"2002"_s,
              .periodo = 1,
              .establecimientos = {{{u"cnuBaseImp1"_s, u"10"_s},
                                    {u"cnuBaseImp2"_s, u"10"_s},
                                    {u"cnuBaseImp3"_s, u"10"_s},
                                    {u"cnuBaseImp4"_s, u"10"_s},
                                    {u"cnuBaseImp5"_s, u"10"_s}},
                                   {{u"cnuBaseImp1"_s, u"5"_s}, {u"cnuBaseImp6"_s, u"7"_s}}},
              .total = u"952,00"_s});
    // 24 x 200,50 + 24 x 310,25 + 6 x 45,75.
    Declarar({.ejercicio = u"2007"_s,
              .periodo = 2,
              .establecimientos = {{{u"cnuBaseImp1"_s, u"120,5"_s}, {u"cnuBaseImp2"_s, u"310,25"_s}},
                                   {{u"cnuExento1"_s, u"12,5"_s},
                                    {u"cnuBaseImp1"_s, u"80"_s},
                                    {u"cnuBaseImp3"_s, u"45,75"_s}}},
              .total = u"12.532,50"_s});
    Guardar(u"21-lista-declaraciones"_s);
    Pulsar(EnPantalla(Nombre(kLista)), u"cmdCerrarDec"_s);
}

void Visita::Comprobar(const QString& total) {
    const QString visto = EnPantalla(Nombre(kDeclaracion)).findChild<QLabel*>(u"lblCuotaTotal"_s)->text();
    Exigir(visto.contains(total), u"cuota total "_s + visto + u" en lugar de "_s + total);
}
