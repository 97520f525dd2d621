// The list of declarations and the ways out of it. Its panel for a new declaration has tests of its own.

#include "forms/declarations/frmZTListaDeclaraciones.h"

#include "core/printing/cZTImprimir.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "forms/declarants/frmZTDeclarante.h"
#include "forms/declarations/frmZTDeclaracion.h"
#include "forms/establishments/frmZTListaEstablecimientos.h"
#include "forms/widgets/EtiquetaColumna.h"
#include "tests/support/PruebaDeDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList kConDeclaracion{u"cmddatdecla"_s, u"cmdeli"_s, u"cmdImpOfi"_s};
const QStringList kSiempre{u"cmdnuedecla"_s, u"cmdCerrarDec"_s, u"cmdDte"_s};

class frmZTListaDeclaracionesTest : public PruebaDeDeclaraciones {
  protected:
    void AbrirLista() { Abrir(frmZTListaDeclaraciones::kNombre); }
    /// Unloads the list and shows it again.
    void AbrirDeNuevo() {
        Formularios::Descargar(frmZTListaDeclaraciones::kNombre.toString());
        AbrirLista();
    }

    /// Four declarations; the third is that of the second quarter of 2007.
    void HacerCuatro() {
        primera = NuevaDeclaracion(2005, 4);
        NuevaDeclaracion(2006, 1);
        tercera = NuevaDeclaracion(2007, 2);
        ultima = NuevaDeclaracion(2007, 3);
    }

    [[nodiscard]] ListaZT& Declaraciones() const { return Lista(u"lsvDeclaraciones"_s); }
    /// Number of the item that is selected and shown so.
    [[nodiscard]] int Marcada() const {
        const int i = Declaraciones().Seleccionado();
        return Declaraciones().Marcado(i) ? i : 0;
    }
    void EsperarHabilitados(const QStringList& controles, bool habilitados) const {
        for (const QString& nombre : controles) {
            EXPECT_EQ(Habilitado(nombre), habilitados) << nombre.toStdString();
        }
    }
    static void EsperarAbierta(qint32 csdc, qint16 ejercicio, qint16 periodo) {
        EXPECT_FALSE(Abierto(frmZTListaDeclaraciones::kNombre));
        EXPECT_TRUE(Formularios::Visible(frmZTDeclaracion::kNombre.toString()));
        EXPECT_EQ(oDeclaraciones().Modo, cZTDeclaraciones::kModoExistente);
        EXPECT_EQ(oDeclaraciones().CSDC, csdc);
        EXPECT_EQ(oDeclaraciones().Ejercicio, ejercicio);
        EXPECT_EQ(oDeclaraciones().Periodo, periodo);
        EXPECT_EQ(oDeclaraciones().TIPIM(1), 24.0);
    }

    qint32 primera = 0;
    qint32 tercera = 0;
    qint32 ultima = 0;
};

}  // namespace

TEST_F(frmZTListaDeclaracionesTest, CaptionsAreInTheLanguageInForceAndTheDeclarantIsPlainText) {
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirDeNuevo();
        EXPECT_EQ(formulario->windowTitle(), Texto(75));
        EsperarTextos({{u"lblDatosDte"_s, Texto(74)},
                       {u"lblDeclarante"_s, Texto(60) + u':'},
                       {u"lblDec"_s, u"GASOLINERA & HIJOS"_s},
                       {u"lblNIF"_s, Texto(59) + u':'},
                       {u"lblDNI"_s, u"12345678Z"_s},
                       {u"lblEjercicio"_s, Texto(37)},
                       {u"lblPeriodo"_s, Texto(38)},
                       {u"lblCuota"_s, Texto(189)},
                       {u"cmdnuedecla"_s, Texto(164)},
                       {u"cmddatdecla"_s, Texto(165)},
                       {u"cmdeli"_s, Texto(30)},
                       {u"cmdImpOfi"_s, Texto(14)},
                       {u"cmdDte"_s, Texto(2)},
                       {u"cmdEstablecimientos"_s, Texto(190)},
                       {u"cmdCerrarDec"_s, Texto(20)},
                       {u"lblNuevaDec"_s, Texto(81)},
                       {u"lblEjer"_s, Texto(37)},
                       {u"lblPer"_s, Texto(38)}});
        EXPECT_EQ(Control<QLabel>(u"lblDec"_s).textFormat(), Qt::PlainText);
    }
}

