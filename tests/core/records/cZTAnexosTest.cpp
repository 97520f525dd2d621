#include "core/records/cZTAnexos.h"

#include "core/base/Modelo.h"
#include "core/records/ListaDeEstablecimientos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "tests/support/CambiosDeReferencia.h"
#include "tests/support/EntornoDeDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

class EstablecimientosGrabados : public ListaDeEstablecimientos {
  public:
    [[nodiscard]] int Cuenta() const override { return static_cast<int>(textos.size()); }
    [[nodiscard]] QString Texto(int i) const override { return textos.at(static_cast<std::size_t>(i) - 1); }
    void PonerSubitem(int i, int k, const QString& texto) override {
        puestos.push_back(u"%1/%2=%3"_s.arg(i).arg(k).arg(texto));
    }

    std::vector<QString> textos{u"10"_s, u"11"_s};
    /// "item/sub-item=text" of every change.
    std::vector<QString> puestos;
};

class cZTAnexosTest : public EntornoDeDeclaraciones {
  protected:
    /// Figures of product `k` on the public scale.
    static void Poner(int k, double SUMEX, double BASIM, double TIPIM = 0, double CUOTA = 0) {
        oAnexos().SUMEX(k, SUMEX);
        oAnexos().BASIM(k, BASIM);
        oAnexos().TIPIM(k, TIPIM);
        oAnexos().CUOTA(k, CUOTA);
    }

    /// Makes the buffer of those lines: establishment, product and figures on the stored scale.
    struct Linea {
        qint32 CSES;
        qint16 producto;
        double SUMEX, BASIM, TIPIM, CUOTA;
        friend bool operator==(const Linea&, const Linea&) = default;
    };
    static void Buffer(const std::vector<Linea>& lineas) {
        Tabla buffer(7, static_cast<int>(lineas.size()));
        int fila = 0;
        for (const Linea& linea : lineas) {
            ++fila;
            buffer(0, fila) = qint32{100 + fila};
            buffer(1, fila) = qint32{1};
            buffer(2, fila) = linea.CSES;
            buffer(3, fila) = linea.producto;
            buffer(4, fila) = linea.SUMEX;
            buffer(5, fila) = linea.BASIM;
            buffer(6, fila) = linea.TIPIM;
            buffer(7, fila) = linea.CUOTA;
        }
        oAnexos().BufferAnexos = buffer;
    }
    static std::vector<Linea> Lineas() {
        const Tabla& b = oAnexos().BufferAnexos;
        std::vector<Linea> lineas;
        for (int fila = 1; fila <= b.UltimaFila(); ++fila) {
            lineas.push_back({b(2, fila).aEntero32(), b(3, fila).aEntero16(), b(4, fila).aDoble(),
                              b(5, fila).aDoble(), b(6, fila).aDoble(), b(7, fila).aDoble()});
        }
        return lineas;
    }
    static void PonerTasas(const std::array<double, 6>& millonesimas) {
        oAnexos().vBufferTasas = Registro(millonesimas.begin(), millonesimas.end());
    }

    EstablecimientosGrabados lista;
};

constexpr std::array<double, 6> kTasas{24'000'000, 24'000'000, 6'000'000, 1'000'000, 24'000'000, 6'000'000};

}  // namespace

TEST_F(cZTAnexosTest, FiguresAreWrittenAndReadOnThePublicScale) {
    for (int k = 1; k <= kProductos; ++k) {
        Poner(k, 1.25, 123.45, 24.04, 2967.74);
        EXPECT_EQ(oAnexos().SUMEX(k), 1.25);
        EXPECT_EQ(oAnexos().BASIM(k), 123.45);
        EXPECT_EQ(oAnexos().TIPIM(k), 24.04);
        EXPECT_EQ(oAnexos().CUOTA(k), 2967.74);
    }
    oAnexos().TOTCUO = 1.005;
    EXPECT_EQ(oAnexos().TOTCUO, 1.005);
}

TEST_F(cZTAnexosTest, QuantitiesAndQuotasAreReadWithTwoDecimalsAndRatesWithSix) {
    Poner(1, 1.254, -1.256, 0.0000014, 1.2549);
    EXPECT_EQ(oAnexos().SUMEX(1), 1.25);
    EXPECT_EQ(oAnexos().BASIM(1), -1.26);
    EXPECT_EQ(oAnexos().TIPIM(1), 0.000001);
    EXPECT_EQ(oAnexos().CUOTA(1), 1.25);
}

