#include "base/Units.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Units, AreMadeOfPoints) {
    EXPECT_EQ(twipsFromPoints(72), Twips(1440));
    EXPECT_EQ(halfPointsFromPoints(10.5), HalfPoints(21));
    EXPECT_EQ(eighthPointsFromPoints(0.5), EighthPoints(4));
    EXPECT_EQ(emuFromPoints(72), Emu(914400)) << "an inch";
}

TEST(Units, AreRoundedNotCut) {
    EXPECT_EQ(twipsFromPoints(0.049), Twips(1));
    EXPECT_EQ(twipsFromPoints(-0.049), Twips(-1));
    EXPECT_EQ(halfPointsFromPoints(11.9999), HalfPoints(24));
}

TEST(Units, TurnIntoEachOther) {
    EXPECT_DOUBLE_EQ(pointsFromTwips(Twips(30)), 1.5);
    EXPECT_EQ(emuFromTwips(Twips(1440)), Emu(914400));
    EXPECT_EQ(emuFromTwips(Twips(2'000'000'000)), Emu(1'270'000'000'000)) << "past 32 bits";
}

TEST(Units, AreAddedAndCompared) {
    Twips sum = Twips(3) + Twips(4);
    EXPECT_EQ(sum, Twips(7));
    sum += Twips(1);
    EXPECT_EQ(sum - Twips(10), -Twips(2));
    EXPECT_LT(Twips(-1), Twips());
}

} // namespace
} // namespace orvane
