#include "layout/assembly/LineSpare.h"

#include <algorithm>

namespace orvane::layout {

std::optional<double> spareOf(const DraftParagraph& paragraph, const AssemblyParameters::LineSpares& parameters) {
    const std::vector<Line>& lines = paragraph.pieces.front().text.lines;
    if (paragraph.pieces.size() > 1 || lines.size() > 1)
        return std::nullopt;
    return std::min(parameters.most, parameters.share * lines.front().box.width());
}

} // namespace orvane::layout