TEST_F(cZTAnexosTest, WritingRoundsNothing) {
    oAnexos().CSES = 10;
    Poner(1, 1.254, 0);
    oAnexos().GuardarAnexo(lista);
    EXPECT_EQ(Lineas().at(0).SUMEX, 1.254 * 100);
}

TEST_F(cZTAnexosTest, ThereIsNoOtherProduct) {
    EXPECT_EQ(NumeroDelError([] { (void)oAnexos().SUMEX(0); }), 9);
    EXPECT_EQ(NumeroDelError([] { oAnexos().BASIM(7, 1); }), 9);
}

TEST_F(cZTAnexosTest, TheEstablishmentsAreThoseOfTheOpenDeclarant) {
    oAnexos().RellenarEstDecl();
    EXPECT_TRUE(oAnexos().BufferEstDecl.EsNula());
    const qint32 cses = NuevoEstablecimiento(u"20ES123Y"_s);
    oAnexos().RellenarEstDecl();
    ASSERT_EQ(oAnexos().BufferEstDecl.UltimaFila(), 1);
    EXPECT_EQ(oAnexos().BufferEstDecl(0, 1), Valor(cses));
    EXPECT_EQ(oAnexos().BufferEstDecl(1, 1), Valor(u"20ES123Y"_s));
}

TEST_F(cZTAnexosTest, ProductsOfAnEstablishmentAreListedAscendingWithCommas) {
    EXPECT_EQ(oAnexos().ProductosEstablecimiento(10), QString());
    Buffer({{10, 5, 1, 0, 0, 0}, {11, 3, 1, 0, 0, 0}, {10, 1, 1, 0, 0, 0}, {10, 0, 1, 0, 0, 0}});
    EXPECT_EQ(oAnexos().ProductosEstablecimiento(10), u"1,5"_s);
    EXPECT_EQ(oAnexos().ProductosEstablecimiento(11), u"3"_s);
    EXPECT_EQ(oAnexos().ProductosEstablecimiento(12), QString());
}

TEST_F(cZTAnexosTest, FiveProductsAreListedAndSixAreAnIndexError) {
    std::vector<Linea> lineas;
    for (qint16 k = 1; k <= 5; ++k) {
        lineas.push_back({10, k, 1, 0, 0, 0});
    }
    Buffer(lineas);
    EXPECT_EQ(oAnexos().ProductosEstablecimiento(10), u"1,2,3,4,5"_s);
    lineas.push_back({10, 6, 1, 0, 0, 0});
    Buffer(lineas);
    EXPECT_EQ(DescripcionDelError([] { (void)oAnexos().ProductosEstablecimiento(10); }),
              TextoDeError(NumError::Subindice));
}

TEST_F(cZTAnexosTest, SixFiguresOfOneEstablishmentStopTheSaveInTheListUnderTheFixedName) {
    oAnexos().CSES = 10;
    for (int k = 1; k <= kProductos; ++k) {
        Poner(k, 1, 0);
    }
    EXPECT_EQ(DescripcionDelError([this] { oAnexos().GuardarAnexo(lista); }),
              u"cZTAnexos.GuardarAnexo\r\n"_s + TextoDeError(NumError::Subindice));
    EXPECT_EQ(Lineas().size(), 6U);
}

TEST_F(cZTAnexosTest, InitializingClearsFiguresAndKeepsRatesEstablishmentAndBuffers) {
    Poner(3, 1, 2, 3, 4);
    oAnexos().TOTCUO = 5;
    oAnexos().CSES = 10;
    Buffer({{10, 1, 1, 0, 0, 0}});
    oAnexos().InicializarDatos();
    EXPECT_EQ(oAnexos().SUMEX(3), 0.0);
    EXPECT_EQ(oAnexos().BASIM(3), 0.0);
    EXPECT_EQ(oAnexos().TIPIM(3), 3.0);
    EXPECT_EQ(oAnexos().CUOTA(3), 0.0);
    EXPECT_EQ(oAnexos().TOTCUO, 0.0);
    EXPECT_EQ(oAnexos().CSES, 10);
    EXPECT_EQ(Lineas().size(), 1U);
}

