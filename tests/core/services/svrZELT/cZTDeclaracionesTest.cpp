#include "core/services/svrZELT/cZTDeclaraciones.h"

#include "core/services/svrZELT/cZTAnexos.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

class cZTDeclaracionesTest : public testing::Test {
  protected:
    cZTDeclaracionesTest() : m_CSDE(GuardarDeclarante(m_almacen, u"11111111H"_s)) {}

    [[nodiscard]] svrZELT::cZTDeclaraciones Servidor() const {
        return m_almacen.Con<svrZELT::cZTDeclaraciones>();
    }

    AlmacenTemporal m_almacen;
    qint32 m_CSDE;
};

}  // namespace

TEST_F(cZTDeclaracionesTest, ANewDeclarationHasItsRatesAndNothingElse) {
    const qint32 CSDC = GuardarDeclaracion(m_almacen, m_CSDE, 2010, 3);
    const Registro r = Servidor().CargarDeclaracion(CSDC);
    Registro esperado(29, Valor(0.0));
    esperado[0] = CSDC;
    esperado[1] = m_CSDE;
    esperado[2] = qint16{2010};
    esperado[3] = qint16{3};
    int i = 6;
    for (const double tasa : {24e6, 24e6, 6e6, 1e6, 24e6, 6e6}) {
        esperado[static_cast<std::size_t>(i)] = tasa;
        i += 4;
    }
    EXPECT_EQ(r, esperado);
}

TEST_F(cZTDeclaracionesTest, AnUnknownKeyLoadsAsZeros) {
    Registro esperado(29, Valor(0.0));
    esperado[0] = esperado[1] = qint32{0};
    esperado[2] = esperado[3] = qint16{0};
    EXPECT_EQ(Servidor().CargarDeclaracion(99), esperado);
}

RC_GTEST_FIXTURE_PROP(cZTDeclaracionesTest, AnyYearQuarterAndRatesAreLoadedAsTheyWereStored,
                      (qint16 ejercicio, qint16 periodo, const std::array<quint32, 6>& tasas)) {
    RC_PRE(!Servidor().DecDuplicadas(m_CSDE, ejercicio, periodo));
    Registro nueva{m_CSDE, ejercicio, periodo};
    for (const quint32 tasa : tasas) {
        nueva.emplace_back(static_cast<double>(tasa));
    }
    const Registro r = Servidor().CargarDeclaracion(Servidor().GuardarDeclaraciones(nueva));
    RC_ASSERT(r[2] == Valor(ejercicio));
    RC_ASSERT(r[3] == Valor(periodo));
    for (std::size_t k = 0; k < tasas.size(); ++k) {
        RC_ASSERT(r[6 + 4 * k] == nueva[3 + k]);
    }
    RC_ASSERT(Servidor().DecDuplicadas(m_CSDE, ejercicio, periodo));
}

TEST_F(cZTDeclaracionesTest, TheListGoesByYearAndQuarterWithTheLatestLast) {
    EXPECT_TRUE(Servidor().ObtenerDeclaraciones(m_CSDE).EsNula());
    const qint32 c = GuardarDeclaracion(m_almacen, m_CSDE, 2011, 1);
    const qint32 b = GuardarDeclaracion(m_almacen, m_CSDE, 2010, 4);
    const qint32 a = GuardarDeclaracion(m_almacen, m_CSDE, 201, 1);
    (void)GuardarDeclaracion(m_almacen, GuardarDeclarante(m_almacen, u"B"_s), 2012, 4);
    const Tabla lista = Servidor().ObtenerDeclaraciones(m_CSDE);
    EXPECT_EQ(lista.UltimaColumna(), 3);
    ASSERT_EQ(lista.UltimaFila(), 3);
    EXPECT_EQ(lista(0, 1), Valor(a));
    EXPECT_EQ(lista(0, 2), Valor(b));
    EXPECT_EQ(lista(0, 3), Valor(c));
    EXPECT_EQ(lista(1, 3), Valor(qint16{2011}));
    EXPECT_EQ(lista(2, 3), Valor(qint16{1}));
    EXPECT_EQ(lista(3, 3), Valor(0.0));
}

