#include "layout/page/PageLayouter.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::linesFromArt;
using tests::makeLine;
using tests::makePage;
using tests::textOfParagraph;

/// The blocks in order: paragraphs as their text, figures as "[figure]", each column's start as "|", each band's as
/// "=".
std::string describe(const PageLayout& layout) {
    std::string text;
    int band = -1;
    int column = -1;
    for (const PageBlock& block : layout.blocks) {
        if (block.band != band)
            text += text.empty() ? "" : "=";
        else if (block.column != column)
            text += "|";
        else
            text += "/";
        band = block.band;
        column = block.column;
        if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
            text += textOfParagraph(*paragraph);
        else
            text += std::get<FigureDraft>(block.value).isInline ? "[inline figure]" : "[figure]";
    }
    return text;
}

/// The layout of a page of a document whose text is in ten points.
PageLayout layoutOf(PageText page) {
    DocumentContext context;
    context.bodyFontSize = 10;
    context.bodyLeading = 12;
    Diagnostics diagnostics;
    return layoutPage(std::move(page), context, {}, diagnostics);
}

PageLayout layoutArt(const std::vector<std::string>& art, std::vector<Figure> figures = {}) {
    PageText page = makePage(1);
    page.lines = linesFromArt(art);
    page.figures = std::move(figures);
    return layoutOf(std::move(page));
}

