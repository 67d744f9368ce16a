#include "layout/page/GutterPieces.h"

#include "layout/text/CommentSign.h"

#include <algorithm>

namespace orvane::layout {
namespace {

bool endsWithColon(const Word& word) {
    const std::string& text = word.spans.back().text;
    return text.ends_with(':') || text.ends_with("\xEF\xBC\x9A"); // the full-width one
}

} // namespace

std::vector<GutterPiece> cutAtGutterGaps(std::span<const Line> lines, std::span<const Rect> walls, double narrowest) {
    std::vector<GutterPiece> pieces;
    for (const Rect& wall : walls)
        pieces.push_back({wall, 0, 0, true});
    for (const Line& line : lines) {
        std::vector<const Word*> words;
        for (const Word& word : line.words)
            words.push_back(&word);
        std::sort(words.begin(), words.end(), [](const Word* a, const Word* b) { return a->box.left < b->box.left; });
        const std::size_t firstOfLine = pieces.size();
        for (const Word* word : words) {
            const bool isLedTo = word->leaderBefore != document::TabLeader::None;
            if (pieces.size() == firstOfLine || (!isLedTo && word->box.left - pieces.back().box.right >= narrowest))
                pieces.push_back({.box = word->box,
                                  .baseline = line.baseline,
                                  .fontSize = line.fontSize,
                                  .isComment = !word->spans.empty() && startsComment(word->spans.front().text)});
            else
                pieces.back().box = pieces.back().box.united(word->box);
            pieces.back().isLabel = !word->spans.empty() && endsWithColon(*word);
        }
    }
    std::sort(pieces.begin(), pieces.end(),
              [](const GutterPiece& a, const GutterPiece& b) { return a.box.top < b.box.top; });
    return pieces;
}

} // namespace orvane::layout
