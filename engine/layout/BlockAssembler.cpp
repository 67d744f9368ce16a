#include "layout/BlockAssembler.h"

#include "layout/FigureAssembler.h"
#include "layout/LineMetrics.h"
#include "layout/ParagraphFormat.h"
#include "layout/SpacingFinder.h"
#include "layout/TableAssembler.h"

namespace orvane::layout {
namespace {

/// The look of the paragraph mark is that of the last word, as if it had been typed on.
document::RunProperties markProperties(const DraftParagraph& paragraph, const AssemblyContext& context) {
    document::RunProperties mark =
        runProperties(paragraph.lastLine().words.back().spans.back(), paragraph.pieces.back().page, context);
    mark.underline = document::UnderlineKind::None;
    mark.verticalPosition = document::VerticalPosition::Baseline;
    mark.highlight.reset();
    mark.isStruck = false;
    return mark;
}

AssembledBlock assembleParagraph(const DraftBlock& draft, const DraftParagraph& source,
                                 const AssemblyContext& context) {
    document::Paragraph paragraph;
    paragraph.properties = formatOf(source, context.fonts, context.usualSpacing, context.parameters);
    paragraph.inlines = assembleText(source, context);
    paragraph.markProperties = markProperties(source, context);
    paragraph.list = source.list;
    paragraph.origin = {context.draft.pages[draft.page].number, draft.box};

    const DraftPiece& lastPiece = source.pieces.back();
    const document::LineSpacing& spacing = paragraph.properties.lineSpacing;
    const LineExtent first = spacedExtent(extentOf(source.firstLine(), draft.page, context.fonts), spacing);
    const LineExtent last = spacedExtent(extentOf(source.lastLine(), lastPiece.page, context.fonts), spacing);
    AssembledBlock assembled;
    assembled.top = source.firstLine().baseline - first.ascent;
    assembled.bottom = source.lastLine().baseline + last.descent;
    assembled.lastPage = lastPiece.page;
    assembled.block.value = std::move(paragraph);
    return assembled;
}

AssembledBlock assembleBlock(const DraftBlock& draft, const AssemblyContext& context) {
    AssembledBlock assembled;
    if (const DraftParagraph* paragraph = draft.paragraph()) {
        assembled = assembleParagraph(draft, *paragraph, context);
    } else {
        assembled.top = draft.box.top;
        assembled.bottom = draft.box.bottom;
        assembled.lastPage = draft.page;
        if (const DraftTable* table = std::get_if<DraftTable>(&draft.value))
            assembled.block.value = assembleTable(*table, draft, context);
        else
            assembled.block = assembleFigure(std::get<FigureDraft>(draft.value), draft, context);
    }
    assembled.draft = &draft;
    return assembled;
}

} // namespace

std::vector<AssembledBlock> assembleBlocks(const std::vector<DraftBlock>& drafts, const AssemblyContext& context) {
    std::vector<AssembledBlock> blocks;
    blocks.reserve(drafts.size());
    for (const DraftBlock& draft : drafts)
        blocks.push_back(assembleBlock(draft, context));
    return blocks;
}

std::vector<document::Block> assembleInside(const std::vector<DraftBlock>& drafts, const AssemblyContext& context) {
    std::vector<AssembledBlock> assembled = assembleBlocks(drafts, context);
    setSpacing(assembled, context.parameters);
    std::vector<document::Block> blocks;
    for (AssembledBlock& block : assembled)
        blocks.push_back(std::move(block.block));
    return blocks;
}

} // namespace orvane::layout
