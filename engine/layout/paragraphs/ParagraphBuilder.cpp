#include "layout/paragraphs/ParagraphBuilder.h"

#include "layout/paragraphs/CentredNeighbours.h"
#include "layout/paragraphs/DropCaps.h"
#include "layout/paragraphs/LocalEdges.h"
#include "layout/paragraphs/ParagraphBreaks.h"
#include "layout/paragraphs/ParagraphShape.h"

namespace orvane::layout {

std::vector<ParagraphDraft> buildParagraphs(std::span<const Line> lines, ColumnSpan column,
                                            const ParagraphContext& context, const ParagraphParameters& parameters) {
    std::vector<LineMeasure> measures = measureLines(lines, column, context, parameters);
    settleDropCaps(lines, measures, parameters.paragraphs);
    applyLocalEdges(lines, measures, context, parameters.paragraphs);
    const std::vector<BreakReason> breaks = findBreaks(lines, measures, context, parameters);
    std::vector<ParagraphDraft> paragraphs;
    for (std::size_t from = 0; from < lines.size();) {
        std::size_t to = from + 1;
        while (to < lines.size() && breaks[to] == BreakReason::None)
            ++to;
        ParagraphDraft& paragraph = paragraphs.emplace_back();
        paragraph.lines.assign(lines.begin() + static_cast<std::ptrdiff_t>(from),
                               lines.begin() + static_cast<std::ptrdiff_t>(to));
        shapeParagraph(paragraph, std::span(measures).subspan(from, to - from), context, parameters.paragraphs);
        from = to;
    }
    centreAmongCentred(paragraphs, parameters);
    startAmongStarts(paragraphs, column, parameters);
    return paragraphs;
}

} // namespace orvane::layout
