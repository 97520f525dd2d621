#include "core/base/EntradaNumerica.h"

#include <cstdlib>
#include <vector>

#include "core/base/Formatos.h"
#include "core/base/Regional.h"
#include "core/records/Productos.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

class EntradaNumericaTest : public testing::Test {
  protected:
    void SetUp() override { FijarRegional({}); }
    void TearDown() override { FijarRegional({}); }

    static void Inglesa() { FijarRegional({.decimal = u'.', .grupo = u','}); }
    static void Francesa() { FijarRegional({.decimal = u',', .grupo = u'\u202F'}); }
};

constexpr int kEnteros = 11;

std::optional<double> Leer(const QString& texto) { return LeerEntrada(texto, kEnteros); }

/// The settings of systems: comma or point for the decimals; the other one, a blank or an apostrophe for the
/// thousands.
rc::Gen<ConfiguracionRegional> Regionales() {
    return rc::gen::elementOf(std::vector<ConfiguracionRegional>{{.decimal = u',', .grupo = u'.'},
                                                                 {.decimal = u'.', .grupo = u','},
                                                                 {.decimal = u',', .grupo = u'\u202F'},
                                                                 {.decimal = u',', .grupo = u'\u00A0'},
                                                                 {.decimal = u'.', .grupo = u'\u2019'},
                                                                 {.decimal = u'.', .grupo = u' '}});
}

/// Hundredths of an amount that the mask has room for.
rc::Gen<qint64> Centesimas() { return rc::gen::inRange<qint64>(-9'999'999'999'999, 10'000'000'000'000); }

/// An amount in writing: digits in groups of three, or in one piece for a null `grupo`, and two decimals, or
/// none of them for a null `decimal`.
QString Escrito(qint64 centesimas, QChar grupo, QChar decimal) {
    const auto valor = static_cast<quint64>(std::abs(centesimas));
    QString texto = QString::number(valor / 100);
    for (qsizetype sitio = texto.size() - 3; sitio > 0 && !grupo.isNull(); sitio -= 3) {
        texto.insert(sitio, grupo);
    }
    if (!decimal.isNull()) {
        texto += decimal + QString::number(valor % 100).rightJustified(2, u'0');
    }
    return (centesimas < 0 ? u"-"_s : QString()) + texto;
}

QString Digitos(const QString& texto) {
    QString digitos;
    for (const QChar c : texto) {
        if (c >= u'0' && c <= u'9') {
            digitos += c;
        }
    }
    return digitos;
}

}  // namespace

TEST_F(EntradaNumericaTest, AMaskTellsHowManyWholeDigitsThereAre) {
    EXPECT_EQ(EnterosDeMascara(kMascaraImporte), 11);
    EXPECT_EQ(EnterosDeMascara(kMascaraTipo), 2);
    EXPECT_EQ(EnterosDeMascara(u"00000"), 5);
}

