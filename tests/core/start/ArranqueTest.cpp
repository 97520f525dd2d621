#include "core/online/VersionDelPrograma.h"
#include "core/start/Arranque.h"

#include <QFile>

#include "core/online/cZTActOnline.h"
#include "core/run/cZTFecha.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/store/Almacen.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

using ArranqueTest = EntornoDePrueba;

void GuardarIdioma(const QString& idioma) {
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdbmod = Entorno().mdbmod;
    servidor.ModificarIdioma(idioma);
}

void GuardarActOnline(qint16 ajuste) {
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdblec = Entorno().mdbmod;
    servidor.GuardarActOnline(ajuste);
}

}  // namespace

TEST_F(ArranqueTest, TheVersionIsTheFirstSecondAndFourthNumber) {
    Entorno().LectorVersion = [] { return std::optional(VersionFichero{{3, 2, 77, 5}, {4, 3, 2, 1}}); };
    ObtenerVersion();
    EXPECT_EQ(Entorno().VersionPrograma, u"3.2.5"_s);
    EXPECT_EQ(oActOnline().ProgVer1, u"3"_s);
    EXPECT_EQ(oActOnline().ProgVer2, u"2"_s);
    EXPECT_EQ(oActOnline().ProgVer3, u"5"_s);
    EXPECT_EQ(Entorno().VersionProducto, u"4.3.2.1"_s);
    EXPECT_TRUE(oActOnline().ActFile.startsWith(Entorno().CarpetaPrograma));
    EXPECT_TRUE(oActOnline().ActFile.endsWith(QDir::separator() + u"ZELT.exe"_s));
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(ArranqueTest, WithoutAVersionBlockTheMessageIsCastellanoWhateverTheStoredLanguageAndStartGoesOn) {
    GuardarIdioma(u"E"_s);
    Entorno().LectorVersion = [] { return std::optional<VersionFichero>(); };
    ObtenerVersion();
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_EQ(pantalla.plataforma.front(), u"No hay disponible información sobre la versión"_s);
    EXPECT_EQ(Entorno().VersionPrograma, QString());
    InicializarEntorno();
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
    EXPECT_EQ(terminado, -1);
}

TEST_F(ArranqueTest, ThePathsStandUnderTheProgramFolder) {
    Entorno().CarpetaPrograma = QDir::toNativeSeparators(u"/prog/ZELT"_s);
    InicializarTodo();
    EXPECT_EQ(Entorno().mdbPath, QDir::toNativeSeparators(u"/prog/ZELT/Tablas/"_s));
    EXPECT_EQ(Entorno().mdbmod, QDir::toNativeSeparators(u"/prog/ZELT/Tablas/ZELTMOD.mdb"_s));
    EXPECT_EQ(Entorno().mdblec, QDir::toNativeSeparators(u"/prog/ZELT/Tablas/ZELTLEC.mdb"_s));
}

TEST_F(ArranqueTest, AClientSubfolderReadsTheDataOfItsParentWhateverTheCase) {
    Entorno().CarpetaPrograma = QDir::toNativeSeparators(u"/Prog/Cliente/Bin"_s);
    InicializarTodo();
    EXPECT_EQ(Entorno().mdbPath, QDir::toNativeSeparators(u"/Prog/Tablas/"_s));
}

TEST_F(ArranqueTest, TheUsersOwnFolderIsNeverCut) {
    Entorno().CarpetaPrograma = QDir::toNativeSeparators(u"/home/cliente/datos"_s);
    Entorno().CarpetaDeUsuario = true;
    InicializarTodo();
    EXPECT_EQ(Entorno().mdbPath, QDir::toNativeSeparators(u"/home/cliente/datos/Tablas/"_s));
}

TEST_F(ArranqueTest, AFailureOfThePathsBearsTheNameOfTheProcedure) {
    Entorno().CarpetaPrograma = u"cliente"_s;
    EXPECT_TRUE(DescripcionDelError([] { InicializarTodo(); }).startsWith(u"General.InicializarTodo\r\n"));
    EXPECT_EQ(NumeroDelError([] { InicializarTodo(); }), 5);
}

TEST_F(ArranqueTest, MigrationOfAnUpToDateStoreGoesOnUnderTheHourglass) {
    EXPECT_FALSE(Traspaso());
    EXPECT_EQ(pantalla.punteros, (std::vector{Puntero::Espera, Puntero::Normal}));
    EXPECT_EQ(terminado, -1);
}

TEST_F(ArranqueTest, AnAnswerThatTheProgramMustNotGoOnEndsItAtOnceAndSilently) {
    Entorno().Migrar = [] { return true; };
    EXPECT_TRUE(Traspaso());
    EXPECT_EQ(terminado, 0);
    EXPECT_EQ(pantalla.punteros, std::vector{Puntero::Espera});
    EXPECT_TRUE(pantalla.plataforma.empty());
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(ArranqueTest, ADamagedStoreStopsTheStartWithItsNameAndIsLeftAlone) {
    CerrarAlmacenes();
    QFile fichero(Entorno().mdbmod);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly | QIODevice::Truncate));
    fichero.write("esto no es un almacen de datos, sino un texto cualquiera\n");
    fichero.close();
    const QString descripcion = DescripcionDelError([] { Traspaso(); });
    EXPECT_TRUE(descripcion.startsWith(u"MDIZT.Traspaso\r\n"));
    EXPECT_TRUE(descripcion.contains(Entorno().mdbmod));
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    EXPECT_EQ(fichero.readAll(), QByteArray("esto no es un almacen de datos, sino un texto cualquiera\n"));
}

