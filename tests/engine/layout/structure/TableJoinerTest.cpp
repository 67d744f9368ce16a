#include "layout/structure/TableJoiner.h"
#include "engine/layout/TextBuilder.h"
#include "layout/structure/DraftBuilder.h"
#include "layout/structure/TablePart.h"
#include "layout/tables/TableFinder.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

using Rows = std::vector<std::vector<std::string>>;

void addRule(PageText& page, RuleDirection direction, double position, double from, double to) {
    Rule rule;
    rule.direction = direction;
    rule.position = position;
    rule.from = from;
    rule.to = to;
    page.rules.push_back(rule);
}

/// What a test says about a page with one ruled table: rows of 40 points, columns of 100 points from `left` on; lines
/// of a cell are parted by '/'. A cell of "^" belongs to the one above, one of "<" to the one before.
struct TablePage {
    Rows rows;
    double left = 72;
    bool hasBoldHead = false;
};

PageLayout layoutOf(const TablePage& source, int number) {
    PageText page = makePage(number);
    page.fonts.front().spaceWidth = 0.5;
    const double top = 72;
    const auto columns = static_cast<int>(source.rows.front().size());
    for (int i = 0; i <= columns; ++i)
        for (std::size_t row = 0; row < source.rows.size(); ++row)
            if (i == columns || source.rows[row][static_cast<std::size_t>(i)] != "<")
                addRule(page, RuleDirection::Vertical, source.left + 100 * i, top + 40 * static_cast<double>(row),
                        top + 40 * static_cast<double>(row + 1));
    for (std::size_t i = 0; i <= source.rows.size(); ++i) {
        for (int column = 0; column < columns; ++column) {
            if (i < source.rows.size() && source.rows[i][static_cast<std::size_t>(column)] == "^")
                continue;
            addRule(page, RuleDirection::Horizontal, top + 40 * static_cast<double>(i), source.left + 100 * column,
                    source.left + 100 * (column + 1));
        }
    }
    for (std::size_t row = 0; row < source.rows.size(); ++row) {
        for (std::size_t column = 0; column < source.rows[row].size(); ++column) {
            double baseline = top + 40 * static_cast<double>(row) + 12;
            if (source.rows[row][column] == "^" || source.rows[row][column] == "<")
                continue;
            std::stringstream text(source.rows[row][column]);
            for (std::string line; std::getline(text, line, '/'); baseline += 12)
                page.lines.push_back(makeLine(line, source.left + 4 + 100 * static_cast<double>(column), baseline,
                                              {.isBold = source.hasBoldHead && row == 0}));
        }
    }
    Diagnostics diagnostics;
    PageLayout layout;
    layout.number = number;
    layout.fonts = page.fonts;
    for (TableDraft& table : findTables(page, {}, {}, diagnostics))
        layout.blocks.emplace_back().value = std::move(table);
    return layout;
}

std::string textOf(const DraftCell& cell) {
    std::string text;
    for (const DraftBlock& block : cell.blocks) {
        text += text.empty() ? "" : "+";
        bool isFirst = true;
        for (const DraftPiece& piece : block.paragraph()->pieces) {
            for (const Line& line : piece.text.lines) {
                for (const Word& word : line.words) {
                    text += isFirst ? "" : " ";
                    isFirst = false;
                    for (const Span& span : word.spans)
                        text += span.text;
                }
            }
        }
    }
    return text;
}

/// The tables of the pages after joining: rows parted by '/', cells by '|', header rows marked by '*', tables by " & ".
/// A cell over several rows tells how many.
std::string joinedTables(const std::vector<TablePage>& sources) {
    std::vector<PageLayout> pages;
    for (const TablePage& source : sources)
        pages.push_back(layoutOf(source, static_cast<int>(pages.size()) + 1));
    DocumentDraft draft = buildDraft(std::move(pages));
    joinTables(draft, {}, {});
    std::string out;
    for (const DraftBlock& block : draft.blocks) {
        const auto& table = std::get<DraftTable>(block.value);
        out += out.empty() ? "" : " & ";
        for (int row = 0; row < rowCount(table); ++row) {
            out += row == 0 ? "" : "/";
            out += row < table.table.headerRows ? "*" : "";
            bool isFirst = true;
            for (const DraftCell& cell : table.cells) {
                if (cell.cell.row != row)
                    continue;
                out += isFirst ? "" : "|";
                out += textOf(cell);
                out += cell.cell.rowSpan > 1 ? ":" + std::to_string(cell.cell.rowSpan) : "";
                isFirst = false;
            }
        }
    }
    return out;
}

