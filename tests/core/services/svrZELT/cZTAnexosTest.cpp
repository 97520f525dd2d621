#include "core/services/svrZELT/cZTAnexos.h"

#include <array>
#include <vector>

#include "core/run/GeneralZT.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

struct LineaDePrueba {
    qint32 CSES = 0;
    qint16 producto = 1;
    double SUMEX = 0;
    double BASIM = 0;
    double TIPIM = 24e6;
};

Tabla Buffer(const std::vector<LineaDePrueba>& lineas) {
    Tabla buffer(7, static_cast<int>(lineas.size()));
    int fila = 0;
    for (const LineaDePrueba& linea : lineas) {
        ++fila;
        buffer(2, fila) = linea.CSES;
        buffer(3, fila) = linea.producto;
        buffer(4, fila) = linea.SUMEX;
        buffer(5, fila) = linea.BASIM;
        buffer(6, fila) = linea.TIPIM;
        buffer(7, fila) = 777.0;
    }
    return buffer;
}

class cZTAnexosTest : public testing::Test {
  protected:
    cZTAnexosTest()
        : m_CSDE(GuardarDeclarante(m_almacen, u"11111111H"_s)),
          m_uno(GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES200X"_s)),
          m_dos(GuardarEstablecimiento(m_almacen, m_CSDE, u"20ES100X"_s)),
          m_CSDC(GuardarDeclaracion(m_almacen, m_CSDE, 2010, 1)) {}

    [[nodiscard]] svrZELT::cZTAnexos Servidor() const { return m_almacen.Con<svrZELT::cZTAnexos>(); }
    [[nodiscard]] bool Guardar(const Tabla& buffer,
                               const std::optional<Registro>& tasas = std::nullopt) const {
        return Servidor().GuardarAnexos(buffer, tasas, m_CSDC);
    }
    [[nodiscard]] Tabla Cargar() const { return Servidor().CargarAnexos(m_CSDC); }
    [[nodiscard]] Registro Declaracion() const {
        return m_almacen.Con<svrZELT::cZTDeclaraciones>().CargarDeclaracion(m_CSDC);
    }
    /// Figure of a product of the declaration: 0 SUMEX, 1 BASIM, 2 TIPIM, 3 CUOTA.
    [[nodiscard]] double Figura(std::size_t producto, std::size_t figura) const {
        return Declaracion().at(4 * producto + figura).aDoble();
    }

    AlmacenTemporal m_almacen;
    qint32 m_CSDE;
    qint32 m_uno;
    qint32 m_dos;
    qint32 m_CSDC;
};

const Registro kTasas{24e6, 24.04e6, 6e6, 1e6, 24e6, 6e6};

}  // namespace

TEST_F(cZTAnexosTest, ADeclarationWithoutLinesHasANullBuffer) {
    EXPECT_TRUE(Cargar().EsNula());
    EXPECT_TRUE(Servidor().CargarEstablecimientos(m_CSDC).EsNula());
    EXPECT_TRUE(Servidor().CargarAnexos(99).EsNula());
}

TEST_F(cZTAnexosTest, LinesAreLoadedAsStoredWithTheirQuotaComputed) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 2, 150, 1234, 24.04e6}})));
    const Tabla lineas = Cargar();
    EXPECT_EQ(lineas.UltimaColumna(), 7);
    ASSERT_EQ(lineas.UltimaFila(), 1);
    EXPECT_GT(lineas(0, 1).aEntero32(), 0);
    EXPECT_EQ(lineas(1, 1), Valor(m_CSDC));
    EXPECT_EQ(lineas(2, 1), Valor(m_uno));
    EXPECT_EQ(lineas(3, 1), Valor(qint16{2}));
    EXPECT_EQ(lineas(4, 1), Valor(150.0));
    EXPECT_EQ(lineas(5, 1), Valor(1234.0));
    EXPECT_EQ(lineas(6, 1), Valor(24.04e6));
    EXPECT_EQ(lineas(7, 1), Valor(29665.0)) << "12.34 at 24.04 is 296.65";
}

