#include "layout/assembly/LineSpare.h"

#include <algorithm>

namespace orvane::layout {

std::optional<double> spareOf(const DraftParagraph& paragraph, const AssemblyParameters::LineSpares& parameters) {
    const ParagraphDraft& text = paragraph.pieces.front().text;
    if (paragraph.pieces.size() > 1 || text.lines.size() > 1 || !text.startsParagraph || !text.endsParagraph)
        return std::nullopt;
    return std::min(parameters.most, parameters.share * text.lines.front().box.width());
}

} // namespace orvane::layout