TEST(TableJoiner, MakesOneTableOfPartsOnPagesThatFollowEachOther) {
    EXPECT_EQ(joinedTables({{{{"a", "1"}, {"b", "2"}}}, {{{"c", "3"}, {"d", "4"}}}, {{{"e", "5"}, {"f", "6"}}}}),
              "a|1/b|2/c|3/d|4/e|5/f|6");
}

TEST(TableJoiner, KeepsARepeatedHeadOnce) {
    EXPECT_EQ(joinedTables({{{{"Name", "Age"}, {"Ada", "36"}}}, {{{"Name", "Age"}, {"Bob", "41"}}}}),
              "*Name|Age/Ada|36/Bob|41");
}

TEST(TableJoiner, KnowsAHeadThatIsNotRepeated) {
    EXPECT_EQ(joinedTables({{{{"Name", "Age"}, {"Ada", "36"}}, 72, true}, {{{"Bob", "41"}, {"Eve", "29"}}}}),
              "Name|Age/Ada|36/Bob|41/Eve|29");
    EXPECT_EQ(joinedTables({{{{"Name", "Age"}, {"Ada", "36"}}, 72, true}}), "*Name|Age/Ada|36");
}

TEST(TableJoiner, JoinsPartsThatFacingMarginsMoveAside) {
    EXPECT_EQ(joinedTables({{{{"a", "1"}, {"b", "2"}}, 72}, {{{"c", "3"}, {"d", "4"}}, 90}}), "a|1/b|2/c|3/d|4");
}

TEST(TableJoiner, LeavesTablesWithOtherColumnsApart) {
    EXPECT_EQ(joinedTables({{{{"a", "1"}, {"b", "2"}}}, {{{"c", "3", "x"}, {"d", "4", "y"}}}}),
              "a|1/b|2 & c|3|x/d|4|y");
}

TEST(TableJoiner, LeavesATableWithAHeadOfItsOwnApart) {
    EXPECT_EQ(joinedTables({{{{"a", "1"}, {"b", "2"}}}, {{{"Other", "Head"}, {"d", "4"}}, 72, true}}),
              "a|1/b|2 & *Other|Head/d|4");
}

TEST(TableJoiner, TakesTheHeadingOfSomeRowsForNoHead) {
    EXPECT_EQ(joinedTables({{{{"North", "<"}, {"a", "1"}, {"South", "<"}, {"b", "2"}}},
                            {{{"West", "<"}, {"c", "3"}}, 72, true}}),
              "North/a|1/South/b|2/West/c|3");
    EXPECT_EQ(joinedTables({{{{"a", "1"}, {"b", "2"}}}, {{{"West", "<"}, {"c", "3"}}, 72, true}}),
              "a|1/b|2 & *West/c|3");
}

TEST(TableJoiner, TakesTheRestOfACutRowForNoHead) {
    EXPECT_EQ(joinedTables({{{{"why it is so that a/long text goes on", "1"}}, 72, true},
                            {{{"behind the page", ""}, {"why not", "2"}}, 72, true}}),
              "why it is so that a long text goes on behind the page|1/why not|2");
}

TEST(TableJoiner, LeavesAFormThatEachPageHasApart) {
    EXPECT_EQ(joinedTables({{{{"Date", "Place"}, {"Name", "Sign"}}}, {{{"Date", "Place"}, {"Name", "Sign"}}}}),
              "Date|Place/Name|Sign & Date|Place/Name|Sign");
}

