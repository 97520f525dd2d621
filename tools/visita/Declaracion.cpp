// The road of a return: declarant, establishments, declaration.

#include <QLabel>
#include <QTest>

#include "forms/runtime/Formularios.h"
#include "forms/widgets/ListaZT.h"
#include "tools/visita/Etapas.h"
#include "tools/visita/Exigir.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDeclarante = u"frmZTDeclarante";
constexpr auto kDeclarantes = u"frmZTListaDeclarantes";
constexpr auto kLista = u"frmZTListaDeclaraciones";
constexpr auto kEstablecimientos = u"frmZTListaEstablecimientos";
constexpr auto kEstablecimiento = u"frmZTEstablecimiento";
constexpr auto kDeclaracion = u"frmZTDeclaracion";
constexpr auto kAnexos = u"frmZTDetDeclaracion";

QString Nombre(const char16_t* formulario) { return QStringView(formulario).toString(); }

QString Titulo(const QString& paso, const DeclaranteDeEjemplo& ejemplo,
               const DeclaracionDeEjemplo& declaracion) {
    return paso + u'-' + ejemplo.clave + u'-' + declaracion.ejercicio;
}

/// Goes from the first item of a list to the first one that fits, by keys.
void IrA(ListaZT& lista, const std::function<bool(int)>& esta) {
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Home);
    for (int i = 1; !esta(i); ++i) {
        Exigir(i < lista.Cuenta(), u"no está en la lista"_s);
        QTest::keyClick(&lista, Qt::Key_Down);
    }
}

void NuevaDeclaracion(Mano& mano, const DeclaranteDeEjemplo& ejemplo,
                      const DeclaracionDeEjemplo& declaracion) {
    QWidget& lista = mano.EnPantalla(Nombre(kLista));
    mano.Pulsar(lista, u"cmdnuedecla"_s);
    mano.Teclear(lista, u"txtEjercicio"_s, declaracion.ejercicio);
    mano.Pulsar(lista, u"picPeriodo"_s);
    mano.Guardar(Titulo(u"17-nueva-declaracion"_s, ejemplo, declaracion));
    auto* periodos = lista.findChild<ListaZT*>(u"lsvPeriodos"_s);
    IrA(*periodos, [&declaracion](int i) { return i == declaracion.periodo; });
    QTest::keyClick(periodos, Qt::Key_Return);
    mano.Pulsar(lista, u"ImgNueva1"_s);
    Exigir(Formularios::Visible(Nombre(kDeclaracion)), u"la declaración no se ha creado"_s);
    mano.Guardar(Titulo(u"18-declaracion-nueva"_s, ejemplo, declaracion));
}

void Anexos(Mano& mano, const DeclaranteDeEjemplo& ejemplo, const DeclaracionDeEjemplo& declaracion) {
    mano.Pulsar(mano.EnPantalla(Nombre(kDeclaracion)), u"cmdDetalles"_s);
    QWidget& anexos = mano.EnPantalla(Nombre(kAnexos));
    auto* establecimientos = anexos.findChild<ListaZT*>(u"lsvEstablecimientos"_s);
    Qt::Key tecla = Qt::Key_Home;
    for (const std::vector<Casilla>& casillas : declaracion.establecimientos) {
        establecimientos->setFocus();
        QTest::keyClick(establecimientos, tecla);
        mano.Teclear(anexos, casillas);
        tecla = Qt::Key_Down;
    }
    mano.Guardar(Titulo(u"19-anexos"_s, ejemplo, declaracion));
    mano.Pulsar(anexos, u"cmdGuardarDeclaracion"_s);
    mano.Pulsar(anexos, u"cmdCerrarAnexo"_s);
}

void ComprobarTotal(const Mano& mano, const QString& total) {
    const QString visto =
        mano.EnPantalla(Nombre(kDeclaracion)).findChild<QLabel*>(u"lblCuotaTotal"_s)->text();
    Exigir(visto.contains(total), u"cuota total "_s + visto + u" en lugar de "_s + total);
}

}  // namespace

