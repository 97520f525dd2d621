#include "core/store/esquema/Alfabetico.h"

#include <QStringList>
#include <algorithm>

#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

QStringList Ordenados(QStringList nombres) {
    std::ranges::sort(nombres,
                      [](const QString& a, const QString& b) { return CompararAlfabetico(a, b) < 0; });
    return nombres;
}

}  // namespace

TEST(AlfabeticoTest, AccentsAndCaseDoNotSeparateNames) {
    EXPECT_EQ(Ordenados({u"Zamora"_s, u"Ávila"_s, u"albacete"_s, u"Araba"_s, u"Álava"_s}),
              (QStringList{u"Álava"_s, u"albacete"_s, u"Araba"_s, u"Ávila"_s, u"Zamora"_s}));
}

TEST(AlfabeticoTest, EnyeComesAfterEveryPlainN) {
    EXPECT_EQ(Ordenados({u"oñate"_s, u"oo"_s, u"onz"_s, u"Ona"_s}),
              (QStringList{u"Ona"_s, u"onz"_s, u"oñate"_s, u"oo"_s}));
}

TEST(AlfabeticoTest, ANameComesBeforeALongerOneThatBeginsWithIt) {
    EXPECT_LT(CompararAlfabetico(u"SAN", u"SAN JUAN"), 0);
    EXPECT_GT(CompararAlfabetico(u"SAN JUAN", u"SAN"), 0);
}

TEST(AlfabeticoTest, OnlyEqualNamesCompareAsEqual) {
    EXPECT_EQ(CompararAlfabetico(u"Álava", u"Álava"), 0);
    EXPECT_NE(CompararAlfabetico(u"Álava", u"Alava"), 0);
    EXPECT_EQ(CompararAlfabetico(u"Álava", u"Alava") < 0, CompararAlfabetico(u"Alava", u"Álava") > 0);
}
