#include "layout/text/LinePieces.h"

#include "layout/text/LineText.h"

namespace orvane::layout {

std::vector<Line> piecesOf(const Line& line) {
    std::vector<Line> pieces;
    for (const Word& word : line.words) {
        if (pieces.empty() || word.gapBefore == Gap::Tab) {
            pieces.push_back(line);
            pieces.back().words.clear();
        }
        pieces.back().words.push_back(word);
        pieces.back().words.front().gapBefore = Gap::Space;
    }
    if (pieces.size() > 1)
        for (Line& piece : pieces)
            measureAnew(piece);
    return pieces;
}

} // namespace orvane::layout
