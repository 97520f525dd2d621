#include "forms/widgets/ListaZT.h"

#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <array>

#include "forms/widgets/Colocacion.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/EsperarActiva.h"

using namespace Qt::StringLiterals;

namespace {

class ListaZTTest : public testing::Test {
  protected:
    ListaZTTest() {
        lista.resize(400, 200);
        QObject::connect(&lista, &ListaZT::Click, [this] { Anotar(u"Click"_s); });
        QObject::connect(&lista, &ListaZT::DblClick, [this] { Anotar(u"DblClick"_s); });
        QObject::connect(&lista, &ListaZT::KeyUp, [this](int tecla) {
            Anotar(u"KeyUp "_s + QKeySequence(tecla).toString(QKeySequence::PortableText));
        });
        QObject::connect(&lista, &ListaZT::KeyPress, [this](int& tecla) {
            Anotar(u"KeyPress "_s + QString::number(tecla));
            tecla = filtro ? filtro(tecla) : tecla;
        });
    }

    /// Writes an event down with the item that is selected at that moment.
    void Anotar(const QString& suceso) { diario += suceso + u" @"_s + QString::number(lista.Seleccionado()); }

    void Llenar(const QStringList& textos) {
        for (const QString& texto : textos) {
            lista.Anadir(u"c"_s + QString::number(lista.Cuenta() + 1), texto);
        }
    }

    void Mostrar() {
        lista.show();
        lista.activateWindow();
        lista.setFocus();
        ASSERT_TRUE(EsperarActiva(&lista));
    }

    QStringList Textos() const {
        QStringList textos;
        for (int i = 1; i <= lista.Cuenta(); ++i) {
            textos += lista.Texto(i);
        }
        return textos;
    }

    QPoint CentroDe(int i) const { return lista.visualRect(lista.model()->index(i - 1, 0)).center(); }

    void Pulsar(int i, Qt::MouseButton boton = Qt::LeftButton) {
        QTest::mouseClick(lista.viewport(), boton, {}, CentroDe(i));
    }

    ListaZT lista;
    QStringList diario;
    std::function<int(int)> filtro;
};

/// With the table of texts at hand.
class ColumnasDeListaTest : public EntornoDePrueba {
  protected:
    ListaZT lista;
};

}  // namespace

TEST_F(ListaZTTest, ItemsCountFromOneWithKeyTextAndSubitems) {
    EXPECT_EQ(lista.Anadir(u"c1"_s, u"uno"_s, {u"a"_s, u"b"_s}), 1);
    EXPECT_EQ(lista.Anadir(u"c2"_s, u"dos"_s), 2);
    EXPECT_EQ(lista.Cuenta(), 2);
    EXPECT_EQ(lista.Clave(1), u"c1"_s);
    EXPECT_EQ(lista.Texto(2), u"dos"_s);
    EXPECT_EQ(lista.Subitem(1, 2), u"b"_s);
    EXPECT_EQ(lista.Subitem(2, 1), QString());
    lista.PonerSubitem(2, 3, u"tres"_s);
    EXPECT_EQ(lista.Subitem(2, 3), u"tres"_s);
    EXPECT_EQ(lista.Subitem(2, 2), QString());
}

TEST_F(ListaZTTest, AKeyThatIsThereAlreadyIsRefusedAndNothingIsAdded) {
    lista.Anadir(u"c1"_s, u"uno"_s);
    EXPECT_EQ(NumeroDelError([&] { lista.Anadir(u"c1"_s, u"otro"_s); }), 35602);
    EXPECT_EQ(Textos(), QStringList{u"uno"_s});
}

TEST_F(ListaZTTest, ItemsWithoutAKeyCanRepeat) {
    lista.Anadir({}, u"uno"_s);
    lista.Anadir({}, u"dos"_s);
    EXPECT_EQ(lista.Cuenta(), 2);
}

