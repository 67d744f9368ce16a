#include "layout/assembly/LabelFrames.h"

#include "layout/assembly/FrameAssembler.h"
#include "layout/frames/FrameCutter.h"
#include "layout/frames/LineFitter.h"
#include "layout/structure/BlockColumn.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {
namespace {

template<typename Visit>
void forEachLabelled(std::vector<DraftBlock>& blocks, const Visit& visit) {
    for (DraftBlock& block : blocks) {
        if (!block.labels.empty())
            visit(block.labels);
        if (auto* table = std::get_if<DraftTable>(&block.value))
            for (DraftCell& cell : table->cells)
                forEachLabelled(cell.blocks, visit);
    }
}

/// Calls `visit` for the labels of each drawing of the document.
template<typename Visit>
void forEachLabelled(DocumentDraft& draft, const Visit& visit) {
    forEachLabelled(draft.blocks, visit);
    for (DraftNote& note : draft.notes)
        forEachLabelled(note.blocks, visit);
    for (DraftSection& section : draft.sections)
        for (DraftRunningText* text : {&section.header, &section.footer})
            for (auto* blocks : {&text->standard, &text->firstPage, &text->evenPages})
                if (*blocks)
                    forEachLabelled(**blocks, visit);
}

} // namespace

void cutLabels(DocumentDraft& draft, const LayoutParameters& parameters) {
    forEachLabelled(draft, [&](std::vector<DraftBlock>& labels) {
        labels = cutIntoFrames(std::exchange(labels, {}), parameters.textBoxes);
    });
}

void fitLabels(DocumentDraft& draft, const FontCatalog& fonts, Tracking tracking, const LayoutParameters& parameters) {
    forEachLabelled(draft,
                    [&](std::vector<DraftBlock>& labels) { fitLines(labels, fonts, tracking, parameters.textBoxes); });
}

void frameLabels(AssembledBlock& drawing, const AssemblyContext& context) {
    const bool hasOwnParagraph = drawing.paragraph() != nullptr;
    const ColumnSpan column = columnOf(*drawing.draft, context.draft);
    const auto& figure = std::get<FigureDraft>(drawing.draft->value).figure;
    for (AssembledBlock& label : drawing.labels) {
        document::Frame frame = frameOf(std::move(label), context);
        frame.placement.zOrder = std::max(frame.placement.zOrder, static_cast<int>(figure.paintOrder) + 1);
        if (hasOwnParagraph) {
            frame.placement.horizontalAnchor = document::HorizontalAnchor::Column;
            frame.placement.verticalAnchor = document::VerticalAnchor::Paragraph;
            frame.placement.x = frame.placement.x - emuFromPoints(column.left);
            frame.placement.y = frame.placement.y - emuFromPoints(figure.box.top);
        }
        drawing.floats.push_back({std::move(frame)});
    }
    drawing.labels.clear();
}

} // namespace orvane::layout
