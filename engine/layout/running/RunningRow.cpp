#include "layout/running/RunningRow.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvane::layout {
namespace {

using document::NumberFormat;

int digitValue(char32_t c) {
    return u_charDigitValue(static_cast<UChar32>(c));
}

/// The value of a numeral such as "xiv"; 0 for a word that is none, or not written as one writes it.
int romanValue(std::u32string_view word) {
    static constexpr std::pair<std::u32string_view, int> kParts[] = {
        {U"c", 100}, {U"xc", 90}, {U"l", 50}, {U"xl", 40}, {U"x", 10}, {U"ix", 9}, {U"v", 5}, {U"iv", 4}, {U"i", 1}};
    int value = 0;
    for (const auto& [letters, worth] : kParts) {
        const int most = letters.size() == 1 && worth != 50 && worth != 5 ? 3 : 1;
        for (int i = 0; i < most && word.starts_with(letters); ++i) {
            value += worth;
            word.remove_prefix(letters.size());
        }
    }
    return word.empty() ? value : 0;
}

/// The letters of a word that is nothing but a Roman numeral, signs around it aside.
std::optional<RowNumber> romanNumberIn(const std::u32string& text) {
    const auto first = std::find_if(text.begin(), text.end(), isLetter);
    const auto last = std::find_if_not(first, text.end(), isLetter);
    if (first == last || std::any_of(last, text.end(), [](char32_t c) { return isLetter(c) || digitValue(c) >= 0; }))
        return std::nullopt;
    std::u32string small(first, last);
    const bool isUpper = std::all_of(first, last, isUpperCase);
    std::transform(small.begin(), small.end(), small.begin(), toLowerCase);
    if (!isUpper && small != std::u32string(first, last))
        return std::nullopt;
    RowNumber number;
    number.value = romanValue(small);
    number.format = isUpper ? NumberFormat::UpperRoman : NumberFormat::LowerRoman;
    number.from = static_cast<std::size_t>(first - text.begin());
    number.length = small.size();
    return number.value > 0 ? std::optional(number) : std::nullopt;
}

/// Reads the words of a row into its skeleton and numbers.
class RowReader {
public:
    RowReader(const PageText& page, RunningRow& row)
        : m_page(page)
        , m_row(row) {}

    void read() {
        for (const std::size_t index : m_row.lines) {
            const Line& line = m_page.lines[index];
            for (std::size_t i = 0; i < line.words.size(); ++i) {
                const bool startsPart = i == 0 || line.words[i].gapBefore == Gap::Tab;
                const bool endsPart = i + 1 == line.words.size() || line.words[i + 1].gapBefore == Gap::Tab;
                readWord(index, i, line.words[i], startsPart && endsPart);
            }
        }
    }

private:
    static bool isFormula(const Word& word) { return !word.spans.empty() && word.spans.front().look.formula >= 0; }

    void readWord(std::size_t line, std::size_t index, const Word& word, bool isWholePart) {
        if (isFormula(word)) {
            m_row.skeleton += m_page.formulas[static_cast<std::size_t>(word.spans.front().look.formula)].text;
            return;
        }
        const std::u32string text = utf32FromUtf8(textOf(word));
        RowNumber place;
        place.line = line;
        place.word = index;
        place.left = word.box.left;
        place.right = word.box.right;
        // Of the words in running text many could be numerals ("I", "mix"); alone between gaps they are.
        if (const auto roman = isWholePart ? romanNumberIn(text) : std::nullopt) {
            place.value = roman->value;
            place.format = roman->format;
            place.from = roman->from;
            place.length = roman->length;
            place.standsAlone = true;
            m_row.numbers.push_back(place);
            m_row.skeleton +=
                utf8FromUtf32(text.substr(0, roman->from) + U'#' + text.substr(roman->from + roman->length));
            return;
        }
        place.standsAlone = isWholePart && std::none_of(text.begin(), text.end(), isLetter);
        readDigits(text, place);
    }

