#include "forms/widgets/CajaNumerica.h"

#include <QAccessible>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QStyleOptionFrame>
#include <QTest>
#include <QVBoxLayout>

#include "core/base/Regional.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

/// A form of two boxes that select their whole text and keep it when they get the focus.
class FormularioDeNumeros : public FormularioTrabajo {
  public:
    FormularioDeNumeros() : FormularioTrabajo(u"frmNumeros"_s) {
        auto* disposicion = new QVBoxLayout(this);
        cnuExento1.setObjectName(u"cnuExento1"_s);
        cnuBaseImp1.setObjectName(u"cnuBaseImp1"_s);
        for (CajaNumerica* caja : {&cnuExento1, &cnuBaseImp1}) {
            disposicion->addWidget(caja);
            AlRecibirFoco(*this, caja, [caja] { SeleccionarTexto(*caja); });
            AlPerderFoco(*this, caja, [this, caja] { alSalir = caja->text(); });
        }
    }
    /// What the rule of leaving a box has read in it; a box with the focus is left when it goes.
    QString alSalir;
    CajaNumerica cnuExento1;
    CajaNumerica cnuBaseImp1;
};

class CajaNumericaTest : public testing::Test {
  protected:
    void SetUp() override {
        FijarRegional({});
        form.resize(300, 100);
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        form.cnuBaseImp1.setFocus();
    }
    void TearDown() override { FijarRegional({}); }

    /// Goes to the box, which holds that text, as Tab does.
    void Entrar(const QString& texto = {}) {
        caja.setText(texto);
        caja.setFocus(Qt::TabFocusReason);
    }
    /// Goes to the next box, and gives what is left in this one.
    QString Salir() {
        form.cnuBaseImp1.setFocus(Qt::TabFocusReason);
        return caja.text();
    }
    void Teclear(const QString& texto) { QTest::keyClicks(&caja, texto); }
    void Pegar(const QString& texto) {
        QGuiApplication::clipboard()->setText(texto);
        QTest::keyClick(&caja, Qt::Key_V, Qt::ControlModifier);
    }
    void Soltar(const QString& texto) {
        QMimeData datos;
        datos.setText(texto);
        const QPoint sitio(caja.width() - 2, caja.height() / 2);
        QDragEnterEvent entra(sitio, Qt::CopyAction, &datos, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&caja, &entra);
        QDropEvent suelta(sitio, Qt::CopyAction, &datos, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&caja, &suelta);
    }
    void Componer(const QString& texto) {
        QInputMethodEvent compone;
        compone.setCommitString(texto);
        QCoreApplication::sendEvent(&caja, &compone);
    }

    FormularioDeNumeros form;
    CajaNumerica& caja = form.cnuExento1;
};

/// A box that tells how its frame is drawn.
class CajaConMarco : public CajaNumerica {
  public:
    [[nodiscard]] bool Plana() const {
        QStyleOptionFrame opcion;
        initStyleOption(&opcion);
        return opcion.features.testFlag(QStyleOptionFrame::Flat);
    }
};

}  // namespace

TEST_F(CajaNumericaTest, TheFocusSelectsTheTextAndKeepsIt) {
    Entrar(u"1.234,50"_s);
    EXPECT_EQ(caja.selectedText(), u"1.234,50"_s);
    EXPECT_EQ(caja.OldValue(), u"1.234,50"_s);
    EXPECT_EQ(caja.property("OldValue").toString(), u"1.234,50"_s);
    EXPECT_EQ(caja.property("Text").toString(), u"1.234,50"_s);
}

TEST_F(CajaNumericaTest, TheNumberIsShownByTheMaskOnLeavingAndNotBefore) {
    Entrar();
    Teclear(u"1234567,891"_s);
    EXPECT_EQ(caja.text(), u"1234567,891"_s);
    EXPECT_EQ(Salir(), u"1.234.567,89"_s);
    Entrar();
    Teclear(u"0,005"_s);
    EXPECT_EQ(Salir(), u"0,01"_s);
}

TEST_F(CajaNumericaTest, TheRuleOfLeavingReadsWhatTheMaskShows) {
    Entrar();
    Teclear(u"5"_s);
    Salir();
    EXPECT_EQ(form.alSalir, u"5,00"_s);
}

TEST_F(CajaNumericaTest, AnotherMaskShowsOtherDecimals) {
    caja.setMascara(u"#0.000000"_s);
    Entrar();
    Teclear(u"24,04"_s);
    EXPECT_EQ(Salir(), u"24,040000"_s);
}

