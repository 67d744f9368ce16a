#include "layout/truepage/ClippedText.h"

#include "layout/frames/FrameCutter.h"
#include "layout/structure/DraftBuilder.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

bool isLevel(const Line& line) {
    return line.angle == 0 && !line.isVertical && !line.isRightToLeft;
}

bool goesOn(const ParagraphDraft& text, const Line& line, const FrameParameters::TextBoxes& parameters) {
    const Line& last = text.lines.back();
    if (!isLevel(last) || !isLevel(line) || std::abs(line.fontSize - last.fontSize) > parameters.sameSize ||
        std::abs(line.box.left - text.lines.front().box.left) > parameters.edgeTolerance)
        return false;
    const double step = line.baseline - last.baseline;
    return text.lines.size() > 1
               ? std::abs(step - text.leading) <= parameters.pitchTolerance
               : step >= parameters.lowestPitch * line.fontSize && step <= parameters.entryPitch * line.fontSize;
}

void append(ParagraphDraft& text, Line line) {
    for (Word& word : line.words)
        for (Span& span : word.spans)
            span.look.isClippedAway = false; // the frame's edge hides it
    if (text.lines.size() == 1)
        text.leading = line.baseline - text.lines.back().baseline;
    text.box.right = std::max(text.box.right, line.box.right);
    text.hardBreaks.push_back(text.lines.size() - 1);
    text.lines.push_back(std::move(line));
    ++text.linesBelow;
}

} // namespace

void addClippedText(std::vector<DraftBlock>& frames, std::vector<Line> clipped, std::size_t page,
                    const FrameParameters::TextBoxes& parameters) {
    std::stable_sort(clipped.begin(), clipped.end(),
                     [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    std::vector<Line> alone;
    for (Line& line : clipped) {
        const auto frame = std::find_if(frames.begin(), frames.end(), [&](DraftBlock& block) {
            return goesOn(block.paragraph()->pieces.front().text, line, parameters);
        });
        if (frame == frames.end())
            alone.push_back(std::move(line));
        else
            append(frame->paragraph()->pieces.front().text, std::move(line));
    }
    std::vector<DraftBlock> hidden = cutIntoFrames(draftLabels(std::move(alone), page), parameters);
    std::move(hidden.begin(), hidden.end(), std::back_inserter(frames));
}

} // namespace orvane::layout
