#include "core/online/ActualizacionOnlineZT.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>

#include "core/base/ErrorZT.h"
#include "core/online/cZTActOnline.h"
#include "tests/support/CanalDePrueba.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kPaso = 250;

class ActualizacionOnlineZTTest : public EntornoDePrueba {
  protected:
    void SetUp() override {
        EntornoDePrueba::SetUp();
        Entorno().LectorVersion = [] { return std::optional(VersionFichero{{1, 2, 77, 3}, {4, 3, 2, 1}}); };
        // Each look at the clock finds it a quarter of a second later.
        Entorno().Milisegundos = [this] {
            ++miradas;
            return ahora += kPaso;
        };
        oActOnline().URLAct = u"https://servicio.example/version"_s;
        canal.contenido = FicheroDeVersion("1.2.3");
    }

    void Comprobar() { ComprobarActualizacion(canal); }
    qint32 Leer(const QByteArray& contenido) const {
        EscribirFichero(RutaDeVersion(), contenido);
        return LeerVersion();
    }

    CanalDePrueba canal;
    qint64 ahora = 0;
    int miradas = 0;
};

/// A program folder with nothing in it, and a clock that jumps: all that a check needs.
class CualquierRespuestaTest : public testing::Test {
  protected:
    void SetUp() override {
        FijarPantalla(&pantalla);
        Entorno().CarpetaPrograma = QDir::toNativeSeparators(carpeta.path());
        Entorno().Milisegundos = [this] { return ahora += 1000; };
    }
    void TearDown() override {
        FijarPantalla(nullptr);
        ReiniciarInstancias();
        ReiniciarEntorno();
    }

    QTemporaryDir carpeta;
    PantallaGrabadora pantalla;
    CanalDePrueba canal;
    qint64 ahora = 0;
};

}  // namespace

TEST_F(ActualizacionOnlineZTTest, TheCheckWaitsOneSecondFirstInWhichPendingEventsRun) {
    bool corrio = false;
    QTimer::singleShot(0, qApp, [&corrio] { corrio = true; });
    canal.alDescargar = [&] {
        EXPECT_TRUE(corrio);
        EXPECT_EQ(miradas, 1 + 4) << "once for the moment, then at each quarter";
    };
    Comprobar();
    EXPECT_EQ(canal.pasos.first(), u"Descargar"_s);
    EXPECT_EQ(miradas, 1 + 4) << "nothing waits after the download";
}

TEST_F(ActualizacionOnlineZTTest, TheHourglassStandsForTheWaitAndTheDownloadOnly) {
    canal.contenido = FicheroDeVersion("2.0.0");
    canal.alDescargar = [&] { EXPECT_EQ(pantalla.punteros, std::vector{Puntero::Espera}); };
    canal.alMostrar = [&] { EXPECT_EQ(pantalla.punteros, (std::vector{Puntero::Espera, Puntero::Normal})); };
    Comprobar();
    EXPECT_EQ(canal.pasos.last(), u"frmZTVersionCheck"_s);
}

TEST_F(ActualizacionOnlineZTTest, TheRequestNamesProgramAndLanguage) {
    Comprobar();
    Entorno().OffsetIdioma = kOffsetEuskera;
    Comprobar();
    EXPECT_EQ(canal.direcciones,
              QStringList({u"https://servicio.example/version?Programa=ZELTPROG&idioma=c"_s,
                           u"https://servicio.example/version?Programa=ZELTPROG&idioma=e"_s}));
}

TEST_F(ActualizacionOnlineZTTest, WithoutAnAddressTheRequestIsJustTheQuery) {
    oActOnline().URLAct.clear();
    EXPECT_EQ(DireccionDeVersion(), u"?Programa=ZELTPROG&idioma=c"_s);
}

TEST_F(ActualizacionOnlineZTTest, TheFileIsVersionIniInTheProgramFolder) {
    EXPECT_EQ(RutaDeVersion(), QDir::toNativeSeparators(carpeta.filePath(u"version.ini"_s)));
}

