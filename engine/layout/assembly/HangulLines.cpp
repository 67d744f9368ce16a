#include "layout/assembly/HangulLines.h"

#include "base/Utf8.h"
#include "layout/structure/DraftWalk.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

namespace orvane::layout {
namespace {

bool endsInHangul(const std::string& text) {
    const std::u32string characters = utf32FromUtf8(text);
    return !characters.empty() && isHangul(characters.back());
}

} // namespace

bool paintsEndsOfHangul(const DocumentDraft& draft, const AssemblyParameters::HangulLines& parameters) {
    int all = 0, painted = 0;
    forEachParagraph(draft.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines) {
                if (&line == &paragraph.lastLine() || line.words.empty() || !endsInHangul(textOf(line.words.back())))
                    continue;
                ++all;
                painted += line.words.back().blanksAfter > 0;
            }
    });
    return painted >= parameters.fewestEnds && parameters.endsForOne * painted >= all;
}

bool isCutInHangul(const std::string& last, const std::string& next) {
    const std::u32string before = utf32FromUtf8(last), after = utf32FromUtf8(next);
    if (before.empty() || after.empty() || !isHangul(before.back()) || !isHangul(after.front()))
        return false;
    return before.size() == 1 || after.size() == 1 || !isHangul(after[1]);
}

} // namespace orvane::layout
