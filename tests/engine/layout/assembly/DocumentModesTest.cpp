#include "layout/assembly/ContinuousDocument.h"
#include "layout/assembly/PlainTextDocument.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using namespace document;
using testing::ElementsAre;

Paragraph paragraph(std::vector<Inline> inlines) {
    Paragraph result;
    result.inlines = std::move(inlines);
    return result;
}

Paragraph paragraph(std::string text) {
    return paragraph({{Text{std::move(text), {}}}});
}

TableCell cell(std::string text, int column) {
    TableCell result;
    result.column = column;
    result.blocks = {{paragraph(std::move(text))}};
    return result;
}

Document documentOf(std::vector<Block> blocks) {
    Document document;
    document.styles.resize(1);
    document.styles[0].id = "Body";
    document.styles[0].run.fontFamily = "Caladea";
    document.styles[0].run.isItalic = true;
    document.sections.resize(1);
    document.sections[0].blocks = std::move(blocks);
    return document;
}

/// The texts of the first section's paragraphs.
std::vector<std::string> lines(const Document& document) {
    std::vector<std::string> result;
    for (const Block& block : document.sections.front().blocks) {
        std::string line;
        if (const auto* one = std::get_if<Paragraph>(&block.value))
            for (const Inline& item : one->inlines)
                if (const auto* text = std::get_if<Text>(&item.value))
                    line += text->text;
        result.push_back(line);
    }
    return result;
}

TEST(ContinuousDocument, IsOneSectionWithoutFurniture) {
    Document document = documentOf({{paragraph("a")}});
    document.sections[0].header.standard = {{paragraph("head")}};
    document.sections[0].columns.resize(2);
    document.sections.push_back(document.sections[0]);
    const Document result = continuousDocument(document);
    ASSERT_EQ(result.sections.size(), 1u);
    EXPECT_THAT(lines(result), ElementsAre("a", "a"));
    EXPECT_FALSE(result.sections[0].header.standard);
    EXPECT_TRUE(result.sections[0].columns.empty());
}

TEST(ContinuousDocument, LeavesOutPicturesAndKeepsTheTextOfFrames) {
    Frame frame;
    frame.blocks = {{paragraph("boxed")}};
    const Link pictureLink{{"http://example.org", ""}, {{Picture{}}}};
    const Document result =
        continuousDocument(documentOf({{Figure{}},
                                       {paragraph(std::vector<Inline>{{Picture{}}})},
                                       {frame},
                                       {paragraph({{Text{"beside", {}}}, {Picture{}}, {pictureLink}})},
                                       {Paragraph{}}}));
    EXPECT_THAT(lines(result), ElementsAre("boxed", "beside", "")) << "an empty line of the author's stays";
    EXPECT_EQ(std::get<Paragraph>(result.sections[0].blocks[1].value).inlines.size(), 1u);
}

TEST(ContinuousDocument, HasNoPageBreaks) {
    Paragraph one = paragraph({{Break{BreakKind::Page}}, {Text{"a", {}}}, {Break{BreakKind::Line}}});
    one.properties.pageBreakBefore = true;
    const Document result = continuousDocument(documentOf({{one}}));
    const auto& kept = std::get<Paragraph>(result.sections[0].blocks[0].value);
    EXPECT_FALSE(kept.properties.pageBreakBefore);
    EXPECT_EQ(kept.inlines.size(), 2u) << "the text and its own line end";
}

TEST(ContinuousDocument, KeepsTables) {
    Table table;
    table.rows.resize(1);
    table.rows[0].cells = {cell("a", 0)};
    table.rows[0].cells[0].blocks = {{paragraph(std::vector<Inline>{{Picture{}}})}};
    const Document result = continuousDocument(documentOf({{table}}));
    const auto& kept = std::get<Table>(result.sections[0].blocks[0].value);
    EXPECT_EQ(kept.rows[0].cells[0].blocks.size(), 1u) << "a cell has a paragraph, with or without its picture";
}

TEST(PlainTextDocument, HasOneStyle) {
    RunProperties bold;
    bold.isBold = true;
    const Document result = plainTextDocument(documentOf({{paragraph({{Text{"a", bold}}, {Text{"b", {}}}})}}));
    ASSERT_EQ(result.styles.size(), 1u);
    EXPECT_EQ(result.styles[0].run.fontFamily, "Caladea");
    EXPECT_FALSE(result.styles[0].run.isItalic);
    const auto& one = std::get<Paragraph>(result.sections[0].blocks[0].value);
    ASSERT_EQ(one.inlines.size(), 1u);
    EXPECT_EQ(std::get<Text>(one.inlines[0].value).text, "ab");
    EXPECT_EQ(std::get<Text>(one.inlines[0].value).properties, result.styles[0].run);
}

TEST(PlainTextDocument, WritesRowsAsLinesWithTabulators) {
    Table table;
    table.rows.resize(2);
    table.rows[0].cells = {cell("a", 0), cell("b", 1), cell("c", 2)};
    table.rows[1].cells = {cell("d", 1)};
    table.rows[1].cells[0].blocks.push_back({paragraph("e\tf")});
    EXPECT_THAT(lines(plainTextDocument(documentOf({{table}}))), ElementsAre("a\tb\tc", "\td e f"));
}

TEST(PlainTextDocument, WritesLabelsAndNotesAsText) {
    Document document = documentOf({});
    NumberingLevel level;
    level.text = "%1)";
    document.numberings = {{{level}}};
    Paragraph item = paragraph({{Text{"item", {}}}, {NoteReference{0, {}, ""}}});
    item.list = ListReference{0, 0};
    document.notes = {{NoteKind::Footnote, {{paragraph("note")}}, {}}};
    document.sections[0].blocks = {{item}, {paragraph("")}};
    EXPECT_THAT(lines(plainTextDocument(document)), ElementsAre("1)\titem1", "1 note"));
}

TEST(PlainTextDocument, HasTheTextOfLinksFieldsAndFormFields) {
    const Link link{{"http://example.org", ""}, {{Text{"link", {}}}}};
    const Field field{FieldCode::Page, "", {{Text{"7", {}}}}};
    const ContentControl box{ControlKind::CheckBox, "", "", {}, true, false, {}};
    EXPECT_THAT(lines(plainTextDocument(documentOf({{paragraph({{link}, {Tab{}}, {field}, {box}})}}))),
                ElementsAre("link\t7\u2612"));
}

} // namespace
} // namespace orvane::layout
