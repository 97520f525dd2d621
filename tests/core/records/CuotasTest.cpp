// Quotas and their sums against exact whole numbers.

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include "core/base/Conversiones.h"
#include "core/records/ListaDeEstablecimientos.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/services/Cuota.h"
#include "tests/support/AlmacenRapido.h"
#include "tests/support/EntornoDeDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

/// Largest base that the boxes take, 99,999,999,999.99, in hundredths.
constexpr qint64 kBaseMaxima = 9'999'999'999'999;
/// A rate of 100 of money by unit, above any in force, in millionths.
constexpr qint64 kTasaMaxima = 100'000'000;
/// Hundredths times millionths in a hundredth of money.
constexpr qint64 kPartes = 1'000'000;

__extension__ using Entero128 = __int128;

double Cantidad(qint64 guardada) { return Centesimas(static_cast<double>(guardada)).Publico(); }
double Tipo(qint64 guardado) { return Millonesimas(static_cast<double>(guardado)).Publico(); }

/// Quota in hundredths as the program computes it.
qint64 Cuota(qint64 base, qint64 tasa) {
    return std::llround(
        CuotaDe(Centesimas(static_cast<double>(base)), Millonesimas(static_cast<double>(tasa))).Guardado());
}

/// The exact quota, halves away from zero.
qint64 CuotaExacta(qint64 base, qint64 tasa) {
    const Entero128 producto = static_cast<Entero128>(base) * tasa;
    const Entero128 mitad = producto < 0 ? -kPartes / 2 : kPartes / 2;
    return static_cast<qint64>((producto + mitad) / kPartes);
}

/// How far the exact product is from the half between two hundredths, in hundredths.
double DistanciaALaMitad(qint64 base, qint64 tasa) {
    const auto resto = static_cast<qint64>(static_cast<Entero128>(base) * tasa % kPartes);
    return std::fabs(std::fabs(static_cast<double>(resto)) - kPartes / 2.0) / kPartes;
}

/// What the product of two doubles can be off, in hundredths: half a unit in the last place of each factor
/// and of the product, and as much again for taking its decimals.
double ErrorDelProducto(qint64 base, qint64 tasa) {
    const double producto = Centesimas::DePublico(std::fabs(Cantidad(base) * Tipo(tasa))).Guardado();
    return 2 * producto * std::numeric_limits<double>::epsilon();
}

class ListaVacia : public ListaDeEstablecimientos {
  public:
    [[nodiscard]] int Cuenta() const override { return 0; }
    [[nodiscard]] QString Texto(int /*i*/) const override { return {}; }
    void PonerSubitem(int /*i*/, int /*k*/, const QString& /*texto*/) override {}
};

class CuotasTest : public EntornoDeDeclaraciones {};

}  // namespace

TEST(Cuotas, TheWorkedExampleIsRoundedOnce) { EXPECT_EQ(Cuota(1234, 24'040'000), 29665); }

// A base and a rate are decimal numbers, which doubles hold to 1 in 10^16 only. Their product can therefore
// come out on the wrong side of a half when the exact product is a half of a hundredth, or nearer to it than
// the error of the product. Nothing corrects that. Everywhere else the quota is the exact one.
TEST(Cuotas, TheQuotaIsTheExactOneUnlessTheProductFallsOnAHalf) {
    std::mt19937_64 azar(569);
    std::uniform_int_distribution<qint64> bases(-kBaseMaxima, kBaseMaxima);
    std::uniform_int_distribution<qint64> tasas(0, kTasaMaxima);
    int comparadas = 0;
    constexpr int kMuestra = 1'000'000;
    for (int i = 0; i < kMuestra; ++i) {
        // All sizes of numbers.
        const qint64 base = bases(azar) >> (i % 40);
        const qint64 tasa = tasas(azar) >> (i % 26);
        if (DistanciaALaMitad(base, tasa) > ErrorDelProducto(base, tasa)) {
            ++comparadas;
            ASSERT_EQ(Cuota(base, tasa), CuotaExacta(base, tasa)) << base << " x " << tasa;
        }
    }
    EXPECT_GT(comparadas, kMuestra * 9 / 10);
}

