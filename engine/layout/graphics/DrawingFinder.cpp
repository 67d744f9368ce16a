#include "layout/graphics/DrawingFinder.h"

#include "layout/graphics/BarFinder.h"
#include "layout/graphics/ChartFrames.h"
#include "layout/graphics/ConnectorFinder.h"
#include "layout/graphics/GradientMaker.h"
#include "layout/tables/CellComponents.h"
#include "layout/text/RuleBox.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace orvane::layout {
namespace {

/// What of a path is seen; empty when nothing is.
Rect seenBox(const pdf::Path& path, const pdf::PageContent& page) {
    const bool isPainted = (path.fill && path.fill->opacity > 0) || (path.stroke && path.stroke->opacity > 0);
    const bool isPaper = !path.stroke && path.fill && path.fill->color == kWhite && !path.fill->isPattern;
    if (path.visibility != pdf::Visibility::Visible || !isPainted || isPaper)
        return {};
    const double half = path.stroke ? std::max(path.stroke->width, 0.2) / 2 : 0;
    return path.box.inflated(half).intersected(path.clip).intersected({0, 0, page.width, page.height});
}

class DrawingBuilder {
public:
    DrawingBuilder(const pdf::PageContent& page, const std::vector<bool>& isRuling, PageText& text,
                   const GraphicsParameters& parameters)
        : m_page(page)
        , m_isRuling(isRuling)
        , m_text(text)
        , m_limits(parameters.drawings)
        , m_barLimits(parameters.bars)
        , m_chartLimits(parameters.charts)
        , m_gradientLimits(parameters.gradients) {}

    std::vector<Figure> build() {
        groupPaths();
        putSpecksAside();
        takeBars();
        for (int pass = 0; pass < m_limits.growthPasses && takeRulesAndGrounds(); ++pass) {
        }
        uniteOverlapping();
        uniteConnected();
        uniteFramed();
        uniteOverlapping();
        for (Figure& drawing : m_drawings)
            drawing.isBackground = isPageWide(drawing.box) || liesUnderText(drawing.box, m_text.lines, m_limits);
        useUpRulesAndGrounds();
        return std::move(m_drawings);
    }

private:
    bool isPageWide(const Rect& box) const {
        return box.area() >= m_limits.backgroundShare * m_page.width * m_page.height;
    }

    void groupPaths() {
        CellComponents components(m_page.width, m_page.height, m_limits.gap);
        std::vector<std::pair<std::size_t, Rect>> seeds;
        for (std::size_t i = 0; i < m_page.paths.size(); ++i) {
            const Rect box = seenBox(m_page.paths[i], m_page);
            if (box.isEmpty() || (m_isRuling[i] && !isPicturesque(m_page.paths[i], box)))
                continue;
            if (isPageWide(box)) {
                m_drawings.push_back(drawingOf(i, box)); // on its own, or it would swallow all others
                continue;
            }
            components.add(box);
            seeds.emplace_back(i, box);
        }
        components.connect();
        const std::size_t first = m_drawings.size();
        m_drawings.resize(first + components.count());
        for (const auto& [path, box] : seeds) {
            const int component = components.componentAt({box.centerX(), box.centerY()});
            Figure& drawing = m_drawings[first + static_cast<std::size_t>(component)];
            if (drawing.paths.empty())
                drawing = drawingOf(path, box);
            else
                drawing.paths.push_back(path);
            drawing.box = drawing.box.united(box);
        }
    }

    /// A ground that nothing is written on, with a pattern or a shading that cannot be told otherwise.
    bool isPicturesque(const pdf::Path& path, const Rect& box) const {
        return path.fill && path.fill->isPattern && !gradientIn(box, path, m_gradientLimits) &&
               std::min(box.width(), box.height()) >= m_limits.smallest && !isPageWide(box) &&
               std::none_of(m_text.lines.begin(), m_text.lines.end(), [&](const Line& line) {
                   return box.contains(Point{line.box.centerX(), line.box.centerY()});
               });
    }

    /// What is too small to be a drawing by itself. In a chart it may be a point.
    void putSpecksAside() {
        const auto isSpeck = [&](const Figure& drawing) {
            return std::max(drawing.box.width(), drawing.box.height()) < m_limits.smallest;
        };
        std::copy_if(m_drawings.begin(), m_drawings.end(), std::back_inserter(m_specks), isSpeck);
        std::erase_if(m_drawings, isSpeck);
    }

