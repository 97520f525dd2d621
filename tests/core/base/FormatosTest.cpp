#include "core/base/Conversiones.h"
#include "core/base/Formatos.h"

#include "core/base/Regional.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class FormatosTest : public testing::Test {
  protected:
    void SetUp() override { FijarRegional({}); }
    void TearDown() override { FijarRegional({}); }
};

}  // namespace

TEST_F(FormatosTest, MoneyMaskSeparatesThousandsAndShowsTwoDecimals) {
    constexpr auto kDinero = u"##,###,###,##0.00";
    EXPECT_EQ(Formatear(Valor(0.0), kDinero), u"0,00"_s);
    EXPECT_EQ(Formatear(Valor(1234567.891), kDinero), u"1.234.567,89"_s);
    EXPECT_EQ(Formatear(Valor(-1234.5), kDinero), u"-1.234,50"_s);
    EXPECT_EQ(Formatear(Valor(999.995), kDinero), u"1.000,00"_s);
    EXPECT_EQ(Formatear(Valor(123.0), kDinero), u"123,00"_s);
    EXPECT_EQ(Formatear(Valor(12345678901234.0), kDinero), u"12.345.678.901.234,00"_s);
}

TEST_F(FormatosTest, HalvesOfTheSignificantDigitsRoundAwayFromZero) {
    EXPECT_EQ(Formatear(Valor(2.675), u"0.00"), u"2,68"_s);
    EXPECT_EQ(Formatear(Valor(1.005), u"0.00"), u"1,01"_s);
    EXPECT_EQ(Formatear(Valor(-1.005), u"0.00"), u"-1,01"_s);
    EXPECT_EQ(Formatear(Valor(0.5), u"0"), u"1"_s);
    EXPECT_EQ(Formatear(Valor(0.004), u"0.00"), u"0,00"_s);
    EXPECT_EQ(Formatear(Valor(-0.004), u"0.00"), u"0,00"_s);
    EXPECT_EQ(Formatear(Valor(9.5), u"0"), u"10"_s);
}

TEST_F(FormatosTest, RateMaskShowsSixDecimals) {
    EXPECT_EQ(Formatear(Valor(24.0), u"#0.000000"), u"24,000000"_s);
    EXPECT_EQ(Formatear(Valor(0.5), u"#0.000000"), u"0,500000"_s);
}

TEST_F(FormatosTest, ZeroMasksPadWithZeros) {
    EXPECT_EQ(Formatear(Valor(qint16{7}), u"00"), u"07"_s);
    EXPECT_EQ(Formatear(Valor(qint32{1001}), u"00000"), u"01001"_s);
    EXPECT_EQ(Formatear(Valor(qint32{123456}), u"00000"), u"123456"_s);
    EXPECT_EQ(Formatear(Valor(qint32{0}), u"00"), u"00"_s);
}

TEST_F(FormatosTest, OptionalDigitsAreLeftOut) {
    EXPECT_EQ(Formatear(Valor(1.5), u"0.0#"), u"1,5"_s);
    EXPECT_EQ(Formatear(Valor(1.25), u"0.0#"), u"1,25"_s);
}

TEST_F(FormatosTest, TextIsReadAsANumberFirst) {
    EXPECT_EQ(Formatear(Valor(u"5"_s), u"00"), u"05"_s);
    EXPECT_EQ(Formatear(Valor(QString()), u"00"), QString());
    EXPECT_EQ(Formatear(Valor(u"abc"_s), u"00"), u"abc"_s);
    EXPECT_EQ(Formatear(Valor(), u"00"), QString());
    EXPECT_EQ(Formatear(Valor::Nulo(), u"00"), QString());
}

TEST_F(FormatosTest, OtherSettingsGiveOtherSeparators) {
    FijarRegional({u'.', u','});
    EXPECT_EQ(Formatear(Valor(1234.5), u"##,##0.00"), u"1,234.50"_s);
}

TEST_F(FormatosTest, PlainTextShowsFifteenDigits) {
    EXPECT_EQ(NumeroATexto(0.1), u"0,1"_s);
    EXPECT_EQ(NumeroATexto(1.0 / 3.0), u"0,333333333333333"_s);
    EXPECT_EQ(NumeroATexto(-20.0), u"-20"_s);
    EXPECT_EQ(NumeroATexto(1e20), u"1E+20"_s);
}