TEST(Cuotas, WithRatesOfWholeHundredthsOfMoneyAndBasesOfUpToABillionEveryQuotaIsExact) {
    // Bases of two decimals by such rates give products of four decimals; the error of the product stays
    // below half of the last one. Halves, where it could tip over, are left out.
    std::mt19937_64 azar(2007);
    std::uniform_int_distribution<qint64> bases(0, 100'000'000'000);
    std::uniform_int_distribution<qint64> tasas(0, 10'000);
    for (int i = 0; i < 200'000; ++i) {
        const qint64 base = bases(azar);
        const qint64 tasa = tasas(azar) * 10'000;
        if (DistanciaALaMitad(base, tasa) > 0) {
            ASSERT_EQ(Cuota(base, tasa), CuotaExacta(base, tasa)) << base << " x " << tasa;
        }
    }
}

TEST(Cuotas, WithTheRatesInForceEveryQuotaIsExact) {
    std::mt19937_64 azar(2012);
    std::uniform_int_distribution<qint64> bases(-kBaseMaxima, kBaseMaxima);
    for (int i = 0; i < 200'000; ++i) {
        const qint64 base = bases(azar) >> (i % 40);
        for (const qint64 tasa : {24'000'000, 6'000'000, 1'000'000}) {
            ASSERT_EQ(Cuota(base, tasa), CuotaExacta(base, tasa)) << base << " x " << tasa;
        }
    }
}

TEST(Cuotas, HalvesThatDoublesHoldGoAwayFromZero) {
    // 0.25 x 0.5 and 0.75 x 0.5: 0.125 and 0.375.
    EXPECT_EQ(Cuota(25, 500'000), 13);
    EXPECT_EQ(Cuota(75, 500'000), 38);
    EXPECT_EQ(Cuota(-25, 500'000), -13);
}

TEST_F(CuotasTest, SumsOverAThousandEstablishmentsAreExactToTheHundredth) {
    NoEsperarAlDisco();
    constexpr int kEstablecimientos = 1000;
    std::mt19937_64 azar(1000);
    std::uniform_int_distribution<qint64> cantidades(1, 99'999'999);
    oDeclaraciones().CSDC = NuevaDeclaracion(2007, 1);
    oDeclaraciones().Ejercicio = 2007;
    oDeclaraciones().Periodo = 1;
    oAnexos().ComprobarDiferenciasDeTipo();

    ListaVacia lista;
    std::array<qint64, 5> exentos{};
    std::array<qint64, 5> bases{};
    std::array<qint64, 5> cuotas{};
    for (int i = 0; i < kEstablecimientos; ++i) {
        oAnexos().CSES = NuevoEstablecimiento(QString::number(i));
        oAnexos().InicializarDatos();
        for (std::size_t lugar = 0; lugar < bases.size(); ++lugar) {
            const int k = static_cast<int>(lugar) + 1;
            const qint64 exento = cantidades(azar);
            const qint64 base = cantidades(azar);
            oAnexos().TomarExento(k, NumeroATexto(Cantidad(exento)));
            oAnexos().TomarBaseImp(k, NumeroATexto(Cantidad(base)));
            exentos.at(lugar) += exento;
            bases.at(lugar) += base;
            cuotas.at(lugar) +=
                CuotaExacta(base, std::llround(Millonesimas::DePublico(kTasasEnVigor.at(lugar)).Guardado()));
        }
        oAnexos().GuardarAnexo(lista);
    }
    ASSERT_TRUE(oAnexos().GuardarDeclaracion());
    oDeclaraciones().InicializarDatos();

    for (std::size_t lugar = 0; lugar < bases.size(); ++lugar) {
        const int k = static_cast<int>(lugar) + 1;
        EXPECT_EQ(oDeclaraciones().SUMEX(k), Cantidad(exentos.at(lugar)));
        EXPECT_EQ(oDeclaraciones().BASIM(k), Cantidad(bases.at(lugar)));
        EXPECT_EQ(oDeclaraciones().CUOTA(k), Cantidad(cuotas.at(lugar)));
    }
    const qint64 total = std::accumulate(cuotas.begin(), cuotas.end(), qint64{0});
    EXPECT_EQ(oDeclaraciones().TOTCUO(), Cantidad(total));
}
