#include "layout/formulas/FormulaFinder.h"

#include "document/FormulaText.h"
#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::Font;
using pdf::tests::PageContentBuilder;
using pdf::tests::TextOptions;
using testing::ElementsAre;
using tests::linesOf;
using tests::read;

const std::string kFormula = "\uFFFC";

/// A page of prose with fonts for formulas.
class FormulaPage : public PageContentBuilder {
public:
    FormulaPage()
        : letters(addFont("CMMI10", true))
        , signs(addFont("CMSY10", true))
        , large(addFont("CMEX10", true)) {}

    /// Lines of prose from `y` on.
    void prose(double y, int lines) {
        for (int i = 0; i < lines; ++i)
            text(72, y + 12 * i, "This is a line of the running text, which is as long as the column.", 10);
    }
    double letter(double x, double y, std::string_view what, double size = 10) {
        TextOptions options;
        options.font = letters;
        return text(x, y, what, size, options);
    }
    double sign(double x, double y, std::string_view what, double size = 10) {
        TextOptions options;
        options.font = signs;
        return text(x, y, what, size, options);
    }
    /// A sign from a font of large ones, with its ink below its origin.
    void grown(double x, double top, double bottom, std::u32string what) {
        TextOptions options;
        options.font = large;
        glyph(x, top, std::move(what), 12, 10, options);
        content().glyphs.back().ink = {x, top, x + 11, bottom};
    }

    std::uint32_t letters, signs, large;

private:
    std::uint32_t addFont(const std::string& name, bool isMathematical) {
        Font made;
        made.name = name;
        made.isMathematical = isMathematical;
        made.isItalic = name.starts_with("CMMI");
        return font(std::move(made));
    }
};

/// y = a / b, set off, below three lines of prose and above two.
FormulaPage pageWithFraction() {
    FormulaPage page;
    page.prose(100, 3);
    const double x = page.letter(200, 150, "y");
    page.sign(x + 3, 150, "=");
    page.letter(x + 14, 143, "a");
    page.letter(x + 14, 157, "b");
    page.horizontalRule(x + 13, x + 20, 147.5, 0.4);
    page.prose(180, 2);
    return page;
}

TEST(FormulaFinder, MakesOneThingOfAFraction) {
    const PageText text = read(pageWithFraction());
    ASSERT_EQ(text.formulas.size(), 1u);
    EXPECT_EQ(text.formulas[0].text, "y=a/b");
    EXPECT_TRUE(text.formulas[0].structure);
    EXPECT_TRUE(text.formulas[0].needsPainting) << "for readers that know no formulas";
    ASSERT_EQ(text.lines.size(), 6u);
    EXPECT_EQ(textOf(text.lines[3]), kFormula);
    EXPECT_TRUE(text.rules.at(0).isUsed);
}

TEST(FormulaFinder, KeepsTheNumberAsText) {
    FormulaPage page = pageWithFraction();
    page.text(500, 150, "(3)", 10);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 6u);
    EXPECT_EQ(textOf(text.lines[3]), kFormula + "\t(3)");
}

TEST(FormulaFinder, PaintsWhatItDoesNotUnderstand) {
    FormulaPage page;
    page.prose(100, 3);
    page.letter(200, 160, "A=");
    page.grown(215, 145, 170, U"[");
    page.letter(230, 155, "a");
    page.letter(250, 155, "b");
    page.letter(230, 167, "c");
    page.letter(250, 167, "d");
    page.grown(262, 145, 170, U"]");
    const PageText text = read(page);
    ASSERT_EQ(text.formulas.size(), 1u);
    EXPECT_FALSE(text.formulas[0].structure);
    EXPECT_TRUE(text.formulas[0].needsPainting);
    EXPECT_TRUE(text.formulas[0].box.contains(Rect{215, 145, 273, 170}));
}

TEST(FormulaFinder, TakesALineOfSignsThatIsSetOff) {
    FormulaPage page;
    page.prose(100, 3);
    page.letter(200, 150, "a+b=c");
    page.prose(180, 2);
    const PageText text = read(page);
    ASSERT_EQ(text.formulas.size(), 1u);
    EXPECT_EQ(text.formulas[0].text, "a+b=c");
}

