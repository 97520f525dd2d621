#include "core/online/cZTActOnline.h"

#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

using cZTActOnlineTest = EntornoDePrueba;

svrZELT::cZTDatosGeneral DelUsuario() {
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdblec = Entorno().mdbmod;
    servidor.mdbmod = Entorno().mdbmod;
    return servidor;
}

}  // namespace

TEST_F(cZTActOnlineTest, ThereIsOneInstance) {
    oActOnline().ActVer1 = u"1"_s;
    EXPECT_EQ(oActOnline().ActVer1, u"1"_s);
    EXPECT_EQ(&oActOnline(), &oActOnline());
}

TEST_F(cZTActOnlineTest, TheAddressOfTheServiceIsReadIntoThePropertyAndTheResultStaysEmpty) {
    EXPECT_EQ(oActOnline().ObtenerURLAct(), QString());
    EXPECT_TRUE(oActOnline().URLAct.startsWith(u"https://"));
}

TEST_F(cZTActOnlineTest, TheSettingIsStoredAndReadBackFromTheUsersStore) {
    for (const qint16 ajuste : {qint16{1}, qint16{0}, qint16{-1}}) {
        oActOnline().ActOnline = ajuste;
        oActOnline().GuardarActOnline();
        EXPECT_EQ(DelUsuario().ObtenerActOnline(), ajuste);
        oActOnline().ActOnline = 7;
        oActOnline().LeerActOnline();
        EXPECT_EQ(oActOnline().ActOnline, ajuste);
    }
}

TEST_F(cZTActOnlineTest, TheLanguageCodeIsStoredInTheUsersStore) {
    oActOnline().ModificarIdioma(u"E"_s);
    EXPECT_EQ(DelUsuario().ObtenerIdioma(), u"E"_s);
}

TEST_F(cZTActOnlineTest, ReadingTheLanguageMovesANumberIntoTheLanguageWord) {
    DelUsuario().CambiarIdioma(u"1000"_s);
    oActOnline().LeerIdioma();
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
}

TEST_F(cZTActOnlineTest, ReadingTheLanguageRefusesALetter) {
    DelUsuario().CambiarIdioma(u"E"_s);
    EXPECT_EQ(NumeroDelError([] { oActOnline().LeerIdioma(); }), 13);
    EXPECT_EQ(Entorno().OffsetIdioma, 0);
}
