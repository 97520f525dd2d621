// The entry of annexes: the grid, the boxes and saving. Its list of establishments and the trips to their
// form have tests of their own.

#include "forms/declarations/frmZTDetDeclaracion.h"

#include <QMessageBox>
#include <QTimer>

#include "forms/declarations/frmZTDeclaracion.h"
#include "forms/declarations/frmZTListaDeclaraciones.h"
#include "forms/messages/PantallaQt.h"
#include "forms/messages/frmZTMsgBox.h"
#include "forms/widgets/CajaNumerica.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/AlmacenNegado.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/PruebaDeAnexos.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTDetDeclaracionTest : public PruebaDeAnexos {
  protected:
    void EsperarGuardar(bool habilitado) const {
        EXPECT_EQ(Habilitado(u"cmdGuardarDeclaracion"_s), habilitado);
        EXPECT_EQ(Habilitado(u"picGuardarDeclaracion"_s), habilitado);
        EXPECT_TRUE(Muestra(u"picGuardarDeclaracion"_s, ilsMDI16(habilitado ? 20 : 21)));
    }
    /// Figures of a product on the screen: exempt quantity, base, rate, quota.
    [[nodiscard]] QStringList Fila(int k) const {
        return {TextoDe(Exento(k)), TextoDe(BaseImp(k)), TextoDe(u"lblTipo"_s + QString::number(k)),
                TextoDe(u"lblCuota"_s + QString::number(k))};
    }
    /// Figures of a product of the open declaration on the summary.
    [[nodiscard]] QStringList Resumen(int k) const {
        QStringList textos;
        for (const QString& columna : {u"lblExento"_s, u"lblBaseImp"_s, u"lblTipo"_s, u"lblCuota"_s}) {
            textos += TextoDe(columna + QString::number(k));
        }
        return textos;
    }
    void Base(int k, const QString& texto) const {
        Escribir(BaseImp(k), texto);
        Tecla(Qt::Key_Tab);
    }
};

}  // namespace

TEST_F(frmZTDetDeclaracionTest, CaptionsAreInTheLanguageInForce) {
    HacerDeclaracion(2002);
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirAnexos();
        EXPECT_EQ(formulario->windowTitle(), Texto(172));
        EsperarTextos({{u"lblDatosDte"_s, Texto(74)},
                       {u"lblDeclarante"_s, Texto(2) + u':'},
                       {u"lblDec"_s, u"GASOLINERA & HIJOS"_s},
                       {u"lblNIF"_s, Texto(59) + u':'},
                       {u"lblDNI"_s, u"12345678Z"_s},
                       {u"lblDatosDeclaracion"_s, Texto(103)},
                       {u"lblDatosAnexo"_s, Texto(172)},
                       {u"lblEjercicio"_s, Texto(37) + u':'},
                       {u"lblEjer"_s, u"2002"_s},
                       {u"lblPeriodo"_s, Texto(38) + u':'},
                       {u"lblPer"_s, Texto(40)},
                       {u"lblCIM"_s, Texto(19)},
                       {u"lblDomicilio"_s, Texto(9)},
                       {u"lblProvincia"_s, Texto(69)},
                       {u"lblMunicipio"_s, Texto(71)},
                       {u"lblEstAnexos"_s, Texto(87).remove(u'&')},
                       {u"lblExento"_s, Texto(186)},
                       {u"lblBaseImp"_s, Texto(187)},
                       {u"lblTipo"_s, Texto(188)},
                       {u"lblCuota"_s, Texto(176)},
                       {u"cmdNuevo"_s, Texto(97)},
                       {u"cmdDatos"_s, Texto(98)},
                       {u"cmdEliminar"_s, Texto(99)},
                       {u"cmdGuardarDeclaracion"_s, Texto(95)},
                       {u"cmdCerrarAnexo"_s, Texto(20)}});
        for (int k = 1; k <= 6; ++k) {
            EXPECT_EQ(TextoDe(u"lblProducto"_s + QString::number(k)), Texto(179 + k));
            EXPECT_FALSE(Control(Exento(k)).accessibleName().isEmpty());
            EXPECT_NE(Control(Exento(k)).accessibleName(), Control(BaseImp(k)).accessibleName());
        }
    }
}

