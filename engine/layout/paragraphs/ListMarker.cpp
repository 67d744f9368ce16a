#include "layout/paragraphs/ListMarker.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace orvane::layout {
namespace {

constexpr std::u32string_view kBullets = U"•◦▪■●○‣⁃∙·➢➤➔✓✔❖◆◇□☐☑☒►▶▸▹→⇒★☆✦✗✘※▫◘◙◾◽⚫⚪❑❒❏❍➣➥・";
/// Shapes and arrows, which stand before items more often than for themselves.
constexpr std::pair<char32_t, char32_t> kSigns[] = {{U'\u2190', U'\u21FF'},
                                                    {U'\u25A0', U'\u25FF'},
                                                    {U'\u2713', U'\u2767'},
                                                    {U'\u2794', U'\u27BE'},
                                                    {U'\u2B00', U'\u2BFF'}};
constexpr std::u32string_view kDashes = U"-–—−*+o~";
constexpr std::u32string_view kHanNumerals = U"一二三四五六七八九十";
constexpr std::u32string_view kKanaLetters = U"アイウエオカキクケコサシスセソ";
constexpr std::u32string_view kClosers = U".)]:）．、";

bool isIn(std::u32string_view set, char32_t character) {
    return set.find(character) != std::u32string_view::npos;
}

/// Wingdings and its kind: bullets in fonts without Unicode come out in the private use area, or as a sign that nobody
/// can name.
bool isNameless(char32_t character) {
    return (character >= 0xE000 && character <= 0xF8FF) || character == 0xFFFD;
}

int romanValue(std::u32string_view text) {
    int total = 0;
    int before = 1000;
    for (const char32_t character : text) {
        int value = 0;
        switch (character) {
        case U'i':
            value = 1;
            break;
        case U'v':
            value = 5;
            break;
        case U'x':
            value = 10;
            break;
        case U'l':
            value = 50;
            break;
        case U'c':
            value = 100;
            break;
        default:
            return 0;
        }
        if (value > before)
            total -= 2 * before;
        total += value;
        before = value;
    }
    return total;
}

/// Digits in groups of at most three, a full stop between them: "12" gives one group, "1.2.3" three. False for anything
/// else.
bool readNumber(std::u32string_view text, int& groups, int& last) {
    groups = 1;
    last = 0;
    int digits = 0;
    for (const char32_t character : text) {
        const int value = u_charDigitValue(static_cast<UChar32>(character));
        if (value >= 0) {
            last = 10 * last + value;
            if (++digits > 3)
                return false;
        } else if (character == U'.' && digits > 0) {
            ++groups;
            digits = last = 0;
        } else {
            return false;
        }
    }
    return digits > 0;
}

std::optional<ListMarker> readLetters(std::u32string_view body, ListMarker marker) {
    std::u32string lower(body);
    for (char32_t& character : lower)
        character = static_cast<char32_t>(u_tolower(static_cast<UChar32>(character)));
    const bool isUpper = lower != body;
    // Of one letter only i, v and x are numerals more often than letters; which they are, the list's other items tell.
    if (const int value = romanValue(lower); value > 0 && (body.size() > 1 || isIn(U"ivx", lower[0]))) {
        marker.kind = isUpper ? MarkerKind::UpperRoman : MarkerKind::LowerRoman;
        marker.ordinal = value;
        return marker;
    }
    if (body.size() != 1 || !u_isalpha(static_cast<UChar32>(body[0])))
        return std::nullopt;
    marker.kind = isUpper ? MarkerKind::UpperLetter : MarkerKind::LowerLetter;
    marker.ordinal = static_cast<int>(lower[0] >= U'a' && lower[0] <= U'z' ? lower[0] - U'a' + 1 : lower[0]);
    return marker;
}

/// "1.", "(a)", "iv)", "2.1", a whole word of them.
std::optional<ListMarker> readOrdinal(std::u32string_view word) {
    ListMarker marker;
    std::u32string_view body = word;
    const bool isOpened = !body.empty() && isIn(U"([（", body.front());
    if (isOpened)
        body.remove_prefix(1);
    if (!body.empty() && isIn(kClosers, body.back())) {
        marker.hasPunctuation = true;
        body.remove_suffix(1);
        if (!body.empty() && body.back() == U'.')
            body.remove_suffix(1);
    }
    // "1-" and "a-" are labels in many languages; "X-" before a word of its own is not common enough to count.
    else if (!isOpened && body.size() > 1 && body.size() < 4 && isIn(U"-–", body.back()) &&
             u_charDigitValue(static_cast<UChar32>(body[body.size() - 2])) >= 0) {
        marker.hasPunctuation = true;
        body.remove_suffix(1);
    }
    if (body.empty() || body.size() > 12 || (isOpened && !marker.hasPunctuation))
        return std::nullopt;
    int groups = 0;
    if (readNumber(body, groups, marker.ordinal)) {
        marker.kind = groups > 1 ? MarkerKind::Compound : MarkerKind::Decimal;
        return marker;
    }
    return marker.hasPunctuation ? readLetters(body, marker) : std::nullopt;
}

/// The label that text without blanks follows at once: "1." of "1.概要".
std::u32string_view gluedLabel(std::u32string_view word) {
    std::size_t length = 0;
    while (length < word.size() && (u_charDigitValue(static_cast<UChar32>(word[length])) >= 0 ||
                                    isIn(U"(（", word[length]) || isIn(kClosers, word[length])))
        ++length;
    const bool isLabel =
        length > 1 && length < word.size() && isWithoutBlanks(word[length]) && isIn(kClosers, word[length - 1]);
    return isLabel ? word.substr(0, length) : std::u32string_view();
}

/// Labels of East Asian texts: circled numbers, numerals of Han with their comma, letters of kana, numbers without a
/// gap.
std::optional<ListMarker> readEastAsian(std::u32string_view word) {
    ListMarker marker;
    marker.kind = MarkerKind::EastAsian;
    marker.hasPunctuation = true;
    marker.isWholeWord = false;
    if (word[0] >= U'①' && word[0] <= U'⑳') {
        marker.ordinal = static_cast<int>(word[0] - U'①') + 1;
        return marker;
    }
    if (word.size() > 1 && isIn(kHanNumerals, word[0]) && isIn(U"、．.", word[1])) {
        marker.ordinal = static_cast<int>(kHanNumerals.find(word[0])) + 1;
        return marker;
    }
    if (word.size() == 1 && isIn(kKanaLetters, word[0])) {
        marker.ordinal = static_cast<int>(kKanaLetters.find(word[0])) + 1;
        marker.isWholeWord = true;
        return marker;
    }
    if (const auto label = gluedLabel(word); !label.empty()) {
        if (auto ordinal = readOrdinal(label)) {
            ordinal->isWholeWord = false;
            return ordinal;
        }
    }
    return std::nullopt;
}

bool isLoneSign(std::u32string_view word) {
    return word.size() == 1 && std::any_of(std::begin(kSigns), std::end(kSigns), [&](const auto& range) {
               return word[0] >= range.first && word[0] <= range.second;
           });
}

std::optional<ListMarker> readSign(std::u32string_view word) {
    ListMarker marker;
    if (isIn(kBullets, word[0]) || isNameless(word[0]) || isLoneSign(word)) {
        marker.isWholeWord = word.size() == 1;
        // Some signs are also punctuation within words; glued to letters only the plain bullets are markers.
        if (word.size() > 1 && !isIn(U"•▪■●○◦‣・", word[0]) && !isNameless(word[0]))
            return std::nullopt;
        return marker;
    }
    if (word.size() == 1 && isIn(kDashes, word[0])) {
        marker.kind = MarkerKind::Dash;
        return marker;
    }
    return std::nullopt;
}

std::optional<ListMarker> readBox(std::u32string_view word) {
    if (!isIn(U"☐☒", word[0]))
        return std::nullopt;
    ListMarker marker;
    marker.kind = MarkerKind::Box;
    marker.isWholeWord = word.size() == 1;
    return marker;
}

} // namespace

