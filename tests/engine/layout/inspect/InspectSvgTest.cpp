#include "layout/inspect/InspectSvg.h"

#include "engine/layout/LineArt.h"
#include "layout/inspect/PageLayoutDump.h"
#include "layout/page/PageLayouter.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

PageText twoParagraphs() {
    PageText page = tests::makePage(4);
    page.lines = tests::linesFromArt({"Salt & pepper are <both> spices", "", "", "They go together"});
    return page;
}

PageLayout layoutOf(const PageText& page) {
    Diagnostics diagnostics;
    DocumentContext context;
    context.bodyFontSize = 10;
    context.bodyLeading = 12;
    return layoutPage(page, context, {}, diagnostics);
}

TEST(InspectSvg, DrawsEveryStage) {
    const PageText page = twoParagraphs();
    const PageLayout layout = layoutOf(page);
    for (const char* name : {"words", "lines", "rules", "figures", "regions", "paragraphs", "tables"}) {
        const auto stage = inspectStageFromName(name);
        ASSERT_TRUE(stage.has_value()) << name;
        const std::string svg = drawStage(page, &layout, *stage);
        EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 595.00 842.00\"")) << name;
        EXPECT_THAT(svg, HasSubstr("&lt;both&gt;")) << name << ": the page's text lies beneath, fit for XML";
        EXPECT_THAT(svg, HasSubstr("</svg>")) << name;
    }
    EXPECT_FALSE(inspectStageFromName("nonsense").has_value());
}

TEST(InspectSvg, NumbersBlocksInReadingOrder) {
    const PageText page = twoParagraphs();
    const PageLayout layout = layoutOf(page);
    EXPECT_THAT(drawStage(page, &layout, InspectStage::Paragraphs), HasSubstr(">2<"));
    EXPECT_THAT(drawStage(page, nullptr, InspectStage::Paragraphs), Not(HasSubstr(">2<"))) << "nothing to show yet";
}

TEST(InspectSvg, ShowsWhatFormulasSay) {
    PageText page = twoParagraphs();
    Formula& formula = page.formulas.emplace_back();
    formula.box = {100, 100, 150, 120};
    formula.text = "a/b";
    EXPECT_THAT(drawStage(page, nullptr, InspectStage::Figures), HasSubstr(">a/b<"));
}

TEST(PageLayoutDump, ShowsThePageInReadingOrder) {
    EXPECT_EQ(dumpPageLayout(layoutOf(twoParagraphs())),
              "page 4, 595 x 842\n"
              "band 92-138: 0-595\n"
              "  column 1\n"
              "    start 0-155 leading 10.0: \"Salt & pepper are <both> spices\"\n"
              "    start 0-80 leading 10.0: \"They go together\"\n");
}

} // namespace
} // namespace orvane::layout