TEST_F(cZTAnexosTest, TheFirstFiguresMakeRow0AndALineForEachProductWithAny) {
    oAnexos().CSES = 10;
    oDeclaraciones().CSDC = 77;
    Poner(2, 1.5, 0, 24);
    Poner(5, 0, 2, 24, 48);
    EXPECT_FALSE(oAnexos().GuardarAnexo(lista));
    EXPECT_EQ(Lineas(), (std::vector<Linea>{{10, 2, 150, 0, 24e6, 0}, {10, 5, 0, 200, 24e6, 4800}}));
    const Tabla& b = oAnexos().BufferAnexos;
    EXPECT_EQ(b.UltimaColumna(), 7);
    for (int columna = 0; columna <= 7; ++columna) {
        EXPECT_TRUE(b(columna, 0).EsVacio());
    }
    EXPECT_TRUE(b(0, 1).EsVacio());
    EXPECT_EQ(b(1, 1), Valor(qint32{77}));
    EXPECT_EQ(b(2, 1), Valor(qint32{10}));
    EXPECT_EQ(b(3, 1), Valor(qint16{2}));
    EXPECT_TRUE(EsDoble(b(4, 1)));
    EXPECT_EQ(lista.puestos, std::vector<QString>{u"1/5=2,5"_s});
}

TEST_F(cZTAnexosTest, WithoutFiguresTheBufferGetsRow0Alone) {
    oAnexos().GuardarAnexo(lista);
    EXPECT_EQ(oAnexos().BufferAnexos.UltimaFila(), 0);
    EXPECT_TRUE(lista.puestos.empty());
}

TEST_F(cZTAnexosTest, BothFiguresAt0TakeTheLineAwayAndTheProductOffTheList) {
    Buffer({{10, 1, 100, 0, 0, 0}, {11, 2, 5, 6, 7, 8}, {10, 2, 0, 300, 0, 0}});
    oAnexos().CSES = 10;
    oAnexos().ObtenerAnexoEstab();
    oAnexos().SUMEX(1, 0);
    oAnexos().GuardarAnexo(lista);
    EXPECT_EQ(Lineas(), (std::vector<Linea>{{11, 2, 5, 6, 7, 8}, {10, 2, 0, 300, 0, 0}}));
    // The lines that stay keep all their columns.
    EXPECT_EQ(oAnexos().BufferAnexos(0, 1), Valor(qint32{102}));
    EXPECT_EQ(oAnexos().BufferAnexos(1, 2), Valor(qint32{1}));
    EXPECT_EQ(lista.puestos, std::vector<QString>{u"1/5=2"_s});
}

TEST_F(cZTAnexosTest, AfterTheLastLineRow0IsLeft) {
    Buffer({{10, 1, 100, 0, 0, 0}});
    oAnexos().CSES = 10;
    oAnexos().GuardarAnexo(lista);
    EXPECT_FALSE(oAnexos().BufferAnexos.EsNula());
    EXPECT_EQ(oAnexos().BufferAnexos.UltimaFila(), 0);
    EXPECT_EQ(lista.puestos, std::vector<QString>{u"1/5="_s});
}

TEST_F(cZTAnexosTest, AChangedFigureOfALineChangesNoListText) {
    Buffer({{11, 1, 5, 6, 7, 8}, {10, 1, 100, 0, 0, 0}});
    oAnexos().CSES = 10;
    Poner(1, 2, 3, 24, 72);
    oAnexos().GuardarAnexo(lista);
    EXPECT_EQ(Lineas(), (std::vector<Linea>{{11, 1, 5, 6, 7, 8}, {10, 1, 200, 300, 24e6, 7200}}));
    EXPECT_EQ(oAnexos().BufferAnexos(0, 2), Valor(qint32{102}));
    EXPECT_TRUE(lista.puestos.empty());
}

TEST_F(cZTAnexosTest, EveryItemOfTheEstablishmentShowsItsProducts) {
    lista.textos = {u"10"_s, u"11"_s, u"10"_s};
    oAnexos().CSES = 10;
    Poner(1, 1, 0);
    oAnexos().GuardarAnexo(lista);
    EXPECT_EQ(lista.puestos, (std::vector<QString>{u"1/5=1"_s, u"3/5=1"_s}));
}

TEST_F(cZTAnexosTest, ANegativeFigureUpdatesALineAndMakesNone) {
    Buffer({{10, 1, 100, 0, 0, 0}});
    oAnexos().CSES = 10;
    Poner(1, -1, 0);
    Poner(2, -1, 0);
    Poner(3, 0, -1);
    oAnexos().GuardarAnexo(lista);
    EXPECT_EQ(Lineas(), (std::vector<Linea>{{10, 1, -100, 0, 0, 0}}));
    EXPECT_TRUE(lista.puestos.empty());
    // Beside a figure above 0 it does get a line.
    Poner(4, -1, 2);
    oAnexos().GuardarAnexo(lista);
    EXPECT_EQ(Lineas().size(), 2U);
}

