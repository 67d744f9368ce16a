#include "layout/graphics/PageColor.h"

#include "engine/layout/TextBuilder.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makePage;

constexpr Color kYellow{255, 255, 204};

/// Pages of which so many have a yellow ground from edge to edge, with a cell's ground upon it.
std::vector<PageText> pagesWith(int yellow, int plain) {
    std::vector<PageText> pages;
    for (int i = 0; i < yellow + plain; ++i) {
        PageText page = makePage(i + 1);
        page.grounds.push_back({{72, 72, 200, 100}, {0, 0, 255}, 1, false, 2, {}});
        if (i < yellow)
            page.grounds.push_back({{0, 0, page.width, page.height}, kYellow, 1, false, 1, {}});
        pages.push_back(std::move(page));
    }
    return pages;
}

TEST(PageColor, IsTheColorOfAllPages) {
    std::vector<PageText> pages = pagesWith(3, 0);
    EXPECT_EQ(takePageColor(pages, {}), kYellow);
    for (const PageText& page : pages) {
        ASSERT_EQ(page.grounds.size(), 1u);
        EXPECT_EQ(page.grounds[0].color, (Color{0, 0, 255}));
    }
}

TEST(PageColor, IsNotThatOfAFewPages) {
    std::vector<PageText> pages = pagesWith(2, 2);
    EXPECT_EQ(takePageColor(pages, {}), std::nullopt);
    EXPECT_EQ(pages[0].grounds.size(), 2u);
}

TEST(PageColor, ReachesToTheEdgesBelowEverything) {
    std::vector<PageText> pages = pagesWith(1, 0);
    pages[0].grounds[1].box.left = 36;
    EXPECT_EQ(takePageColor(pages, {}), std::nullopt) << "a frame of bare paper";
    pages = pagesWith(1, 0);
    pages[0].grounds[1].paintOrder = 3;
    EXPECT_EQ(takePageColor(pages, {}), std::nullopt) << "painted over another ground";
}

} // namespace
} // namespace orvane::layout