TEST_F(frmZTDetDeclaracionTest, BoxesAreFlatAndHaveTheMaskOfAmounts) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    for (int k = 1; k <= 6; ++k) {
        for (const QString& nombre : {Exento(k), BaseImp(k)}) {
            EXPECT_EQ(Control<CajaNumerica>(nombre).Appearance(), 0);
            EXPECT_EQ(Control<CajaNumerica>(nombre).Mascara(), u"##,###,###,##0.00"_s);
        }
    }
}

TEST_F(frmZTDetDeclaracionTest, ACleanAnnexShowsRatesAndZeroQuotas) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    EXPECT_EQ(Fila(1), (QStringList{QString(), QString(), u"24,000000"_s, u"0,00"_s}));
    EXPECT_EQ(Fila(4), (QStringList{QString(), QString(), u"1,000000"_s, u"0,00"_s}));
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"0,00"_s);
    EsperarGuardar(false);
}

TEST_F(frmZTDetDeclaracionTest, TheSixthProductIsInUseUntil2002) {
    HacerDeclaracion(2002);
    AbrirAnexos();
    EXPECT_EQ(TextoDe(u"lblProducto6"_s), Texto(185));
    EXPECT_EQ(TextoDe(u"lblTipo6"_s), u"6,000000"_s);
    EXPECT_TRUE(Habilitado(u"cnuExento6"_s));
    EXPECT_TRUE(Habilitado(u"cnuBaseImp6"_s));
    EXPECT_FALSE(Caja(u"cnuExento6"_s).isReadOnly());
}

TEST_F(frmZTDetDeclaracionTest, From2003OnItsBoxesAreDisabledAndThatOfTheBaseIsNotLocked) {
    HacerDeclaracion(2003);
    AbrirAnexos();
    EXPECT_EQ(TextoDe(u"lblProducto6"_s), QString());
    EXPECT_EQ(TextoDe(u"lblTipo6"_s), QString());
    EXPECT_EQ(TextoDe(u"lblCuota6"_s), u"0,00"_s);
    EXPECT_FALSE(Habilitado(u"cnuExento6"_s));
    EXPECT_FALSE(Habilitado(u"cnuBaseImp6"_s));
    EXPECT_TRUE(Caja(u"cnuExento6"_s).isReadOnly());
    EXPECT_FALSE(Caja(u"cnuBaseImp6"_s).isReadOnly());
    EXPECT_TRUE(Habilitado(u"cnuBaseImp5"_s));
}

TEST_F(frmZTDetDeclaracionTest, AFigureIsTakenWhenItsBoxIsLeft) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(BaseImp(1), u"12,34"_s);
    EsperarGuardar(false);
    EXPECT_EQ(TextoDe(u"lblCuota1"_s), u"0,00"_s);
    Tecla(Qt::Key_Tab);
    EsperarGuardar(true);
    EXPECT_TRUE(oAnexos().Modificado);
    EXPECT_EQ(Fila(1), (QStringList{QString(), u"12,34"_s, u"24,000000"_s, u"296,16"_s}));
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"296,16"_s);
}

TEST_F(frmZTDetDeclaracionTest, ExemptQuantitiesBearNoQuota) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(Exento(1), u"1234567,5"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Fila(1), (QStringList{u"1.234.567,50"_s, QString(), u"24,000000"_s, u"0,00"_s}));
    EXPECT_EQ(Foco(), BaseImp(1));
    EsperarGuardar(true);
}

TEST_F(frmZTDetDeclaracionTest, QuotasAreRoundedToTheHundredthAndTheirSumIsTheTotal) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    oAnexos().vBufferTasas = Tasas(Registro{24.04e6, 24.04e6, 6e6, 1e6, 24e6, 6e6});
    Base(1, u"12,34"_s);
    EXPECT_EQ(Fila(1), (QStringList{QString(), u"12,34"_s, u"24,040000"_s, u"296,65"_s}));
    Base(2, u"12,34"_s);
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"593,30"_s);
}

TEST_F(frmZTDetDeclaracionTest, LeavingABoxWithoutAChangeMarksNothing) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    IrA(BaseImp(1));
    Tecla(Qt::Key_Tab);
    Escribir(BaseImp(1), u"0"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_FALSE(oAnexos().Modificado);
    EsperarGuardar(false);
    EXPECT_EQ(TextoDe(BaseImp(1)), QString());
}