TEST_F(ArranqueTest, TheEnvironmentIsLoadedFromBothStoresAndCanBeLoadedAgain) {
    for (const QString& idioma : {u"E"_s, u"C"_s}) {
        GuardarIdioma(idioma);
        InicializarEntorno();
        EXPECT_EQ(Entorno().OffsetIdioma, idioma == u"E" ? 1000 : 0);
        EXPECT_EQ(oFecha().IDI(), idioma);
        EXPECT_EQ(Entorno().EjercicioMinimo, 2002);
        EXPECT_EQ(Entorno().PeriodoMinimo, 1);
        EXPECT_EQ(Entorno().EjercicioMaximo, 2012);
        EXPECT_EQ(Entorno().PeriodoMaximo, 4);
        EXPECT_FALSE(oActOnline().URLAct.isEmpty());
        EXPECT_EQ(oActOnline().ActOnline, -1);
    }
}

TEST_F(ArranqueTest, AMissingReferenceStoreFailsInTheFirstCallThatTouchesIt) {
    CerrarAlmacenes();
    ASSERT_TRUE(QFile::remove(Entorno().mdblec));
    const QString descripcion = DescripcionDelError([] { InicializarEntorno(); });
    EXPECT_TRUE(descripcion.startsWith(u"General.InicializarDatosGenerales\r\n"));
    EXPECT_TRUE(descripcion.contains(Entorno().mdblec));
    EXPECT_FALSE(QFile::exists(Entorno().mdblec));
}

TEST_F(ArranqueTest, GeneralDataComeFirstSoWithoutThemNothingElseIsRead) {
    GuardarIdioma(u"E"_s);
    GuardarActOnline(1);
    CerrarAlmacenes();
    ASSERT_TRUE(QFile::remove(Entorno().mdblec));
    EXPECT_NE(NumeroDelError([] { InicializarEntorno(); }), 0);
    EXPECT_EQ(oActOnline().URLAct, QString());
    EXPECT_EQ(oFecha().IDI(), QString());
    EXPECT_EQ(Entorno().OffsetIdioma, 0);
    EXPECT_EQ(oActOnline().ActOnline, 0);
}

TEST_F(ArranqueTest, TheAddressOfTheServiceIsReadBeforeTheLanguageAndTheSettingAfterIt) {
    GuardarActOnline(1);
    AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base().exec("PRAGMA query_only = ON");
    EXPECT_NE(NumeroDelError([] { InicializarEntorno(); }), 0) << "reading the language writes it back";
    EXPECT_EQ(Entorno().EjercicioMaximo, 2012);
    EXPECT_FALSE(oActOnline().URLAct.isEmpty());
    EXPECT_EQ(oActOnline().ActOnline, 0);
}
