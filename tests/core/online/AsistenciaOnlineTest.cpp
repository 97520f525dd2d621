#include "core/online/AsistenciaOnline.h"

#include "tests/support/AsistenciaDePrueba.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/NavegadorDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class AsistenciaOnlineTest : public EntornoDePrueba {
  protected:
    NavegadorDePrueba escritorio;
};

}  // namespace

TEST_F(AsistenciaOnlineTest, TheAssistanceIsOpenedInTheLanguageInForce) {
    const AsistenciaDePrueba asistencia;
    AbrirAsistencia();
    Entorno().OffsetIdioma = kOffsetEuskera;
    AbrirAsistencia();
    ASSERT_EQ(asistencia.abiertas.size(), 2);
    EXPECT_TRUE(asistencia.abiertas.at(0).endsWith(u"?idioma=c"));
    EXPECT_TRUE(asistencia.abiertas.at(1).endsWith(u"?idioma=e"));
}

TEST_F(AsistenciaOnlineTest, TheDescriptionIsShownInTheLanguageInForceOverTheCallingWindow) {
    const AsistenciaDePrueba asistencia;
    DescribirAsistencia(7);
    Entorno().OffsetIdioma = kOffsetEuskera;
    DescribirAsistencia(-8);
    ASSERT_EQ(asistencia.infos.size(), 2);
    EXPECT_TRUE(asistencia.infos.at(0).startsWith(u"0 https://"));
    EXPECT_TRUE(asistencia.infos.at(0).endsWith(u" 7"));
    EXPECT_TRUE(asistencia.infos.at(1).startsWith(u"1000 https://"));
    EXPECT_TRUE(asistencia.infos.at(1).endsWith(u" -8"));
    EXPECT_NE(asistencia.infos.at(0).section(u' ', 1, 1), asistencia.infos.at(1).section(u' ', 1, 1));
}

TEST_F(AsistenciaOnlineTest, WithoutAScreenThereIsNoAssistance) {
    EXPECT_EQ(NumeroDelError(AbrirAsistencia), 91);
    EXPECT_EQ(NumeroDelError([] { DescribirAsistencia(0); }), 91);
}

TEST_F(AsistenciaOnlineTest, AnAddressOfTheWebGoesToTheBrowser) {
    escritorio.Instalar();
    AbrirEnNavegador(u"https://www.ondarzia.example/es?a=1&b=2"_s);
    EXPECT_EQ(escritorio.Abierto(), QByteArray("1\nhttps://www.ondarzia.example/es?a=1&b=2\n"));
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(AsistenciaOnlineTest, WithoutABrowserTheUserIsToldTheAddress) {
    for (const qint16 offset : {kOffsetCastellano, kOffsetEuskera}) {
        Entorno().OffsetIdioma = offset;
        AbrirEnNavegador(u"https://www.ondarzia.example/es"_s);
    }
    ASSERT_EQ(pantalla.mensajes.size(), 2U);
    EXPECT_EQ(pantalla.mensajes[0].texto,
              u"No hay ningún navegador con el que abrir esta dirección:\r\n"
              "https://www.ondarzia.example/es"_s);
    EXPECT_EQ(pantalla.mensajes[0].titulo, u"Asistencia on-line"_s);
    EXPECT_TRUE(pantalla.mensajes[0].unBoton);
    EXPECT_EQ(pantalla.mensajes[1].texto,
              u"Ez dago helbide hau irekitzeko nabigatzailerik:\r\nhttps://www.ondarzia.example/es"_s);
}

TEST_F(AsistenciaOnlineTest, WhatIsNoAddressOfTheWebIsNeverOpened) {
    escritorio.Instalar();
    for (const QString& direccion :
         {u"file:///etc/passwd"_s, u"/etc/passwd"_s, u"--version"_s, u"javascript:alert(1)"_s, u"https://"_s,
          QString(), u"https://a b.example/"_s}) {
        EXPECT_EQ(NumeroDelError([&] { AbrirEnNavegador(direccion); }), 5) << direccion.toStdString();
    }
    EXPECT_TRUE(escritorio.NadaAbierto());
}
