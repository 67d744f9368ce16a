#include "layout/tables/GroundLines.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace orvane::layout {
namespace {

/// Grounds of one height side by side that meet.
struct GroundBand {
    Rect box;
    std::vector<double> edges; ///< x where two meet, from left to right
};

bool isNear(double a, double b, double snap) {
    return std::abs(a - b) <= snap;
}

/// The bands of two grounds and more, from top to bottom.
std::vector<GroundBand> bandsOf(const std::vector<Ground>& grounds, double snap) {
    std::vector<Rect> rects;
    for (const Ground& ground : grounds)
        if (!ground.isUsed && ground.box.width() > snap && ground.box.height() > snap)
            rects.push_back(ground.box);
    std::sort(rects.begin(), rects.end(), [](const Rect& a, const Rect& b) {
        const long above = std::lround(a.top), below = std::lround(b.top);
        return above != below ? above < below : a.left < b.left;
    });
    std::vector<GroundBand> bands;
    for (const Rect& rect : rects) {
        const bool goesOn = !bands.empty() && isNear(bands.back().box.top, rect.top, snap) &&
                            isNear(bands.back().box.bottom, rect.bottom, snap) &&
                            isNear(bands.back().box.right, rect.left, snap);
        if (!goesOn) {
            bands.push_back({rect, {}});
            continue;
        }
        bands.back().edges.push_back(rect.left);
        bands.back().box.right = rect.right;
    }
    std::erase_if(bands, [](const GroundBand& band) { return band.edges.empty(); });
    return bands;
}

bool haveEqualSides(const GroundBand& a, const GroundBand& b, double snap) {
    return isNear(a.box.left, b.box.left, snap) && isNear(a.box.right, b.box.right, snap);
}

std::vector<double> sharedEdges(const GroundBand& a, const GroundBand& b, double snap) {
    std::vector<double> shared;
    std::copy_if(a.edges.begin(), a.edges.end(), std::back_inserter(shared), [&](double x) {
        return std::any_of(b.edges.begin(), b.edges.end(), [&](double other) { return isNear(x, other, snap); });
    });
    return shared;
}

/// Goes through the bands of one table, and the white rows beside them.
class BandReader {
public:
    BandReader(const PageText& page, const std::vector<BorderLine>& drawn, const TableParameters::Tables& parameters)
        : m_page(page)
        , m_drawn(drawn)
        , m_parameters(parameters) {}

    std::vector<BorderLine> read() {
        const std::vector<GroundBand> bands = bandsOf(m_page.grounds, m_parameters.filledSnap);
        std::vector<char> isTaken(bands.size(), false);
        for (std::size_t first = 0; first < bands.size(); ++first) {
            if (isTaken[first])
                continue;
            const std::vector<GroundBand> table = tableFrom(bands, first, isTaken);
            const auto fewest = static_cast<std::size_t>(m_parameters.fewestPartedRows);
            if (table.size() + (isBetweenRules(table) ? 1 : 0) >= fewest && !hasTextsBeside(table))
                addLines(table);
        }
        return std::move(m_lines);
    }

private:
    /// The band and those below it that go on with its columns, which are marked as taken.
    std::vector<GroundBand> tableFrom(const std::vector<GroundBand>& bands, std::size_t first,
                                      std::vector<char>& isTaken) const {
        std::vector<GroundBand> table{bands[first]};
        for (std::size_t i = first + 1; i < bands.size(); ++i) {
            if (isTaken[i] || !goesOn(table.back(), bands[i]))
                continue;
            table.push_back(bands[i]);
            isTaken[i] = true;
        }
        return table;
    }

    bool goesOn(const GroundBand& above, const GroundBand& below) const {
        if (!haveEqualSides(above, below, m_parameters.filledSnap) ||
            below.box.top < above.box.bottom - m_parameters.filledSnap || openEdges(above, below).empty())
            return false;
        const double end = endOfTexts(above, 1);
        const double padding = end > above.box.bottom ? paddingOf(above) : 0;
        return end + padding >= below.box.top - m_parameters.filledSnap;
    }