TEST_F(CajaNumericaTest, OnlyDigitsOneDecimalSeparatorAndALeadingMinusAreTyped) {
    Entrar();
    Teclear(u"a1.b2,3,4-5 e+"_s);
    EXPECT_EQ(caja.text(), u"12,345"_s);
    QTest::keyClick(&caja, Qt::Key_Home);
    Teclear(u"-"_s);
    EXPECT_EQ(caja.text(), u"-12,345"_s);
    QTest::keyClick(&caja, Qt::Key_Home);
    Teclear(u"-7"_s);
    EXPECT_EQ(caja.text(), u"-12,345"_s);
}

TEST_F(CajaNumericaTest, TypingOverTheSelectionStartsAnew) {
    Entrar(u"1.234,50"_s);
    Teclear(u","_s);
    EXPECT_EQ(caja.text(), u","_s);
    Teclear(u"5"_s);
    EXPECT_EQ(Salir(), u"0,50"_s);
    Entrar(u"1.234,50"_s);
    Teclear(u"-3"_s);
    EXPECT_EQ(Salir(), u"-3,00"_s);
}

TEST_F(CajaNumericaTest, ARefusedKeyLeavesTheSelectedText) {
    Entrar(u"1.234,50"_s);
    Teclear(u"x."_s);
    EXPECT_EQ(caja.text(), u"1.234,50"_s);
    EXPECT_EQ(caja.selectedText(), u"1.234,50"_s);
}

TEST_F(CajaNumericaTest, CommaAndDecimalKeyOfTheKeypadGiveTheDecimalSeparatorOfTheSettings) {
    const auto conTecla = [this](Qt::Key tecla, const QString& texto) {
        Entrar();
        Teclear(u"1"_s);
        QTest::sendKeyEvent(QTest::Click, &caja, tecla, texto, Qt::KeypadModifier);
        Teclear(u"5"_s);
        return caja.text();
    };
    EXPECT_EQ(conTecla(Qt::Key_Period, u"."_s), u"1,5"_s);
    EXPECT_EQ(conTecla(Qt::Key_Comma, u","_s), u"1,5"_s);
    FijarRegional({.decimal = u'.', .grupo = u','});
    EXPECT_EQ(conTecla(Qt::Key_Period, u"."_s), u"1.5"_s);
    EXPECT_EQ(conTecla(Qt::Key_Comma, u","_s), u"1.5"_s);
    Entrar();
    Teclear(u"1,5"_s);
    EXPECT_EQ(caja.text(), u"1.5"_s);
    EXPECT_EQ(Salir(), u"1.50"_s);
}

