#include "layout/assembly/TableAssembler.h"

#include "engine/layout/DraftSupport.h"
#include "layout/structure/DraftBuilder.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

enum class Reading : unsigned char { FromLeft, FromRight };

/// A table of columns 100 and 200 points wide from 172 points on: a row of two cells, and a row of one over both.
DocumentDraft draftOfTable(Reading reading) {
    DocumentDraft draft = tests::makeDraft(1);
    DraftTable table;
    table.table.columnEdges = {172, 272, 472};
    table.table.rowEdges = {100, 120, 140};
    table.table.box = {172, 100, 472, 140};
    table.table.isRightToLeft = reading == Reading::FromRight;
    const auto add = [&](int row, int column, int columnSpan, const char* text, double left) {
        DraftCell& cell = table.cells.emplace_back();
        cell.cell.row = row;
        cell.cell.column = column;
        cell.cell.columnSpan = columnSpan;
        cell.cell.box = {left, 100 + 20.0 * row, left + 100, 120 + 20.0 * row};
        cell.blocks.push_back(
            tests::makeBlock(tests::makeParagraph({tests::makeLine(text, left + 6, 112 + 20.0 * row)})));
    };
    add(0, 0, 1, "left", 172);
    add(0, 1, 1, "right", 272);
    add(1, 0, 2, "both", 172);
    DraftBlock& block = draft.blocks.emplace_back();
    block.box = table.table.box;
    block.value = std::move(table);
    return draft;
}

document::Table tableOf(Reading reading) {
    document::Document document = tests::documentOf(draftOfTable(reading));
    return std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
}

std::string textOf(const document::TableCell& cell) {
    const auto& paragraph = std::get<document::Paragraph>(cell.blocks.at(0).value);
    return std::get<document::Text>(paragraph.inlines.at(0).value).text;
}

TEST(TableAssembler, CountsColumnsFromTheSideWhereReadingStarts) {
    const document::Table fromLeft = tableOf(Reading::FromLeft);
    EXPECT_FALSE(fromLeft.isRightToLeft);
    EXPECT_EQ(fromLeft.columnWidths, (std::vector<Twips>{Twips(2000), Twips(4000)}));
    EXPECT_EQ(textOf(fromLeft.rows[0].cells[0]), "left");
    EXPECT_EQ(fromLeft.indent, Twips(2000));

    const document::Table fromRight = tableOf(Reading::FromRight);
    EXPECT_TRUE(fromRight.isRightToLeft);
    EXPECT_EQ(fromRight.columnWidths, (std::vector<Twips>{Twips(4000), Twips(2000)}));
    EXPECT_EQ(textOf(fromRight.rows[0].cells[0]), "right");
    EXPECT_EQ(fromRight.rows[0].cells[0].column, 0);
    EXPECT_EQ(fromRight.rows[0].cells[1].column, 1);
    EXPECT_EQ(fromRight.rows[1].cells[0].column, 0);
    EXPECT_EQ(fromRight.indent, Twips(1020)) << "from the text's right edge at 523 points";
}

TEST(TableAssembler, StartsItsPageInTheCellThatIsReadFirst) {
    for (const Reading reading : {Reading::FromLeft, Reading::FromRight}) {
        DocumentDraft draft = draftOfTable(reading);
        draft.blocks[0].startsPage = true;
        DraftSection& section = draft.sections.emplace_back();
        section.setup.start = document::SectionStart::Continuous;
        section.setup.marginTop = twipsFromPoints(draft.blocks[0].box.top);
        const document::Document document = tests::documentOf(draft);
        const auto& cells = std::get<document::Table>(document.sections.at(0).blocks.at(0).value).rows[0].cells;
        const auto startsPage = [&cells](std::size_t cell) {
            return std::get<document::Paragraph>(cells.at(cell).blocks.at(0).value).properties.pageBreakBefore;
        };
        EXPECT_TRUE(startsPage(0));
        EXPECT_FALSE(startsPage(1));
    }
}

