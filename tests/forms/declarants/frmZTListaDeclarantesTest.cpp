#include "forms/declarants/frmZTListaDeclarantes.h"

#include <QScrollBar>

#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/records/cZTListaDeclarantes.h"
#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/PruebaEnMarco.h"

using namespace Qt::StringLiterals;

namespace {

const QString kLista = u"lsvDeclarantes"_s;

class frmZTListaDeclarantesTest : public PruebaEnMarco {
  protected:
    void SetUp() override {
        PruebaEnMarco::SetUp();
        RegistrarVacio(u"frmZTListaDeclaraciones"_s);
    }

    /// Opens the list as the commands of the main window do.
    void AbrirLista(qint32 modo) {
        oListaDeclarantes().Modo = modo;
        oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
        Abrir(frmZTListaDeclarantes::kNombre);
    }
    void AbrirParaAbrir() { AbrirLista(cZTListaDeclarantes::kModoAbrir); }
    void AbrirParaBorrar() { AbrirLista(cZTListaDeclarantes::kModoBorrar); }

    static qint32 Guardar(const QString& nif, const QString& nombre) {
        cZTDeclarante d;
        d.Modo = cZTDeclarante::kModoNuevo;
        d.NIF = nif;
        d.Nombre = nombre;
        d.Siglas = u"CL"_s;
        d.Domicilio = u"MAYOR"_s;
        d.Provin = 20;
        d.CMuni = 1;
        d.Munici = u"ABARZELAI"_s;
        return d.GuardarDeclarante();
    }
    /// Three declarants whose orders by NIF, by name and of storing all differ.
    static void GuardarTres() {
        Guardar(u"B1"_s, u"MEDIO"_s);
        Guardar(u"C1"_s, u"ALTO"_s);
        Guardar(u"A1"_s, u"ZUBI"_s);
    }
    static void GuardarEstablecimiento(qint32 csde) {
        svrZELT::cZTEstablecimientos servidor;
        servidor.mdbmod = Entorno().mdbmod;
        servidor.GuardaEstablecimiento(
            {Valor(), csde, u"20ES123Y"_s, u"CALLE 1"_s, qint16{20}, qint16{1}, u"ABARZELAI"_s});
    }
    static void GuardarDeclaracion(qint32 csde) {
        svrZELT::cZTDeclaraciones servidor;
        servidor.mdbmod = Entorno().mdbmod;
        (void)servidor.GuardarDeclaraciones({csde, qint16{2007}, qint16{1}, 24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
    }

    [[nodiscard]] QStringList NIFs() const {
        QStringList nifs;
        for (int i = 1; i <= Lista(kLista).Cuenta(); ++i) {
            nifs += Lista(kLista).Subitem(i, 1);
        }
        return nifs;
    }
    [[nodiscard]] QString NifElegido() const {
        return Lista(kLista).Subitem(Lista(kLista).Seleccionado(), 1);
    }
    [[nodiscard]] bool ImagenDeAceptarEs(int numero) const {
        return Control<BotonImagen>(u"picAceptar"_s).icon().pixmap(16, 16).toImage() ==
               ilsMDI16(numero).pixmap(16, 16).toImage();
    }
    static bool Abierta() { return Formularios::Cargado(frmZTListaDeclarantes::kNombre.toString()); }
    static bool DeclaracionesALaVista() { return Formularios::Visible(u"frmZTListaDeclaraciones"_s); }
};

}  // namespace

TEST_F(frmZTListaDeclarantesTest, CaptionsAreInTheLanguageInForceAndTellTheUse) {
    GuardarTres();
    const std::vector<std::pair<QString, int>> textos{
        {u"lblDeclarantes"_s, 31}, {u"lblCabecera"_s, 1}, {u"lblCol1"_s, 59},    {u"lblCol2"_s, 60},
        {u"lblCol3"_s, 71},        {u"lblCol4"_s, 69},    {u"cmdCancelar"_s, 20}};
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirParaAbrir();
        EXPECT_EQ(formulario->windowTitle(), TextoDeFila(6 + idioma));
        EXPECT_EQ(TextoDe(u"cmdAceptar"_s), TextoDeFila(28 + idioma));
        for (const auto& [control, texto] : textos) {
            EXPECT_EQ(TextoDe(control), TextoDeFila(texto + idioma)) << control.toStdString();
        }
        for (const auto& [columna, texto] : {std::pair{2, 35}, {3, 36}, {4, 71}, {5, 69}}) {
            EXPECT_EQ(Lista(kLista).ClaveColumna(columna), TextoDeFila(texto + idioma));
        }
        Formularios::Descargar(frmZTListaDeclarantes::kNombre.toString());
        AbrirParaBorrar();
        EXPECT_EQ(formulario->windowTitle(), TextoDeFila(7 + idioma));
        EXPECT_EQ(TextoDe(u"cmdAceptar"_s), TextoDeFila(30 + idioma));
        Formularios::Descargar(frmZTListaDeclarantes::kNombre.toString());
    }
}

TEST_F(frmZTListaDeclarantesTest, ARowHoldsKeyNifNameMunicipalityAndNameOfTheProvince) {
    const qint32 csde = Guardar(u"12345678Z"_s, u"UNO"_s);
    AbrirParaAbrir();
    const ListaZT& lista = Lista(kLista);
    ASSERT_EQ(lista.Cuenta(), 1);
    EXPECT_EQ(lista.Texto(1), u"%1"_s.arg(csde, 4, 10, QChar(u'0')));
    EXPECT_EQ(lista.Subitem(1, 1), u"12345678Z"_s);
    EXPECT_EQ(lista.Subitem(1, 2), u"UNO"_s);
    EXPECT_EQ(lista.Subitem(1, 3), u"ABARZELAI"_s);
    EXPECT_EQ(lista.Subitem(1, 4), u"ONDARZIA"_s);
    EXPECT_EQ(lista.ClaveColumna(1), u"Clave"_s);
    EXPECT_TRUE(lista.isColumnHidden(0));
    EXPECT_EQ(lista.AnchoColumna(3), TwipsAPixeles(4500, lista));
    EXPECT_EQ(lista.AnchoColumna(4), TwipsAPixeles(2000, lista));
    EXPECT_EQ(lista.AnchoColumna(5), TwipsAPixeles(2000, lista));
}

TEST_F(frmZTListaDeclarantesTest, EachHeadingStandsOverItsColumnAlsoAfterAResize) {
    GuardarTres();
    AbrirParaAbrir();
    const ListaZT& lista = Lista(kLista);
    for (const bool mayor : {false, true}) {
        if (mayor) {
            formulario->parentWidget()->resize(formulario->parentWidget()->size() + QSize(90, 60));
            QCoreApplication::processEvents();
        }
        int left = lista.mapTo(formulario, QPoint(TwipsAPixeles(10, lista), 0)).x();
        for (int columna = 2; columna <= 5; ++columna) {
            const QWidget& etiqueta = Control(u"lblCol"_s + QString::number(columna - 1));
            EXPECT_EQ(etiqueta.mapTo(formulario, QPoint(0, 0)).x(), left);
            EXPECT_EQ(etiqueta.width(), lista.AnchoColumna(columna));
            EXPECT_LE(etiqueta.mapTo(formulario, etiqueta.rect().bottomLeft()).y(), lista.y());
            left += etiqueta.width();
        }
    }
    EXPECT_FALSE(lista.horizontalScrollBar()->isVisible());
}

TEST_F(frmZTListaDeclarantesTest, TheListStartsInTheOrderOfNifOnItsFirstRow) {
    GuardarTres();
    AbrirParaAbrir();
    EXPECT_EQ(NIFs(), QStringList({u"A1"_s, u"B1"_s, u"C1"_s}));
    EXPECT_EQ(Lista(kLista).Seleccionado(), 1);
    EXPECT_TRUE(Lista(kLista).Marcado(1));
    EXPECT_EQ(Foco(), kLista);
}

TEST_F(frmZTListaDeclarantesTest, TheFirstTwoHeadingsOrderTheListByClick) {
    GuardarTres();
    AbrirParaAbrir();
    Tecla(Qt::Key_Down);
    Pulsar(u"lblCol2"_s);
    EXPECT_EQ(NIFs(), QStringList({u"C1"_s, u"B1"_s, u"A1"_s}));
    EXPECT_EQ(Lista(kLista).Seleccionado(), 1);
    EXPECT_EQ(Foco(), kLista);
    Pulsar(u"lblCol1"_s);
    EXPECT_EQ(NIFs(), QStringList({u"A1"_s, u"B1"_s, u"C1"_s}));
    for (const QString& fija : {u"lblCol3"_s, u"lblCol4"_s}) {
        Pulsar(fija);
        EXPECT_EQ(Lista(kLista).ClaveOrden(), 1);
    }
}

TEST_F(frmZTListaDeclarantesTest, TheHeadingsThatSortAreReachedByTabAndWorkedByEnterAndSpace) {
    GuardarTres();
    AbrirParaAbrir();
    QStringList paradas;
    for (int i = 0; i < 5; ++i) {
        paradas += Foco();
        Tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(paradas, QStringList({kLista, u"lblCol1"_s, u"lblCol2"_s, u"cmdAceptar"_s, u"cmdCancelar"_s}));
    EXPECT_EQ(Foco(), kLista);
    IrA(u"lblCol2"_s);
    Tecla(Qt::Key_Space);
    EXPECT_EQ(NIFs().constFirst(), u"C1"_s);
    IrA(u"lblCol1"_s);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(NIFs().constFirst(), u"A1"_s);
}

TEST_F(frmZTListaDeclarantesTest, TheArrowStandsAtTheRightEdgeOfTheHeadingInForce) {
    GuardarTres();
    AbrirParaAbrir();
    const auto borde = [this](const QString& control) {
        const QWidget& w = Control(control);
        return w.mapTo(formulario, QPoint(w.width(), 0)).x();
    };
    EXPECT_TRUE(Control(u"picOrden"_s).isVisible());
    EXPECT_NEAR(borde(u"picOrden"_s), borde(u"lblCol1"_s), 2);
    Pulsar(u"lblCol2"_s);
    EXPECT_NEAR(borde(u"picOrden"_s), borde(u"lblCol2"_s), 2);
    PulsarEn(Control(u"picOrden"_s), QPoint(3, 3));
    EXPECT_EQ(Lista(kLista).ClaveOrden(), 2);
}

TEST_F(frmZTListaDeclarantesTest, ActivationDisablesTheMenusAndUnloadEnablesThem) {
    GuardarTres();
    ASSERT_TRUE(MenusHabilitados());
    AbrirParaAbrir();
    EXPECT_FALSE(MenusHabilitados());
    Pulsar(u"cmdCancelar"_s);
    EXPECT_FALSE(Abierta());
    EXPECT_TRUE(MenusHabilitados());
}

TEST_F(frmZTListaDeclarantesTest, AcceptOpensTheSelectedDeclarantAndShowsItsDeclarations) {
    GuardarTres();
    AbrirParaAbrir();
    oListaDeclaraciones().SelCSDC = 9;
    PulsarElemento(kLista, 2);
    pantalla.punteros.clear();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierta());
    EXPECT_EQ(oDeclarante().NIF, u"B1"_s);
    EXPECT_EQ(oDeclarante().Modo, cZTDeclarante::kModoExistente);
    EXPECT_EQ(oListaDeclaraciones().SelCSDC, 0);
    EXPECT_TRUE(DeclaracionesALaVista());
    EXPECT_EQ(pantalla.cesiones, 1);
    EXPECT_EQ(pantalla.punteros.front(), Puntero::Espera);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTListaDeclarantesTest, PictureDoubleClickAndEnterAcceptToo) {
    GuardarTres();
    AbrirParaAbrir();
    Pulsar(u"picAceptar"_s);
    EXPECT_EQ(oDeclarante().NIF, u"A1"_s);
    EXPECT_FALSE(Abierta());
    AbrirParaAbrir();
    PulsarDosVeces(kLista, 3);
    EXPECT_EQ(oDeclarante().NIF, u"C1"_s);
    EXPECT_FALSE(Abierta());
    AbrirParaAbrir();
    Tecla(Qt::Key_Down);
    QTest::keyPress(marco->windowHandle(), Qt::Key_Return);
    EXPECT_EQ(oDeclarante().NIF, u"B1"_s);
    EXPECT_FALSE(Abierta());
}

TEST_F(frmZTListaDeclarantesTest, EnterOnARowThatIsNotMarkedDoesNothingUntilSpaceMarksIt) {
    GuardarTres();
    AbrirParaAbrir();
    Lista(kLista).selectionModel()->clearSelection();
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(Abierta());
    Tecla(Qt::Key_Space);
    EXPECT_TRUE(Lista(kLista).Marcado(1));
    QTest::keyPress(marco->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(Abierta());
}

TEST_F(frmZTListaDeclarantesTest, TheMarkFollowsTheArrows) {
    GuardarTres();
    AbrirParaAbrir();
    Tecla(Qt::Key_Down);
    EXPECT_EQ(NifElegido(), u"B1"_s);
    EXPECT_TRUE(Lista(kLista).Marcado(2));
    Lista(kLista).selectionModel()->clearSelection();
    for (const Qt::Key flecha : {Qt::Key_Left, Qt::Key_Right}) {
        Tecla(flecha);
        EXPECT_TRUE(Lista(kLista).Marcado(2));
    }
    Tecla(Qt::Key_Up);
    EXPECT_TRUE(Lista(kLista).Marcado(1));
}

TEST_F(frmZTListaDeclarantesTest, PicturesTellTheUseAndWhetherThereIsAnyone) {
    Guardar(u"A1"_s, u"UNO"_s);
    AbrirParaAbrir();
    EXPECT_TRUE(ImagenDeAceptarEs(6));
    Formularios::Descargar(frmZTListaDeclarantes::kNombre.toString());
    AbrirParaBorrar();
    EXPECT_TRUE(ImagenDeAceptarEs(9));
    EXPECT_TRUE(Control(u"cmdAceptar"_s).isEnabled());
    Formularios::Descargar(frmZTListaDeclarantes::kNombre.toString());
    for (const auto& [modo, imagen] :
         {std::pair{cZTListaDeclarantes::kModoAbrir, 14}, {cZTListaDeclarantes::kModoBorrar, 15}}) {
        oListaDeclarantes().Modo = modo;
        oListaDeclarantes().vBufferDeclarantes = Tabla();
        Abrir(frmZTListaDeclarantes::kNombre);
        EXPECT_TRUE(ImagenDeAceptarEs(imagen));
        EXPECT_FALSE(Control(u"cmdAceptar"_s).isEnabled());
        EXPECT_TRUE(Control(u"picAceptar"_s).isEnabled());
        EXPECT_FALSE(Control(u"picOrden"_s).isVisible());
        Formularios::Descargar(frmZTListaDeclarantes::kNombre.toString());
    }
}

TEST_F(frmZTListaDeclarantesTest, ThePictureOnAnEmptyListShowsTheFailureUnderTheNameOfTheButton) {
    Abrir(frmZTListaDeclarantes::kNombre);
    Pulsar(u"picAceptar"_s);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().formulario, u"frmZTListaDeclarantes"_s);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTListaDeclarantes.cmdAceptar_Click"_s);
    EXPECT_TRUE(Abierta());
    EXPECT_EQ(terminado, -1);
}

TEST_F(frmZTListaDeclarantesTest, AFailureOfTheRowsIsShownUnderItsNameAndTheFormOpensWithWhatThereIs) {
    GuardarTres();
    oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
    oListaDeclarantes().vBufferDeclarantes(4, 2) = u"SIN CODIGO"_s;
    Abrir(frmZTListaDeclarantes::kNombre);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTListaDeclarantes.RellenarLista"_s);
    EXPECT_EQ(Lista(kLista).Cuenta(), 1);
    EXPECT_EQ(Lista(kLista).Seleccionado(), 1);
    EXPECT_EQ(formulario->windowTitle(), TextoDeFila(6));
    EXPECT_EQ(TextoDe(u"cmdAceptar"_s), TextoDeFila(28));
    EXPECT_TRUE(Control(u"cmdAceptar"_s).isEnabled());
}

TEST_F(frmZTListaDeclarantesTest, AFailureOfColumnsAndCaptionsIsShownUnderTheirNames) {
    Entorno().OffsetIdioma = kIdiomaSinTextos;
    AbrirParaAbrir();
    ASSERT_EQ(pantalla.errores.size(), 2U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTListaDeclarantes.InicializarLista"_s);
    EXPECT_EQ(pantalla.errores.back().evento, u"frmZTListaDeclarantes.AnadirCaptions"_s);
    EXPECT_TRUE(ImagenDeAceptarEs(14));
    EXPECT_TRUE(Abierta());
}

TEST_F(frmZTListaDeclarantesTest, AFailureOfAKeyIsShownUnderTheNameOfItsEvent) {
    AbrirParaAbrir();
    for (const auto& [tecla, evento] :
         {std::pair{Qt::Key_Return, u"frmZTListaDeclarantes.lsvDeclarantes_KeyPress"_s},
          {Qt::Key_Down, u"frmZTListaDeclarantes.lsvDeclarantes_KeyUp"_s}}) {
        pantalla.errores.clear();
        IrA(kLista);
        Tecla(tecla);
        ASSERT_EQ(pantalla.errores.size(), 1U);
        EXPECT_EQ(pantalla.errores.front().evento, evento);
        EXPECT_TRUE(Abierta());
    }
    EXPECT_EQ(terminado, -1);
}

TEST_F(frmZTListaDeclarantesTest, ADeclarantWithDeclarationsOrEstablishmentsIsRefused) {
    GuardarEstablecimiento(Guardar(u"A1"_s, u"SOLO ESTABLECIMIENTO"_s));
    GuardarDeclaracion(Guardar(u"B1"_s, u"SOLO DECLARACION"_s));
    AbrirParaBorrar();
    for (const int fila : {1, 2}) {
        pantalla.mensajes.clear();
        PulsarElemento(kLista, fila);
        Pulsar(u"cmdAceptar"_s);
        ASSERT_EQ(pantalla.mensajes.size(), 1U);
        EXPECT_EQ(pantalla.mensajes.front().texto, TextoDeFila(55));
        EXPECT_EQ(pantalla.mensajes.front().titulo, TextoDeFila(7));
        EXPECT_TRUE(pantalla.mensajes.front().unBoton);
        EXPECT_EQ(Foco(), kLista);
    }
    EXPECT_EQ(Lista(kLista).Cuenta(), 2);
}

TEST_F(frmZTListaDeclarantesTest, DeclarationsAndEstablishmentsAreBothAskedForAlways) {
    GuardarTres();
    AbrirParaBorrar();
    pantalla.respuesta = kRespuestaCancelar;
    Entorno().mdbmod = Entorno().mdbPath + u"NoExiste.mdb"_s;
    Pulsar(u"cmdAceptar"_s);
    ASSERT_EQ(pantalla.errores.size(), 2U);
    EXPECT_EQ(pantalla.errores.front().evento, u"cDeclarante.TieneDeclaraciones"_s);
    EXPECT_EQ(pantalla.errores.back().evento, u"cDeclarante.TieneEstablecimientos"_s);
}

TEST_F(frmZTListaDeclarantesTest, DeletingAsksWithTheNifAndStaysOpenForMore) {
    GuardarTres();
    AbrirParaBorrar();
    PulsarElemento(kLista, 2);
    Pulsar(u"cmdAceptar"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, u"¿Está seguro de querer borrar el declarante B1"_s);
    EXPECT_EQ(pantalla.mensajes.front().titulo, u"Borrar declarante"_s);
    EXPECT_FALSE(pantalla.mensajes.front().unBoton);
    EXPECT_EQ(NIFs(), QStringList({u"A1"_s, u"C1"_s}));
    EXPECT_EQ(oListaDeclarantes().ObtenerDeclarantes().UltimaFila(), 2);
    EXPECT_TRUE(Abierta());
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTListaDeclarantesTest, ARefusedQuestionDeletesNothing) {
    GuardarTres();
    AbrirParaBorrar();
    pantalla.respuesta = 2;
    Pulsar(u"picAceptar"_s);
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(oListaDeclarantes().ObtenerDeclarantes().UltimaFila(), 3);
    EXPECT_EQ(Lista(kLista).Cuenta(), 3);
}

TEST_F(frmZTListaDeclarantesTest, TheLastTwoCanBeDeletedOneAfterTheOther) {
    Guardar(u"A1"_s, u"UNO"_s);
    Guardar(u"B1"_s, u"DOS"_s);
    AbrirParaBorrar();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(NIFs(), QStringList({u"B1"_s}));
    EXPECT_TRUE(Control(u"cmdAceptar"_s).isEnabled());
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(Lista(kLista).Cuenta(), 0);
    EXPECT_FALSE(Control(u"cmdAceptar"_s).isEnabled());
    EXPECT_TRUE(ImagenDeAceptarEs(15));
    EXPECT_TRUE(oListaDeclarantes().vBufferDeclarantes.EsNula());
    EXPECT_TRUE(Abierta());
    EXPECT_EQ(Foco(), u"cmdCancelar"_s);
}

TEST_F(frmZTListaDeclarantesTest, DeletingReturnsToTheOrderOfNif) {
    GuardarTres();
    AbrirParaBorrar();
    Pulsar(u"lblCol2"_s);
    ASSERT_EQ(NifElegido(), u"C1"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(NIFs(), QStringList({u"A1"_s, u"B1"_s}));
    EXPECT_EQ(Lista(kLista).ClaveOrden(), 1);
    EXPECT_EQ(Lista(kLista).Seleccionado(), 1);
}

TEST_F(frmZTListaDeclarantesTest, LeavingTheListLeavesNoCurrentDeclarant) {
    GuardarTres();
    oDeclarante().Modo = cZTDeclarante::kModoExistente;
    oDeclarante().CSDE = 1;
    oDeclarante().InicializaDatos();
    for (const QString& boton : {u"cmdCancelar"_s, u"picCancelar"_s}) {
        AbrirParaAbrir();
        Pulsar(boton);
        EXPECT_FALSE(Abierta());
        EXPECT_EQ(oDeclarante().Modo, cZTDeclarante::kModoNuevo);
        EXPECT_EQ(oDeclarante().CSDE, 0);
        EXPECT_EQ(oDeclarante().NIF, QString());
    }
}