TEST(TableJoiner, MakesARowWholeThatThePageBreakCut) {
    EXPECT_EQ(joinedTables({{{{"Key", "Text"}, {"one", "words of a long/text that goes on"}}},
                            {{{"", "behind the page/break"}, {"two", "short"}}}}),
              "Key|Text/one|words of a long text that goes on behind the page break/two|short");
}

TEST(TableJoiner, TakesTextWithoutALabelForTheRestOfARowWhereAllRowsHaveTheirs) {
    const TablePage first{{{"1", "Ask all"}, {"2", "Print it."}, {"3", "Send letters."}}};
    EXPECT_EQ(joinedTables({first, {{{"", "Wait"}, {"4", "File them"}}}}),
              "1|Ask all/2|Print it./3|Send letters.+Wait/4|File them");
    EXPECT_EQ(joinedTables({first, {{{"", "Wait"}, {"", "File them"}}}}),
              "1|Ask all/2|Print it./3|Send letters./|Wait/|File them")
        << "some rows have no label";
    EXPECT_EQ(joinedTables({first, {{{"", "7.50"}, {"4", "File them"}}}}),
              "1|Ask all/2|Print it./3|Send letters./|7.50/4|File them")
        << "a sum";
    EXPECT_EQ(joinedTables({{{{"1", "Ask all"}, {"^", "Print it."}, {"2", "Send letters."}}},
                            {{{"", "Wait"}, {"4", "File them"}}}}),
              "1:2|Ask all/Print it./2|Send letters./|Wait/4|File them")
        << "labels stand beside several rows";
}

TEST(TableJoiner, KeepsLinesThatWereEndedByHandInARowThatThePageBreakCut) {
    const TablePage first{{{"1", "Ask all"}, {"2", "Print it."}, {"3", "All letters = many"}}};
    EXPECT_EQ(joinedTables({first, {{{"", "Envelopes = few"}, {"4", "File them"}}}}),
              "1|Ask all/2|Print it./3|All letters = many+Envelopes = few/4|File them");
    EXPECT_EQ(joinedTables({first, {{{"", "envelopes"}, {"4", "File them"}}}}),
              "1|Ask all/2|Print it./3|All letters = many envelopes/4|File them");
}

TEST(TableJoiner, MakesARowWholeBesideALabelOfSeveralRows) {
    EXPECT_EQ(joinedTables({{{{"Rye", "1911"}, {"^", "the harvest of the/county of Lund and"}}},
                            {{{"", "around it"}, {"^", "1913"}}}}),
              "Rye:3|1911/the harvest of the county of Lund and around it/1913");
}

TEST(TableJoiner, LetsALabelGoOnBesideTheRowsOfTheNextPage) {
    EXPECT_EQ(joinedTables({{{{"Rye", "1911"}, {"^", "1912"}}}, {{{"", "1913"}, {"^", "1914"}, {"Oats", "1915"}}}}),
              "Rye:4|1911/1912/1913/1914/Oats|1915");
}

TEST(TableJoiner, LeavesACellAloneThatIsEmptyInOneRow) {
    EXPECT_EQ(joinedTables({{{{"Rye", "1911"}, {"^", "1912"}}}, {{{"", "1913"}, {"Oats", "1914"}}}}),
              "Rye:2|1911/1912/|1913/Oats|1914");
}

TEST(TableJoiner, KeepsRowsOfSingleWordsThatFillTheirCells) {
    EXPECT_EQ(joinedTables({{{{"Instance", "Value"}, {"anneal-by-hand-60", "1.477.834.000.000"}}},
                            {{{"anneal-by-hand-70", "1.528.537.000.000"}, {"Another", "2"}}}}),
              "Instance|Value/anneal-by-hand-60|1.477.834.000.000/anneal-by-hand-70|1.528.537.000.000/Another|2");
}

TEST(TableJoiner, KeepsARowThatEndsWithThePage) {
    EXPECT_EQ(joinedTables({{{{"Key", "Text"}, {"one", "words of a long/text that ends."}}},
                            {{{"two", "Another text"}, {"three", "short"}}}}),
              "Key|Text/one|words of a long text that ends./two|Another text/three|short");
}

} // namespace
} // namespace orvane::layout::tests