    void readDigits(const std::u32string& text, RowNumber place) {
        constexpr int kTooLarge = 1000000;
        for (std::size_t i = 0; i < text.size();) {
            if (digitValue(text[i]) < 0) {
                m_row.skeleton += utf8FromUtf32(text.substr(i++, 1));
                continue;
            }
            place.from = i;
            place.value = 0;
            for (; i < text.size() && digitValue(text[i]) >= 0; ++i)
                place.value = place.value < kTooLarge ? 10 * place.value + digitValue(text[i]) : place.value;
            place.length = i - place.from;
            m_row.numbers.push_back(place);
            m_row.skeleton += '#';
        }
    }

    const PageText& m_page;
    RunningRow& m_row;
};

std::vector<std::size_t> linesFromEdge(const PageText& page, PageEdge edge, double reach) {
    std::vector<std::size_t> indices;
    for (std::size_t i = 0; i < page.lines.size(); ++i) {
        const Line& line = page.lines[i];
        const double distance = edge == PageEdge::Top ? line.box.bottom : page.height - line.box.top;
        if (!line.words.empty() && line.angle == 0 && distance <= reach * page.height)
            indices.push_back(i);
    }
    std::stable_sort(indices.begin(), indices.end(), [&](std::size_t a, std::size_t b) {
        return edge == PageEdge::Top ? page.lines[a].baseline < page.lines[b].baseline
                                     : page.lines[a].baseline > page.lines[b].baseline;
    });
    return indices;
}

void finishRow(RunningRow& row, const PageText& page, PageEdge edge) {
    std::sort(row.lines.begin(), row.lines.end(),
              [&](std::size_t a, std::size_t b) { return page.lines[a].box.left < page.lines[b].box.left; });
    row.fromEdge = edge == PageEdge::Top ? row.box.top : page.height - row.box.bottom;
    RowReader(page, row).read();
}

bool standsAlike(const RowNumber& a, const RowNumber& b, double tolerance) {
    return std::abs(a.left - b.left) <= tolerance || std::abs(a.right - b.right) <= tolerance ||
           std::abs(a.left + a.right - b.left - b.right) <= 2 * tolerance;
}

} // namespace

std::vector<RunningRow> rowsFromEdge(const PageText& page, PageEdge edge,
                                     const RunningParameters::RunningHeads& parameters) {
    std::vector<RunningRow> rows;
    for (const std::size_t index : linesFromEdge(page, edge, parameters.reach)) {
        const Line& line = page.lines[index];
        const bool isSameRow =
            !rows.empty() && std::abs(rows.back().baseline - line.baseline) <= parameters.sameRow * line.fontSize;
        if (!isSameRow) {
            if (rows.size() == static_cast<std::size_t>(parameters.maximumRows))
                break;
            rows.push_back({{}, {}, line.baseline, line.fontSize, 0, {}, {}});
        }
        rows.back().lines.push_back(index);
        rows.back().box = rows.back().box.united(line.box);
    }
    for (RunningRow& row : rows)
        finishRow(row, page, edge);
    return rows;
}

std::vector<std::size_t> countingNumbers(const RunningRow& row, const RunningRow& later, int pages) {
    std::vector<std::size_t> counting;
    for (std::size_t i = 0; i < std::min(row.numbers.size(), later.numbers.size()); ++i)
        if (later.numbers[i].value - row.numbers[i].value == pages && row.numbers[i].format == later.numbers[i].format)
            counting.push_back(i);
    return counting;
}

RowMatch matchRows(const RunningRow& row, const RunningRow& later, int pages,
                   const RunningParameters::RunningHeads& parameters) {
    if (std::abs(row.fromEdge - later.fromEdge) > parameters.samePosition ||
        std::abs(row.fontSize - later.fontSize) > parameters.sameSize)
        return RowMatch::None;
    if (row.skeleton == later.skeleton) {
        const auto counting = countingNumbers(row, later, pages);
        bool agrees = true;
        for (std::size_t i = 0; i < row.numbers.size(); ++i)
            agrees = agrees && (row.numbers[i].value == later.numbers[i].value ||
                                std::find(counting.begin(), counting.end(), i) != counting.end());
        if (agrees)
            return RowMatch::Text;
    }
    for (const RowNumber& a : row.numbers)
        for (const RowNumber& b : later.numbers)
            if (a.standsAlone && b.standsAlone && a.format == b.format && b.value - a.value == pages &&
                standsAlike(a, b, parameters.samePosition))
                return RowMatch::Number;
    return RowMatch::None;
}

} // namespace orvane::layout
