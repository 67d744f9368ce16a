#include "layout/tables/BrokenWords.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <iterator>

namespace orvane::layout {
namespace {

bool isDigit(char32_t character) {
    return u_isdigit(static_cast<UChar32>(character)) != 0;
}

bool isUpper(char32_t character) {
    return u_isupper(static_cast<UChar32>(character)) != 0;
}

/// Of a line among those of its cell.
enum class LinePlace { Within, Last, SecondOfTwo };

/// What the ends of two lines of a cell are.
class LineEnds {
public:
    /// `place` is that of `below`.
    LineEnds(const Line& above, const Line& below, LinePlace place, const std::unordered_set<std::string>& vocabulary)
        : m_above(utf32FromUtf8(textOf(above.words.back())))
        , m_below(utf32FromUtf8(textOf(below.words.front())))
        , m_whole(plainWord(above.words.back()) + plainWord(below.words.front()))
        , m_endsText(place != LinePlace::Within && below.words.size() == 1)
        , m_isPair(place == LinePlace::SecondOfTwo && m_above.size() == 1 && m_below.size() == 1)
        , m_vocabulary(vocabulary) {}

    /// Whether the text below goes on with the word above.
    bool areOneWord() const {
        if (m_above.empty() || m_below.empty())
            return false;
        const char32_t end = m_above.back();
        const char32_t start = m_below.front();
        if (start == U')' || start == U']')
            return true;
        if (isDigit(end) && isDigit(start))
            return m_isPair || (m_endsText && isCode());
        // Upper case begins a word, but within one that is all of it.
        if (!isLetter(end) || !isLetter(start) || isWithoutBlanks(end) || (isUpper(start) && !isUpper(end)))
            return false;
        return m_vocabulary.contains(m_whole) || (m_endsText && isRest());
    }

private:
    /// Whether the text below is too short for a word that ends a text: prepositions have as many letters, but others
    /// follow. Marks such as "6a" and "b", and syllables, stand for themselves, and names may be two capitals.
    bool isRest() const {
        constexpr std::ptrdiff_t kLongestRest = 2;
        const std::ptrdiff_t longest = isUpper(m_below.front()) ? kLongestRest - 1 : kLongestRest;
        return std::none_of(m_above.begin(), m_above.end(), isDigit) && !isHangul(m_below.front()) &&
               std::count_if(m_below.begin(), m_below.end(), isLetter) <= longest;
    }

    /// Whether the word above is letters and digits, which is broken like a word.
    bool isCode() const {
        constexpr std::ptrdiff_t kFewestLetters = 3;
        return std::count_if(m_above.begin(), m_above.end(), isLetter) >= kFewestLetters;
    }

    std::u32string m_above;
    std::u32string m_below;
    std::string m_whole;
    bool m_endsText;
    bool m_isPair; ///< two characters are all that the cell holds
    const std::unordered_set<std::string>& m_vocabulary;
};

/// Whether not even the first character of `below` had room behind `above`.
bool isFull(const Line& above, const Line& below, ColumnSpan room) {
    const Word& word = below.words.front();
    const auto characters = static_cast<double>(std::max<std::size_t>(1, utf32FromUtf8(textOf(word)).size()));
    return room.right - room.left - above.box.width() < word.box.width() / characters;
}

/// Moves the first word of `below` to the end of the word above it; what follows takes its place.
void moveUp(Word& word, Line& below) {
    std::vector<Span>& rest = below.words.front().spans;
    word.spans.insert(word.spans.end(), std::make_move_iterator(rest.begin()), std::make_move_iterator(rest.end()));
    word.blanksAfter = 0;
    const double left = below.box.left;
    below.words.erase(below.words.begin());
    if (below.words.empty())
        return;
    const double shift = left - below.words.front().box.left;
    for (Word& moved : below.words) {
        moved.box.left += shift;
        moved.box.right += shift;
    }
    below.words.front().gapBefore = Gap::None;
    measureAnew(below);
}

} // namespace

void mendBrokenWords(std::vector<Line>& lines, ColumnSpan room, const std::unordered_set<std::string>& vocabulary) {
    for (std::size_t i = 0; i + 1 < lines.size();) {
        Line& above = lines[i];
        Line& below = lines[i + 1];
        const LinePlace place = i + 2 < lines.size() ? LinePlace::Within
                                : i > 0              ? LinePlace::Last
                                                     : LinePlace::SecondOfTwo;
        const bool isOneWord = above.words.size() == 1 && !above.isRightToLeft && isFull(above, below, room) &&
                               LineEnds(above, below, place, vocabulary).areOneWord();
        if (isOneWord)
            moveUp(above.words.back(), below);
        if (isOneWord && below.words.empty())
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i) + 1);
        else
            ++i;
    }
}

} // namespace orvane::layout
