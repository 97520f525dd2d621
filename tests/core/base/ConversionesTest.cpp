#include "core/base/Conversiones.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/base/Formatos.h"
#include "core/base/Regional.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class ConversionesTest : public testing::Test {
  protected:
    void SetUp() override { FijarRegional({}); }
    void TearDown() override { FijarRegional({}); }
};

}  // namespace

TEST_F(ConversionesTest, NumbersAreReadWithTheSeparatorsOfTheSettings) {
    EXPECT_EQ(LeerNumero(u"1.234,56"), 1234.56);
    EXPECT_EQ(LeerNumero(u"-12"), -12.0);
    EXPECT_EQ(LeerNumero(u"12-"), -12.0);
    EXPECT_EQ(LeerNumero(u" 7 "), 7.0);
    EXPECT_EQ(LeerNumero(u",5"), 0.5);
    EXPECT_EQ(LeerNumero(u"1E3"), 1000.0);
    FijarRegional({u'.', u','});
    EXPECT_EQ(LeerNumero(u"1,234.56"), 1234.56);
    EXPECT_EQ(LeerNumero(u"1.5"), 1.5);
}

TEST_F(ConversionesTest, WhatDoesNotReadWholeAsANumberIsNone) {
    for (const auto texto :
         {u"", u"-", u",", u"12a", u"1E", u"--1", u"1,2,3", u"-1-", u"E5", u"1E999", u"0x10"}) {
        EXPECT_FALSE(EsNumerico(QStringView(texto))) << QStringView(texto).toUtf8().constData();
    }
    EXPECT_EQ(NumeroDelError([] { TextoADoble(u"x"); }), 13);
}

TEST_F(ConversionesTest, LeadingDigitsValueStopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(ValorInicial(u"12abc"), 12.0);
    EXPECT_EQ(ValorInicial(u"abc"), 0.0);
    EXPECT_EQ(ValorInicial(u""), 0.0);
    EXPECT_EQ(ValorInicial(u" 1 2"), 12.0);
    EXPECT_EQ(ValorInicial(u"1.5"), 1.5);
    EXPECT_EQ(ValorInicial(u"1,5"), 1.0);
    EXPECT_EQ(ValorInicial(u"-3x"), -3.0);
    EXPECT_EQ(ValorInicial(u"1.2.3"), 1.2);
    EXPECT_EQ(ValorInicial(u"-"), 0.0);
}

RC_GTEST_FIXTURE_PROP(ConversionesTest, PlainTextOfEveryIntegerReadsBackEqual, (int n)) {
    RC_ASSERT(LeerNumero(NumeroATexto(n)) == static_cast<double>(n));
    RC_ASSERT(DobleAEntero32(n) == n);
}

RC_GTEST_FIXTURE_PROP(ConversionesTest, MaskedMoneyReadsBackEqual, (int centimos)) {
    const double importe = centimos / 100.0;
    const QString texto = Formatear(Valor(importe), u"##,###,###,##0.00");
    RC_ASSERT(LeerNumero(texto) == importe);
}