TEST_F(cZTAnexosTest, TheDeclarationHasTheSumsOfItsLines) {
    ASSERT_TRUE(
        Guardar(Buffer({{m_uno, 1, 100, 1000, 24e6}, {m_dos, 1, 50, 2000, 24e6}, {m_dos, 4, 7, 300, 1e6}})));
    EXPECT_EQ(Figura(1, 0), 150.0);
    EXPECT_EQ(Figura(1, 1), 3000.0);
    EXPECT_EQ(Figura(1, 3), 72000.0);
    EXPECT_EQ(Figura(4, 0), 7.0);
    EXPECT_EQ(Figura(4, 1), 300.0);
    EXPECT_EQ(Figura(4, 3), 300.0);
    EXPECT_EQ(Declaracion()[28], Valor(72300.0));
}

TEST_F(cZTAnexosTest, ANewSaveReplacesLinesAndSums) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 1, 100, 1000}, {m_dos, 2, 50, 2000}})));
    ASSERT_TRUE(Guardar(Buffer({{m_dos, 2, 60, 0}})));
    EXPECT_EQ(Cargar().UltimaFila(), 1);
    EXPECT_EQ(Figura(1, 1), 0.0);
    EXPECT_EQ(Figura(2, 0), 60.0);
    EXPECT_EQ(Figura(2, 3), 0.0);
    EXPECT_EQ(Declaracion()[28], Valor(0.0));
}

TEST_F(cZTAnexosTest, ALineThatStaysKeepsItsKeyAndNoKeyIsUsedAgain) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 1, 1, 0}, {m_uno, 2, 1, 0}})));
    const qint32 primera = Cargar()(0, 1).aEntero32();
    const qint32 segunda = Cargar()(0, 2).aEntero32();
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 1, 2, 0}})));
    EXPECT_EQ(Cargar()(0, 1), Valor(primera));
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 1, 2, 0}, {m_uno, 2, 1, 0}})));
    EXPECT_EQ(Cargar()(0, 1), Valor(primera));
    EXPECT_GT(Cargar()(0, 2).aEntero32(), segunda);
}

TEST_F(cZTAnexosTest, ANullBufferAndOneWithRowZeroAloneLeaveNoLines) {
    for (const Tabla& vacio : {Tabla(), Tabla(7, 0)}) {
        ASSERT_TRUE(Guardar(Buffer({{m_uno, 1, 1, 100}})));
        ASSERT_TRUE(Guardar(vacio));
        EXPECT_TRUE(Cargar().EsNula());
        EXPECT_EQ(Declaracion()[28], Valor(0.0));
    }
}

TEST_F(cZTAnexosTest, TheRatesGivenGoToLinesAndDeclaration) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 2, 0, 1234, 1e6}}), kTasas));
    EXPECT_EQ(Cargar()(6, 1), Valor(24.04e6));
    EXPECT_EQ(Cargar()(7, 1), Valor(29665.0));
    for (std::size_t producto = 1; producto <= 6; ++producto) {
        EXPECT_EQ(Valor(Figura(producto, 2)), kTasas.at(producto - 1));
    }
}

TEST_F(cZTAnexosTest, WithoutRatesTheLinesKeepTheirOwnAndTheDeclarationFollows) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 2, 0, 100, 30e6}})));
    EXPECT_EQ(Cargar()(6, 1), Valor(30e6));
    EXPECT_EQ(Figura(2, 2), 30e6);
    EXPECT_EQ(Figura(1, 2), 24e6) << "a product without lines keeps its rate";
}

TEST_F(cZTAnexosTest, ANegativeFigureIsStored) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 1, -100, -250}})));
    EXPECT_EQ(Figura(1, 0), -100.0);
    EXPECT_EQ(Figura(1, 3), -6000.0);
}

