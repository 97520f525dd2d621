// The panel for a new declaration, worked on its form.

#include "forms/declarations/PanelNuevaDec.h"

#include <QClipboard>

#include "core/records/cZTListaDeclaraciones.h"
#include "core/records/cZTNuevaDec.h"
#include "forms/declarations/frmZTDeclaracion.h"
#include "forms/declarations/frmZTListaDeclaraciones.h"
#include "forms/messages/PantallaQt.h"
#include "forms/messages/frmZTListaErrores.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/PruebaDeDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList kDelPanel{u"ImgNueva0"_s,  u"ImgNueva1"_s, u"txtEjercicio"_s, u"txtPeriodo"_s,
                            u"picPeriodo"_s, u"shpNueva1"_s, u"shpNueva2"_s,    u"lblNuevaDec"_s,
                            u"lblEjer"_s,    u"lblPer"_s};
const QStringList kFuera{u"lsvDeclaraciones"_s, u"cmdnuedecla"_s,        u"cmddatdecla"_s,
                         u"cmdeli"_s,           u"cmdImpOfi"_s,          u"cmdDte"_s,
                         u"cmdCerrarDec"_s,     u"cmdEstablecimientos"_s};

class PanelNuevaDecTest : public PruebaDeDeclaraciones {
  protected:
    /// Opens the list and its panel on a declarant whose latest declaration is that of 3/2007.
    void AbrirPanel() {
        NuevaDeclaracion(2007, 3);
        AbrirPanelSinMas();
    }
    void AbrirPanelSinMas() {
        Abrir(frmZTListaDeclaraciones::kNombre);
        Pulsar(u"cmdnuedecla"_s);
    }
    void AbrirPeriodos() const {
        Pulsar(u"picPeriodo"_s);
        ASSERT_TRUE(ALaVista(u"lsvPeriodos"_s));
        ASSERT_EQ(Foco(), u"lsvPeriodos"_s);
    }
    [[nodiscard]] bool PanelALaVista() const {
        for (const QString& nombre : kDelPanel) {
            EXPECT_EQ(ALaVista(nombre), ALaVista(kDelPanel.front())) << nombre.toStdString();
        }
        return ALaVista(kDelPanel.front());
    }
    void EsperarFuera(bool habilitado) const {
        for (const QString& nombre : kFuera) {
            EXPECT_EQ(Habilitado(nombre), habilitado) << nombre.toStdString();
        }
    }
    void EsperarEleccion(qint16 ejercicio, qint16 periodo) const {
        EXPECT_EQ(oNuevaDec().Ejercicio, ejercicio);
        EXPECT_EQ(oNuevaDec().Periodo, periodo);
        EXPECT_EQ(TextoDe(u"txtEjercicio"_s), ejercicio == 0 ? QString() : QString::number(ejercicio));
        EXPECT_EQ(TextoDe(u"txtPeriodo"_s), periodo == 0 ? QString() : Texto(38 + periodo));
    }
    /// Years and quarters in the store, as "2007/3 2007/4".
    static QString Almacenadas() {
        const Tabla t = Servidor().ObtenerDeclaraciones(oDeclarante().CSDE);
        QStringList todas;
        for (int fila = 1; !t.EsNula() && fila <= t.UltimaFila(); ++fila) {
            todas += t(1, fila).aTexto() + u'/' + t(2, fila).aTexto();
        }
        return todas.join(u' ');
    }
};

}  // namespace

TEST_F(PanelNuevaDecTest, ItIsHiddenUntilAskedFor) {
    NuevaDeclaracion(2007, 3);
    Abrir(frmZTListaDeclaraciones::kNombre);
    EXPECT_FALSE(PanelALaVista());
    EXPECT_FALSE(ALaVista(u"lsvPeriodos"_s));
    EXPECT_TRUE(Muestra(u"ImgNueva0"_s, ilsMDI16(6)));
    EXPECT_TRUE(Muestra(u"ImgNueva1"_s, ilsMDI16(7)));
    EXPECT_TRUE(Muestra(u"picPeriodo"_s, ilsMDI32(4)));
}

