// The on-line assistance from the menu of the main window to the browser and to the description.

#include "forms/online/AsistenciaQt.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/MDIZT.h"
#include "core/online/cZTActOnline.h"
#include "forms/online/DialogoInfoOnline.h"
#include "forms/online/Manejador.h"
#include "tests/support/AsistenciaDePrueba.h"
#include "tests/support/DialogoDePrueba.h"
#include "tests/support/NavegadorDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class AsistenciaQtTest : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        FijarAsistencia(&m_asistencia);
        oActOnline().ActOnline = 0;
        Formularios::Mostrar(u"MDIZT"_s);
    }
    void TearDown() override {
        FijarAsistencia(nullptr);
        DialogoDePrueba::TearDown();
    }

    static MDIZT& Marco() { return ElFormulario<MDIZT>(); }
    static void Elegir(const char* entrada) {
        Marco().findChild<QAction*>(QLatin1StringView(entrada))->trigger();
    }

    /// Works the description as soon as it is on the screen; `accion` is to close it.
    static void AlDescribir(const std::function<void(DialogoInfoOnline&)>& accion) {
        auto* reloj = new QTimer(qApp);
        QObject::connect(reloj, &QTimer::timeout, reloj, [reloj, accion] {
            if (auto* dialogo = qobject_cast<DialogoInfoOnline*>(QApplication::activeModalWidget())) {
                reloj->stop();
                reloj->deleteLater();
                accion(*dialogo);
            }
        });
        reloj->start(5);
    }

    NavegadorDePrueba escritorio;

  private:
    AsistenciaQt m_asistencia;
};

}  // namespace

TEST_F(AsistenciaQtTest, TheEntryOpensTheAssistanceInTheBrowserInTheLanguageInForce) {
    escritorio.Instalar();
    Elegir("mnuAsisOnline");
    EXPECT_TRUE(escritorio.Abierto().endsWith("?idioma=c\n"));
    Entorno().OffsetIdioma = kOffsetEuskera;
    Elegir("mnuAsisOnline");
    EXPECT_TRUE(escritorio.Abierto().endsWith("?idioma=e\n"));
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(AsistenciaQtTest, TheDescriptionIsThatOfTheLanguageInForce) {
    const std::vector<std::tuple<qint16, QString, QString, QString>> idiomas{
        {kOffsetCastellano, u"Descripción del servicio"_s, u"&Abrir la página"_s, u"/es/"_s},
        {kOffsetEuskera, u"Deskripzioa"_s, u"&Ireki orria"_s, u"/eu/"_s}};
    for (const auto& [offset, titulo, boton, ruta] : idiomas) {
        Entorno().OffsetIdioma = offset;
        bool visto = false;
        AlDescribir([&, titulo = titulo, boton = boton, ruta = ruta](DialogoInfoOnline& v) {
            visto = true;
            EXPECT_EQ(v.windowTitle(), titulo);
            EXPECT_EQ(Control<QPushButton>(v, "cmdAbrir").text(), boton);
            EXPECT_TRUE(Control<QLineEdit>(v, "txtDireccion").text().contains(ruta));
            EXPECT_TRUE(Control<QLineEdit>(v, "txtDireccion").isReadOnly());
            EXPECT_TRUE(Control<QLabel>(v, "lblDescripcion").text().contains(u"569"));
            Pulsar(v, "cmdCerrar");
        });
        Elegir("mnuDescripAsisOnline");
        EXPECT_TRUE(visto);
    }
}

TEST_F(AsistenciaQtTest, TheDescriptionIsInTheLanguageThatItIsGivenWhateverTheOneInForce) {
    const DialogoInfoOnline dialogo(kOffsetEuskera, u"https://a.example/"_s, nullptr);
    EXPECT_EQ(dialogo.windowTitle(), u"Deskripzioa"_s);
    EXPECT_EQ(Control<QLabel>(dialogo, "lblDireccion").text(), u"Orriaren helbidea"_s);
}

TEST_F(AsistenciaQtTest, TheDescriptionIsModalToTheMainWindow) {
    AlDescribir([](DialogoInfoOnline& v) {
        EXPECT_TRUE(v.isModal());
        EXPECT_EQ(v.parentWidget(), &Marco());
        QTest::keyClick(&v, Qt::Key_Escape);
    });
    Elegir("mnuDescripAsisOnline");
}

TEST_F(AsistenciaQtTest, ItsButtonOpensThePageByMouseAndByKeyAndLeavesItOpen) {
    escritorio.Instalar();
    AlDescribir([this](DialogoInfoOnline& v) {
        const QByteArray abierto = "1\n" + Control<QLineEdit>(v, "txtDireccion").text().toUtf8() + '\n';
        EXPECT_EQ(v.focusWidget(), &Control(v, "cmdAbrir"));
        QTest::keyClick(v.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(escritorio.Abierto(), abierto);
        Pulsar(v, "cmdAbrir");
        EXPECT_EQ(escritorio.Abierto(), abierto);
        EXPECT_TRUE(v.isVisible());
        Pulsar(v, "cmdCerrar");
    });
    Elegir("mnuDescripAsisOnline");
}

TEST_F(AsistenciaQtTest, WithoutABrowserTheUserIsToldTheAddress) {
    Elegir("mnuAsisOnline");
    AlDescribir([](DialogoInfoOnline& v) {
        Pulsar(v, "cmdAbrir");
        Pulsar(v, "cmdCerrar");
    });
    Elegir("mnuDescripAsisOnline");
    ASSERT_EQ(pantalla.mensajes.size(), 2U);
    EXPECT_TRUE(pantalla.mensajes[0].texto.contains(u"/asistencia"));
    EXPECT_TRUE(pantalla.mensajes[1].texto.contains(u"/es/asistencia-on-line"));
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(AsistenciaQtTest, FailuresAreShownUnderTheNamesOfTheirEvents) {
    FijarAsistencia(nullptr);
    Elegir("mnuAsisOnline");
    Elegir("mnuDescripAsisOnline");
    ASSERT_EQ(pantalla.errores.size(), 2U);
    EXPECT_EQ(pantalla.errores[0].evento, u"MDIZT.mnuAsisOnline_Click"_s);
    EXPECT_EQ(pantalla.errores[1].evento, u"MDIZT.mnuDescripAsisOnline_Click"_s);
    const DialogoInfoOnline dialogo(0, u"file:///etc/passwd"_s, nullptr);
    Control<QPushButton>(dialogo, "cmdAbrir").click();
    ASSERT_EQ(pantalla.errores.size(), 3U);
    EXPECT_EQ(pantalla.errores[2].evento, u"DialogoInfoOnline.cmdAbrir_Click"_s);
}

TEST_F(AsistenciaQtTest, TheEntryOfThePreferencesShowsThemModally) {
    AlAbrirse(u"frmZTPreferencias", [](QWidget& v) {
        EXPECT_TRUE(v.isModal());
        v.close();
    });
    Elegir("mnuPreferencias");
    EXPECT_FALSE(Formularios::Cargado(u"frmZTPreferencias"_s));
}

TEST_F(AsistenciaQtTest, AWindowIsFoundByItsHandle) {
    EXPECT_EQ(VentanaDe(ManejadorDe(Marco())), &Marco());
    EXPECT_EQ(VentanaDe(0), nullptr);
    EXPECT_EQ(VentanaDe(-12345), nullptr);
}
