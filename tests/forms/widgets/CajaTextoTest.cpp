#include "forms/widgets/CajaTexto.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTest>
#include <QVBoxLayout>

#include "forms/runtime/Eventos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

/// A form of two boxes that select their whole text when they get the focus.
class FormularioDeCajas : public FormularioTrabajo {
  public:
    FormularioDeCajas() : FormularioTrabajo(u"frmCajas"_s) {
        auto* disposicion = new QVBoxLayout(this);
        for (CajaTexto* caja : {&primera, &segunda}) {
            disposicion->addWidget(caja);
            AlRecibirFoco(*this, caja, [caja] { SeleccionarTexto(*caja); });
        }
    }
    CajaTexto primera;
    CajaTexto segunda;
};

class CajaTextoTest : public testing::Test {
  protected:
    CajaTextoTest() {
        form.resize(300, 100);
        form.show();
        form.activateWindow();
        caja.setFocus();
    }
    void SetUp() override { ASSERT_TRUE(EsperarActiva(&form)); }

    static void Copiar(const QString& texto) { QGuiApplication::clipboard()->setText(texto); }

    void Pegar(const QString& texto) {
        Copiar(texto);
        QTest::keyClick(&caja, Qt::Key_V, Qt::ControlModifier);
    }

    /// Drops a text on the left end of the box, as another program does. True when the box took it.
    bool Soltar(const QString& texto) {
        QMimeData datos;
        datos.setText(texto);
        const QPoint sitio(1, caja.height() / 2);
        QDragEnterEvent entra(sitio, Qt::CopyAction, &datos, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&caja, &entra);
        QDropEvent suelta(sitio, Qt::CopyAction, &datos, Qt::LeftButton, {});
        suelta.setAccepted(false);
        QCoreApplication::sendEvent(&caja, &suelta);
        return suelta.isAccepted();
    }

    void Componer(const QString& texto) {
        QInputMethodEvent compone;
        compone.setCommitString(texto);
        QCoreApplication::sendEvent(&caja, &compone);
    }

    /// Pastes by the entry of the menu that the right button opens.
    void PegarConElMenu(const QString& texto) {
        Copiar(texto);
        QContextMenuEvent pide(QContextMenuEvent::Mouse, {5, 5}, caja.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&caja, &pide);
        auto* menu = caja.findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        for (QAction* entrada : menu->actions()) {
            if (entrada->text().startsWith(QLineEdit::tr("&Paste"))) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entrada).center());
            }
        }
        menu->close();
    }

    FormularioDeCajas form;
    CajaTexto& caja = form.primera;
    QSignalSpy cambios{&caja, &CajaTexto::Cambiado};
};

}  // namespace

TEST_F(CajaTextoTest, TypedLettersBecomeCapitalsAndRefusedOnesAreDropped) {
    caja.setFiltro(CajaTexto::Caracteres);
    QTest::keyClicks(&caja, u"calle \"mayor\", nº 3 @#'"_s);
    EXPECT_EQ(caja.text(), u"CALLE MAYOR, Nº 3 "_s);
    caja.clear();
    QTest::sendKeyEvent(QTest::Click, &caja, Qt::Key_Ntilde, u"ñ"_s, {});
    QTest::sendKeyEvent(QTest::Click, &caja, Qt::Key_Eacute, u"é"_s, {});
    EXPECT_EQ(caja.text(), u"Ñ"_s);
}

TEST_F(CajaTextoTest, ABoxOfNaturalsTakesDigitsOnly) {
    caja.setFiltro(CajaTexto::Naturales);
    QTest::keyClicks(&caja, u"1a2.-3 4"_s);
    EXPECT_EQ(caja.text(), u"1234"_s);
}

TEST_F(CajaTextoTest, DigitsOfTheKeypadAreDigits) {
    caja.setFiltro(CajaTexto::Naturales);
    QTest::keyClick(&caja, Qt::Key_7, Qt::KeypadModifier);
    EXPECT_EQ(caja.text(), u"7"_s);
}

TEST_F(CajaTextoTest, ABoxWithoutAFilterTakesEverything) {
    QTest::keyClicks(&caja, u"a@b"_s);
    Pegar(u"é\""_s);
    EXPECT_EQ(caja.text(), u"a@bé\""_s);
}

TEST_F(CajaTextoTest, ALetterHeldWithAltPassesTheFilterAsWell) {
    caja.setFiltro(CajaTexto::Naturales);
    QTest::keyClick(&caja, 'x', Qt::AltModifier);
    EXPECT_EQ(caja.text(), QString());
}

