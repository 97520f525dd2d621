#include "core/services/svrZELT/cZTEstablecimientos.h"

#include "core/services/svrZELT/cZTAnexos.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

class cZTEstablecimientosTest : public testing::Test {
  protected:
    cZTEstablecimientosTest() : m_CSDE(GuardarDeclarante(m_almacen, u"11111111H"_s)) {}

    [[nodiscard]] svrZELT::cZTEstablecimientos Servidor() const {
        return m_almacen.Con<svrZELT::cZTEstablecimientos>();
    }
    [[nodiscard]] Registro Cargar(qint32 CSES) const {
        Registro r;
        Servidor().CargarEstablecimiento(CSES, r);
        return r;
    }
    /// Stores one line of product 1 for each establishment, base 100 by its place.
    void Anexar(qint32 CSDC, const QList<qint32>& establecimientos) const {
        Tabla lineas(7, static_cast<int>(establecimientos.size()));
        int fila = 0;
        for (const qint32 CSES : establecimientos) {
            ++fila;
            lineas(2, fila) = CSES;
            lineas(3, fila) = qint16{1};
            lineas(4, fila) = 0.0;
            lineas(5, fila) = 100.0 * fila;
            lineas(6, fila) = 24e6;
        }
        ASSERT_TRUE(m_almacen.Con<svrZELT::cZTAnexos>().GuardarAnexos(lineas, std::nullopt, CSDC));
    }

    AlmacenTemporal m_almacen;
    qint32 m_CSDE;
};

}  // namespace

TEST_F(cZTEstablecimientosTest, ANewEstablishmentIsLoadedAsItWasStored) {
    Registro r = RegistroDeEstablecimiento(m_CSDE, u"20ES123Y"_s);
    const qint32 CSES = Servidor().GuardaEstablecimiento(r);
    r[0] = CSES;
    EXPECT_EQ(Cargar(CSES), r);
}

RC_GTEST_FIXTURE_PROP(cZTEstablecimientosTest, WhateverIsStoredIsLoaded,
                      (const std::string& a, const std::string& b, qint16 provincia, qint16 municipio)) {
    Registro r = RegistroDeEstablecimiento(m_CSDE, QString::fromLatin1(a));
    r[3] = QString::fromLatin1(b);
    r[4] = provincia;
    r[5] = municipio;
    const qint32 CSES = Servidor().GuardaEstablecimiento(r);
    r[0] = CSES;
    RC_ASSERT(Cargar(CSES) == r);
    r[6] = QString::fromLatin1(b);
    RC_ASSERT(Servidor().GuardaEstablecimiento(r) == CSES);
    RC_ASSERT(Cargar(CSES) == r);
}

TEST_F(cZTEstablecimientosTest, AnUnknownKeyLoadsAsBlanksAndZeros) {
    EXPECT_EQ(Cargar(99),
              (Registro{qint32{0}, qint32{0}, QString(), QString(), qint16{0}, qint16{0}, QString()}));
}

TEST_F(cZTEstablecimientosTest, TheListOfADeclarantHasHisAloneByCim) {
    EXPECT_TRUE(Servidor().ObtenerEstablecimientos(m_CSDE).EsNula());
    const qint32 segundo = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES200X"_s);
    const qint32 primero = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES100X"_s);
    (void)GuardarEstablecimiento(m_almacen, GuardarDeclarante(m_almacen, u"B"_s), u"20ES150X"_s);
    const Tabla lista = Servidor().ObtenerEstablecimientos(m_CSDE);
    EXPECT_EQ(lista.UltimaColumna(), 5);
    ASSERT_EQ(lista.UltimaFila(), 2);
    EXPECT_EQ(lista(0, 1), Valor(primero));
    EXPECT_EQ(lista(1, 1), Valor(u"20ES100X"_s));
    EXPECT_EQ(lista(2, 1), Valor(u"CARRETERA 1"_s));
    EXPECT_EQ(lista(3, 1), Valor(qint16{20}));
    EXPECT_EQ(lista(4, 1), Valor(qint16{2}));
    EXPECT_EQ(lista(5, 1), Valor(u"AGERLEKUAIN"_s));
    EXPECT_EQ(lista(0, 2), Valor(segundo));
}

