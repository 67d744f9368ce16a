#include "layout/text/WordDivision.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace orvane::layout {
namespace {

bool endsInHyphen(const Line& line) {
    const std::u32string text = utf32FromUtf8(textOf(line.words.back()));
    constexpr std::size_t kShortestPart = 3; // two letters and the hyphen
    return text.size() >= kShortestPart && (text.back() == U'-' || text.back() == U'\u2010') &&
           u_isalpha(static_cast<UChar32>(text[text.size() - 2])) != 0;
}

/// The line below in the same column, of those that follow soon; null without one.
const Line* lineBelow(const std::vector<Line>& lines, std::size_t index, double farthest) {
    constexpr std::size_t kReach = 12; // lines of other columns may stand between
    const Line& line = lines[index];
    for (std::size_t i = index + 1; i < std::min(lines.size(), index + 1 + kReach); ++i) {
        const double distance = lines[i].baseline - line.baseline;
        if (!lines[i].words.empty() && distance > 0 && distance <= farthest * line.fontSize &&
            overlap(line.box.left, line.box.right, lines[i].box.left, lines[i].box.right) > 0)
            return &lines[i];
    }
    return nullptr;
}

/// Whether the hyphen between the two was only for the line's end: the word stands whole elsewhere, and the second part
/// is none. Where it is one, people write both: "non-clinical" and "nonclinical".
bool isDivided(const std::string& first, const std::string& second, const std::unordered_set<std::string>& vocabulary) {
    return !first.empty() && vocabulary.contains(first + second) && !vocabulary.contains(second);
}

} // namespace

WordDivision findDivision(const std::vector<PageText>& pages, const std::unordered_set<std::string>& vocabulary,
                          const TextParameters::Division& parameters) {
    int lines = 0, hyphens = 0, divided = 0;
    for (const PageText& page : pages)
        for (std::size_t i = 0; i < page.lines.size(); ++i) {
            const Line& line = page.lines[i];
            if (line.words.size() < parameters.proseWords)
                continue;
            ++lines;
            if (!endsInHyphen(line))
                continue;
            ++hyphens;
            const Line* next = lineBelow(page.lines, i, parameters.farthestLine);
            divided += next && isDivided(plainWord(line.words.back()), plainWord(next->words.front()), vocabulary);
        }
    const bool areMany = hyphens >= parameters.fewestHyphens && hyphens >= parameters.hyphenShare * lines;
    if (areMany && divided > 0)
        return WordDivision::Always;
    return areMany || divided > 0 ? WordDivision::Sometimes : WordDivision::Never;
}

} // namespace orvane::layout
