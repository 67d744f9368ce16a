#include "layout/structure/ListFinder.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::NumberFormat;

struct Row {
    const char* text; ///< the label, a tabulator or blank, the text
    double left = 90;
    ParagraphRole role = ParagraphRole::Body;
};

/// One paragraph of one line for each row, found lists in it.
DocumentDraft listsOf(const std::vector<Row>& rows) {
    DocumentDraft draft = tests::makeDraft(1);
    double baseline = 100;
    for (const Row& row : rows) {
        draft.blocks.push_back(
            tests::makeBlock(tests::makeParagraph({tests::makeLine(row.text, row.left, baseline += 14)})));
        draft.blocks.back().paragraph()->role = row.role;
    }
    findLists(draft, {});
    return draft;
}

/// The list and level of each paragraph, "-" for none: "0.0 0.1 -".
std::string placesOf(const std::vector<DraftBlock>& blocks) {
    std::string text;
    for (const DraftBlock& block : blocks) {
        const auto& list = block.paragraph()->list;
        text += text.empty() ? "" : " ";
        text += list ? std::to_string(list->numbering) + "." + std::to_string(list->level) : "-";
    }
    return text;
}

std::string placesOf(const DocumentDraft& draft) {
    return placesOf(draft.blocks);
}

const document::NumberingLevel& levelOf(const DocumentDraft& draft, std::size_t list, std::size_t level) {
    return draft.numberings.at(list).numbering.levels.at(level);
}

TEST(ListFinder, FindsLists) {
    const struct {
        const char* why;
        std::vector<Row> rows;
        const char* expected;
    } cases[] = {
        {"bullets", {{"\u2022\tone"}, {"\u2022\ttwo"}}, "0.0 0.0"},
        {"numbers that count", {{"1.\tone"}, {"2.\ttwo"}, {"3.\tthree"}}, "0.0 0.0 0.0"},
        {"letters in brackets", {{"(a)\tone"}, {"(b)\ttwo"}}, "0.0 0.0"},
        {"i after h is a letter", {{"h)\tone"}, {"i)\ttwo"}, {"j)\tthree"}}, "0.0 0.0 0.0"},
        {"i before ii is a numeral", {{"i)\tone"}, {"ii)\ttwo"}, {"iii)\tthree"}}, "0.0 0.0 0.0"},
        {"text between items", {{"1.\tone"}, {"more", 108}, {"2.\ttwo"}}, "0.0 - 0.0"},
        {"a level below", {{"1.\tone"}, {"a)\tin one", 120}, {"b)\tin one", 120}, {"2.\ttwo"}}, "0.0 0.1 0.1 0.0"},
        {"the level below starts anew",
         {{"1.\tone"}, {"a)\tin one", 120}, {"2.\ttwo"}, {"a)\tin two", 120}},
         "0.0 0.1 0.0 0.1"},
        {"a list that starts anew", {{"1.\tone"}, {"2.\ttwo"}, {"1.\tone"}, {"2.\ttwo"}}, "0.0 0.0 1.0 1.0"},
        {"another sign", {{"\u2022\tone"}, {"\u25AA\ttwo"}}, "0.0 1.0"},
        {"sections that count at the edge", {{"2.1. one", 72}, {"2.2. two", 72}}, "0.0 0.0"},
        {"numbers that do not count", {{"3.\tone", 72}, {"7.\ttwo", 72}}, "- -"},
        {"a dash typed at the margin", {{"- one", 72}, {"- two", 72}}, "- -"},
        {"speech", {{"\u2014 one", 72}, {"\u2014 two", 72}}, "- -"},
        {"a single number", {{"2. one", 72}}, "-"},
        {"a count and its price", {{"1\t69.99"}}, "-"},
        {"headings", {{"1.\tAims", 72, ParagraphRole::Heading}, {"2.\tMeans", 72, ParagraphRole::Heading}}, "- -"},
        {"numerals of Han", {{"\u4E00\u3001\tone"}, {"\u4E8C\u3001\ttwo"}}, "- -"},
        {"letters of another script", {{"\u05D0)\tone"}, {"\u05D1)\ttwo"}, {"\u05D2)\tthree"}}, "- - -"},
        {"digits of another script", {{"\u0661.\tone"}, {"\u0662.\ttwo"}}, "- -"},
        {"a level below that starts anew after other text",
         {{"1.\tone"}, {"a)\tin one", 120}, {"b)\tin one", 120}, {"more", 90}, {"a)\tin one", 120}, {"2.\ttwo"}},
         "0.0 0.1 0.1 - 1.1 0.0"},
        {"levels below one that is no list",
         {{"1. one", 72}, {"a)\tin it", 120}, {"7. seven", 72}, {"a)\tin it", 120}, {"b)\tin it", 120}},
         "- 0.1 - 1.1 1.1"},
        {"a count from nought", {{"0.\tone"}, {"1.\ttwo"}}, "0.0 0.0"},
        {"numbers of two levels", {{"1.\tone"}, {"1.1.\tin one"}, {"1.2.\tin one"}, {"2.\ttwo"}}, "0.0 0.1 0.1 0.0"},
    };
    for (const auto& [why, rows, expected] : cases)
        EXPECT_EQ(placesOf(listsOf(rows)), expected) << why;
}