TEST_F(PanelNuevaDecTest, ItProposesTheNextQuarterAndEverythingElseIsDisabled) {
    AbrirPanel();
    EXPECT_TRUE(PanelALaVista());
    EXPECT_FALSE(ALaVista(u"lsvPeriodos"_s));
    EsperarEleccion(2007, 4);
    EsperarFuera(false);
    EXPECT_EQ(Foco(), u"txtEjercicio"_s);
    EXPECT_TRUE(Muestra(u"ImgNueva0"_s, ilsMDI16(8)));
    EXPECT_TRUE(Muestra(u"ImgNueva1"_s, ilsMDI16(6)));
    EXPECT_EQ(Control(u"ImgNueva0"_s).cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(Control(u"ImgNueva1"_s).cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(PanelNuevaDecTest, WithoutDeclarationsTheBoxesAreEmpty) {
    AbrirPanelSinMas();
    EXPECT_TRUE(PanelALaVista());
    EsperarEleccion(0, 0);
}

TEST_F(PanelNuevaDecTest, TabGoesThroughThePanelAlone) {
    AbrirPanel();
    EsperarOrdenDeTab({u"txtEjercicio"_s, u"picPeriodo"_s, u"ImgNueva1"_s, u"ImgNueva0"_s});
}

TEST_F(PanelNuevaDecTest, TheArrowShowsItsFocusWhenTabComesFromAnEmptyYear) {
    AbrirPanelSinMas();
    ASSERT_EQ(Foco(), u"txtEjercicio"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Foco(), u"picPeriodo"_s);
    EXPECT_TRUE(Muestra(u"picPeriodo"_s, ilsMDI32(5)));
    EXPECT_FALSE(Muestra(u"picPeriodo"_s, ilsMDI32(4)));
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(Muestra(u"picPeriodo"_s, ilsMDI32(4)));
}

TEST_F(PanelNuevaDecTest, EachKeyReleasedInTheYearChecksItThoughItChangesNothing) {
    AbrirPanel();
    Caja(u"txtEjercicio"_s).setText(u"2013"_s);
    Tecla(Qt::Key_Home);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes[0].titulo, Texto(83));
    EsperarEleccion(0, 4);
}

TEST_F(PanelNuevaDecTest, AYearThatIsPastedIsChecked) {
    AbrirPanel();
    QGuiApplication::clipboard()->setText(u"2005"_s);
    IrA(u"txtEjercicio"_s);
    QTest::keyPress(marco->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    EsperarEleccion(2005, 4);
    QTest::keyRelease(marco->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    EsperarEleccion(2005, 4);
}

TEST_F(PanelNuevaDecTest, ItsControlsAreNamedForScreenReaders) {
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirPanelSinMas();
        EXPECT_EQ(Control(u"ImgNueva0"_s).accessibleName(), Texto(29).remove(u'&'));
        EXPECT_EQ(Control(u"ImgNueva1"_s).accessibleName(), Texto(28).remove(u'&'));
        EXPECT_EQ(Control(u"txtPeriodo"_s).accessibleName(), Texto(38));
        EXPECT_EQ(Control(u"picPeriodo"_s).accessibleName(), Texto(38));
        EXPECT_EQ(Control<QLabel>(u"lblEjer"_s).buddy(), &Control(u"txtEjercicio"_s));
        Formularios::Descargar(frmZTListaDeclaraciones::kNombre.toString());
    }
}

TEST_F(PanelNuevaDecTest, TheYearTakesFourDigitsAtMost) {
    AbrirPanel();
    Escribir(u"txtEjercicio"_s, u"2a0-0 58"_s);
    EXPECT_EQ(TextoDe(u"txtEjercicio"_s), u"2005"_s);
    EXPECT_EQ(oNuevaDec().Ejercicio, 2005);
    EXPECT_EQ(Caja(u"txtEjercicio"_s).cursorPosition(), 4);
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(PanelNuevaDecTest, AYearPastTheLastOneIsToldAndTheBoxEmptied) {
    AbrirPanel();
    Escribir(u"txtEjercicio"_s, u"2013"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes[0].texto, u"El ejercicio debe ser igual o anterior al año 2012"_s);
    EXPECT_EQ(pantalla.mensajes[0].titulo, Texto(83));
    EXPECT_TRUE(pantalla.mensajes[0].unBoton);
    EsperarEleccion(0, 4);
    EXPECT_EQ(Foco(), u"txtEjercicio"_s);
}

TEST_F(PanelNuevaDecTest, AYearBeforeTheFirstOneIsToldInEuskeraToo) {
    Entorno().OffsetIdioma = 1000;
    AbrirPanel();
    Escribir(u"txtEjercicio"_s, u"2001"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes[0].texto, u"Ekitaldia 2002 urtea baino beranduagokoa izan behar da"_s);
    EXPECT_EQ(pantalla.mensajes[0].titulo, Texto(83));
    EsperarEleccion(0, 4);
}

TEST_F(PanelNuevaDecTest, AYearOfThreeDigitsIsTakenAsItIs) {
    AbrirPanel();
    Escribir(u"txtEjercicio"_s, u"200"_s);
    EsperarEleccion(200, 4);
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(oNuevaDec().ValidarDatos());
}

TEST_F(PanelNuevaDecTest, AQuarterWithoutRatesCannotBeMadeAndTheFailureHasNoTrap) {
    AbrirPanel();
    Escribir(u"txtEjercicio"_s, u"200"_s);
    Pulsar(u"ImgNueva1"_s);
    EXPECT_EQ(terminado, 1);
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_TRUE(pantalla.plataforma[0].contains(u"cNuevaDec.GuardarDeclaracion"_s));
    EXPECT_EQ(Almacenadas(), u"2007/3"_s);
}

TEST_F(PanelNuevaDecTest, AYearThatIsErasedIsNone) {
    AbrirPanel();
    IrA(u"txtEjercicio"_s);
    Tecla(Qt::Key_Backspace);
    EsperarEleccion(0, 4);
}

TEST_F(PanelNuevaDecTest, ChangingInTheMiddleOfTheYearKeepsTheCaret) {
    AbrirPanel();
    Caja(u"txtEjercicio"_s).setCursorPosition(4);
    Tecla(Qt::Key_Left);
    Tecla(Qt::Key_Backspace);
    EXPECT_EQ(oNuevaDec().Ejercicio, 207);
    EXPECT_EQ(Caja(u"txtEjercicio"_s).cursorPosition(), 2);
}

TEST_F(PanelNuevaDecTest, TheListOffersTheFourQuartersAndStandsOnTheChosenOne) {
    AbrirPanel();
    AbrirPeriodos();
    const ListaZT& lista = Lista(u"lsvPeriodos"_s);
    ASSERT_EQ(lista.Cuenta(), 4);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(lista.Texto(i), Texto(38 + i));
    }
    EXPECT_EQ(lista.Seleccionado(), 4);
    EXPECT_TRUE(formulario->rect().contains(lista.geometry()));
}

TEST_F(PanelNuevaDecTest, WithoutAQuarterTheListStandsOnTheFirst) {
    AbrirPanelSinMas();
    AbrirPeriodos();
    EXPECT_EQ(Lista(u"lsvPeriodos"_s).Seleccionado(), 1);
}

TEST_F(PanelNuevaDecTest, TheListKeepsItsWidthHoweverOftenItOpens) {
    AbrirPanel();
    AbrirPeriodos();
    const ListaZT& lista = Lista(u"lsvPeriodos"_s);
    ASSERT_EQ(lista.CuentaColumnas(), 1);
    EXPECT_EQ(lista.ClaveColumna(1), u"periodo"_s);
    const int hueco = Control(u"picPeriodo"_s).geometry().right() + 1 - Control(u"txtPeriodo"_s).x();
    EXPECT_NEAR(lista.AnchoColumna(1), hueco - TwipsAPixeles(240, lista), 1);
    const int ancho = lista.width();
    Tecla(Qt::Key_Escape);
    AbrirPeriodos();
    EXPECT_EQ(Lista(u"lsvPeriodos"_s).width(), ancho);
}

TEST_F(PanelNuevaDecTest, AQuarterIsChosenByClick) {
    AbrirPanel();
    AbrirPeriodos();
    PulsarElemento(u"lsvPeriodos"_s, 2);
    EsperarEleccion(2007, 2);
    EXPECT_FALSE(ALaVista(u"lsvPeriodos"_s));
    EXPECT_EQ(Foco(), u"picPeriodo"_s);
    EXPECT_TRUE(Muestra(u"picPeriodo"_s, ilsMDI32(5)));
}

TEST_F(PanelNuevaDecTest, AQuarterIsChosenByKeys) {
    AbrirPanel();
    Tecla(Qt::Key_Tab);
    ASSERT_EQ(Foco(), u"picPeriodo"_s);
    EXPECT_TRUE(Muestra(u"picPeriodo"_s, ilsMDI32(5)));
    for (const Qt::Key abre : {Qt::Key_Return, Qt::Key_Space}) {
        Tecla(abre);
        ASSERT_EQ(Foco(), u"lsvPeriodos"_s);
        EXPECT_TRUE(Muestra(u"picPeriodo"_s, ilsMDI32(4)));
        Tecla(Qt::Key_Up);
        Tecla(Qt::Key_Return);
        EXPECT_EQ(Foco(), u"picPeriodo"_s);
        EXPECT_FALSE(ALaVista(u"lsvPeriodos"_s));
    }
    EsperarEleccion(2007, 2);
}

TEST_F(PanelNuevaDecTest, AClickOnTheQuarterOpensTheListToo) {
    AbrirPanel();
    Pulsar(u"txtPeriodo"_s);
    EXPECT_TRUE(ALaVista(u"lsvPeriodos"_s));
    EXPECT_EQ(Foco(), u"lsvPeriodos"_s);
    EXPECT_TRUE(Caja(u"txtPeriodo"_s).isReadOnly());
}

TEST_F(PanelNuevaDecTest, EscapeLeavesTheListAndNotThePanel) {
    AbrirPanel();
    AbrirPeriodos();
    Tecla(Qt::Key_Up);
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(ALaVista(u"lsvPeriodos"_s));
    EXPECT_EQ(Foco(), u"picPeriodo"_s);
    Tecla(Qt::Key_Escape);
    EXPECT_TRUE(PanelALaVista());
    EsperarEleccion(2007, 4);
}

TEST_F(PanelNuevaDecTest, PickingTheQuarterThatStoodClosesTheListAndMovesTheFocus) {
    AbrirPanel();
    AbrirPeriodos();
    PulsarElemento(u"lsvPeriodos"_s, 4);
    EsperarEleccion(2007, 4);
    EXPECT_FALSE(ALaVista(u"lsvPeriodos"_s));
    EXPECT_EQ(Foco(), u"picPeriodo"_s);
}

TEST_F(PanelNuevaDecTest, TheListHidesWhenItLosesTheFocus) {
    AbrirPanel();
    AbrirPeriodos();
    Tecla(Qt::Key_Tab);
    EXPECT_FALSE(ALaVista(u"lsvPeriodos"_s));
}

TEST_F(PanelNuevaDecTest, AQuarterPastTheLastOneIsRefused) {
    Entorno().EjercicioMaximo = 2007;
    Entorno().PeriodoMaximo = 2;
    NuevaDeclaracion(2007, 1);
    AbrirPanelSinMas();
    AbrirPeriodos();
    PulsarElemento(u"lsvPeriodos"_s, 3);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes[0].texto, u"El periodo máximo pare este año es el 2º Trimestre"_s);
    EXPECT_EQ(pantalla.mensajes[0].titulo, Texto(83));
    EXPECT_TRUE(pantalla.mensajes[0].unBoton);
    EsperarEleccion(2007, 2);
    EXPECT_FALSE(ALaVista(u"lsvPeriodos"_s));
}

TEST_F(PanelNuevaDecTest, CancellingForgetsTheChoiceAndBringsTheListBack) {
    AbrirPanel();
    Escribir(u"txtEjercicio"_s, u"2006"_s);
    Pulsar(u"ImgNueva0"_s);
    EXPECT_FALSE(PanelALaVista());
    EXPECT_EQ(oNuevaDec().Ejercicio, 0);
    EXPECT_EQ(oNuevaDec().Periodo, 0);
    EsperarFuera(true);
    EXPECT_EQ(Foco(), u"lsvDeclaraciones"_s);
    EXPECT_EQ(Almacenadas(), u"2007/3"_s);
}

TEST_F(PanelNuevaDecTest, CancellingWithoutDeclarationsLeavesTheEstablishmentsAsTheyWere) {
    AbrirPanelSinMas();
    Pulsar(u"ImgNueva0"_s);
    EXPECT_FALSE(PanelALaVista());
    EXPECT_TRUE(Habilitado(u"cmdnuedecla"_s));
    EXPECT_TRUE(Habilitado(u"cmdDte"_s));
    EXPECT_TRUE(Habilitado(u"cmdCerrarDec"_s));
    EXPECT_FALSE(Habilitado(u"cmddatdecla"_s));
    EXPECT_FALSE(Habilitado(u"cmdEstablecimientos"_s));
}

TEST_F(PanelNuevaDecTest, ConfirmingMakesTheDeclarationAndShowsItsSummary) {
    AbrirPanel();
    Pulsar(u"ImgNueva1"_s);
    EXPECT_EQ(Almacenadas(), u"2007/3 2007/4"_s);
    EXPECT_FALSE(Abierto(frmZTListaDeclaraciones::kNombre));
    EXPECT_EQ(oNuevaDec().Ejercicio, 0);
    EXPECT_EQ(oNuevaDec().Periodo, 0);
    EXPECT_EQ(oDeclaraciones().Modo, cZTDeclaraciones::kModoNuevo);
    EXPECT_EQ(oDeclaraciones().Ejercicio, 2007);
    EXPECT_EQ(oDeclaraciones().Periodo, 4);
    const qint32 nueva = Servidor().ObtenerDeclaraciones(oDeclarante().CSDE)(0, 2).aEntero32();
    EXPECT_EQ(oDeclaraciones().CSDC, nueva);
    EXPECT_EQ(oListaDeclaraciones().SelCSDC, nueva);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);

    Pasar(frmZTDeclaracion::kNombre);
    EXPECT_EQ(TextoDe(u"lblPer"_s), u"4º Trimestre"_s);
    Pulsar(u"cmdCerrarDec"_s);
    Pasar(frmZTListaDeclaraciones::kNombre);
    EXPECT_EQ(Lista(u"lsvDeclaraciones"_s).Seleccionado(), 2);
}

TEST_F(PanelNuevaDecTest, ADeclarationBeforeOthersIsTheOneSelectedAfterwards) {
    AbrirPanel();
    Escribir(u"txtEjercicio"_s, u"2003"_s);
    Pulsar(u"ImgNueva1"_s);
    Pasar(frmZTDeclaracion::kNombre);
    Pulsar(u"cmdCerrarDec"_s);
    Pasar(frmZTListaDeclaraciones::kNombre);
    EXPECT_EQ(Lista(u"lsvDeclaraciones"_s).Subitem(1, 1), u"2003"_s);
    EXPECT_EQ(Lista(u"lsvDeclaraciones"_s).Seleccionado(), 1);
}

TEST_F(PanelNuevaDecTest, ADeclarationIsMadeWithKeysAlone) {
    Abrir(frmZTListaDeclaraciones::kNombre);
    Tecla(Qt::Key_N, Qt::AltModifier);
    Teclear(u"2002"_s);
    Tecla(Qt::Key_Tab);
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_Tab);
    ASSERT_EQ(Foco(), u"ImgNueva1"_s);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Almacenadas(), u"2002/2"_s);
    EXPECT_TRUE(Formularios::Visible(frmZTDeclaracion::kNombre.toString()));
}

