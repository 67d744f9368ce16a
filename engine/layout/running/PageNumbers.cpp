#include "layout/running/PageNumbers.h"

#include "base/Utf8.h"
#include "layout/running/HeadPlaces.h"
#include "layout/support/Tally.h"
#include "layout/text/LineText.h"
#include "layout/text/SpanPart.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace orvane::layout {
namespace {

/// Votes for the page number of page `index` from rows that count together with rows of pages nearby.
void voteForNumber(const std::vector<EdgeRows>& edges, std::size_t index, Tally<PageNumber>& votes) {
    for (std::ptrdiff_t by = -kRunningReach; by <= kRunningReach; ++by) {
        const auto other = static_cast<std::ptrdiff_t>(index) + by;
        if (by == 0 || other < 0 || other >= static_cast<std::ptrdiff_t>(edges.size()))
            continue;
        const EdgeRows& here = edges[index];
        const EdgeRows& there = edges[static_cast<std::size_t>(other)];
        for (std::size_t i = 0; i < here.taken; ++i) {
            for (std::size_t j = 0; j < there.taken; ++j) {
                if (std::abs(here.rows[i].fromEdge - there.rows[j].fromEdge) > here.rows[i].fontSize)
                    continue;
                for (const std::size_t number : countingNumbers(here.rows[i], there.rows[j], static_cast<int>(by)))
                    votes.add({here.rows[i].numbers[number].value, here.rows[i].numbers[number].format});
            }
        }
    }
}

/// A way of counting pages: what it adds to their index, and how it writes that.
using PageCount = std::pair<int, document::NumberFormat>;

PageCount countOf(const PageNumber& number, std::size_t page) {
    return {number.value - static_cast<int>(page), number.format};
}

bool isNumber(const RowNumber& candidate, const PageNumber& number) {
    return candidate.value == number.value && candidate.format == number.format;
}

bool shows(const RunningRow& row, const PageNumber& number) {
    return std::any_of(row.numbers.begin(), row.numbers.end(),
                       [&](const RowNumber& candidate) { return isNumber(candidate, number); });
}

/// Whether nothing but a number makes the row agree with those of other pages.
bool restsOnNumber(const EdgeRows& edge, std::size_t row) {
    return edge.matches[row] == RowMatch::Number ||
           (edge.rows[row].skeleton == "#" && edge.rows[row].numbers.size() == 1);
}

/// Cuts characters `from` to `from + length` of a word out of its spans and returns the index of the span they now are;
/// the word's number of spans when they lie in several spans.
std::size_t isolate(Word& word, std::size_t from, std::size_t length) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < word.spans.size(); ++i) {
        const std::u32string text = utf32FromUtf8(word.spans[i].text);
        if (from >= start + text.size()) {
            start += text.size();
            continue;
        }
        const std::size_t begin = from - start, end = begin + length;
        return end > text.size() ? word.spans.size() : partSpan(word, i, begin, end);
    }
    return word.spans.size();
}

/// Whether some number in the rows is the page's, and another one on the pages nearby.
bool hasCounting(const EdgeRows& edge, const PageNumber& number) {
    const auto counts = [&](const RowNumber& candidate) {
        return isNumber(candidate, number) && !candidate.isRepeated;
    };
    return std::any_of(
        edge.rows.begin(), edge.rows.begin() + static_cast<std::ptrdiff_t>(edge.taken),
        [&](const RunningRow& row) { return std::any_of(row.numbers.begin(), row.numbers.end(), counts); });
}

/// What a row's numbers stand for. One that stays the same from page to page is the page's number only by chance, if
/// another `isCounting` in the rows.
std::vector<std::optional<document::FieldCode>>
meaningsOf(const RunningRow& row, const std::optional<PageNumber>& number, int pageCount, bool isCounting) {
    std::vector<std::optional<document::FieldCode>> meanings(row.numbers.size());
    bool hasPage = false;
    for (std::size_t i = 0; number && i < row.numbers.size(); ++i) {
        const RowNumber& candidate = row.numbers[i];
        if (!hasPage && isNumber(candidate, *number) && !(isCounting && candidate.isRepeated)) {
            meanings[i] = document::FieldCode::Page;
            hasPage = true;
        } else if (i > 0 && meanings[i - 1] == document::FieldCode::Page && candidate.value == pageCount &&
                   row.numbers[i - 1].line == candidate.line && candidate.word <= row.numbers[i - 1].word + 2) {
            // "3 / 12", "page 3 of 12"
            meanings[i] = document::FieldCode::PageCount;
        }
    }
    return meanings;
}