TEST_F(cZTAnexosTest, AnExemptQuantityAloneHasALineWithoutBaseAndQuota) {
    oAnexos().CSES = 10;
    PonerTasas(kTasas);
    oAnexos().TomarExento(1, u"3,5"_s);
    oAnexos().TomarBaseImp(1, QString());
    oAnexos().GuardarAnexo(lista);
    EXPECT_EQ(Lineas(), (std::vector<Linea>{{10, 1, 350, 0, 0, 0}}));
}

TEST_F(cZTAnexosTest, SavingTheAnnexNeitherReadsNorWritesModificado) {
    oAnexos().CSES = 10;
    Poner(1, 1, 0);
    oAnexos().GuardarAnexo(lista);
    EXPECT_FALSE(oAnexos().Modificado);
    EXPECT_EQ(Lineas().size(), 1U);
    oAnexos().Modificado = true;
    oAnexos().GuardarAnexo(lista);
    EXPECT_TRUE(oAnexos().Modificado);
}

TEST_F(cZTAnexosTest, TheFiguresOfAnEstablishmentComeOutOfItsLines) {
    Buffer(
        {{10, 1, 100, 200, 24e6, 4800}, {11, 2, 1, 2, 3, 4}, {10, 6, 300, 0, 6e6, 0}, {10, 7, 1, 1, 1, 1}});
    oAnexos().CSES = 10;
    oAnexos().ObtenerAnexoEstab();
    EXPECT_EQ(oAnexos().SUMEX(1), 1.0);
    EXPECT_EQ(oAnexos().BASIM(1), 2.0);
    EXPECT_EQ(oAnexos().TIPIM(1), 24.0);
    EXPECT_EQ(oAnexos().CUOTA(1), 48.0);
    EXPECT_EQ(oAnexos().SUMEX(6), 3.0);
    EXPECT_EQ(oAnexos().SUMEX(2), 0.0);
}

TEST_F(cZTAnexosTest, WithoutLinesFiguresAndRatesStayAsTheyWere) {
    oAnexos().CSES = 10;
    Poner(1, 1, 2, 24, 48);
    oAnexos().ObtenerAnexoEstab();
    EXPECT_EQ(oAnexos().BASIM(1), 2.0);
    Buffer({{11, 1, 5, 6, 7, 8}});
    oAnexos().InicializarDatos();
    oAnexos().ObtenerAnexoEstab();
    EXPECT_EQ(oAnexos().BASIM(1), 0.0);
    EXPECT_EQ(oAnexos().CUOTA(1), 0.0);
    EXPECT_EQ(oAnexos().TIPIM(1), 24.0);
}

