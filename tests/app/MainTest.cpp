#include "app/Main.h"

#include <QAbstractButton>
#include <QFile>
#include <QTest>

#include "app/MDIZT.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/online/cZTActOnline.h"
#include "core/run/plataforma/MarcaConNombre.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/store/Almacen.h"
#include "tests/support/CopiasDePrueba.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class MainTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
        PonerReloj();
        // The named mark of these runs stands in the folder of the test, not in that of the user.
        qputenv(kCarpetaDeMarca, QFile::encodeName(carpeta.path()));
    }
    void TearDown() override {
        QuitarMarcaConNombre();
        if (carpetaDeMarca.isNull()) {
            qunsetenv(kCarpetaDeMarca);
        } else {
            qputenv(kCarpetaDeMarca, carpetaDeMarca);
        }
        PruebaDeFormularios::TearDown();
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

    static void GuardarIdioma(const QString& idioma) {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdbmod = Entorno().mdbmod;
        servidor.ModificarIdioma(idioma);
    }

    qint64 ahora = 0;

  private:
    static constexpr char kCarpetaDeMarca[] = "XDG_RUNTIME_DIR";
    const QByteArray carpetaDeMarca = qgetenv(kCarpetaDeMarca);
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

TEST_F(MainTest, TheNamedMarkStandsFirstThenTheVersionIsReadAndOnlyThenAreThePathsSet) {
    GuardarAjuste(0);
    Entorno().mdbPath.clear();
    int veces = 0;
    Entorno().LectorVersion = [this, &veces] {
        ++veces;
        EXPECT_TRUE(QFile::exists(carpeta.filePath(u"KLKL_ZELT"_s)));
        EXPECT_EQ(Entorno().mdbPath, QString());
        return std::optional(VersionFichero{{1, 2, 3, 4}, {1, 2, 3, 4}});
    };
    Entorno().Migrar = [&veces] {
        EXPECT_EQ(veces, 1);
        EXPECT_FALSE(Entorno().mdbPath.isEmpty());
        EXPECT_EQ(Entorno().EjercicioMaximo, 0) << "the environment is loaded after the migration";
        return false;
    };
    ASSERT_FALSE(QFile::exists(carpeta.filePath(u"KLKL_ZELT"_s)));
    Main();
    EXPECT_EQ(veces, 1);
    EXPECT_EQ(Entorno().EjercicioMaximo, 2012);
}

TEST_F(MainTest, WhenTheStoreMustNotBeUsedTheProcessEndsWithoutASplashOrAMessage) {
    Entorno().Migrar = [] { return true; };
    Main();
    EXPECT_EQ(terminado, 0);
    EXPECT_TRUE(Formularios::Cargados().isEmpty());
    EXPECT_EQ(ahora, 0) << "the splash looks at the clock";
    EXPECT_EQ(Entorno().EjercicioMaximo, 0);
    EXPECT_TRUE(pantalla.plataforma.empty());
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(MainTest, WithoutAVersionBlockTheMessageIsCastellanoAndTheProgramGoesOnInEuskera) {
    GuardarAjuste(0);
    GuardarIdioma(u"E"_s);
    Entorno().LectorVersion = [this] {
        EXPECT_EQ(Entorno().OffsetIdioma, 0);
        EXPECT_TRUE(pantalla.plataforma.empty());
        return std::optional<VersionFichero>();
    };
    Main();
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_EQ(pantalla.plataforma.front(), u"No hay disponible información sobre la versión"_s);
    EXPECT_FALSE(pantalla.ultimoEsFallo);
    EXPECT_EQ(Entorno().VersionPrograma, QString());
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
    EXPECT_EQ(ElFormulario<MDIZT>().windowTitle(),
              u"Zenbait Hidrokarburoren Txikizkako Salmenten gaineko Zerga"_s);
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

namespace {

/// A declaration of nobody, which no quick look finds.
void DanarAlmacen() {
    auto& base = AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base();
    base.exec("PRAGMA foreign_keys = OFF");
    base.exec("INSERT INTO T07_DECLARACIONES (T07_CSDE, T07_EJERCICIO, T07_PERIODO) VALUES (5, 2010, 1)");
    CerrarAlmacenes();
}

}  // namespace

TEST_F(MainTest, DamageThatIsFoundBehindTheSplashOffersTheCopiesBeforeTheMainWindow) {
    GuardarAjuste(0);
    CopiasDePrueba canal;
    GuardarIdioma(u"E"_s);
    const QString copia = HacerCopiaAutomatica(AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base(),
                                               Entorno().mdbmod, Ocasion::Diaria, canal.ahora);
    GuardarIdioma(u"C"_s);
    DanarAlmacen();
    canal.alPedirVuelta = [&](TareaDeVuelta& tarea) {
        EXPECT_TRUE(Formularios::Cargados().isEmpty());
        EXPECT_GE(ahora, 4000);
        EXPECT_FALSE(tarea.Volver(copia, [](int) {}));
        return true;
    };
    Main();
    ASSERT_EQ(canal.rechazos.size(), 1U);
    EXPECT_EQ(canal.rechazos.front().motivo, MotivoDeCopia::Danado);
    EXPECT_EQ(Formularios::Cargados(), QStringList(u"MDIZT"_s));
    EXPECT_EQ(Entorno().OffsetIdioma, 1000) << "the language of the copy";
    EXPECT_EQ(terminado, -1);
}

TEST_F(MainTest, WhoDoesNotGoBackFromDamageEndsTheProgramWithoutAMainWindow) {
    GuardarAjuste(0);
    const CopiasDePrueba canal;
    DanarAlmacen();
    Main();
    EXPECT_EQ(canal.rechazos.size(), 1U);
    EXPECT_EQ(terminado, 0);
    EXPECT_TRUE(Formularios::Cargados().isEmpty());
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(MainTest, AFailureOfTheStartClimbsWithItsTrace) {
    CerrarAlmacenes();
    ASSERT_TRUE(QFile::remove(Entorno().mdblec));
    EXPECT_TRUE(DescripcionDelError([] { Main(); }).startsWith(u"General.InicializarDatosGenerales\r\n"));
    EXPECT_TRUE(Formularios::Cargados().isEmpty());
}
