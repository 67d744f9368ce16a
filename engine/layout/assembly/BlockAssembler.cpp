#include "layout/assembly/BlockAssembler.h"

#include "layout/assembly/BesideFigures.h"
#include "layout/assembly/DropCapAssembler.h"
#include "layout/assembly/EmptyParagraph.h"
#include "layout/assembly/FigureAssembler.h"
#include "layout/assembly/FrameAssembler.h"
#include "layout/assembly/LabelFrames.h"
#include "layout/assembly/ParagraphFormat.h"
#include "layout/assembly/RunFormat.h"
#include "layout/assembly/TableAssembler.h"
#include "layout/assembly/TableReach.h"
#include "layout/fonts/LineMetrics.h"
#include "layout/structure/BlockExtent.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

/// The look of the paragraph mark is that of the last word, as if it had been typed on.
document::RunProperties markProperties(const DraftParagraph& paragraph, const AssemblyContext& context) {
    const Line& line = paragraph.lastLine();
    document::RunProperties mark = runProperties(line.words.back().spans.back(), paragraph.pieces.back().page,
                                                 ScriptFamilies(paragraph, context.fonts), context);
    mark.underline = document::UnderlineKind::None;
    mark.verticalPosition = document::VerticalPosition::Baseline;
    mark.highlight.reset();
    mark.isStruck = false;
    return mark;
}

AssembledBlock assembleParagraph(const DraftBlock& draft, const DraftParagraph& source,
                                 const AssemblyContext& context) {
    document::Paragraph paragraph;
    paragraph.properties = formatOf(source, context.draft.numberings, context.parameters);
    const std::optional<document::LineSpacing> spacing = lineSpacingOf(source, context.fonts, context.parameters);
    if (spacing)
        paragraph.properties.lineSpacing = *spacing;
    AssembledText text = assembleText(source, context);
    paragraph.inlines = std::move(text.inlines);
    paragraph.turns = std::move(text.turns);
    paragraph.markProperties = markProperties(source, context);
    paragraph.list = source.list;
    setDropCap(paragraph, source, context);
    paragraph.origin = {context.draft.pages[draft.page].number, draft.box};

    AssembledBlock assembled;
    assembled.hasOwnLineSpacing = spacing.has_value();
    assembled.lastPage = source.pieces.back().page;
    assembled.block.value = std::move(paragraph);
    return assembled;
}

/// A paragraph as low as it may be, whose end is in the next column.
document::Paragraph columnBreak(const AssemblyContext& context) {
    document::Paragraph paragraph = emptyParagraph(context);
    paragraph.properties.lineSpacing = {document::LineSpacingRule::Exact, 1.0, twipsFromPoints(1)};
    paragraph.inlines.push_back({document::Break{document::BreakKind::Column}});
    return paragraph;
}

/// Lets the block start its page or column. Of a table that is what its first paragraph does, or one before it.
void setBreaks(const DraftBlock& draft, AssembledBlock& assembled, const AssemblyContext& context) {
    if (document::Paragraph* paragraph = assembled.paragraph()) {
        paragraph->properties.pageBreakBefore = draft.startsPage;
        if (draft.startsColumn)
            paragraph->inlines.insert(paragraph->inlines.begin(), {document::Break{document::BreakKind::Column}});
    } else if (draft.startsPage) {
        if (document::Paragraph* first = firstParagraphOf(assembled))
            first->properties.pageBreakBefore = true;
    } else if (draft.startsColumn) {
        assembled.floats.insert(assembled.floats.begin(), {columnBreak(context)});
    }
}

