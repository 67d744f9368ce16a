#include "layout/structure/TypedBlanks.h"

#include "base/Utf8.h"
#include "layout/structure/DraftWalk.h"
#include "layout/text/LineText.h"

namespace orvane::layout {
namespace {

/// East Asian letters stand a little apart from others, with no blank between them.
bool isBetweenScripts(const Word& left, const Word& right) {
    const std::u32string before = utf32FromUtf8(textOf(left)), after = utf32FromUtf8(textOf(right));
    return before.empty() || after.empty() || isWithoutBlanks(before.back()) || isWithoutBlanks(after.front());
}

} // namespace

TypedBlanks typedBlanksOf(DocumentDraft& draft, const StructureParameters::Lists& limits) {
    std::size_t all = 0, painted = 0;
    const auto count = [&](const std::vector<Word>& words) {
        for (std::size_t i = 2; i < words.size(); ++i)
            if (words[i].gapBefore == Gap::Space && !isBetweenScripts(words[i - 1], words[i])) {
                ++all;
                painted += words[i].isTypedBefore ? 1 : 0;
            }
    };
    forEachParagraph(draft.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                count(line.words);
    });
    const bool arePainted =
        all >= limits.fewestBlanks && static_cast<double>(painted) >= limits.paintedShare * static_cast<double>(all);
    return arePainted ? TypedBlanks::Painted : TypedBlanks::Unknown;
}

} // namespace orvane::layout
