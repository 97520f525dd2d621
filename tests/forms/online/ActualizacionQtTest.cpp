// The update check with the real network and the real dialogs, against a service of the test's own.

#include "forms/online/ActualizacionQt.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "app/frmZTInicio.h"
#include "core/online/ActualizacionOnlineZT.h"
#include "core/online/cZTActOnline.h"
#include "tests/support/CanalDePrueba.h"
#include "tests/support/DialogoDePrueba.h"
#include "tests/support/ServidorDePrueba.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 kHolguraMs = 5000;

class ActualizacionQtTest : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        Entorno().LectorVersion = [] { return std::optional(VersionFichero{{1, 2, 77, 3}, {4, 3, 2, 1}}); };
        Entorno().Milisegundos = [this] { return ahora += 1000; };
        oActOnline().URLAct = servidor.Direccion();
        oActOnline().ActOnline = 1;
    }

    /// Runs a check; the dialog that it shows is closed, and its name given.
    QString Comprobar(std::chrono::milliseconds plazo = 20s, const QString& modulo = RutaDelModuloDeRed()) {
        QString mostrado;
        for (const QString& nombre : {u"frmZTSinConexion"_s, u"frmZTVersionCheck"_s}) {
            Formularios::Registrar(nombre, [&mostrado, nombre] {
                mostrado = nombre;
                auto* formulario = new DialogoQueSeCierra(nombre);
                return formulario;
            });
        }
        ActualizacionQt canal({.plazo = plazo}, modulo);
        QElapsedTimer reloj;
        reloj.start();
        ComprobarActualizacion(canal);
        tardado = reloj.elapsed();
        RegistrarFormularios();
        return mostrado;
    }

    [[nodiscard]] QStringList Ficheros() const {
        return QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden);
    }

    ServidorDePrueba servidor;
    qint64 ahora = 0;
    qint64 tardado = 0;

  private:
    /// Stands in for a dialog and goes as soon as it is shown.
    class DialogoQueSeCierra : public FormularioModal {
      public:
        using FormularioModal::FormularioModal;
        void Form_Activate() override { Formularios::Descargar(Nombre()); }
    };
};

}  // namespace

TEST_F(ActualizacionQtTest, ANewerVersionIsFetchedWrittenAndOffered) {
    servidor.Responder(Http("200 OK", FicheroDeVersion("1.3.0")));
    EXPECT_EQ(Comprobar(), u"frmZTVersionCheck"_s);
    EXPECT_EQ(oActOnline().SitAct, 3);
    EXPECT_EQ(oActOnline().ActVer2, u"3"_s);
    EXPECT_EQ(LeerFichero(RutaDeVersion()), FicheroDeVersion("1.3.0"));
    EXPECT_EQ(Ficheros(), QStringList{u"version.ini"_s}) << "nothing else is left behind";
    EXPECT_TRUE(servidor.peticiones.first().startsWith("GET /version?Programa=ZELTPROG&idioma=c "));
}

TEST_F(ActualizacionQtTest, TheInstalledVersionAtStartShowsNothing) {
    servidor.Responder(Http("200 OK", FicheroDeVersion("1.2.3")));
    EXPECT_EQ(Comprobar(), QString());
    EXPECT_EQ(oActOnline().SitAct, 3);
}

TEST_F(ActualizacionQtTest, TheInstalledVersionIsShownWithoutADownloadWhileThePreferencesAreOnTheScreen) {
    servidor.Responder(Http("200 OK", FicheroDeVersion("1.2.3")));
    Entorno().ComprobarActualizacion = [] {
        ActualizacionQt canal;
        ComprobarActualizacion(canal);
    };
    bool visto = false;
    AlAbrirse(u"frmZTPreferencias", [&](QWidget& preferencias) {
        AlAbrirse(u"frmZTVersionCheck", [&](QWidget& v) {
            visto = true;
            EXPECT_FALSE(Control(v, "CmdActualizar").isEnabled());
            Pulsar(v, "CmdContinuar");
        });
        Pulsar(preferencias, "lblActAhora");
        preferencias.close();
    });
    Formularios::MostrarModal(u"frmZTPreferencias"_s);
    EXPECT_TRUE(visto);
    EXPECT_EQ(oActOnline().SitAct, 3);
    EXPECT_EQ(Comprobar(), QString()) << "the preferences are closed";
}

