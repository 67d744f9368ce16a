#include "layout/page/MarginNumbers.h"

#include "layout/page/MarginNumberFinder.h"
#include "layout/support/Tally.h"
#include "layout/text/LineText.h"

#include <algorithm>

namespace orvane::layout {
namespace {

using document::CountStart;
using document::LineNumbers;

void takeNumbers(PageText& page, const NumberColumn& column) {
    for (const MarginNumber& number : column.facing) {
        Line& line = page.lines[number.line];
        line.words.pop_back();
        if (!line.words.empty())
            measureAnew(line);
    }
    for (const MarginNumber& number : column.numbers) {
        Line& line = page.lines[number.line];
        line.words.erase(line.words.begin());
        if (line.words.empty())
            continue;
        line.words.front().gapBefore = Gap::None;
        line.words.front().leaderBefore = document::TabLeader::None;
        measureAnew(line);
    }
    std::erase_if(page.lines, [](const Line& line) { return line.words.empty(); });
}

/// The numbers of all pages, as far as they have some.
class Numbering {
public:
    explicit Numbering(std::vector<std::optional<NumberColumn>> pages)
        : m_pages(std::move(pages)) {}

    bool isSure(std::size_t textPages, const PageParameters::LineNumbering& limits) const {
        std::size_t numbered = 0, faced = 0, numbers = 0, goingOn = 0, blank = 0;
        for (const auto& page : m_pages) {
            if (!page)
                continue;
            ++numbered;
            faced += !page->facing.empty();
            for (const MarginNumber& number : page->numbers) {
                numbers += number.hasText();
                blank += !number.hasText();
                goingOn += number.goesOn;
            }
        }
        // No list counts blank lines, though a form may. None is numbered on both sides of the page.
        const std::size_t ofLines = goingOn + std::min(goingOn, blank);
        const bool areOfLines = static_cast<double>(ofLines) >= limits.proseShare * static_cast<double>(numbers) ||
                                static_cast<double>(faced) >= limits.pageShare * static_cast<double>(numbered);
        return numbers > 0 && (areOfLines || passOverLines(limits)) &&
               static_cast<double>(numbered) >= limits.pageShare * static_cast<double>(textPages);
    }

    /// Whether all count by more than one, over lines with text, and on from page to page: no list does.
    bool passOverLines(const PageParameters::LineNumbering& limits) const {
        std::size_t numbers = 0;
        const NumberColumn* last = nullptr;
        for (const auto& page : m_pages) {
            if (!page)
                continue;
            const bool isMultiple = page->numbers.front().value % page->step == 0;
            // The few of a page with many tables are not found.
            const bool goesOn =
                !last || (page->step == last->step && page->numbers.front().value > last->numbers.back().value);
            if (page->step < 2 || !isMultiple || !goesOn || page->rowsOfStep < limits.rowsOfStep)
                return false;
            numbers += page->numbers.size();
            last = &*page;
        }
        return numbers >= limits.fewestOfPage;
    }

    LineNumbers describe() const {
        Tally<int> steps;
        std::vector<double> distances;
        int firsts = 0, restarts = 0;
        std::optional<int> start;
        for (const auto& page : m_pages) {
            if (!page)
                continue;
            steps.add(page->step);
            if (start)
                ++firsts;
            else
                start = page->numbers.front().value;
            restarts += page->numbers.front().value == *start;
            for (const MarginNumber& number : page->numbers)
                if (number.hasText())
                    distances.push_back(number.textStart - page->right);
        }
        LineNumbers numbers;
        numbers.every = *steps.heaviest();
        // Of every fifth line's numbers 5 is the first, and the lines count from 1.
        numbers.start = *start <= numbers.every ? 1 : *start;
        numbers.count = 2 * (restarts - 1) > firsts ? CountStart::EachPage : CountStart::Continuous;
        numbers.distance = twipsFromPoints(*mostFrequent(distances, 1));
        return numbers;
    }

    const std::vector<std::optional<NumberColumn>>& pages() const { return m_pages; }

private:
    std::vector<std::optional<NumberColumn>> m_pages;
};

} // namespace

std::optional<LineNumbers> takeLineNumbers(std::vector<PageText>& pages, const PageParameters::LineNumbering& limits) {
    std::vector<std::optional<NumberColumn>> columns;
    std::size_t textPages = 0;
    for (const PageText& page : pages) {
        columns.push_back(findMarginNumbers(page, limits));
        textPages += page.lines.size() >= limits.fewestOfPage;
    }
    const Numbering numbering(std::move(columns));
    if (!numbering.isSure(textPages, limits))
        return std::nullopt;
    for (std::size_t i = 0; i < pages.size(); ++i)
        if (numbering.pages()[i])
            takeNumbers(pages[i], *numbering.pages()[i]);
    return numbering.describe();
}

} // namespace orvane::layout
