// SPDX-License-Identifier: MIT
#include "support/GTest.h"

#include <widgets/WholePixels.h>

#include <limits>

TEST(WholePixels, cuts_the_fraction_and_limits_the_rest)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, int> rows[] = {{0.0, 0},
                                           {0.9, 0},
                                           {-0.9, 0},
                                           {1.0, 1},
                                           {20.9, 20},
                                           {-20.9, -20},
                                           {16777215.0, 16777215},
                                           {16777216.0, 16777216},
                                           {1e9, 16777216},
                                           {1e300, 16777216},
                                           {infinity, 16777216},
                                           {-1e9, -16777216},
                                           {-infinity, -16777216},
                                           {std::numeric_limits<double>::quiet_NaN(), 0}};
    for (const auto& [length, pixels] : rows)
    {
        EXPECT_EQ(WholePixels(length), pixels) << length;
    }
}