    /// Whether rules as wide as the bands lie above them and below, a row or two away. They show a table as one more
    /// band would.
    bool isBetweenRules(const std::vector<GroundBand>& table) const {
        const GroundBand &first = table.front(), &last = table.back();
        const std::vector<double> rules = rulesAcross(first);
        return isAnyBetween(rules, first.box.top - 2 * first.box.height(), first.box.top + m_parameters.filledSnap) &&
               isAnyBetween(rules, last.box.bottom - m_parameters.filledSnap, last.box.bottom + 2 * last.box.height());
    }

    /// Whether texts stand beside most bands: columns without ground belong to the table.
    bool hasTextsBeside(const std::vector<GroundBand>& table) const {
        const auto isLabelled = [&](const GroundBand& band) {
            return std::any_of(m_page.lines.begin(), m_page.lines.end(), [&](const Line& line) {
                const double reach = m_parameters.groundNeighbour * line.fontSize;
                const double gap = std::max(band.box.left - line.box.right, line.box.left - band.box.right);
                const bool overhangs =
                    line.box.left < band.box.left - line.fontSize || line.box.right > band.box.right + line.fontSize;
                return line.box.centerY() > band.box.top && line.box.centerY() < band.box.bottom && overhangs &&
                       gap < reach;
            });
        };
        const auto labelled = std::count_if(table.begin(), table.end(), isLabelled);
        return 2 * static_cast<std::size_t>(labelled) > table.size();
    }

    /// The edges that two bands share and that no text between them stands over.
    std::vector<double> openEdges(const GroundBand& above, const GroundBand& below) const {
        std::vector<double> edges = sharedEdges(above, below, m_parameters.filledSnap);
        const Rect between{above.box.left, above.box.bottom, above.box.right, below.box.top};
        std::erase_if(edges, [&](double x) { return isCrossed(x, between); });
        return edges;
    }

    /// Whether a text within the height of `box` stands over x: a word does, or two with no more than a blank between.
    bool isCrossed(double x, const Rect& box) const {
        return std::any_of(m_page.lines.begin(), m_page.lines.end(),
                           [&](const Line& line) { return isWithin(line, box) && isCrossedBy(line, x); });
    }

    bool isWithin(const Line& line, const Rect& box) const {
        return line.box.centerY() > box.top && line.box.centerY() < box.bottom && line.box.left < box.right &&
               line.box.right > box.left;
    }

    bool isCrossedBy(const Line& line, double x) const {
        double endBefore = line.box.left - line.fontSize;
        for (const Word& word : line.words) {
            if (word.box.right > x)
                return word.box.left < x - m_parameters.straddle * line.fontSize ||
                       (endBefore > line.box.left &&
                        word.box.left - endBefore < m_parameters.minimumColumnGap * line.fontSize);
            endBefore = word.box.right;
        }
        return false;
    }

    void addLines(const std::vector<GroundBand>& table) {
        for (std::size_t i = 0; i < table.size(); ++i) {
            const GroundBand& band = table[i];
            addAcross(band.box.top, band.box);
            addAcross(band.box.bottom, band.box);
            addDown(band.edges, band.box);
            if (i + 1 < table.size())
                addDown(openEdges(band, table[i + 1]),
                        {band.box.left, band.box.bottom, band.box.right, table[i + 1].box.top});
        }
        addEnd(table.front(), rowBeside(table.front(), -1));
        addEnd(table.back(), rowBeside(table.back(), 1));
    }

    void addEnd(const GroundBand& band, const Rect& row) {
        if (row.height() <= m_parameters.lineSnap)
            return;
        std::vector<double> edges = band.edges;
        std::erase_if(edges, [&](double x) { return isCrossed(x, row); });
        if (edges.empty())
            return;
        addDown(edges, row);
        addAcross(row.top, row);
        addAcross(row.bottom, row);
    }

    /// The row without ground above (`step` -1) or below the outermost band: as far as the texts reach that follow the
    /// band, or a little farther where the rules at its sides do or one lies across.
    Rect rowBeside(const GroundBand& band, int step) const {
        const double start = step < 0 ? band.box.top : band.box.bottom;
        double end = endOfTexts(band, step);
        for (const BorderLine& line : m_drawn) {
            const double reach = line.direction == RuleDirection::Horizontal ? line.position
                                 : step < 0                                  ? line.from
                                                                             : line.to;
            const bool isBeside = line.direction == RuleDirection::Horizontal
                                      ? overlap(line.from, line.to, band.box.left, band.box.right) >
                                            m_parameters.borderCover * band.box.width()
                                      : isNear(line.position, band.box.left, m_parameters.lineSnap) ||
                                            isNear(line.position, band.box.right, m_parameters.lineSnap);
            if (isBeside && step * (reach - start) > m_parameters.lineSnap &&
                isNear(reach, end, m_parameters.groundRowBlank * band.box.height()))
                end = reach;
        }
        return step < 0 ? Rect{band.box.left, end, band.box.right, start}
                        : Rect{band.box.left, start, band.box.right, end};
    }

