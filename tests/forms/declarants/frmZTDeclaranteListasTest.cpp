// The pick lists of the declarant form and the rules of leaving the boxes of their codes.

#include "forms/runtime/CamposDeFormulario.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/PruebaDeDeclarante.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTDeclaranteListasTest : public PruebaDeDeclarante {
  protected:
    [[nodiscard]] bool Abierta(const QString& lista) const { return Lista(lista).isVisible(); }
    [[nodiscard]] QString Elegido(const QString& lista) const {
        return Lista(lista).Clave(Lista(lista).Seleccionado());
    }
    [[nodiscard]] bool NingunaAbierta() const {
        return !Abierta(u"lsvSiglas"_s) && !Abierta(u"lsvProvin"_s) && !Abierta(u"lsvMunicipios"_s);
    }
    /// Puts the selection of an open list on the item of that key.
    void IrAlElemento(const QString& lista, const QString& clave) const {
        const int elemento = Lista(lista).Buscar(clave);
        ASSERT_GT(elemento, 0);
        Lista(lista).Seleccionar(elemento);
        Lista(lista).AsegurarVisible(elemento);
    }
    void ElegirPorClic(const QString& imagen, const QString& lista, const QString& clave) const {
        Pulsar(imagen);
        IrAlElemento(lista, clave);
        PulsarElemento(lista, Lista(lista).Buscar(clave));
    }
    void ElegirPorIntro(const QString& imagen, const QString& lista, const QString& clave) const {
        Pulsar(imagen);
        IrAlElemento(lista, clave);
        Tecla(Qt::Key_Return);
    }
    [[nodiscard]] QImage ImagenDe(const QString& boton) const {
        return Control<BotonImagen>(boton).icon().pixmap(16, 16).toImage();
    }
};

QImage Flecha(int numero) { return ilsMDI16(numero).pixmap(16, 16).toImage(); }

}  // namespace

TEST_F(frmZTDeclaranteListasTest, ListsAreHiddenUntilAskedFor) {
    AbrirNuevo();
    EXPECT_TRUE(NingunaAbierta());
    EXPECT_GT(Lista(u"lsvSiglas"_s).Cuenta(), 0);
    EXPECT_GT(Lista(u"lsvProvin"_s).Cuenta(), 0);
    EXPECT_GT(Lista(u"lsvMunicipios"_s).Cuenta(), 0);
}

TEST_F(frmZTDeclaranteListasTest, APictureDropsItsListAtItsPlaceOnTheItemOfItsBox) {
    AbrirExistente(Guardar(20, 5));
    for (const auto& [imagen, lista, clave] : {std::tuple{u"picSiglas"_s, u"lsvSiglas"_s, u"CL"_s},
                                               std::tuple{u"picProvin"_s, u"lsvProvin"_s, u"c20"_s},
                                               std::tuple{u"picMuni"_s, u"lsvMunicipios"_s, u"c5"_s}}) {
        const QPoint lugar = Control(imagen).mapTo(formulario, QPoint(0, 0));
        Pulsar(imagen);
        EXPECT_TRUE(Abierta(lista));
        EXPECT_EQ(Foco(), lista);
        EXPECT_EQ(Elegido(lista), clave);
        EXPECT_TRUE(Lista(lista).Marcado(Lista(lista).Seleccionado()));
        EXPECT_EQ(Lista(lista).pos(), lugar) << lista.toStdString();
        Tecla(Qt::Key_Escape);
    }
}

TEST_F(frmZTDeclaranteListasTest, EnterOnAPictureDropsItsList) {
    AbrirExistente(Guardar());
    for (const auto& [imagen, lista] :
         {std::pair{u"picSiglas"_s, u"lsvSiglas"_s}, std::pair{u"picProvin"_s, u"lsvProvin"_s},
          std::pair{u"picMuni"_s, u"lsvMunicipios"_s}}) {
        for (const Qt::Key intro : {Qt::Key_Return, Qt::Key_Enter}) {
            IrA(imagen);
            Tecla(intro);
            EXPECT_TRUE(Abierta(lista));
            EXPECT_EQ(Foco(), lista);
            Tecla(Qt::Key_Escape);
        }
    }
}