TEST_F(ActualizacionQtTest, AnHtmlPageAnEmptyFileAndATwoPartVersionEndInSituationFour) {
    for (const QByteArray& cuerpo : {QByteArray("<html><body>Servicio no disponible</body></html>"),
                                     QByteArray(), FicheroDeVersion("1.2")}) {
        servidor.Responder(Http("200 OK", cuerpo));
        EXPECT_EQ(Comprobar(), u"frmZTSinConexion"_s);
        EXPECT_EQ(oActOnline().SitAct, 4);
    }
}

TEST_F(ActualizacionQtTest, WhatIsNoAnswerEndsInSituationOneAndLeavesNoFile) {
    EscribirFichero(RutaDeVersion(), FicheroDeVersion("9.9.9"));
    for (const char* estado : {"404 Not Found", "500 Internal Server Error"}) {
        servidor.Responder(Http(estado, FicheroDeVersion("1.3.0")));
        EXPECT_EQ(Comprobar(), u"frmZTSinConexion"_s) << estado;
        EXPECT_EQ(oActOnline().SitAct, 1) << estado;
        EXPECT_EQ(Ficheros(), QStringList()) << estado;
    }
}

TEST_F(ActualizacionQtTest, AServerWithTheWrongCertificateEndsInSituationOne) {
    ServidorDePrueba seguro(ServidorDePrueba::Clase::Https);
    seguro.Responder(Http("200 OK", FicheroDeVersion("1.3.0")));
    oActOnline().URLAct = seguro.Direccion();
    EXPECT_EQ(Comprobar(), u"frmZTSinConexion"_s);
    EXPECT_EQ(oActOnline().SitAct, 1);
    EXPECT_EQ(Ficheros(), QStringList());
}

TEST_F(ActualizacionQtTest, WithoutTheModuleOfTheNetworkItEndsInSituationOneAndLeavesNoFile) {
    EscribirFichero(RutaDeVersion(), FicheroDeVersion("9.9.9"));
    servidor.Responder(Http("200 OK", FicheroDeVersion("1.3.0")));
    EXPECT_EQ(Comprobar(20s, carpeta.filePath(u"zt_red"_s)), u"frmZTSinConexion"_s);
    EXPECT_EQ(oActOnline().SitAct, 1);
    EXPECT_EQ(Ficheros(), QStringList());
    EXPECT_TRUE(servidor.peticiones.isEmpty());
}

TEST_F(ActualizacionQtTest, WithoutAnAddressTheNoConnectionDialogAppears) {
    oActOnline().URLAct.clear();
    EXPECT_EQ(Comprobar(), u"frmZTSinConexion"_s);
    EXPECT_EQ(oActOnline().SitAct, 1);
}

TEST_F(ActualizacionQtTest, ADeadServiceCostsNoMoreThanTheLimitAndLeavesNoFile) {
    EXPECT_EQ(Comprobar(300ms), u"frmZTSinConexion"_s);
    EXPECT_LT(tardado, 300 + kHolguraMs);
    EXPECT_EQ(Ficheros(), QStringList());
}