// The decision table, row by row.

TEST_F(ActualizacionOnlineZTTest, AFailedDownloadIsSituationOneAndTellsSo) {
    canal.bien = false;
    canal.alMostrar = [] { EXPECT_EQ(oActOnline().SitAct, 1) << "before the dialog, which shows it"; };
    for (const bool preferencias : {false, true}) {
        oActOnline().SitAct = 0;
        canal.preferencias = preferencias;
        canal.pasos.clear();
        Comprobar();
        EXPECT_EQ(oActOnline().SitAct, 1);
        EXPECT_EQ(canal.pasos, QStringList({u"Descargar"_s, u"frmZTSinConexion"_s}));
    }
    EXPECT_EQ(oActOnline().ActVer1, QString()) << "nothing is read";
}

TEST_F(ActualizacionOnlineZTTest, ADownloadThatSucceedsWithoutLeavingAFileHasFailed) {
    canal.escribe = false;
    Comprobar();
    EXPECT_EQ(oActOnline().SitAct, 1);
}

TEST_F(ActualizacionOnlineZTTest, AnErrorOfTheDownloadIsAFailedDownload) {
    canal.alDescargar = [] { throw ErrorZT(NumError::DiscoLleno); };
    Comprobar();
    EXPECT_EQ(oActOnline().SitAct, 1);
    EXPECT_EQ(canal.pasos.last(), u"frmZTSinConexion"_s);
}

TEST_F(ActualizacionOnlineZTTest, AFileThatCannotBeReadIsSituationFourAndTellsSo) {
    canal.contenido = "<html>Error 500</html>";
    canal.alMostrar = [] { EXPECT_EQ(oActOnline().SitAct, 4) << "before the dialog, which shows it"; };
    for (const bool preferencias : {false, true}) {
        oActOnline().SitAct = 0;
        canal.preferencias = preferencias;
        canal.pasos.clear();
        Comprobar();
        EXPECT_EQ(oActOnline().SitAct, 4);
        EXPECT_EQ(canal.pasos, QStringList({u"Descargar"_s, u"frmZTSinConexion"_s}));
    }
    EXPECT_EQ(oActOnline().ComVer, 0);
}

TEST_F(ActualizacionOnlineZTTest, AnotherVersionIsOfferedWhoeverAskedForTheCheck) {
    canal.contenido = FicheroDeVersion("1.2.4");
    canal.alMostrar = [] {
        EXPECT_EQ(oActOnline().ComVer, 1);
        EXPECT_EQ(oActOnline().SitAct, 0) << "told after the dialog";
    };
    for (const bool preferencias : {false, true}) {
        oActOnline().SitAct = 0;
        canal.preferencias = preferencias;
        canal.pasos.clear();
        Comprobar();
        EXPECT_EQ(oActOnline().SitAct, 3);
        EXPECT_EQ(canal.pasos, QStringList({u"Descargar"_s, u"frmZTVersionCheck"_s}));
    }
}

TEST_F(ActualizacionOnlineZTTest, IdenticalVersionsAtStartShowNothing) {
    Comprobar();
    EXPECT_EQ(oActOnline().SitAct, 3);
    EXPECT_EQ(oActOnline().ComVer, 0);
    EXPECT_EQ(canal.pasos, QStringList({u"Descargar"_s}));
}

TEST_F(ActualizacionOnlineZTTest, IdenticalVersionsFromThePreferencesShowTheVersions) {
    canal.preferencias = true;
    Comprobar();
    EXPECT_EQ(oActOnline().SitAct, 3);
    EXPECT_EQ(oActOnline().ComVer, 0);
    EXPECT_EQ(canal.pasos, QStringList({u"Descargar"_s, u"frmZTVersionCheck"_s}));
}

