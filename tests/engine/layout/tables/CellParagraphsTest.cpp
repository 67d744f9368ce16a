#include "layout/tables/CellParagraphs.h"

#include "engine/layout/LineArt.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using testing::ElementsAre;
using tests::makeLine;

std::vector<std::string> paragraphsOf(std::vector<Line> lines) {
    const PageText page = tests::makePage(1);
    return tests::textsOf(
        buildCellParagraphs(std::move(lines), {72, 80, 523, 140}, {72, 523}, {10, 12, page.fonts, {}}, {}, {}));
}

TEST(CellParagraphs, ReadASignOfAnotherFontWithItsLine) {
    EXPECT_THAT(paragraphsOf({makeLine("51 Add the lines above", 78, 100), makeLine(">", 500, 112),
                              makeLine("52", 78, 115), makeLine("Subtract the second", 110, 115)}),
                ElementsAre("51 Add the lines above", "52\tSubtract the second\t>"));
}

TEST(CellParagraphs, LeaveWordsOfAnotherBaselineOnALineOfTheirOwn) {
    EXPECT_THAT(paragraphsOf({makeLine("above", 300, 104), makeLine("below it", 78, 109)}),
                ElementsAre("above", "below it"));
}

} // namespace
} // namespace orvane::layout
