// How the declarant form ends: accepting, cancelling, and what comes on the screen after it.

#include <QDir>

#include "core/records/cZTListaDeclaraciones.h"
#include "core/store/Almacenes.h"
#include "tests/support/PruebaDeDeclarante.h"
#include "tests/support/TextosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTDeclaranteCierreTest : public PruebaDeDeclarante {
  protected:
    static bool ListaALaVista() { return Formularios::Visible(u"frmZTListaDeclaraciones"_s); }

    /// Takes the store out of reach, and back.
    static void QuitarAlmacen() {
        CerrarAlmacenes();
        ASSERT_TRUE(QFile::rename(Entorno().mdbmod, Aparte()));
        ASSERT_TRUE(QDir().mkdir(Entorno().mdbmod));
    }
    static void DevolverAlmacen() {
        CerrarAlmacenes();
        ASSERT_TRUE(QDir().rmdir(Entorno().mdbmod));
        ASSERT_TRUE(QFile::rename(Aparte(), Entorno().mdbmod));
    }

    static void VaciarAlmacen() {
        const Tabla almacenados = Almacenados();
        for (int fila = almacenados.EsNula() ? 0 : almacenados.UltimaFila(); fila > 0; --fila) {
            cZTDeclarante uno;
            uno.CSDE = almacenados(0, fila).aEntero32();
            uno.EliminarDeclarante();
        }
    }

  private:
    static QString Aparte() { return Entorno().mdbmod + u".aparte"_s; }
};

}  // namespace

