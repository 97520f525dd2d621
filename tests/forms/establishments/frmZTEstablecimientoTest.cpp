#include <QDir>

#include "core/records/cZTAnexos.h"
#include "core/run/Textos.h"
#include "core/store/Almacenes.h"
#include "forms/runtime/CamposDeFormulario.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/CajaTexto.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/AlmacenNegado.h"
#include "tests/support/PruebaDeEstablecimientos.h"
#include "tests/support/TextosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTEstablecimientoTest : public PruebaDeEstablecimientos {
  protected:
    void AbrirNuevo(qint32 procedencia = cZTEstablecimientos::kDesdeLista) {
        oEstablecimientos().Modo = cZTEstablecimientos::kModoNuevo;
        oEstablecimientos().Procedencia = procedencia;
        Abrir(frmZTEstablecimiento::kNombre);
    }
    void AbrirExistente(qint32 cses, qint32 procedencia = cZTEstablecimientos::kDesdeLista) {
        oEstablecimientos().Modo = cZTEstablecimientos::kModoExistente;
        oEstablecimientos().CSES = cses;
        oEstablecimientos().Procedencia = procedencia;
        Abrir(frmZTEstablecimiento::kNombre);
    }
    /// Types an establishment that passes every rule, and stays in the last box.
    void EscribirHastaElMunicipio() const {
        Escribir(u"txtCIM"_s, u"20es123y"_s);
        Escribir(u"txtDomicilio"_s, u"carretera 5"_s);
        Escribir(u"txtProvin"_s, u"20"_s);
        Tecla(Qt::Key_Tab);
        Escribir(u"txtMuni"_s, u"2"_s);
    }
    void EscribirUnoBueno() const {
        EscribirHastaElMunicipio();
        Tecla(Qt::Key_Tab);
    }
    void ElegirPorClic(const QString& imagen, const QString& lista, const QString& clave) const {
        Pulsar(imagen);
        const int elemento = Lista(lista).Buscar(clave);
        Lista(lista).Seleccionar(elemento);
        Lista(lista).AsegurarVisible(elemento);
        PulsarElemento(lista, elemento);
    }
    void ElegirPorIntro(const QString& imagen, const QString& lista, const QString& clave) const {
        Pulsar(imagen);
        Lista(lista).Seleccionar(Lista(lista).Buscar(clave));
        Tecla(Qt::Key_Return);
    }
    [[nodiscard]] bool Abierta(const QString& lista) const { return Lista(lista).isVisible(); }
    static bool Abierto() { return Cargado(frmZTEstablecimiento::kNombre); }
};

}  // namespace

TEST_F(frmZTEstablecimientoTest, EveryBoxHasItsFieldLengthFilterAndLabel) {
    AbrirNuevo();
    for (const auto& [nombre, tag, maximo, filtro, etiqueta] :
         {std::tuple{u"txtCIM"_s, u"Cim"_s, 8, CajaTexto::Caracteres, u"lblCIM"_s},
          std::tuple{u"txtDomicilio"_s, u"Domicilio"_s, 40, CajaTexto::Caracteres, u"lblDomicilio"_s},
          std::tuple{u"txtProvin"_s, u"Provin"_s, 2, CajaTexto::Naturales, u"lblProvin"_s},
          std::tuple{u"txtMuni"_s, u"CODMUN"_s, 2, CajaTexto::Naturales, u"lblMuni"_s},
          std::tuple{u"txtNombreMunicipio"_s, u"Munici"_s, 12, CajaTexto::Caracteres, u"lblMunici"_s}}) {
        const auto& caja = Control<CajaTexto>(nombre);
        EXPECT_EQ(caja.Tag(), tag);
        EXPECT_EQ(caja.maxLength(), maximo) << nombre.toStdString();
        EXPECT_EQ(caja.Filtro(), filtro) << nombre.toStdString();
        EXPECT_EQ(Control<QLabel>(etiqueta).buddy(), &caja);
    }
    EXPECT_TRUE(Caja(u"txtNombreProv"_s).isReadOnly());
}

