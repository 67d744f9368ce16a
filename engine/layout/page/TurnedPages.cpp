#include "layout/page/TurnedPages.h"

#include "layout/formulas/FormulaFinder.h"
#include "layout/page/PageMap.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvane::layout {
namespace {

std::size_t letterCount(const Line& line) {
    std::size_t count = 0;
    for (const Word& word : line.words)
        for (const Span& span : word.spans)
            count += span.text.size();
    return count;
}

/// The angle of nearly all of the page's text; 0 where there is none but level text, or too little of it.
double angleOf(const PageText& page, const PageParameters::TurnedText& limits) {
    std::map<double, std::size_t> letters;
    std::size_t all = 0;
    for (const Line& line : page.lines) {
        letters[line.isVertical ? 0 : line.angle] += letterCount(line);
        all += letterCount(line);
    }
    const auto most = std::max_element(letters.begin(), letters.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    const bool isSure = all >= limits.fewestLetters && page.lines.size() >= limits.fewestOfPage &&
                        static_cast<double>(most->second) >= limits.turnedShare * static_cast<double>(all);
    return isSure ? most->first : 0;
}

} // namespace

void turnUpright(PageText& page, const PageParameters::TurnedText& limits) {
    const double angle = angleOf(page, limits);
    if (angle != 90 && angle != 270)
        return;
    // A formula's picture in a line cannot be turned.
    restoreFormulaLines(page, RestoredFormulas::All);
    const Matrix turnBack = angle == 90 ? Matrix{0, -1, 1, 0, 0, page.width} : Matrix{0, 1, -1, 0, page.height, 0};
    mapPage(page, turnBack);
    std::swap(page.width, page.height);
    std::stable_sort(page.lines.begin(), page.lines.end(),
                     [](const Line& a, const Line& b) { return a.box.top < b.box.top; });
}

} // namespace orvane::layout