RC_GTEST_FIXTURE_PROP(cZTAnexosTest, WhatIsStoredAlwaysAddsUpAndEqualsWhatWasShown, ()) {
    const auto centesimas = rc::gen::inRange<qint64>(-10'000'000, 2'000'000'000);
    const auto tasa = rc::gen::inRange<qint32>(0, 500'000'000);
    std::vector<LineaDePrueba> lineas;
    for (const qint32 CSES : {m_uno, m_dos}) {
        for (qint16 producto = 1; producto <= 6; ++producto) {
            if (*rc::gen::arbitrary<bool>()) {
                lineas.push_back({CSES, producto, static_cast<double>(*centesimas),
                                  static_cast<double>(*centesimas), static_cast<double>(*tasa)});
            }
        }
    }
    RC_ASSERT(Guardar(Buffer(lineas)));
    std::array<std::array<double, 3>, 6> sumas{};
    double total = 0;
    const Tabla guardadas = Cargar();
    RC_ASSERT((guardadas.EsNula() ? 0 : guardadas.UltimaFila()) == static_cast<int>(lineas.size()));
    for (int fila = 1; fila <= static_cast<int>(lineas.size()); ++fila) {
        const double base = Redondear(guardadas(5, fila).aDoble() / 100, 2);
        const double tipo = Redondear(guardadas(6, fila).aDoble() / 1'000'000, 6);
        RC_ASSERT(Redondear(guardadas(7, fila).aDoble() / 100, 2) == Redondear(base * tipo, 2));
        auto& suma = sumas.at(static_cast<std::size_t>(guardadas(3, fila).aEntero16() - 1));
        suma[0] += guardadas(4, fila).aDoble();
        suma[1] += guardadas(5, fila).aDoble();
        suma[2] += guardadas(7, fila).aDoble();
        total += guardadas(7, fila).aDoble();
    }
    for (std::size_t producto = 1; producto <= 6; ++producto) {
        const auto& suma = sumas.at(producto - 1);
        RC_ASSERT(Figura(producto, 0) == suma[0]);
        RC_ASSERT(Figura(producto, 1) == suma[1]);
        RC_ASSERT(Figura(producto, 3) == suma[2]);
    }
    RC_ASSERT(Declaracion()[28] == Valor(total));
}

TEST_F(cZTAnexosTest, AProductOutOfRangeIsRaisedAndNothingChanges) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 1, 1, 100}})));
    const Tabla antes = Cargar();
    for (const qint16 producto : {qint16{0}, qint16{7}, qint16{-1}}) {
        EXPECT_EQ(NumeroDelError([&] {
                      (void)Guardar(Buffer({{m_uno, 2, 1, 1}, {m_uno, producto, 1, 1}}));
                  }),
                  9);
    }
    EXPECT_EQ(NumeroDelError([&] { (void)Guardar(Buffer({{m_uno, 6, 1, 1}}), Registro(3, Valor(1.0))); }), 9);
    EXPECT_EQ(Cargar(), antes);
}

TEST_F(cZTAnexosTest, ARefusalOfTheStoreIsFalseWithItsCauseAndNothingChanges) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 1, 1, 100}})));
    const Tabla antes = Cargar();
    const Registro sumas = Declaracion();
    auto servidor = Servidor();

    m_almacen.Usuario()->Base().exec("PRAGMA query_only = ON");
    EXPECT_FALSE(servidor.GuardarAnexos(Tabla(), std::nullopt, m_CSDC));
    EXPECT_TRUE(servidor.Causa.contains(QDir::toNativeSeparators(m_almacen.mdbmod())));
    CerrarAlmacenes();

    SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN IMMEDIATE");
    EXPECT_FALSE(servidor.GuardarAnexos(Tabla(), std::nullopt, m_CSDC));
    otra.exec("ROLLBACK");

    EXPECT_EQ(Cargar(), antes);
    EXPECT_EQ(Declaracion(), sumas);
    EXPECT_TRUE(servidor.GuardarAnexos(Tabla(), std::nullopt, m_CSDC));
    EXPECT_EQ(servidor.Causa, QString());
}

TEST_F(cZTAnexosTest, ADeclarationOrEstablishmentThatIsGoneIsARefusal) {
    EXPECT_FALSE(Servidor().GuardarAnexos(Tabla(), std::nullopt, 99));
    EXPECT_FALSE(Guardar(Buffer({{99, 1, 1, 100}})));
    EXPECT_TRUE(Cargar().EsNula());
}