TEST_F(frmZTEstablecimientoTest, CaptionsAreInTheLanguageInForceAndTheDeclarantIsNamedAsPlainText) {
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirNuevo();
        EXPECT_EQ(formulario->windowTitle(), TextoDeFila(32 + idioma));
        for (const auto& [control, texto] : {std::pair{u"lblDatosDte"_s, 74},
                                             {u"lblDte"_s, 60},
                                             {u"lblNIF"_s, 59},
                                             {u"lblCIM"_s, 19},
                                             {u"lblDomicilio"_s, 9},
                                             {u"lblProvin"_s, 69},
                                             {u"lblNombreProvincia"_s, 70},
                                             {u"lblMuni"_s, 71},
                                             {u"lblMunici"_s, 72},
                                             {u"cmdAceptar"_s, 28},
                                             {u"cmdCancelar"_s, 29}}) {
            EXPECT_EQ(TextoDe(control), TextoDeFila(texto + idioma)) << control.toStdString();
        }
        EXPECT_EQ(TextoDe(u"lblNomDte"_s), u"GASOLEOS <B> & HIJOS"_s);
        EXPECT_EQ(Control<QLabel>(u"lblNomDte"_s).textFormat(), Qt::PlainText);
        EXPECT_EQ(TextoDe(u"lblNIFDte"_s), u"12345678Z"_s);
        Formularios::Descargar(frmZTEstablecimiento::kNombre.toString());
    }
}

TEST_F(frmZTEstablecimientoTest, TabStopsAtTheBoxesInOrderWithThePicturesBehindTheirs) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    EXPECT_EQ(Foco(), u"txtCIM"_s);
    EXPECT_EQ(Caja(u"txtCIM"_s).selectedText(), u"20ES123Y"_s);
    QStringList paradas;
    for (int i = 0; i < 8; ++i) {
        paradas += Foco();
        Tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(paradas, QStringList({u"txtCIM"_s, u"txtDomicilio"_s, u"txtProvin"_s, u"picProvin"_s,
                                    u"txtMuni"_s, u"picMuni"_s, u"cmdAceptar"_s, u"cmdCancelar"_s}));
    EXPECT_EQ(Foco(), u"txtCIM"_s);
    Escribir(u"txtProvin"_s, u"48"_s);
    Tecla(Qt::Key_Tab);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Foco(), u"txtNombreMunicipio"_s);
}

TEST_F(frmZTEstablecimientoTest, ANewOneStartsEmptyOutsideTheOwnProvinceUntil20IsEntered) {
    AbrirNuevo();
    for (const QString& vacia : {u"txtCIM"_s, u"txtDomicilio"_s, u"txtProvin"_s, u"txtNombreProv"_s,
                                 u"txtMuni"_s, u"txtNombreMunicipio"_s}) {
        EXPECT_EQ(TextoDe(vacia), QString()) << vacia.toStdString();
    }
    EXPECT_EQ(oEstablecimientos().CSDE, oDeclarante().CSDE);
    EXPECT_FALSE(Caja(u"txtMuni"_s).isEnabled());
    EXPECT_FALSE(Control(u"picMuni"_s).isEnabled());
    EXPECT_TRUE(Caja(u"txtNombreMunicipio"_s).isEnabled());
    Escribir(u"txtProvin"_s, u"20"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), u"ONDARZIA"_s);
    EXPECT_TRUE(Caja(u"txtMuni"_s).isEnabled());
    EXPECT_FALSE(Caja(u"txtNombreMunicipio"_s).isEnabled());
}

TEST_F(frmZTEstablecimientoTest, AnExistingOneFillsTheBoxes) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    EXPECT_EQ(TextoDe(u"txtCIM"_s), u"20ES123Y"_s);
    EXPECT_EQ(TextoDe(u"txtDomicilio"_s), u"CARRETERA 1"_s);
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"20"_s);
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), u"ONDARZIA"_s);
    EXPECT_EQ(TextoDe(u"txtMuni"_s), u"02"_s);
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), u"AGERLEKUAIN"_s);
}