TEST_F(frmZTDetDeclaracionTest, TheFirstChangeBringsTheRatesInForce) {
    HacerDeclaracion(2007, {20e6, 20e6, 6e6, 1e6, 24e6, 6e6});
    AbrirAnexos();
    EXPECT_EQ(TextoDe(u"lblTipo1"_s), u"20,000000"_s);
    Escribir(Exento(3), u"1"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(u"lblTipo1"_s), u"24,000000"_s);
    EXPECT_FALSE(oAnexos().DiferenciasDeTipo);
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(frmZTDetDeclaracionTest, WhatIsNoNumberGoesBackToTheFigureThatStood) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    for (const QString& nada : {u"-"_s, u","_s, u"-,"_s}) {
        Base(1, nada);
        EXPECT_EQ(TextoDe(BaseImp(1)), QString()) << nada.toStdString();
    }
    EXPECT_FALSE(oAnexos().Modificado);
    Base(1, u"12,34"_s);
    for (const QString& nada : {u"-"_s, u","_s}) {
        Base(1, nada);
        EXPECT_EQ(TextoDe(BaseImp(1)), u"12,34"_s) << nada.toStdString();
        EXPECT_EQ(TextoDe(u"lblCuota1"_s), u"296,16"_s);
    }
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(frmZTDetDeclaracionTest, EnteringABoxSelectsItsTextAndKeepsIt) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Base(1, u"12,34"_s);
    IrA(BaseImp(1));
    EXPECT_EQ(Caja(BaseImp(1)).selectedText(), u"12,34"_s);
    EXPECT_EQ(Control<CajaNumerica>(BaseImp(1)).OldValue(), u"12,34"_s);
}

TEST_F(frmZTDetDeclaracionTest, AnErasedFigureIsZeroAndItsLineGoesAtTheNextSave) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Base(1, u"12,34"_s);
    Base(2, u"1"_s);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Productos(1), u"1,2"_s);
    IrA(BaseImp(1));
    Tecla(Qt::Key_Delete);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"24,00"_s);
    EXPECT_EQ(Productos(1), u"1,2"_s);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Productos(1), u"2"_s);
    EXPECT_EQ(LineasAlmacenadas(), 1);
}

TEST_F(frmZTDetDeclaracionTest, SavingStoresTheLinesAndTheMarkComesDown) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Base(1, u"12,34"_s);
    Pulsar(u"picGuardarDeclaracion"_s);
    EsperarGuardar(false);
    EXPECT_FALSE(oAnexos().Modificado);
    EXPECT_EQ(LineasAlmacenadas(), 1);
    EXPECT_EQ(Productos(1), u"1"_s);
    Base(1, u"10"_s);
    Tecla(Qt::Key_G, Qt::AltModifier);
    EsperarGuardar(false);
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(frmZTDetDeclaracionTest, ARefusedSaveIsToldAndNothingIsReset) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Base(1, u"12,34"_s);
    NegarEscritura(true);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_EQ(pantalla.plataforma[0], Texto(89));
    EXPECT_TRUE(pantalla.ultimoEsFallo);
    EXPECT_FALSE(oAnexos().CausaDelFallo.isEmpty());
    EsperarGuardar(true);
    EXPECT_EQ(Fila(1), (QStringList{QString(), u"12,34"_s, u"24,000000"_s, u"296,16"_s}));
    EXPECT_EQ(LineasAlmacenadas(), 0);
    EXPECT_EQ(terminado, -1);

    NegarEscritura(false);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EsperarGuardar(false);
    EXPECT_EQ(LineasAlmacenadas(), 1);
}

TEST_F(frmZTDetDeclaracionTest, TheCauseOfARefusedSaveStandsBelowTheMessage) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Base(1, u"12,34"_s);
    NegarEscritura(true);
    PantallaQt deVerdad;
    FijarPantalla(&deVerdad);
    QString texto;
    bool conBotonDeDetalles = true;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, marco, [&] {
        if (auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            texto = caja->text();
            conBotonDeDetalles = caja->buttons().size() > 1;
            caja->accept();
        }
    });
    reloj.start(5);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    FijarPantalla(&pantalla);
    EXPECT_EQ(texto, Texto(89) + u"\n\n"_s + oAnexos().CausaDelFallo);
    EXPECT_FALSE(oAnexos().CausaDelFallo.isEmpty());
    EXPECT_FALSE(conBotonDeDetalles);
}

