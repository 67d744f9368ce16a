#include "layout/fonts/FallbackFonts.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

/// A line from right to left: letters in font 0, numbers in font `numbers`.
Line hebrewLine(std::uint32_t numbers) {
    Line line = tests::makeLine("\u05e9\u05dc\u05d5\u05dd 12 \u05e2\u05d5\u05dc\u05dd 345", 72, 100);
    line.isRightToLeft = true;
    for (const std::size_t number : {1u, 3u})
        line.words[number].spans[0].look.font = numbers;
    for (Word& word : line.words)
        word.spans[0].isRightToLeft = word.isRightToLeft = true;
    return line;
}

/// The families of a page in DejaVu Sans and Liberation Sans, once fallbacks are resolved.
std::vector<std::string> familiesOf(std::vector<Line> lines) {
    DocumentDraft draft = tests::makeDraft(1);
    std::vector<std::vector<MappedFont>> fonts(1);
    draft.pages[0].fonts.clear();
    for (const char* name : {"DejaVuSans", "LiberationSans"}) {
        pdf::Font font;
        font.name = name;
        draft.pages[0].fonts.push_back(font);
        fonts[0].push_back(mapFont(font));
    }
    draft.blocks.push_back(tests::makeBlock(tests::makeParagraph(std::move(lines))));
    resolveFallbacks(fonts, draft, {});
    return {fonts[0][0].family, fonts[0][1].family};
}

using Families = std::vector<std::string>;

TEST(FallbackFonts, TakesTheFontOfTheNumbersForTheOneThatWasChosen) {
    EXPECT_EQ(familiesOf({hebrewLine(1)}), (Families{"Arial", "Arial"}));
}

TEST(FallbackFonts, KeepsAFontThatHasItsOwnNumbers) {
    EXPECT_EQ(familiesOf({hebrewLine(0)}), (Families{"DejaVu Sans", "Arial"}));
}

TEST(FallbackFonts, KeepsAFontThatOtherScriptsAreSetInToo) {
    EXPECT_EQ(familiesOf({hebrewLine(1), tests::makeLine("and some English words", 72, 112)}),
              (Families{"DejaVu Sans", "Arial"}));
}

} // namespace
} // namespace orvane::layout
