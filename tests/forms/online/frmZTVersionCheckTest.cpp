#include "forms/online/frmZTVersionCheck.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

#include "core/online/PaginaDeEnvio.h"
#include "core/online/cZTActOnline.h"
#include "tests/support/DialogoDePrueba.h"
#include "tests/support/NavegadorDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTVersionCheckTest : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        cZTActOnline& act = oActOnline();
        act.ComVer = 1;
        act.ProgVer1 = u"1"_s;
        act.ProgVer2 = u"2"_s;
        act.ProgVer3 = u"3"_s;
        act.ActVer1 = u"2"_s;
        act.ActVer2 = u"0"_s;
        act.ActVer3 = u"10"_s;
        act.ActDescripcion = u"Novedades & mejoras"_s;
        act.ActDownloadURL = u"https://descargas.example/zelt"_s;
        act.ActFile = u"/prog/ZELT.exe"_s;
    }

    template <class F>
    void Mostrar(F accion) {
        AlAbrirse(frmZTVersionCheck::kNombre, accion);
        Formularios::MostrarModal(frmZTVersionCheck::kNombre.toString());
    }

    [[nodiscard]] QString Pagina() const { return carpeta.filePath(u"temphtm.HTM"_s); }
    /// What the browser gets for the page of the program's folder.
    [[nodiscard]] QByteArray ElFichero() const { return "1\n" + Pagina().toUtf8() + '\n'; }

    NavegadorDePrueba escritorio;
};

}  // namespace

TEST_F(frmZTVersionCheckTest, ItsCaptionsAreTheSameInBothLanguages) {
    for (const qint16 offset : {kOffsetCastellano, kOffsetEuskera}) {
        Entorno().OffsetIdioma = offset;
        Mostrar([](QWidget& v) {
            EXPECT_EQ(v.windowTitle(), u"Actualizar versión"_s);
            EXPECT_EQ(Control<QGroupBox>(v, "FraVersion").title(), u"Bertsioa / Versión"_s);
            EXPECT_EQ(Control<QLabel>(v, "LblAct").text(), u"Oraingoa / Actual"_s);
            EXPECT_EQ(Control<QLabel>(v, "LblDisp").text(), u"Erabilgarria / Disponible"_s);
            EXPECT_EQ(Control<QLabel>(v, "LblInfo").text(), u"Argibideak / Información"_s);
            EXPECT_EQ(Control<QLabel>(v, "LblUrl").text(), u"Deskarga helbidea / Dirección de descarga"_s);
            EXPECT_EQ(Control<QLabel>(v, "LblArchivo").text(), u"Fitxategia / Fichero"_s);
            EXPECT_EQ(Control<QPushButton>(v, "CmdActualizar").text(), u"Deskargatu Descargar"_s);
            EXPECT_EQ(Control<QPushButton>(v, "CmdContinuar").text(), u"Aurrera jarraitu... Continuar..."_s);
            v.close();
        });
    }
}

TEST_F(frmZTVersionCheckTest, ItShowsBothVersionsTheTextTheAddressAndTheFile) {
    Mostrar([](QWidget& v) {
        EXPECT_EQ(Control<QLabel>(v, "LblActual").text(), u"1.2.3"_s);
        EXPECT_EQ(Control<QLabel>(v, "LblDisponible").text(), u"2.0.10"_s);
        EXPECT_EQ(Control(v, "LblActual").accessibleName(), u"Oraingoa / Actual: 1.2.3"_s);
        EXPECT_EQ(Control(v, "LblDisponible").accessibleName(), u"Erabilgarria / Disponible: 2.0.10"_s);
        EXPECT_EQ(Control<QPlainTextEdit>(v, "TxtInfo").toPlainText(), u"Novedades & mejoras"_s);
        EXPECT_EQ(Control<QLineEdit>(v, "TxtUrl").text(), u"https://descargas.example/zelt"_s);
        EXPECT_EQ(Control<QLineEdit>(v, "TxtPath").text(), u"/prog/ZELT.exe"_s);
        v.close();
    });
}