    /// Charts of bars may be nothing but grounds and rules.
    void takeBars() {
        for (const Rect& bars : findBars(m_text, m_barLimits)) {
            Figure drawing;
            drawing.box = bars;
            drawing.needsPainting = true;
            for (std::size_t i = 0; i < m_page.paths.size(); ++i)
                if (m_isRuling[i] && m_page.paths[i].fill && bars.intersects(m_page.paths[i].box))
                    drawing.paths.push_back(i);
            if (drawing.paths.empty())
                continue;
            drawing.paintOrder = m_page.paths[drawing.paths.front()].paintOrder;
            m_drawings.push_back(std::move(drawing));
        }
    }

    Figure drawingOf(std::size_t path, const Rect& box) const {
        Figure drawing;
        drawing.box = box;
        drawing.paths.push_back(path);
        drawing.paintOrder = m_page.paths[path].paintOrder;
        drawing.needsPainting = true;
        return drawing;
    }

    /// Axes, bars and frames reach a little beyond the shapes they belong to. Returns whether a drawing grew.
    bool takeRulesAndGrounds() {
        bool hasGrown = false;
        const auto take = [&](const Rect& item) {
            for (Figure& drawing : m_drawings) {
                if (isPageWide(drawing.box) || drawing.box.contains(item) || !belongs(item, drawing.box))
                    continue;
                drawing.box = drawing.box.united(item);
                hasGrown = true;
            }
        };
        for (const Rule& rule : m_text.rules)
            if (!rule.isUsed)
                take(boxOf(rule));
        for (const Ground& ground : m_text.grounds)
            if (!ground.isUsed)
                take(ground.box);
        return hasGrown;
    }

    /// Most of the item's length lies beside the drawing, and close to it.
    bool belongs(const Rect& item, const Rect& drawing) const {
        const Rect reach = drawing.inflated(m_limits.growth);
        if (!reach.intersects(item))
            return false;
        const Rect inside = item.intersected(reach);
        return inside.width() >= m_limits.insideShare * item.width() &&
               inside.height() >= m_limits.insideShare * item.height();
    }

    void uniteOverlapping() {
        std::stable_sort(m_drawings.begin(), m_drawings.end(),
                         [](const Figure& a, const Figure& b) { return a.box.area() > b.box.area(); });
        // Those over the page, which come first, take in no other; there may be thousands.
        const auto pageWide = std::count_if(m_drawings.begin(), m_drawings.end(),
                                            [&](const Figure& drawing) { return isPageWide(drawing.box); });
        std::vector<Figure> united;
        for (Figure& drawing : m_drawings) {
            const auto first = united.begin() + std::min<std::ptrdiff_t>(pageWide, std::ssize(united));
            const auto host = std::find_if(first, united.end(), [&](const Figure& other) {
                return !isPageWide(other.box) &&
                       other.box.intersected(drawing.box).area() >= m_limits.overlapShare * drawing.box.area();
            });
            if (host == united.end()) {
                united.push_back(std::move(drawing));
                continue;
            }
            takeOver(*host, drawing);
        }
        m_drawings = std::move(united);
    }

    /// Shapes and what leads from one to the other are one drawing, unless text runs through it.
    void uniteConnected() {
        std::vector<bool> isGone(m_drawings.size(), false);
        for (const ConnectedDrawings& connected : findConnected(m_drawings, m_text.rules, m_limits)) {
            if (isPageWide(connected.box) || liesUnderText(connected.box, m_text.lines, m_limits))
                continue;
            Figure& host = m_drawings[connected.drawings.front()];
            host.box = connected.box;
            for (std::size_t i = 1; i < connected.drawings.size(); ++i) {
                takeOver(host, m_drawings[connected.drawings[i]]);
                isGone[connected.drawings[i]] = true;
            }
        }
        std::size_t index = 0;
        std::erase_if(m_drawings, [&](const Figure&) { return isGone[index++]; });
    }

    /// Curves, points and the legend of a chart.
    void uniteFramed() {
        if (m_drawings.empty() && m_specks.empty())
            return;
        for (const Rect& frame : findChartFrames(m_text, m_chartLimits)) {
            Figure chart;
            const auto takeWithin = [&](const Figure& drawing) {
                const bool isWithin =
                    !isPageWide(drawing.box) && frame.contains(Point{drawing.box.centerX(), drawing.box.centerY()});
                if (isWithin && chart.paths.empty())
                    chart = drawing;
                else if (isWithin)
                    takeOver(chart, drawing);
                return isWithin;
            };
            std::erase_if(m_drawings, takeWithin);
            std::erase_if(m_specks, takeWithin);
            if (chart.paths.empty())
                continue;
            chart.box = chart.box.united(frame);
            m_drawings.push_back(std::move(chart));
        }
    }