TEST_F(CajaTextoTest, PastedTextPassesTheFilter) {
    caja.setFiltro(CajaTexto::Caracteres);
    Pegar(u"peña [é] \"x\"\r\n"_s);
    EXPECT_EQ(caja.text(), u"PEÑA  X"_s);
    caja.clear();
    Copiar(u"12 ab"_s);
    QTest::keyClick(&caja, Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(caja.text(), u"12 AB"_s);
}

TEST_F(CajaTextoTest, TextPastedWithTheMenuPassesTheFilter) {
    caja.setFiltro(CajaTexto::Naturales);
    PegarConElMenu(u"a1b2"_s);
    EXPECT_EQ(caja.text(), u"12"_s);
    EXPECT_EQ(cambios.count(), 1);
}

TEST_F(CajaTextoTest, TextPastedWithTheMiddleButtonPassesTheFilter) {
    caja.setFiltro(CajaTexto::Naturales);
    QGuiApplication::clipboard()->setText(u"a1b2"_s, QClipboard::Selection);
    QTest::mouseClick(&caja, Qt::MiddleButton);
    // Only some window systems keep a selection of the mouse; elsewhere there is nothing to paste.
    const bool hay = QGuiApplication::clipboard()->supportsSelection();
    EXPECT_EQ(caja.text(), hay ? u"12"_s : QString());
}

TEST_F(CajaTextoTest, DroppedTextPassesTheFilter) {
    caja.setFiltro(CajaTexto::Caracteres);
    EXPECT_TRUE(Soltar(u"ábc'd"_s));
    EXPECT_EQ(caja.text(), u"BCD"_s);
    EXPECT_EQ(cambios.count(), 1);
}

TEST_F(CajaTextoTest, TextOfAnInputMethodPassesTheFilter) {
    caja.setFiltro(CajaTexto::Caracteres);
    Componer(u"ñé"_s);
    EXPECT_EQ(caja.text(), u"Ñ"_s);
    EXPECT_EQ(cambios.count(), 1);
}

TEST_F(CajaTextoTest, ALetterAndItsMarkThatComeApartAreJoinedFirst) {
    caja.setFiltro(CajaTexto::Caracteres);
    Pegar(QString(u"pen\u0303a e\u0301"_s));
    EXPECT_EQ(caja.text(), u"PEÑA "_s);
}

TEST_F(CajaTextoTest, ControlCharactersOfAPastedTextAreDropped) {
    caja.setFiltro(CajaTexto::Naturales);
    Pegar(u"1\b2\t3\n4"_s);
    EXPECT_EQ(caja.text(), u"1234"_s);
}

TEST_F(CajaTextoTest, TextSetByCodeDoesNotPassTheFilterAndIsNoChangeOfTheUser) {
    caja.setFiltro(CajaTexto::Naturales);
    caja.setText(u"aé"_s);
    EXPECT_EQ(caja.text(), u"aé"_s);
    EXPECT_EQ(cambios.count(), 0);
}

TEST_F(CajaTextoTest, WhatIsRefusedWholeLeavesTextAndSelectionAlone) {
    caja.setFiltro(CajaTexto::Naturales);
    caja.setText(u"123"_s);
    caja.selectAll();
    QTest::keyClick(&caja, 'x');
    Pegar(u"abc"_s);
    Componer(u"ñ"_s);
    EXPECT_EQ(caja.selectedText(), u"123"_s);
    EXPECT_FALSE(Soltar(u"abc"_s));
    EXPECT_EQ(caja.text(), u"123"_s);
    EXPECT_EQ(cambios.count(), 0);
}

TEST_F(CajaTextoTest, TheMaximumLengthCountsWhatTheFilterLeaves) {
    caja.setFiltro(CajaTexto::Naturales);
    caja.setMaxLength(4);
    Pegar(u"1-2-3-4-5"_s);
    EXPECT_EQ(caja.text(), u"1234"_s);
    QTest::keyClick(&caja, '9');
    Soltar(u"9"_s);
    Componer(u"9"_s);
    EXPECT_EQ(caja.text(), u"1234"_s);
}

TEST_F(CajaTextoTest, ABoxForReadingTakesNothing) {
    caja.setText(u"1"_s);
    caja.setReadOnly(true);
    QTest::keyClick(&caja, '2');
    Pegar(u"3"_s);
    Soltar(u"4"_s);
    EXPECT_EQ(caja.text(), u"1"_s);
    EXPECT_EQ(cambios.count(), 0);
}

TEST_F(CajaTextoTest, EveryChangeOfTheUserIsReported) {
    caja.setFiltro(CajaTexto::Caracteres);
    QTest::keyClick(&caja, 'a');
    EXPECT_EQ(cambios.count(), 1);
    Pegar(u"b"_s);
    EXPECT_EQ(cambios.count(), 2);
    Soltar(u"c"_s);
    EXPECT_EQ(cambios.count(), 3);
    Componer(u"d"_s);
    EXPECT_EQ(cambios.count(), 4);
    QTest::keyClick(&caja, Qt::Key_Backspace);
    EXPECT_EQ(cambios.count(), 5);
    caja.selectAll();
    QTest::keyClick(&caja, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(cambios.count(), 6);
    QTest::keyClick(&caja, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cambios.count(), 7);
}

TEST_F(CajaTextoTest, FilteredTypingCanBeUndone) {
    caja.setFiltro(CajaTexto::Caracteres);
    QTest::keyClicks(&caja, u"ab'c"_s);
    QTest::keyClick(&caja, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(caja.text(), QString());
}

TEST_F(CajaTextoTest, CommandsOfTheKeyboardStillWork) {
    caja.setFiltro(CajaTexto::Naturales);
    caja.setText(u"12"_s);
    QTest::keyClick(&caja, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(caja.selectedText(), u"12"_s);
    QTest::keyClick(&caja, Qt::Key_Delete);
    EXPECT_EQ(caja.text(), QString());
}

TEST_F(CajaTextoTest, FieldNameAndFilterCanBeSetInTheDescriptionOfTheForm) {
    EXPECT_TRUE(caja.setProperty("Tag", u"CODMUN"_s));
    EXPECT_TRUE(caja.setProperty("Filtro", u"Naturales"_s));
    EXPECT_EQ(caja.Tag(), u"CODMUN"_s);
    EXPECT_EQ(caja.Filtro(), CajaTexto::Naturales);
}

TEST_F(CajaTextoTest, AClickThatBringsTheFocusKeepsTheWholeTextSelected) {
    form.segunda.setText(u"MAYOR"_s);
    QTest::mouseClick(&form.segunda, Qt::LeftButton, {}, {8, form.segunda.height() / 2});
    ASSERT_TRUE(form.segunda.hasFocus());
    EXPECT_EQ(form.segunda.selectedText(), u"MAYOR"_s);
}

TEST_F(CajaTextoTest, AClickInTheBoxThatHasTheFocusPutsTheCaretThere) {
    form.segunda.setText(u"MAYOR"_s);
    const QPoint izquierda(4, form.segunda.height() / 2);
    QTest::mouseClick(&form.segunda, Qt::LeftButton, {}, izquierda);
    QTest::mouseClick(&form.segunda, Qt::LeftButton, {}, izquierda,
                      QGuiApplication::styleHints()->mouseDoubleClickInterval() + 1);
    EXPECT_FALSE(form.segunda.hasSelectedText());
    EXPECT_EQ(form.segunda.cursorPosition(), 0);
}

TEST_F(CajaTextoTest, DraggingFromTheClickThatBringsTheFocusSelectsFromThere) {
    CajaTexto& otra = form.segunda;
    otra.setText(u"MAYOR"_s);
    const auto arrastrar = [&otra](QPoint hasta) {
        QMouseEvent mueve(QEvent::MouseMove, hasta, otra.mapToGlobal(hasta), Qt::NoButton, Qt::LeftButton,
                          {});
        QCoreApplication::sendEvent(&otra, &mueve);
    };
    const QPoint izquierda(4, otra.height() / 2);
    QTest::mousePress(&otra, Qt::LeftButton, {}, izquierda);
    arrastrar(izquierda + QPoint(1, 0));
    EXPECT_EQ(otra.selectedText(), u"MAYOR"_s);
    const QPoint mitad = izquierda + QPoint(otra.fontMetrics().horizontalAdvance(u"MAY"_s), 0);
    arrastrar(mitad);
    EXPECT_EQ(otra.selectedText(), otra.text().left(otra.cursorPositionAt(mitad)));
    EXPECT_LT(otra.selectedText().size(), otra.text().size());
    EXPECT_FALSE(otra.selectedText().isEmpty());
    QTest::mouseRelease(&otra, Qt::LeftButton, {}, mitad);
    EXPECT_LT(otra.selectedText().size(), otra.text().size());
}
