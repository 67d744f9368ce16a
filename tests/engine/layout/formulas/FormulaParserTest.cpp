#include "layout/formulas/FormulaParser.h"

#include "base/Utf8.h"
#include "document/FormulaText.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::FormulaKind;
using document::FormulaPart;
using document::FormulaShape;

/// Signs put down by hand, each half an em broad.
class Signs {
public:
    /// Sets the signs of `text` from x on and returns where the next one would stand.
    double set(double x, double baseline, std::string_view text, double size = 10,
               FormulaShape shape = FormulaShape::Italic) {
        for (const char32_t c : utf32FromUtf8(text)) {
            if (c != U' ')
                put({x, baseline - 0.7 * size, x + 0.5 * size, baseline}, baseline, std::u32string{c}, size, shape);
            x += 0.55 * size;
        }
        return x;
    }
    /// A sign that reaches from `top` to `bottom`, its origin at the top as in fonts of large signs.
    void large(double x, double top, double bottom, std::string_view sign, double size = 10) {
        put({x, top, x + size, bottom}, top, utf32FromUtf8(sign), size, FormulaShape::Upright);
    }
    void bar(double left, double right, double y) { m_bars.push_back({left, right, y}); }

    std::optional<ParsedFormula> parse() const { return parseFormula(m_atoms, m_bars, {}); }
    /// In one line; empty when it was not understood.
    std::string text() const {
        const auto parsed = parse();
        return parsed ? document::linearText(parsed->content) : std::string();
    }

private:
    void put(const Rect& ink, double baseline, std::u32string text, double size, FormulaShape shape) {
        m_atoms.push_back({ink, baseline, size, std::move(text), shape, kBlack});
    }
    std::vector<FormulaAtom> m_atoms;
    std::vector<FormulaBar> m_bars;
};

TEST(FormulaParser, ReadsSignsOnALine) {
    Signs signs;
    signs.set(100, 200, "a+b=c");
    EXPECT_EQ(signs.text(), "a+b=c");
}

TEST(FormulaParser, TellsSubscriptsFromSuperscriptsByTheirHeight) {
    Signs signs;
    double x = signs.set(100, 200, "x");
    signs.set(x, 201.5, "n", 7);
    x = signs.set(x, 196, "2", 7, FormulaShape::Upright) + 2;
    x = signs.set(x, 200, "+y");
    signs.set(x, 196.2, "k+1", 7);
    EXPECT_EQ(signs.text(), "x_n^2+y^(k+1)");
}

TEST(FormulaParser, ReadsScriptsOfScripts) {
    Signs signs;
    double x = signs.set(100, 200, "U");
    x = signs.set(x, 201.5, "x", 7);
    signs.set(x, 202.7, "i", 5);
    EXPECT_EQ(signs.text(), "U_(x_i)");
}

TEST(FormulaParser, ReadsFractionsByTheirRules) {
    Signs signs;
    double x = signs.set(100, 200, "y=");
    signs.set(x, 193, "a+b");
    signs.set(x + 5, 207, "2c");
    signs.bar(x - 1, x + 17, 197.5);
    signs.set(x + 20, 200, "+d");
    EXPECT_EQ(signs.text(), "y=(a+b)/(2c)+d");
}

TEST(FormulaParser, ReadsFractionsWithinFractions) {
    Signs signs;
    signs.set(102, 180, "a");
    signs.set(102, 192, "b");
    signs.bar(101, 108, 183.5);
    signs.set(110, 186, "+c");
    signs.set(108, 207, "d");
    signs.bar(100, 122, 197.5);
    EXPECT_EQ(signs.text(), "(a/b+c)/d");
}

TEST(FormulaParser, ReadsRadicalsByTheRuleAtTheirEnd) {
    Signs signs;
    signs.large(100, 190, 203, "\u221A");
    signs.set(111, 200, "a+b");
    signs.bar(110, 128, 190.2);
    EXPECT_EQ(signs.text(), "\u221A(a+b)");
}

TEST(FormulaParser, ReadsTheRadicalInANumerator) {
    Signs signs;
    signs.set(100, 193, "-b");
    signs.large(112, 183, 196, "\u221A");
    signs.set(123, 193, "d");
    signs.bar(122, 129, 183);
    signs.set(110, 208, "2a");
    signs.bar(99, 130, 197.5);
    EXPECT_EQ(signs.text(), "(-b\u221Ad)/(2a)");
}

TEST(FormulaParser, GivesSumsTheirLimitsAndWhatTheyWorkOn) {
    Signs signs;
    signs.large(100, 190, 204, "\u2211");
    signs.set(98, 212, "i=1", 7);
    signs.set(103, 187, "n", 7);
    double x = signs.set(114, 200, "a");
    x = signs.set(x, 201.5, "i", 7);
    signs.set(x, 200, "=b");
    ASSERT_EQ(signs.text(), "\u2211_(i=1)^n a_i=b");
    const FormulaPart content = signs.parse()->content;
    ASSERT_EQ(content.parts.at(0).kind, FormulaKind::Operator);
    EXPECT_EQ(content.parts[0].limits, document::LimitPlace::AboveAndBelow);
}

