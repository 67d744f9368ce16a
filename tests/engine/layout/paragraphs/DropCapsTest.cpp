#include "layout/paragraphs/DropCaps.h"

#include "layout/paragraphs/ParagraphBuilder.h"

#include "engine/layout/LineArt.h"
#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using document::DropCapKind;
using pdf::tests::PageContentBuilder;
using testing::ElementsAre;

/// Where the fourth line starts.
enum class Fourth { BelowTheCap, BelowTheText };

/// A letter over three lines, with two more lines below them.
PageContentBuilder pageWithCap(Fourth fourth) {
    PageContentBuilder page;
    const double x = page.text(72, 128, "O", 42) + 2;
    page.text(x, 104, "nce upon a time there was such a", 10);
    page.text(x, 116, "letter that stood over as many as", 10);
    page.text(x, 128, "three lines of its text, while the", 10);
    if (fourth == Fourth::BelowTheText) {
        page.text(x, 140, "fourth of them went on below it all", 10);
        page.text(x, 152, "and ended soon.", 10);
    } else {
        page.text(72, 140, "fourth of them went on below it to here", 10);
        page.text(72, 152, "and ended soon.", 10);
    }
    return page;
}

std::vector<ParagraphDraft> paragraphsOf(const PageText& page) {
    double right = 0;
    for (const Line& line : page.lines)
        right = std::max(right, line.box.right + 4);
    return buildParagraphs(page.lines, {72, right},
                           {.bodyFontSize = 10, .bodyLeading = 12, .fonts = page.fonts, .obstacles = {}}, {});
}

TEST(DropCaps, DoNotIndentTheLinesBesideThem) {
    const std::vector<ParagraphDraft> paragraphs = paragraphsOf(tests::read(pageWithCap(Fourth::BelowTheCap)));
    ASSERT_EQ(paragraphs.size(), 1u);
    EXPECT_EQ(paragraphs[0].dropCap, DropCapKind::Dropped);
    EXPECT_NEAR(paragraphs[0].indentStart, 0, 0.1);
    EXPECT_NEAR(paragraphs[0].firstLine, 0, 0.1);
}

TEST(DropCaps, StandInTheMarginOfTextThatDoesNotGoOnBelowThem) {
    const std::vector<ParagraphDraft> paragraphs = paragraphsOf(tests::read(pageWithCap(Fourth::BelowTheText)));
    ASSERT_EQ(paragraphs.size(), 1u);
    EXPECT_EQ(paragraphs[0].dropCap, DropCapKind::InMargin);
    EXPECT_NEAR(paragraphs[0].firstLine, 0, 0.1) << "the letter does not let its line hang";
}

TEST(DropCaps, AreLinesOfTheirOwnWhereLinesKeepTheirPlaces) {
    PageText page = tests::read(pageWithCap(Fourth::BelowTheCap));
    partDropCaps(page);
    std::vector<std::string> texts;
    for (const Line& line : page.lines)
        texts.push_back(textOf(line));
    EXPECT_THAT(texts, testing::Contains("O"));
    EXPECT_THAT(texts, testing::Contains("nce upon a time there was such a"));
    for (const Line& line : page.lines) {
        EXPECT_EQ(line.dropCapLines, 0);
        if (textOf(line) == "O") {
            EXPECT_NEAR(line.baseline, 128, 0.1);
        }
    }
}

} // namespace
} // namespace orvane::layout
