#include "core/base/Fraccion.h"

#include <gtest/gtest.h>

#include <concepts>

static_assert(!std::same_as<Centesimas, Millonesimas>);
static_assert(!std::convertible_to<double, Centesimas> && !std::convertible_to<Centesimas, double>);
static_assert(!std::convertible_to<Centesimas, Millonesimas> &&
              !std::constructible_from<Centesimas, Millonesimas>);

TEST(Fraccion, TheStoredValueIsKeptAsItIs) {
    EXPECT_EQ(Centesimas().Guardado(), 0.0);
    EXPECT_EQ(Centesimas(1234.5678).Guardado(), 1234.5678);
    EXPECT_EQ(Millonesimas(-0.25).Guardado(), -0.25);
}

TEST(Fraccion, ThePublicScaleIsAHundredthOrAMillionthOfTheStoredOne) {
    EXPECT_EQ(Centesimas(1234.0).Publico(), 12.34);
    EXPECT_EQ(Millonesimas(24'040'000.0).Publico(), 24.04);
}

TEST(Fraccion, NothingIsRoundedOnTheWayIn) {
    EXPECT_EQ(Centesimas::DePublico(0.125).Guardado(), 12.5);
    EXPECT_EQ(Millonesimas::DePublico(0.0000005).Guardado(), 0.0000005 * 1'000'000);
    // 1.15 is a little less than that, and so is its hundredfold.
    EXPECT_EQ(Centesimas::DePublico(1.15).Guardado(), 1.15 * 100);
    EXPECT_NE(Centesimas::DePublico(1.15).Guardado(), 115.0);
}

TEST(Fraccion, ReadingRoundsToTheDecimalsOfTheUnitHalvesAwayFromZero) {
    EXPECT_EQ(Centesimas(12.5).Redondeado(), 0.13);
    EXPECT_EQ(Centesimas(-12.5).Redondeado(), -0.13);
    EXPECT_EQ(Millonesimas(0.4).Redondeado(), 0.0);
    EXPECT_EQ(Millonesimas(24'040'000.4).Redondeado(), 24.04);
}

TEST(Fraccion, ReadingRoundsToOtherDecimalsWhereAsked) {
    EXPECT_EQ(Centesimas(12.5).Redondeado(6), 0.125);
    EXPECT_EQ(Centesimas(12.50004).Redondeado(6), 0.125);
}

TEST(Fraccion, FiguresOfAUnitAddUpAndCompareOnTheStoredScale) {
    Centesimas suma;
    suma += Centesimas(1.0);
    suma += Centesimas(-3.5);
    EXPECT_EQ(suma, Centesimas(-2.5));
    EXPECT_EQ(Centesimas(1.0) + Centesimas(2.0), Centesimas(3.0));
    EXPECT_LT(suma, Centesimas());
    EXPECT_EQ(Centesimas(-0.0), Centesimas(0.0));
}