TEST(ListFinder, StartsAnewBehindLongerNumbersSetAgainstTheirRightEdge) {
    const double digit = tests::makeLine("0", 90, 100).box.width();
    const DocumentDraft draft =
        listsOf({{"9.\tnine"}, {"10.\tten", 90 - digit}, {"more", 72}, {"1.\tone"}, {"2.\ttwo"}});
    EXPECT_EQ(placesOf(draft), "0.0 0.0 - 1.0 1.0");
}

TEST(ListFinder, CountsFromTheFirstNumber) {
    EXPECT_EQ(levelOf(listsOf({{"0.\tone"}, {"1.\ttwo"}}), 0, 0).start, 0);
    EXPECT_EQ(levelOf(listsOf({{"4.\tone"}, {"5.\ttwo"}}), 0, 0).start, 4);
    EXPECT_EQ(levelOf(listsOf({{"\u2022\tone"}, {"\u2022\ttwo"}}), 0, 0).start, 1);
}

TEST(ListFinder, KeepsTheGapBehindLabelsOfTextThatGoesOnAtTheEdge) {
    DocumentDraft draft = tests::makeDraft(1);
    double baseline = 100;
    for (const char* text : {"1.\tone", "2.\ttwo", "3.\tthree"}) {
        const double first = baseline += 14;
        draft.blocks.push_back(tests::makeBlock(
            tests::makeParagraph({tests::makeLine(text, 90, first), tests::makeLine("more", 90, baseline += 14)})));
    }
    const double textStart =
        draft.blocks[0].paragraph()->firstLine().words[1].box.left - draft.blocks[0].paragraph()->pieces[0].column.left;
    findLists(draft, {});
    ASSERT_EQ(placesOf(draft), "0.0 0.0 0.0");
    EXPECT_EQ(levelOf(draft, 0, 0).firstLine, Twips(0));
    EXPECT_EQ(levelOf(draft, 0, 0).textStart, twipsFromPoints(textStart));
    EXPECT_TRUE(levelOf(draft, 0, 0).isTabBehindLabel());
}

TEST(ListFinder, LeavesTheLabelToTheNumbering) {
    const DocumentDraft draft = listsOf({{"(3)\tthree"}, {"(4)\tfour"}});
    const document::NumberingLevel& level = levelOf(draft, 0, 0);
    EXPECT_EQ(level.format, NumberFormat::Decimal);
    EXPECT_EQ(level.text, "(%1)");
    EXPECT_EQ(level.start, 3);
    EXPECT_EQ(draft.blocks[0].paragraph()->labelWords, 1u);
    EXPECT_EQ(draft.blocks[0].paragraph()->role, ParagraphRole::ListItem);
}

TEST(ListFinder, MeasuresTheIndentsOfALevel) {
    const document::NumberingLevel& level = levelOf(listsOf({{"1.\tone"}, {"2.\ttwo"}}), 0, 0);
    EXPECT_EQ(level.indentStart, twipsFromPoints(90 - 72 + 30)) << "where the text starts";
    EXPECT_EQ(level.firstLine, twipsFromPoints(-30)) << "the label hangs out";
}

TEST(ListFinder, TakesTheIndentsOfALevelFromItemsOfSeveralLines) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.blocks = {tests::makeBlock(tests::makeParagraph({tests::makeLine("\u2022\tone", 90, 100)})),
                    tests::makeBlock(tests::makeParagraph({tests::makeLine("\u2022\ttwo", 90, 114)})),
                    tests::makeBlock(tests::makeParagraph(
                        {tests::makeLine("\u2022\tthree", 90, 128), tests::makeLine("more", 90, 142)}))};
    findLists(draft, {});
    ASSERT_EQ(placesOf(draft), "0.0 0.0 0.0");
    EXPECT_EQ(levelOf(draft, 0, 0).indentStart, twipsFromPoints(90 - 72));
    EXPECT_EQ(levelOf(draft, 0, 0).firstLine, Twips(0)) << "nothing hangs, though most items do not show it";
}