TEST(TableAssembler, StartsAColumnBehindAParagraphWithTheBreak) {
    DocumentDraft draft = draftOfTable(Reading::FromLeft);
    draft.blocks[0].startsColumn = true;
    const document::Document document = tests::documentOf(draft);
    const std::vector<document::Block>& blocks = document.sections.at(0).blocks;
    ASSERT_GE(blocks.size(), 2u);
    const auto& paragraph = std::get<document::Paragraph>(blocks[0].value);
    ASSERT_EQ(paragraph.inlines.size(), 1u);
    EXPECT_EQ(std::get<document::Break>(paragraph.inlines[0].value).kind, document::BreakKind::Column);
    EXPECT_EQ(paragraph.properties.lineSpacing.height, twipsFromPoints(1)) << "the table stands no lower for it";
    EXPECT_TRUE(std::holds_alternative<document::Table>(blocks[1].value));
}

TEST(TableAssembler, MeasuresTheIndentFromTheColumnOfTheSection) {
    DocumentDraft draft = draftOfTable(Reading::FromLeft);
    draft.blocks[0].textColumn = ColumnSpan{90, 500};
    const document::Document document = tests::documentOf(draft);
    EXPECT_EQ(std::get<document::Table>(document.sections.at(0).blocks.at(0).value).indent, Twips(1640));
}

TEST(TableAssembler, GivesALineAsWideAsItsCellAHairMore) {
    DocumentDraft draft = draftOfTable(Reading::FromLeft);
    auto& cells = std::get<DraftTable>(draft.blocks[0].value).cells;
    const double usual = AssemblyParameters{}.tableCells.usualMargin;
    // The text of the first cell reaches to the margin.
    cells[0].blocks[0].box.right = cells[0].cell.box.right - usual;
    const document::Document document = tests::documentOf(draft);
    const auto& row = std::get<document::Table>(document.sections.at(0).blocks.at(0).value).rows[0];
    EXPECT_EQ(row.cells[0].marginLeft, twipsFromPoints(usual));
    EXPECT_LT(row.cells[0].marginRight, twipsFromPoints(usual));
    EXPECT_EQ(row.cells[1].marginRight, twipsFromPoints(usual));
}

TEST(TableAssembler, GivesALineOfItsOwnMoreRoomThanWrappedOnes) {
    const auto marginRight = [](bool isWrapped) {
        DraftBlock table = draftOfTable(Reading::FromLeft).blocks[0];
        auto& cell = std::get<DraftTable>(table.value).cells[0];
        const double usual = AssemblyParameters{}.tableCells.usualMargin;
        cell.blocks[0].box = cell.cell.box;
        cell.blocks[0].box.left += usual;
        cell.blocks[0].box.right -= usual;
        std::vector<Line>& lines = cell.blocks[0].paragraph()->pieces[0].text.lines;
        if (isWrapped)
            lines.push_back(lines.front());
        DocumentDraft draft = draftOfTable(Reading::FromLeft);
        draft.blocks[0] = table;
        const document::Document document = tests::documentOf(draft);
        return std::get<document::Table>(document.sections.at(0).blocks.at(0).value).rows[0].cells[0].marginRight;
    };
    EXPECT_LT(marginRight(false), marginRight(true)) << "a stand-in for its font must not break it";
}

TEST(TableAssembler, LetsALineThatFillsItsCellReachOutOfIt) {
    DocumentDraft draft = draftOfTable(Reading::FromLeft);
    DraftCell& cell = std::get<DraftTable>(draft.blocks[0].value).cells[0];
    ParagraphDraft amount = tests::makeParagraph({tests::makeLine(std::string(20, '0'), 172, 112)});
    amount.alignment = document::Alignment::End;
    cell.blocks[0] = tests::makeBlock(std::move(amount));
    cell.blocks[0].paragraph()->pieces[0].column = {172, 272};
    const document::Document document = tests::documentOf(draft);
    const auto& row = std::get<document::Table>(document.sections.at(0).blocks.at(0).value).rows[0];
    EXPECT_EQ(std::get<document::Paragraph>(row.cells[0].blocks.at(0).value).properties.indentStart,
              twipsFromPoints(-10))
        << "a stand-in for its font must not break it";
}