TEST_F(ActualizacionOnlineZTTest, AVersionFoundDifferentStaysSoForTheSecondCheckOfTheRun) {
    canal.contenido = FicheroDeVersion("2.0.0");
    Comprobar();
    canal.contenido = FicheroDeVersion("1.2.3");
    canal.pasos.clear();
    Comprobar();
    EXPECT_EQ(oActOnline().ComVer, 1);
    EXPECT_EQ(canal.pasos, QStringList({u"Descargar"_s, u"frmZTVersionCheck"_s}));
}

// The download leaves no old file to be read.

TEST_F(ActualizacionOnlineZTTest, AnOldFileIsDeletedBeforeTheDownload) {
    EscribirFichero(RutaDeVersion(), FicheroDeVersion("9.9.9"));
    canal.bien = false;
    canal.escribe = false;
    canal.alDescargar = [] { EXPECT_FALSE(QFile::exists(RutaDeVersion())); };
    Comprobar();
    EXPECT_EQ(oActOnline().SitAct, 1);
    EXPECT_EQ(oActOnline().ActVer1, QString());
}

TEST_F(ActualizacionOnlineZTTest, AnOldFileThatCannotBeDeletedIsAFailedDownloadAndNothingIsFetched) {
    ASSERT_TRUE(QDir().mkpath(RutaDeVersion() + u"/dentro"_s));
    Comprobar();
    EXPECT_EQ(oActOnline().SitAct, 1);
    EXPECT_TRUE(canal.direcciones.isEmpty());
}

TEST_F(ActualizacionOnlineZTTest, ALinkUnderTheNameIsDeletedItselfAlsoWhenItLeadsNowhere) {
    const QString fuera = carpeta.filePath(u"fuera.txt"_s);
    for (const bool existe : {true, false}) {
        if (existe) {
            EscribirFichero(fuera, "ajeno");
        }
        ASSERT_TRUE(QFile::link(fuera, RutaDeVersion()));
        Comprobar();
        EXPECT_EQ(oActOnline().SitAct, 3);
        EXPECT_FALSE(QFileInfo(RutaDeVersion()).isSymLink());
        EXPECT_EQ(LeerFichero(fuera), existe ? QByteArray("ajeno") : QByteArray());
        QFile::remove(fuera);
        QFile::remove(RutaDeVersion());
    }
}

// Reading.

TEST_F(ActualizacionOnlineZTTest, ReadingGivesTheThreePartsTheAddressAndTheText) {
    EXPECT_EQ(
        Leer("[informacion]\r\ncurrentversion =  10.0.22 \r\ndownloadurl= https://a.example/z?x=1;2,3 \r\n"
             "descripcion= Versi\xF3n \"nueva\", con m\xE1s \x80 \r\n"),
        0);
    const cZTActOnline& act = oActOnline();
    EXPECT_EQ(act.ActVer1, u"10"_s);
    EXPECT_EQ(act.ActVer2, u"0"_s);
    EXPECT_EQ(act.ActVer3, u"22"_s);
    EXPECT_EQ(act.ActDownloadURL, u"https://a.example/z?x=1;2,3"_s);
    EXPECT_EQ(act.ActDescripcion, u"Versión \"nueva\", con más €"_s);
}

TEST_F(ActualizacionOnlineZTTest, AnHtmlPageAnEmptyFileAndAShortVersionCannotBeRead) {
    for (const QByteArray& contenido :
         {QByteArray("<!DOCTYPE html><html><body>currentversion=1.2.3</body></html>"), QByteArray(),
          QByteArray("[informacion]\r\ndownloadurl=https://a.example\r\n"), FicheroDeVersion("1.2"),
          FicheroDeVersion("1"), FicheroDeVersion(""), QByteArray("[otra]\r\ncurrentversion=1.2.3\r\n"),
          QByteArray("currentversion=1.2.3\r\n")}) {
        EXPECT_EQ(Leer(contenido), kLecturaFallida) << contenido.constData();
    }
    EXPECT_EQ(oActOnline().ComVer, 0);
}

TEST_F(ActualizacionOnlineZTTest, AMissingFileCannotBeRead) { EXPECT_EQ(LeerVersion(), kLecturaFallida); }