    /// How far the texts reach that follow each other closely from the band on and leave some of its edges free; as far
    /// as the band itself where there are none.
    double endOfTexts(const GroundBand& band, int step) const {
        const double start = step < 0 ? band.box.top : band.box.bottom;
        const double padding = paddingOf(band);
        const std::vector<double> rules = rulesAcross(band);
        constexpr double kFar = std::numeric_limits<double>::max();
        const Rect beyond = step < 0 ? Rect{band.box.left, -kFar, band.box.right, start}
                                     : Rect{band.box.left, start, band.box.right, kFar};
        std::vector<const Line*> lines;
        for (const Line& line : m_page.lines)
            if (isWithin(line, beyond))
                lines.push_back(&line);
        std::sort(lines.begin(), lines.end(),
                  [&](const Line* a, const Line* b) { return step * a->box.centerY() < step * b->box.centerY(); });
        double end = start;
        for (const Line* line : lines) {
            const bool isCut =
                std::all_of(band.edges.begin(), band.edges.end(), [&](double x) { return isCrossedBy(*line, x); });
            const double blank = step < 0 ? end - line->box.bottom : line->box.top - end;
            if (isCut || blank > std::max(m_parameters.groundRowBlank * line->fontSize, padding) ||
                isAnyBetween(rules, end, step < 0 ? line->box.bottom : line->box.top))
                break;
            end = step < 0 ? std::min(end, line->box.top) : std::max(end, line->box.bottom);
        }
        return end;
    }

    /// The space above a single line in the middle of the band, and a little more: rows beside it leave as much.
    double paddingOf(const GroundBand& band) const {
        constexpr double kSlack = 1.2;
        const auto line = std::find_if(m_page.lines.begin(), m_page.lines.end(),
                                       [&](const Line& candidate) { return isWithin(candidate, band.box); });
        return line == m_page.lines.end() ? 0 : kSlack * (band.box.height() - line->box.height()) / 2;
    }

    /// The heights of the rules that are as wide as the band.
    std::vector<double> rulesAcross(const GroundBand& band) const {
        std::vector<double> heights;
        for (const BorderLine& line : m_drawn)
            if (line.direction == RuleDirection::Horizontal && isNear(line.from, band.box.left, m_parameters.endSnap) &&
                isNear(line.to, band.box.right, m_parameters.endSnap))
                heights.push_back(line.position);
        return heights;
    }

    static bool isAnyBetween(const std::vector<double>& heights, double a, double b) {
        return std::any_of(heights.begin(), heights.end(),
                           [&](double y) { return y > std::min(a, b) && y < std::max(a, b); });
    }

    void addAcross(double y, const Rect& box) {
        const bool cutsText = std::any_of(m_page.lines.begin(), m_page.lines.end(), [&](const Line& line) {
            const double reach = m_parameters.straddleHeight * line.box.height();
            return line.box.left < box.right && line.box.right > box.left && line.box.top + reach < y &&
                   line.box.bottom - reach > y;
        });
        if (!cutsText)
            m_lines.push_back({RuleDirection::Horizontal, y, box.left, box.right, false, {}});
    }

    void addDown(const std::vector<double>& edges, const Rect& box) {
        for (const double x : edges)
            m_lines.push_back({RuleDirection::Vertical, x, box.top, box.bottom, false, {}});
        for (const double x : {box.left, box.right})
            m_lines.push_back({RuleDirection::Vertical, x, box.top, box.bottom, false, {}});
    }

    const PageText& m_page;
    const std::vector<BorderLine>& m_drawn;
    const TableParameters::Tables& m_parameters;
    std::vector<BorderLine> m_lines;
};

} // namespace

std::vector<BorderLine> linesOfGrounds(const PageText& page, const std::vector<BorderLine>& drawn,
                                       const TableParameters::Tables& parameters) {
    return BandReader(page, drawn, parameters).read();
}

} // namespace orvane::layout