TEST_F(cZTDeclaracionesTest, TheAmountInTheListIsMoney) {
    const qint32 CSES = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES123Y"_s);
    const qint32 CSDC = GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1);
    Tabla lineas(7, 1);
    lineas(2, 1) = CSES;
    lineas(3, 1) = qint16{1};
    lineas(4, 1) = 0.0;
    lineas(5, 1) = 1234.0;
    lineas(6, 1) = 24.04e6;
    ASSERT_TRUE(m_almacen.Con<svrZELT::cZTAnexos>().GuardarAnexos(lineas, std::nullopt, CSDC));
    EXPECT_EQ(Servidor().ObtenerDeclaraciones(m_CSDE)(3, 1), Valor(296.65));
}

TEST_F(cZTDeclaracionesTest, DeclarationsAreCountedByDeclarant) {
    EXPECT_EQ(Servidor().NumeroDeclaraciones(m_CSDE), 0);
    EXPECT_FALSE(Servidor().TieneDeclaraciones(m_CSDE));
    (void)GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(m_CSDE), 1);
    EXPECT_TRUE(Servidor().TieneDeclaraciones(m_CSDE));
    EXPECT_EQ(Servidor().NumeroDeclaraciones(99), 0);
    EXPECT_FALSE(Servidor().TieneDeclaraciones(99));
}

TEST_F(cZTDeclaracionesTest, EstablishmentsAreAskedForByDeclarant) {
    EXPECT_FALSE(Servidor().TieneEstablecimientos(m_CSDE));
    (void)GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES123Y"_s);
    EXPECT_TRUE(Servidor().TieneEstablecimientos(m_CSDE));
    EXPECT_FALSE(Servidor().TieneEstablecimientos(99));
}

TEST_F(cZTDeclaracionesTest, ADuplicateIsTheSameDeclarantYearAndQuarter) {
    (void)GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1);
    EXPECT_TRUE(Servidor().DecDuplicadas(m_CSDE, 2010, 1));
    EXPECT_FALSE(Servidor().DecDuplicadas(m_CSDE, 2010, 2));
    EXPECT_FALSE(Servidor().DecDuplicadas(m_CSDE, 2011, 1));
    EXPECT_FALSE(Servidor().DecDuplicadas(99, 2010, 1));
    EXPECT_FALSE(Servidor().DecDuplicadas(m_CSDE, 0, 0));
}

TEST_F(cZTDeclaracionesTest, ADuplicateThatComesInBetweenIsRefused) {
    (void)GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1);
    EXPECT_EQ(NumeroDelError([&] { (void)GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1); }), 3075);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(m_CSDE), 1);
}

TEST_F(cZTDeclaracionesTest, ADeclarationNeedsADeclarantThatExistsAndAllItsElements) {
    EXPECT_EQ(NumeroDelError([&] { (void)GuardarDeclaracion(m_almacen, 99, 2010, 1); }), 3075);
    EXPECT_EQ(NumeroDelError([&] {
                  (void)Servidor().GuardarDeclaraciones({m_CSDE, qint16{2010}, qint16{1}, 1.0});
              }),
              9);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(m_CSDE), 0);
}

TEST_F(cZTDeclaracionesTest, DeletingOneTakesItsLinesAndFiguresWithIt) {
    const qint32 CSES = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES123Y"_s);
    const qint32 CSDC = GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1);
    Tabla lineas(7, 1);
    lineas(2, 1) = CSES;
    lineas(3, 1) = qint16{2};
    lineas(4, 1) = 1.0;
    ASSERT_TRUE(m_almacen.Con<svrZELT::cZTAnexos>().GuardarAnexos(lineas, std::nullopt, CSDC));
    Servidor().EliminarDeclaraciones(CSDC);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(m_CSDE), 0);
    auto& base = m_almacen.Usuario()->Base();
    EXPECT_EQ(base.execAndGet("SELECT count(*) FROM T08_ANEXOS").getInt(), 0);
    EXPECT_EQ(base.execAndGet("SELECT count(*) FROM T10_LIQUIDACION").getInt(), 0);
    EXPECT_GT(GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1), CSDC);
    Servidor().EliminarDeclaraciones(99);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(m_CSDE), 1);
}