TEST_F(frmZTVersionCheckTest, NothingShownCanBeChanged) {
    Mostrar([](QWidget& v) {
        EXPECT_TRUE(Control<QPlainTextEdit>(v, "TxtInfo").isReadOnly());
        EXPECT_TRUE(Control<QLineEdit>(v, "TxtUrl").isReadOnly());
        EXPECT_TRUE(Control<QLineEdit>(v, "TxtPath").isReadOnly());
        v.close();
    });
}

TEST_F(frmZTVersionCheckTest, TheDownloadIsOnlyOfferedForAnotherVersion) {
    for (const qint32 comVer : {1, 0}) {
        oActOnline().ComVer = comVer;
        Mostrar([comVer](QWidget& v) {
            EXPECT_EQ(Control(v, "CmdActualizar").isEnabled(), comVer == 1);
            v.close();
        });
    }
}

TEST_F(frmZTVersionCheckTest, TheDownloadOpensThePageInTheBrowserAndUnloadsTheForm) {
    escritorio.Instalar();
    Mostrar([](QWidget& v) { Pulsar(v, "CmdActualizar"); });
    EXPECT_FALSE(Formularios::Cargado(u"frmZTVersionCheck"_s));
    EXPECT_EQ(escritorio.Abierto(), ElFichero());
    EXPECT_EQ(QString::fromLatin1(LeerFichero(Pagina())), PaginaDeEnvio(u"https://descargas.example/zelt"_s));
}

TEST_F(frmZTVersionCheckTest, TheAddressWorksByClickEnterAndSpaceAndLeavesTheFormOpen) {
    escritorio.Instalar();
    Mostrar([this](QWidget& v) {
        QWidget& url = Control(v, "TxtUrl");
        Pulsar(v, "TxtUrl");
        EXPECT_EQ(escritorio.Abierto(), ElFichero());
        for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyClick(&url, tecla);
            EXPECT_EQ(escritorio.Abierto(), ElFichero());
        }
        EXPECT_TRUE(Formularios::Visible(u"frmZTVersionCheck"_s));
        v.close();
    });
}

TEST_F(frmZTVersionCheckTest, TheAddressIsWorkedOnceHoweverLongTheKeyIsHeld) {
    escritorio.Instalar();
    Mostrar([](QWidget& v) {
        for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QKeyEvent repetida(QEvent::KeyPress, tecla, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(&Control(v, "TxtUrl"), &repetida);
        }
        EXPECT_TRUE(Formularios::Visible(u"frmZTVersionCheck"_s)) << "no button takes the key either";
        v.close();
    });
    EXPECT_FALSE(QFile::exists(Pagina()));
}

TEST_F(frmZTVersionCheckTest, TheAddressHasTheColourOfLinksAlsoWhenTheColoursChange) {
    Mostrar([](QWidget& v) {
        const QWidget& url = Control(v, "TxtUrl");
        EXPECT_EQ(url.palette().text(), v.palette().link());
        QPalette oscura = v.palette();
        oscura.setColor(QPalette::Link, Qt::yellow);
        v.setPalette(oscura);
        EXPECT_EQ(url.palette().text().color(), QColor(Qt::yellow));
        v.close();
    });
}

TEST_F(frmZTVersionCheckTest, SelectingTheAddressToCopyItOpensNothing) {
    escritorio.Instalar();
    Mostrar([this](QWidget& v) {
        auto& url = Control<QLineEdit>(v, "TxtUrl");
        QTest::keyClick(&url, Qt::Key_A, Qt::ControlModifier);
        QTest::mousePress(&url, Qt::LeftButton, {}, QPoint(5, url.height() / 2));
        QTest::mouseMove(&url, QPoint(90, url.height() / 2));
        QTest::mouseRelease(&url, Qt::LeftButton, {}, QPoint(90, url.height() / 2));
        EXPECT_TRUE(url.hasSelectedText());
        QTest::mouseClick(&url, Qt::RightButton);
        v.close();
    });
    EXPECT_FALSE(QFile::exists(Pagina()));
}