TEST(ListFinder, RepeatsTheNumbersOfTheLevelAbove) {
    const DocumentDraft draft = listsOf({{"2.\ttwo"}, {"2.1.\tin two"}, {"2.2.\tin two"}, {"3.\tthree"}});
    EXPECT_EQ(levelOf(draft, 0, 1).text, "%1.%2.");
    const DocumentDraft alone = listsOf({{"2.1.\tin two"}, {"2.2.\tin two"}});
    EXPECT_EQ(levelOf(alone, 0, 0).text, "2.%1.") << "the level above is no item of the list";
    const DocumentDraft below =
        listsOf({{"2.1.\tone"}, {"2.1.1.\tin it"}, {"2.1.2.\tin it"}, {"2.2.\ttwo"}, {"2.2.1.\tin it"}});
    EXPECT_EQ(levelOf(below, 0, 0).text, "2.%1.");
    EXPECT_EQ(levelOf(below, 0, 1).text, "2.%1.%2.");
    EXPECT_EQ(levelOf(alone, 0, 0).start, 1);
}

TEST(ListFinder, FindsListsWithinCells) {
    DocumentDraft draft = tests::makeDraft(1);
    DraftBlock block;
    DraftTable table;
    table.cells.resize(2);
    for (DraftCell& cell : table.cells)
        for (const char* text : {"1.\tone", "2.\ttwo"})
            cell.blocks.push_back(tests::makeBlock(tests::makeParagraph({tests::makeLine(text, 90, 100)})));
    block.value = table;
    draft.blocks.push_back(block);
    findLists(draft, {});
    EXPECT_EQ(draft.numberings.size(), 2u) << "each cell counts by itself";
}

/// One cell of two columns for each list of rows, row by row; the rows begin at 90 in the first column.
DocumentDraft listsOfCells(const std::vector<std::vector<Row>>& cells) {
    DocumentDraft draft = tests::makeDraft(1);
    DraftTable table;
    for (const std::vector<Row>& rows : cells) {
        const auto number = static_cast<int>(table.cells.size());
        DraftCell& cell = table.cells.emplace_back();
        cell.cell.row = number / 2;
        cell.cell.column = number % 2;
        const double shift = 200 * cell.cell.column;
        for (const Row& row : rows) {
            cell.blocks.push_back(
                tests::makeBlock(tests::makeParagraph({tests::makeLine(row.text, row.left + shift, 100)})));
            cell.blocks.back().paragraph()->pieces.front().column = {72 + shift, 272 + shift};
        }
    }
    draft.blocks.emplace_back().value = std::move(table);
    findLists(draft, {});
    return draft;
}

TEST(ListFinder, GoesOnFromCellToCellOfAColumn) {
    const struct {
        const char* why;
        std::vector<std::vector<Row>> cells;
        const char* expected; ///< of all cells, row by row
    } cases[] = {
        {"questions and answers",
         {{{"1.\tWhy"}}, {{"yes"}}, {{"2.\tHow"}}, {{"no"}}, {{"3.\tWhen"}}, {{"no"}}},
         "0.0 - 0.0 - 0.0 -"},
        {"not across", {{{"3.\tWhy"}}, {{"4.\tHow"}}, {{"more"}}, {{"more"}}}, "- - - -"},
        {"a level within a cell", {{{"1.\tWhy"}}, {}, {{"2.\tHow"}, {"a)\tso", 120}}, {}}, "0.0 0.0 0.1"},
        {"no level below another cell", {{{"1.\tWhy"}}, {}, {{"a)\tso", 120}}, {}}, "0.0 1.0"},
        {"bullets by cell", {{{"\u2022\tone"}}, {}, {{"\u2022\ttwo"}}, {}}, "0.0 1.0"},
        {"numbers of rows", {{{"2\tone"}}, {}, {{"3\ttwo"}}, {}}, "- -"},
        {"amounts", {{{"1.47\tkg"}}, {}, {{"1.48\tkg"}}, {}}, "- -"},
        {"amounts without parts", {{{"2.0\tkg"}}, {}, {{"3.0\tkg"}}, {}}, "- -"},
    };
    for (const auto& [why, cells, expected] : cases) {
        const DocumentDraft draft = listsOfCells(cells);
        std::vector<DraftBlock> blocks;
        for (const DraftCell& cell : std::get<DraftTable>(draft.blocks[0].value).cells)
            blocks.insert(blocks.end(), cell.blocks.begin(), cell.blocks.end());
        EXPECT_EQ(placesOf(blocks), expected) << why;
    }
}