TEST(FormulaParser, GivesIntegralsTheirLimitsBesideThem) {
    Signs signs;
    signs.large(100, 188, 208, "\u222B");
    signs.set(111, 208, "a", 7);
    signs.set(111, 190, "b", 7);
    signs.set(118, 200, "f");
    const auto parsed = signs.parse();
    ASSERT_TRUE(parsed);
    EXPECT_EQ(document::linearText(parsed->content), "\u222B_a^b f");
    EXPECT_EQ(parsed->content.parts.at(0).limits, document::LimitPlace::Beside);
}

TEST(FormulaParser, PutsLimitsBelowNames) {
    Signs signs;
    signs.set(100, 200, "min", 10, FormulaShape::Upright);
    signs.set(103, 207, "w", 7);
    signs.set(118, 200, "f");
    ASSERT_EQ(signs.text(), "min_wf");
    EXPECT_EQ(signs.parse()->content.parts.at(0).kind, FormulaKind::Limits);
}

TEST(FormulaParser, EnclosesWhatGrownBracketsEnclose) {
    Signs signs;
    signs.large(100, 185, 210, "(");
    signs.set(112, 193, "a");
    signs.set(112, 207, "b");
    signs.bar(111, 118, 197.5);
    signs.large(120, 185, 210, ")");
    signs.set(131, 190, "2", 7, FormulaShape::Upright);
    ASSERT_EQ(signs.text(), "(a/b)^2");
    EXPECT_EQ(signs.parse()->content.parts.at(0).parts.at(0).kind, FormulaKind::Fence);
}

TEST(FormulaParser, ReadsAStrokeBetweenTheTwoSidesOfASet) {
    Signs signs;
    signs.large(90, 188, 212, "{");
    signs.set(102, 200, "x");
    signs.large(109, 188, 212, "|");
    signs.set(121, 200, "y");
    signs.large(128, 188, 212, "}");
    EXPECT_EQ(signs.text(), "{x|y}");
}

TEST(FormulaParser, TakesTheSizeOfLettersForThatOfTheLine) {
    Signs signs;
    signs.large(100, 192, 206, "\u2211", 14);
    signs.set(104, 213, "n", 7);
    double x = signs.set(116, 200, "x");
    signs.set(x, 201.5, "n", 7);
    EXPECT_EQ(signs.text(), "\u2211_n x_n");
}

TEST(FormulaParser, GivesUpWhereTheRuleOfAFractionIsMissing) {
    Signs signs;
    const double x = signs.set(100, 200, "y=");
    signs.set(x, 193, "a");
    signs.set(x, 207, "b");
    EXPECT_EQ(signs.text(), "");
}

TEST(FormulaParser, GivesUpARootWithoutItsRule) {
    Signs signs;
    signs.large(100, 190, 203, "\u221A");
    signs.set(111, 200, "a");
    EXPECT_EQ(signs.text(), "");
}

TEST(FormulaParser, KeepsBlanksBetweenWordsAndQuads) {
    Signs signs;
    double x = signs.set(100, 200, "x");
    x = signs.set(x + 15, 200, "for", 10, FormulaShape::Upright);
    signs.set(x + 3, 200, "all", 10, FormulaShape::Upright);
    EXPECT_EQ(signs.text(), "x\u2003for all");
}

TEST(FormulaParser, GivesUpWhereSignsStandOnOthers) {
    Signs signs;
    signs.set(100, 200, "ab");
    signs.set(100.5, 200, "c");
    EXPECT_EQ(signs.text(), "");
}

TEST(FormulaParser, JoinsArrowsThatWerePutTogether) {
    Signs signs;
    signs.set(100, 200, "x\u21A6\u2192y");
    EXPECT_EQ(signs.text(), "x\u21A6y");
}

TEST(FormulaParser, GivesUpBinomials) {
    Signs signs;
    signs.large(100, 185, 210, "(");
    signs.set(112, 193, "n");
    signs.large(120, 185, 210, ")");
    EXPECT_EQ(signs.text(), "") << "what stands below n was not found";
}

TEST(FormulaParser, GivesUpMatrices) {
    Signs signs;
    signs.large(100, 185, 215, "[");
    signs.set(112, 195, "a  b");
    signs.set(112, 208, "c  d");
    signs.large(135, 185, 215, "]");
    EXPECT_EQ(signs.text(), "");
}

TEST(FormulaParser, GivesUpABracketThatNothingCloses) {
    Signs signs;
    signs.set(90, 200, "f");
    signs.large(100, 185, 215, "{");
    signs.set(112, 200, "a");
    EXPECT_EQ(signs.text(), "");
}

} // namespace
} // namespace orvane::layout