TEST_F(ListaZTTest, AKeyIsFreeAgainOnceItsItemIsGone) {
    Llenar({u"uno"_s, u"dos"_s});
    lista.Quitar(1);
    EXPECT_EQ(Textos(), QStringList{u"dos"_s});
    lista.Anadir(u"c1"_s, u"otra vez"_s);
    lista.Limpiar();
    EXPECT_EQ(lista.Cuenta(), 0);
    EXPECT_EQ(lista.Anadir(u"c2"_s, u"otra vez"_s), 1);
}

TEST_F(ListaZTTest, AnItemOrColumnOutsideTheListIsARunTimeFailure) {
    Llenar({u"uno"_s});
    for (const int i : {-1, 0, 2}) {
        EXPECT_EQ(NumeroDelError([&] { (void)lista.Texto(i); }), 9) << i;
        EXPECT_EQ(NumeroDelError([&] { (void)lista.Clave(i); }), 9) << i;
        EXPECT_EQ(NumeroDelError([&] { lista.Seleccionar(i); }), 9) << i;
        EXPECT_EQ(NumeroDelError([&] { lista.AsegurarVisible(i); }), 9) << i;
        EXPECT_EQ(NumeroDelError([&] { lista.Quitar(i); }), 9) << i;
        EXPECT_EQ(NumeroDelError([&] { (void)lista.AnchoColumna(i); }), i == 1 ? 0 : 9) << i;
    }
    EXPECT_EQ(NumeroDelError([&] { lista.PonerSubitem(1, -1, u"x"_s); }), 9);
    EXPECT_EQ(NumeroDelError([&] { lista.ClaveOrden(-1); }), 9);
}

TEST_F(ListaZTTest, AnItemIsFoundByItsWholeKey) {
    Llenar({u"uno"_s, u"dos"_s, u"tres"_s});
    EXPECT_EQ(lista.Buscar(u"c3"_s), 3);
    EXPECT_EQ(lista.Buscar(u"c"_s), 0);
    EXPECT_EQ(lista.Buscar(u"C3"_s), 0);
}

TEST_F(ListaZTTest, AnItemIsFoundByItsWholeText) {
    Llenar({u"12"_s, u"1"_s, u"2"_s, u"1"_s});
    EXPECT_EQ(lista.BuscarTexto(u"1"_s), 2);
    EXPECT_EQ(lista.BuscarTexto(u"3"_s), 0);
}

TEST_F(ListaZTTest, TheKeyOfTheSelectedItemIsTheNumberOfItsText) {
    EXPECT_EQ(NumeroDelError([&] { (void)lista.ClaveElegida(); }), 91);
    Llenar({u"0007"_s, u"70000"_s, u"uno"_s});
    EXPECT_EQ(lista.ClaveElegida(), 7);
    lista.Seleccionar(2);
    EXPECT_EQ(lista.ClaveElegida(), 70000);
    lista.Seleccionar(3);
    EXPECT_EQ(NumeroDelError([&] { (void)lista.ClaveElegida(); }), 13);
}

TEST_F(ColumnasDeListaTest, ColumnsOfTheTableOfTextsComeAfterAHiddenOneForTheKey) {
    Entorno().OffsetIdioma = kOffsetEuskera;
    const std::array columnas{ListaZT::Columna{Id::Domicilio},
                              ListaZT::Columna{Id::Ejercicio, 2000, Qt::AlignTrailing}};
    lista.PonerColumnas(columnas);
    ASSERT_EQ(lista.CuentaColumnas(), 3);
    EXPECT_EQ(lista.ClaveColumna(1), u"Clave"_s);
    EXPECT_EQ(lista.AnchoColumna(1), 0);
    EXPECT_EQ(lista.ClaveColumna(2), u"Helbidea"_s);
    EXPECT_EQ(lista.AnchoColumna(2), TwipsAPixeles(ListaZT::kAnchoDeColumna, lista));
    EXPECT_EQ(lista.ClaveColumna(3), u"Ekitaldia "_s);
    EXPECT_EQ(lista.model()->headerData(2, Qt::Horizontal).toString(), u"Ekitaldia"_s);
    EXPECT_EQ(lista.AnchoColumna(3), TwipsAPixeles(2000, lista));
}

