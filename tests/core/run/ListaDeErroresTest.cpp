#include "core/run/ListaDeErrores.h"

#include <gtest/gtest.h>

#include <array>

#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class ListaDeErroresTest : public testing::Test {
  protected:
    void TearDown() override { Entorno().OffsetIdioma = 0; }
};

struct Falta {
    qint16 grupo;
    qint16 codigo;
};

Tabla Lista(std::initializer_list<Falta> faltas) {
    Tabla tabla(1, static_cast<int>(faltas.size()) - 1);
    int fila = 0;
    for (const Falta& falta : faltas) {
        tabla(0, fila) = falta.grupo;
        tabla(1, fila) = falta.codigo;
        ++fila;
    }
    return tabla;
}

QString Equis(int cuantas) { return QString(cuantas, u'x'); }

}  // namespace

TEST_F(ListaDeErroresTest, EachCodeHasItsTextInBothLanguages) {
    constexpr std::array kTextos{44, 45, 46, 52, 47, 48, 49, 50, 51, 78, 46, 91, 92, 93, 34, 43, 17, 12, 142};
    ASSERT_EQ(kTextos.size(), 19U);
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        for (std::size_t codigo = 0; codigo < kTextos.size(); ++codigo) {
            EXPECT_EQ(TextoDeCodigo(static_cast<int>(codigo)), TextoDeFila(kTextos.at(codigo) + offset))
                << codigo;
        }
    }
}

TEST_F(ListaDeErroresTest, Code9IsTheBareNameOfTheFieldAndCode10RepeatsCode2) {
    EXPECT_EQ(TextoDeCodigo(9), u"Fecha de presentación"_s);
    EXPECT_EQ(TextoDeCodigo(10), u"No se ha especificado el domicilio del declarante"_s);
    EXPECT_EQ(TextoDeCodigo(10), TextoDeCodigo(2));
}

TEST_F(ListaDeErroresTest, AnyOtherCodeGivesAnEmptyText) {
    for (const int codigo : {-1, 19, 20, 1000, -32768, 2147483647}) {
        EXPECT_EQ(TextoDeCodigo(codigo), QString()) << codigo;
    }
}

TEST_F(ListaDeErroresTest, ATextOf50CharactersWithoutABlankFrom50OnStaysOnOneLine) {
    const QString texto = Equis(20) + u' ' + Equis(29);
    ASSERT_EQ(texto.size(), 50);
    EXPECT_EQ(CortarEnLineas(texto), QStringList{texto});
}

TEST_F(ListaDeErroresTest, ABlankAtPosition49IsNoCutAndOneAtPosition50Is) {
    const QString en49 = Equis(48) + u' ' + Equis(30);
    EXPECT_EQ(CortarEnLineas(en49), QStringList{en49});
    const QString en50 = Equis(49) + u' ' + Equis(30);
    EXPECT_EQ(CortarEnLineas(en50), (QStringList{Equis(49), Equis(30)}));
}

TEST_F(ListaDeErroresTest, WithoutASecondCutTheRestIsTheSecondLineHoweverLong) {
    const QString resto = Equis(48) + u' ' + Equis(80);
    EXPECT_EQ(CortarEnLineas(Equis(49) + u' ' + resto), (QStringList{Equis(49), resto}))
        << "a blank at position 99 is no second cut";
}

TEST_F(ListaDeErroresTest, ASecondCutAtPosition100MakesThreeLinesAndThereIsNoFourth) {
    const QString tercera = Equis(60) + u' ' + Equis(60);
    const QString texto = Equis(49) + u' ' + Equis(49) + u' ' + tercera;
    EXPECT_EQ(CortarEnLineas(texto), (QStringList{Equis(49), Equis(49), tercera}));
}

TEST_F(ListaDeErroresTest, WithoutABlankFrom50To99TheSecondLineIsEmpty) {
    const QString texto = Equis(110) + u' ' + Equis(5);
    EXPECT_EQ(CortarEnLineas(texto), (QStringList{Equis(110), QString(), Equis(5)}));
}

TEST_F(ListaDeErroresTest, BlanksAtTheEndsOfALineGo) {
    EXPECT_EQ(CortarEnLineas(u"  hola "_s), QStringList{u"hola"_s});
    EXPECT_EQ(CortarEnLineas(Equis(49) + u"   "_s + Equis(5) + u' '), (QStringList{Equis(49), Equis(5)}));
    EXPECT_EQ(CortarEnLineas(QString()), QStringList{QString()});
}

TEST_F(ListaDeErroresTest, AFaultShowsItsRunningNumberOnItsFirstLineOnly) {
    EXPECT_EQ(LineasDeErrores(Lista({{1, 13}, {1, 1}})),
              (QStringList{u"1- Ya existe una declaración con el mismo ejercicio,"_s,
                           u"periodo y número de permiso para el declarante seleccionado"_s,
                           u"2- Falta el nombre del declarante"_s}));
}

TEST_F(ListaDeErroresTest, TheTextsAreInTheLanguageInForce) {
    Entorno().OffsetIdioma = 1000;
    EXPECT_EQ(LineasDeErrores(Lista({{0, 1}})), QStringList{u"1- Aitortzailearen izena falta da"_s});
}

TEST_F(ListaDeErroresTest, Group0ComesBeforeGroup2AndTheNumbersRunInTheShownOrder) {
    EXPECT_EQ(LineasDeErrores(Lista({{2, 1}, {0, 8}})),
              (QStringList{u"1- Falta el nombre del municipio"_s, u"2- Falta el nombre del declarante"_s}));
}

TEST_F(ListaDeErroresTest, WithinAGroupTheOrderOfTheListHoldsAndAMissingGroupIsPassedOver) {
    EXPECT_EQ(LineasDeErrores(Lista({{7, 6}, {2, 8}, {2, 1}, {7, 5}})),
              (QStringList{u"1- Falta el nombre del municipio"_s, u"2- Falta el nombre del declarante"_s,
                           u"3- El código postal es incorrecto"_s, u"4- Falta el nombre de la provincia"_s}));
}

TEST_F(ListaDeErroresTest, AFaultOfAnUnknownCodeKeepsItsNumberedLine) {
    EXPECT_EQ(LineasDeErrores(Lista({{0, 99}, {0, 1}})),
              (QStringList{u"1- "_s, u"2- Falta el nombre del declarante"_s}));
}

TEST_F(ListaDeErroresTest, AnEmptyFirstElementMeansThatThereAreNoFaults) {
    EXPECT_EQ(LineasDeErrores(Tabla(1, 0)), QStringList());
    EXPECT_EQ(LineasDeErrores(Tabla()), QStringList());
}