TEST_F(ActualizacionOnlineZTTest, AFourthPartIsNotLookedAt) {
    EXPECT_EQ(Leer(FicheroDeVersion("1.2.3.99")), 0);
    EXPECT_EQ(oActOnline().ActVer3, u"3"_s);
    EXPECT_EQ(oActOnline().ComVer, 0);
}

TEST_F(ActualizacionOnlineZTTest, AnyOfTheThreePartsThatDiffersMakesAnotherVersion) {
    for (const char* version : {"2.2.3", "1.3.3", "1.2.4"}) {
        oActOnline().ComVer = 0;
        EXPECT_EQ(Leer(FicheroDeVersion(version)), 0);
        EXPECT_EQ(oActOnline().ComVer, 1) << version;
    }
}

TEST_F(ActualizacionOnlineZTTest, TheComparisonIsOneOfTextsInNoOrder) {
    for (const char* version : {"1.2.2", "0.9.0", "01.2.3", "1.2.03", "1..3", "uno.2.3"}) {
        oActOnline().ComVer = 0;
        EXPECT_EQ(Leer(FicheroDeVersion(version)), 0);
        EXPECT_EQ(oActOnline().ComVer, 1) << version;
    }
}

TEST_F(ActualizacionOnlineZTTest, BlanksAroundThePartsDoNotMakeAnotherVersion) {
    EXPECT_EQ(Leer(FicheroDeVersion(" 1 . 2 .3 ")), 0);
    EXPECT_EQ(oActOnline().ComVer, 0);
}

TEST_F(ActualizacionOnlineZTTest, TheInstalledVersionIsReadAnewFromTheFileThatActFileTells) {
    oActOnline().ProgVer1 = u"7"_s;
    EXPECT_EQ(Leer(FicheroDeVersion("1.2.3")), 0);
    EXPECT_EQ(oActOnline().ProgVer1, u"1"_s);
    EXPECT_EQ(oActOnline().ProgVer2, u"2"_s);
    EXPECT_EQ(oActOnline().ProgVer3, u"3"_s) << "the fourth number; the third is left out";
    EXPECT_EQ(oActOnline().ActFile, QDir::toNativeSeparators(carpeta.filePath(u"ZELT.exe"_s)));
    EXPECT_EQ(Entorno().VersionPrograma, u"1.2.3"_s);
    EXPECT_EQ(oActOnline().ComVer, 0);
}

TEST_F(ActualizacionOnlineZTTest, WithoutAVersionRecordANoticeTellsSoAndThePartsStayAsTheyWere) {
    Entorno().LectorVersion = [] { return std::optional<VersionFichero>(); };
    Entorno().OffsetIdioma = kOffsetEuskera;
    oActOnline().ProgVer1 = u"1"_s;
    oActOnline().ProgVer2 = u"2"_s;
    oActOnline().ProgVer3 = u"3"_s;
    EXPECT_EQ(Leer(FicheroDeVersion("1.2.3")), 0);
    EXPECT_EQ(pantalla.plataforma, std::vector{u"Ez dago bertsioari buruzko informaziorik eskura"_s});
    EXPECT_EQ(oActOnline().ComVer, 0);
}

// Whatever a service sends, the program reads it or says that it cannot.
RC_GTEST_FIXTURE_PROP(CualquierRespuestaTest, EndsInSituationThreeOrFour,
                      (const std::string& bytes, bool conSeccion)) {
    canal.contenido = (conSeccion ? QByteArray("[informacion]\ncurrentversion=") : QByteArray()) +
                      QByteArray::fromStdString(bytes);
    ComprobarActualizacion(canal);
    const cZTActOnline& act = oActOnline();
    RC_ASSERT(act.SitAct == kComprobacionHecha || act.SitAct == kLecturaFallida);
    RC_ASSERT(act.ActVer1.size() + act.ActVer2.size() + act.ActVer3.size() <= 1023);
}
