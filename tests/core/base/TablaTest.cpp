#include "core/base/Tabla.h"

#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

TEST(TablaTest, ANullBufferRaisesWhenItsBoundsOrElementsAreAsked) {
    Tabla nula;
    EXPECT_TRUE(nula.EsNula());
    EXPECT_EQ(NumeroDelError([&] { (void)nula.UltimaFila(); }), 13);
    EXPECT_EQ(NumeroDelError([&] { (void)nula.UltimaColumna(); }), 13);
    EXPECT_EQ(NumeroDelError([&] { (void)nula(0, 0); }), 13);
    EXPECT_EQ(NumeroDelError([&] { nula.RedimensionarFilas(3); }), 13);
}

TEST(TablaTest, ElementsOutsideTheBoundsRaiseTheSubscriptError) {
    Tabla tabla(1, 2);
    EXPECT_EQ(tabla.UltimaColumna(), 1);
    EXPECT_EQ(tabla.UltimaFila(), 2);
    EXPECT_EQ(NumeroDelError([&] { (void)tabla(1, 2); }), 0);
    EXPECT_EQ(NumeroDelError([&] { (void)tabla(2, 0); }), 9);
    EXPECT_EQ(NumeroDelError([&] { (void)tabla(0, 3); }), 9);
    EXPECT_EQ(NumeroDelError([&] { (void)tabla(-1, 0); }), 9);
    EXPECT_EQ(NumeroDelError([&] { (void)tabla(0, -1); }), 9);
    EXPECT_EQ(NumeroDelError([&] { Tabla(-1, 0); }), 9);
    EXPECT_EQ(NumeroDelError([&] { tabla.RedimensionarFilas(-1); }), 9);
}

TEST(TablaTest, AddressingIsColumnThenRow) {
    Tabla tabla(2, 1);
    tabla(2, 1) = qint32{21};
    tabla(1, 0) = u"a"_s;
    EXPECT_EQ(tabla(2, 1), Valor(qint32{21}));
    EXPECT_EQ(tabla(1, 0), Valor(u"a"_s));
    EXPECT_TRUE(tabla(0, 0).EsVacio());
}

TEST(TablaTest, MoreRowsKeepTheContents) {
    Tabla tabla(1, 0);
    tabla(1, 0) = qint16{5};
    tabla.RedimensionarFilas(4);
    EXPECT_EQ(tabla(1, 0), Valor(qint16{5}));
    EXPECT_TRUE(tabla(1, 4).EsVacio());
    EXPECT_EQ(tabla.UltimaFila(), 4);
}

TEST(TablaTest, ARecordRaisesOutsideItsBounds) {
    const Registro registro{Valor(qint16{1})};
    EXPECT_EQ(Elemento(registro, 0), Valor(qint16{1}));
    EXPECT_EQ(NumeroDelError([&] { (void)Elemento(registro, 1); }), 9);
    EXPECT_EQ(NumeroDelError([&] { (void)Elemento(registro, -1); }), 9);
}