TEST_F(PanelNuevaDecTest, ThePanelIsLeftBySpaceOnItsImages) {
    AbrirPanel();
    IrA(u"ImgNueva0"_s);
    Tecla(Qt::Key_Space);
    EXPECT_FALSE(PanelALaVista());
}

TEST_F(PanelNuevaDecTest, FaultsAreListedAndThePanelClosesAtTheNextActivation) {
    AbrirPanelSinMas();
    Pulsar(u"ImgNueva1"_s);
    ASSERT_EQ(pantalla.listas.size(), 1U);
    EXPECT_EQ(pantalla.listas[0].UltimaFila(), 1) << "year and quarter";
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
    EXPECT_TRUE(PanelALaVista());
    RegistrarVacio(u"frmZTOtro"_s);
    Formularios::Mostrar(u"frmZTOtro"_s);
    Abrir(frmZTListaDeclaraciones::kNombre);
    EXPECT_FALSE(PanelALaVista());
    EXPECT_EQ(Almacenadas(), QString());
}

TEST_F(PanelNuevaDecTest, ADuplicateIsRefusedAndClosingTheListOfFaultsClosesThePanel) {
    AbrirPanel();
    AbrirPeriodos();
    PulsarElemento(u"lsvPeriodos"_s, 3);
    PantallaQt deVerdad;
    FijarPantalla(&deVerdad);
    bool salio = false;
    CuandoAparezca(frmZTListaErrores::kNombre.toString(), [&salio](QWidget&) {
        salio = true;
        Formularios::Descargar(frmZTListaErrores::kNombre.toString());
    });
    Pulsar(u"ImgNueva1"_s);
    FijarPantalla(&pantalla);
    EXPECT_TRUE(salio);
    EXPECT_FALSE(PanelALaVista());
    EsperarFuera(true);
    EXPECT_EQ(oNuevaDec().Ejercicio, 2007) << "the choice stays until the panel proposes again";
    EXPECT_EQ(oNuevaDec().Periodo, 3);
    Pulsar(u"cmdnuedecla"_s);
    EsperarEleccion(2007, 4);
}