TEST_F(frmZTEstablecimientoTest, TheCodeOfTheProvinceShowsNoZeroInFront) {
    AbrirExistente(Guardar(u"20ES123Y"_s, u"CARRETERA 1"_s, 1, 0));
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"1"_s);
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), u"ARABA/ÁLAVA"_s);
}

TEST_F(frmZTEstablecimientoTest, AFailureOfTheLoadIsShownUnderItsNameWithTheCaptionsThere) {
    const qint32 cses = Guardar(u"20ES123Y"_s);
    Entorno().mdblec = Entorno().mdbPath + u"NoExiste.mdb"_s;
    AbrirExistente(cses);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().formulario, u"frmZTEstablecimiento"_s);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTEstablecimiento.Form_Load"_s);
    EXPECT_EQ(formulario->windowTitle(), TextoDeFila(32));
    EXPECT_EQ(oEstablecimientos().CIM, u"20ES123Y"_s);
    EXPECT_TRUE(Abierto());
}

TEST_F(frmZTEstablecimientoTest, ThePicturesShowWhetherTheyHaveTheFocus) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    const auto flecha = [this](const QString& boton, int numero) {
        return Control<BotonImagen>(boton).icon().pixmap(16, 16).toImage() ==
               ilsMDI16(numero).pixmap(16, 16).toImage();
    };
    for (const QString& imagen : {u"picProvin"_s, u"picMuni"_s}) {
        EXPECT_TRUE(flecha(imagen, 1));
        IrA(imagen);
        EXPECT_TRUE(flecha(imagen, 2));
        IrA(u"txtCIM"_s);
        EXPECT_TRUE(flecha(imagen, 1));
    }
}

TEST_F(frmZTEstablecimientoTest, KeysReachTheRecord) {
    AbrirNuevo();
    Escribir(u"txtCIM"_s, u"20es\"1"_s);
    EXPECT_EQ(oEstablecimientos().CIM, u"20ES1"_s);
    EXPECT_TRUE(oEstablecimientos().Modificado);
    EXPECT_FALSE(oDeclarante().Modificado);
}

TEST_F(frmZTEstablecimientoTest, AProvinceChosenMovesTheFocusToThePictureOfTheMunicipalityOrToItsName) {
    AbrirNuevo();
    ElegirPorClic(u"picProvin"_s, u"lsvProvin"_s, u"c20"_s);
    EXPECT_FALSE(Abierta(u"lsvProvin"_s));
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"20"_s);
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), u"ONDARZIA"_s);
    EXPECT_EQ(oEstablecimientos().Provin, 20);
    EXPECT_TRUE(oEstablecimientos().Modificado);
    EXPECT_EQ(Foco(), u"picMuni"_s);
    ElegirPorIntro(u"picProvin"_s, u"lsvProvin"_s, u"c1"_s);
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"01"_s);
    EXPECT_EQ(Foco(), u"txtNombreMunicipio"_s);
}

TEST_F(frmZTEstablecimientoTest, AMunicipalityChosenMovesTheFocusToTheCim) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    ElegirPorClic(u"picMuni"_s, u"lsvMunicipios"_s, u"c1"_s);
    EXPECT_FALSE(Abierta(u"lsvMunicipios"_s));
    EXPECT_EQ(TextoDe(u"txtMuni"_s), u"01"_s);
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), u"ABARZELAI"_s);
    EXPECT_EQ(oEstablecimientos().CMuni, 1);
    EXPECT_EQ(oEstablecimientos().Munici, u"ABARZELAI"_s);
    EXPECT_EQ(Foco(), u"txtCIM"_s);
    ElegirPorIntro(u"picMuni"_s, u"lsvMunicipios"_s, u"c2"_s);
    EXPECT_EQ(TextoDe(u"txtMuni"_s), u"02"_s);
    EXPECT_EQ(Foco(), u"txtCIM"_s);
}

