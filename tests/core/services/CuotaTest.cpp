#include "core/services/Cuota.h"

#include <gtest/gtest.h>

TEST(Cuota, TheWorkedExampleIsInWholeHundredths) {
    EXPECT_EQ(CuotaDe(Centesimas(1234.0), Millonesimas(24'040'000.0)).Publico(), 296.65);
}

TEST(Cuota, BaseAndRateAreRoundedToTheirDecimalsFirst) {
    // 12.344 is taken as 12.34, and 24.0000004 as 24.
    EXPECT_EQ(CuotaDe(Centesimas(1234.4), Millonesimas(24'000'000.0)).Publico(), 296.16);
    EXPECT_EQ(CuotaDe(Centesimas(1'000'000'000.0), Millonesimas(24'000'000.4)).Publico(), 240'000'000.0);
}

TEST(Cuota, TheProductIsRoundedOnceHalvesAwayFromZero) {
    // 0.25 x 0.5 is 0.125.
    EXPECT_EQ(CuotaDe(Centesimas(25.0), Millonesimas(500'000.0)).Publico(), 0.13);
    EXPECT_EQ(CuotaDe(Centesimas(-25.0), Millonesimas(500'000.0)).Publico(), -0.13);
}
