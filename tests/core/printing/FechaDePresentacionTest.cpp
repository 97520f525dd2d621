#include "core/printing/FechaDePresentacion.h"

#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// Today is 4 July 2007.
class FechaDePresentacionTest : public EntornoDePrueba {
  protected:
    static std::optional<QString> Falta(const QString& fecha, bool habilitado = true) {
        return FaltaDeFecha(fecha, MascaraDeFecha(), habilitado);
    }
};

}  // namespace

TEST_F(FechaDePresentacionTest, TodayAndTheMaskAreInTheFormOfTheScreen) {
    EXPECT_EQ(FechaDeHoy(), u"04/07/2007"_s);
    EXPECT_EQ(MascaraDeFecha(), u"__/__/____"_s);
    Entorno().OffsetIdioma = kOffsetEuskera;
    EXPECT_EQ(FechaDeHoy(), u"2007/07/04"_s);
    EXPECT_EQ(MascaraDeFecha(), u"____/__/__"_s);
}

TEST_F(FechaDePresentacionTest, TheLanguageIsThatOfTheScreenWhateverIsStored) {
    oFecha().IDI(u"C"_s);
    Entorno().OffsetIdioma = kOffsetEuskera;
    EXPECT_EQ(Falta(u"2007/01/15"_s), std::nullopt);
    EXPECT_EQ(Falta(u"15/01/2007"_s), u"Aurkezpen data okerra da"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, kOffsetEuskera);
}

TEST_F(FechaDePresentacionTest, TheLimitHoldsInBothLanguagesAndEuskeraNamesAnotherOne) {
    EXPECT_EQ(Falta(u"01/01/2003"_s), std::nullopt);
    EXPECT_EQ(Falta(u"31/12/2002"_s), u"La Fecha de presentación no puede ser anterior al 01/01/2003"_s);
    Entorno().OffsetIdioma = kOffsetEuskera;
    EXPECT_EQ(Falta(u"2003/01/01"_s), std::nullopt);
    EXPECT_EQ(Falta(u"2002/12/31"_s), u"Aurkezpen data ezin da 2002/01/01\n baino lehenagokoa izan"_s);
}

TEST_F(FechaDePresentacionTest, TheMaskIsADateThatIsTooEarlyButNotInADisabledField) {
    EXPECT_EQ(Falta(u"__/__/____"_s), u"La Fecha de presentación no puede ser anterior al 01/01/2003"_s);
    EXPECT_EQ(Falta(u"__/__/____"_s, false), std::nullopt);
    EXPECT_EQ(Falta(u"31/12/2002"_s, false), std::nullopt);
    EXPECT_EQ(Falta(u"31/02/2007"_s, false), u"La Fecha de presentación introducida no es correcta"_s);
}

TEST_F(FechaDePresentacionTest, TheEmptyTextIsNeitherTheMaskNorADate) {
    for (const bool habilitado : {true, false}) {
        EXPECT_EQ(Falta(QString(), habilitado), u"La Fecha de presentación introducida no es correcta"_s);
    }
    Entorno().OffsetIdioma = kOffsetEuskera;
    EXPECT_EQ(Falta(QString()), u"Aurkezpen data okerra da"_s);
}

TEST_F(FechaDePresentacionTest, TheLimitIsShownInTheFormatOfTheTexts) {
    EXPECT_EQ(Texto(170), u"dd/mm/yyyy"_s);
    EXPECT_TRUE(Falta(u"31/12/2002"_s)->endsWith(u" 01/01/2003"));
    Entorno().OffsetIdioma = kOffsetEuskera;
    EXPECT_EQ(Texto(170), u"yyyy/mm/dd"_s);
    EXPECT_TRUE(Falta(u"2002/12/31"_s)->contains(u" 2002/01/01\n"));
}

TEST_F(FechaDePresentacionTest, AMaskWithSomeDigitsIsNoDate) {
    EXPECT_EQ(Falta(u"1_/01/2007"_s), u"La Fecha de presentación introducida no es correcta"_s);
    EXPECT_EQ(Falta(u"01/01/200_"_s), u"La Fecha de presentación introducida no es correcta"_s);
}