TEST_F(cZTAnexosTest, TwoLinesOfTheSameEstablishmentAndProductAreRefusedWhole) {
    EXPECT_FALSE(Guardar(Buffer({{m_dos, 3, 1, 1}, {m_uno, 1, 1, 100}, {m_uno, 1, 2, 100}})));
    EXPECT_TRUE(Cargar().EsNula());
}

TEST_F(cZTAnexosTest, LinesForPrintingComeGroupedByEstablishmentInTheOrderOfTheCim) {
    ASSERT_TRUE(Guardar(Buffer({{m_uno, 4, 1, 0}, {m_dos, 2, 150, 1234, 24.04e6}, {m_uno, 1, 2, 0}})));
    const Tabla filas = Servidor().CargarEstablecimientos(m_CSDC);
    EXPECT_EQ(filas.UltimaColumna(), 8);
    ASSERT_EQ(filas.UltimaFila(), 3);
    EXPECT_EQ(filas(0, 1), Valor(u"20ES100X"_s));
    EXPECT_EQ(filas(1, 1), Valor(u"CARRETERA 1"_s));
    EXPECT_EQ(filas(2, 1), Valor(qint16{20}));
    EXPECT_EQ(filas(3, 1), Valor(u"AGERLEKUAIN"_s));
    EXPECT_EQ(filas(4, 1), Valor(qint16{2}));
    EXPECT_EQ(filas(5, 1), Valor(150.0));
    EXPECT_EQ(filas(6, 1), Valor(1234.0));
    EXPECT_EQ(filas(7, 1), Valor(24.04e6));
    EXPECT_EQ(filas(8, 1), Valor(29665.0));
    EXPECT_EQ(filas(0, 2), Valor(u"20ES200X"_s));
    EXPECT_EQ(filas(4, 2), Valor(qint16{1}));
    EXPECT_EQ(filas(4, 3), Valor(qint16{4}));
}

TEST_F(cZTAnexosTest, LinesThatAnotherProgramHasStoredSinceTheyWereReadAreNotReplaced) {
    auto uno = m_almacen.Con<svrZELT::cZTAnexos>();
    auto otro = m_almacen.Con<svrZELT::cZTAnexos>();
    EstadoLeido leidoPorUno;
    EstadoLeido leidoPorOtro;
    (void)uno.CargarAnexos(m_CSDC, &leidoPorUno);
    (void)otro.CargarAnexos(m_CSDC, &leidoPorOtro);
    EXPECT_TRUE(
        uno.GuardarAnexos(Buffer({{.CSES = m_uno, .BASIM = 100}}), std::nullopt, m_CSDC, &leidoPorUno));
    EXPECT_FALSE(uno.CambiadaPorOtro);
    const Tabla guardadas = uno.CargarAnexos(m_CSDC);
    EXPECT_FALSE(
        otro.GuardarAnexos(Buffer({{.CSES = m_dos, .BASIM = 200}}), std::nullopt, m_CSDC, &leidoPorOtro));
    EXPECT_TRUE(otro.CambiadaPorOtro);
    EXPECT_FALSE(otro.Causa.isEmpty());
    EXPECT_EQ(otro.CargarAnexos(m_CSDC), guardadas);
    EXPECT_TRUE(
        uno.GuardarAnexos(Buffer({{.CSES = m_uno, .BASIM = 300}}), std::nullopt, m_CSDC, &leidoPorUno));
}

TEST_F(cZTAnexosTest, LinesOfADeclarationThatIsAnotherOneNowAreNotStored) {
    EstadoLeido leido;
    auto servidor = m_almacen.Con<svrZELT::cZTAnexos>();
    (void)servidor.CargarAnexos(m_CSDC, &leido);
    m_almacen.Usuario()->Base().exec("UPDATE T07_DECLARACIONES SET T07_PERIODO = 3");
    EXPECT_FALSE(
        servidor.GuardarAnexos(Buffer({{.CSES = m_uno, .BASIM = 100}}), std::nullopt, m_CSDC, &leido));
    EXPECT_TRUE(servidor.CambiadaPorOtro);
    EXPECT_TRUE(servidor.CargarAnexos(m_CSDC).EsNula());
}
