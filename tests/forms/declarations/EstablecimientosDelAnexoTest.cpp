// The list of establishments of the entry of annexes, and the trips to the form of an establishment.

#include "forms/establishments/frmZTEstablecimiento.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/PruebaDeAnexos.h"

using namespace Qt::StringLiterals;

namespace {

class EstablecimientosDelAnexoTest : public PruebaDeAnexos {
  protected:
    void EsperarDatosYEliminar(bool habilitado) const {
        for (const QString& nombre : {u"cmdDatos"_s, u"picDatos"_s, u"cmdEliminar"_s, u"picEliminar"_s}) {
            EXPECT_EQ(Habilitado(nombre), habilitado) << nombre.toStdString();
        }
        EXPECT_TRUE(Muestra(u"picDatos"_s, ilsMDI16(habilitado ? 10 : 17)));
        EXPECT_TRUE(Muestra(u"picEliminar"_s, ilsMDI16(habilitado ? 9 : 15)));
    }
    void EsperarAviso(int texto) const {
        ASSERT_EQ(pantalla.mensajes.size(), 1U);
        EXPECT_EQ(pantalla.mensajes[0].texto, Texto(texto));
        EXPECT_EQ(pantalla.mensajes[0].titulo, u"Borrado de establecimiento (Eus)"_s);
        EXPECT_TRUE(pantalla.mensajes[0].unBoton);
    }
    /// Leaves the form of the establishment by its cancel button.
    void Volver() {
        Pasar(frmZTEstablecimiento::kNombre);
        Pulsar(u"cmdCancelar"_s);
        Pasar(frmZTDetDeclaracion::kNombre);
    }
};

}  // namespace

TEST_F(EstablecimientosDelAnexoTest, EachEstablishmentHasItsRowWithItsProducts) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 3}, {cses[0], 1}, {cses[1], 5}});
    AbrirAnexos();
    const ListaZT& lista = Establecimientos();
    ASSERT_EQ(lista.CuentaColumnas(), 6);
    EXPECT_EQ(lista.ClaveColumna(1), u"Clave"_s);
    int columna = 2;
    for (const auto& [clave, cabecera] : {std::pair{19, u"lblCIM"_s},
                                          {9, u"lblDomicilio"_s},
                                          {70, u"lblProvincia"_s},
                                          {72, u"lblMunicipio"_s},
                                          {87, u"lblEstAnexos"_s}}) {
        EXPECT_EQ(lista.ClaveColumna(columna), Texto(clave));
        EXPECT_EQ(Control(cabecera).width(), lista.AnchoColumna(columna));
        ++columna;
    }
    ASSERT_EQ(lista.Cuenta(), 2);
    EXPECT_EQ(lista.Texto(2), QString::number(cses[1]));
    EXPECT_EQ(Subitems(u"lsvEstablecimientos"_s, 1, 5),
              (QStringList{u"20ES  1Y"_s, u"CARRETERA"_s, u"ONDARZIA"_s, u"AGERLEKUAIN"_s, u"1,3"_s}));
    EXPECT_EQ(Productos(2), u"5"_s);
}

TEST_F(EstablecimientosDelAnexoTest, TheFirstEstablishmentIsSelectedAndItsAnnexOnTheScreen) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}, {cses[1], 2}});
    AbrirAnexos();
    EXPECT_TRUE(Establecimientos().Marcado(1));
    EXPECT_EQ(oAnexos().CSES, cses[0]);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"1,00"_s);
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"24,00"_s);
    EXPECT_EQ(Foco(), u"lsvEstablecimientos"_s);
    EsperarDatosYEliminar(true);
}

TEST_F(EstablecimientosDelAnexoTest, WithoutEstablishmentsEverythingIsDisabledButNewAndClose) {
    HacerDeclaracion(2007, kTasas, 0);
    AbrirAnexos();
    EXPECT_EQ(Establecimientos().Cuenta(), 0);
    EsperarDatosYEliminar(false);
    for (int k = 1; k <= 6; ++k) {
        for (const QString& nombre : {Exento(k), BaseImp(k)}) {
            EXPECT_FALSE(Habilitado(nombre));
            EXPECT_TRUE(Caja(nombre).isReadOnly());
        }
    }
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"0,00"_s);
    EXPECT_TRUE(Habilitado(u"cmdNuevo"_s));
    EXPECT_TRUE(Habilitado(u"cmdCerrarAnexo"_s));
    EXPECT_FALSE(Habilitado(u"cmdGuardarDeclaracion"_s));
    PulsarEn(*Establecimientos().viewport(), QPoint(5, 5));
    IrA(u"lsvEstablecimientos"_s);
    Tecla(Qt::Key_Down);
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(EstablecimientosDelAnexoTest, AnotherEstablishmentComesByClickAndByArrowAndTheFiguresStay) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(BaseImp(1), u"10"_s);
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    EXPECT_EQ(Foco(), u"lsvEstablecimientos"_s);
    EXPECT_EQ(oAnexos().CSES, cses[1]);
    EXPECT_EQ(TextoDe(BaseImp(1)), QString());
    EXPECT_EQ(Productos(1), u"1"_s);
    EXPECT_TRUE(oAnexos().Modificado);
    Tecla(Qt::Key_Up);
    EXPECT_EQ(oAnexos().CSES, cses[0]);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"10,00"_s);
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"240,00"_s);
}

