#include "forms/widgets/CajaNumerica.h"

#include <QAccessible>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QStyleOptionFrame>
#include <QTest>
#include <QVBoxLayout>
#include <cstdlib>
#include <utility>
#include <vector>

#include "core/base/Formatos.h"
#include "core/base/Regional.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

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
        FijarPantalla(&pantalla);
        form.resize(300, 100);
        form.show();
        form.activateWindow();
        ASSERT_TRUE(EsperarActiva(&form));
        form.cnuBaseImp1.setFocus();
    }
    void TearDown() override {
        FijarRegional({});
        form.cnuBaseImp1.setFocus();
        FijarPantalla(nullptr);
    }

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

    /// Beeps since the last question.
    int Pitidos() { return std::exchange(pantalla.pitidos, 0); }

    PantallaGrabadora pantalla;
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

TEST_F(CajaNumericaTest, OnlyDigitsPointsCommasAndALeadingMinusAreTypedAndTheyStayAsTyped) {
    Entrar();
    Teclear(u"a1.b2,3,4-5 e+"_s);
    EXPECT_EQ(caja.text(), u"1.2,3,45"_s);
    QTest::keyClick(&caja, Qt::Key_Home);
    Teclear(u"-"_s);
    EXPECT_EQ(caja.text(), u"-1.2,3,45"_s);
    QTest::keyClick(&caja, Qt::Key_Home);
    Teclear(u"-"_s);
    EXPECT_EQ(caja.text(), u"-1.2,3,45"_s);
}

TEST_F(CajaNumericaTest, ThePointOfTheMainKeyboardIsReadWithTheWhole) {
    const std::vector<std::pair<QString, QString>> leidos{
        {u"12.5"_s, u"12,50"_s},       {u"1000.50"_s, u"1.000,50"_s},
        {u"1.234"_s, u"1.234,00"_s},   {u"1.234.567"_s, u"1.234.567,00"_s},
        {u"1,234.5"_s, u"1.234,50"_s}, {u"1.234,5"_s, u"1.234,50"_s}};
    for (const auto& [tecleado, mostrado] : leidos) {
        Entrar(u"7,00"_s);
        Teclear(tecleado);
        EXPECT_EQ(caja.text(), tecleado);
        EXPECT_EQ(Salir(), mostrado);
    }
    EXPECT_EQ(Pitidos(), 0);
}

TEST_F(CajaNumericaTest, TheSameUnderEnglishSettings) {
    FijarRegional({.decimal = u'.', .grupo = u','});
    const std::vector<std::pair<QString, QString>> leidos{{u"1,000.5"_s, u"1,000.50"_s},
                                                          {u"12,5"_s, u"12.50"_s},
                                                          {u"1,234"_s, u"1,234.00"_s},
                                                          {u"12.345"_s, u"12.35"_s},
                                                          {u"1.234,5"_s, u"1,234.50"_s}};
    for (const auto& [tecleado, mostrado] : leidos) {
        Entrar();
        Teclear(tecleado);
        EXPECT_EQ(Salir(), mostrado);
    }
    EXPECT_EQ(Pitidos(), 0);
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
    Teclear(u"x e"_s);
    EXPECT_EQ(caja.text(), u"1.234,50"_s);
    EXPECT_EQ(caja.selectedText(), u"1.234,50"_s);
}

TEST_F(CajaNumericaTest, TheDecimalKeyOfTheKeypadGivesTheDecimalSeparatorOfTheSettings) {
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
    EXPECT_EQ(Pitidos(), 1) << "for the digit left out";
    EXPECT_EQ(Salir(), u"12.345.678.901,34"_s);
    Entrar(u"7,00"_s);
    Teclear(u"12.345.678.901.234"_s);
    EXPECT_EQ(Salir(), u"7,00"_s);
    EXPECT_EQ(Pitidos(), 1);
}

TEST_F(CajaNumericaTest, DigitsPutInBetweenTheThousandsMustLeaveGroupsOfThree) {
    Entrar(u"1.234,50"_s);
    QTest::keyClick(&caja, Qt::Key_Home);
    Teclear(u"99"_s);
    EXPECT_EQ(Salir(), u"991.234,50"_s);
    EXPECT_EQ(Pitidos(), 0);
    Entrar(u"1.234,50"_s);
    QTest::keyClick(&caja, Qt::Key_Home);
    QTest::keyClick(&caja, Qt::Key_Delete);
    EXPECT_EQ(caja.text(), u".234,50"_s);
    EXPECT_EQ(Salir(), u"1.234,50"_s);
    EXPECT_EQ(Pitidos(), 1);
}

