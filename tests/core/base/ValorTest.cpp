#include "core/base/Valor.h"

#include <vector>

#include "core/base/Regional.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

TEST(ValorTest, EmptyConvertsToZeroAndTheEmptyText) {
    const Valor vacio;
    EXPECT_TRUE(vacio.EsVacio());
    EXPECT_EQ(vacio.aEntero16(), 0);
    EXPECT_EQ(vacio.aEntero32(), 0);
    EXPECT_EQ(vacio.aDoble(), 0.0);
    EXPECT_EQ(vacio.aTexto(), QString());
    EXPECT_TRUE(vacio.EsNumerico());
}

TEST(ValorTest, NullRaisesInvalidUseOfNullInEveryConversion) {
    const Valor nulo = Valor::Nulo();
    EXPECT_TRUE(nulo.EsNulo());
    EXPECT_FALSE(nulo.EsNumerico());
    EXPECT_EQ(NumeroDelError([&] { (void)nulo.aEntero16(); }), 94);
    EXPECT_EQ(NumeroDelError([&] { (void)nulo.aEntero32(); }), 94);
    EXPECT_EQ(NumeroDelError([&] { (void)nulo.aDoble(); }), 94);
    EXPECT_EQ(NumeroDelError([&] { (void)nulo.aTexto(); }), 94);
}

TEST(ValorTest, TextThatIsNoNumberRaisesTypeMismatch) {
    EXPECT_EQ(NumeroDelError([] { (void)Valor(u"2E S"_s).aDoble(); }), 13);
    EXPECT_EQ(NumeroDelError([] { (void)Valor(QString()).aEntero32(); }), 13);
    EXPECT_EQ(Valor(u" 12 "_s).aEntero16(), 12);
}

TEST(ValorTest, IntegersRoundHalvesToEvenAndOverflow) {
    EXPECT_EQ(Valor(2.5).aEntero16(), 2);
    EXPECT_EQ(Valor(3.5).aEntero16(), 4);
    EXPECT_EQ(Valor(-2.5).aEntero16(), -2);
    EXPECT_EQ(Valor(-3.5).aEntero32(), -4);
    EXPECT_EQ(Valor(0.5).aEntero32(), 0);
    EXPECT_EQ(Valor(32767.4).aEntero16(), 32767);
    EXPECT_EQ(NumeroDelError([] { (void)Valor(32767.5).aEntero16(); }), 6);
    EXPECT_EQ(NumeroDelError([] { (void)Valor(-32769.0).aEntero16(); }), 6);
    EXPECT_EQ(Valor(-2147483648.0).aEntero32(), -2147483647 - 1);
    EXPECT_EQ(NumeroDelError([] { (void)Valor(2147483648.0).aEntero32(); }), 6);
}

TEST(ValorTest, BooleansAreMinusOneAndZeroAsNumbers) {
    EXPECT_EQ(Valor(true).aEntero16(), -1);
    EXPECT_EQ(Valor(false).aEntero32(), 0);
    EXPECT_EQ(Valor(true).aTexto(), u"Verdadero"_s);
}

TEST(ValorTest, NumbersBecomeTextWithTheSeparatorOfTheSettings) {
    EXPECT_EQ(Valor(1.5).aTexto(), u"1,5"_s);
    FijarRegional({u'.', u','});
    EXPECT_EQ(Valor(1.5).aTexto(), u"1.5"_s);
    EXPECT_EQ(Valor(u"1,234.5"_s).aDoble(), 1234.5);
    FijarRegional({});
}

TEST(ValorTest, KindsAreKeptApart) {
    const std::vector<Valor> unos{qint16{1}, qint32{1}, 1.0, true, u"1"_s};
    for (std::size_t i = 0; i < unos.size(); ++i) {
        EXPECT_EQ(unos[i].EsTexto(), i == 4) << i;
        EXPECT_EQ(EsDoble(unos[i]), i == 2) << i;
        for (std::size_t j = 0; j < unos.size(); ++j) {
            EXPECT_EQ(unos[i] == unos[j], i == j) << i << ' ' << j;
        }
    }
}
