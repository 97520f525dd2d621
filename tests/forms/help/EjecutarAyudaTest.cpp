#include "forms/help/EjecutarAyuda.h"

#include <QMenu>
#include <QTextBrowser>

#include "app/frmZTAbout.h"
#include "core/help/TemasDeAyuda.h"
#include "core/run/Textos.h"
#include "forms/help/VentanaAyuda.h"
#include "tests/support/AyudaInstalada.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/PruebaEnMarco.h"

using namespace Qt::StringLiterals;

namespace {

class EjecutarAyudaTest : public PruebaEnMarco {
  protected:
    void SetUp() override {
        PruebaEnMarco::SetUp();
        InstalarAyuda(carpeta.path());
    }

    [[nodiscard]] VentanaAyuda* Ayuda() const { return marco->findChild<VentanaAyuda*>(); }
    [[nodiscard]] bool Abierta() const { return Ayuda() != nullptr && Ayuda()->isVisible(); }
    [[nodiscard]] QString Tema() const {
        return Abierta() ? Ayuda()->findChild<QTextBrowser*>(u"txtAyuda"_s)->documentTitle() : QString();
    }
};

}  // namespace

TEST_F(EjecutarAyudaTest, TheHelpSetFollowsTheLanguage) {
    EXPECT_TRUE(CarpetaDeAyuda().endsWith(u"/Ayuda/Ayuda"));
    Entorno().OffsetIdioma = 1000;
    EXPECT_TRUE(CarpetaDeAyuda().endsWith(u"/Ayuda/Laguntza"));
}

TEST_F(EjecutarAyudaTest, TheTopicComesInTheLanguageInForceAlsoInAWindowThatIsOpen) {
    EjecutarAyuda(u"cap.htm"_s, *marco);
    EXPECT_EQ(Tema(), u"Primeros pasos"_s);
    Entorno().OffsetIdioma = 1000;
    EjecutarAyuda(u"kap.htm"_s, *marco);
    EXPECT_EQ(Tema(), u"Lehen urratsak"_s);
}

TEST_F(EjecutarAyudaTest, AWindowThatIsOpenFollowsTheLanguageOfTheMainWindowToTheSameTopic) {
    EjecutarAyuda(u"declarante.htm"_s, *marco);
    Entorno().OffsetIdioma = 1000;
    marco->AnadirCaptions();
    EXPECT_EQ(Tema(), TemasDeAyuda(CarpetaDeAyuda()).Temas().at(3).titulo);
    EXPECT_TRUE(Ayuda()->windowTitle().endsWith(Texto(4)));
    EXPECT_EQ(Ayuda()->findChild<QAction*>(u"mnuImprimir"_s)->text(), u"Inprimatu gaia"_s);
    Ayuda()->findChild<QAction*>(u"mnuInicio"_s)->trigger();
    EXPECT_EQ(Tema(), u"Lehen urratsak"_s);
}

TEST_F(EjecutarAyudaTest, AWindowThatIsClosedStaysSoWhenTheLanguageChanges) {
    EjecutarAyuda(u"cap.htm"_s, *marco);
    Ayuda()->close();
    Entorno().OffsetIdioma = 1000;
    marco->AnadirCaptions();
    EXPECT_FALSE(Abierta());
}

TEST_F(EjecutarAyudaTest, AMissingTopicIsToldWithTheNameOfItsFile) {
    EjecutarAyuda(u"noexiste.htm"_s, *marco);
    const QString texto = Ayuda()->findChild<QTextBrowser*>(u"txtAyuda"_s)->toPlainText();
    EXPECT_TRUE(texto.contains(u"noexiste.htm")) << texto.toStdString();
}

TEST_F(EjecutarAyudaTest, EveryFormHasATopicInBothLanguages) {
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        const TemasDeAyuda temas(CarpetaDeAyuda());
        for (const QString& nombre : Formularios::Registrados()) {
            EXPECT_FALSE(temas.TemaDeFormulario(nombre).isEmpty()) << nombre.toStdString();
        }
    }
}

TEST_F(EjecutarAyudaTest, TheKeyF1ShowsTheTopicOfTheFormInUse) {
    QTest::keyClick(marco, Qt::Key_F1);
    EXPECT_EQ(Tema(), u"La ventana principal"_s);
    Formularios::Mostrar(u"frmZTDeclarante"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    EXPECT_EQ(Tema(), u"Los datos del declarante"_s);
}

TEST_F(EjecutarAyudaTest, AFormWithoutATopicGetsTheFirstOne) {
    RegistrarVacio(u"frmZTSinTema"_s);
    Formularios::Mostrar(u"frmZTSinTema"_s);
    EjecutarAyudaDelFormulario(*marco);
    EXPECT_EQ(Tema(), u"Primeros pasos"_s);
    Formularios::Registrar(u"frmZTSinTema"_s, [] { return new frmZTAbout; });
}

TEST_F(EjecutarAyudaTest, OtherKeysAndF1InAMenuThatIsOpenBringNoHelp) {
    QTest::keyClick(marco, Qt::Key_F2);
    QTest::keyClick(marco, Qt::Key_F1, Qt::ShiftModifier);
    auto* menu = marco->findChild<QMenu*>(u"mnuayu"_s);
    menu->popup(marco->mapToGlobal(QPoint(20, 20)));
    QTest::keyClick(menu, Qt::Key_F1);
    menu->close();
    EXPECT_FALSE(Abierta());
}

TEST_F(EjecutarAyudaTest, TheHelpIsThereBesideADialogThatTakesAllInputAndStaysWhenThatIsClosed) {
    CuandoAparezca(u"frmZTAbout"_s, [this](QWidget& acerca) {
        QTest::keyClick(&acerca, Qt::Key_F1);
        ASSERT_EQ(Tema(), u"La ventana principal"_s);
        EXPECT_EQ(Ayuda()->windowHandle()->transientParent(), acerca.windowHandle());
        // As the window system sends it: a window that is locked out would not hear it.
        auto* casilla = Ayuda()->findChild<QWidget*>(u"txtBuscar"_s);
        QTest::mouseClick(Ayuda()->windowHandle(), Qt::LeftButton, {},
                          casilla->mapTo(Ayuda(), casilla->rect().center()));
        EXPECT_TRUE(QTest::qWaitFor([casilla] { return casilla->hasFocus(); }));
        acerca.close();
    });
    Formularios::MostrarModal(u"frmZTAbout"_s);
    EXPECT_TRUE(Abierta());
    EXPECT_EQ(marco->findChild<QWidget*>(u"tlbMdi"_s)->windowHandle(), nullptr) << "made a window of its own";
    EjecutarAyuda(u"cap.htm"_s, *marco);
    EXPECT_EQ(Ayuda()->windowHandle()->transientParent(), marco->windowHandle());
}

TEST_F(EjecutarAyudaTest, GoingToTheHelpIsNotLeavingTheBoxOfAForm) {
    Formularios::Mostrar(u"frmZTDeclarante"_s);
    auto* provincia = ElFormulario<MDIZT>().findChild<QLineEdit*>(u"txtProvin"_s);
    provincia->setFocus();
    provincia->setText(u"99"_s);
    QTest::keyClick(provincia, Qt::Key_F1);
    ASSERT_TRUE(EsperarActiva(Ayuda()));
    EXPECT_FALSE(marco->findChild<QWidget*>(u"lsvProvin"_s)->isVisible());
}