TEST_F(cZTEstablecimientosTest, ARepeatedCimIsFoundInTheWholeStoreAndMayBeStored) {
    EXPECT_FALSE(Servidor().CIMRepetido(u"20ES123Y"_s));
    (void)GuardarEstablecimiento(m_almacen, GuardarDeclarante(m_almacen, u"B"_s), u"20ES123Y"_s);
    EXPECT_TRUE(Servidor().CIMRepetido(u"20ES123Y"_s));
    EXPECT_TRUE(Servidor().CIMRepetido(u"20es123y"_s));
    EXPECT_FALSE(Servidor().CIMRepetido(u"20ES123"_s));
    EXPECT_FALSE(Servidor().CIMRepetido(QString()));
    EXPECT_GT(GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES123Y"_s), 0);
}

TEST_F(cZTEstablecimientosTest, AnEstablishmentNeedsADeclarantThatExists) {
    EXPECT_EQ(NumeroDelError([&] { (void)GuardarEstablecimiento(m_almacen, 99, u"20ES123Y"_s); }), 3075);
    EXPECT_FALSE(Servidor().CIMRepetido(u"20ES123Y"_s));
}

TEST_F(cZTEstablecimientosTest, AChangeOfAnEstablishmentThatIsGoneIsRaised) {
    Registro r = RegistroDeEstablecimiento(m_CSDE, u"20ES123Y"_s);
    r[0] = qint32{5};
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardaEstablecimiento(r); }), 3075);
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardaEstablecimiento(Registro(2)); }), 9);
}

TEST_F(cZTEstablecimientosTest, TheNumberOfDeclarationsIsThatOfTheDeclarant) {
    EXPECT_EQ(Servidor().NumeroDeclaraciones(m_CSDE), 0);
    (void)GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1);
    (void)GuardarDeclaracion(m_almacen, m_CSDE, 2010, 2);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(m_CSDE), 2);
    EXPECT_EQ(Servidor().NumeroDeclaraciones(99), 0);
}

TEST_F(cZTEstablecimientosTest, AnEstablishmentWithALineInAnyDeclarationHasAnnexes) {
    const qint32 CSES = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES123Y"_s);
    const qint32 CSDC = GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1);
    EXPECT_TRUE(Servidor().EstablecimientosSinAnexos(CSES));
    Anexar(CSDC, {CSES});
    EXPECT_FALSE(Servidor().EstablecimientosSinAnexos(CSES));
    EXPECT_TRUE(Servidor().EstablecimientosSinAnexos(99));
}

TEST_F(cZTEstablecimientosTest, DeletingOneLeavesNoLinesAndTheSumsOfTheOthers) {
    const qint32 uno = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES100X"_s);
    const qint32 dos = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES200X"_s);
    const qint32 CSDC = GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1);
    Anexar(CSDC, {uno, dos});
    Servidor().EliminarEstablecimiento(uno);
    EXPECT_EQ(Servidor().ObtenerEstablecimientos(m_CSDE).UltimaFila(), 1);
    EXPECT_EQ(m_almacen.Con<svrZELT::cZTAnexos>().CargarAnexos(CSDC).UltimaFila(), 1);
    const Registro declaracion = m_almacen.Con<svrZELT::cZTDeclaraciones>().CargarDeclaracion(CSDC);
    EXPECT_EQ(declaracion[5], Valor(200.0));
    EXPECT_EQ(declaracion[7], Valor(4800.0));
    EXPECT_EQ(declaracion[28], Valor(4800.0));
}

TEST_F(cZTEstablecimientosTest, KeysAreNeverUsedAgain) {
    const qint32 CSES = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES123Y"_s);
    Servidor().EliminarEstablecimiento(CSES);
    EXPECT_GT(GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES123Y"_s), CSES);
}

TEST_F(cZTEstablecimientosTest, ASaveOverWhatAnotherProgramHasChangedIsRefused) {
    const qint32 clave = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES100X"_s);
    Registro uno;
    EstadoLeido leidoPorUno;
    Servidor().CargarEstablecimiento(clave, uno, &leidoPorUno);
    Registro otro = uno;
    EstadoLeido leidoPorOtro = leidoPorUno;
    uno[3] = u"PUERTO 1"_s;
    otro[6] = u"OTRO SITIO"_s;
    EXPECT_EQ(Servidor().GuardaEstablecimiento(uno, &leidoPorUno), clave);
    EXPECT_EQ(NumeroDelError([&] { Servidor().GuardaEstablecimiento(otro, &leidoPorOtro); }), 3197);
    EXPECT_EQ(Cargar(clave), uno);
    EXPECT_EQ(Servidor().GuardaEstablecimiento(uno, &leidoPorUno), clave);
}

TEST_F(cZTEstablecimientosTest, ASaveOfAnEstablishmentThatAnotherProgramHasDeletedIsRefused) {
    const qint32 clave = GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES100X"_s);
    Registro r;
    EstadoLeido leido;
    Servidor().CargarEstablecimiento(clave, r, &leido);
    Servidor().EliminarEstablecimiento(clave);
    EXPECT_EQ(NumeroDelError([&] { Servidor().GuardaEstablecimiento(r, &leido); }), 3197);
}
