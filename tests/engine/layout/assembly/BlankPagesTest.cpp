#include "layout/assembly/BlankPages.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::documentOf;
using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;
using tests::paragraphAt;

DraftBlock textOn(std::size_t page) {
    return makeBlock(makeParagraph({makeLine("text", 72, 100)}), page);
}

DraftBlock floatOn(std::size_t page) {
    DraftBlock block = tests::makePictureBlock({0, 0, 595, 842});
    block.page = page;
    std::get<FigureDraft>(block.value).isInline = false;
    return block;
}

/// "text", "empty" or "float" for each block, with "!" where it starts a page.
std::vector<std::string> kindsOf(const document::Section& section) {
    std::vector<std::string> kinds;
    for (const document::Block& block : section.blocks) {
        const auto* paragraph = std::get_if<document::Paragraph>(&block.value);
        if (!paragraph) {
            kinds.emplace_back("float");
            continue;
        }
        const char* start = paragraph->properties.pageBreakBefore ? "!" : "";
        kinds.push_back((paragraph->inlines.empty() ? "empty" : "text") + std::string(start));
    }
    return kinds;
}

using Kinds = std::vector<std::string>;

TEST(BlankPages, KeepsThePageWithNothingOnIt) {
    DocumentDraft draft = makeDraft(3);
    draft.blocks = {textOn(0), textOn(2)};
    EXPECT_EQ(kindsOf(documentOf(draft).sections[0]), (Kinds{"text", "empty!", "text!"}));
}

TEST(BlankPages, HoldsAPageOpenForThePictureThatFillsIt) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks = {floatOn(0), textOn(1)};
    EXPECT_EQ(kindsOf(documentOf(draft).sections[0]), (Kinds{"float", "empty", "text!"}));
}

TEST(BlankPages, GivesThePageBeforeASectionToTheOneThatEnds) {
    DocumentDraft draft = makeDraft(3);
    draft.blocks = {textOn(0), textOn(2)};
    draft.sections.resize(2);
    draft.sections[1].firstBlock = 1;
    draft.sections[1].tops.firstPage = 2;
    const document::Document document = documentOf(draft);
    EXPECT_EQ(kindsOf(document.sections[0]), (Kinds{"text", "empty!", "empty"}))
        << "the last paragraph of a section may be left out";
    EXPECT_EQ(kindsOf(document.sections[1]), (Kinds{"text"})) << "the section starts the page";
}

TEST(BlankPages, KeepsThePageOfASectionWithoutBlocks) {
    DocumentDraft draft = makeDraft(3);
    draft.blocks = {textOn(0), textOn(2)};
    draft.sections.resize(3);
    for (const std::size_t section : {1U, 2U}) {
        draft.sections[section].firstBlock = 1;
        draft.sections[section].tops.firstPage = section;
    }
    const document::Document document = documentOf(draft);
    EXPECT_EQ(kindsOf(document.sections[0]), (Kinds{"text"}));
    EXPECT_EQ(kindsOf(document.sections[1]), (Kinds{"empty", "empty"})) << "the section starts the page";
    EXPECT_EQ(kindsOf(document.sections[2]), (Kinds{"text"}));
}

TEST(BlankPages, KeepsTheLastPage) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks = {textOn(0)};
    DocumentContext context;
    context.pageCount = 2;
    EXPECT_EQ(kindsOf(documentOf(draft, context).sections[0]), (Kinds{"text", "empty!", "empty"}));
    draft.noteAreas = {{}, {72, 72, 523, 200}};
    EXPECT_EQ(kindsOf(documentOf(draft, context).sections[0]), (Kinds{"text"})) << "notes stand there";
}

TEST(BlankPages, AddsNothingWhereAParagraphGoesOn) {
    DocumentDraft draft = makeDraft(2);
    DraftBlock block = textOn(0);
    block.paragraph()->pieces.push_back(block.paragraph()->pieces[0]);
    block.paragraph()->pieces[1].page = 1;
    draft.blocks = {block, floatOn(1)};
    EXPECT_EQ(kindsOf(documentOf(draft).sections[0]), (Kinds{"text", "float"}));
}

TEST(BlankPages, AddsNothingWhereATableGoesOn) {
    DocumentDraft draft = makeDraft(3);
    DraftTable table;
    table.table.columnEdges = {72, 523};
    table.table.rowEdges = {90, 110, 130};
    for (int row = 0; row < 2; ++row) {
        DraftCell& cell = table.cells.emplace_back();
        cell.cell.row = row;
        cell.cell.box = {72, 90, 523, 110};
        cell.blocks.push_back(textOn(static_cast<std::size_t>(row)));
    }
    draft.blocks.emplace_back().value = std::move(table);
    draft.blocks.push_back(textOn(2));
    EXPECT_EQ(documentOf(draft).sections[0].blocks.size(), 2u);
}

} // namespace
} // namespace orvane::layout