TEST(FormulaFinder, LeavesTheLastLineOfAParagraphAlone) {
    FormulaPage page;
    page.prose(100, 3);
    page.letter(72, 136, "a+b=c");
    page.prose(180, 2);
    EXPECT_TRUE(read(page).formulas.empty());
}

/// A line of prose with a fraction in it, and two lines below.
FormulaPage pageWithFractionInText() {
    FormulaPage page;
    page.prose(100, 3);
    double x = page.text(72, 150, "This happens where the value of ", 10);
    x = page.sign(page.letter(x, 150, "c"), 150, "+");
    page.letter(x + 1, 142, "a", 7);
    page.letter(x + 1, 158, "b", 7);
    page.horizontalRule(x, x + 6, 147.5, 0.4);
    page.text(x + 9, 150, "is larger than that of the others.", 10);
    page.prose(165, 2);
    return page;
}

TEST(FormulaFinder, PutsAFractionWithinTextIntoItsLine) {
    const PageText text = read(pageWithFractionInText());
    ASSERT_EQ(text.formulas.size(), 1u);
    EXPECT_EQ(text.formulas[0].text, "c+a/b");
    EXPECT_EQ(text.formulas[0].place, document::FormulaPlace::InLine);
    ASSERT_EQ(text.lines.size(), 6u) << "numerator and denominator are no lines";
    EXPECT_EQ(textOf(text.lines[3]),
              "This happens where the value of " + kFormula + " is larger than that of the others.");
    EXPECT_FALSE(isFormulaLine(text.lines[3]));
}

TEST(FormulaFinder, GivesTheLineOfTextBackWithWhatStoodAroundIt) {
    PageText text = read(pageWithFractionInText());
    restoreFormulaLines(text, RestoredFormulas::All);
    ASSERT_EQ(text.lines.size(), 8u);
    EXPECT_EQ(textOf(text.lines[4]), "This happens where the value of c+ is larger than that of the others.");
}

TEST(FormulaFinder, LeavesSentencesWithSignsAlone) {
    FormulaPage page;
    page.prose(100, 3);
    const double x = page.text(72, 136, "Let ", 10);
    page.letter(page.sign(page.letter(x, 136, "x"), 136, "="), 136, "y");
    page.prose(160, 2);
    EXPECT_TRUE(read(page).formulas.empty());
}

TEST(FormulaFinder, LeavesTheNamesAlongCrossingAxesAlone) {
    FormulaPage page = pageWithFraction();
    EXPECT_THAT(read(page).formulas, testing::SizeIs(1));
    page.verticalRule(page.content().paths.back().box.left + 3, 130, 165, 0.4);
    EXPECT_THAT(read(page).formulas, testing::IsEmpty()) << "no fraction is crossed by another rule";
}

TEST(FormulaFinder, LeavesTheNumbersOfAnAxisAlone) {
    FormulaPage page;
    page.prose(100, 3);
    page.picture({150, 150, 400, 300});
    page.letter(160, 312, "x=1");
    page.letter(300, 316, "x=2");
    EXPECT_TRUE(read(page).formulas.empty());
}

TEST(FormulaFinder, LeavesPagesWithoutFormulasAlone) {
    PageContentBuilder page;
    page.text(72, 100, "Sum = a + b", 10);
    page.text(72, 112, "total", 10);
    page.horizontalRule(72, 120, 103);
    EXPECT_TRUE(read(page).formulas.empty());
}

TEST(FormulaFinder, LeavesBulletsAlone) {
    FormulaPage page;
    page.sign(72, 100, "\u2022");
    page.text(84, 100, "An item of a list with some words in it.", 10);
    page.sign(72, 112, "\u2022");
    page.text(84, 112, "Another item of the list.", 10);
    EXPECT_TRUE(read(page).formulas.empty());
}

TEST(FormulaFinder, GivesTheLinesBackThatItTook) {
    PageText text = read(pageWithFraction());
    restoreFormulaLines(text, RestoredFormulas::Painted);
    EXPECT_EQ(textOf(text.lines.at(3)), kFormula) << "it has structure, and needs no picture";
    restoreFormulaLines(text, RestoredFormulas::All);
    EXPECT_EQ(text.lines.size(), 8u) << "the fraction's parts stand on lines of their own";
}

} // namespace
} // namespace orvane::layout