TEST_F(frmZTListaDeclaracionesTest, TheColumnsHaveKeysTextsAndHeadingsOfTheirWidths) {
    AbrirLista();
    const ListaZT& lista = Declaraciones();
    ASSERT_EQ(lista.CuentaColumnas(), 4);
    EXPECT_EQ(lista.ClaveColumna(1), u"Clave"_s);
    EXPECT_EQ(lista.AnchoColumna(1), 0);
    int columna = 2;
    for (const auto& [clave, cabecera] :
         {std::pair{37, u"lblEjercicio"_s}, {38, u"lblPeriodo"_s}, {8, u"lblCuota"_s}}) {
        EXPECT_EQ(lista.ClaveColumna(columna), Texto(clave));
        EXPECT_EQ(Control(cabecera).width(), lista.AnchoColumna(columna));
        ++columna;
    }
    EXPECT_GT(lista.AnchoColumna(4), lista.AnchoColumna(3));
    EXPECT_GT(lista.AnchoColumna(3), lista.AnchoColumna(2));
    EXPECT_EQ(Control(u"shpColumn"_s).width(), lista.width());
}

TEST_F(frmZTListaDeclaracionesTest, RowsComeInTheOrderOfTheStoreWithTheAmountInTwoDecimals) {
    HacerCuatro();
    AbrirLista();
    ASSERT_EQ(Declaraciones().Cuenta(), 4);
    EXPECT_EQ(Declaraciones().Texto(1), QString::number(primera));
    EXPECT_EQ(Subitems(u"lsvDeclaraciones"_s, 1, 3), (QStringList{u"2005"_s, u"4º Trimestre"_s, u"0,00"_s}));
    EXPECT_EQ(Subitems(u"lsvDeclaraciones"_s, 4, 3), (QStringList{u"2007"_s, u"3º Trimestre"_s, u"0,00"_s}));
    EXPECT_TRUE(Declaraciones().isColumnHidden(0));
    const QVariant alineacion =
        Declaraciones().model()->data(Declaraciones().model()->index(0, 3), Qt::TextAlignmentRole);
    EXPECT_TRUE(Qt::Alignment(alineacion.toInt()).testFlag(Qt::AlignTrailing));
    EXPECT_TRUE(Control<EtiquetaColumna>(u"lblCuota"_s).Alineacion().testFlag(Qt::AlignTrailing));
}

TEST_F(frmZTListaDeclaracionesTest, QuartersAreNamedInTheLanguageInForce) {
    NuevaDeclaracion(2007, 2);
    Entorno().OffsetIdioma = 1000;
    AbrirLista();
    EXPECT_EQ(Declaraciones().Subitem(1, 2), u"2. hiruhilekoa"_s);
}

TEST_F(frmZTListaDeclaracionesTest, TheLatestDeclarationIsSelectedAndTheListHasTheFocus) {
    HacerCuatro();
    AbrirLista();
    EXPECT_EQ(Marcada(), 4);
    EXPECT_EQ(Foco(), u"lsvDeclaraciones"_s);
    EsperarHabilitados(kConDeclaracion + kSiempre + QStringList{u"cmdEstablecimientos"_s}, true);
    EXPECT_FALSE(ALaVista(u"shpNueva1"_s));
    EXPECT_GE(pantalla.cesiones, 1);
}

TEST_F(frmZTListaDeclaracionesTest, TheDeclarationAskedForIsSelectedOnce) {
    HacerCuatro();
    oListaDeclaraciones().SelCSDC = tercera;
    AbrirLista();
    EXPECT_EQ(Marcada(), 3);
    EXPECT_EQ(oListaDeclaraciones().SelCSDC, 0);
}

TEST_F(frmZTListaDeclaracionesTest, ADeclarationAskedForThatIsGoneStaysAskedFor) {
    HacerCuatro();
    oListaDeclaraciones().SelCSDC = ultima + 100;
    AbrirLista();
    EXPECT_EQ(Marcada(), 1);
    EXPECT_EQ(oListaDeclaraciones().SelCSDC, ultima + 100);
}

TEST_F(frmZTListaDeclaracionesTest, WithoutDeclarationsOnlyNewDeclarantAndCloseAreThere) {
    AbrirLista();
    EXPECT_EQ(Declaraciones().Cuenta(), 0);
    EsperarHabilitados(kSiempre, true);
    EsperarHabilitados(kConDeclaracion, false);
    EXPECT_TRUE(Habilitado(u"cmdEstablecimientos"_s)) << "it keeps its state";
    IrA(u"lsvDeclaraciones"_s);
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(Abierto(frmZTListaDeclaraciones::kNombre));
    EXPECT_TRUE(pantalla.plataforma.empty());
    EXPECT_EQ(oListaDeclaraciones().SelCSDC, 0);
}