TEST_F(ActualizacionQtTest, AnEndlessAnswerLeavesNoFile) {
    servidor.Responder("HTTP/1.1 200 OK\r\n\r\n" + FicheroDeVersion("1.3.0") + QByteArray(100'000, ';'));
    EXPECT_EQ(Comprobar(), u"frmZTSinConexion"_s);
    EXPECT_EQ(oActOnline().SitAct, 1);
    EXPECT_EQ(Ficheros(), QStringList());
}

TEST_F(ActualizacionQtTest, NothingIsEverWrittenOutsideTheVersionFile) {
    const QString fuera = carpeta.filePath(u"tmp/fuera.txt"_s);
    EscribirFichero(fuera, "ajeno");
    for (const QByteArray& disposicion :
         {QByteArray("Content-Disposition: attachment; filename=../fuera.txt\r\n"),
          QByteArray("Content-Location: /tmp/fuera.txt\r\n")}) {
        ASSERT_TRUE(QFile::link(fuera, RutaDeVersion()));
        servidor.Responder(Http("200 OK", FicheroDeVersion("1.2.3"), disposicion));
        Comprobar();
        EXPECT_EQ(LeerFichero(fuera), QByteArray("ajeno"));
        EXPECT_EQ(Ficheros(), QStringList{u"version.ini"_s});
        EXPECT_FALSE(QFileInfo(RutaDeVersion()).isSymLink());
        QFile::remove(RutaDeVersion());
    }
}

TEST_F(ActualizacionQtTest, ALinkThatComesDuringTheDownloadIsNotFollowed) {
    const QString fuera = carpeta.filePath(u"tmp/fuera.txt"_s);
    EscribirFichero(fuera, "ajeno");
    servidor.respuesta = [&fuera](QTcpSocket& conexion) {
        EXPECT_TRUE(QFile::link(fuera, RutaDeVersion()));
        conexion.write(Http("200 OK", FicheroDeVersion("1.2.3")));
        conexion.disconnectFromHost();
    };
    EXPECT_EQ(Comprobar(), QString());
    EXPECT_EQ(LeerFichero(fuera), QByteArray("ajeno"));
    EXPECT_FALSE(QFileInfo(RutaDeVersion()).isSymLink());
    EXPECT_EQ(LeerFichero(RutaDeVersion()), FicheroDeVersion("1.2.3"));
}

TEST_F(ActualizacionQtTest, AFolderThatCannotBeWrittenEndsInSituationOne) {
    Entorno().CarpetaPrograma = QDir::toNativeSeparators(carpeta.filePath(u"no/esta"_s));
    servidor.Responder(Http("200 OK", FicheroDeVersion("1.3.0")));
    EXPECT_EQ(Comprobar(), u"frmZTSinConexion"_s);
    EXPECT_EQ(oActOnline().SitAct, 1);
}

TEST_F(ActualizacionQtTest, TheSplashEndsByItselfThoughTheServiceNeverAnswers) {
    Entorno().ComprobarActualizacion = [] {
        ActualizacionQt canal({.plazo = 300ms});
        ComprobarActualizacion(canal);
    };
    bool avisado = false;
    AlAbrirse(u"frmZTSinConexion", [&avisado](QWidget& v) {
        avisado = true;
        EXPECT_TRUE(Control(Formularios::Obtener(u"frmZTInicio"_s).Ventana(), "lblAct").isVisible());
        QTest::keyClick(&Control(v, "CmdContinuar"), Qt::Key_Return);
    });
    QElapsedTimer reloj;
    reloj.start();
    Formularios::Mostrar(frmZTInicio::kNombre.toString());
    EXPECT_TRUE(avisado);
    EXPECT_LT(reloj.elapsed(), 300 + kHolguraMs);
}

TEST_F(ActualizacionQtTest, MarkupOfTheServiceIsShownAsTextOnly) {
    const QString marcas = u"<h1>Gratis</h1><img src='https://mal.example/x.png'>&amp;<script>1</script>"_s;
    servidor.Responder(Http("200 OK", "[informacion]\ncurrentversion=<b>1</b>.<i>2.&3\ndownloadurl=" +
                                          marcas.toLatin1() + "\ndescripcion=" + marcas.toLatin1() + "\n"));
    bool visto = false;
    AlAbrirse(u"frmZTVersionCheck", [&](QWidget& v) {
        visto = true;
        EXPECT_EQ(Control<QPlainTextEdit>(v, "TxtInfo").toPlainText(), marcas);
        EXPECT_EQ(Control<QLineEdit>(v, "TxtUrl").text(), marcas);
        EXPECT_EQ(Control<QLabel>(v, "LblDisponible").text(), u"<b>1</b>.<i>2.&3"_s);
        for (const QLabel* etiqueta : v.findChildren<QLabel*>()) {
            EXPECT_EQ(etiqueta->textFormat(), Qt::PlainText) << etiqueta->objectName().toStdString();
        }
        v.close();
    });
    ActualizacionQt canal;
    ComprobarActualizacion(canal);
    EXPECT_TRUE(visto);
    EXPECT_EQ(servidor.peticiones.size(), 1);
}