TEST_F(CajaNumericaTest, WhatSaysNoNumberGoesBackToTheOldValueWithABeep) {
    for (const QString& texto : {u"-"_s, u","_s, u"-,"_s, u"."_s, u"1.23.4"_s, u"1,5.000"_s, u"1,,2"_s}) {
        Entrar(u"1.234,50"_s);
        Teclear(texto);
        EXPECT_EQ(caja.text(), texto);
        EXPECT_EQ(Pitidos(), 0);
        EXPECT_EQ(Salir(), u"1.234,50"_s);
        EXPECT_EQ(form.alSalir, u"1.234,50"_s);
        EXPECT_EQ(Pitidos(), 1) << texto.toStdString();
    }
    Entrar();
    Teclear(u"-"_s);
    EXPECT_EQ(Salir(), QString());
}

TEST_F(CajaNumericaTest, AnEmptiedBoxStaysEmpty) {
    Entrar(u"1.234,50"_s);
    QTest::keyClick(&caja, Qt::Key_Delete);
    EXPECT_EQ(Salir(), QString());
    EXPECT_EQ(Pitidos(), 0);
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

TEST_F(CajaNumericaTest, APastedOrDroppedNumberIsReadAsATypedOneWithBlanksAsGroups) {
    const std::vector<std::pair<QString, QString>> leidos{
        {u" 1.234,50 €\r\n"_s, u"1.234,50"_s}, {u"12.5"_s, u"12,50"_s},
        {u"1,234.56"_s, u"1.234,56"_s},        {u"1 234 567,8"_s, u"1.234.567,80"_s},
        {u"1\u00A0234"_s, u"1.234,00"_s},      {u"1\u202F234.5"_s, u"1.234,50"_s},
        {u"1\u2009234"_s, u"1.234,00"_s}};
    for (const auto& [traido, mostrado] : leidos) {
        Entrar(u"7,00"_s);
        Pegar(traido);
        EXPECT_EQ(Salir(), mostrado) << "pasted";
        Entrar();
        Soltar(traido);
        EXPECT_EQ(Salir(), mostrado) << "dropped";
    }
    EXPECT_EQ(Pitidos(), 0);
}

TEST_F(CajaNumericaTest, WhatCannotBeReadIsNotPastedOrDroppedAndBringsABeep) {
    for (const QString& texto : {u"abc"_s, u"1.23.4"_s, u"1,5.000"_s, u"12 de mayo"_s, u"1 2"_s}) {
        Entrar(u"7,00"_s);
        Pegar(texto);
        EXPECT_EQ(caja.text(), u"7,00"_s) << texto.toStdString();
        EXPECT_EQ(Pitidos(), 1) << texto.toStdString();
        Soltar(texto);
        EXPECT_EQ(caja.text(), u"7,00"_s) << texto.toStdString();
        EXPECT_EQ(Pitidos(), 1) << texto.toStdString();
    }
}

TEST_F(CajaNumericaTest, WhatIsPastedOverItselfIsNotRefused) {
    Entrar(u"7,00"_s);
    Pegar(u"7,00"_s);
    EXPECT_EQ(caja.text(), u"7,00"_s);
    EXPECT_EQ(Pitidos(), 0);
}

TEST_F(CajaNumericaTest, ANumberThatDoesNotFitWhereItIsPastedIsRefusedWhole) {
    Entrar(u"7,00"_s);
    caja.setCursorPosition(4);
    Pegar(u"-5"_s);
    EXPECT_EQ(caja.text(), u"7,00"_s);
    caja.selectAll();
    Pegar(u"123456789012"_s);
    EXPECT_EQ(caja.text(), u"7,00"_s);
    EXPECT_EQ(Pitidos(), 2);
    caja.setCursorPosition(0);
    Pegar(u"12"_s);
    EXPECT_EQ(caja.text(), u"127,00"_s);
}

TEST_F(CajaNumericaTest, ComposedTextIsFilteredAsWell) {
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

TEST_F(CajaNumericaTest, EveryAmountTypedInWhateverWayComesBackAsItself) {
    const bool bien = rc::check([this] {
        const QChar decimal = *rc::gen::element<QChar>(u',', u'.');
        const QChar otro = decimal == u',' ? u'.' : u',';
        const bool conGrupos = *rc::gen::arbitrary<bool>();
        const bool comoElSistema = *rc::gen::arbitrary<bool>();
        FijarRegional({.decimal = comoElSistema ? decimal : otro, .grupo = comoElSistema ? otro : decimal});
        const double importe = *rc::gen::inRange<int>(-999'999'999, 1'000'000'000) / 100.0;
        QString tecleado = QString::number(std::abs(importe), 'f', 2).replace(u'.', decimal);
        for (qsizetype sitio = tecleado.size() - 6; sitio > 0 && conGrupos; sitio -= 3) {
            tecleado.insert(sitio, otro);
        }
        Entrar();
        Teclear((importe < 0 ? u"-"_s : QString()) + tecleado);
        RC_ASSERT(Salir() == Formatear(importe, caja.Mascara()));
        RC_ASSERT(Pitidos() == 0);
    });
    EXPECT_TRUE(bien);
}