/// The way in which the numbered pages before and after this one count; nullopt where they differ, and at the ends.
std::optional<PageCount> countAround(const std::vector<std::optional<PageNumber>>& numbers, std::size_t page) {
    const auto at = numbers.begin() + static_cast<std::ptrdiff_t>(page);
    const auto isNumbered = [](const std::optional<PageNumber>& number) { return number.has_value(); };
    const auto after = std::find_if(at, numbers.end(), isNumbered);
    const auto before = std::find_if(std::make_reverse_iterator(at), numbers.rend(), isNumbered);
    if (after == numbers.end() || before == numbers.rend())
        return std::nullopt;
    const PageCount next = countOf(**after, static_cast<std::size_t>(after - numbers.begin()));
    const PageCount last = countOf(**before, static_cast<std::size_t>(numbers.rend() - before) - 1);
    return next == last ? std::optional(next) : std::nullopt;
}

} // namespace

std::vector<std::optional<PageNumber>> readPageNumbers(const std::vector<EdgeRows>& tops,
                                                       const std::vector<EdgeRows>& bottoms) {
    std::vector<Tally<PageNumber>> votes(tops.size());
    // Page numbers go on over many pages; what counts for a few pages only is something else.
    std::map<PageCount, int> pages;
    for (std::size_t i = 0; i < tops.size(); ++i) {
        voteForNumber(tops, i, votes[i]);
        voteForNumber(bottoms, i, votes[i]);
        for (const auto& [number, weight] : votes[i].counts())
            ++pages[countOf(number, i)];
    }
    std::vector<std::optional<PageNumber>> numbers(tops.size());
    for (std::size_t i = 0; i < tops.size(); ++i) {
        std::pair<int, double> best;
        for (const auto& [number, weight] : votes[i].counts())
            if (const std::pair support{pages[countOf(number, i)], weight}; support > best) {
                best = support;
                numbers[i] = number;
            }
    }
    return numbers;
}

void leaveOtherNumbers(std::vector<EdgeRows>& edges, const std::vector<std::optional<PageNumber>>& numbers) {
    for (std::size_t page = 0; page < edges.size(); ++page) {
        EdgeRows& edge = edges[page];
        for (std::size_t i = 0; i < edge.taken; ++i)
            if (restsOnNumber(edge, i) && numbers[page] && !shows(edge.rows[i], *numbers[page]))
                trimTaken(edge, i);
    }
}

void takeLoneNumbers(std::vector<EdgeRows>& edges, std::vector<std::optional<PageNumber>>& numbers) {
    for (std::size_t page = 0; page < edges.size(); ++page) {
        EdgeRows& edge = edges[page];
        const auto count = numbers[page] ? std::nullopt : countAround(numbers, page);
        if (!count || edge.taken == edge.rows.size())
            continue;
        const PageNumber number{count->first + static_cast<int>(page), count->second};
        const RunningRow& row = edge.rows[edge.taken];
        if (row.skeleton != "#" || !shows(row, number))
            continue;
        edge.matches[edge.taken++] = RowMatch::Number;
        numbers[page] = number;
    }
}

std::vector<RunningField> cutOutNumbers(PageText& page, const EdgeRows& rows, const std::optional<PageNumber>& number,
                                        int pageCount) {
    std::vector<RunningField> fields;
    const bool isCounting = number && hasCounting(rows, *number);
    for (std::size_t r = 0; r < rows.taken; ++r) {
        const RunningRow& row = rows.rows[r];
        const auto meanings = meaningsOf(row, number, pageCount, isCounting);
        // From the last to the first, so that characters of one word are cut off from its end.
        for (std::size_t i = meanings.size(); i-- > 0;) {
            if (!meanings[i])
                continue;
            Word& word = page.lines[row.numbers[i].line].words[row.numbers[i].word];
            const std::size_t span = isolate(word, row.numbers[i].from, row.numbers[i].length);
            if (span < word.spans.size())
                fields.push_back({*meanings[i], word.spans[span].box});
        }
    }
    return fields;
}

} // namespace orvane::layout