TEST_F(frmZTEstablecimientoTest, EscapeAndLossOfFocusHideAList) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    IrA(u"picProvin"_s);
    Tecla(Qt::Key_Return);
    ASSERT_TRUE(Abierta(u"lsvProvin"_s));
    Teclear(u"gra"_s);
    EXPECT_EQ(Lista(u"lsvProvin"_s).Clave(Lista(u"lsvProvin"_s).Seleccionado()), u"c18"_s);
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(Abierta(u"lsvProvin"_s));
    EXPECT_EQ(Foco(), u"txtProvin"_s);
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"20"_s);
    Pulsar(u"picMuni"_s);
    Pulsar(u"txtDomicilio"_s);
    EXPECT_FALSE(Abierta(u"lsvMunicipios"_s));
}

TEST_F(frmZTEstablecimientoTest, CodesFoundOnLeavingTheirBoxesGoToTheDeclarantOnly) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    oDeclarante().CMuni = 9;
    oDeclarante().Provin = 9;
    // Set by code, so that no key release compares the boxes.
    IrA(u"txtMuni"_s);
    Caja(u"txtMuni"_s).setText(u"1"_s);
    IrA(u"txtCIM"_s);
    EXPECT_EQ(oDeclarante().CMuni, 1);
    EXPECT_EQ(oEstablecimientos().CMuni, 2);
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), u"ABARZELAI"_s);
    EXPECT_EQ(oEstablecimientos().Munici, u"AGERLEKUAIN"_s);
    IrA(u"txtProvin"_s);
    Caja(u"txtProvin"_s).setText(u"48"_s);
    IrA(u"txtCIM"_s);
    EXPECT_EQ(oDeclarante().Provin, 48);
    EXPECT_EQ(oEstablecimientos().Provin, 20);
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_FALSE(oEstablecimientos().Modificado);
    Tecla(Qt::Key_Shift);
    EXPECT_EQ(oEstablecimientos().Provin, 48);
    EXPECT_EQ(oEstablecimientos().Munici, u"ABARZELAI"_s);
    EXPECT_TRUE(oEstablecimientos().Modificado);
}

TEST_F(frmZTEstablecimientoTest, UnknownCodesDropTheirLists) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    Escribir(u"txtMuni"_s, u"00"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(Abierta(u"lsvMunicipios"_s));
    EXPECT_EQ(TextoDe(u"txtMuni"_s), QString());
    Tecla(Qt::Key_Return);
    Escribir(u"txtProvin"_s, u"99"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), QString());
    Tecla(Qt::Key_Escape);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
}

