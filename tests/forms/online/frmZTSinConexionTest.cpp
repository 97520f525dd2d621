#include "forms/online/frmZTSinConexion.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include "core/online/cZTActOnline.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTSinConexionTest : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        oActOnline().ActOnline = 1;
        oActOnline().SitAct = 1;
    }

    template <class F>
    void Mostrar(F accion) {
        AlAbrirse(frmZTSinConexion::kNombre, accion);
        Formularios::MostrarModal(frmZTSinConexion::kNombre.toString());
    }

    static qint16 AvisoGuardado() {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdblec = Entorno().mdbmod;
        return servidor.ObtenerActOnline();
    }
};

}  // namespace

TEST_F(frmZTSinConexionTest, ItSpeaksBothLanguagesAtOnceInBoth) {
    for (const qint16 offset : {kOffsetCastellano, kOffsetEuskera}) {
        Entorno().OffsetIdioma = offset;
        Mostrar([](QWidget& v) {
            EXPECT_EQ(v.windowTitle(), u"Fallo en la conexión / Konexio akatsa gertatu da"_s);
            EXPECT_EQ(Control<QLabel>(v, "lblTituloC").text(),
                      u"No dispone de conexión a Internet en estos momentos o el servidor se encuentra "
                      "inactivo"_s);
            EXPECT_EQ(Control<QLabel>(v, "lblTituloE").text(),
                      u"Momentu honetan ez daukazu Interneterako konexiorik edo zerbitzaria ez dago "
                      "atzigarri"_s);
            EXPECT_EQ(Control<QCheckBox>(v, "ChkNoPreg").text(),
                      u"Berriro kontsulta ez egin / No volver a consultar"_s);
            EXPECT_EQ(Control<QPushButton>(v, "CmdContinuar").text(), u"Aurrera jarraitu... Continuar..."_s);
            v.close();
        });
    }
}

TEST_F(frmZTSinConexionTest, AnyOtherSituationIsOneOfWrongData) {
    for (const qint32 situacion : {4, 3, 0}) {
        oActOnline().SitAct = situacion;
        Mostrar([](QWidget& v) {
            EXPECT_EQ(v.windowTitle(), u"Datos erroneos / Datu okerrak dira"_s);
            EXPECT_EQ(Control<QLabel>(v, "lblTituloC").text(),
                      u"Error en la recuperación o lectura de los datos de actualización."_s);
            EXPECT_EQ(Control<QLabel>(v, "lblTituloE").text(),
                      u"Akatsa gertatu da eguneratze datuak berreskuratu edo irakurtzean "_s);
            v.close();
        });
    }
}

TEST_F(frmZTSinConexionTest, ItStandsWithItsFrameInTheMiddleOfTheScreen) {
    Mostrar([](QWidget& v) {
        const QPoint centro = v.screen()->availableGeometry().center();
        const auto desvio = [&] { return (v.frameGeometry().center() - centro).manhattanLength(); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return desvio() <= 1; })) << desvio();
        v.close();
    });
}

TEST_F(frmZTSinConexionTest, TheBoxIsCheckedExactlyWhenNoCheckIsMadeAtStart) {
    for (const qint16 ajuste : {qint16{0}, qint16{1}, qint16{-1}}) {
        oActOnline().ActOnline = ajuste;
        Mostrar([ajuste](QWidget& v) {
            EXPECT_EQ(Control<QCheckBox>(v, "ChkNoPreg").isChecked(), ajuste == 0);
            v.close();
        });
        EXPECT_EQ(oActOnline().ActOnline, ajuste);
    }
}

TEST_F(frmZTSinConexionTest, TheChoiceLastsForTheRunAndIsNotStored) {
    ASSERT_EQ(AvisoGuardado(), -1);
    Mostrar([](QWidget& v) {
        QTest::keyClick(&Control(v, "ChkNoPreg"), Qt::Key_Space);
        EXPECT_EQ(oActOnline().ActOnline, 0);
        QTest::keyClick(&Control(v, "ChkNoPreg"), Qt::Key_Space);
        EXPECT_EQ(oActOnline().ActOnline, 1);
        QTest::keyClick(&Control(v, "ChkNoPreg"), Qt::Key_Space);
        Pulsar(v, "CmdContinuar");
    });
    EXPECT_EQ(oActOnline().ActOnline, 0);
    EXPECT_EQ(AvisoGuardado(), -1);
}

TEST_F(frmZTSinConexionTest, ContinueEscapeAndTheCloseBoxUnloadIt) {
    const std::vector<std::function<void(QWidget&)>> caminos{
        [](QWidget& v) { QTest::keyClick(v.focusWidget(), Qt::Key_Return); },
        [](QWidget& v) { QTest::keyClick(&v, Qt::Key_Escape); }, [](QWidget& v) { v.close(); }};
    for (const auto& camino : caminos) {
        Mostrar(camino);
        EXPECT_FALSE(Formularios::Cargado(u"frmZTSinConexion"_s));
    }
}