TEST_F(ListaZTTest, AWidthInTwipsIsFifteenToAPixelForTheTypeItWasDrawnFor) {
    QFont letra = lista.font();
    letra.setPixelSize(11);
    lista.setFont(letra);
    lista.AnadirColumna(u"a"_s, u"A"_s, 2000);
    lista.AnadirColumna(u"b"_s, u"B"_s);
    EXPECT_EQ(lista.AnchoColumna(1), 133);
    EXPECT_EQ(lista.AnchoColumna(2), 96);
    EXPECT_EQ(lista.AnchoColumnas(), 229);
}

TEST_F(ListaZTTest, LargerTypeHasWiderColumns) {
    QFont letra = lista.font();
    letra.setPixelSize(22);
    lista.setFont(letra);
    lista.AnadirColumna(u"a"_s, u"A"_s, 1500);
    EXPECT_EQ(lista.AnchoColumna(1), 200);
}

TEST_F(ListaZTTest, AHiddenColumnHasNoWidthAndKeepsItsTexts) {
    lista.AnadirColumna(u"Clave"_s, {}, ListaZT::kAnchoDeColumna, true);
    lista.AnadirColumna(u"Nombre"_s, u"Nombre"_s, 1500);
    lista.Anadir({}, u"0007"_s, {u"ANA"_s});
    EXPECT_EQ(lista.AnchoColumna(1), 0);
    EXPECT_EQ(lista.AnchoColumnas(), lista.AnchoColumna(2));
    EXPECT_EQ(lista.Texto(1), u"0007"_s);
    EXPECT_EQ(lista.CuentaColumnas(), 2);
    EXPECT_EQ(lista.ClaveColumna(1), u"Clave"_s);
}