AssembledBlock assembleBlock(const DraftBlock& draft, const AssemblyContext& context) {
    AssembledBlock assembled;
    if (const DraftParagraph* paragraph = draft.paragraph())
        assembled = assembleParagraph(draft, *paragraph, context);
    else if (const auto* table = std::get_if<DraftTable>(&draft.value))
        assembled = assembleTable(*table, draft, context);
    else
        assembled = assembleFigure(std::get<FigureDraft>(draft.value), draft, context);
    if (!draft.paragraph()) {
        const BlockExtent extent = extentOf(draft, context.fonts);
        assembled.top = extent.top;
        assembled.lastTop = extent.lastTop;
        assembled.bottom = extent.bottom;
        assembled.lastPage = extent.lastPage;
    }
    if (const auto* table = std::get_if<DraftTable>(&draft.value)) {
        const TableReach reach = reachOf(*table);
        assembled.top -= reach.top;
        assembled.bottom += reach.bottom;
    }
    setBreaks(draft, assembled, context);
    assembled.draft = &draft;
    return assembled;
}

/// Puts an entry into the table of contents that the blocks end with, or into one of its own.
void addEntry(std::vector<document::Block>& blocks, bool isContents, document::Paragraph entry, int level) {
    if (!isContents)
        blocks.push_back({document::TableOfContents{1, 1, {}}});
    auto& contents = std::get<document::TableOfContents>(blocks.back().value);
    contents.lastLevel = std::max(contents.lastLevel, level);
    contents.entries.push_back(std::move(entry));
}

bool isDrawnAlike(const document::Border& some, const document::Border& other) {
    return some.kind == other.kind &&
           (some.kind == document::BorderKind::None || (some.width == other.width && some.color == other.color));
}

/// Whether word processors take the borders of two paragraphs for those of one box, however far from the text.
bool areDrawnAlike(const document::Borders& some, const document::Borders& others) {
    return isDrawnAlike(some.top, others.top) && isDrawnAlike(some.bottom, others.bottom) &&
           isDrawnAlike(some.left, others.left) && isDrawnAlike(some.right, others.right);
}

/// Leaves a border between equal paragraphs only where there are two. LibreOffice takes the first of a header and that
/// of the footer for such, and draws neither's.
void dropLoneBetweenBorders(std::vector<document::Block>& blocks) {
    bool isSharedAbove = false;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        auto* paragraph = std::get_if<document::Paragraph>(&blocks[i].value);
        const auto* below = i + 1 < blocks.size() ? std::get_if<document::Paragraph>(&blocks[i + 1].value) : nullptr;
        const bool isShared =
            paragraph && below && areDrawnAlike(paragraph->properties.borders, below->properties.borders);
        if (paragraph && !isShared && !isSharedAbove)
            paragraph->properties.betweenBorder = {};
        isSharedAbove = isShared;
    }
}

} // namespace

std::vector<AssembledBlock> assembleBlocks(const std::vector<DraftBlock>& drafts, const AssemblyContext& context) {
    std::vector<AssembledBlock> blocks;
    blocks.reserve(drafts.size());
    for (const DraftBlock& draft : drafts)
        blocks.push_back(assembleBlock(draft, context));
    endBesideFigures(blocks, context);
    return blocks;
}

std::vector<document::Block> finishBlocks(std::vector<AssembledBlock> blocks, const AssemblyContext& context,
                                          const std::optional<CellOrigin>& cell) {
    for (AssembledBlock& block : blocks)
        if (!block.labels.empty())
            frameLabels(block, context);
    keepOnPages(blocks);
    hangBelowSpace(blocks);
    hangBesidePictures(blocks);
    hangBesideText(blocks);
    hangOnText(blocks, cell, context);
    std::vector<document::Block> finished;
    finished.reserve(blocks.size());
    bool isContents = false;
    for (AssembledBlock& block : blocks) {
        const DraftParagraph* draft = block.draftParagraph();
        if (draft && isFloating(*block.draft))
            block.block.value = frameOf(std::move(block), context);
        const bool isEntry = draft && draft->role == ParagraphRole::ContentsEntry;
        if (isEntry)
            addEntry(finished, isContents, std::move(*block.paragraph()), draft->level);
        isContents = isEntry;
        if (isEntry)
            continue;
        if (std::holds_alternative<document::Table>(block.block.value))
            fillCells(block, context);
        std::move(block.floats.begin(), block.floats.end(), std::back_inserter(finished));
        finished.push_back(std::move(block.block));
    }
    dropLoneBetweenBorders(finished);
    return finished;
}

} // namespace orvane::layout