TEST(ListFinder, SetsBulletsInTheFontsOfWordProcessors) {
    const auto document = tests::documentOf(listsOf({{"\u2022\tone"}, {"\u2022\ttwo"}}));
    ASSERT_EQ(document.numberings.size(), 1u);
    const document::NumberingLevel& level = document.numberings[0].levels[0];
    EXPECT_EQ(level.text, "\uF0B7");
    ASSERT_TRUE(level.run);
    EXPECT_EQ(level.run->fontFamily, "Symbol");
    EXPECT_EQ(document::dump(tests::paragraphAt(document, 0), document),
              "p ListParagraph list=0.0 {start=43pt first=-25pt} \"one\"");

    const auto large = tests::documentOf(listsOf({{"\u25CF\tone"}, {"\u25CF\ttwo"}}));
    EXPECT_EQ(large.numberings.at(0).levels[0].text, "\uF06C") << "a large one stays large";
    EXPECT_EQ(large.numberings[0].levels[0].run->fontFamily, "Wingdings");
}

/// A file that has a blank for each one that was typed; behind the labels there is what `label` tells.
enum class BehindLabels { Nothing, Blank };

DocumentDraft paintedListOf(const std::vector<Row>& rows, BehindLabels label) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.blocks.push_back(tests::makeBlock(tests::makeParagraph(
        {tests::makeLine("a line with so many words that it tells how the file was made and whether it has any blanks "
                         "between them at all or leaves gaps",
                         72, 60)})));
    double baseline = 100;
    for (const Row& row : rows)
        draft.blocks.push_back(
            tests::makeBlock(tests::makeParagraph({tests::makeLine(row.text, row.left, baseline += 14)})));
    for (std::size_t i = 0; i < rows.size(); ++i)
        draft.blocks[i + 1].paragraph()->role = rows[i].role;
    for (DraftBlock& block : draft.blocks) {
        std::vector<Word>& words = block.paragraph()->pieces.front().text.lines.front().words;
        for (std::size_t i = 1; i < words.size(); ++i)
            words[i].isTypedBefore = i > 1 || &block == &draft.blocks.front() || label == BehindLabels::Blank;
    }
    findLists(draft, {});
    return draft;
}

TEST(ListFinder, LabelsWithoutThePaintedBlankOfOtherWordsAreWrittenByLists) {
    const DocumentDraft draft = paintedListOf({{"1. one", 72}, {"2. two", 72}}, BehindLabels::Nothing);
    EXPECT_EQ(placesOf(draft), "- 0.0 0.0") << "though they stand at the edge of the text";
}

TEST(ListFinder, LabelsWithABlankOfTheirOwnWereTyped) {
    const DocumentDraft draft = paintedListOf({{"1. one", 90}, {"2. two", 90}}, BehindLabels::Blank);
    EXPECT_EQ(placesOf(draft), "- - -") << "though they stand further in than the text";
}

TEST(ListFinder, HeadingsThatAListNumbersStayHeadings) {
    const std::vector<Row> rows = {{"1.0 Aims", 72, ParagraphRole::Heading},
                                   {"1. one", 90},
                                   {"2. two", 90},
                                   {"2.0 Means", 72, ParagraphRole::Heading},
                                   {"2.1 Money", 72, ParagraphRole::Heading}};
    const DocumentDraft draft = paintedListOf(rows, BehindLabels::Nothing);
    EXPECT_EQ(placesOf(draft), "- 1.0 0.0 0.0 1.0 1.1") << "on their own, whatever lists stand between them";
    EXPECT_EQ(levelOf(draft, 1, 0).text, "%1.0");
    EXPECT_EQ(levelOf(draft, 1, 1).text, "%1.%2");
    EXPECT_EQ(draft.blocks[1].paragraph()->role, ParagraphRole::Heading);
}

TEST(ListFinder, ARunWithoutTheLevelAboveItKeepsTheNumbersOfThatLevel) {
    const std::vector<Row> rows = {{"3. Means", 72, ParagraphRole::Heading},
                                   {"3.1 Money", 72, ParagraphRole::Heading},
                                   {"3.2 Time", 72, ParagraphRole::Heading}};
    DocumentDraft draft = paintedListOf(rows, BehindLabels::Nothing);
    for (DraftBlock& block : draft.blocks)
        block.paragraph()->list.reset();
    draft.numberings.clear();
    draft.blocks[1].paragraph()->pieces.front().text.lines.front().words[1].isTypedBefore = true;
    findLists(draft, {});
    EXPECT_EQ(placesOf(draft), "- - 0.1 0.1");
    EXPECT_EQ(levelOf(draft, 0, 1).text, "3.%2") << "the heading above has typed its number";
}

TEST(ListFinder, HeadingsWhoseNumbersWereTypedKeepThem) {
    const std::vector<Row> rows = {{"1. Aims", 72, ParagraphRole::Heading}, {"2. Means", 72, ParagraphRole::Heading}};
    EXPECT_EQ(placesOf(paintedListOf(rows, BehindLabels::Blank)), "- - -");
    EXPECT_EQ(placesOf(listsOf(rows)), "- -") << "and where nothing tells whether they were typed";
}

} // namespace
} // namespace orvane::layout