TEST_F(frmZTListaDeclaracionesTest, WhileADeclarantIsOpenTheMenusAreOff) {
    ASSERT_TRUE(MenusHabilitados());
    AbrirLista();
    EXPECT_FALSE(MenusHabilitados());
    Pulsar(u"cmdCerrarDec"_s);
    EXPECT_TRUE(MenusHabilitados());
    EXPECT_FALSE(Abierto(frmZTListaDeclaraciones::kNombre));
    EXPECT_EQ(oDeclarante().Modo, cZTDeclarante::kModoNuevo);
    EXPECT_EQ(oDeclarante().Nombre, QString());
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTListaDeclaracionesTest, ADeclarationOpensByEnterButtonAndDoubleClick) {
    HacerCuatro();
    AbrirLista();
    Tecla(Qt::Key_Up);
    Tecla(Qt::Key_Return);
    EsperarAbierta(tercera, 2007, 2);
    EXPECT_EQ(oListaDeclaraciones().SelCSDC, tercera);
    Formularios::Descargar(frmZTDeclaracion::kNombre.toString());

    AbrirLista();
    EXPECT_EQ(Marcada(), 3) << "the row that was left";
    PulsarElemento(u"lsvDeclaraciones"_s, 1);
    Pulsar(u"cmddatdecla"_s);
    EsperarAbierta(primera, 2005, 4);
    Formularios::Descargar(frmZTDeclaracion::kNombre.toString());

    AbrirLista();
    PulsarDosVeces(u"lsvDeclaraciones"_s, 4);
    EsperarAbierta(ultima, 2007, 3);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTListaDeclaracionesTest, ClosingTheSummaryComesBackToTheSameDeclaration) {
    HacerCuatro();
    AbrirLista();
    PulsarElemento(u"lsvDeclaraciones"_s, 2);
    EXPECT_EQ(Foco(), u"lsvDeclaraciones"_s);
    Tecla(Qt::Key_D, Qt::AltModifier);
    Pasar(frmZTDeclaracion::kNombre);
    Pulsar(u"cmdCerrarDec"_s);
    Pasar(frmZTListaDeclaraciones::kNombre);
    EXPECT_EQ(Marcada(), 2);
}

TEST_F(frmZTListaDeclaracionesTest, DeletingAsksFirstAndARefusalChangesNothing) {
    HacerCuatro();
    AbrirLista();
    PulsarElemento(u"lsvDeclaraciones"_s, 2);
    pantalla.respuesta = kRespuestaCancelar;
    Pulsar(u"cmdeli"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes[0].texto, u"¿Desea eliminar la declaración seleccionada?"_s);
    EXPECT_EQ(pantalla.mensajes[0].titulo, u"Lista de declaraciones"_s);
    EXPECT_FALSE(pantalla.mensajes[0].unBoton);
    EXPECT_EQ(Declaraciones().Cuenta(), 4);
    EXPECT_EQ(Marcada(), 2);
    EXPECT_EQ(Foco(), u"lsvDeclaraciones"_s);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(oDeclarante().CSDE), 4);
}

TEST_F(frmZTListaDeclaracionesTest, ADeletedDeclarationLeavesTheListAndTheLastRowIsSelected) {
    HacerCuatro();
    AbrirLista();
    PulsarElemento(u"lsvDeclaraciones"_s, 1);
    Pulsar(u"cmdeli"_s);
    EXPECT_EQ(Declaraciones().Cuenta(), 3);
    EXPECT_EQ(Marcada(), 3);
    EXPECT_EQ(oDeclaraciones().CSDC, primera);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(oDeclarante().CSDE), 3);
    EXPECT_EQ(Foco(), u"lsvDeclaraciones"_s);
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTListaDeclaracionesTest, DeletingTheOnlyDeclarationLeavesTheButtonsOfNone) {
    NuevaDeclaracion(2007, 1);
    AbrirLista();
    Pulsar(u"cmdeli"_s);
    EXPECT_EQ(Declaraciones().Cuenta(), 0);
    EsperarHabilitados(kConDeclaracion, false);
    EsperarHabilitados(kSiempre, true);
}

TEST_F(frmZTListaDeclaracionesTest, PrintingHandsTheDeclarationToTheDialogAndComesBackToTheList) {
    HacerCuatro();
    AbrirLista();
    PulsarElemento(u"lsvDeclaraciones"_s, 3);
    Formularios::Registrar(u"frmZTImp"_s, [] { return new FormularioModal(u"frmZTImp"_s); });
    bool salio = false;
    CuandoAparezca(u"frmZTImp"_s, [&salio](QWidget&) {
        salio = true;
        EXPECT_EQ(oImprimir().Ejercicio, 2007);
        EXPECT_EQ(oImprimir().Periodo, 2);
        Formularios::Descargar(u"frmZTImp"_s);
    });
    Pulsar(u"cmdImpOfi"_s);
    EXPECT_TRUE(salio);
    EXPECT_EQ(oDeclaraciones().CSDC, tercera);
    EXPECT_EQ(marco->focusWidget(), &Declaraciones());
    EXPECT_EQ(Marcada(), 3);
}