TEST_F(EntradaNumericaTest, ANumberInTheCourseOfEntryCanStandInTheBox) {
    for (const QString& texto :
         {QString(), u"-"_s, u","_s, u"-,"_s, u"1"_s, u"-1"_s, u"1,"_s, u",5"_s, u"1.234,50"_s, u".234,5"_s,
          u"12345678901"_s, u"12.345.678.901,99"_s, u"12.5"_s, u"1.23.4"_s, u"1,5.000"_s, u"1,,2"_s}) {
        EXPECT_TRUE(EsEntradaNumerica(texto, kEnteros)) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, AnythingElseCannot) {
    for (const QString& texto : {u"1-"_s, u"--1"_s, u",-1"_s, u"a"_s, u"1 2"_s, u"1e5"_s, u"+1"_s,
                                 u"123456789012"_s, u"123456789012,5"_s, u"\u0661"_s}) {
        EXPECT_FALSE(EsEntradaNumerica(texto, kEnteros)) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, TheThousandsThatTheMaskShowsCanStandThereWhateverTheirSeparator) {
    Francesa();
    EXPECT_TRUE(EsEntradaNumerica(u"1\u202F234,50", kEnteros));
    EXPECT_EQ(Leer(u"1\u202F234,50"_s), 1234.5);
}

TEST_F(EntradaNumericaTest, TheDecimalSeparatorOfTheSettingsIsAlwaysTheDecimalOne) {
    EXPECT_EQ(Leer(u"12,5"_s), 12.5);
    EXPECT_EQ(Leer(u"1,234"_s), 1.234);
    EXPECT_EQ(Leer(u",5"_s), 0.5);
    EXPECT_EQ(Leer(u"5,"_s), 5.0);
    EXPECT_EQ(Leer(u"1,234,567"_s), std::nullopt);
    Inglesa();
    EXPECT_EQ(Leer(u"1.234"_s), 1.234);
    EXPECT_EQ(Leer(u"1.234.567"_s), std::nullopt);
}

TEST_F(EntradaNumericaTest, OfTwoKindsTheLastIsTheDecimalOne) {
    for (const auto& cambiar : {+[] { FijarRegional({}); }, +[] { Inglesa(); }}) {
        cambiar();
        EXPECT_EQ(Leer(u"1.234,50"_s), 1234.5);
        EXPECT_EQ(Leer(u"1,000.5"_s), 1000.5);
        EXPECT_EQ(Leer(u"-1,234,567.89"_s), -1234567.89);
        EXPECT_EQ(Leer(u"1.234,567"_s), 1234.567);
    }
}

TEST_F(EntradaNumericaTest, TheOthersMustMakeGroupsOfThree) {
    for (const QString& texto : {u"1,5.000"_s, u"12.34,5"_s, u"1234.567,8"_s, u".234,5"_s, u"1.2345,6"_s,
                                 u"1.,5"_s, u"1,234.567.890"_s, u"1.234,567.8"_s, u"0.234,5"_s}) {
        EXPECT_EQ(Leer(texto), std::nullopt) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, TheOtherKindAloneIsAGroupWhereItMakesWholeGroupsOfThree) {
    EXPECT_EQ(Leer(u"1.234"_s), 1234.0);
    EXPECT_EQ(Leer(u"-1.234.567"_s), -1234567.0);
    EXPECT_EQ(Leer(u"123.456"_s), 123456.0);
    Inglesa();
    EXPECT_EQ(Leer(u"1,234"_s), 1234.0);
    EXPECT_EQ(Leer(u"1,234,567"_s), 1234567.0);
}

TEST_F(EntradaNumericaTest, OtherwiseItIsTheDecimalOne) {
    EXPECT_EQ(Leer(u"12.5"_s), 12.5);
    EXPECT_EQ(Leer(u"1000.50"_s), 1000.5);
    EXPECT_EQ(Leer(u"1234.567"_s), 1234.567);
    EXPECT_EQ(Leer(u".5"_s), 0.5);
    EXPECT_EQ(Leer(u"5."_s), 5.0);
    // No thousands begin with a zero.
    EXPECT_EQ(Leer(u"0.234"_s), 0.234);
    Inglesa();
    EXPECT_EQ(Leer(u"12,5"_s), 12.5);
}

TEST_F(EntradaNumericaTest, WhatCannotBeReadIsNoNumber) {
    for (const QString& texto :
         {QString(), u"-"_s, u","_s, u"-,"_s, u"."_s, u"1.23.4"_s, u"1..2"_s, u"1,,2"_s, u"1.234.56"_s,
          u"12.345.678.901.234"_s, u"1 2"_s, u"1.234 567"_s}) {
        EXPECT_EQ(Leer(texto), std::nullopt) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, DigitsPointsCommasAndTheMinusAreTakenAsTheyAreTyped) {
    for (const QChar c : u"0123456789.,-"_s) {
        EXPECT_EQ(TeclaNumerica(c), QString(c));
        Inglesa();
        EXPECT_EQ(TeclaNumerica(c), QString(c));
        FijarRegional({});
    }
    for (const QChar c : u"+eE x€\u0661"_s) {
        EXPECT_EQ(TeclaNumerica(c), QString());
    }
}

TEST_F(EntradaNumericaTest, ANumberFromElsewhereIsCleaned) {
    EXPECT_EQ(LimpiarNumero(u"12,34"_s), u"12,34"_s);
    EXPECT_EQ(LimpiarNumero(u" 1.234,50 €\r\n"_s), u"1234,50"_s);
    EXPECT_EQ(LimpiarNumero(u"€ 12"_s), u"12"_s);
    EXPECT_EQ(LimpiarNumero(u"-1.234.567"_s), u"-1234567"_s);
    EXPECT_EQ(LimpiarNumero(u"\u22125,5"_s), u"-5,5"_s);
    EXPECT_EQ(LimpiarNumero(u"+5"_s), u"5"_s);
    EXPECT_EQ(LimpiarNumero(u"12.5"_s), u"12,5"_s);
    EXPECT_EQ(LimpiarNumero(u"1,234.56"_s), u"1234,56"_s);
    Inglesa();
    EXPECT_EQ(LimpiarNumero(u"1.234,56"_s), u"1234.56"_s);
}

TEST_F(EntradaNumericaTest, BlanksOfWhateverWidthAreGroups) {
    for (const QChar blanco : u" \u00A0\u202F\u2009"_s) {
        const auto con = [blanco](QString texto) { return Leer(texto.replace(u'_', blanco)); };
        EXPECT_EQ(con(u"1_234_567,8"_s), 1234567.8);
        EXPECT_EQ(con(u"1_234.56"_s), 1234.56);
        EXPECT_EQ(con(u"1_234"_s), 1234.0);
        EXPECT_EQ(con(u"1_2"_s), std::nullopt);
        EXPECT_EQ(con(u"12_345_67"_s), std::nullopt);
    }
}

TEST_F(EntradaNumericaTest, WhatIsNoNumberIsRefused) {
    for (const QString& texto : {u"abc"_s, u"12abc"_s, u"1e5"_s, u"5-"_s, u"(5)"_s, u"5 %"_s, u"--5"_s,
                                 u"\u0661\u0662"_s, u"5 $"_s, u"1\n2"_s, u"- 5"_s, u"12 de mayo"_s}) {
        EXPECT_EQ(LimpiarNumero(texto), QString()) << texto.toStdString();
    }
}

RC_GTEST_FIXTURE_PROP(EntradaNumericaTest, EveryAmountComesBackAsItselfInWhateverWayItIsWritten, ()) {
    const ConfiguracionRegional regional = *Regionales();
    FijarRegional(regional);
    const qint64 centesimas = *Centesimas();
    const QChar decimal = *rc::gen::element<QChar>(u',', u'.');
    const QChar grupo =
        *rc::gen::element<QChar>(QChar(), u',', u'.', regional.grupo, u' ', u'\u00A0', u'\u202F', u'\u2009');
    RC_PRE(grupo != decimal);
    RC_ASSERT(Leer(Escrito(centesimas, grupo, decimal)) == static_cast<double>(centesimas) / 100.0);
}

RC_GTEST_FIXTURE_PROP(EntradaNumericaTest, SoDoesEveryWholeAmountWithThousands, ()) {
    const ConfiguracionRegional regional = *Regionales();
    FijarRegional(regional);
    const qint64 unidades = *Centesimas() / 100;
    const QChar grupo =
        *rc::gen::element<QChar>(QChar(), u',', u'.', regional.grupo, u' ', u'\u00A0', u'\u202F', u'\u2009');
    RC_PRE(grupo != regional.decimal);
    RC_ASSERT(Leer(Escrito(unidades * 100, grupo, QChar())) == static_cast<double>(unidades));
}

RC_GTEST_FIXTURE_PROP(EntradaNumericaTest, WhatTheMaskShowsIsTakenBackAsTheSameNumber, ()) {
    FijarRegional(*Regionales());
    const double numero = static_cast<double>(*Centesimas()) / 100.0;
    const QString mostrado = Formatear(numero, kMascaraImporte);
    RC_ASSERT(EsEntradaNumerica(mostrado, kEnteros));
    RC_ASSERT(Leer(mostrado) == numero);
    RC_ASSERT(Leer(LimpiarNumero(mostrado)) == numero);
}

RC_GTEST_FIXTURE_PROP(EntradaNumericaTest, NoDigitIsEverDroppedOrJoined, ()) {
    FijarRegional(*Regionales());
    QString texto;
    for (int i = *rc::gen::inRange(1, 5); i > 0; --i) {
        texto +=
            QString::number(*rc::gen::inRange(0, 2000)) + *rc::gen::element<QString>(u"."_s, u","_s, u" "_s);
    }
    texto.chop(*rc::gen::inRange(0, 2));
    texto = texto.trimmed();
    const QString limpio = LimpiarNumero(texto);
    if (limpio.isEmpty()) {
        return;
    }
    RC_ASSERT(Digitos(limpio) == Digitos(texto));
    RC_ASSERT(EsEntradaNumerica(limpio, static_cast<int>(limpio.size())));
    RC_ASSERT(LeerEntrada(limpio, static_cast<int>(limpio.size())).has_value());
    const qsizetype decimal = limpio.indexOf(Regional().decimal);
    const QString decimales = limpio.mid(decimal + 1);
    RC_ASSERT(decimal < 0 || texto.endsWith(QString(u',') + decimales) ||
              texto.endsWith(QString(u'.') + decimales));
}