TEST_F(frmZTDeclaranteListasTest, ACodeThatIsInNoListDropsItOnTheFirstItemAndStaysInItsBox) {
    AbrirNuevo();
    Escribir(u"txtProvin"_s, u"99"_s);
    Pulsar(u"picProvin"_s);
    EXPECT_EQ(Lista(u"lsvProvin"_s).Seleccionado(), 1);
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"99"_s);
    Tecla(Qt::Key_Return);
    Escribir(u"txtSiglas"_s, u"??"_s);
    Pulsar(u"picSiglas"_s);
    EXPECT_EQ(Lista(u"lsvSiglas"_s).Seleccionado(), 1);
    EXPECT_EQ(TextoDe(u"txtSiglas"_s), u"??"_s);
}

TEST_F(frmZTDeclaranteListasTest, AProvinceChosenByClickFillsItsBoxesAndTheFocusGoesToThePostalCode) {
    AbrirExistente(Guardar());
    ElegirPorClic(u"picProvin"_s, u"lsvProvin"_s, u"c1"_s);
    EXPECT_FALSE(Abierta(u"lsvProvin"_s));
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"01"_s);
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), u"ARABA/ÁLAVA"_s);
    EXPECT_EQ(oDeclarante().Provin, 1);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_TRUE(Caja(u"txtNombreMunicipio"_s).isEnabled());
    EXPECT_EQ(Foco(), u"txtCPost"_s);
}

TEST_F(frmZTDeclaranteListasTest, AMunicipalityChosenByClickFillsItsBoxesAndTheFocusGoesToTheTelephone) {
    AbrirExistente(Guardar());
    ElegirPorClic(u"picMuni"_s, u"lsvMunicipios"_s, u"c2"_s);
    EXPECT_FALSE(Abierta(u"lsvMunicipios"_s));
    EXPECT_EQ(TextoDe(u"txtMuni"_s), u"02"_s);
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), u"AGERLEKUAIN"_s);
    EXPECT_EQ(oDeclarante().CMuni, 2);
    EXPECT_EQ(oDeclarante().Munici, u"AGERLEKUAIN"_s);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(Foco(), u"txtTelPre"_s);
}

TEST_F(frmZTDeclaranteListasTest, AKindOfWayChosenByClickFillsItsBoxesAndTheFocusGoesToTheNumber) {
    AbrirExistente(Guardar());
    ElegirPorClic(u"picSiglas"_s, u"lsvSiglas"_s, u"AC"_s);
    EXPECT_FALSE(Abierta(u"lsvSiglas"_s));
    EXPECT_EQ(TextoDe(u"txtSiglas"_s), u"AC"_s);
    EXPECT_EQ(TextoDe(u"txtNomVia"_s), u"ACCESO"_s);
    EXPECT_EQ(oDeclarante().Siglas, u"AC"_s);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(Foco(), u"txtNumero"_s);
}

TEST_F(frmZTDeclaranteListasTest, ADoubleClickChoosesAndItsSecondHalfHitsNothing) {
    for (const auto& [imagen, lista, clave, foco] :
         {std::tuple{u"picProvin"_s, u"lsvProvin"_s, u"c1"_s, u"txtCPost"_s},
          std::tuple{u"picSiglas"_s, u"lsvSiglas"_s, u"CL"_s, u"txtNumero"_s}}) {
        AbrirNuevo();
        Pulsar(imagen);
        const int elemento = Lista(lista).Buscar(clave);
        IrAlElemento(lista, clave);
        PulsarDosVeces(lista, elemento);
        EXPECT_EQ(Foco(), foco);
        EXPECT_TRUE(NingunaAbierta());
        // The next click is one of its own.
        Pulsar(u"txtNombre"_s);
        EXPECT_EQ(Foco(), u"txtNombre"_s);
        Pulsar(u"picProvin"_s);
        EXPECT_TRUE(Abierta(u"lsvProvin"_s));
        Formularios::Descargar(frmZTDeclarante::kNombre);
    }
}