TEST_F(cZTAnexosTest, RatesDifferWheneverOneIsNot0) {
    // The very rates of the table, on the scale of the store.
    cZTDeclaraciones& d = oDeclaraciones();
    d.Ejercicio = 2007;
    d.Periodo = 1;
    for (int k = 1; k <= kProductos; ++k) {
        d.TIPIM(k, kTasas.at(static_cast<std::size_t>(k) - 1));
    }
    oAnexos().ComprobarDiferenciasDeTipo();
    EXPECT_TRUE(oAnexos().DiferenciasDeTipo);
    ASSERT_TRUE(oAnexos().vBufferTasas.has_value());
    EXPECT_EQ(Tasa(oAnexos().vBufferTasas, 6), Valor(6e6));
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(cZTAnexosTest, OnlyWithAllSixRatesAt0OnBothSidesTheyDoNotDiffer) {
    cZTDeclaraciones& d = oDeclaraciones();
    d.Ejercicio = 2007;
    d.Periodo = 1;
    oAnexos().ComprobarDiferenciasDeTipo();
    EXPECT_TRUE(oAnexos().DiferenciasDeTipo) << "those of the table alone";

    CerrarAlmacenes();
    PonerTiposACero(Entorno().mdblec);
    oAnexos().ComprobarDiferenciasDeTipo();
    EXPECT_FALSE(oAnexos().DiferenciasDeTipo);
    for (int k = 1; k <= kProductos; ++k) {
        d.TIPIM(k, 24);
        oAnexos().ComprobarDiferenciasDeTipo();
        EXPECT_TRUE(oAnexos().DiferenciasDeTipo) << "product " << k << " of the declaration alone";
        d.TIPIM(k, 0);
    }
}

TEST_F(cZTAnexosTest, WithoutRatesInTheTableTheComparisonFails) {
    oDeclaraciones().Ejercicio = 2050;
    oDeclaraciones().Periodo = 1;
    EXPECT_EQ(DescripcionDelError([] { oAnexos().ComprobarDiferenciasDeTipo(); }),
              TextoDeError(NumError::NoCoincidenTipos));
    EXPECT_FALSE(oAnexos().vBufferTasas.has_value());
}

TEST_F(cZTAnexosTest, UpdatingTheRatesTakesThemOnTheScaleOfTheStore) {
    PonerTasas(kTasas);
    oAnexos().ActualizarTipos();
    for (int k = 1; k <= kProductos; ++k) {
        EXPECT_EQ(oAnexos().TIPIM(k), kTasasEnVigor.at(static_cast<std::size_t>(k) - 1));
    }
}

TEST_F(cZTAnexosTest, ALineWithAnotherRateGetsTheRateAndAQuotaByItsOwnFactor) {
    PonerTasas(kTasas);
    Buffer({{10, 1, 0, 12345, 20e6, 999}, {10, 2, 0, 12345, 24e6, 999}, {11, 4, 0, 1, 0, 999}});
    oAnexos().ActualizarTipos();
    EXPECT_EQ(Lineas().at(0).TIPIM, 24e6);
    EXPECT_EQ(Lineas().at(0).CUOTA, 24e6 * (12345.0 / 100) / 100'000'000);
    EXPECT_EQ(Lineas().at(1).CUOTA, 999.0);
    EXPECT_EQ(Lineas().at(2).TIPIM, 1e6);
    EXPECT_EQ(Lineas().at(2).CUOTA, 1e6 * 0.01 / 100'000'000);
}

TEST_F(cZTAnexosTest, UpdatingWithoutLinesChangesTheScreenAlone) {
    PonerTasas(kTasas);
    oAnexos().ActualizarTipos();
    EXPECT_TRUE(oAnexos().BufferAnexos.EsNula());
}

TEST_F(cZTAnexosTest, ABaseBringsItsQuota) {
    oAnexos().TIPIM(1, 24.04);
    oAnexos().TomarBaseImp(1, u"12,34"_s);
    EXPECT_EQ(oAnexos().BASIM(1), 12.34);
    EXPECT_EQ(oAnexos().CUOTA(1), 296.65);
    EXPECT_TRUE(oAnexos().Modificado);
}

TEST_F(cZTAnexosTest, ABaseBringsTheQuotasOfAllProducts) {
    for (int k = 1; k <= kProductos; ++k) {
        Poner(k, 0, 10, k, 0);
    }
    oAnexos().TomarBaseImp(1, u"10,00"_s);
    EXPECT_FALSE(oAnexos().Modificado);
    for (int k = 1; k <= kProductos; ++k) {
        EXPECT_EQ(oAnexos().CUOTA(k), 10.0 * k);
    }
    EXPECT_EQ(oAnexos().SumaCuotas(), 210.0);
}

TEST_F(cZTAnexosTest, AnExemptQuantityLeavesTheQuotas) {
    Poner(1, 0, 10, 24, 0);
    oAnexos().TomarExento(1, u"1.234,50"_s);
    EXPECT_EQ(oAnexos().SUMEX(1), 1234.5);
    EXPECT_EQ(oAnexos().CUOTA(1), 0.0);
    EXPECT_TRUE(oAnexos().Modificado);
}

TEST_F(cZTAnexosTest, ATextThatSaysWhatStandsIsNoChange) {
    Poner(1, 1234.5, 0);
    oAnexos().TomarExento(1, u"1.234,50"_s);
    oAnexos().TomarBaseImp(2, QString());
    EXPECT_FALSE(oAnexos().Modificado);
}

TEST_F(cZTAnexosTest, PendingRatesAreAppliedAtTheFirstChangeOnly) {
    PonerTasas(kTasas);
    oAnexos().DiferenciasDeTipo = true;
    Poner(1, 0, 10, 20, 200);
    oAnexos().TomarExento(1, QString());
    EXPECT_TRUE(oAnexos().DiferenciasDeTipo);
    EXPECT_EQ(oAnexos().TIPIM(1), 20.0);

    oAnexos().TomarExento(1, u"1"_s);
    EXPECT_FALSE(oAnexos().DiferenciasDeTipo);
    EXPECT_EQ(oAnexos().TIPIM(1), 24.0);
    EXPECT_EQ(oAnexos().CUOTA(1), 200.0);

    oAnexos().TIPIM(1, 20);
    oAnexos().TomarBaseImp(1, u"11"_s);
    EXPECT_EQ(oAnexos().TIPIM(1), 20.0);
    EXPECT_EQ(oAnexos().CUOTA(1), 220.0);
}

TEST_F(cZTAnexosTest, LinesGoToTheStoreOfTheOpenDeclarationAndComeBack) {
    oDeclaraciones().CSDC = NuevaDeclaracion(2007, 1);
    oAnexos().CSDC = 12345;
    oAnexos().CSES = NuevoEstablecimiento(u"20ES123Y"_s);
    PonerTasas(kTasas);
    oAnexos().ActualizarTipos();
    oAnexos().TomarExento(1, u"1,50"_s);
    oAnexos().TomarBaseImp(3, u"12,34"_s);
    oAnexos().GuardarAnexo(lista);
    EXPECT_TRUE(oAnexos().GuardarDeclaracion());
    EXPECT_EQ(oAnexos().CausaDelFallo, QString());

    oAnexos().BufferAnexos = Tabla();
    oAnexos().CargarAnexos();
    const qint32 cses = oAnexos().CSES;
    EXPECT_EQ(Lineas(), (std::vector<Linea>{{cses, 1, 150, 0, 24e6, 0}, {cses, 3, 0, 1234, 6e6, 7404}}));
    oDeclaraciones().CSDC = NuevaDeclaracion(2007, 2);
    oAnexos().CargarAnexos();
    EXPECT_TRUE(oAnexos().BufferAnexos.EsNula());
}

TEST_F(cZTAnexosTest, ARefusalOfTheStoreIsToldWithItsCause) {
    PerderElAlmacen();
    EXPECT_FALSE(oAnexos().GuardarDeclaracion());
    EXPECT_NE(oAnexos().CausaDelFallo, QString());
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(cZTAnexosTest, AFailureOfTheStoreClimbsUnderTheFixedNames) {
    PerderElAlmacen();
    EXPECT_TRUE(DescripcionDelError([] {
                    oAnexos().RellenarEstDecl();
                }).startsWith(u"cZTAnexos.RellenarEstDecl\r\n"_s));
    EXPECT_TRUE(
        DescripcionDelError([] { oAnexos().CargarAnexos(); }).startsWith(u"cZTAnexos.CargarAnexos\r\n"_s));
    EXPECT_FALSE(DescripcionDelError([] { oAnexos().ComprobarDiferenciasDeTipo(); }).startsWith(u"cZT"_s));
}

TEST_F(cZTAnexosTest, LinesThatAnotherProgramHasStoredSinceTheyWereReadAreNotReplaced) {
    const qint32 cses = NuevoEstablecimiento(u"20ES100X"_s);
    oDeclaraciones().CSDC = NuevaDeclaracion(2007, 2, {24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
    oAnexos().vBufferTasas = Registro{24e6, 24e6, 6e6, 1e6, 24e6, 6e6};
    oAnexos().CargarAnexos();
    Buffer({{cses, 1, 0, 100, 24e6, 0}});
    auto otro = ServidorDeUsuario<svrZELT::cZTAnexos>();
    ASSERT_TRUE(otro.GuardarAnexos(oAnexos().BufferAnexos, oAnexos().vBufferTasas, oDeclaraciones().CSDC));
    const Tabla guardadas = otro.CargarAnexos(oDeclaraciones().CSDC);
    Buffer({{cses, 2, 0, 500, 24e6, 0}});
    EXPECT_FALSE(oAnexos().GuardarDeclaracion());
    EXPECT_EQ(oAnexos().CausaDelFallo, TextoPropio(u"cambio_anexos"));
    EXPECT_EQ(otro.CargarAnexos(oDeclaraciones().CSDC), guardadas);
    oAnexos().CargarAnexos();
    EXPECT_TRUE(oAnexos().GuardarDeclaracion());
    EXPECT_TRUE(oAnexos().GuardarDeclaracion());
    EXPECT_EQ(oAnexos().CausaDelFallo, QString());
}
