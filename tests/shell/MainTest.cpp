#include "shell/Main.h"

#include <QAbstractButton>
#include <QFile>
#include <QTest>

#include "data/svrZELT/cZTDatosGeneral.h"
#include "online/cZTActOnline.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class MainTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
        PonerReloj();
    }

    /// A clock that goes 100 ms on at each look, so that no test waits for the splash.
    void PonerReloj() {
        Entorno().Milisegundos = [this] { return ahora += 100; };
    }

    static void GuardarAjuste(qint16 ajuste) {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdblec = Entorno().mdbmod;
        servidor.GuardarActOnline(ajuste);
    }

    qint64 ahora = 0;
};

}  // namespace

TEST_F(MainTest, TheStartEndsWithTheMainWindowAndTheSplashGone) {
    GuardarAjuste(0);
    Main();
    EXPECT_EQ(Formularios::Cargados(), QStringList(u"MDIZT"_s));
    EXPECT_TRUE(Formularios::Visible(u"MDIZT"_s));
    EXPECT_EQ(Entorno().VersionPrograma.count(u'.'), 2);
    EXPECT_EQ(Entorno().EjercicioMaximo, 2012);
    EXPECT_GE(ahora, 4000);
}

TEST_F(MainTest, TheUpdateCheckRunsInsideTheSplashOnlyWhenItIsSwitchedOn) {
    for (const qint16 ajuste : {qint16{0}, qint16{1}}) {
        int veces = 0;
        Entorno().ComprobarActualizacion = [&veces] {
            ++veces;
            EXPECT_TRUE(Formularios::Visible(u"frmZTInicio"_s));
            EXPECT_FALSE(Formularios::Cargado(u"MDIZT"_s));
        };
        GuardarAjuste(ajuste);
        Main();
        EXPECT_EQ(veces, ajuste);
        Formularios::Reiniciar();
    }
}

TEST_F(MainTest, ASecondStartOnTheSameFilesBehavesLikeTheFirst) {
    GuardarAjuste(0);
    Main();
    Formularios::Reiniciar();
    Main();
    EXPECT_TRUE(Formularios::Visible(u"MDIZT"_s));
    EXPECT_TRUE(pantalla.plataforma.empty());
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(MainTest, AFreshInstallationGetsItsStoreAndIsAskedForTheLanguage) {
    CerrarAlmacenes();
    ASSERT_TRUE(QFile::remove(Entorno().mdbmod));
    CuandoAparezca(u"frmZTIdioma"_s, [](QWidget& idioma) {
        EXPECT_TRUE(Formularios::Visible(u"MDIZT"_s));
        EXPECT_FALSE(Formularios::Cargado(u"frmZTInicio"_s));
        QTest::mouseClick(idioma.findChild<QAbstractButton*>(u"cmdCastellano"_s), Qt::LeftButton);
    });
    Main();
    EXPECT_TRUE(QFile::exists(Entorno().mdbmod));
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdbmod = Entorno().mdbmod;
    EXPECT_EQ(servidor.ObtenerIdioma(), u"C"_s);
}

TEST_F(MainTest, AFailureOfTheStartClimbsWithItsTrace) {
    CerrarAlmacenes();
    ASSERT_TRUE(QFile::remove(Entorno().mdblec));
    EXPECT_TRUE(DescripcionDelError([] { Main(); }).startsWith(u"General.InicializarDatosGenerales\r\n"));
    EXPECT_TRUE(Formularios::Cargados().isEmpty());
}