TEST_F(frmZTDetDeclaracionTest, ClosingWithChangesAsksAndARefusalLeavesEverything) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Base(1, u"12,34"_s);
    pantalla.respuesta = kRespuestaCancelar;
    Pulsar(u"cmdCerrarAnexo"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes[0].texto, Texto(90));
    EXPECT_EQ(pantalla.mensajes[0].titulo, Texto(95));
    EXPECT_FALSE(pantalla.mensajes[0].unBoton);
    EXPECT_TRUE(Abierto(frmZTDetDeclaracion::kNombre));
    EXPECT_TRUE(oAnexos().Modificado);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"12,34"_s);
    EXPECT_TRUE(oAnexos().BufferAnexos.EsNula()) << "not yet among the lines";

    pantalla.respuesta = kRespuestaAceptar;
    Pulsar(u"picCerrarAnexo"_s);
    EXPECT_FALSE(Abierto(frmZTDetDeclaracion::kNombre));
    Pasar(frmZTDeclaracion::kNombre);
    EXPECT_EQ(TextoDe(u"lblBaseImp1"_s), QString());
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTDetDeclaracionTest, EachActivationGivesTheFocusToTheList) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Base(1, u"12,34"_s);
    IrA(BaseImp(2));
    PantallaQt deVerdad;
    FijarPantalla(&deVerdad);
    CuandoAparezca(frmZTMsgBox::kNombre.toString(),
                   [](QWidget& caja) { caja.findChild<QAbstractButton*>(u"cmdCancelar"_s)->click(); });
    Pulsar(u"picCerrarAnexo"_s);
    FijarPantalla(&pantalla);
    EXPECT_TRUE(Abierto(frmZTDetDeclaracion::kNombre));
    marco->activateWindow();
    ASSERT_TRUE(EsperarActiva(marco));
    EXPECT_EQ(Foco(), u"lsvEstablecimientos"_s);
}

TEST_F(frmZTDetDeclaracionTest, ClosingLeavesTheBoxFirstAndSoAsks) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(BaseImp(1), u"5"_s);
    pantalla.respuesta = kRespuestaCancelar;
    Pulsar(u"cmdCerrarAnexo"_s);
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_TRUE(Abierto(frmZTDetDeclaracion::kNombre));
}

TEST_F(frmZTDetDeclaracionTest, ClosingWithoutChangesAsksNothing) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Pulsar(u"cmdCerrarAnexo"_s);
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(Formularios::Visible(frmZTDeclaracion::kNombre.toString()));
    EXPECT_EQ(oDeclaraciones().Modo, cZTDeclaraciones::kModoExistente);
}

TEST_F(frmZTDetDeclaracionTest, TabGoesThroughListButtonsAndBoxesByRows) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    QStringList orden{u"lsvEstablecimientos"_s, u"cmdNuevo"_s, u"cmdDatos"_s, u"cmdEliminar"_s};
    for (int k = 1; k <= 5; ++k) {
        orden += {Exento(k), BaseImp(k)};
    }
    orden += u"cmdCerrarAnexo"_s;
    EsperarOrdenDeTab(orden);
}

TEST_F(frmZTDetDeclaracionTest, ADeclarationOf2002WithSixProductsOverTwoEstablishments) {
    HacerDeclaracion(2002);
    AbrirAnexos();
    const QStringList bases{u"1,11"_s, u"2,22"_s, u"3,33"_s, u"4,44"_s, u"5,55"_s, u"6,66"_s};
    const QStringList cuotas{u"26,64"_s, u"53,28"_s, u"19,98"_s, u"4,44"_s, u"133,20"_s, u"39,96"_s};
    for (int k = 1; k <= 3; ++k) {
        Base(k, bases.at(k - 1));
    }
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"99,90"_s);
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"0,00"_s);
    for (int k = 4; k <= 6; ++k) {
        Base(k, bases.at(k - 1));
    }
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"177,60"_s);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Productos(1), u"1,2,3"_s);
    EXPECT_EQ(Productos(2), u"4,5,6"_s);
    Pulsar(u"cmdCerrarAnexo"_s);

    Pasar(frmZTDeclaracion::kNombre);
    for (int k = 1; k <= 6; ++k) {
        EXPECT_EQ(TextoDe(u"lblBaseImp"_s + QString::number(k)), bases.at(k - 1));
        EXPECT_EQ(TextoDe(u"lblCuota"_s + QString::number(k)), cuotas.at(k - 1));
    }
    EXPECT_EQ(TextoDe(u"lblCuotaTotal"_s), u"277,50"_s);
    Pulsar(u"cmdDetalles"_s);
    Pasar(frmZTDetDeclaracion::kNombre);
    EXPECT_EQ(Fila(3), (QStringList{QString(), u"3,33"_s, u"6,000000"_s, u"19,98"_s}));
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Fila(6), (QStringList{QString(), u"6,66"_s, u"6,000000"_s, u"39,96"_s}));
    EXPECT_EQ(Fila(3), (QStringList{QString(), QString(), u"6,000000"_s, u"0,00"_s}));
}

