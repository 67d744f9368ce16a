#include "layout/structure/ListLabel.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvane::layout {
namespace {

using document::NumberFormat;

NumberFormat formatOf(MarkerKind kind) {
    switch (kind) {
    case MarkerKind::Bullet:
    case MarkerKind::Dash:
    case MarkerKind::Box:
        return NumberFormat::Bullet;
    case MarkerKind::Decimal:
    case MarkerKind::Compound:
    case MarkerKind::EastAsian:
        return NumberFormat::Decimal;
    case MarkerKind::LowerLetter:
        return NumberFormat::LowerLetter;
    case MarkerKind::UpperLetter:
        return NumberFormat::UpperLetter;
    case MarkerKind::LowerRoman:
        return NumberFormat::LowerRoman;
    case MarkerKind::UpperRoman:
        return NumberFormat::UpperRoman;
    }
    return NumberFormat::Decimal;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The numbers of "3.2.1" between whatever stands around them.
void readNumbers(const std::string& text, ListLabel& label) {
    const auto first = std::find_if(text.begin(), text.end(), isDigit);
    const auto last = std::find_if(text.rbegin(), text.rend(), isDigit).base();
    label.before.assign(text.begin(), first);
    label.after.assign(last, text.end());
    int value = 0;
    for (auto c = first; c != last; ++c) {
        if (isDigit(*c)) {
            value = 10 * value + (*c - '0');
        } else {
            label.numbers.push_back(value);
            value = 0;
        }
    }
    label.numbers.push_back(value);
    // "2.0" above "2.1" is the second of its level.
    while (label.numbers.size() > 1 && label.numbers.back() == 0) {
        label.numbers.pop_back();
        label.after.insert(0, ".0");
    }
}

void readLetters(const std::string& text, int ordinal, ListLabel& label) {
    const auto first = std::find_if(text.begin(), text.end(), isLetter);
    const auto last = std::find_if(text.rbegin(), text.rend(), isLetter).base();
    label.before.assign(text.begin(), std::min(first, last));
    label.after.assign(std::max(first, last), text.end());
    label.numbers = {ordinal};
}

/// A single letter that is also a numeral, read as a letter.
std::optional<ListLabel> asLetter(const ListLabel& roman, const std::string& text) {
    const auto letter = std::find_if(text.begin(), text.end(), isLetter);
    if (letter == text.end() || std::count_if(text.begin(), text.end(), isLetter) != 1)
        return std::nullopt;
    ListLabel label = roman;
    const bool isUpper = *letter < 'a';
    label.format = isUpper ? NumberFormat::UpperLetter : NumberFormat::LowerLetter;
    label.numbers = {*letter - (isUpper ? 'A' : 'a') + 1};
    return label;
}

/// Circled numbers, numerals of Han, and the digits and letters of other scripts have no counterpart that all word
/// processors write alike.
bool isCountedAlike(const ListMarker& marker) {
    const NumberFormat format = formatOf(marker.kind);
    if (format == NumberFormat::Bullet)
        return true;
    return marker.kind != MarkerKind::EastAsian &&
           std::any_of(marker.text.begin(), marker.text.end(), format == NumberFormat::Decimal ? isDigit : isLetter);
}

double startOf(const Rect& box, const Line& line, const ColumnSpan& column) {
    return line.isRightToLeft ? column.right - box.right : box.left - column.left;
}

} // namespace

std::vector<ListLabel> readListLabel(const DraftParagraph& paragraph, TypedBlanks blanks,
                                     const LayoutParameters& parameters) {
    const DraftPiece& piece = paragraph.pieces.front();
    const Line& line = paragraph.firstLine();
    const auto marker = findListMarker(line, parameters.markers);
    // Glued to the text it cannot be told from it; only where a gap parts them does a list have written it.
    if (!marker || !marker->isWholeWord || line.words.size() < 2 || line.angle != 0)
        return {};
    // Of the bullets of a list none can be ticked alone.
    if (marker->kind == MarkerKind::Box || !isCountedAlike(*marker))
        return {};
    ListLabel label;
    label.format = formatOf(marker->kind);
    label.labelStart = startOf(line.words[0].box, line, piece.column);
    label.textStart = startOf(line.words[1].box, line, piece.column);
    // A single line shows no indent of the lines after it.
    label.hangs = piece.text.lines.size() > 1 && piece.text.firstLine < -parameters.lists.sameIndent;
    label.isSeparated = marker->isSeparated;
    label.isTyped = line.words[1].isTypedBefore;
    label.isSet = blanks == TypedBlanks::Painted && !label.isTyped;
    label.isStrong = marker->kind == MarkerKind::Bullet || marker->isSeparated || label.hangs || label.isSet;
    if (label.format == NumberFormat::Bullet)
        label.bullet = marker->text;
    else if (label.format == NumberFormat::Decimal)
        readNumbers(marker->text, label);
    else
        readLetters(marker->text, marker->ordinal, label);
    std::vector<ListLabel> readings{label};
    if (marker->kind == MarkerKind::LowerRoman || marker->kind == MarkerKind::UpperRoman)
        if (const auto letter = asLetter(label, marker->text))
            readings.push_back(*letter);
    return readings;
}

bool isSameKind(const ListLabel& a, const ListLabel& b) {
    return a.format == b.format && a.bullet == b.bullet && a.before == b.before && a.after == b.after &&
           a.numbers.size() == b.numbers.size();
}

} // namespace orvane::layout
