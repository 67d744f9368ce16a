#include "layout/graphics/DrawingLabels.h"

#include "layout/text/Line.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace orvane::layout {
namespace {

/// Whether something is written there of which nobody knows what it says, so that it can only be painted.
bool hasUnknownSigns(const Rect& box, const pdf::PageContent& page) {
    return std::any_of(page.glyphs.begin(), page.glyphs.end(), [&](const pdf::Glyph& glyph) {
        return glyph.unicode.empty() && glyph.visibility == pdf::Visibility::Visible &&
               box.contains(Point{glyph.box.centerX(), glyph.box.centerY()});
    });
}

/// The drawing that a line would label; none for other lines.
const Figure* drawingAt(const Line& line, const std::vector<Figure>& figures) {
    const auto drawing = std::find_if(figures.begin(), figures.end(), [&](const Figure& figure) {
        return !figure.paths.empty() && !figure.isBackground &&
               figure.box.contains(Point{line.box.centerX(), line.box.centerY()});
    });
    return drawing == figures.end() ? nullptr : &*drawing;
}

/// The parts of a line that stand apart; what a leader leads to belongs to what it leads from.
std::vector<Line> partsOf(Line line) {
    std::vector<Line> parts;
    for (Line& piece : piecesOf(std::move(line)))
        if (!parts.empty() && piece.words.front().leaderBefore != document::TabLeader::None)
            joinLines(parts.back(), std::move(piece), Gap::Tab);
        else
            parts.push_back(std::move(piece));
    return parts;
}

/// Parts lines that run from one drawing into another, or into the text beside it.
void partLines(PageText& text) {
    std::vector<Line> parted;
    for (Line& line : text.lines) {
        std::vector<Line> pieces = partsOf(line);
        const Figure* first = drawingAt(pieces.front(), text.figures);
        const bool isOfOne = std::all_of(pieces.begin(), pieces.end(),
                                         [&](const Line& piece) { return drawingAt(piece, text.figures) == first; });
        if (isOfOne)
            parted.push_back(std::move(line));
        else
            std::move(pieces.begin(), pieces.end(), std::back_inserter(parted));
    }
    text.lines = std::move(parted);
}

} // namespace

void labelDrawings(PageText& text, const pdf::PageContent& page) {
    partLines(text);
    for (Figure& drawing : text.figures) {
        drawing.showsLabels = hasUnknownSigns(drawing.box, page);
        if (drawing.paths.empty() || drawing.isBackground)
            continue;
        std::string words;
        std::erase_if(text.lines, [&](Line& line) {
            if (!drawing.box.contains(Point{line.box.centerX(), line.box.centerY()}))
                return false;
            if (!words.empty())
                words += ' ';
            words += textOf(line);
            drawing.labels.push_back(std::move(line));
            return true;
        });
        if (drawing.alternateText.empty())
            drawing.alternateText = words;
    }
}

} // namespace orvane::layout