TEST(TableAssembler, KeepsRowsLowerThanTheLinesOfTheirFonts) {
    const auto spacingIn = [](double height) {
        DocumentDraft draft = draftOfTable(Reading::FromLeft);
        DraftCell& cell = std::get<DraftTable>(draft.blocks[0].value).cells[2];
        cell.cell.box.bottom = cell.cell.box.top + height;
        const document::Document document = tests::documentOf(draft);
        const auto& table = std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
        return std::get<document::Paragraph>(table.rows[1].cells[0].blocks.at(0).value).properties.lineSpacing;
    };
    EXPECT_EQ(spacingIn(20).rule, document::LineSpacingRule::Multiple);
    EXPECT_EQ(spacingIn(11).rule, document::LineSpacingRule::Exact);
    EXPECT_EQ(spacingIn(11).height, twipsFromPoints(11));
    EXPECT_EQ(spacingIn(6).rule, document::LineSpacingRule::Multiple) << "no room for the letters";
}

TEST(TableAssembler, KeepsLowRowsWithoutTextLow) {
    const auto sizeIn = [](double height) {
        DocumentDraft draft = draftOfTable(Reading::FromLeft);
        DraftCell& cell = std::get<DraftTable>(draft.blocks[0].value).cells[2];
        cell.blocks.clear();
        cell.cell.box.bottom = cell.cell.box.top + height;
        const document::Document document = tests::documentOf(draft);
        const auto& table = std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
        const auto& paragraph = std::get<document::Paragraph>(table.rows[1].cells[0].blocks.at(0).value);
        return paragraph.markProperties.size;
    };
    EXPECT_EQ(sizeIn(5.2), HalfPoints(8));
    EXPECT_EQ(sizeIn(0.5), HalfPoints(2)) << "no program sets smaller text";
    EXPECT_EQ(sizeIn(40), sizeIn(20)) << "as the body text";
}

TEST(TableAssembler, SetsTextBelowABlankLineAsFarBelowTheOthersOfItsRow) {
    const auto spaceBefore = [](double drop, document::CellAlignment alignment) {
        DocumentDraft draft = draftOfTable(Reading::FromLeft);
        DraftCell& cell = std::get<DraftTable>(draft.blocks[0].value).cells[1];
        cell.cell.alignment = alignment;
        cell.blocks[0] = tests::makeBlock(tests::makeParagraph({tests::makeLine("right", 278, 112 + drop)}));
        const document::Document document = tests::documentOf(draft);
        const auto& table = std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
        const auto& paragraph = std::get<document::Paragraph>(table.rows[0].cells[1].blocks.at(0).value);
        return pointsFromTwips(paragraph.properties.spaceBefore);
    };
    EXPECT_NEAR(spaceBefore(13, document::CellAlignment::Top), 13, 0.1);
    EXPECT_EQ(spaceBefore(2, document::CellAlignment::Top), 0) << "in the same line";
    EXPECT_EQ(spaceBefore(13, document::CellAlignment::Center), 0) << "its alignment puts it there";
}

TEST(TableAssembler, SetsTheTextsOfARowAsFarBelowItsEdgeAsTheyAre) {
    DocumentDraft draft = draftOfTable(Reading::FromLeft);
    DraftTable& table = std::get<DraftTable>(draft.blocks[0].value);
    table.table.rowEdges[2] = table.table.box.bottom = table.cells[2].cell.box.bottom = 200;
    table.cells[2].blocks[0] = tests::makeBlock(tests::makeParagraph({tests::makeLine("both", 178, 132 + 25)}));
    const document::Document document = tests::documentOf(draft);
    const auto& written = std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
    const auto spaceIn = [&](std::size_t row) {
        return std::get<document::Paragraph>(written.rows[row].cells[0].blocks.at(0).value).properties.spaceBefore;
    };
    EXPECT_EQ(spaceIn(0), Twips(0)) << "the margin of all cells";
    EXPECT_NEAR(pointsFromTwips(spaceIn(1)), 25, 0.1);
}