TEST_F(frmZTDeclaranteListasTest, EnterOnAListChoosesAndForAKindOfWayTheFocusGoesToTheNameOfTheWay) {
    AbrirExistente(Guardar());
    ElegirPorIntro(u"picSiglas"_s, u"lsvSiglas"_s, u"AC"_s);
    EXPECT_EQ(TextoDe(u"txtSiglas"_s), u"AC"_s);
    EXPECT_EQ(Foco(), u"txtViaPub"_s);
    ElegirPorIntro(u"picMuni"_s, u"lsvMunicipios"_s, u"c2"_s);
    EXPECT_EQ(TextoDe(u"txtMuni"_s), u"02"_s);
    EXPECT_EQ(Foco(), u"txtTelPre"_s);
    ElegirPorIntro(u"picProvin"_s, u"lsvProvin"_s, u"c48"_s);
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"48"_s);
    EXPECT_EQ(Foco(), u"txtCPost"_s);
    EXPECT_TRUE(NingunaAbierta());
}

TEST_F(frmZTDeclaranteListasTest, ChoosingWhatTheRecordHasChangesNothingButMovesTheFocus) {
    AbrirExistente(Guardar());
    ElegirPorClic(u"picProvin"_s, u"lsvProvin"_s, u"c20"_s);
    EXPECT_EQ(Foco(), u"txtCPost"_s);
    ElegirPorClic(u"picMuni"_s, u"lsvMunicipios"_s, u"c1"_s);
    EXPECT_EQ(Foco(), u"txtTelPre"_s);
    ElegirPorClic(u"picSiglas"_s, u"lsvSiglas"_s, u"CL"_s);
    EXPECT_EQ(Foco(), u"txtNumero"_s);
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_TRUE(NingunaAbierta());
}

TEST_F(frmZTDeclaranteListasTest, EscapeHidesTheListAndGoesBackToItsBox) {
    AbrirExistente(Guardar());
    for (const auto& [imagen, lista, caja] : {std::tuple{u"picSiglas"_s, u"lsvSiglas"_s, u"txtSiglas"_s},
                                              std::tuple{u"picProvin"_s, u"lsvProvin"_s, u"txtProvin"_s},
                                              std::tuple{u"picMuni"_s, u"lsvMunicipios"_s, u"txtMuni"_s}}) {
        const QString antes = TextoDe(caja);
        Pulsar(imagen);
        Tecla(Qt::Key_Down);
        Tecla(Qt::Key_Escape);
        EXPECT_FALSE(Abierta(lista));
        EXPECT_EQ(Foco(), caja);
        EXPECT_EQ(TextoDe(caja), antes);
    }
}

TEST_F(frmZTDeclaranteListasTest, LettersLookForAnItemAndRefusedCharactersDoNotCount) {
    AbrirExistente(Guardar());
    Pulsar(u"picProvin"_s);
    Teclear(u"g\"#r"_s);
    EXPECT_EQ(Elegido(u"lsvProvin"_s), u"c18"_s);
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
}

TEST_F(frmZTDeclaranteListasTest, AListThatLosesTheFocusHides) {
    AbrirExistente(Guardar());
    Pulsar(u"picProvin"_s);
    Pulsar(u"txtNIF"_s);
    EXPECT_FALSE(Abierta(u"lsvProvin"_s));
    EXPECT_EQ(Foco(), u"txtNIF"_s);
    Pulsar(u"picSiglas"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_FALSE(Abierta(u"lsvSiglas"_s));
    EXPECT_EQ(Foco(), u"txtViaPub"_s);
}

TEST_F(frmZTDeclaranteListasTest, WithoutReferenceDataEnterOnAnEmptyListChoosesNothing) {
    Entorno().mdblec = Entorno().mdbPath + u"NoExiste.mdb"_s;
    AbrirNuevo();
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTDeclarante.Form_Load"_s);
    Pulsar(u"picSiglas"_s);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Foco(), u"txtViaPub"_s);
    EXPECT_EQ(terminado, -1);
}

TEST_F(frmZTDeclaranteListasTest, ThePicturesShowWhetherTheyHaveTheFocus) {
    AbrirExistente(Guardar());
    for (const QString& imagen : {u"picSiglas"_s, u"picProvin"_s, u"picMuni"_s}) {
        EXPECT_EQ(ImagenDe(imagen), Flecha(1));
        IrA(imagen);
        EXPECT_EQ(ImagenDe(imagen), Flecha(2));
        IrA(u"txtNIF"_s);
        EXPECT_EQ(ImagenDe(imagen), Flecha(1));
    }
}

