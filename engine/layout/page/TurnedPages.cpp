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

bool isLevel(const Line& line) {
    return line.angle == 0 || line.isVertical;
}

/// Whether the level line stands above or below all that is turned, as the head and the foot of the page do.
bool isAtEdge(const Line& line, const Rect& turned) {
    return isLevel(line) && (line.box.bottom <= turned.top || line.box.top >= turned.bottom);
}

/// The angle of nearly all of the page's text between its head and foot; 0 where there is none but level text, or too
/// little of it.
double angleOf(const PageText& page, const PageParameters::TurnedText& limits) {
    Rect turned;
    for (const Line& line : page.lines)
        if (!isLevel(line))
            turned = turned.united(line.box);
    std::map<double, std::size_t> letters;
    std::size_t all = 0, edges = 0;
    for (const Line& line : page.lines) {
        const std::size_t count = letterCount(line);
        all += count;
        if (isAtEdge(line, turned))
            edges += count;
        else
            letters[isLevel(line) ? 0 : line.angle] += count;
    }
    if (letters.empty() || static_cast<double>(edges) > limits.edgeShare * static_cast<double>(all))
        return 0;
    all -= edges;
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
