#include "engine/layout/PageReading.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using pdf::tests::PageContentBuilder;
using tests::read;

TEST(SmallCaps, ReadsSmallerCapitalsAsSmallLetters) {
    PageContentBuilder page;
    double x = page.text(72, 100, "R", 10);
    x = page.text(x, 100, "ELATED ", 8);
    x = page.text(x, 100, "W", 10);
    x = page.text(x, 100, "ORK AND ", 8);
    x = page.text(x, 100, "M", 10);
    page.text(x, 100, "ORE", 8);
    const Line line = read(page).lines.at(0);
    EXPECT_EQ(textOf(line), "Related Work and More");
    ASSERT_EQ(line.words[0].spans.size(), 2u);
    EXPECT_FALSE(line.words[0].spans[0].look.isSmallCaps);
    EXPECT_TRUE(line.words[0].spans[1].look.isSmallCaps);
    EXPECT_EQ(line.words[0].spans[1].look.size, 10);
    EXPECT_TRUE(line.words[2].spans[0].look.isSmallCaps) << "a word without capitals";
    EXPECT_EQ(line.fontSize, 10);
}

TEST(SmallCaps, LeavesSmallerTextAlone) {
    PageContentBuilder page;
    double x = page.text(72, 100, "A", 10);
    x = page.text(x, 100, "BC and small print", 8);
    EXPECT_EQ(textOf(read(page).lines.at(0)), "ABC and small print");
}

} // namespace
} // namespace orvane::layout