TEST_F(frmZTDeclaranteCierreTest, AcceptingANewDeclarantStoresItAndGoesBackToTheFrame) {
    AbrirNuevo();
    EscribirUnoBueno();
    pantalla.punteros.clear();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(pantalla.listas.empty());
    const Tabla almacenados = Almacenados();
    ASSERT_EQ(almacenados.UltimaFila(), 1);
    EXPECT_EQ(almacenados(0, 1).aEntero32(), oDeclarante().CSDE);
    EXPECT_EQ(almacenados(2, 1).aTexto(), u"GASOLINERA ÑU & CA"_s);
    EXPECT_EQ(almacenados(3, 1).aTexto(), u"ABARZELAI"_s);
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_TRUE(MenusHabilitados());
    EXPECT_EQ(pantalla.cesiones, 1);
    EXPECT_EQ(pantalla.punteros.front(), Puntero::Espera);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTDeclaranteCierreTest, ThePictureTwinsRunTheirButtons) {
    AbrirNuevo();
    EscribirUnoBueno();
    Pulsar(u"picAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(Almacenados().UltimaFila(), 1);
    AbrirNuevo();
    Pulsar(u"picCancelar"_s);
    EXPECT_FALSE(Abierto());
}

TEST_F(frmZTDeclaranteCierreTest, ButtonsWorkByEnterSpaceAndAccessKey) {
    AbrirNuevo();
    IrA(u"cmdCancelar"_s);
    QTest::keyPress(marco->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(Abierto());
    AbrirNuevo();
    IrA(u"cmdCancelar"_s);
    Tecla(Qt::Key_Space);
    EXPECT_FALSE(Abierto());
    AbrirNuevo();
    EscribirUnoBueno();
    QTest::keyPress(marco->windowHandle(), Qt::Key_A, Qt::AltModifier);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(Almacenados().UltimaFila(), 1);
}

TEST_F(frmZTDeclaranteCierreTest, FaultsAreListedAndTheFormStaysAsItIs) {
    AbrirNuevo();
    Escribir(u"txtNombre"_s, u"SOLO EL NOMBRE"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    ASSERT_EQ(pantalla.listas.size(), 1U);
    EXPECT_EQ(TextoDe(u"txtNombre"_s), u"SOLO EL NOMBRE"_s);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_TRUE(Almacenados().EsNula());
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTDeclaranteCierreTest, AcceptingWithoutAChangeNeitherChecksNorStores) {
    AbrirNuevo();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(pantalla.listas.empty());
    EXPECT_TRUE(Almacenados().EsNula());

    const qint32 csde = Guardar();
    AbrirExistente(csde);
    oDeclarante().Nombre.clear();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(pantalla.listas.empty());
    EXPECT_EQ(NombreAlmacenado(csde), u"GASOLINERA UNO"_s);
}

TEST_F(frmZTDeclaranteCierreTest, AcceptingStraightOutOfACodeTakesWhatLeavingItHasChanged) {
    const qint32 csde = Guardar(48, 0);
    AbrirExistente(csde);
    Escribir(u"txtCPost"_s, u"20001"_s);
    Escribir(u"txtProvin"_s, u"20"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), QString());
    ASSERT_EQ(pantalla.listas.size(), 1U);
    EXPECT_EQ(pantalla.listas.front().UltimaFila(), 0);
    EXPECT_EQ(pantalla.listas.front()(1, 0).aEntero16(), 8);
    EXPECT_EQ(ProvinciaAlmacenada(csde), 48);
    Escribir(u"txtMuni"_s, u"1"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(ProvinciaAlmacenada(csde), 20);
    EXPECT_EQ(Almacenados()(3, 1).aTexto(), u"ABARZELAI"_s);
}

TEST_F(frmZTDeclaranteCierreTest, ATelephoneFaultAfterAnotherOneShowsTheErrorDialogAndStoresNothing) {
    const qint32 csde = Guardar();
    AbrirExistente(csde);
    Escribir(u"txtTelPre"_s, u"943"_s);
    Escribir(u"txtTelNum"_s, u"1234567"_s);
    IrA(u"txtNombre"_s);
    Tecla(Qt::Key_Delete);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    EXPECT_TRUE(pantalla.listas.empty());
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"cDeclarante.ValidarDatos"_s);
    EXPECT_EQ(NombreAlmacenado(csde), u"GASOLINERA UNO"_s);
}

TEST_F(frmZTDeclaranteCierreTest, AChangedDeclarantIsStoredUnderItsKeyAndTheListOfDeclarationsComesBack) {
    const qint32 csde = Guardar();
    AbrirExistente(csde);
    Escribir(u"txtNombre"_s, u"GASOLINERA DOS"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(oDeclarante().CSDE, csde);
    EXPECT_EQ(Almacenados().UltimaFila(), 1);
    EXPECT_EQ(NombreAlmacenado(csde), u"GASOLINERA DOS"_s);
    EXPECT_TRUE(ListaALaVista());
    EXPECT_FALSE(MenusHabilitados());
}

TEST_F(frmZTDeclaranteCierreTest, ASaveThatTheStoreRefusesLeavesTheTypedDataOnTheForm) {
    AbrirNuevo();
    oDeclarante().CSDE = 77;
    EscribirUnoBueno();
    Entorno().mdbmod += u".otra"_s;
    ASSERT_TRUE(QDir().mkdir(Entorno().mdbmod));
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    EXPECT_FALSE(pantalla.errores.empty());
    EXPECT_EQ(oDeclarante().CSDE, 77);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(TextoDe(u"txtNombre"_s), u"GASOLINERA ÑU & CA"_s);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTDeclaranteCierreTest, OnceTheStoreIsBackTheSameFormCanBeAccepted) {
    const qint32 csde = Guardar();
    AbrirExistente(csde);
    Escribir(u"txtNombre"_s, u"GASOLINERA DOS"_s);
    QuitarAlmacen();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    ASSERT_FALSE(pantalla.errores.empty());
    EXPECT_EQ(pantalla.errores.back().evento, u"cDeclarante.GuardarDeclarante"_s);
    EXPECT_EQ(oDeclarante().CSDE, csde);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(TextoDe(u"txtNombre"_s), u"GASOLINERA DOS"_s);
    DevolverAlmacen();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(NombreAlmacenado(csde), u"GASOLINERA DOS"_s);
}

TEST_F(frmZTDeclaranteCierreTest, CancellingANewDeclarantClearsTheRecordWithoutAQuestion) {
    AbrirNuevo();
    Escribir(u"txtNombre"_s, u"ALGUIEN"_s);
    pantalla.punteros.clear();
    Pulsar(u"cmdCancelar"_s);
    EXPECT_EQ(pantalla.punteros.front(), Puntero::Espera);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_EQ(oDeclarante().Modo, cZTDeclarante::kModoNuevo);
    EXPECT_EQ(oDeclarante().Nombre, QString());
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_TRUE(MenusHabilitados());
}

TEST_F(frmZTDeclaranteCierreTest, CancellingAnExistingOneReadsItAgainAndShowsTheListOfDeclarations) {
    AbrirExistente(Guardar());
    oListaDeclaraciones().CSDC = 5;
    Escribir(u"txtNombre"_s, u"OTRO"_s);
    pantalla.punteros.clear();
    Pulsar(u"cmdCancelar"_s);
    EXPECT_EQ(pantalla.punteros.front(), Puntero::Espera);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(oDeclarante().Nombre, u"GASOLINERA UNO"_s);
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_EQ(oListaDeclaraciones().CSDC, 0);
    EXPECT_TRUE(ListaALaVista());
    EXPECT_EQ(pantalla.cesiones, 1);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTDeclaranteCierreTest, FromAnyOtherScreenCancelDoesNothing) {
    AbrirExistente(Guardar());
    oDeclarante().Procedencia = 1;
    Escribir(u"txtNombre"_s, u"OTRO"_s);
    Pulsar(u"cmdCancelar"_s);
    EXPECT_TRUE(Abierto());
    EXPECT_EQ(oDeclarante().Nombre, u"OTRO"_s);
    EXPECT_FALSE(ListaALaVista());
}

TEST_F(frmZTDeclaranteCierreTest, WhatTheFormCanHoldComesBackFromTheStoreAsItWas) {
    ASSERT_TRUE(rc::check([this] {
        Formularios::Descargar(frmZTDeclarante::kNombre.toString());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        VaciarAlmacen();
        const std::vector<std::pair<QString, QString>> tecleado{
            {u"txtNIF"_s, u"12345678Z"_s},
            {u"txtNombre"_s, *TextoAceptado(1, 40)},
            {u"txtViaPub"_s, *TextoAceptado(1, 20)},
            {u"txtNumero"_s, *NumeroEnTexto(1, 99999)},
            {u"txtLetra"_s, *TextoAceptado(0, 5)},
            {u"txtEscalera"_s, *TextoAceptado(0, 2)},
            {u"txtPiso"_s, *TextoAceptado(0, 2)},
            {u"txtMano"_s, *TextoAceptado(0, 3)},
            {u"txtProvin"_s, u"48"_s},
            {u"txtCPost"_s, *NumeroEnTexto(48000, 48999)},
            {u"txtNombreMunicipio"_s, *TextoAceptado(1, 12)},
            {u"txtTelPre"_s, *NumeroEnTexto(1, 999)},
            {u"txtTelNum"_s, *NumeroEnTexto(1, 999999)}};
        AbrirNuevo();
        for (const auto& [caja, texto] : tecleado) {
            Escribir(caja, texto.toLower());
            Tecla(Qt::Key_Tab);
        }
        Pulsar(u"cmdAceptar"_s);
        RC_ASSERT(!Abierto());
        const qint32 csde = oDeclarante().CSDE;
        oDeclarante() = cZTDeclarante();
        AbrirExistente(csde);
        for (const auto& [caja, texto] : tecleado) {
            RC_ASSERT(TextoDe(caja).toStdString() == texto.toStdString());
        }
    }));
}

TEST_F(frmZTDeclaranteCierreTest, ASaveOverWhatAnotherProgramHasChangedLeavesTheFormWithWhatWasTyped) {
    const qint32 csde = Guardar();
    AbrirExistente(csde);
    Escribir(u"txtViaPub"_s, u"calle nueva"_s);
    svrZELT::cZTDeclarante otro;
    otro.mdbmod = Entorno().mdbmod;
    Registro deOtro = Almacenado(csde);
    deOtro[2] = u"NOMBRE DE OTRO"_s;
    ASSERT_EQ(otro.GuardarDeclarante(deOtro), csde);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Abierto());
    EXPECT_EQ(Caja(u"txtViaPub"_s).text(), u"CALLE NUEVA"_s);
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(Almacenado(csde), deOtro);
    // As the message says: out of the form, in again, and the change once more.
    Pulsar(u"cmdCancelar"_s);
    AbrirExistente(csde);
    Escribir(u"txtViaPub"_s, u"calle nueva"_s);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(NombreAlmacenado(csde), u"NOMBRE DE OTRO"_s);
    EXPECT_EQ(Almacenado(csde)[4], Valor(u"CALLE NUEVA"_s));
}