TEST(TableAssembler, LeavesTheBordersTheirRoom) {
    DocumentDraft draft = draftOfTable(Reading::FromLeft);
    // The lines reach from 2.29 points below the rows' upper edges to 5.5 above the lower ones.
    const document::Document plain = tests::documentOf(draft);
    const auto& cell = std::get<document::Table>(plain.sections.at(0).blocks.at(0).value).rows[0].cells[0];
    EXPECT_NEAR(pointsFromTwips(cell.marginTop), 2.29, 0.05);
    const double slack = AssemblyParameters{}.tableCells.slackBelow; // so that rows keep their heights
    EXPECT_NEAR(pointsFromTwips(cell.marginBottom), 5.5 - slack, 0.05);

    const document::Border thick{document::BorderKind::Single, EighthPoints(16), {}, 0};
    const document::Border doubled{document::BorderKind::Double, EighthPoints(6), {}, 0};
    for (DraftCell& drafted : std::get<DraftTable>(draft.blocks[0].value).cells) {
        drafted.cell.borders.top = thick;
        drafted.cell.borders.bottom = doubled;
    }
    const document::Document bordered = tests::documentOf(draft);
    const auto& between = std::get<document::Table>(bordered.sections.at(0).blocks.at(0).value).rows[0].cells[0];
    EXPECT_NEAR(pointsFromTwips(between.marginTop), 2.29 - 1, 0.05) << "half of the border lies within the row";
    EXPECT_NEAR(pointsFromTwips(between.marginBottom), 5.5 - 1.125 - slack, 0.05)
        << "likewise of two lines and their gap";
}

/// A page with a table of one cell from 172 to 472 points that holds this.
document::TableCell cellWith(PageBlock inside) {
    PageLayout page = tests::makeLayout(1);
    TableDraft table;
    table.box = {172, 100, 472, 200};
    table.columnEdges = {172, 472};
    table.rowEdges = {100, 200};
    CellDraft& cell = table.cells.emplace_back();
    cell.box = table.box;
    cell.blocks.push_back(std::move(inside));
    page.blocks.emplace_back().value = std::move(table);
    const document::Document document = tests::documentOf(buildDraft({std::move(page)}));
    return std::get<document::Table>(document.sections.at(0).blocks.at(0).value).rows.at(0).cells.at(0);
}

TEST(TableAssembler, BeginsWhereItsBordersBegin) {
    const document::Border thick{document::BorderKind::Single, EighthPoints(32), {}, 0};
    const auto tableWith = [&](Reading reading, bool isBordered) {
        DocumentDraft draft = draftOfTable(reading);
        for (DraftCell& cell : std::get<DraftTable>(draft.blocks[0].value).cells)
            if (isBordered)
                cell.cell.borders = {thick, thick, thick, thick};
        const document::Document document = tests::documentOf(draft);
        return std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
    };
    for (const Reading reading : {Reading::FromLeft, Reading::FromRight}) {
        const document::Table plain = tableWith(reading, false), bordered = tableWith(reading, true);
        const Twips half = twipsFromPoints(2);
        EXPECT_EQ(bordered.indent, plain.indent - half);
        EXPECT_EQ(bordered.columnWidths.front(), plain.columnWidths.front() + half);
        EXPECT_EQ(bordered.columnWidths.back(), plain.columnWidths.back() + half);
    }
}

TEST(TableAssembler, IndentsATableWithinACellFromTheCellsText) {
    TableDraft inner;
    inner.box = {222, 120, 322, 140};
    inner.columnEdges = {222, 322};
    inner.rowEdges = {120, 140};
    inner.cells.emplace_back().box = inner.box;
    PageBlock block;
    block.value = std::move(inner);
    const document::TableCell cell = cellWith(std::move(block));
    EXPECT_EQ(std::get<document::Table>(cell.blocks.at(0).value).indent, twipsFromPoints(50) - cell.marginLeft);
}

TEST(TableAssembler, IndentsAPictureWithinACellFromTheCellsText) {
    FigureDraft picture;
    picture.figure.box = {202, 120, 302, 180};
    picture.isInline = true;
    PageBlock block;
    block.value = std::move(picture);
    const document::TableCell cell = cellWith(std::move(block));
    const auto& paragraph = std::get<document::Paragraph>(cell.blocks.at(0).value);
    EXPECT_EQ(paragraph.properties.indentStart, twipsFromPoints(30) - cell.marginLeft);
    EXPECT_EQ(paragraph.properties.alignment, document::Alignment::Start);
}

} // namespace
} // namespace orvane::layout
