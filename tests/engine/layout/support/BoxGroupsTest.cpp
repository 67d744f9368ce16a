#include "layout/support/BoxGroups.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>
#include <random>

namespace orvane::layout {
namespace {

using testing::ElementsAre;
using Groups = std::vector<std::vector<std::size_t>>;

Groups groupsOf(const std::vector<Rect>& boxes, double gap) {
    BoxGroups groups(gap);
    for (const Rect& box : boxes)
        groups.add(box);
    return groups.groups();
}

TEST(BoxGroups, JoinsWhatLiesWithinAnotherOrNearIt) {
    const Rect inner{90, 40, 100, 60}, outer{0, 0, 100, 100}, beside{101, 50, 110, 55}, far{103, 200, 110, 210};
    EXPECT_THAT(groupsOf({inner, far, beside, outer}, 2), ElementsAre(ElementsAre(0, 2, 3), ElementsAre(1)));
    EXPECT_THAT(groupsOf({inner, far, beside, outer}, 0.5),
                ElementsAre(ElementsAre(0, 3), ElementsAre(1), ElementsAre(2)));
}

TEST(BoxGroups, JoinsLinesWithoutBreadth) {
    EXPECT_THAT(groupsOf({{0, 10, 50, 10}, {50, 10, 50, 80}, {49, 81, 60, 90}, {0, 12, 40, 12}}, 1),
                ElementsAre(ElementsAre(0, 1, 2), ElementsAre(3)));
}

TEST(BoxGroups, TakesLittleTimeForThousandsOfBoxesOverThePage) {
    std::minstd_rand random(7);
    const auto upTo = [&](int most) { return static_cast<double>(random() % static_cast<unsigned>(most)); };
    std::vector<Rect> boxes;
    for (int i = 0; i < 20000; ++i)
        boxes.push_back({upTo(100), upTo(100), 500 + upTo(100), 700 + upTo(100)});
    const std::clock_t start = std::clock();
    EXPECT_EQ(groupsOf(boxes, 1).size(), 1u);
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 0.5);
}

} // namespace
} // namespace orvane::layout
