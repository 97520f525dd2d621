#include "core/run/cZTFecha.h"

#include <QDate>
#include <set>

#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class cZTFechaTest : public EntornoDePrueba {
  protected:
    void SetUp() override {
        EntornoDePrueba::SetUp();
        oFecha().IDI(u"C"_s);
    }

    static QString IdiomaGuardado() {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.ObtenerIdioma();
    }
};

}  // namespace

TEST_F(cZTFechaTest, AssigningTheLanguageStoresItAndSetsTheOffset) {
    oFecha().IDI(u"E"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
    EXPECT_EQ(IdiomaGuardado(), u"E"_s);
    oFecha().IDI(u"C"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, 0);
    EXPECT_EQ(IdiomaGuardado(), u"C"_s);
}

TEST_F(cZTFechaTest, ReadingTheLanguageSetsTheOffsetOnTheWay) {
    oFecha().IDI(u"E"_s);
    Entorno().OffsetIdioma = 0;
    EXPECT_EQ(oFecha().IDI(), u"E"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
}

TEST_F(cZTFechaTest, OnlyTheLetterECountsAsEuskera) {
    for (const QString& codigo : {u""_s, u"C"_s, u"e"_s, u"X"_s}) {
        oFecha().IDI(codigo);
        EXPECT_EQ(Entorno().OffsetIdioma, 0) << codigo.toStdString();
    }
}

TEST_F(cZTFechaTest, ReadingTheStoredLanguagePutsItInForceAndWritesItBack) {
    oFecha().IDI(u"E"_s);
    ReiniciarInstancias();
    Entorno().OffsetIdioma = 0;
    oFecha().LeerIdioma();
    EXPECT_EQ(oFecha().IDI(), u"E"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
    EXPECT_EQ(IdiomaGuardado(), u"E"_s);
}

TEST_F(cZTFechaTest, AnEmptyStoredLanguageStaysEmptyAndTakesTheYearFirstOrder) {
    oFecha().IDI(QString());
    oFecha().LeerIdioma();
    EXPECT_EQ(oFecha().IDI(), QString());
    EXPECT_EQ(IdiomaGuardado(), QString());
    EXPECT_EQ(Entorno().OffsetIdioma, 0);
    EXPECT_TRUE(oFecha().EsFecha(u"2003/02/15"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"15/02/2003"_s));
    EXPECT_EQ(oFecha().LongToString(20030215), u"2003/02/15"_s);
    EXPECT_EQ(oFecha().StringToLong(u"2003/02/15"_s), 20030215);
}

TEST_F(cZTFechaTest, TheEmptyTextIsTheEmptyDate) {
    EXPECT_EQ(oFecha().fecVacia(), QString());
    EXPECT_TRUE(oFecha().EsFecha(QString()));
    EXPECT_EQ(oFecha().StringToLong(QString()), 0);
    oFecha().IDI(u"E"_s);
    EXPECT_EQ(oFecha().fecVacia(), QString());
}

TEST_F(cZTFechaTest, ABadDateIsMinusOne) {
    EXPECT_EQ(oFecha().StringToLong(u"31/02/2003"_s), -1);
    EXPECT_EQ(oFecha().StringToLong(u"x"_s), -1);
}

TEST_F(cZTFechaTest, TheTwentyNinthOfFebruaryStandsInLeapYearsOnly) {
    EXPECT_TRUE(oFecha().EsFecha(u"29/02/2000"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"29/02/1900"_s));
    EXPECT_TRUE(oFecha().EsFecha(u"29/02/2004"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"29/02/2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"30/02/2004"_s));
}

TEST_F(cZTFechaTest, MonthsOfThirtyDaysHaveNoThirtyFirst) {
    for (const QString& mes : {u"04"_s, u"06"_s, u"09"_s, u"11"_s}) {
        EXPECT_TRUE(oFecha().EsFecha(u"30/"_s + mes + u"/2005"_s));
        EXPECT_FALSE(oFecha().EsFecha(u"31/"_s + mes + u"/2005"_s));
    }
}

TEST_F(cZTFechaTest, SeparatorsAndPartsMustStandAtTheirPlaces) {
    EXPECT_FALSE(oFecha().EsFecha(u"01/13/2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"1/1/2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"01-01-2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"01/01-2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"00/01/2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"32/01/2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"01/00/2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"aa/01/2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"01/bb/2003"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"//"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"2003/01/01"_s));
}

TEST_F(cZTFechaTest, TheConversionOfTheLastPartStopsAtTheFirstCharacterThatIsNoDigit) {
    EXPECT_TRUE(oFecha().EsFecha(u"01/01/2003x"_s));
    EXPECT_TRUE(oFecha().EsFecha(u"2003/01/01x"_s, u"E"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"01/01/x"_s));
}

TEST_F(cZTFechaTest, BlanksPointsAndSignsAreNoDigits) {
    EXPECT_FALSE(oFecha().EsFecha(u"29/02/2003.6"_s));
    EXPECT_EQ(oFecha().StringToLong(u"01/01/2 003"_s), -1);
    oFecha().IDI(u"E"_s);
    EXPECT_EQ(oFecha().StringToLong(u"2003/02/ 5"_s), -1);
    EXPECT_EQ(oFecha().StringToLong(u"999-/01/01"_s), -1);
    EXPECT_TRUE(oFecha().EsFecha(u"2003/01/1.5"_s));
}

TEST_F(cZTFechaTest, WhatFollowsTheDateCountsOnlyWhereTheLastPartIsTakenToTheEnd) {
    EXPECT_EQ(oFecha().StringToLong(u"01/01/2003x"_s), 20030101);
    EXPECT_TRUE(oFecha().EsFecha(u"01/01/20031"_s)) << "a year of five digits has at least four";
    EXPECT_EQ(oFecha().StringToLong(u"01/01/20031"_s), 20030101) << "of which the number takes four";
    oFecha().IDI(u"E"_s);
    ASSERT_TRUE(oFecha().EsFecha(u"2003/02/05x"_s));
    EXPECT_EQ(oFecha().StringToLong(u"2003/02/05x"_s), 0) << "the result at the moment of the failure";
}

TEST_F(cZTFechaTest, TheYearMustHaveFourDigits) {
    EXPECT_FALSE(oFecha().EsFecha(u"01/01/0999"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"01/01/99"_s));
    EXPECT_TRUE(oFecha().EsFecha(u"01/01/1000"_s));
    EXPECT_FALSE(oFecha().EsFecha(u"0999/01/01"_s, u"E"_s));
}

TEST_F(cZTFechaTest, AYearBelowTheLimitFails) {
    EXPECT_FALSE(oFecha().EsFecha(u"31/12/2001"_s, u"C"_s, 2002));
    EXPECT_TRUE(oFecha().EsFecha(u"01/01/2002"_s, u"C"_s, 2002));
    EXPECT_EQ(oFecha().StringToLong(u"31/12/2001"_s, 2002), -1);
    EXPECT_EQ(oFecha().StringToLong(u"01/01/2002"_s, 2002), 20020101);
}

TEST_F(cZTFechaTest, NumbersBecomeTextInTheFormatOfTheLanguage) {
    EXPECT_EQ(oFecha().LongToString(0), QString());
    EXPECT_EQ(oFecha().LongToString(-1), QString());
    EXPECT_EQ(oFecha().LongToString(20030215), u"15/02/2003"_s);
    EXPECT_EQ(oFecha().LongToString(20030215, false, u"E"_s), u"2003/02/15"_s);
    EXPECT_EQ(oFecha().LongToString(15022003, true), u"15/02/2003"_s);
    EXPECT_EQ(oFecha().LongToString(15022003, true, u"E"_s), u"2003/02/15"_s);
    EXPECT_EQ(oFecha().LongToString(20030231), QString());
    EXPECT_EQ(oFecha().LongToString(123), QString());
    oFecha().IDI(u"E"_s);
    EXPECT_EQ(oFecha().LongToString(20030215), u"2003/02/15"_s);
}

TEST_F(cZTFechaTest, EveryDayFrom1900To2100ConvertsBothWaysInBothLanguages) {
    for (const QString& idioma : {u"C"_s, u"E"_s}) {
        oFecha().IDI(idioma);
        const QString formato = idioma == u"C" ? u"dd/MM/yyyy"_s : u"yyyy/MM/dd"_s;
        for (QDate dia(1900, 1, 1); dia.year() <= 2100; dia = dia.addDays(1)) {
            const qint32 numero = dia.year() * 10000 + dia.month() * 100 + dia.day();
            const QString texto = dia.toString(formato);
            ASSERT_EQ(oFecha().LongToString(numero), texto);
            ASSERT_EQ(oFecha().StringToLong(texto), numero);
        }
    }
}

TEST_F(cZTFechaTest, NoNumberBetweenTheDaysIsADate) {
    for (int numero = 20000101; numero <= 20041231; ++numero) {
        const bool existe = QDate(numero / 10000, numero / 100 % 100, numero % 100).isValid();
        ASSERT_EQ(!oFecha().LongToString(numero).isEmpty(), existe) << numero;
    }
}

TEST_F(cZTFechaTest, TheYearOfADateIsReadByThePlatformInEitherLanguage) {
    EXPECT_EQ(oFecha().miYear(u"15/02/2003"_s), 2003);
    EXPECT_EQ(oFecha().miYear(u"2003/02/15"_s), 2003);
    oFecha().IDI(u"E"_s);
    EXPECT_EQ(oFecha().miYear(u"15/02/2003"_s), 2003);
    EXPECT_EQ(NumeroDelError([] { (void)oFecha().miYear(u"nada"_s); }), 13);
}

TEST_F(cZTFechaTest, TheDayOfTheMonthHasItsEuskeraEnding) {
    const std::set<int> ean{1, 5, 10, 15, 21, 25, 30};
    const std::set<int> n{11, 31};
    for (qint16 dia = 1; dia <= 31; ++dia) {
        const QString esperado = ean.contains(dia) ? u"ean"_s : n.contains(dia) ? u"n"_s : u"an"_s;
        EXPECT_EQ(cZTFecha::SufijoFecha(dia), esperado) << dia;
    }
    EXPECT_EQ(cZTFecha::SufijoFecha(0), QString());
    EXPECT_EQ(cZTFecha::SufijoFecha(32), QString());
}
