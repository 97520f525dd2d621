#include "forms/messages/frmZTMsgBox.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/messages/PantallaQt.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTMsgBoxTest : public DialogoDePrueba {
  protected:
    /// Shows the box, runs `accion` on it and gives the answer.
    template <class F>
    qint16 Preguntar(bool unBoton, F accion, const QString& texto = u"¿Desea continuar?"_s) {
        AlAbrirse(frmZTMsgBox::kNombre, accion);
        return ElFormulario<frmZTMsgBox>().Preguntar(texto, u"Atención"_s, unBoton);
    }

    static QImage Imagen(const QWidget& ventana) {
        return Control<QLabel>(ventana, "imgMsgBox").pixmap().toImage();
    }
    static QImage DeLaLista(const QWidget& ventana, int numero) {
        return ilsMDI32(numero).pixmap(QSize(32, 32), ventana.devicePixelRatioF()).toImage();
    }
};

}  // namespace

TEST_F(frmZTMsgBoxTest, AQuestionHasTwoButtonsAndImage3) {
    Preguntar(false, [](QWidget& v) {
        EXPECT_EQ(Control<QPlainTextEdit>(v, "txtMensaje").toPlainText(), u"¿Desea continuar?"_s);
        EXPECT_EQ(Control<QLabel>(v, "lblTitulo").text(), u"Atención"_s);
        EXPECT_TRUE(Control(v, "cmdAceptar").isVisible());
        EXPECT_TRUE(Control(v, "cmdCancelar").isVisible());
        EXPECT_EQ(Imagen(v), DeLaLista(v, 3));
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTMsgBoxTest, ACaptionAsTitleLosesItsAccessKeyAndItsBlanksAndAnAmpersandBetweenBlanksStays) {
    for (const auto& [titulo, visible] : {std::pair{Texto(95), u"Guardar cambios"_s},
                                          {u"   &Ñandú &2"_s, u"Ñandú 2"_s},
                                          {u"T & U"_s, u"T & U"_s}}) {
        AlAbrirse(frmZTMsgBox::kNombre, [&visible = visible](QWidget& v) {
            EXPECT_EQ(Control<QLabel>(v, "lblTitulo").text(), visible);
            EXPECT_EQ(v.accessibleName(), visible);
            Pulsar(v, "cmdAceptar");
        });
        ElFormulario<frmZTMsgBox>().Preguntar(u"¿Desea continuar?"_s, titulo, false);
    }
}

TEST_F(frmZTMsgBoxTest, ANoticeHasOneCentredButtonAndImage2) {
    Preguntar(true, [](QWidget& v) {
        const QWidget& aceptar = Control(v, "cmdAceptar");
        EXPECT_TRUE(aceptar.isVisible());
        EXPECT_FALSE(Control(v, "cmdCancelar").isVisible());
        EXPECT_NEAR(aceptar.geometry().center().x(), v.rect().center().x(), 1);
        EXPECT_EQ(Imagen(v), DeLaLista(v, 2));
        EXPECT_NE(Imagen(v), DeLaLista(v, 3));
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTMsgBoxTest, AceptarAnswers1AndCancelarAnswers2) {
    EXPECT_EQ(Preguntar(false, [](QWidget& v) { Pulsar(v, "cmdCancelar"); }), 2);
    EXPECT_EQ(Entorno().RespuestaMensaje, 2);
    EXPECT_EQ(Preguntar(false, [](QWidget& v) { Pulsar(v, "cmdAceptar"); }), 1);
    EXPECT_EQ(Entorno().RespuestaMensaje, 1);
    EXPECT_FALSE(Formularios::Cargado(u"frmZTMsgBox"_s));
}

TEST_F(frmZTMsgBoxTest, ClosedByItsCloseBoxItAnswersWhatTheLastOneDid) {
    for (const qint16 anterior : {qint16{1}, qint16{2}}) {
        Entorno().RespuestaMensaje = anterior;
        EXPECT_EQ(Preguntar(false, [](QWidget& v) { v.close(); }), anterior);
    }
}

TEST_F(frmZTMsgBoxTest, TheSameHoldsThroughMensaje) {
    PantallaQt real;
    FijarPantalla(&real);
    AlAbrirse(frmZTMsgBox::kNombre, [](QWidget& v) { Pulsar(v, "cmdCancelar"); });
    EXPECT_EQ(Mensaje(u"uno"_s, u"t"_s, false), 2);
    AlAbrirse(frmZTMsgBox::kNombre, [](QWidget& v) { v.close(); });
    EXPECT_EQ(Mensaje(u"dos"_s, u"t"_s, false), 2);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(frmZTMsgBoxTest, CaptionsAreInTheLanguageInForce) {
    Preguntar(false, [](QWidget& v) {
        EXPECT_EQ(Control<QPushButton>(v, "cmdAceptar").text(), u"&Aceptar"_s);
        EXPECT_EQ(Control<QPushButton>(v, "cmdCancelar").text(), u"&Cancelar"_s);
        Pulsar(v, "cmdAceptar");
    });
    Entorno().OffsetIdioma = 1000;
    Preguntar(false, [](QWidget& v) {
        EXPECT_EQ(Control<QPushButton>(v, "cmdAceptar").text(), u"&Ados"_s);
        EXPECT_EQ(Control<QPushButton>(v, "cmdCancelar").text(), u"&Utzi"_s);
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTMsgBoxTest, AClickSetsTheHourglassAndTheUnloadTheDefaultPointer) {
    for (const char* boton : {"cmdAceptar", "cmdCancelar"}) {
        pantalla.punteros.clear();
        Preguntar(false, [boton](QWidget& v) { Pulsar(v, boton); });
        EXPECT_EQ(pantalla.punteros, (std::vector{Puntero::Espera, Puntero::Normal})) << boton;
    }
    pantalla.punteros.clear();
    Preguntar(false, [](QWidget& v) { v.close(); });
    EXPECT_EQ(pantalla.punteros, std::vector{Puntero::Normal});
}

TEST_F(frmZTMsgBoxTest, EscapePressesCancelarAndInANoticeAceptar) {
    EXPECT_EQ(Preguntar(false, [](QWidget& v) { QTest::keyClick(&v, Qt::Key_Escape); }), 2);
    EXPECT_EQ(Preguntar(true, [](QWidget& v) { QTest::keyClick(&v, Qt::Key_Escape); }), 1);
}

TEST_F(frmZTMsgBoxTest, TheFocusStartsOnAceptarAndTabGoesToCancelar) {
    EXPECT_EQ(Preguntar(false,
                        [](QWidget& v) {
                            ASSERT_EQ(v.focusWidget(), &Control(v, "cmdAceptar"));
                            QTest::keyClick(v.focusWidget(), Qt::Key_Tab);
                            ASSERT_EQ(v.focusWidget(), &Control(v, "cmdCancelar"));
                            QTest::keyClick(v.focusWidget(), Qt::Key_Return);
                        }),
              2);
}

TEST_F(frmZTMsgBoxTest, TextAndTitleAreNeverMarkup) {
    AlAbrirse(frmZTMsgBox::kNombre, [](QWidget& v) {
        EXPECT_EQ(Control<QPlainTextEdit>(v, "txtMensaje").toPlainText(), u"<b>A & B</b>"_s);
        EXPECT_EQ(Control<QLabel>(v, "lblTitulo").text(), u"<i>T & U</i>"_s);
        EXPECT_EQ(Control<QLabel>(v, "lblTitulo").textFormat(), Qt::PlainText);
        Pulsar(v, "cmdAceptar");
    });
    ElFormulario<frmZTMsgBox>().Preguntar(u"<b>A & B</b>"_s, u"<i>T & U</i>"_s, true);
}

TEST_F(frmZTMsgBoxTest, LongTextsWrapAndShowWhole) {
    const QString conBlancos = u"Se perderán las modificaciones realizadas. "_s.repeated(8);
    const QString sinBlancos = u"/home/usuario/"_s + QString(300, u'x');
    for (const QString& texto : {u"Breve"_s, conBlancos, sinBlancos}) {
        Preguntar(
            true,
            [](QWidget& v) {
                const auto& caja = Control<QPlainTextEdit>(v, "txtMensaje");
                EXPECT_EQ(caja.verticalScrollBar()->maximum(), 0);
                const QTextLayout& lineas = *caja.document()->firstBlock().layout();
                for (int i = 0; i < lineas.lineCount(); ++i) {
                    EXPECT_LE(lineas.lineAt(i).naturalTextWidth(), caja.viewport()->width());
                }
                EXPECT_LT(v.width(), 600);
                Pulsar(v, "cmdAceptar");
            },
            texto);
    }
}

TEST_F(frmZTMsgBoxTest, ATextOfManyLinesScrollsInsteadOfLeavingTheScreen) {
    Preguntar(
        true,
        [](QWidget& v) {
            EXPECT_GT(Control<QPlainTextEdit>(v, "txtMensaje").verticalScrollBar()->maximum(), 0);
            EXPECT_LT(v.height(), 600);
            Pulsar(v, "cmdAceptar");
        },
        u"línea\n"_s.repeated(200));
}