TEST_F(frmZTDeclaranteListasTest, LeavingAKnownCodeShowsItsName) {
    AbrirNuevo();
    Escribir(u"txtSiglas"_s, u"ac"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(u"txtNomVia"_s), u"ACCESO"_s);
    EXPECT_EQ(oDeclarante().Siglas, u"AC"_s);
    Escribir(u"txtMuni"_s, u"2"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), u"AGERLEKUAIN"_s);
    EXPECT_EQ(oDeclarante().Munici, u"AGERLEKUAIN"_s);
    Escribir(u"txtProvin"_s, u"1"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"1"_s);
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), u"ARABA/ÁLAVA"_s);
    EXPECT_EQ(oDeclarante().Provin, 1);
    EXPECT_TRUE(NingunaAbierta());
}

TEST_F(frmZTDeclaranteListasTest, WhatIsFoundOnLeavingACodeGoesToTheRecordWithoutAnyKey) {
    AbrirExistente(Guardar());
    for (const auto& [caja, codigo] :
         {std::pair{u"txtSiglas"_s, u"AC"_s}, {u"txtMuni"_s, u"2"_s}, {u"txtProvin"_s, u"48"_s}}) {
        IrA(caja);
        Caja(caja).setText(codigo);
        IrA(u"txtNIF"_s);
    }
    EXPECT_EQ(oDeclarante().Siglas, u"AC"_s);
    EXPECT_EQ(oDeclarante().Munici, u"AGERLEKUAIN"_s);
    EXPECT_EQ(oDeclarante().Provin, 48);
    EXPECT_FALSE(oDeclarante().Modificado);
}

TEST_F(frmZTDeclaranteListasTest, LeavingAnUnknownCodeEmptiesItsNameAndDropsTheList) {
    AbrirExistente(Guardar());
    for (const auto& [caja, codigo, nombre, lista] :
         {std::tuple{u"txtSiglas"_s, u"??"_s, u"txtNomVia"_s, u"lsvSiglas"_s},
          std::tuple{u"txtMuni"_s, u"99"_s, u"txtNombreMunicipio"_s, u"lsvMunicipios"_s},
          std::tuple{u"txtProvin"_s, u"99"_s, u"txtNombreProv"_s, u"lsvProvin"_s}}) {
        Escribir(caja, codigo);
        Tecla(Qt::Key_Tab);
        EXPECT_TRUE(Abierta(lista)) << lista.toStdString();
        EXPECT_EQ(Foco(), lista);
        EXPECT_EQ(TextoDe(nombre), QString());
        EXPECT_EQ(TextoDe(caja), codigo);
        Tecla(Qt::Key_Return);
    }
}

TEST_F(frmZTDeclaranteListasTest, TwoZerosAreEmptiedWhenTheListHasOpened) {
    AbrirExistente(Guardar());
    Escribir(u"txtMuni"_s, u"00"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(Abierta(u"lsvMunicipios"_s));
    EXPECT_EQ(TextoDe(u"txtMuni"_s), QString());
    Tecla(Qt::Key_Return);
    Escribir(u"txtProvin"_s, u"00"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
    EXPECT_EQ(TextoDe(u"txtProvin"_s), QString());
}

TEST_F(frmZTDeclaranteListasTest, OneZeroStaysInItsBox) {
    AbrirExistente(Guardar());
    Escribir(u"txtProvin"_s, u"0"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"0"_s);
}

TEST_F(frmZTDeclaranteListasTest, LeavingTheProvinceForAnotherBoxByMouseLeavesThatBoxAlone) {
    AbrirNuevo();
    Escribir(u"txtProvin"_s, u"99"_s);
    Pulsar(u"txtMuni"_s);
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
    EXPECT_FALSE(Abierta(u"lsvMunicipios"_s));
    EXPECT_EQ(Foco(), u"lsvProvin"_s);
    Tecla(Qt::Key_Escape);
    Escribir(u"txtProvin"_s, u"48"_s);
    Pulsar(u"txtMuni"_s);
    EXPECT_TRUE(NingunaAbierta());
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), u"BIZKAIA"_s);
}