TEST_F(frmZTDetDeclaracionTest, SixProductsAtOneEstablishmentEndTheProgramAtTheSaveWithNothingStored) {
    HacerDeclaracion(2002);
    AbrirAnexos();
    for (int k = 1; k <= 6; ++k) {
        Base(k, u"1"_s);
    }
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(terminado, 1);
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_TRUE(pantalla.plataforma[0].contains(TextoDeError(NumError::Subindice)));
    EXPECT_TRUE(pantalla.errores.empty());
    EXPECT_EQ(LineasAlmacenadas(), 0);
}

TEST_F(frmZTDetDeclaracionTest, AQuarterWithoutRatesEndsTheProgramWhenItsAnnexesOpen) {
    HacerDeclaracion(2050);
    HacerLineas({{cses[0], 1}});
    const Registro antes = Servidor().CargarDeclaracion(csdc);
    Abrir(frmZTDeclaracion::kNombre);
    Pulsar(u"cmdDetalles"_s);
    EXPECT_EQ(terminado, 1);
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_TRUE(pantalla.plataforma[0].contains(TextoDeError(NumError::NoCoincidenTipos)));
    EXPECT_EQ(Servidor().CargarDeclaracion(csdc), antes);
    EXPECT_EQ(Almacenadas(), (std::vector<Linea>{{cses[0], 1, 100}}));
}

TEST_F(frmZTDetDeclaracionTest, ADeclarationOf2007KeyedSavedAndOpenedAgain) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(Exento(1), u"10,5"_s);
    Base(1, u"12,34"_s);
    Base(3, u"100,01"_s);
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"896,22"_s);
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    Base(1, u"1000,5"_s);
    Base(4, u"0,01"_s);
    Escribir(Exento(5), u"5"_s);
    Tecla(Qt::Key_G, Qt::AltModifier);
    EXPECT_FALSE(oAnexos().Modificado);
    EXPECT_EQ(TextoDe(u"lblTotalCuota"_s), u"24.012,01"_s);
    EXPECT_EQ(Productos(1), u"1,3"_s);
    EXPECT_EQ(Productos(2), u"1,4,5"_s);
    Pulsar(u"cmdCerrarAnexo"_s);
    Pasar(frmZTDeclaracion::kNombre);
    Pulsar(u"cmdCerrarDec"_s);

    Pasar(frmZTListaDeclaraciones::kNombre);
    EXPECT_EQ(Lista(u"lsvDeclaraciones"_s).Subitem(1, 3), u"24.908,23"_s);
    Tecla(Qt::Key_Return);
    Pasar(frmZTDeclaracion::kNombre);
    EXPECT_EQ(Resumen(1), (QStringList{u"10,50"_s, u"1.012,84"_s, u"24,000000"_s, u"24.308,16"_s}));
    EXPECT_EQ(Resumen(2), (QStringList{QString(), QString(), u"24,000000"_s, QString()}));
    EXPECT_EQ(Resumen(3), (QStringList{QString(), u"100,01"_s, u"6,000000"_s, u"600,06"_s}));
    EXPECT_EQ(Resumen(4), (QStringList{QString(), u"0,01"_s, u"1,000000"_s, u"0,01"_s}));
    EXPECT_EQ(Resumen(5), (QStringList{u"5,00"_s, QString(), u"24,000000"_s, QString()}));
    EXPECT_EQ(Resumen(6), QStringList(4, QString()));
    EXPECT_EQ(TextoDe(u"lblCuotaTotal"_s), u"24.908,23"_s);
}
