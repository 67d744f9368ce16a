#include "layout/paragraphs/DropCaps.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

using document::DropCapKind;

/// The cap of a line as a line of its own; the line goes on without it.
Line takeDropCap(Line& line) {
    std::vector<Span>& spans = line.words.front().spans;
    const auto end = spans.begin() + static_cast<std::ptrdiff_t>(dropCapSpans(line));
    Line cap = line;
    cap.words.resize(1);
    Word& word = cap.words.front();
    word.spans.assign(spans.begin(), end);
    word.box = {};
    for (const Span& span : word.spans)
        word.box = word.box.united(span.box);
    cap.baseline = word.spans.front().baseline;
    spans.erase(spans.begin(), end);
    if (spans.empty())
        line.words.erase(line.words.begin());
    line.words.front().gapBefore = Gap::None;
    line.words.front().box = {};
    for (const Span& span : line.words.front().spans)
        line.words.front().box = line.words.front().box.united(span.box);
    for (Line* part : {&cap, &line}) {
        part->dropCapLines = 0;
        measureAnew(*part);
    }
    return cap;
}

bool hasTextBehindDropCap(const Line& line) {
    return line.words.size() > 1 || dropCapSpans(line) < line.words.front().spans.size();
}

} // namespace

double startBesideDropCap(std::span<const Line> lines) {
    const Line& first = lines.front();
    const std::size_t count = std::min(lines.size(), static_cast<std::size_t>(first.dropCapLines));
    const double capEnd = first.words.front().spans[dropCapSpans(first) - 1].box.right;
    double start = startBehindDropCap(first);
    // Behind a letter that is a word the first line starts a blank later than the others.
    for (const Line& line : lines.subspan(1, count - 1))
        if (line.box.left > first.box.left && line.box.right > capEnd)
            start = std::min(start, line.box.left);
    return start;
}

void settleDropCaps(std::span<const Line> lines, std::span<LineMeasure> measures,
                    const ParagraphParameters::Paragraphs& parameters) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (dropCapSpans(lines[i]) == 0 || lines[i].isRightToLeft || !hasTextBehindDropCap(lines[i]))
            continue;
        const double start = startBesideDropCap(lines.subspan(i));
        const double shift = start - lines[i].box.left;
        const double tolerance = parameters.edgeTolerance * lines[i].fontSize;
        const std::size_t below = i + static_cast<std::size_t>(lines[i].dropCapLines);
        const bool isInMargin = below < lines.size() && std::abs(lines[below].box.left - start) <= tolerance;
        measures[i].dropCap = isInMargin ? DropCapKind::InMargin : DropCapKind::Dropped;
        const auto moveBy = [&measures](std::size_t line, double distance) {
            measures[line].startGap += distance;
            measures[line].textStart += distance;
        };
        if (isInMargin)
            moveBy(i, shift);
        for (std::size_t line = i + 1; line < std::min(below, lines.size()) && !isInMargin; ++line)
            if (lines[line].box.left >= start - tolerance)
                moveBy(line, -shift);
    }
}

void partDropCaps(PageText& page) {
    std::vector<Line> caps;
    for (Line& line : page.lines)
        if (dropCapSpans(line) > 0 && hasTextBehindDropCap(line))
            caps.push_back(takeDropCap(line));
    std::move(caps.begin(), caps.end(), std::back_inserter(page.lines));
    std::stable_sort(page.lines.begin(), page.lines.end(),
                     [](const Line& a, const Line& b) { return a.box.top < b.box.top; });
}

} // namespace orvane::layout