TEST_F(EstablecimientosDelAnexoTest, OneWithSixLinesStandsWithItsFirstFourSubItemsAndTheFailureIsReported) {
    HacerDeclaracion(2002, kTasas, 3);
    HacerLineas(
        {{cses[0], 1}, {cses[1], 1}, {cses[1], 2}, {cses[1], 3}, {cses[1], 4}, {cses[1], 5}, {cses[1], 6}});
    AbrirAnexos();
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores[0].formulario, u"frmZTDetDeclaracion"_s);
    EXPECT_EQ(pantalla.errores[0].evento, u"frmZTDetDeclaracion.RellenarEstDecl"_s);
    EXPECT_EQ(pantalla.errores[0].descripcion, TextoDeError(NumError::Subindice));
    EXPECT_TRUE(Abierto(frmZTDetDeclaracion::kNombre));
    ASSERT_EQ(Establecimientos().Cuenta(), 2) << "the list ends with it";
    EXPECT_EQ(Productos(1), u"1"_s);
    EXPECT_EQ(Establecimientos().Texto(2), QString::number(cses[1]));
    EXPECT_EQ(Subitems(u"lsvEstablecimientos"_s, 2, 5),
              (QStringList{u"20ES  2Y"_s, u"CARRETERA"_s, u"ONDARZIA"_s, u"AGERLEKUAIN"_s, QString()}));
}

TEST_F(EstablecimientosDelAnexoTest, AfterAListThatFailedNoFigureGoesToTheEstablishmentOfTheTimeBefore) {
    HacerDeclaracion(2002, kTasas, 3);
    HacerLineas(
        {{cses[0], 1}, {cses[1], 1}, {cses[1], 2}, {cses[1], 3}, {cses[1], 4}, {cses[1], 5}, {cses[2], 1}});
    AbrirAnexos();
    PulsarElemento(u"lsvEstablecimientos"_s, 3);
    HacerLineas({{cses[0], 1},
                 {cses[1], 1},
                 {cses[1], 2},
                 {cses[1], 3},
                 {cses[1], 4},
                 {cses[1], 5},
                 {cses[1], 6},
                 {cses[2], 1}});
    AbrirAnexos();
    ASSERT_EQ(pantalla.errores.size(), 1U);
    PulsarElemento(u"lsvEstablecimientos"_s, 1);
    Escribir(BaseImp(1), u"7"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    const std::vector<Linea> lineas = Almacenadas();
    ASSERT_EQ(lineas.size(), 8U);
    EXPECT_EQ(lineas.front(), Linea(cses[0], 1, 700));
    EXPECT_EQ(lineas.back(), Linea(cses[2], 1, 100));
}

TEST_F(EstablecimientosDelAnexoTest, DeletingWithChangesIsRefused) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(BaseImp(1), u"10"_s);
    Pulsar(u"cmdEliminar"_s);
    EsperarAviso(191);
    EXPECT_EQ(Establecimientos().Cuenta(), 2);
}

TEST_F(EstablecimientosDelAnexoTest, AnEstablishmentWithAnnexesIsNotDeleted) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}});
    AbrirAnexos();
    Pulsar(u"picEliminar"_s);
    EsperarAviso(58);
    EXPECT_EQ(Establecimientos().Cuenta(), 2);
    EXPECT_EQ(Foco(), u"lsvEstablecimientos"_s);
}

TEST_F(EstablecimientosDelAnexoTest, OneWithoutAnnexesIsDeletedUnasked) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[1], 1}});
    AbrirAnexos();
    Pulsar(u"cmdEliminar"_s);
    EXPECT_TRUE(pantalla.mensajes.empty());
    ASSERT_EQ(Establecimientos().Cuenta(), 1);
    EXPECT_EQ(oAnexos().CSES, cses[1]);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"1,00"_s);
    EXPECT_EQ(Foco(), u"lsvEstablecimientos"_s);
    EXPECT_EQ(LineasAlmacenadas(), 1);
}

