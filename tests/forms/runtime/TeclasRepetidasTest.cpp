#include "core/run/Entorno.h"
#include "forms/runtime/TeclasRepetidas.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/BotonZT.h"
#include "forms/widgets/CajaEnlace.h"
#include "forms/widgets/CajaTexto.h"
#include "forms/widgets/EtiquetaColumna.h"
#include "forms/widgets/EtiquetaEnlace.h"
#include "forms/widgets/ListaZT.h"
#include "tests/support/AlDialogo.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/TeclaMantenida.h"

using namespace Qt::StringLiterals;

namespace {

class TeclasRepetidasTest : public testing::Test {
  protected:
    /// Shows a control alone in a window and gives it the focus.
    void Mostrar(QWidget& control) {
        (new QVBoxLayout(&ventana))->addWidget(&control);
        control.setFocusPolicy(Qt::StrongFocus);
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(EsperarActiva(&ventana));
        control.setFocus();
        ASSERT_TRUE(control.hasFocus());
    }
    /// Presses a key, holds it for some repeats and lets it go.
    static void Mantener(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) {
        ApretarTecla(tecla, modificadores);
        for (int i = 0; i < 5; ++i) {
            RepetirTecla(tecla, modificadores);
        }
        SoltarTecla(tecla, modificadores);
    }

    QWidget ventana;
};

/// Presses of a button by each key that activates it, held down.
template <class B>
class BotonesMantenidos : public TeclasRepetidasTest {};

using Botones = testing::Types<BotonZT, BotonImagen, EtiquetaColumna, EtiquetaEnlace, QPushButton>;
TYPED_TEST_SUITE(BotonesMantenidos, Botones);

}  // namespace

TYPED_TEST(BotonesMantenidos, AHeldKeyPressesOnce) {
    auto* boton = new TypeParam;
    int pulsaciones = 0;
    QObject::connect(boton, &QAbstractButton::clicked, boton, [&] { ++pulsaciones; });
    this->Mostrar(*boton);
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        pulsaciones = 0;
        this->Mantener(tecla);
        EXPECT_LE(pulsaciones, 1) << tecla;
    }
    EXPECT_EQ(pulsaciones, 1);
}

TYPED_TEST(BotonesMantenidos, RepeatsOfAKeyThatWentDownElsewherePressNothing) {
    auto* boton = new TypeParam;
    int pulsaciones = 0;
    QObject::connect(boton, &QAbstractButton::clicked, boton, [&] { ++pulsaciones; });
    this->Mostrar(*boton);
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        RepetirTecla(tecla);
        SoltarTecla(tecla);
    }
    EXPECT_EQ(pulsaciones, 0);
}

