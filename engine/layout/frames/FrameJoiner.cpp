#include "layout/frames/FrameJoiner.h"

#include "layout/text/Line.h"

#include <cmath>
#include <utility>

namespace orvane::layout {
namespace {

using Parameters = FrameParameters::TextBoxes;

ParagraphDraft& textOf(DraftBlock& frame) {
    return frame.paragraph()->pieces.front().text;
}

/// The frame's line, where it is the only one and level text that is read from the left.
Line* singleLine(DraftBlock& frame) {
    ParagraphDraft& text = textOf(frame);
    Line& line = text.lines.front();
    const bool isPlain = text.lines.size() == 1 && line.angle == 0 && !line.isVertical && !line.isRightToLeft;
    return isPlain ? &line : nullptr;
}

/// How much of a line stands behind its last tabulator: that part is what may grow into the gap.
double lastPartWidth(const Line& line) {
    std::size_t first = line.words.size() - 1;
    while (first > 0 && line.words[first].gapBefore != Gap::Tab)
        --first;
    return line.box.right - line.words[first].box.left;
}

bool standsBehind(const Line& line, const Line& next, const Parameters& parameters) {
    if (std::abs(next.baseline - line.baseline) > parameters.sameBaseline)
        return false;
    const double gap = next.box.left - line.box.right;
    return gap >= parameters.rowGap * line.fontSize + parameters.rowSlack * lastPartWidth(line);
}

/// Puts the line of `next` behind the frame's, if it stands there.
bool takeBehind(DraftBlock& frame, DraftBlock& next, const Parameters& parameters) {
    Line* line = frame.page == next.page ? singleLine(frame) : nullptr;
    Line* behind = line ? singleLine(next) : nullptr;
    if (!behind || !standsBehind(*line, *behind, parameters))
        return false;
    joinLines(*line, std::move(*behind), Gap::Tab);
    DraftPiece& piece = frame.paragraph()->pieces.front();
    piece.text.box = frame.box = line->box;
    piece.column = {line->box.left, line->box.right};
    return true;
}

/// The frame that a leader comes from which ends at `frame`, in another cell or column; null where none does.
DraftBlock* leaderStart(std::vector<DraftBlock>& frames, DraftBlock& frame, const Parameters& parameters) {
    const Line* end = singleLine(frame);
    if (!end || end->words.front().leaderBefore == document::TabLeader::None)
        return nullptr;
    DraftBlock* nearest = nullptr;
    double right = 0;
    for (auto other = frames.rbegin(); other != frames.rend() && other->page == frame.page; ++other) {
        const Line* line = singleLine(*other);
        if (!line || !standsBehind(*line, *end, parameters) || (nearest && line->box.right <= right))
            continue;
        nearest = &*other;
        right = line->box.right;
    }
    return nearest;
}

} // namespace

std::vector<DraftBlock> joinFrames(std::vector<DraftBlock> frames, const Parameters& parameters) {
    std::vector<DraftBlock> joined;
    for (DraftBlock& frame : frames) {
        if (!joined.empty() && takeBehind(joined.back(), frame, parameters))
            continue;
        DraftBlock* start = leaderStart(joined, frame, parameters);
        if (!start || !takeBehind(*start, frame, parameters))
            joined.push_back(std::move(frame));
    }
    return joined;
}

} // namespace orvane::layout
