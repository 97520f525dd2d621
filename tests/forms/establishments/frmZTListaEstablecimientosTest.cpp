#include "forms/establishments/frmZTListaEstablecimientos.h"

#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/PruebaDeEstablecimientos.h"

using namespace Qt::StringLiterals;

namespace {

const QString kLista = u"lsvEstablecimientos"_s;

class frmZTListaEstablecimientosTest : public PruebaDeEstablecimientos {
  protected:
    void AbrirLista() { Abrir(frmZTListaEstablecimientos::kNombre); }

    static void GuardarTres() {
        Guardar(u"20ES111A"_s, u"UNO"_s);
        Guardar(u"20ES222B"_s, u"DOS"_s);
        Guardar(u"20ES333C"_s, u"TRES"_s);
    }
    /// Gives an establishment a line in a declaration of its declarant.
    static void GuardarAnexo(qint32 cses) {
        svrZELT::cZTDeclaraciones declaraciones;
        declaraciones.mdbmod = Entorno().mdbmod;
        const qint32 csdc = declaraciones.GuardarDeclaraciones(
            {oDeclarante().CSDE, qint16{2007}, qint16{1}, 24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
        Tabla lineas(7, 1);
        lineas(1, 1) = csdc;
        lineas(2, 1) = cses;
        lineas(3, 1) = qint16{1};
        for (const int figura : {4, 5, 6, 7}) {
            lineas(figura, 1) = 100.0;
        }
        svrZELT::cZTAnexos anexos;
        anexos.mdbmod = Entorno().mdbmod;
        ASSERT_TRUE(anexos.GuardarAnexos(lineas, std::nullopt, csdc));
    }

    [[nodiscard]] int Elegido() const { return Lista(kLista).Seleccionado(); }
    [[nodiscard]] qint32 ClaveDe(int fila) const { return Lista(kLista).Texto(fila).toInt(); }
    [[nodiscard]] bool ImagenEs(const QString& boton, int numero) const {
        return Control<BotonImagen>(boton).icon().pixmap(16, 16).toImage() ==
               ilsMDI16(numero).pixmap(16, 16).toImage();
    }
    static bool Abierta() { return Cargado(frmZTListaEstablecimientos::kNombre); }
};

}  // namespace

TEST_F(frmZTListaEstablecimientosTest, CaptionsAreInTheLanguageInForceAndTheDeclarantIsNamedAsPlainText) {
    GuardarTres();
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirLista();
        EXPECT_EQ(formulario->windowTitle(), TextoDeFila(10 + idioma));
        for (const auto& [control, texto] : {std::pair{u"lblDatosDte"_s, 74},
                                             {u"lblDeclarante"_s, 60},
                                             {u"lblNIF"_s, 59},
                                             {u"lblCIM"_s, 19},
                                             {u"lblDomicilio"_s, 9},
                                             {u"lblProvincia"_s, 69},
                                             {u"lblMunicipio"_s, 71},
                                             {u"cmdNuevo"_s, 97},
                                             {u"cmdDatos"_s, 98},
                                             {u"cmdEliminar"_s, 99},
                                             {u"cmdCerrarLista"_s, 20}}) {
            EXPECT_EQ(TextoDe(control), TextoDeFila(texto + idioma)) << control.toStdString();
        }
        for (const auto& [columna, texto] : {std::pair{2, 19}, {3, 9}, {4, 70}, {5, 72}}) {
            EXPECT_EQ(Lista(kLista).ClaveColumna(columna), TextoDeFila(texto + idioma));
        }
        EXPECT_EQ(TextoDe(u"lblDec"_s), u"GASOLEOS <B> & HIJOS"_s);
        EXPECT_EQ(Control<QLabel>(u"lblDec"_s).textFormat(), Qt::PlainText);
        EXPECT_EQ(TextoDe(u"lblDNI"_s), u"12345678Z"_s);
        Formularios::Descargar(frmZTListaEstablecimientos::kNombre.toString());
    }
}

TEST_F(frmZTListaEstablecimientosTest, ARowHoldsKeyCimAddressProvinceAndMunicipality) {
    const qint32 cses = Guardar(u"20ES111A"_s, u"UNO"_s);
    AbrirLista();
    const ListaZT& lista = Lista(kLista);
    ASSERT_EQ(lista.Cuenta(), 1);
    EXPECT_EQ(ClaveDe(1), cses);
    EXPECT_EQ(lista.Subitem(1, 1), u"20ES111A"_s);
    EXPECT_EQ(lista.Subitem(1, 2), u"UNO"_s);
    EXPECT_EQ(lista.Subitem(1, 3), u"ONDARZIA"_s);
    EXPECT_EQ(lista.Subitem(1, 4), u"AGERLEKUAIN"_s);
    EXPECT_TRUE(lista.isColumnHidden(0));
    EXPECT_FALSE(lista.Ordenado());
    for (const auto& [columna, ancho] : {std::pair{2, 1170}, {3, 2980}, {4, 1275}, {5, 2340}}) {
        EXPECT_EQ(lista.AnchoColumna(columna), TwipsAPixeles(ancho, lista));
    }
}

TEST_F(frmZTListaEstablecimientosTest, EachHeadingStandsOverItsColumn) {
    GuardarTres();
    AbrirLista();
    const ListaZT& lista = Lista(kLista);
    int left = lista.mapTo(formulario, QPoint(TwipsAPixeles(10, lista), 0)).x();
    int columna = 2;
    for (const QString& nombre : {u"lblCIM"_s, u"lblDomicilio"_s, u"lblProvincia"_s, u"lblMunicipio"_s}) {
        const QWidget& etiqueta = Control(nombre);
        EXPECT_EQ(etiqueta.mapTo(formulario, QPoint(0, 0)).x(), left);
        EXPECT_EQ(etiqueta.width(), lista.AnchoColumna(columna++));
        EXPECT_EQ(etiqueta.focusPolicy(), Qt::NoFocus);
        left += etiqueta.width();
    }
}

TEST_F(frmZTListaEstablecimientosTest, TabGoesFromTheListThroughTheButtons) {
    GuardarTres();
    AbrirLista();
    QStringList paradas;
    for (int i = 0; i < 5; ++i) {
        paradas += Foco();
        Tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(paradas,
              QStringList({kLista, u"cmdNuevo"_s, u"cmdDatos"_s, u"cmdEliminar"_s, u"cmdCerrarLista"_s}));
    EXPECT_EQ(Foco(), kLista);
}

TEST_F(frmZTListaEstablecimientosTest, WithoutEstablishmentsOnlyNewAndCloseWork) {
    AbrirLista();
    EXPECT_EQ(Lista(kLista).Cuenta(), 0);
    for (const QString& boton : {u"cmdDatos"_s, u"cmdEliminar"_s, u"picDatos"_s, u"picEliminar"_s}) {
        EXPECT_FALSE(Control(boton).isEnabled()) << boton.toStdString();
    }
    for (const QString& boton : {u"cmdNuevo"_s, u"picNuevo"_s, u"cmdCerrarLista"_s, u"picCerrar"_s}) {
        EXPECT_TRUE(Control(boton).isEnabled()) << boton.toStdString();
    }
    EXPECT_TRUE(ImagenEs(u"picDatos"_s, 17));
    EXPECT_TRUE(ImagenEs(u"picEliminar"_s, 15));
}

TEST_F(frmZTListaEstablecimientosTest, WithEstablishmentsTheFirstIsSelectedAndEverythingWorks) {
    GuardarTres();
    AbrirLista();
    EXPECT_EQ(Elegido(), 1);
    EXPECT_TRUE(Lista(kLista).Marcado(1));
    for (const QString& boton : {u"cmdDatos"_s, u"cmdEliminar"_s, u"picDatos"_s, u"picEliminar"_s}) {
        EXPECT_TRUE(Control(boton).isEnabled()) << boton.toStdString();
    }
    EXPECT_TRUE(ImagenEs(u"picDatos"_s, 10));
    EXPECT_TRUE(ImagenEs(u"picEliminar"_s, 9));
}

TEST_F(frmZTListaEstablecimientosTest, NewOpensTheFormOnANewEstablishmentInPlaceOfTheList) {
    for (const QString& boton : {u"cmdNuevo"_s, u"picNuevo"_s}) {
        AbrirLista();
        Pulsar(boton);
        EXPECT_FALSE(Abierta());
        EXPECT_TRUE(ALaVista(frmZTEstablecimiento::kNombre));
        EXPECT_EQ(oEstablecimientos().Modo, cZTEstablecimientos::kModoNuevo);
        EXPECT_EQ(oEstablecimientos().Procedencia, cZTEstablecimientos::kDesdeLista);
        Formularios::Descargar(frmZTEstablecimiento::kNombre.toString());
    }
}

TEST_F(frmZTListaEstablecimientosTest, DataOpensTheFormOnTheSelectedEstablishment) {
    GuardarTres();
    for (const QString& boton : {u"cmdDatos"_s, u"picDatos"_s}) {
        oEstablecimientos().SelCSES = 0;
        AbrirLista();
        PulsarElemento(kLista, 2);
        const qint32 cses = ClaveDe(2);
        Pulsar(boton);
        EXPECT_FALSE(Abierta());
        EXPECT_TRUE(ALaVista(frmZTEstablecimiento::kNombre));
        EXPECT_EQ(oEstablecimientos().CSES, cses);
        EXPECT_EQ(oEstablecimientos().Modo, cZTEstablecimientos::kModoExistente);
        EXPECT_EQ(oEstablecimientos().CIM, u"20ES222B"_s);
        EXPECT_EQ(oEstablecimientos().Procedencia, cZTEstablecimientos::kDesdeLista);
        Formularios::Descargar(frmZTEstablecimiento::kNombre.toString());
    }
}

TEST_F(frmZTListaEstablecimientosTest, ADoubleClickOpensTheFormAndLeavesTheOriginThatStands) {
    GuardarTres();
    oEstablecimientos().Procedencia = cZTEstablecimientos::kDesdeDetalle;
    AbrirLista();
    PulsarDosVeces(kLista, 3);
    EXPECT_FALSE(Abierta());
    EXPECT_TRUE(ALaVista(frmZTEstablecimiento::kNombre));
    EXPECT_EQ(oEstablecimientos().CIM, u"20ES333C"_s);
    EXPECT_EQ(oEstablecimientos().Procedencia, cZTEstablecimientos::kDesdeDetalle);
}

TEST_F(frmZTListaEstablecimientosTest, EnterOnAMarkedRowOpensItsData) {
    GuardarTres();
    AbrirLista();
    Lista(kLista).selectionModel()->clearSelection();
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(Abierta());
    Tecla(Qt::Key_Down);
    QTest::keyPress(marco->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(Abierta());
    EXPECT_EQ(oEstablecimientos().CIM, u"20ES222B"_s);
    EXPECT_EQ(oEstablecimientos().Procedencia, cZTEstablecimientos::kDesdeLista);
}

TEST_F(frmZTListaEstablecimientosTest, TheRowJustEditedIsSelectedAgain) {
    GuardarTres();
    AbrirLista();
    PulsarElemento(kLista, 3);
    const qint32 cses = ClaveDe(3);
    Pulsar(u"cmdDatos"_s);
    formulario = &ElFormulario<frmZTEstablecimiento>();
    Escribir(u"txtDomicilio"_s, u"OTRA CALLE"_s);
    IrA(u"txtCIM"_s);
    Tecla(Qt::Key_Escape);
    Escribir(u"txtCIM"_s, u"20ES123Y"_s);
    Pulsar(u"cmdAceptar"_s);
    ASSERT_TRUE(Abierta());
    formulario = &ElFormulario<frmZTListaEstablecimientos>();
    EXPECT_EQ(ClaveDe(Elegido()), cses);
    EXPECT_TRUE(Lista(kLista).Marcado(Elegido()));
    EXPECT_EQ(Lista(kLista).Subitem(Elegido(), 2), u"OTRA CALLE"_s);
}

TEST_F(frmZTListaEstablecimientosTest, TheRowToSelectIsScrolledIntoView) {
    for (int i = 0; i < 40; ++i) {
        Guardar(u"20ES%1Y"_s.arg(100 + i));
    }
    oEstablecimientos().SelCSES = Almacenados()(0, 35).aEntero32();
    AbrirLista();
    const ListaZT& lista = Lista(kLista);
    ASSERT_EQ(Elegido(), 35);
    const QRect fila = lista.visualRect(lista.model()->index(34, 1));
    EXPECT_TRUE(lista.viewport()->rect().contains(fila.center()));
    EXPECT_FALSE(lista.viewport()->rect().contains(lista.visualRect(lista.model()->index(0, 1)).center()));
}

TEST_F(frmZTListaEstablecimientosTest, AKeyThatIsNotInTheListSelectsTheFirstRow) {
    GuardarTres();
    oEstablecimientos().SelCSES = 999;
    AbrirLista();
    EXPECT_EQ(Elegido(), 1);
}

TEST_F(frmZTListaEstablecimientosTest, AnEstablishmentWithAnnexesIsRefusedWithoutAQuestion) {
    GuardarAnexo(Guardar(u"20ES111A"_s));
    AbrirLista();
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        pantalla.mensajes.clear();
        Pulsar(u"cmdEliminar"_s);
        ASSERT_EQ(pantalla.mensajes.size(), 1U);
        EXPECT_EQ(pantalla.mensajes.front().texto, TextoDeFila(58 + idioma));
        EXPECT_EQ(pantalla.mensajes.front().titulo, TextoDeFila(88 + idioma));
        EXPECT_TRUE(pantalla.mensajes.front().unBoton);
        EXPECT_EQ(Foco(), kLista);
    }
    EXPECT_EQ(Almacenados().UltimaFila(), 1);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTListaEstablecimientosTest, DeletingAsksAndThenSelectsTheFirstRow) {
    GuardarTres();
    AbrirLista();
    PulsarElemento(kLista, 2);
    oEstablecimientos().SelCSES = ClaveDe(3);
    pantalla.punteros.clear();
    Pulsar(u"cmdEliminar"_s);
    EXPECT_EQ(pantalla.punteros.front(), Puntero::Espera);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, TextoDeFila(193));
    EXPECT_EQ(pantalla.mensajes.front().titulo, TextoDeFila(10));
    EXPECT_FALSE(pantalla.mensajes.front().unBoton);
    ASSERT_EQ(Lista(kLista).Cuenta(), 2);
    EXPECT_EQ(Lista(kLista).Subitem(2, 1), u"20ES333C"_s);
    EXPECT_EQ(Elegido(), 1);
    EXPECT_TRUE(Lista(kLista).Marcado(1));
    EXPECT_EQ(oEstablecimientos().SelCSES, 0);
    EXPECT_EQ(Almacenados().UltimaFila(), 2);
}

TEST_F(frmZTListaEstablecimientosTest, ARefusedQuestionDeletesNothingAndTheFocusReturnsToTheList) {
    GuardarTres();
    AbrirLista();
    pantalla.respuesta = 2;
    Pulsar(u"picEliminar"_s);
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(Almacenados().UltimaFila(), 3);
    EXPECT_EQ(Foco(), kLista);
}

TEST_F(frmZTListaEstablecimientosTest, DeletingTheLastOneLeavesOnlyNewAndClose) {
    Guardar(u"20ES111A"_s);
    AbrirLista();
    Pulsar(u"cmdEliminar"_s);
    EXPECT_EQ(Lista(kLista).Cuenta(), 0);
    EXPECT_FALSE(Control(u"cmdDatos"_s).isEnabled());
    EXPECT_FALSE(Control(u"cmdEliminar"_s).isEnabled());
    EXPECT_EQ(Foco(), u"cmdNuevo"_s);
}

TEST_F(frmZTListaEstablecimientosTest, CloseShowsTheListOfDeclarations) {
    for (const QString& boton : {u"cmdCerrarLista"_s, u"picCerrar"_s}) {
        AbrirLista();
        Pulsar(boton);
        EXPECT_FALSE(Abierta());
        EXPECT_TRUE(ALaVista(u"frmZTListaDeclaraciones"));
        Formularios::Descargar(u"frmZTListaDeclaraciones"_s);
    }
}

TEST_F(frmZTListaEstablecimientosTest, AFailureOfTheListIsShownUnderItsFixedName) {
    Guardar(u"20ES111A"_s);
    Entorno().mdblec = Entorno().mdbPath + u"NoExiste.mdb"_s;
    AbrirLista();
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().formulario, u"frmZTListaEstablecimientos"_s);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmNotListaCenso.RellenarEstablecimientos"_s);
    EXPECT_EQ(formulario->windowTitle(), TextoDeFila(10));
    EXPECT_EQ(TextoDe(u"cmdNuevo"_s), TextoDeFila(97));
    EXPECT_FALSE(Control(u"cmdDatos"_s).isEnabled());
}

TEST_F(frmZTListaEstablecimientosTest, AFailureOfCaptionsAndColumnsIsShownUnderTheirNames) {
    Entorno().OffsetIdioma = kIdiomaSinTextos;
    AbrirLista();
    ASSERT_EQ(pantalla.errores.size(), 2U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTListaEstablecimientos.AnadirCaptions"_s);
    EXPECT_EQ(pantalla.errores.back().evento, u"frmZTListaEstablecimientos.InicializarLista"_s);
    EXPECT_FALSE(Control(u"cmdDatos"_s).isEnabled());
    EXPECT_TRUE(Abierta());
}

TEST_F(frmZTListaEstablecimientosTest, EnterOnAnEmptyListIsShownAsAFailureAndTheFormStays) {
    AbrirLista();
    IrA(kLista);
    Tecla(Qt::Key_Return);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTListaEstablecimientos.lsvEstablecimientos_KeyPress"_s);
    EXPECT_TRUE(Abierta());
    EXPECT_EQ(terminado, -1);
}