TEST_F(frmZTVersionCheckTest, ASecondCallReplacesThePageOfTheFirst) {
    escritorio.Instalar();
    const QWidget padre;
    frmZTVersionCheck::LanzarExplorador(padre, u"https://uno.example/"_s);
    frmZTVersionCheck::LanzarExplorador(padre, u"https://dos.example/"_s);
    EXPECT_EQ(QString::fromLatin1(LeerFichero(Pagina())), PaginaDeEnvio(u"https://dos.example/"_s));
    EXPECT_EQ(escritorio.Abierto(), ElFichero());
}

TEST_F(frmZTVersionCheckTest, WithoutABrowserTheMissingTextsEndInTheErrorDialogAndTheFormStays) {
    for (const auto& [offset, id] :
         {std::pair{kOffsetCastellano, u"'335'"_s}, {kOffsetEuskera, u"'1335'"_s}}) {
        Entorno().OffsetIdioma = offset;
        pantalla.errores.clear();
        Mostrar([](QWidget& v) {
            Pulsar(v, "CmdActualizar");
            Pulsar(v, "TxtUrl");
            EXPECT_TRUE(Formularios::Visible(u"frmZTVersionCheck"_s));
            v.close();
        });
        ASSERT_EQ(pantalla.errores.size(), 2U);
        EXPECT_EQ(pantalla.errores[0].formulario, u"frmZTVersionCheck"_s);
        EXPECT_EQ(pantalla.errores[0].evento, u"frmZTVersionCheck.CmdActualizar_Click"_s);
        EXPECT_EQ(pantalla.errores[1].evento, u"frmZTVersionCheck.TxtUrl_Click"_s);
        for (const auto& error : pantalla.errores) {
            EXPECT_TRUE(error.descripcion.contains(id)) << error.descripcion.toStdString();
        }
    }
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(QFile::exists(Pagina())) << "the page is written before the browser is looked for";
    EXPECT_EQ(NumeroDelError([] { frmZTVersionCheck::LanzarExplorador(QWidget(), u"https://a.example"_s); }),
              326);
}

TEST_F(frmZTVersionCheckTest, AnUnwritableFolderIsShownAndNothingIsOpened) {
    escritorio.Instalar();
    Entorno().CarpetaPrograma = QDir::toNativeSeparators(carpeta.filePath(u"no/esta"_s));
    Mostrar([](QWidget& v) {
        Pulsar(v, "CmdActualizar");
        EXPECT_TRUE(Formularios::Visible(u"frmZTVersionCheck"_s));
        v.close();
    });
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores[0].descripcion.contains(u"temphtm.HTM"));
    EXPECT_TRUE(escritorio.NadaAbierto());
}

TEST_F(frmZTVersionCheckTest, ContinueEscapeAndTheCloseBoxUnloadIt) {
    const std::vector<std::function<void(QWidget&)>> caminos{
        [](QWidget& v) { Pulsar(v, "CmdContinuar"); },
        [](QWidget& v) { QTest::keyClick(&v, Qt::Key_Escape); }, [](QWidget& v) { v.close(); }};
    for (const auto& camino : caminos) {
        Mostrar(camino);
        EXPECT_FALSE(Formularios::Cargado(u"frmZTVersionCheck"_s));
    }
    EXPECT_FALSE(QFile::exists(Pagina()));
}

TEST_F(frmZTVersionCheckTest, LongTextsOfTheServiceDoNotSpreadTheForm) {
    QSize normal;
    Mostrar([&normal](QWidget& v) {
        normal = v.size();
        v.close();
    });
    const QString largo(1023, u'W');
    oActOnline().ActVer3 = largo;
    oActOnline().ActDescripcion = largo;
    oActOnline().ActDownloadURL = largo;
    Mostrar([&normal](QWidget& v) {
        EXPECT_EQ(v.size(), normal);
        EXPECT_EQ(Control<QLineEdit>(v, "TxtUrl").cursorPosition(), 0) << "its beginning is seen";
        v.close();
    });
}