TEST_F(CajaNumericaTest, DigitsOfTheKeypadAreDigits) {
    Entrar();
    QTest::keyClick(&caja, Qt::Key_7, Qt::KeypadModifier);
    QTest::keyClick(&caja, Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_EQ(caja.text(), u"7"_s);
}

TEST_F(CajaNumericaTest, WholeDigitsEndWhereTheMaskDoes) {
    Entrar();
    Teclear(u"123456789012,34"_s);
    EXPECT_EQ(caja.text(), u"12345678901,34"_s);
    EXPECT_EQ(Salir(), u"12.345.678.901,34"_s);
}

TEST_F(CajaNumericaTest, DigitsAreTakenOutAndPutInBetweenTheThousands) {
    Entrar(u"1.234,50"_s);
    QTest::keyClick(&caja, Qt::Key_Home);
    QTest::keyClick(&caja, Qt::Key_Delete);
    EXPECT_EQ(caja.text(), u".234,50"_s);
    EXPECT_EQ(Salir(), u"234,50"_s);
    Entrar(u"1.234,50"_s);
    QTest::keyClick(&caja, Qt::Key_Home);
    Teclear(u"99"_s);
    EXPECT_EQ(Salir(), u"991.234,50"_s);
}

TEST_F(CajaNumericaTest, WhatSaysNoNumberGoesBackToTheOldValue) {
    for (const QString& texto : {u"-"_s, u","_s, u"-,"_s}) {
        Entrar(u"1.234,50"_s);
        Teclear(texto);
        EXPECT_EQ(caja.text(), texto);
        EXPECT_EQ(Salir(), u"1.234,50"_s);
        EXPECT_EQ(form.alSalir, u"1.234,50"_s);
    }
    Entrar();
    Teclear(u"-"_s);
    EXPECT_EQ(Salir(), QString());
}

TEST_F(CajaNumericaTest, AnEmptiedBoxStaysEmpty) {
    Entrar(u"1.234,50"_s);
    QTest::keyClick(&caja, Qt::Key_Delete);
    EXPECT_EQ(Salir(), QString());
}

TEST_F(CajaNumericaTest, GoingToAnotherProgramOrAMenuIsNotLeaving) {
    Entrar(u"1.234,50"_s);
    Teclear(u"-"_s);
    for (const auto motivo : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent va(QEvent::FocusOut, motivo);
        QCoreApplication::sendEvent(&caja, &va);
        EXPECT_EQ(caja.text(), u"-"_s);
    }
}

TEST_F(CajaNumericaTest, APastedNumberIsCleaned) {
    Entrar(u"7,00"_s);
    Pegar(u" 1.234,50 €\r\n"_s);
    EXPECT_EQ(caja.text(), u"1234,50"_s);
    EXPECT_EQ(Salir(), u"1.234,50"_s);
}

TEST_F(CajaNumericaTest, WhatIsNoNumberOrCouldBeTwoIsNotPasted) {
    for (const QString& texto : {u"abc"_s, u"1.2"_s, u"1,234.56"_s, u"12 de mayo"_s}) {
        Entrar(u"7,00"_s);
        Pegar(texto);
        EXPECT_EQ(caja.text(), u"7,00"_s) << texto.toStdString();
    }
}

TEST_F(CajaNumericaTest, ANumberThatDoesNotFitWhereItIsPastedIsRefusedWhole) {
    Entrar(u"7,00"_s);
    caja.setCursorPosition(4);
    Pegar(u"1,5"_s);
    EXPECT_EQ(caja.text(), u"7,00"_s);
    Pegar(u"-5"_s);
    EXPECT_EQ(caja.text(), u"7,00"_s);
    caja.selectAll();
    Pegar(u"123456789012"_s);
    EXPECT_EQ(caja.text(), u"7,00"_s);
    caja.setCursorPosition(0);
    Pegar(u"12"_s);
    EXPECT_EQ(caja.text(), u"127,00"_s);
}

TEST_F(CajaNumericaTest, DroppedAndComposedTextIsCleanedOrRefusedAsWell) {
    Entrar();
    Soltar(u"1.234,5 €"_s);
    EXPECT_EQ(caja.text(), u"1234,5"_s);
    Soltar(u"abc"_s);
    EXPECT_EQ(caja.text(), u"1234,5"_s);
    Entrar();
    Componer(u"12"_s);
    Componer(u"x"_s);
    Componer(u","_s);
    Componer(u"5"_s);
    EXPECT_EQ(caja.text(), u"12,5"_s);
}

TEST_F(CajaNumericaTest, AChangeCanBeUndone) {
    Entrar(u"7,00"_s);
    Teclear(u"8"_s);
    QTest::keyClick(&caja, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(caja.text(), u"7,00"_s);
}

TEST_F(CajaNumericaTest, ALockedBoxTakesNothingAndADisabledOneNoFocus) {
    caja.setProperty("Locked", true);
    Entrar(u"7,00"_s);
    Teclear(u"8"_s);
    Pegar(u"8"_s);
    EXPECT_EQ(caja.text(), u"7,00"_s);
    EXPECT_EQ(Salir(), u"7,00"_s);
    caja.setEnabled(false);
    caja.setFocus();
    EXPECT_FALSE(caja.hasFocus());
}

TEST_F(CajaNumericaTest, TextSetByCodeIsTakenAsItIs) {
    caja.setProperty("Text", u"sin datos"_s);
    EXPECT_EQ(caja.text(), u"sin datos"_s);
}

TEST_F(CajaNumericaTest, Appearance0DrawsAFlatFrame) {
    CajaConMarco marco;
    EXPECT_FALSE(marco.Plana());
    marco.setProperty("Appearance", 0);
    EXPECT_TRUE(marco.Plana());
    EXPECT_EQ(marco.Appearance(), 0);
}

TEST_F(CajaNumericaTest, AScreenReaderHearsNameAndValue) {
    caja.setAccessibleName(u"Exento, gasolina"_s);
    Entrar();
    Teclear(u"1234,5"_s);
    Salir();
    QAccessibleInterface* lector = QAccessible::queryAccessibleInterface(&caja);
    ASSERT_NE(lector, nullptr);
    EXPECT_EQ(lector->role(), QAccessible::EditableText);
    EXPECT_EQ(lector->text(QAccessible::Name), u"Exento, gasolina"_s);
    EXPECT_EQ(lector->text(QAccessible::Value), u"1.234,50"_s);
}