TEST(PageLayouter, ReadsColumnsOneAfterTheOther) {
    struct Row {
        std::vector<std::string> art;
        std::string expected;
        const char* why;
    };
    const std::string left = "one two three fou five six seven ei nine ten eleven .";
    const std::string right = "Nine ten eleven t thirteen fourtee sixteen seventee";
    const Row rows[] = {
        {{"one two three fou   Nine ten eleven t", "five six seven ei   thirteen fourtee",
          "nine ten eleven .   sixteen seventee"},
         left + "|" + right,
         "two columns"},
        {{"A title that stands over both of them", "one two three fou   Nine ten eleven t",
          "five six seven ei   thirteen fourtee", "nine ten eleven .   sixteen seventee"},
         "A title that stands over both of them=" + left + "|" + right,
         "a title over two columns is a band of its own"},
        {{"one two three fou   Nine ten eleven t", "five six seven ei   thirteen fourtee",
          "nine ten eleven .   sixteen seventee", "This line closes below both of them."},
         left + "|" + right + "=This line closes below both of them.",
         "text over the whole width below the columns"},
        {{"one two three fou   Nine ten eleven t   A third column ...",
          "five six seven ei   thirteen fourtee    stands at the righ",
          "nine ten eleven .   sixteen seventee    side of the page."},
         left + "|" + right + "|A third column ... stands at the righ side of the page.",
         "three columns"},
        {{"A title over two of these columns ...   Number 85", "", "",
          "one two three fou   Nine ten eleven t   A third column ...",
          "five six seven ei   thirteen fourtee    stands at the righ",
          "nine ten eleven .   sixteen seventee    side of the page."},
         "A title over two of these columns ...\tNumber 85=" + left + "|" + right +
             "|A third column ... stands at the righ side of the page.",
         "a title over two of three columns"},
        {{"Name:        Miller", "Street:      Long St.", "Town:        Springf."},
         "Name:\tMiller/Street:\tLong St./Town:\tSpringf.",
         "labels and values are read row by row"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(describe(layoutArt(row.art)), row.expected) << row.why;
}

TEST(PageLayouter, PartsColumnsAtALongRuleHoweverNarrowTheGutter) {
    PageText page = makePage(1);
    std::string left, right;
    for (int i = 0; i < 8; ++i) {
        page.lines.push_back(makeLine("apples and pears and plums", 50, 100 + 12 * i));
        page.lines.push_back(makeLine("oaks and elms and limes", 186, 105 + 12 * i));
        left += (i == 0 ? "" : " ") + textOf(page.lines[0]);
        right += (i == 0 ? "" : " ") + textOf(page.lines[1]);
    }
    page.rules.push_back(tests::ruleAt(RuleDirection::Vertical, 183, 60, 560));
    const PageLayout layout = layoutOf(std::move(page));
    EXPECT_EQ(describe(layout), left + "|" + right);
    EXPECT_TRUE(layout.bands.at(0).hasSeparator);
}

TEST(PageLayouter, MakesColumnsAtALongRuleAsWideAsTheirTables) {
    PageText page = makePage(1);
    page.lines.push_back(makeLine("fruit", 50, 80));
    page.lines.push_back(makeLine("trees", 320, 80));
    for (int i = 0; i < 8; ++i)
        for (int number = 0; number < 3; ++number) {
            const int left = 50 + 70 * number;
            page.lines.push_back(makeLine(number == 0 ? "apples" : "12", left, 100 + 12 * i));
            page.lines.push_back(makeLine(number == 0 ? "oaks" : "12", 270 + left, 105 + 12 * i));
        }
    std::stable_sort(page.lines.begin(), page.lines.end(),
                     [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    page.rules.push_back(tests::ruleAt(RuleDirection::Vertical, 300, 60, 560));
    const PageLayout layout = layoutOf(std::move(page));
    ASSERT_EQ(layout.bands.size(), 1U);
    ASSERT_EQ(layout.bands[0].columns.size(), 2U);
    EXPECT_GE(layout.bands[0].columns[0].right, 200);
    EXPECT_GE(layout.bands[0].columns[1].right, 470);
}

TEST(PageLayouter, HasColumnsBehindALongRuleBesideTheOneBeforeIt) {
    PageText page = makePage(1);
    std::string texts[3];
    for (int i = 0; i < 8; ++i)
        for (int column = 0; column < 3; ++column) {
            page.lines.push_back(
                makeLine("apples and pears and plums", 50 + 160 * column, 100 + (column == 0 ? 15 : 12) * i));
            texts[column] += (i == 0 ? "" : " ") + textOf(page.lines.back());
        }
    page.rules.push_back(tests::ruleAt(RuleDirection::Vertical, 195, 60, 560));
    const PageLayout layout = layoutOf(std::move(page));
    EXPECT_EQ(layout.bands.at(0).columns.size(), 3U);
    EXPECT_EQ(describe(layout), texts[0] + "|" + texts[1] + "|" + texts[2]);
}

TEST(PageLayouter, ReadsLabelsWithTheirValues) {
    const std::string text =
        describe(layoutArt({"Day of the offer:    Monday, 25 Sept. 2023", "End of the offer:    Tuesday, 26 Sept. 2023",
                            "Day of payment:      Thursday, 28 Sept. 23", "Place of payment:    at the central bank"}));
    EXPECT_EQ(text.find('|'), std::string::npos) << text;
}

TEST(PageLayouter, ReadsCommentsWithTheirStatements) {
    const auto listing = [](const std::string& sign) {
        return describe(layoutArt({"width of the box = 12 or 24    " + sign + "of the largest picture",
                                   "height of the box = 8 or 16    " + sign + "of the smallest picture",
                                   "between the boxes = 3 or 10    " + sign + "as the margins of the page",
                                   "above all boxes = 4 or 12      " + sign + "as is usual in the field"}));
    };
    EXPECT_EQ(listing("# ").find('|'), std::string::npos) << listing("# ");
    EXPECT_EQ(listing("//").find('|'), std::string::npos);
    EXPECT_NE(listing("so").find('|'), std::string::npos);
}

TEST(PageLayouter, CutsLinesThatLeadAcrossAGutter) {
    PageText page = makePage(1);
    for (int i = 0; i < 8; ++i)
        page.lines.push_back(makeLine("one two three fou  nine ten eleven t", 0, 100 + 12 * i));
    Diagnostics diagnostics;
    const PageLayout layout = layoutPage(page, {}, {}, diagnostics);
    ASSERT_EQ(layout.bands.size(), 1U);
    EXPECT_EQ(layout.bands[0].columns.size(), 2U) << "a gutter of two blanks, eight times";
}

TEST(PageLayouter, EndsLinesByHandInColumnsNarrowerThanTheirGutter) {
    const auto addresses = [](const std::string& gutter) {
        return describe(layoutArt({"Sender of Long Street" + gutter + "Phone 7079 4301 55",
                                   "Recipient Customers  " + gutter + "Fax 7079 4302 12",
                                   "255 Customer Lane ...." + gutter.substr(1) + "web site.example"}));
    };
    EXPECT_EQ(addresses(std::string(40, ' ')).substr(0, 22), "Sender of Long Street/");
    EXPECT_NE(addresses(std::string(40, ' ')).find("|Phone 7079 4301 55/Fax"), std::string::npos);
    EXPECT_EQ(addresses(std::string(4, ' ')).substr(0, 22), "Sender of Long Street ") << "lines that fill their column";
}

TEST(PageLayouter, EndsLinesByHandFarFromTheOtherMargin) {
    const auto linesOf = [](double left, const std::vector<const char*>& texts) {
        PageText page = makePage(1);
        for (const char* text : texts)
            page.lines.push_back(makeLine(text, left, 100 + 12.0 * static_cast<double>(page.lines.size())));
        return describe(layoutOf(std::move(page)));
    };
    const std::vector<const char*> texts{"This text has a colour.", "This text is rather red.", "This text is blue."};
    EXPECT_EQ(linesOf(72, texts), "This text has a colour./This text is rather red./This text is blue.");
    EXPECT_EQ(linesOf(200, texts), "This text has a colour. This text is rather red. This text is blue.")
        << "within margins as wide as this they may be full";
    EXPECT_EQ(linesOf(72, {"This text has a colour", "that is rather red and", "goes on here."}),
              "This text has a colour that is rather red and goes on here.")
        << "sentences go on";
}

TEST(PageLayouter, JoinsNoColumnsWithTextFarBelow) {
    const auto endsInColumn = [](std::size_t blankLines) {
        std::vector<std::string> art{"one two three fou   Nine ten eleven t", "five six seven ei   thirteen fourtee",
                                     "nine ten eleven a   sixteen seventee"};
        art.resize(art.size() + blankLines);
        art.push_back("they all lead to this line below the two.");
        const PageLayout layout = layoutArt(art);
        return std::get<ParagraphDraft>(layout.blocks.at(1).value).endsParagraph;
    };
    EXPECT_FALSE(endsInColumn(0));
    EXPECT_TRUE(endsInColumn(3));
}

TEST(PageLayouter, ReadsRightToLeftColumnsFromTheRight) {
    PageText page = makePage(1);
    page.lines = linesFromArt({"one two three fou   nine ten eleven t", "five six seven ei   thirteen fourtee",
                               "nine ten eleven .   sixteen seventee"});
    for (Line& line : page.lines) {
        line.isRightToLeft = true;
        for (Word& word : line.words)
            word.isRightToLeft = true;
    }
    Diagnostics diagnostics;
    const PageLayout layout = layoutPage(page, {}, {}, diagnostics);
    ASSERT_EQ(layout.bands[0].columns.size(), 2U);
    EXPECT_GT(layout.bands[0].columns[0].left, layout.bands[0].columns[1].left);
    EXPECT_EQ(textOf(std::get<ParagraphDraft>(layout.blocks[0].value).lines[0]), "nine ten eleven t");
}

TEST(PageLayouter, ReadsColumnsOfWordsAsTheDocumentAroundThem) {
    const std::vector<std::string> words = {"www.one.two.three   www.nine.ten.elev",
                                            "www.five.six.seve   www.thirteen.four",
                                            "www.nine.ten.elev   www.sixteen.seven"};
    const std::vector<std::string> text = {"one two three fou   nine ten eleven t",
                                           "five six seven ei   thirteen fourtee",
                                           "nine ten eleven .   sixteen seventee"};
    const auto isReadFromRight = [](const std::vector<std::string>& art, bool isRightToLeft) {
        PageText page = makePage(1);
        page.lines = linesFromArt(art);
        DocumentContext context;
        context.isRightToLeft = isRightToLeft;
        Diagnostics diagnostics;
        const std::vector<ColumnSpan> columns = layoutPage(page, context, {}, diagnostics).bands.at(0).columns;
        EXPECT_EQ(columns.size(), 2U);
        return columns.front().left > columns.back().left;
    };
    EXPECT_TRUE(isReadFromRight(words, true));
    EXPECT_FALSE(isReadFromRight(words, false));
    EXPECT_FALSE(isReadFromRight(text, true)) << "sentences tell by themselves";
}

TEST(PageLayouter, PutsFiguresIntoTheirPlace) {
    Figure between;
    between.box = {0, 104, 100, 140};
    EXPECT_EQ(describe(layoutArt({"Above stands a line of text", "", "", "", "Below stands another one"}, {between})),
              "Above stands a line of text/[inline figure]/Below stands another one");
    Figure beside;
    beside.box = {200, 90, 300, 140};
    EXPECT_EQ(describe(layoutArt({"Text that stands beside a", "figure and goes on below it"}, {beside})),
              "[figure]/Text that stands beside a figure and goes on below it");
    Figure smaller, taller;
    smaller.box = {0, 106, 60, 136};
    taller.box = {80, 104, 140, 140};
    EXPECT_EQ(
        describe(layoutArt({"Above stands a line of text", "", "", "", "Below stands another one"}, {smaller, taller})),
        "Above stands a line of text/[inline figure]/[figure]/Below stands another one")
        << "one of two beside each other makes room for both";
    Figure ground;
    ground.box = {0, 0, 595, 842};
    ground.isBackground = true;
    EXPECT_EQ(describe(layoutArt({"Text"}, {ground})), "[figure]/Text") << "backgrounds come first";
}

TEST(PageLayouter, MakesABandOfWhatLeadsAcrossColumns) {
    const std::vector<std::string> columns = {"one two three fou   Nine ten eleven t",
                                              "five six seven ei   thirteen fourtee",
                                              "nine ten eleven .   sixteen seventee"};
    const std::string text = "one two three fou five six seven ei nine ten eleven .|Nine ten eleven t thirteen fourtee "
                             "sixteen seventee";
    Figure above, below, narrow;
    above.box = {0, 20, 185, 80};
    below.box = {0, 140, 185, 200};
    narrow.box = {0, 20, 80, 80};
    EXPECT_EQ(describe(layoutArt(columns, {above, below})), "[inline figure]=" + text + "=[inline figure]");
    EXPECT_EQ(layoutArt(columns, {above}).bands[0].columns.size(), 1U);
    EXPECT_EQ(describe(layoutArt(columns, {narrow})), "[inline figure]/" + text) << "as wide as its column";
}

TEST(PageLayouter, KeepsTurnedTextOutOfTheColumns) {
    PageText page = makePage(1);
    page.lines = linesFromArt({"The quick brown fox jumps over", "the lazy dog."});
    Line turned = makeLine("DRAFT", 0, 0);
    turned.angle = 270;
    turned.box = {160, 90, 170, 300};
    page.lines.push_back(turned);
    Diagnostics diagnostics;
    const PageLayout layout = layoutPage(page, {}, {}, diagnostics);
    ASSERT_EQ(layout.blocks.size(), 2U);
    EXPECT_EQ(layout.bands[0].columns.size(), 1U);
    EXPECT_TRUE(std::get<ParagraphDraft>(layout.blocks[0].value).isFloating) << "a stamp beside the text";
    EXPECT_FALSE(std::get<ParagraphDraft>(layout.blocks[1].value).isFloating);
}

TEST(PageLayouter, KeepsThePageThatWasLaidOnItsSideInTheFlow) {
    PageText page = makePage(1);
    for (int i = 0; i < 5; ++i) {
        Line turned = makeLine("a line of text", 0, 0);
        turned.angle = 90;
        turned.box = {400.0 - 14 * i, 90, 410.0 - 14 * i, 300};
        page.lines.push_back(turned);
    }
    Diagnostics diagnostics;
    for (const PageBlock& block : layoutPage(page, {}, {}, diagnostics).blocks)
        EXPECT_FALSE(std::get<ParagraphDraft>(block.value).isFloating);
}

TEST(PageLayouter, FloatsTurnedTextBesideATableOfLevelLines) {
    PageText page = makePage(1);
    const auto draw = [&page](RuleDirection direction, double position, double from, double to) {
        Rule& rule = page.rules.emplace_back();
        rule.direction = direction;
        rule.position = position;
        rule.from = from;
        rule.to = to;
    };
    for (int row = 0; row < 8; ++row) {
        for (const double left : {70.0, 170.0, 270.0})
            page.lines.push_back(makeLine("cell", left, 310.0 + 20 * row));
        draw(RuleDirection::Horizontal, 296.0 + 20 * row, 60, 360);
    }
    draw(RuleDirection::Horizontal, 456, 60, 360);
    for (const double x : {60.0, 160.0, 260.0, 360.0})
        draw(RuleDirection::Vertical, x, 296, 456);
    for (int i = 0; i < 5; ++i) {
        Line turned = makeLine("head", 0, 0);
        turned.angle = 90;
        turned.box = {400.0 + 14 * i, 90, 410.0 + 14 * i, 200};
        page.lines.push_back(turned);
    }
    Diagnostics diagnostics;
    const PageLayout layout = layoutPage(page, {}, {}, diagnostics);
    std::size_t floating = 0, tables = 0;
    for (const PageBlock& block : layout.blocks) {
        const auto* paragraph = std::get_if<ParagraphDraft>(&block.value);
        floating += paragraph && paragraph->isFloating;
        tables += std::holds_alternative<TableDraft>(block.value);
    }
    EXPECT_EQ(tables, 1U);
    EXPECT_EQ(floating, 5U) << "they are heads, not the text of a page laid on its side";
}

TEST(PageLayouter, TellsWhereAParagraphGoesOnInTheNextColumn) {
    const PageLayout layout = layoutArt({"One two three four   goes on up here as",
                                         "is a column with a   it should do now", "sentence that then   and ends."});
    ASSERT_EQ(layout.blocks.size(), 2U);
    EXPECT_FALSE(std::get<ParagraphDraft>(layout.blocks[0].value).endsParagraph);
    EXPECT_FALSE(std::get<ParagraphDraft>(layout.blocks[1].value).startsParagraph);
}

TEST(PageLayouter, SetsALineAgainstAPictureOnlyWhereTextMakesWayForIt) {
    const auto alignmentOfTitle = [](bool isStoodOn) {
        std::vector<Line> lines{
            makeLine("Two lines of a title", 200, 100), makeLine("set to", 270, 112),
            makeLine("A line of text as wide as the column that is far below the title .........", 50, 400)};
        if (isStoodOn)
            lines.insert(lines.begin() + 2, makeLine("words on the picture", 320, 150));
        PageText page = makePage(1);
        page.lines = std::move(lines);
        Figure figure;
        figure.box = {300, 80, 380, 160};
        page.figures = {figure};
        DocumentContext context;
        context.bodyFontSize = 10;
        context.bodyLeading = 12;
        Diagnostics diagnostics;
        const PageLayout layout = layoutPage(std::move(page), context, {}, diagnostics);
        for (const PageBlock& block : layout.blocks)
            if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
                return paragraph->alignment;
        throw std::logic_error("no paragraph");
    };
    EXPECT_EQ(alignmentOfTitle(false), document::Alignment::End);
    EXPECT_EQ(alignmentOfTitle(true), document::Alignment::Start);
}

TEST(PageLayouter, CopesWithPagesWithoutText) {
    EXPECT_TRUE(layoutArt({}).blocks.empty());
    Figure figure;
    figure.box = {10, 10, 50, 50};
    EXPECT_EQ(describe(layoutArt({}, {figure})), "[inline figure]");
}

} // namespace
} // namespace orvane::layout