TEST_F(ListaZTTest, HeadersShowTheTextsOfTheColumnsWithTheirAlignment) {
    lista.AnadirColumna(u"k"_s, u"Nombre"_s);
    lista.AnadirColumna(u"c"_s, u"Cuota"_s, 2000, false, Qt::AlignRight);
    lista.Anadir({}, u"x"_s, {u"1,00"_s});
    const QAbstractItemModel& modelo = *lista.model();
    EXPECT_EQ(modelo.headerData(0, Qt::Horizontal).toString(), u"Nombre"_s);
    EXPECT_EQ(modelo.headerData(1, Qt::Horizontal).toString(), u"Cuota"_s);
    const auto alineacion = modelo.index(0, 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    EXPECT_TRUE(alineacion.testFlag(Qt::AlignRight));
}

TEST_F(ListaZTTest, AListWithoutColumnsShowsTheTextsInItsWholeWidth) {
    Llenar({u"uno"_s});
    Mostrar();
    EXPECT_EQ(lista.CuentaColumnas(), 0);
    EXPECT_EQ(lista.AnchoColumna(1), lista.viewport()->width());
}

TEST_F(ListaZTTest, TheColumnsCanBeMadeAnewUnderTheSameItems) {
    Llenar({u"uno"_s});
    lista.AnadirColumna(u"a"_s, u"A"_s, 500, true);
    lista.AnadirColumna(u"b"_s, u"B"_s);
    lista.LimpiarColumnas();
    EXPECT_EQ(lista.CuentaColumnas(), 0);
    lista.AnadirColumna(u"c"_s, u"C"_s);
    EXPECT_EQ(lista.CuentaColumnas(), 1);
    EXPECT_GT(lista.AnchoColumna(1), 0);
    EXPECT_EQ(Textos(), QStringList{u"uno"_s});
}

TEST_F(ListaZTTest, AskingAnEmptyListForItsSelectedItemIsARunTimeFailure) {
    EXPECT_EQ(NumeroDelError([&] { (void)lista.Seleccionado(); }), 91);
    Llenar({u"uno"_s});
    lista.Limpiar();
    EXPECT_EQ(NumeroDelError([&] { (void)lista.Seleccionado(); }), 91);
}

TEST_F(ListaZTTest, TheSelectedItemOfAListThatNobodyTouchedIsItsFirstRowAndNotMarked) {
    Llenar({u"uno"_s, u"dos"_s});
    EXPECT_EQ(lista.Seleccionado(), 1);
    EXPECT_FALSE(lista.Marcado(1));
    Mostrar();
    EXPECT_EQ(lista.Seleccionado(), 1);
    EXPECT_FALSE(lista.Marcado(1));
}

TEST_F(ListaZTTest, SelectingAnItemMarksItAlone) {
    Llenar({u"uno"_s, u"dos"_s, u"tres"_s});
    lista.Seleccionar(2);
    lista.Seleccionar(3);
    EXPECT_EQ(lista.Seleccionado(), 3);
    EXPECT_TRUE(lista.Marcado(3));
    EXPECT_FALSE(lista.Marcado(2));
}

TEST_F(ListaZTTest, MarkingTheSelectedItemLeavesItTheSelectedOne) {
    Llenar({u"uno"_s, u"dos"_s});
    lista.Marcar(lista.Seleccionado());
    EXPECT_TRUE(lista.Marcado(1));
    EXPECT_EQ(lista.Seleccionado(), 1);
    lista.Marcar(2);
    EXPECT_FALSE(lista.Marcado(1));
}

TEST_F(ListaZTTest, AListOfSeveralMarksKeepsThemAll) {
    Llenar({u"uno"_s, u"dos"_s, u"tres"_s});
    lista.setSelectionMode(QAbstractItemView::ExtendedSelection);
    lista.Marcar(1);
    lista.Marcar(3);
    EXPECT_TRUE(lista.Marcado(1));
    EXPECT_FALSE(lista.Marcado(2));
    EXPECT_TRUE(lista.Marcado(3));
}

TEST_F(ListaZTTest, TheOrderIsThatOfSpanishWithEnyeAfterEneAndCapitalsLikeSmallLetters) {
    Llenar({u"OCA"_s, u"ñandú"_s, u"nz"_s, u"Zar"_s, u"NA"_s, u"álamo"_s, u"ANA"_s});
    lista.Ordenado(true);
    EXPECT_EQ(Textos(),
              (QStringList{u"álamo"_s, u"ANA"_s, u"NA"_s, u"nz"_s, u"ñandú"_s, u"OCA"_s, u"Zar"_s}));
}

TEST_F(ListaZTTest, EqualsStayInTheOrderInWhichTheyCame) {
    for (const QString& texto : {u"b"_s, u"a"_s, u"A"_s, u"B"_s, u"a"_s}) {
        lista.Anadir({}, texto, {QString::number(lista.Cuenta() + 1)});
    }
    lista.Ordenado(true);
    QStringList llegada;
    for (int i = 1; i <= lista.Cuenta(); ++i) {
        llegada += lista.Subitem(i, 1);
    }
    EXPECT_EQ(llegada, (QStringList{u"2"_s, u"3"_s, u"5"_s, u"1"_s, u"4"_s}));
}

TEST_F(ListaZTTest, TheOrderFollowsTheSubitemAskedFor) {
    lista.Anadir({}, u"1"_s, {u"x"_s, u"b"_s});
    lista.Anadir({}, u"2"_s, {u"y"_s, u"a"_s});
    lista.Anadir({}, u"3"_s, {u"w"_s});
    lista.ClaveOrden(1);
    EXPECT_EQ(Textos(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    lista.Ordenado(true);
    EXPECT_EQ(Textos(), (QStringList{u"3"_s, u"1"_s, u"2"_s}));
    lista.ClaveOrden(2);
    EXPECT_EQ(Textos(), (QStringList{u"3"_s, u"2"_s, u"1"_s}));
    EXPECT_EQ(lista.ClaveOrden(), 2);
}

TEST_F(ListaZTTest, AnOrderedListTakesNewAndChangedItemsToTheirPlace) {
    Llenar({u"d"_s, u"b"_s});
    lista.Ordenado(true);
    EXPECT_EQ(lista.Anadir({}, u"c"_s), 2);
    EXPECT_EQ(lista.Anadir({}, u"b"_s, {u"segunda"_s}), 2);
    EXPECT_EQ(Textos(), (QStringList{u"b"_s, u"b"_s, u"c"_s, u"d"_s}));
    lista.ClaveOrden(1);
    lista.PonerSubitem(1, 1, u"zzz"_s);
    EXPECT_EQ(lista.Subitem(4, 1), u"zzz"_s);
}

TEST_F(ListaZTTest, SwitchingTheOrderOffLeavesTheItemsWhereTheyAre) {
    Llenar({u"b"_s, u"a"_s});
    lista.Ordenado(true);
    lista.Ordenado(false);
    EXPECT_FALSE(lista.Ordenado());
    EXPECT_EQ(lista.Anadir({}, u"0"_s), 3);
    EXPECT_EQ(Textos(), (QStringList{u"a"_s, u"b"_s, u"0"_s}));
}

TEST_F(ListaZTTest, TheSelectedItemStaysTheSameOneWhenTheOrderChanges) {
    Llenar({u"c"_s, u"b"_s, u"a"_s});
    lista.Seleccionar(1);
    lista.Ordenado(true);
    EXPECT_EQ(lista.Seleccionado(), 3);
    EXPECT_TRUE(lista.Marcado(3));
    EXPECT_FALSE(lista.Marcado(1));
}

TEST_F(ListaZTTest, ArrowsHomeAndEndMoveAndMarkTheSelection) {
    Llenar({u"uno"_s, u"dos"_s, u"tres"_s, u"cuatro"_s});
    Mostrar();
    QTest::keyClick(&lista, Qt::Key_Down);
    QTest::keyClick(&lista, Qt::Key_End);
    QTest::keyClick(&lista, Qt::Key_Up);
    QTest::keyClick(&lista, Qt::Key_Home);
    EXPECT_EQ(diario,
              (QStringList{u"KeyUp Down @2"_s, u"KeyUp End @4"_s, u"KeyUp Up @3"_s, u"KeyUp Home @1"_s}));
    EXPECT_TRUE(lista.Marcado(1));
}

TEST_F(ListaZTTest, TypedLettersLookForAnItemInTheFirstColumnThatIsSeen) {
    lista.AnadirColumna(u"Clave"_s, {}, 500, true);
    lista.AnadirColumna(u"NIF"_s, u"NIF"_s);
    lista.AnadirColumna(u"Nombre"_s, u"Nombre"_s);
    lista.Anadir({}, u"M"_s, {u"1"_s, u"ANA"_s});
    lista.Anadir({}, u"M"_s, {u"2"_s, u"MIREN"_s});
    lista.Anadir({}, u"M"_s, {u"M3"_s, u"LUIS"_s});
    Mostrar();
    QTest::keyClick(&lista, 'm');
    EXPECT_EQ(lista.Seleccionado(), 3);
    EXPECT_TRUE(lista.Marcado(3));
}

TEST_F(ListaZTTest, TypedLettersOfAnOrderedListLookInTheColumnOfTheOrder) {
    lista.AnadirColumna(u"NIF"_s, u"NIF"_s);
    lista.AnadirColumna(u"Nombre"_s, u"Nombre"_s);
    lista.Anadir({}, u"M1"_s, {u"ANA"_s});
    lista.Anadir({}, u"B2"_s, {u"MIREN"_s});
    lista.Anadir({}, u"C3"_s, {u"MAITE"_s});
    lista.ClaveOrden(1);
    lista.Ordenado(true);
    Mostrar();
    QTest::keyClicks(&lista, u"mi"_s);
    EXPECT_EQ(lista.Subitem(lista.Seleccionado(), 1), u"MIREN"_s);
}

TEST_F(ListaZTTest, AKeyIsReportedBeforeTheListActsOnIt) {
    Llenar({u"ana"_s, u"berta"_s});
    Mostrar();
    QTest::keyClick(&lista, 'b');
    EXPECT_EQ(diario, (QStringList{u"KeyPress 98 @1"_s, u"KeyUp B @2"_s}));
}

TEST_F(ListaZTTest, ADroppedKeyDoesNothingAndAChangedOneActsAsTheNewOne) {
    Llenar({u"ana"_s, u"berta"_s, u"carla"_s});
    Mostrar();
    filtro = [](int) { return 0; };
    QTest::keyClick(&lista, 'b');
    EXPECT_EQ(lista.Seleccionado(), 1);
    filtro = [](int) { return int{'C'}; };
    QTest::keyClick(&lista, 'b');
    EXPECT_EQ(lista.Seleccionado(), 3);
}

TEST_F(ListaZTTest, EnterEscapeSpaceAndBackspaceAreReportedByTheirCodes) {
    Llenar({u"uno"_s});
    Mostrar();
    for (const Qt::Key tecla :
         {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Backspace}) {
        QTest::keyPress(&lista, tecla);
    }
    EXPECT_EQ(diario, (QStringList{u"KeyPress 13 @1"_s, u"KeyPress 13 @1"_s, u"KeyPress 27 @1"_s,
                                   u"KeyPress 32 @1"_s, u"KeyPress 8 @1"_s}));
}

TEST_F(ListaZTTest, KeysWithoutACharacterAndCommandsAreNotReportedAsCharacters) {
    Llenar({u"uno"_s});
    Mostrar();
    QTest::keyPress(&lista, Qt::Key_Down);
    QTest::keyPress(&lista, Qt::Key_F5);
    QTest::keyPress(&lista, Qt::Key_C, Qt::ControlModifier);
    QTest::keyPress(&lista, Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(diario, QStringList());
}

TEST_F(ListaZTTest, AHeldKeyIsReleasedOnce) {
    Llenar({u"uno"_s, u"dos"_s, u"tres"_s});
    Mostrar();
    for (const bool repite : {true, false}) {
        QKeyEvent pulsa(QEvent::KeyPress, Qt::Key_Down, {}, {}, repite);
        QCoreApplication::sendEvent(&lista, &pulsa);
        QKeyEvent suelta(QEvent::KeyRelease, Qt::Key_Down, {}, {}, repite);
        QCoreApplication::sendEvent(&lista, &suelta);
    }
    EXPECT_EQ(diario, QStringList{u"KeyUp Down @3"_s});
}

TEST_F(ListaZTTest, AClickComesOnReleaseWithTheSelectionMoved) {
    Llenar({u"uno"_s, u"dos"_s});
    Mostrar();
    QTest::mousePress(lista.viewport(), Qt::LeftButton, {}, CentroDe(2));
    EXPECT_EQ(diario, QStringList());
    QTest::mouseRelease(lista.viewport(), Qt::LeftButton, {}, CentroDe(2));
    EXPECT_EQ(diario, QStringList{u"Click @2"_s});
    EXPECT_TRUE(lista.Marcado(2));
}

TEST_F(ListaZTTest, AClickOnTheSelectedItemIsAClickToo) {
    Llenar({u"uno"_s});
    Mostrar();
    lista.Seleccionar(1);
    Pulsar(1);
    EXPECT_EQ(diario, QStringList{u"Click @1"_s});
}

TEST_F(ListaZTTest, ADragEndsInAClickOnTheItemWhereItEnds) {
    Llenar({u"uno"_s, u"dos"_s, u"tres"_s});
    Mostrar();
    QTest::mousePress(lista.viewport(), Qt::LeftButton, {}, CentroDe(1));
    QMouseEvent mueve(QEvent::MouseMove, CentroDe(3), lista.viewport()->mapToGlobal(CentroDe(3)),
                      Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(lista.viewport(), &mueve);
    QTest::mouseRelease(lista.viewport(), Qt::LeftButton, {}, CentroDe(3));
    EXPECT_EQ(diario, QStringList{u"Click @3"_s});
}

TEST_F(ListaZTTest, TheEmptyPartOfTheListAndOtherButtonsAreNoClick) {
    Llenar({u"uno"_s, u"dos"_s});
    Mostrar();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, {10, lista.viewport()->height() - 2});
    Pulsar(2, Qt::RightButton);
    EXPECT_EQ(diario, QStringList());
}

TEST_F(ListaZTTest, ADoubleClickComesAfterTheOneClickOfItsFirstHalf) {
    Llenar({u"uno"_s, u"dos"_s});
    Mostrar();
    Pulsar(2);
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, CentroDe(2));
    EXPECT_EQ(diario.count(u"DblClick @2"_s), 1);
    EXPECT_EQ(diario.first(), u"Click @2"_s);
    EXPECT_EQ(diario.last(), u"DblClick @2"_s);
}

TEST_F(ListaZTTest, AnItemOutOfSightIsScrolledTo) {
    for (int i = 1; i <= 200; ++i) {
        lista.Anadir({}, QString::number(i));
    }
    Mostrar();
    lista.AsegurarVisible(150);
    EXPECT_TRUE(lista.viewport()->rect().contains(CentroDe(150)));
    EXPECT_EQ(lista.Seleccionado(), 1);
}

TEST_F(ListaZTTest, CellsAreNotEdited) {
    Llenar({u"uno"_s});
    EXPECT_FALSE(lista.model()->flags(lista.model()->index(0, 0)).testFlag(Qt::ItemIsEditable));
}

TEST_F(ListaZTTest, APickListDropsDownWithUpToEightItemsWhole) {
    Llenar({u"uno"_s});
    const int una = lista.TamanoDesplegada().height();
    Llenar({u"dos"_s, u"tres"_s});
    const int tres = lista.TamanoDesplegada().height();
    Llenar({u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s});
    const int ocho = lista.TamanoDesplegada().height();
    Llenar({u"9"_s, u"10"_s});
    EXPECT_EQ((tres - una) * 7, (ocho - una) * 2);
    EXPECT_EQ(lista.TamanoDesplegada().height(), ocho);
    lista.resize(lista.TamanoDesplegada());
    Mostrar();
    EXPECT_EQ(lista.viewport()->height(), 8 * lista.visualRect(lista.model()->index(0, 0)).height());
    EXPECT_FALSE(lista.horizontalScrollBar()->isVisible());
}

TEST_F(ListaZTTest, ScreenReadersAreToldTheNameAndTheTexts) {
    Llenar({u"uno"_s, u"dos"_s});
    lista.setAccessibleName(u"Provincias"_s);
    Mostrar();
    QAccessibleInterface* accesible = QAccessible::queryAccessibleInterface(&lista);
    ASSERT_NE(accesible, nullptr);
    EXPECT_EQ(accesible->text(QAccessible::Name), u"Provincias"_s);
    ASSERT_NE(accesible->tableInterface(), nullptr);
    EXPECT_EQ(accesible->tableInterface()->rowCount(), 2);
    EXPECT_EQ(accesible->tableInterface()->cellAt(1, 0)->text(QAccessible::Name), u"dos"_s);
}
