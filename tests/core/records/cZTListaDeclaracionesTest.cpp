#include "core/records/cZTListaDeclaraciones.h"

#include "core/records/cZTDeclaraciones.h"
#include "tests/support/EntornoDeDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

class cZTListaDeclaracionesTest : public EntornoDeDeclaraciones {};

}  // namespace

TEST_F(cZTListaDeclaracionesTest, TheDeclarationsOfTheOpenDeclarantAreCounted) {
    oListaDeclaraciones().NumeroDeDeclaraciones();
    EXPECT_EQ(oListaDeclaraciones().NumDecla, 0);
    NuevaDeclaracion(2007, 1);
    NuevaDeclaracion(2007, 2);
    oListaDeclaraciones().NumeroDeDeclaraciones();
    EXPECT_EQ(oListaDeclaraciones().NumDecla, 2);
    ++oDeclarante().CSDE;
    oListaDeclaraciones().NumeroDeDeclaraciones();
    EXPECT_EQ(oListaDeclaraciones().NumDecla, 0);
}

TEST_F(cZTListaDeclaracionesTest, TheLatestDeclarationComesLastInRowsFrom1) {
    const qint32 ultima = NuevaDeclaracion(2008, 1);
    const qint32 primera = NuevaDeclaracion(2007, 4);
    oListaDeclaraciones().RellenarDeclaraciones();
    const Tabla& lista = oListaDeclaraciones().BufferDeclaraciones;
    EXPECT_EQ(oListaDeclaraciones().NumDecla, 2);
    ASSERT_EQ(lista.UltimaFila(), 2);
    EXPECT_EQ(lista(0, 1), Valor(primera));
    EXPECT_EQ(lista(1, 1), Valor(qint16{2007}));
    EXPECT_EQ(lista(2, 1), Valor(qint16{4}));
    EXPECT_EQ(lista(3, 1), Valor(0.0));
    EXPECT_EQ(lista(0, 2), Valor(ultima));
}

TEST_F(cZTListaDeclaracionesTest, WithoutDeclarationsTheBufferBecomesNull) {
    oListaDeclaraciones().BufferDeclaraciones = Tabla(3, 1);
    oListaDeclaraciones().RellenarDeclaraciones();
    EXPECT_TRUE(oListaDeclaraciones().BufferDeclaraciones.EsNula());
    EXPECT_EQ(oListaDeclaraciones().NumDecla, 0);
}

TEST_F(cZTListaDeclaracionesTest, DeletingTakesTheDeclarationAwayAndKeepsItsKey) {
    const qint32 csdc = NuevaDeclaracion(2007, 1);
    NuevaDeclaracion(2007, 2);
    EXPECT_TRUE(oListaDeclaraciones().EliminarDeclaracion(csdc));
    EXPECT_EQ(oDeclaraciones().CSDC, csdc);
    oListaDeclaraciones().RellenarDeclaraciones();
    EXPECT_EQ(oListaDeclaraciones().NumDecla, 1);
    EXPECT_EQ(oListaDeclaraciones().BufferDeclaraciones(2, 1), Valor(qint16{2}));
}

TEST_F(cZTListaDeclaracionesTest, FillingAndDeletingLeaveTheSelection) {
    oListaDeclaraciones().SelCSDC = 5;
    oListaDeclaraciones().CSDC = 6;
    oListaDeclaraciones().RellenarDeclaraciones();
    (void)oListaDeclaraciones().EliminarDeclaracion(7);
    EXPECT_EQ(oListaDeclaraciones().SelCSDC, 5);
    EXPECT_EQ(oListaDeclaraciones().CSDC, 6);
}

TEST_F(cZTListaDeclaracionesTest, AFailureOfTheStoreClimbsThroughTheFixedNames) {
    PerderElAlmacen();
    EXPECT_TRUE(DescripcionDelError([] { oListaDeclaraciones().RellenarDeclaraciones(); })
                    .startsWith(u"cZTListaDeclaraciones.RellenarDeclaraciones\r\n"
                                "cListaDeclaraciones.NumeroDeDeclaraciones\r\n"_s));
    EXPECT_TRUE(DescripcionDelError([] {
                    (void)oListaDeclaraciones().EliminarDeclaracion(7);
                }).startsWith(u"cListaDeclaraciones.EliminarDeclaracion\r\n"_s));
    EXPECT_EQ(oDeclaraciones().CSDC, 7);
    EXPECT_TRUE(pantalla.errores.empty());
}
