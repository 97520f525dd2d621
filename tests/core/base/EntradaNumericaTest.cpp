#include "core/base/EntradaNumerica.h"

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
};

constexpr int kEnteros = 11;

}  // namespace

TEST_F(EntradaNumericaTest, AMaskTellsHowManyWholeDigitsThereAre) {
    EXPECT_EQ(EnterosDeMascara(kMascaraImporte), 11);
    EXPECT_EQ(EnterosDeMascara(kMascaraTipo), 2);
    EXPECT_EQ(EnterosDeMascara(u"00000"), 5);
}

TEST_F(EntradaNumericaTest, ANumberInTheCourseOfEntryCanStandInTheBox) {
    for (const QString& texto : {QString(), u"-"_s, u","_s, u"-,"_s, u"1"_s, u"-1"_s, u"1,"_s, u",5"_s,
                                 u"1.234,50"_s, u".234,5"_s, u"12345678901"_s, u"12.345.678.901,99"_s}) {
        EXPECT_TRUE(EsEntradaNumerica(texto, kEnteros)) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, AnythingElseCannot) {
    for (const QString& texto : {u"1-"_s, u"--1"_s, u"1,2,3"_s, u",-1"_s, u"1,2.3"_s, u"a"_s, u"1 2"_s,
                                 u"1e5"_s, u"+1"_s, u"123456789012"_s, u"\u0661"_s}) {
        EXPECT_FALSE(EsEntradaNumerica(texto, kEnteros)) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, ThousandsMeanNothingToTheNumber) {
    EXPECT_EQ(LeerEntrada(u"1.234,50"), 1234.5);
    EXPECT_EQ(LeerEntrada(u".234,50"), 234.5);
    EXPECT_EQ(LeerEntrada(u"-1.23"), -123.0);
    EXPECT_EQ(LeerEntrada(u",5"), 0.5);
    EXPECT_EQ(LeerEntrada(u"5,"), 5.0);
}

TEST_F(EntradaNumericaTest, WithoutADigitThereIsNoNumber) {
    for (const QString& texto : {QString(), u"-"_s, u","_s, u"-,"_s, u"."_s}) {
        EXPECT_FALSE(LeerEntrada(texto).has_value()) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, ACommaGivesTheDecimalSeparatorOfTheSettings) {
    EXPECT_EQ(TeclaNumerica(u','), u","_s);
    EXPECT_EQ(TeclaNumerica(u'.'), QString());
    Inglesa();
    EXPECT_EQ(TeclaNumerica(u','), u"."_s);
    EXPECT_EQ(TeclaNumerica(u'.'), u"."_s);
}

TEST_F(EntradaNumericaTest, OnlyDigitsAndTheMinusAreTakenBesides) {
    EXPECT_EQ(TeclaNumerica(u'7'), u"7"_s);
    EXPECT_EQ(TeclaNumerica(u'-'), u"-"_s);
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
    EXPECT_EQ(LimpiarNumero(u"1 234 567,8"_s), u"1234567,8"_s);
    EXPECT_EQ(LimpiarNumero(u"1\u00A0234"_s), u"1234"_s);
    EXPECT_EQ(LimpiarNumero(u",5"_s), u",5"_s);
    EXPECT_EQ(LimpiarNumero(u"5,"_s), u"5"_s);
}

TEST_F(EntradaNumericaTest, WhatCouldMeanTwoNumbersIsRefused) {
    for (const QString& texto : {u"1.2"_s, u"1,234.56"_s, u"12.34,5"_s, u"1.2345"_s, u"1.234 567"_s, u"1 2"_s,
                                 u"1,2,3"_s, u"1234.567"_s, u"1\n2"_s}) {
        EXPECT_EQ(LimpiarNumero(texto), QString()) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, WhatIsNoNumberIsRefused) {
    for (const QString& texto : {QString(), u"-"_s, u"-,"_s, u"abc"_s, u"12abc"_s, u"1e5"_s, u"5-"_s,
                                 u"(5)"_s, u"5 %"_s, u"--5"_s, u"\u0661\u0662"_s, u"5 $"_s}) {
        EXPECT_EQ(LimpiarNumero(texto), QString()) << texto.toStdString();
    }
}

TEST_F(EntradaNumericaTest, TheSettingsTellWhichSeparatorIsWhich) {
    Inglesa();
    EXPECT_EQ(LimpiarNumero(u"1,234.56"_s), u"1234.56"_s);
    EXPECT_EQ(LimpiarNumero(u"1.234,56"_s), QString());
    EXPECT_EQ(LeerEntrada(u"1,234.56"), 1234.56);
    EXPECT_TRUE(EsEntradaNumerica(u"1,234.56", kEnteros));
}

RC_GTEST_FIXTURE_PROP(EntradaNumericaTest, WhatTheMaskShowsIsTakenBackAsTheSameNumber, ()) {
    const qint64 centesimas = *rc::gen::inRange<qint64>(-9'999'999'999'999, 10'000'000'000'000);
    const double numero = static_cast<double>(centesimas) / 100.0;
    const QString mostrado = Formatear(numero, kMascaraImporte);
    RC_ASSERT(EsEntradaNumerica(mostrado, kEnteros));
    RC_ASSERT(LeerEntrada(mostrado) == numero);
    RC_ASSERT(LeerEntrada(LimpiarNumero(mostrado)) == numero);
}

RC_GTEST_FIXTURE_PROP(EntradaNumericaTest, WhatIsCleanedCanBeEnteredAndRead, ()) {
    const auto caracteres =
        *rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"0123456789.,-+ €eE")));
    const QString limpio = LimpiarNumero(QString::fromStdU16String(caracteres));
    RC_ASSERT(limpio.isEmpty() || EsEntradaNumerica(limpio, static_cast<int>(limpio.size())));
    RC_ASSERT(limpio.isEmpty() || LeerEntrada(limpio).has_value());
    for (const QChar c : limpio) {
        RC_ASSERT(TeclaNumerica(c) == c);
    }
}