std::optional<ListMarker> findListMarker(const Line& line, const ParagraphParameters::Markers& parameters) {
    if (line.words.size() < 2 && (line.words.empty() || textOf(line.words[0]).size() < 4))
        return std::nullopt;
    const Word& first = line.words[0];
    const std::u32string text = utf32FromUtf8(textOf(first));
    if (text.empty())
        return std::nullopt;
    const bool isField = !first.spans.empty() && first.spans.front().look.field >= 0;
    auto marker = isField ? readBox(text) : readSign(text);
    if (isField && !marker)
        return std::nullopt;
    if (!marker)
        marker = readEastAsian(text);
    if (!marker && line.words.size() > 1)
        marker = readOrdinal(text);
    if (!marker)
        return std::nullopt;
    marker->text = textOf(first);
    if (line.words.size() > 1 && marker->isWholeWord) {
        const Word& second = line.words[1];
        const double gap = line.isRightToLeft ? first.box.left - second.box.right : second.box.left - first.box.right;
        marker->isSeparated = second.gapBefore == Gap::Tab || gap > parameters.separation * line.fontSize;
    }
    // "14 September", "3 apples": a bare number is a label only when it stands apart.
    if (marker->kind == MarkerKind::Decimal && !marker->hasPunctuation && !marker->isSeparated)
        return std::nullopt;
    return marker;
}

bool isSuccessor(const ListMarker& before, const ListMarker& next) {
    if (before.kind == MarkerKind::Box)
        return next.kind == before.kind;
    if (before.kind == MarkerKind::Bullet || before.kind == MarkerKind::Dash)
        return next.kind == before.kind && next.text == before.text;
    return next.kind == before.kind && next.ordinal == before.ordinal + 1;
}

} // namespace orvane::layout