TEST_F(frmZTDeclaranteListasTest, ChangingTheProvinceFrom20EmptiesTheCodeAndFreesTheNameThatIsShown) {
    AbrirExistente(Guardar());
    Escribir(u"txtProvin"_s, u"48"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(u"txtMuni"_s), QString());
    EXPECT_EQ(oDeclarante().CMuni, 0);
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), u"ABARZELAI"_s);
    EXPECT_TRUE(Caja(u"txtNombreMunicipio"_s).isEnabled());
    EXPECT_EQ(Fondo(u"txtNombreMunicipio"_s), kFondoBlanco);
    EXPECT_FALSE(Caja(u"txtMuni"_s).isEnabled());
    EXPECT_EQ(Fondo(u"txtMuni"_s), kFondoAmarillo);
    EXPECT_FALSE(Control(u"picMuni"_s).isEnabled());
}

TEST_F(frmZTDeclaranteListasTest, ChangingBackTo20WithoutACodeEmptiesTheName) {
    AbrirExistente(Guardar(48, 0));
    ASSERT_EQ(TextoDe(u"txtNombreMunicipio"_s), u"ABARZELAI"_s);
    Escribir(u"txtProvin"_s, u"20"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), QString());
    EXPECT_FALSE(Caja(u"txtNombreMunicipio"_s).isEnabled());
    EXPECT_TRUE(Caja(u"txtMuni"_s).isEnabled());
    EXPECT_TRUE(Control(u"picMuni"_s).isEnabled());
}

TEST_F(frmZTDeclaranteListasTest, PressingCancelWhileABadCodeHasTheFocusOpensNoList) {
    for (const QString& boton : {u"cmdCancelar"_s, u"picCancelar"_s}) {
        for (const QString& caja : {u"txtProvin"_s, u"txtMuni"_s, u"txtSiglas"_s}) {
            AbrirNuevo();
            Escribir(caja, u"99"_s);
            ApretarSinSoltar(boton);
            EXPECT_TRUE(NingunaAbierta()) << caja.toStdString();
            EXPECT_EQ(Foco(), boton);
            Pulsar(boton);
            EXPECT_FALSE(Abierto());
        }
    }
}

TEST_F(frmZTDeclaranteListasTest, OnceCancelWasPressedTheBoxesAreNotCheckedUntilTheFormIsOpenedAnew) {
    AbrirNuevo();
    ApretarSinSoltar(u"cmdCancelar"_s);
    Escribir(u"txtProvin"_s, u"99"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(NingunaAbierta());
    Pulsar(u"cmdCancelar"_s);
    AbrirNuevo();
    Escribir(u"txtProvin"_s, u"99"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
}

TEST_F(frmZTDeclaranteListasTest, TheAccessKeyOfCancelLeavesABadCodeWithoutAList) {
    AbrirNuevo();
    Escribir(u"txtProvin"_s, u"99"_s);
    QTest::keyPress(marco->windowHandle(), Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(Abierto());
    EXPECT_FALSE(Formularios::Cargado(u"frmZTDeclarante"_s));
}

TEST_F(frmZTDeclaranteListasTest, AcceptIsNotPressedWhenLeavingABadCodeForItOpensTheList) {
    AbrirExistente(Guardar());
    Escribir(u"txtProvin"_s, u"99"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
    EXPECT_TRUE(pantalla.listas.empty());
    QTest::keyClick(marco->windowHandle(), Qt::Key_Escape);
    QTest::keyPress(marco->windowHandle(), Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(Abierto());
    EXPECT_TRUE(Abierta(u"lsvProvin"_s));
}

TEST_F(frmZTDeclaranteListasTest, AClickOnTheBareFormTheBareFrameOrADisabledBoxLeavesNoBox) {
    AbrirNuevo();
    Escribir(u"txtProvin"_s, u"99"_s);
    PulsarEn(*formulario, QPoint(3, formulario->height() - 3));
    PulsarEn(*marco, QPoint(5, marco->height() - 5));
    PulsarEn(Control(u"txtNombreMunicipio"_s), QPoint(3, 3));
    EXPECT_TRUE(NingunaAbierta());
    EXPECT_EQ(Foco(), u"txtProvin"_s);
}