TEST_F(frmZTEstablecimientoTest, PressingCancelWhileABadCodeHasTheFocusOpensNoList) {
    for (const QString& boton : {u"cmdCancelar"_s, u"picCancelar"_s}) {
        AbrirNuevo();
        Escribir(u"txtProvin"_s, u"99"_s);
        ApretarSinSoltar(boton);
        EXPECT_FALSE(Abierta(u"lsvProvin"_s));
        Pulsar(boton);
        EXPECT_FALSE(Abierto());
    }
    AbrirNuevo();
    Escribir(u"txtProvin"_s, u"99"_s);
    QTest::keyPress(marco->windowHandle(), Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(Abierto());
}

TEST_F(frmZTEstablecimientoTest, AcceptingANewOneStoresItAndSelectsItInTheList) {
    AbrirNuevo();
    EscribirUnoBueno();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(pantalla.listas.empty());
    EXPECT_FALSE(Abierto());
    const Tabla almacenados = Almacenados();
    ASSERT_EQ(almacenados.UltimaFila(), 1);
    EXPECT_EQ(almacenados(1, 1).aTexto(), u"20ES123Y"_s);
    EXPECT_EQ(almacenados(5, 1).aTexto(), u"AGERLEKUAIN"_s);
    EXPECT_EQ(oEstablecimientos().CSES, almacenados(0, 1).aEntero32());
    EXPECT_EQ(oEstablecimientos().SelCSES, oEstablecimientos().CSES);
    EXPECT_FALSE(oEstablecimientos().Modificado);
    EXPECT_TRUE(ALaVista(frmZTListaEstablecimientos::kNombre));
}

TEST_F(frmZTEstablecimientoTest, AcceptingStraightOutOfTheCodeOfTheMunicipalityStoresItWithItsName) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    Escribir(u"txtMuni"_s, u"1"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(Almacenados()(4, 1).aEntero16(), 1);
    EXPECT_EQ(Almacenados()(5, 1).aTexto(), u"ABARZELAI"_s);
}

TEST_F(frmZTEstablecimientoTest, AcceptingStraightOutOfTheProvinceStoresWhatTheFormShows) {
    AbrirExistente(Guardar(u"20ES123Y"_s));
    Escribir(u"txtProvin"_s, u"48"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(Almacenados()(3, 1).aEntero16(), 48);
    EXPECT_EQ(Almacenados()(4, 1).aEntero16(), 0);
    EXPECT_EQ(Almacenados()(5, 1).aTexto(), u"AGERLEKUAIN"_s);
}

TEST_F(frmZTEstablecimientoTest, ANewOneIsAcceptedStraightOutOfTheCodeOfTheMunicipality) {
    AbrirNuevo();
    EscribirHastaElMunicipio();
    ASSERT_EQ(TextoDe(u"txtNombreMunicipio"_s), QString());
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(pantalla.listas.empty());
    EXPECT_EQ(Almacenados()(4, 1).aEntero16(), 2);
    EXPECT_EQ(Almacenados()(5, 1).aTexto(), u"AGERLEKUAIN"_s);
}

TEST_F(frmZTEstablecimientoTest, AcceptingWithoutAChangeNeitherChecksNorStores) {
    const qint32 cses = Guardar(u"MALO"_s);
    AbrirExistente(cses);
    Pulsar(u"picAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(pantalla.listas.empty());
    EXPECT_EQ(oEstablecimientos().SelCSES, cses);
    EXPECT_TRUE(ALaVista(frmZTListaEstablecimientos::kNombre));
}

TEST_F(frmZTEstablecimientoTest, FaultsAreListedAndTheFormStaysAsItIs) {
    AbrirNuevo();
    Escribir(u"txtCIM"_s, u"20ES12"_s);
    IrA(u"cmdAceptar"_s);
    QTest::keyPress(marco->windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(Abierto());
    EXPECT_EQ(pantalla.listas.size(), 1U);
    EXPECT_EQ(TextoDe(u"txtCIM"_s), u"20ES12"_s);
    EXPECT_TRUE(Almacenados().EsNula());
}

TEST_F(frmZTEstablecimientoTest, ASaveThatTheStoreRefusesLeavesTheTypedDataOnTheForm) {
    const qint32 cses = Guardar(u"20ES123Y"_s);
    AbrirExistente(cses);
    Escribir(u"txtDomicilio"_s, u"OTRO"_s);
    const QString bueno = Entorno().mdbmod;
    Entorno().mdbmod += u".otra"_s;
    ASSERT_TRUE(QDir().mkdir(Entorno().mdbmod));
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    ASSERT_FALSE(pantalla.errores.empty());
    EXPECT_EQ(pantalla.errores.back().evento, u"cZTEstablecimientos.GuardaEstablecimiento"_s);
    EXPECT_EQ(TextoDe(u"txtDomicilio"_s), u"OTRO"_s);
    EXPECT_TRUE(oEstablecimientos().Modificado);
    Entorno().mdbmod = bueno;
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(Almacenados()(2, 1).aTexto(), u"OTRO"_s);
}

TEST_F(frmZTEstablecimientoTest, ARefusedSaveOfANewOneLeavesTheKeyThatStoodAndTheTypedData) {
    oEstablecimientos().CSES = 31;
    AbrirNuevo();
    EscribirUnoBueno();
    NegarEscritura(true);
    Pulsar(u"cmdAceptar"_s);
    NegarEscritura(false);
    EXPECT_TRUE(Abierto());
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"cZTEstablecimientos.GuardaEstablecimiento"_s);
    EXPECT_EQ(oEstablecimientos().CSES, 31);
    EXPECT_TRUE(oEstablecimientos().Modificado);
    EXPECT_EQ(TextoDe(u"txtCIM"_s), u"20ES123Y"_s);
    EXPECT_TRUE(Almacenados().EsNula());
}

TEST_F(frmZTEstablecimientoTest, CancellingANewOneLeavesTheSelectionAtTheKeyThatStood) {
    oEstablecimientos().CSES = 31;
    AbrirNuevo();
    Escribir(u"txtCIM"_s, u"20"_s);
    Pulsar(u"cmdCancelar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(oEstablecimientos().SelCSES, 31);
    EXPECT_FALSE(oEstablecimientos().Modificado);
    EXPECT_TRUE(Almacenados().EsNula());
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(ALaVista(frmZTListaEstablecimientos::kNombre));
}

TEST_F(frmZTEstablecimientoTest, FromTheDetailFormItGoesBackThereAlsoOnCancel) {
    for (const QString& boton : {u"cmdCancelar"_s, u"cmdAceptar"_s}) {
        oAnexos().Procedencia = cZTAnexos::kDesdeDeclaracion;
        AbrirNuevo(cZTEstablecimientos::kDesdeDetalle);
        Pulsar(boton);
        EXPECT_FALSE(Abierto());
        EXPECT_EQ(oAnexos().Procedencia, cZTAnexos::kDesdeEstablecimiento);
        EXPECT_TRUE(ALaVista(u"frmZTDetDeclaracion"));
        EXPECT_FALSE(Cargado(frmZTListaEstablecimientos::kNombre));
        Formularios::Descargar(u"frmZTDetDeclaracion"_s);
    }
}

TEST_F(frmZTEstablecimientoTest, WhatTheFormCanHoldComesBackFromTheStoreAsItWas) {
    ASSERT_TRUE(rc::check([this] {
        const std::vector<std::pair<QString, QString>> tecleado{
            {u"txtCIM"_s, u"20ES123Y"_s},
            {u"txtDomicilio"_s, *TextoAceptado(1, 40)},
            {u"txtProvin"_s, u"48"_s},
            {u"txtNombreMunicipio"_s, *TextoAceptado(1, 12)}};
        AbrirNuevo();
        for (const auto& [caja, texto] : tecleado) {
            Escribir(caja, texto.toLower());
            Tecla(Qt::Key_Tab);
        }
        Pulsar(u"cmdAceptar"_s);
        const bool cerrado = !Abierto();
        const qint32 cses = oEstablecimientos().CSES;
        oEstablecimientos() = cZTEstablecimientos();
        AbrirExistente(cses);
        QStringList mostrado;
        for (const auto& [caja, texto] : tecleado) {
            mostrado += TextoDe(caja);
        }
        Formularios::Descargar(frmZTEstablecimiento::kNombre.toString());
        Formularios::Descargar(frmZTListaEstablecimientos::kNombre.toString());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        oEstablecimientos().EliminarEstablecimiento(cses);
        RC_ASSERT(cerrado);
        for (std::size_t i = 0; i < tecleado.size(); ++i) {
            RC_ASSERT(mostrado.at(static_cast<qsizetype>(i)).toStdString() ==
                      tecleado[i].second.toStdString());
        }
    }));
}

TEST_F(frmZTEstablecimientoTest, ASaveOverWhatAnotherProgramHasChangedLeavesTheFormWithWhatWasTyped) {
    const qint32 cses = Guardar(u"20ES123Y"_s);
    AbrirExistente(cses);
    Escribir(u"txtDomicilio"_s, u"calle nueva"_s);
    svrZELT::cZTEstablecimientos otro;
    otro.mdbmod = Entorno().mdbmod;
    otro.EliminarEstablecimiento(cses);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Cargado(frmZTEstablecimiento::kNombre));
    EXPECT_EQ(Caja(u"txtDomicilio"_s).text(), u"CALLE NUEVA"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, TextoPropio(u"cambio_establecimiento"));
    EXPECT_TRUE(Almacenados().EsNula());
}
