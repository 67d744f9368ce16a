#include "layout/fonts/FontFitter.h"

#include "layout/fonts/FamilyWidths.h"

#include "base/Utf8.h"
#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;

constexpr const char* kText = "Seldom was so much said with so few words, and never by so many wise people";

/// The text set in a font whose letters are `stretch` times as wide as those of `family`.
Line lineLike(std::string_view family, double stretch, tests::LineLook look = {}, const char* text = kText) {
    Line line = makeLine(text, 72, 100, look);
    for (Word& word : line.words)
        for (Span& span : word.spans) {
            double width = 0;
            for (const char32_t character : utf32FromUtf8(span.text))
                width += advanceOf(family, {look.isBold, look.isItalic}, character).value();
            span.box.right = span.box.left + width * stretch * look.size;
        }
    return line;
}

struct FontNamed {
    const char* name;
    bool isSerif = false;
};

/// What becomes of the fonts of a page with these lines.
std::vector<MappedFont> fitted(std::vector<Line> lines, const std::vector<FontNamed>& names,
                               Tracking tracking = Tracking::InWidths) {
    DocumentDraft draft = makeDraft(1);
    draft.pages[0].fonts.clear();
    std::vector<std::vector<MappedFont>> fonts(1);
    for (const FontNamed& named : names) {
        pdf::Font font;
        font.name = named.name;
        font.isSerif = named.isSerif;
        font.isBold = std::string_view(named.name).find("Bold") != std::string_view::npos;
        font.objectNumber = static_cast<int>(fonts[0].size()) + 1;
        draft.pages[0].fonts.push_back(font);
        fonts[0].push_back(mapFont(font));
    }
    draft.blocks.push_back(makeBlock(makeParagraph(std::move(lines))));
    fitFonts(fonts, draft, tracking, FontParameters::FontFit());
    return fonts[0];
}

TEST(FontFitter, TakesTheKindOfMostOfAFamilysText) {
    const Line digits = lineLike("Arial", 1, {10, true, false, 1}, "2007 2008 2009");
    const auto fonts = fitted({lineLike("Cambria", 1), digits}, {{"CharterBT-Roman", true}, {"CharterBT-Bold"}});
    EXPECT_EQ(fonts[0].family, "Cambria") << "though a face of digits shows no serifs";
    EXPECT_EQ(fonts[1].family, "Cambria");
}

TEST(FontFitter, ChoosesTheFamilyOfTheLeastErrorInWidths) {
    const MappedFont like = fitted({lineLike("Calibri", 1)}, {{"Lato-Regular"}})[0];
    EXPECT_EQ(like.family, "Calibri");
    EXPECT_EQ(like.widthPercent, 100);
    EXPECT_TRUE(like.isStandIn);
    EXPECT_EQ(fitted({lineLike("Arial", 1.03)}, {{"Lato-Regular"}})[0].family, "Arial");
    EXPECT_EQ(fitted({lineLike("Arial Narrow", 1)}, {{"TradeGothic-Condensed"}})[0].family, "Arial Narrow");
    EXPECT_EQ(fitted({lineLike("Cambria", 1)}, {{"Melior", true}})[0].family, "Cambria");
    EXPECT_NE(fitted({lineLike("Arial", 1)}, {{"Melior", true}})[0].family, "Arial") << "letters with serifs stay so";
}

TEST(FontFitter, StretchesWhatIsLeft) {
    EXPECT_EQ(fitted({lineLike("Times New Roman", 1.06)}, {{"Melior", true}})[0].widthPercent, 106);
    EXPECT_EQ(fitted({lineLike("Times New Roman", 0.99)}, {{"Melior", true}})[0].widthPercent, 100) << "kerning";
    EXPECT_EQ(fitted({lineLike("Times New Roman", 2)}, {{"Melior", true}})[0].widthPercent, 130) << "at most";
}

TEST(FontFitter, LeavesFamiliesThatWordProcessorsHave) {
    const MappedFont arial = fitted({lineLike("Calibri", 1)}, {{"ArialMT"}})[0];
    EXPECT_EQ(arial.family, "Arial");
    EXPECT_FALSE(arial.isStandIn);
    EXPECT_EQ(fitted({lineLike("Arial", 1)}, {{"ArialMT"}})[0].widthPercent, 100);
    EXPECT_EQ(fitted({lineLike("Arial", 0.95)}, {{"HelveticaNeueLTStd-Roman"}})[0].widthPercent, 95)
        << "goes by Arial's name with other widths";
    EXPECT_EQ(fitted({lineLike("Arial", 0.8)}, {{"Georgia", true}})[0].widthPercent, 100) << "widths not known";
}

TEST(FontFitter, LeavesFontsOfOtherScripts) {
    const MappedFont font = fitted({makeLine("漢字仮名交じり文の例をここに示す", 72, 100)}, {{"HiraMinProN-W3"}})[0];
    EXPECT_FALSE(font.isStandIn);
    EXPECT_EQ(font.widthPercent, 100);
}

TEST(FontFitter, StretchesFacesAlikeUnlessTheyDifferMuch) {
    const tests::LineLook bold{.size = 10, .isBold = true, .isItalic = false, .font = 1};
    const std::vector<FontNamed> names = {{"Lato-Regular"}, {"Lato-Bold"}};
    const auto close = fitted({lineLike("Calibri", 1.04), lineLike("Calibri", 1.06, bold)}, names);
    EXPECT_EQ(close[0].widthPercent, close[1].widthPercent);
    const auto apart = fitted({lineLike("Calibri", 1), lineLike("Calibri", 1.1, bold)}, names);
    EXPECT_EQ(apart[0].family, "Calibri");
    EXPECT_EQ(apart[0].widthPercent, 100);
    EXPECT_EQ(apart[1].widthPercent, 110);
}

TEST(FontFitter, CountsTrackingUnlessTheRunsSayIt) {
    Line line = lineLike("Calibri", 1);
    for (Word& word : line.words)
        for (Span& span : word.spans) {
            span.look.characterSpacing = 0.5;
            span.box.right += 0.5 * static_cast<double>(span.text.size() - 1);
        }
    EXPECT_GT(fitted({line}, {{"Carlito"}})[0].widthPercent, 105);
    EXPECT_EQ(fitted({line}, {{"Carlito"}}, Tracking::Kept)[0].widthPercent, 100);
}

TEST(FontFitter, TellsFontsOfOneMadeUpNameApart) {
    const tests::LineLook second{.size = 10, .isBold = false, .isItalic = false, .font = 1};
    const auto fonts = fitted({lineLike("Calibri", 1), lineLike("Arial Narrow", 1, second)}, {{"F1"}, {"F1"}});
    EXPECT_EQ(fonts[0].family, "Calibri");
    EXPECT_EQ(fonts[1].family, "Arial Narrow");
}

} // namespace
} // namespace orvane::layout
