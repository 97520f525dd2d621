#include "app/frmZTAbout.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTAboutTest : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        Entorno().VersionPrograma = u"1.2.4"_s;
    }

    template <class F>
    void Mostrar(F accion) {
        AlAbrirse(frmZTAbout::kNombre, accion);
        Formularios::MostrarModal(frmZTAbout::kNombre.toString());
    }

    static QString Etiqueta(const QWidget& v, const char* nombre) {
        return Control<QLabel>(v, nombre).text();
    }
};

}  // namespace

TEST_F(frmZTAboutTest, InCastellanoOnlyTitleAndVersionAreSet) {
    Mostrar([](QWidget& v) {
        EXPECT_EQ(v.windowTitle(), u"Acerca del programa"_s);
        EXPECT_EQ(Etiqueta(v, "lblTitle"), u"Declaraciones modelo 569"_s);
        EXPECT_EQ(Etiqueta(v, "lblVersion"), u"Versión 1.2.4"_s);
        EXPECT_EQ(Etiqueta(v, "lblDescription"),
                  u"El programa de ayuda del modelo 569 permite confeccionar las declaraciones desde un "
                  "ordenador personal."_s);
        EXPECT_EQ(Control<QPushButton>(v, "cmdAceptar").text(), u"Aceptar"_s);
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_FALSE(Formularios::Cargado(u"frmZTAbout"_s));
}

TEST_F(frmZTAboutTest, InEuskeraAllTextsChange) {
    Entorno().OffsetIdioma = 1000;
    Mostrar([](QWidget& v) {
        EXPECT_EQ(v.windowTitle(), u"Programari buruz"_s);
        EXPECT_EQ(Etiqueta(v, "lblTitle"), u"569 Ereduak. Batasun barruko eragiketen aitorpenak."_s);
        EXPECT_EQ(Etiqueta(v, "lblVersion"), u"1.2.4 bertsioa"_s);
        EXPECT_EQ(
            Etiqueta(v, "lblDescription"),
            u"569 Ereduak laguntza programaren bidez, ondasunen batasun barruko emateei edo eskurapenei "
            "dagozkien aitorpenak egin daitezke ordenadore pertsonal batetik."_s);
        EXPECT_EQ(Control<QPushButton>(v, "cmdAceptar").text(), u"&Ados"_s);
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTAboutTest, ThePictureBesideTheButtonClosesItToo) {
    Mostrar([](QWidget& v) {
        EXPECT_FALSE(Control<QToolButton>(v, "picAceptar").icon().isNull());
        Pulsar(v, "picAceptar");
    });
}

TEST_F(frmZTAboutTest, ThePictureWorksAlsoWhileTheButtonIsDisabled) {
    Mostrar([](QWidget& v) {
        Control(v, "cmdAceptar").setEnabled(false);
        Pulsar(v, "picAceptar");
    });
}

TEST_F(frmZTAboutTest, EnterEscapeAndTheCloseBoxCloseIt) {
    Mostrar([](QWidget& v) {
        ASSERT_EQ(v.focusWidget(), &Control(v, "cmdAceptar"));
        QTest::keyClick(v.focusWidget(), Qt::Key_Return);
    });
    Mostrar([](QWidget& v) { QTest::keyClick(&v, Qt::Key_Escape); });
    Mostrar([](QWidget& v) { v.close(); });
}

TEST_F(frmZTAboutTest, ATextThatDoesNotExistIsShownAsAFailureOfItsCaptionsAndTheFormOpensAllTheSame) {
    Entorno().OffsetIdioma = 5000;
    bool abierto = false;
    Mostrar([&abierto](QWidget& v) {
        abierto = true;
        EXPECT_EQ(Etiqueta(v, "lblTitle"), u"Declaraciones modelo 569"_s);
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_TRUE(abierto);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().formulario, u"frmZTAbout"_s);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTAbout.AnadirCaptions"_s);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(u"'5022'"));
    EXPECT_EQ(terminado, -1);
}
