#include "layout/assembly/MirroredMargins.h"

#include <utility>

namespace orvane::layout {
namespace {

using document::Block;

void placeFromMargin(document::Placement& placement, Twips margin) {
    if (placement.horizontalAnchor != document::HorizontalAnchor::Page)
        return;
    placement.horizontalAnchor = document::HorizontalAnchor::Margin;
    placement.x = placement.x - emuFromTwips(margin);
}

void placeFromMargin(std::vector<Block>& blocks, Twips margin) {
    for (Block& block : blocks)
        if (auto* figure = std::get_if<document::Figure>(&block.value))
            placeFromMargin(figure->placement, margin);
        else if (auto* frame = std::get_if<document::Frame>(&block.value))
            placeFromMargin(frame->placement, margin);
}

} // namespace

void mirrorMargins(document::Document& document, const DocumentDraft& draft) {
    document.hasMirroredMargins = true;
    for (std::size_t i = 0; i < document.sections.size(); ++i) {
        document::Section& section = document.sections[i];
        placeFromMargin(section.blocks, section.marginLeft);
        for (document::RunningText* text : {&section.header, &section.footer})
            for (auto* blocks : {&text->standard, &text->firstPage, &text->evenPages})
                if (*blocks)
                    placeFromMargin(**blocks, section.marginLeft);
        if (draft.sections[i].countsOtherwise)
            std::swap(section.marginLeft, section.marginRight);
    }
}

} // namespace orvane::layout