void NuevoDeclarante(Mano& mano, const DeclaranteDeEjemplo& ejemplo) {
    mano.Elegir(u"mnuNuedec"_s);
    QWidget& formulario = mano.EnPantalla(Nombre(kDeclarante));
    mano.Guardar(u"10-declarante-vacio"_s);
    mano.Teclear(formulario, ejemplo.casillas);
    mano.Guardar(u"11-declarante-"_s + ejemplo.clave);
    mano.Pulsar(formulario, u"picProvin"_s);
    mano.Guardar(u"12-declarante-lista"_s);
    QTest::keyClick(formulario.findChild<ListaZT*>(u"lsvProvin"_s), Qt::Key_Escape);
    mano.Pulsar(formulario, u"cmdAceptar"_s);
    Exigir(!Formularios::Cargado(Nombre(kDeclarante)), u"el declarante no se ha guardado"_s);

    mano.Elegir(u"mnuAbrDec"_s);
    QWidget& ventana = mano.EnPantalla(Nombre(kDeclarantes));
    auto* lista = ventana.findChild<ListaZT*>(u"lsvDeclarantes"_s);
    IrA(*lista, [&](int i) { return lista->Subitem(i, 1) == ejemplo.nif; });
    mano.Guardar(u"13-lista-declarantes-"_s + ejemplo.clave);
    mano.Pulsar(ventana, u"cmdAceptar"_s);
    mano.Guardar(u"14-lista-declaraciones-vacia"_s);
}

void NuevosEstablecimientos(Mano& mano, const DeclaranteDeEjemplo& ejemplo) {
    mano.Pulsar(mano.EnPantalla(Nombre(kLista)), u"cmdEstablecimientos"_s);
    for (const EstablecimientoDeEjemplo& establecimiento : ejemplo.establecimientos) {
        mano.Pulsar(mano.EnPantalla(Nombre(kEstablecimientos)), u"cmdNuevo"_s);
        QWidget& formulario = mano.EnPantalla(Nombre(kEstablecimiento));
        mano.Teclear(formulario, {{u"txtCIM"_s, establecimiento.cim},
                                  {u"txtDomicilio"_s, establecimiento.domicilio},
                                  {u"txtProvin"_s, u"20"_s},
                                  {u"txtMuni"_s, u"5"_s}});
        mano.Guardar(u"15-establecimiento"_s);
        mano.Pulsar(formulario, u"cmdAceptar"_s);
        Exigir(!Formularios::Cargado(Nombre(kEstablecimiento)), u"el establecimiento no se ha guardado"_s);
    }
    mano.Guardar(u"16-lista-establecimientos-"_s + ejemplo.clave);
    mano.Pulsar(mano.EnPantalla(Nombre(kEstablecimientos)), u"cmdCerrarLista"_s);
}

void Declarar(Mano& mano, const DeclaranteDeEjemplo& ejemplo, const DeclaracionDeEjemplo& declaracion) {
    NuevaDeclaracion(mano, ejemplo, declaracion);
    Anexos(mano, ejemplo, declaracion);
    ComprobarTotal(mano, declaracion.total);
    mano.Guardar(Titulo(u"20-declaracion"_s, ejemplo, declaracion));
    mano.Pulsar(mano.EnPantalla(Nombre(kDeclaracion)), u"cmdCerrarDec"_s);

    // What the store gives back is what was keyed.
    QWidget& ventana = mano.EnPantalla(Nombre(kLista));
    auto* lista = ventana.findChild<ListaZT*>(u"lsvDeclaraciones"_s);
    IrA(*lista, [&](int i) { return lista->Subitem(i, 1) == declaracion.ejercicio; });
    mano.Pulsar(ventana, u"cmddatdecla"_s);
    ComprobarTotal(mano, declaracion.total);
    mano.Pulsar(mano.EnPantalla(Nombre(kDeclaracion)), u"cmdCerrarDec"_s);
    mano.Guardar(u"21-lista-declaraciones-"_s + ejemplo.clave);
}

void Imprimir(Mano& mano, const DeclaranteDeEjemplo& ejemplo, const DeclaracionDeEjemplo& declaracion) {
    QWidget& ventana = mano.EnPantalla(Nombre(kLista));
    auto* lista = ventana.findChild<ListaZT*>(u"lsvDeclaraciones"_s);
    IrA(*lista, [&](int i) { return lista->Subitem(i, 1) == declaracion.ejercicio; });
    mano.CuandoAparezca(u"frmZTImp"_s, [&](QWidget& imprimir) {
        for (const QString& ejemplar : {u"chkBor"_s, u"chkint"_s, u"chkadm"_s, u"chkEntBan"_s}) {
            mano.Pulsar(imprimir, ejemplar);
        }
        mano.Guardar(Titulo(u"22-imprimir"_s, ejemplo, declaracion));
        mano.CuandoAparezca(u"frmZTMsgBox"_s, [&](QWidget& aviso) {
            mano.Guardar(Titulo(u"23-impreso"_s, ejemplo, declaracion));
            mano.Pulsar(aviso, u"cmdAceptar"_s);
        });
        mano.Pulsar(imprimir, u"cmdAceptar"_s);
    });
    mano.Pulsar(ventana, u"cmdImpOfi"_s);
}

void CerrarDeclarante(Mano& mano) { mano.Pulsar(mano.EnPantalla(Nombre(kLista)), u"cmdCerrarDec"_s); }
