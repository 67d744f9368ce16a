#include "layout/support/TidyLength.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

TEST(TidyLength, TakesThePreferredLengthWhereItFits) {
    EXPECT_DOUBLE_EQ(tidyLength(60, 80, 71.3, 1), 71.3);
}

TEST(TidyLength, TakesARoundNumberElse) {
    EXPECT_DOUBLE_EQ(tidyLength(60, 80, 90, 1), 72) << "an inch";
    EXPECT_NEAR(tidyLength(55, 58, 90, 1), 56.69, 0.01) << "two centimetres";
    EXPECT_DOUBLE_EQ(tidyLength(60.1, 60.3, 90, 1), 60.2) << "nothing is round there";
    EXPECT_DOUBLE_EQ(tidyLength(60.1, 65, 90, 1), 61.1) << "not far from the lowest";
}

TEST(TidyLength, TellsWhereNothingIsRound) {
    EXPECT_EQ(tidyLengthWithin(60, 80, 71.3), 71.3);
    EXPECT_EQ(tidyLengthWithin(60, 80, 90), 72);
    EXPECT_EQ(tidyLengthWithin(60.1, 65, 90), std::nullopt);
}

TEST(TidyLength, MovesOnlyNearLengths) {
    EXPECT_DOUBLE_EQ(nearTidyLength(71.8, 0.4), 72);
    EXPECT_NEAR(nearTidyLength(70.7, 0.4), 70.87, 0.01);
    EXPECT_DOUBLE_EQ(nearTidyLength(66, 0.4), 66);
}

} // namespace
} // namespace orvane::layout
