#include "layout/structure/FieldLines.h"

#include "layout/structure/HandBreaks.h"

#include <cmath>
#include <utility>
#include <vector>

namespace orvane::layout {
namespace {

constexpr int kNone = -1;

/// The only field that the paragraph stands in.
int fieldOf(const DraftBlock& block) {
    const DraftParagraph* paragraph = block.paragraph();
    if (!paragraph || paragraph->pieces.size() != 1)
        return kNone;
    const int field = paragraph->firstLine().words.front().spans.front().look.field;
    for (const Line& line : paragraph->pieces.front().text.lines)
        for (const Word& word : line.words)
            for (const Span& span : word.spans)
                if (span.look.field != field)
                    return kNone;
    return field;
}

bool goesOn(const DraftBlock& block, const DraftBlock& next, const FrameParameters::TextBoxes& limits) {
    const int field = fieldOf(block);
    if (field == kNone || field != fieldOf(next) || block.page != next.page)
        return false;
    const ParagraphDraft& text = block.paragraph()->pieces.front().text;
    const ParagraphDraft& more = next.paragraph()->pieces.front().text;
    const Line& last = text.lines.back();
    const Line& line = more.lines.front();
    const double step = line.baseline - last.baseline;
    return text.alignment == more.alignment && std::abs(line.fontSize - last.fontSize) <= limits.sameSize &&
           std::abs(text.indentStart - more.indentStart) <= limits.edgeTolerance &&
           step >= limits.lowestPitch * line.fontSize && step <= limits.entryPitch * line.fontSize &&
           (text.lines.size() == 1 || std::abs(step - text.leading) <= limits.pitchTolerance);
}

void join(std::vector<DraftBlock>& blocks, const FrameParameters::TextBoxes& limits) {
    std::vector<DraftBlock> joined;
    for (DraftBlock& block : blocks) {
        if (auto* table = std::get_if<DraftTable>(&block.value))
            for (DraftCell& cell : table->cells)
                join(cell.blocks, limits);
        if (joined.empty() || !goesOn(joined.back(), block, limits)) {
            joined.push_back(std::move(block));
            continue;
        }
        ParagraphDraft& text = joined.back().paragraph()->pieces.front().text;
        if (text.lines.size() == 1)
            text.leading = block.paragraph()->firstLine().baseline - text.lines.front().baseline;
        appendByHand(joined.back(), block);
    }
    blocks = std::move(joined);
}

} // namespace

void joinFieldLines(DocumentDraft& draft, const FrameParameters::TextBoxes& parameters) {
    join(draft.blocks, parameters);
}

} // namespace orvane::layout