    static void takeOver(Figure& host, const Figure& other) {
        host.box = host.box.united(other.box);
        host.paintOrder = std::min(host.paintOrder, other.paintOrder);
        host.paths.insert(host.paths.end(), other.paths.begin(), other.paths.end());
    }

    /// What lies over a background belongs to the text there, but for what the background itself is made of.
    void useUpRulesAndGrounds() {
        for (const Figure& drawing : m_drawings) {
            const Rect area = drawing.box.inflated(m_limits.reach);
            const std::set<std::uint32_t> own = ordersOf(drawing);
            const auto isPart = [&](const Rect& box, std::uint32_t paintOrder) {
                return area.contains(box) && (!drawing.isBackground || own.count(paintOrder) > 0);
            };
            for (Rule& rule : m_text.rules)
                rule.isUsed |= isPart(boxOf(rule), rule.paintOrder);
            for (Ground& ground : m_text.grounds)
                ground.isUsed |= isPart(ground.box, ground.paintOrder);
        }
    }

    /// When its paths were painted.
    std::set<std::uint32_t> ordersOf(const Figure& drawing) const {
        std::set<std::uint32_t> orders;
        for (const std::size_t path : drawing.paths)
            orders.insert(m_page.paths[path].paintOrder);
        return orders;
    }

    const pdf::PageContent& m_page;
    const std::vector<bool>& m_isRuling;
    PageText& m_text;
    const GraphicsParameters::Drawings& m_limits;
    const GraphicsParameters::Bars& m_barLimits;
    const GraphicsParameters::Charts& m_chartLimits;
    const GraphicsParameters::Gradients& m_gradientLimits;
    std::vector<Figure> m_drawings;
    std::vector<Figure> m_specks;
};

/// Whether so many words of the line follow each other with no more than blanks between them, over `width` or more. The
/// labels of an axis stand in one line, too, but apart.
bool hasProse(const Line& line, double width, const GraphicsParameters::Drawings& limits) {
    Rect run;
    unsigned words = 0;
    for (const Word& word : line.words) {
        const bool isApart = words == 0 || word.gapBefore == Gap::Tab;
        run = isApart ? word.box : run.united(word.box);
        words = isApart ? 1 : words + 1;
        if (words >= limits.wordsOfProse && run.width() >= width)
            return true;
    }
    return false;
}

/// Whether the line is one text, wherever that is: nothing in it stands apart but what a leader leads to.
bool isOneText(const Line& line) {
    return std::none_of(line.words.begin() + 1, line.words.end(), [](const Word& word) {
        return word.gapBefore == Gap::Tab && word.leaderBefore == document::TabLeader::None;
    });
}

/// Whether lines run over the sides of the box as if it were not there: most of those in it, and some at least.
bool isRunOver(const Rect& box, const std::vector<Line>& lines, const GraphicsParameters::Drawings& limits) {
    constexpr std::size_t kLeastRunOver = 3;
    std::size_t within = 0, over = 0;
    for (const Line& line : lines) {
        if (!box.contains(Point{line.box.centerX(), line.box.centerY()}))
            continue;
        ++within;
        const double beyond = std::max(box.left - line.box.left, line.box.right - box.right);
        over += isOneText(line) && beyond > limits.reach ? 1 : 0;
    }
    return over >= kLeastRunOver && 2 * over > within;
}

} // namespace

bool liesUnderText(const Rect& box, const std::vector<Line>& lines, const GraphicsParameters::Drawings& limits) {
    return isRunOver(box, lines, limits) || std::any_of(lines.begin(), lines.end(), [&](const Line& line) {
               return box.contains(Point{line.box.centerX(), line.box.centerY()}) &&
                      hasProse(line, limits.proseShare * box.width(), limits);
           });
}

std::vector<Figure> findDrawings(const pdf::PageContent& page, const std::vector<bool>& isRuling, PageText& text,
                                 const GraphicsParameters& parameters, Diagnostics&) {
    return DrawingBuilder(page, isRuling, text, parameters).build();
}

} // namespace orvane::layout