TEST_F(frmZTListaDeclaracionesTest, TheDeclarantFormOpensOnTheStoredDeclarantAndComesBack) {
    HacerCuatro();
    AbrirLista();
    PulsarElemento(u"lsvDeclaraciones"_s, 2);
    oDeclarante().Nombre = u"OTRO"_s;
    Pulsar(u"cmdDte"_s);
    EXPECT_FALSE(Abierto(frmZTListaDeclaraciones::kNombre));
    EXPECT_EQ(oDeclarante().Procedencia, cZTDeclarante::kDesdeListaDeclaraciones);
    EXPECT_EQ(oDeclarante().Modo, cZTDeclarante::kModoExistente);
    EXPECT_EQ(oDeclarante().Nombre, u"GASOLINERA & HIJOS"_s);
    Pasar(frmZTDeclarante::kNombre);
    Pulsar(u"cmdCancelar"_s);
    EXPECT_FALSE(Abierto(frmZTDeclarante::kNombre));
    Pasar(frmZTListaDeclaraciones::kNombre);
    EXPECT_EQ(Marcada(), 2);
}

TEST_F(frmZTListaDeclaracionesTest, TheEstablishmentsOpenAndComeBack) {
    HacerCuatro();
    AbrirLista();
    PulsarElemento(u"lsvDeclaraciones"_s, 1);
    Pulsar(u"cmdEstablecimientos"_s);
    EXPECT_FALSE(Abierto(frmZTListaDeclaraciones::kNombre));
    Pasar(frmZTListaEstablecimientos::kNombre);
    Pulsar(u"cmdCerrarLista"_s);
    Pasar(frmZTListaDeclaraciones::kNombre);
    EXPECT_EQ(Marcada(), 1);
}

TEST_F(frmZTListaDeclaracionesTest, TabGoesThroughListAndButtonsInTheirOrder) {
    HacerCuatro();
    AbrirLista();
    EsperarOrdenDeTab({u"lsvDeclaraciones"_s, u"cmdnuedecla"_s, u"cmddatdecla"_s, u"cmdeli"_s, u"cmdImpOfi"_s,
                       u"cmdDte"_s, u"cmdEstablecimientos"_s, u"cmdCerrarDec"_s});
}

TEST_F(frmZTListaDeclaracionesTest, FailuresOfLoadingAreShownUnderTheFixedNames) {
    HacerCuatro();
    Entorno().OffsetIdioma = 500;
    EXPECT_THROW(Abrir(frmZTListaDeclaraciones::kNombre), ErrorZT);
    ASSERT_EQ(pantalla.errores.size(), 2U);
    EXPECT_EQ(pantalla.errores[0].formulario, u"frmZTListaDeclaraciones"_s);
    EXPECT_EQ(pantalla.errores[0].evento, u"frmZTListaDeclarantes.InicializarLista"_s);
    EXPECT_EQ(pantalla.errores[1].evento, u"frmZTListaDeclaraciones.RellenarListaDeclaraciones"_s);
}

TEST_F(frmZTListaDeclaracionesTest, AFailureOfTheActivationIsShownAndTheFormStays) {
    AbrirLista();
    RegistrarVacio(u"frmZTOtro"_s);
    Formularios::Mostrar(u"frmZTOtro"_s);
    oListaDeclaraciones().NumDecla = 1;
    AbrirLista();
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores[0].evento, u"frmZTListaDeclaraciones.Form_Activate"_s);
    EXPECT_TRUE(Abierto(frmZTListaDeclaraciones::kNombre));
}

TEST_F(frmZTListaDeclaracionesTest, AFailureOfAButtonHasNoTrap) {
    HacerCuatro();
    AbrirLista();
    PerderElAlmacen();
    Pulsar(u"cmdeli"_s);
    EXPECT_EQ(terminado, 1);
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_TRUE(pantalla.plataforma[0].contains(u"cListaDeclaraciones.EliminarDeclaracion"_s));
}

TEST_F(frmZTListaDeclaracionesTest, ADeclarationThatAnotherProgramHasDeletedIsNotOpenedAndLeavesTheList) {
    HacerCuatro();
    AbrirLista();
    PulsarElemento(u"lsvDeclaraciones"_s, 3);
    Servidor().EliminarDeclaraciones(tercera);
    Pulsar(u"cmddatdecla"_s);
    EXPECT_TRUE(Abierto(frmZTListaDeclaraciones::kNombre));
    EXPECT_FALSE(Abierto(frmZTDeclaracion::kNombre));
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, TextoPropio(u"cambio_sin_declaracion"));
    EXPECT_EQ(Declaraciones().Cuenta(), 3);
    Pulsar(u"cmddatdecla"_s);
    EXPECT_TRUE(Abierto(frmZTDeclaracion::kNombre));
}