TEST_F(EstablecimientosDelAnexoTest, DeletingTheOnlyOneDisablesTheGridAtOnce) {
    HacerDeclaracion(2007, kTasas, 1);
    AbrirAnexos();
    ASSERT_TRUE(Habilitado(BaseImp(1)));
    Tecla(Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(Establecimientos().Cuenta(), 0);
    EXPECT_FALSE(Habilitado(BaseImp(1)));
    EXPECT_TRUE(Caja(BaseImp(1)).isReadOnly());
    EsperarDatosYEliminar(false);
}

TEST_F(EstablecimientosDelAnexoTest, UnsavedFiguresSurviveACancelledNewEstablishment) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(BaseImp(1), u"10"_s);
    Pulsar(u"cmdNuevo"_s);
    EXPECT_FALSE(Abierto(frmZTDetDeclaracion::kNombre));
    EXPECT_EQ(oEstablecimientos().Modo, cZTEstablecimientos::kModoNuevo);
    EXPECT_EQ(oEstablecimientos().Procedencia, cZTEstablecimientos::kDesdeDetalle);
    Volver();
    EXPECT_EQ(oAnexos().Procedencia, cZTAnexos::kDesdeEstablecimiento);
    EXPECT_EQ(oAnexos().CSES, cses[0]);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"10,00"_s);
    EXPECT_EQ(Productos(1), u"1"_s);
    EXPECT_TRUE(Habilitado(u"cmdGuardarDeclaracion"_s));
    EXPECT_EQ(LineasAlmacenadas(), 0);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(LineasAlmacenadas(), 1);
}

TEST_F(EstablecimientosDelAnexoTest, ANewEstablishmentIsMadeAndComesBackSelectedBesideTheUnsavedFigures) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(BaseImp(1), u"10"_s);
    Pulsar(u"cmdNuevo"_s);
    Pasar(frmZTEstablecimiento::kNombre);
    Escribir(u"txtCIM"_s, u"20es123y"_s);
    Escribir(u"txtDomicilio"_s, u"carretera 5"_s);
    Escribir(u"txtProvin"_s, u"20"_s);
    Tecla(Qt::Key_Tab);
    Escribir(u"txtMuni"_s, u"2"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdAceptar"_s);
    Pasar(frmZTDetDeclaracion::kNombre);
    const ListaZT& lista = Establecimientos();
    ASSERT_EQ(lista.Cuenta(), 3);
    EXPECT_EQ(lista.Subitem(lista.Seleccionado(), 1), u"20ES123Y"_s);
    const qint32 nuevo = oEstablecimientos().CSES;
    EXPECT_EQ(oAnexos().CSES, nuevo);
    EXPECT_EQ(TextoDe(BaseImp(1)), QString());
    Escribir(BaseImp(2), u"3"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Almacenadas(), (std::vector<Linea>{{cses[0], 1, 1000}, {nuevo, 2, 300}}));
}

TEST_F(EstablecimientosDelAnexoTest, ComingBackToOneThatWasDeletedLeavesTheFirstAtWork) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}});
    AbrirAnexos();
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    Pulsar(u"cmdDatos"_s);
    Volver();
    Pulsar(u"cmdEliminar"_s);
    ASSERT_EQ(Establecimientos().Cuenta(), 1);
    Pulsar(u"cmdNuevo"_s);
    Volver();
    ASSERT_EQ(oEstablecimientos().SelCSES, cses[1]);
    EXPECT_TRUE(Establecimientos().Marcado(1));
    EXPECT_EQ(oAnexos().CSES, cses[0]);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"1,00"_s);
    Escribir(BaseImp(2), u"5"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Almacenadas(), (std::vector<Linea>{{cses[0], 1, 100}, {cses[0], 2, 500}}));
}

TEST_F(EstablecimientosDelAnexoTest, ComingBackToOneOfAnotherDeclarantLosesNothing) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}, {cses[1], 3}});
    oEstablecimientos().CSES = cses[1] + 1000;
    AbrirAnexos();
    Escribir(BaseImp(2), u"5"_s);
    Pulsar(u"cmdNuevo"_s);
    Volver();
    ASSERT_EQ(oEstablecimientos().SelCSES, cses[1] + 1000);
    EXPECT_EQ(oAnexos().CSES, cses[0]);
    EXPECT_EQ(TextoDe(BaseImp(2)), u"5,00"_s);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Almacenadas(), (std::vector<Linea>{{cses[0], 1, 100}, {cses[0], 2, 500}, {cses[1], 3, 100}}));
}

