#include "layout/text/DrawnBoxes.h"

#include "layout/text/LineText.h"

#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

#include <functional>

namespace orvane::layout {
namespace {

using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<pdf::FormField> boxesOf(const PageContentBuilder& page) {
    return findDrawnBoxes(page.content(), {});
}

/// A box of 10 points on the line at `y`.
Rect boxAt(double x, double y) {
    return {x, y - 8, x + 10, y + 2};
}

TEST(DrawnBoxes, AreSignsOfTheTextTheyStandBeside) {
    PageContentBuilder page;
    page.strokedRectangle(boxAt(72, 100));
    page.text(86, 100, "no diploma", 10);
    page.strokedRectangle(boxAt(72, 112));
    page.text(86, 112, "some college", 10);
    page.text(72, 124, "male", 10);
    page.strokedRectangle(boxAt(100, 124));
    page.content().fields = boxesOf(page);
    EXPECT_THAT(tests::linesOf(page), ElementsAre("\u2610 no diploma", "\u2610 some college", "male \u2610"));
    EXPECT_THAT(tests::read(page).rules, IsEmpty());
}

TEST(DrawnBoxes, HaveAWhiteGroundOrAFrame) {
    PageContentBuilder page;
    page.filledRectangle(boxAt(72, 100), kWhite);
    page.strokedRectangle({71.7, 91.7, 82.3, 102.3});
    page.text(86, 100, "yes", 10);
    pdf::Path& ring = page.newPath();
    for (const Rect& box : {boxAt(72, 130), Rect{72.5, 122.5, 81.5, 131.5}})
        ring.segments.insert(ring.segments.end(), {{pdf::PathVerb::Move, {}, {}, {box.left, box.top}},
                                                   {pdf::PathVerb::Line, {}, {}, {box.right, box.top}},
                                                   {pdf::PathVerb::Line, {}, {}, {box.right, box.bottom}},
                                                   {pdf::PathVerb::Line, {}, {}, {box.left, box.bottom}},
                                                   {pdf::PathVerb::Close, {}, {}, {}}});
    ring.fill = pdf::FillStyle{kBlack, true, false, 1, nullptr};
    ring.box = boxAt(72, 130);
    page.text(86, 130, "no", 10);
    EXPECT_EQ(boxesOf(page).size(), 2u);
}

TEST(DrawnBoxes, AreOnWithAMarkInThem) {
    using Draw = std::function<void(PageContentBuilder&)>;
    struct Row {
        Draw draw;
        bool isOn;
        const char* why;
    };
    const Row rows[] = {
        {[](PageContentBuilder&) {}, false, "nothing"},
        {[](PageContentBuilder& page) {
             page.line({72, 92}, {82, 102});
             page.line({82, 92}, {72, 102});
         },
         true, "a cross"},
        {[](PageContentBuilder& page) {
             page.line({74, 97}, {76, 100});
             page.line({76, 100}, {83, 91});
         },
         true, "a tick that sticks out"},
        {[](PageContentBuilder& page) { page.text(74, 100, "X", 10); }, true, "a letter"},
        {[](PageContentBuilder& page) { page.text(74, 100, "  ", 10); }, false, "blanks"},
    };
    for (const Row& row : rows) {
        PageContentBuilder page;
        page.strokedRectangle(boxAt(72, 100));
        page.text(86, 100, "agreed", 10);
        row.draw(page);
        ASSERT_EQ(boxesOf(page).size(), 1u) << row.why;
        EXPECT_EQ(boxesOf(page).front().isOn, row.isOn) << row.why;
    }
}

TEST(DrawnBoxes, AreNoOtherSquares) {
    using Draw = std::function<void(PageContentBuilder&)>;
    struct Row {
        Draw draw;
        const char* why;
    };
    const Row rows[] = {
        {[](PageContentBuilder& page) {
             for (int i = 0; i < 5; ++i)
                 page.strokedRectangle(boxAt(100 + 10 * i, 100));
         },
         "a comb for digits"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle(boxAt(100, 100));
             page.strokedRectangle(boxAt(113, 100));
         },
         "two boxes for digits with a gap"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle(boxAt(100, 100));
             page.strokedRectangle({110, 92, 200, 102});
         },
         "a cell beside another one"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle(boxAt(100, 100));
             page.horizontalRule(60, 105, 97);
         },
         "the end of a line in a diagram"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle(boxAt(100, 100));
             page.horizontalRule(102, 108, 97);
             page.verticalRule(105, 94, 100);
         },
         "a branch to be opened"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle(boxAt(100, 100));
             page.text(102, 100, "A", 8);
         },
         "a letter in a frame"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle({100, 85, 120, 105});
         },
         "too large"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle({100, 97, 103, 100});
         },
         "too small"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle({100, 92, 114, 102});
         },
         "no square"},
        {[](PageContentBuilder& page) { page.strokedRectangle(boxAt(100, 112)); }, "on no line of text"},
        {[](PageContentBuilder& page) { page.strokedRectangle(boxAt(150, 100)); }, "far from the text"},
        {[](PageContentBuilder& page) { page.filledRectangle(boxAt(100, 100), kBlack); }, "a bullet"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle(boxAt(100, 100));
             for (int i = 0; i < 3; ++i)
                 page.strokedRectangle(boxAt(200 + 40 * i, 300 - 30 * i));
         },
         "the key of a chart, whose points look alike"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle(boxAt(100, 100));
             for (int i = 1; i < 3; ++i) {
                 page.filledRectangle(boxAt(100, 100 + 14 * i), {0, 0, 200});
                 page.text(114, 100 + 14 * i, "series", 10);
             }
         },
         "a key among filled ones"},
        {[](PageContentBuilder& page) {
             page.strokedRectangle(boxAt(100, 100));
             page.content().fields.emplace_back().box = boxAt(100, 100);
         },
         "a field of the form"},
    };
    for (const Row& row : rows) {
        PageContentBuilder page;
        page.text(72, 100, "Place", 10);
        row.draw(page);
        EXPECT_THAT(boxesOf(page), IsEmpty()) << row.why;
    }
}

TEST(DrawnBoxes, MayStandOneUponTheOther) {
    PageContentBuilder page;
    for (int i = 0; i < 3; ++i) {
        page.strokedRectangle(boxAt(72, 100 + 10 * i));
        page.text(86, 100 + 10 * i, "one of them", 9);
    }
    page.horizontalRule(60, 300, 122);
    EXPECT_EQ(boxesOf(page).size(), 3u);
}

} // namespace
} // namespace orvane::layout
