#include "core/base/Valor.h"

#include "core/base/Regional.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

TEST(ValorTest, EmptyConvertsToZeroFalseAndTheEmptyText) {
    const Valor vacio;
    EXPECT_TRUE(vacio.EsVacio());
    EXPECT_EQ(vacio.aEntero16(), 0);
    EXPECT_EQ(vacio.aEntero32(), 0);
    EXPECT_EQ(vacio.aDoble(), 0.0);
    EXPECT_EQ(vacio.aTexto(), QString());
    EXPECT_FALSE(vacio.aBooleano());
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
    EXPECT_EQ(NumeroDelError([&] { (void)nulo.aBooleano(); }), 94);
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
    EXPECT_TRUE(Valor(qint16{2}).aBooleano());
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
    EXPECT_TRUE(Valor(qint16{1}).EsEntero16());
    EXPECT_TRUE(Valor(qint32{1}).EsEntero32());
    EXPECT_TRUE(Valor(1.0).EsDoble());
    EXPECT_TRUE(Valor(true).EsBooleano());
    EXPECT_TRUE(Valor(u"1"_s).EsTexto());
    EXPECT_FALSE(Valor(qint16{1}) == Valor(qint32{1}));
}