TEST_F(TeclasRepetidasTest, AHeldAccessKeyPressesOnce) {
    auto* boton = new BotonZT;
    boton->setText(u"&Borrar"_s);
    int pulsaciones = 0;
    QObject::connect(boton, &QAbstractButton::clicked, boton, [&] { ++pulsaciones; });
    Mostrar(*boton);
    Mantener(Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(pulsaciones, 1);
    Mantener(Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(pulsaciones, 2);
}

TEST_F(TeclasRepetidasTest, AHeldKeyWorksALinkBoxOnce) {
    auto* caja = new CajaEnlace;
    int pulsaciones = 0;
    QObject::connect(caja, &CajaEnlace::pulsada, caja, [&] { ++pulsaciones; });
    Mostrar(*caja);
    Mantener(Qt::Key_Return);
    Mantener(Qt::Key_Space);
    EXPECT_EQ(pulsaciones, 2);
}

TEST_F(TeclasRepetidasTest, AListHearsEnterAndSpaceOnceAndMovesWithHeldArrows) {
    auto* lista = new ListaZT;
    for (int i = 0; i < 9; ++i) {
        lista->Anadir({}, QString::number(i));
    }
    QList<int> oidas;
    QObject::connect(lista, &ListaZT::KeyPress, lista, [&](int& codigo) { oidas += codigo; });
    Mostrar(*lista);
    lista->Seleccionar(1);
    Mantener(Qt::Key_Return);
    Mantener(Qt::Key_Space);
    EXPECT_EQ(oidas, (QList<int>{13, 32}));
    Mantener(Qt::Key_Down);
    EXPECT_EQ(lista->Seleccionado(), 7);
}

TEST_F(TeclasRepetidasTest, TextGoesOnRepeating) {
    auto* caja = new CajaTexto;
    Mostrar(*caja);
    Mantener(Qt::Key_A);
    Mantener(Qt::Key_Space);
    EXPECT_EQ(caja->text(), u"aaaaaa      "_s);
    Mantener(Qt::Key_Backspace);
    EXPECT_EQ(caja->text(), u"aaaaaa"_s);
}

TEST_F(TeclasRepetidasTest, LinesOfATextOfSeveralGoOnRepeating) {
    auto* texto = new QPlainTextEdit;
    Mostrar(*texto);
    Mantener(Qt::Key_Return);
    EXPECT_EQ(texto->toPlainText(), u"\n\n\n\n\n\n"_s);
}

TEST_F(TeclasRepetidasTest, AMenuChoosesNothingByAHeldKey) {
    auto* barra = new QMenuBar;
    QMenu* menu = barra->addMenu(u"&Menu"_s);
    int elegidas = 0;
    QObject::connect(menu->addAction(u"&Uno"_s), &QAction::triggered, menu, [&] { ++elegidas; });
    Mostrar(*barra);
    menu->popup(ventana.mapToGlobal(QPoint(5, 5)));
    QTest::simulateEvent(menu, true, Qt::Key_Down, Qt::NoModifier, QString(), true);
    ASSERT_NE(menu->activeAction(), nullptr) << "arrows move";
    QTest::simulateEvent(menu, true, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QTest::simulateEvent(menu, true, Qt::Key_U, Qt::NoModifier, u"u"_s, true);
    EXPECT_EQ(elegidas, 0);
    EXPECT_TRUE(menu->isVisible());
    QTest::simulateEvent(menu, true, Qt::Key_U, Qt::NoModifier, u"u"_s, false);
    EXPECT_EQ(elegidas, 1);
}

TEST_F(TeclasRepetidasTest, AMessageBoxOfThePlatformAnswersNoRepeat) {
    const AlDialogo<QMessageBox> caja([](QMessageBox& c) {
        RepetirTecla(Qt::Key_Return);
        RepetirTecla(Qt::Key_Space);
        RepetirTecla(Qt::Key_Escape);
        RepetirTecla(Qt::Key_O);
        EXPECT_TRUE(c.isVisible());
        QTest::keyClick(c.windowHandle(), Qt::Key_Return);
        EXPECT_FALSE(c.isVisible());
    });
    QMessageBox(QMessageBox::Warning, u"ZELT"_s, u"Aviso"_s, QMessageBox::Ok).exec();
}

TEST_F(TeclasRepetidasTest, AQuestionOfThePlatformTakesNoEnterOrSpaceUntilTheKeyWasUp) {
    auto* boton = new BotonZT;
    int respuesta = 0;
    QObject::connect(boton, &QAbstractButton::clicked, boton, [&] {
        respuesta =
            QMessageBox(QMessageBox::Question, u"ZELT"_s, u"¿Seguro?"_s, QMessageBox::Yes | QMessageBox::No)
                .exec();
    });
    Mostrar(*boton);
    {
        const AlDialogo<QMessageBox> caja([](QMessageBox& c) {
            c.button(QMessageBox::Yes)->setFocus();
            ApretarTecla(Qt::Key_Return);
            ApretarTecla(Qt::Key_Space);
            SoltarTecla(Qt::Key_Space);
            EXPECT_TRUE(c.isVisible()) << "the key of before is still down";
            SoltarTecla(Qt::Key_Return);
            ApretarTecla(Qt::Key_Return);
            EXPECT_FALSE(c.isVisible());
        });
        ApretarTecla(Qt::Key_Return);
        ventana.activateWindow();
        ASSERT_TRUE(EsperarActiva(&ventana));
        SoltarTecla(Qt::Key_Return);
    }
    EXPECT_EQ(respuesta, QMessageBox::Yes);
}

TEST_F(TeclasRepetidasTest, AKeyWhoseReleaseWentElsewhereKeepsNoQuestionShut) {
    qint64 ahora = Entorno().Milisegundos();
    Entorno().Milisegundos = [&ahora] { return ahora; };
    Mostrar(*new QPushButton);
    ApretarTecla(Qt::Key_Return);
    ahora += 1001;
    int respuesta = 0;
    {
        const AlDialogo<QMessageBox> caja([](QMessageBox& c) {
            c.button(QMessageBox::No)->setFocus();
            QTest::keyClick(c.windowHandle(), Qt::Key_Space);
            EXPECT_FALSE(c.isVisible());
        });
        respuesta =
            QMessageBox(QMessageBox::Question, u"ZELT"_s, u"¿Seguro?"_s, QMessageBox::Yes | QMessageBox::No)
                .exec();
    }
    EXPECT_EQ(respuesta, QMessageBox::No);
    ventana.activateWindow();
    ASSERT_TRUE(EsperarActiva(&ventana));
    SoltarTecla(Qt::Key_Return);
    ReiniciarEntorno();
}

TEST_F(TeclasRepetidasTest, AQuestionThatComesUpWithTheKeysUpWorksAtOnce) {
    auto* boton = new BotonZT;
    int respuesta = 0;
    QObject::connect(boton, &QAbstractButton::clicked, boton, [&] {
        respuesta =
            QMessageBox(QMessageBox::Question, u"ZELT"_s, u"¿Seguro?"_s, QMessageBox::Yes | QMessageBox::No)
                .exec();
    });
    Mostrar(*boton);
    const AlDialogo<QMessageBox> caja([](QMessageBox& c) {
        c.button(QMessageBox::No)->setFocus();
        QTest::keyClick(c.windowHandle(), Qt::Key_Space);
        EXPECT_FALSE(c.isVisible());
    });
    QTest::mouseClick(boton, Qt::LeftButton);
    EXPECT_EQ(respuesta, QMessageBox::No);
}
