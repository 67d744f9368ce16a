#include "layout/fonts/SqueezedLines.h"

#include "layout/fonts/FamilyWidths.h"

#include "base/Utf8.h"
#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::Alignment;

constexpr const char* kText = "Seldom was so much said with so few words as here";

/// What the text takes in Times New Roman of ten points, each blank as wide as the font's.
double naturalLength() {
    return 10 * naturalWidth(utf32FromUtf8(kText), "Times New Roman", {}).value();
}

/// The stretch of the font of a paragraph with lines of these widths, each a share of their natural one.
int percentOf(const std::vector<double>& widths, Alignment alignment = Alignment::Justified) {
    DocumentDraft draft = tests::makeDraft(1);
    std::vector<Line> lines;
    for (const double width : widths) {
        lines.push_back(tests::makeLine(kText, 72, 100 + 12 * static_cast<double>(lines.size())));
        lines.back().box.right = lines.back().box.left + width * naturalLength();
    }
    ParagraphDraft paragraph = tests::makeParagraph(std::move(lines));
    paragraph.alignment = alignment;
    draft.blocks.push_back(tests::makeBlock(std::move(paragraph)));
    std::vector<std::vector<MappedFont>> fonts = {{standIn("Times New Roman")}};
    narrowSqueezedFonts(fonts, draft, FontParameters::Squeeze());
    return fonts[0][0].widthPercent;
}

/// `squeezed` lines of 0.985 of their natural width among twenty.
std::vector<double> mixed(std::size_t squeezed) {
    std::vector<double> widths(20, 1.01);
    std::fill_n(widths.begin(), squeezed, 0.985);
    return widths;
}

TEST(SqueezedLines, NarrowTheirFontSoThatNearlyAllFit) {
    EXPECT_EQ(percentOf(mixed(10)), 98);
    EXPECT_EQ(percentOf(mixed(3)), 98);
}

TEST(SqueezedLines, AreNoneWhereLinesAreStretchedOnly) {
    EXPECT_EQ(percentOf(mixed(0)), 100);
    EXPECT_EQ(percentOf(mixed(1)), 100) << "one in twenty is chance";
}

TEST(SqueezedLines, CountInJustifiedTextOnly) {
    EXPECT_EQ(percentOf(mixed(10), Alignment::Start), 100);
}

TEST(SqueezedLines, LeaveOutWhatDoesNotFitAtAll) {
    EXPECT_EQ(percentOf(std::vector<double>(20, 0.8)), 100) << "another font than thought";
}

} // namespace
} // namespace orvane::layout