TEST_F(EstablecimientosDelAnexoTest, TheDataOfTheSelectedOneOpenAndItsAnnexIsBlankAfterwards) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}, {cses[1], 2}});
    AbrirAnexos();
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    Pulsar(u"picDatos"_s);
    EXPECT_FALSE(Abierto(frmZTDetDeclaracion::kNombre));
    EXPECT_EQ(oEstablecimientos().Modo, cZTEstablecimientos::kModoExistente);
    EXPECT_EQ(oEstablecimientos().CIM, u"20ES  2Y"_s);
    EXPECT_EQ(oEstablecimientos().Procedencia, cZTEstablecimientos::kDesdeDetalle);
    EXPECT_EQ(oEstablecimientos().SelCSES, 0);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
    Volver();
    EXPECT_EQ(Establecimientos().Seleccionado(), 2);
    EXPECT_EQ(oAnexos().CSES, cses[1]);
    EXPECT_EQ(TextoDe(BaseImp(2)), QString());
    EXPECT_EQ(Productos(2), QString());
    EXPECT_EQ(Productos(1), u"1"_s);
    EXPECT_FALSE(oAnexos().Modificado);
    EXPECT_EQ(LineasAlmacenadas(), 2) << "the store keeps them until a save";
    PulsarElemento(u"lsvEstablecimientos"_s, 1);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"1,00"_s);
}

TEST_F(EstablecimientosDelAnexoTest, TheBlankAnnexReachesTheStoreWithTheNextSave) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}, {cses[1], 2}});
    AbrirAnexos();
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    Pulsar(u"cmdDatos"_s);
    Volver();
    PulsarElemento(u"lsvEstablecimientos"_s, 1);
    Escribir(BaseImp(1), u"7"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Almacenadas(), (std::vector<Linea>{{cses[0], 1, 700}}));
}

TEST_F(EstablecimientosDelAnexoTest, ADoubleClickOpensTheEstablishmentAndLeavesWhereItGoesBackTo) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    oEstablecimientos().Procedencia = 99;
    PulsarDosVeces(u"lsvEstablecimientos"_s, 2);
    EXPECT_TRUE(Formularios::Visible(frmZTEstablecimiento::kNombre.toString()));
    EXPECT_EQ(oEstablecimientos().CSES, cses[1]);
    EXPECT_EQ(oEstablecimientos().Procedencia, 99);
}

TEST_F(EstablecimientosDelAnexoTest, AnEstablishmentDeletedRightAfterItsTripLeavesTheFirstAtWork) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}});
    AbrirAnexos();
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    Pulsar(u"cmdDatos"_s);
    Volver();
    ASSERT_EQ(oEstablecimientos().SelCSES, cses[1]);
    Pulsar(u"cmdEliminar"_s);
    ASSERT_EQ(Establecimientos().Cuenta(), 1);
    EXPECT_EQ(oAnexos().CSES, cses[0]);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"1,00"_s);
    Escribir(BaseImp(2), u"1"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(LineasAlmacenadas(), 2);
}

TEST_F(EstablecimientosDelAnexoTest, AfterADeletionTheSelectionGoesToThatOfTheTripAndItsLinesStay) {
    HacerDeclaracion(2007, kTasas, 3);
    AbrirAnexos();
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    Pulsar(u"cmdDatos"_s);
    Volver();
    Escribir(BaseImp(1), u"5"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    PulsarElemento(u"lsvEstablecimientos"_s, 3);
    Pulsar(u"cmdEliminar"_s);
    ASSERT_EQ(Establecimientos().Cuenta(), 2);
    EXPECT_EQ(oEstablecimientos().SelCSES, cses[1]);
    EXPECT_EQ(Establecimientos().Seleccionado(), 2);
    EXPECT_TRUE(Establecimientos().Marcado(2));
    EXPECT_EQ(oAnexos().CSES, cses[1]);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"5,00"_s);
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"120,00"_s);
    EXPECT_EQ(Productos(2), u"1"_s);
    EXPECT_EQ(Foco(), u"lsvEstablecimientos"_s);
    Escribir(BaseImp(2), u"1"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Almacenadas(), (std::vector<Linea>{{cses[1], 1, 500}, {cses[1], 2, 100}}));
}

TEST_F(EstablecimientosDelAnexoTest, TheFirstTakesThePlaceOfADeletedOneThatTheSelectionWouldGoTo) {
    HacerDeclaracion(2007, kTasas, 3);
    HacerLineas({{cses[0], 1}});
    AbrirAnexos();
    PulsarElemento(u"lsvEstablecimientos"_s, 3);
    Pulsar(u"cmdDatos"_s);
    Volver();
    ASSERT_EQ(oEstablecimientos().SelCSES, cses[2]);
    Pulsar(u"cmdEliminar"_s);
    ASSERT_EQ(Establecimientos().Cuenta(), 2);
    EXPECT_EQ(oEstablecimientos().SelCSES, cses[2]) << "it stays as it was left";
    EXPECT_TRUE(Establecimientos().Marcado(1));
    EXPECT_EQ(oAnexos().CSES, cses[0]);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"1,00"_s);
}
