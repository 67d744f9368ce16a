#include "base/Color.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Color, IsSixDigits) {
    EXPECT_EQ(toHex({0, 0x78, 0xD4}), "0078D4");
    EXPECT_EQ(toHex(kBlack), "000000");
    EXPECT_EQ(toHex(kWhite), "FFFFFF");
}

} // namespace
} // namespace orvane
