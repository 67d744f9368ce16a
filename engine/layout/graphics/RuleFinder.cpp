#include "layout/graphics/RuleFinder.h"

#include "layout/graphics/BroadRules.h"
#include "layout/graphics/GradientMaker.h"
#include "layout/graphics/GroundOutlines.h"
#include "layout/graphics/PathPieces.h"
#include "layout/graphics/RuleMerger.h"
#include "layout/support/CoverageGrid.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

document::BorderKind kindOf(const pdf::StrokeStyle& stroke, const GraphicsParameters::Rules& limits) {
    if (stroke.dash.empty() || std::all_of(stroke.dash.begin(), stroke.dash.end(), [](double d) { return d <= 0; }))
        return document::BorderKind::Single;
    return stroke.dash.front() <= limits.dotLength * std::max(stroke.width, limits.thinnest)
               ? document::BorderKind::Dotted
               : document::BorderKind::Dashed;
}

constexpr double kBarFill = 0.9; ///< of its box that a bar fills

/// Turns the paths of a page into single pieces of rules and into grounds.
class PathReader {
public:
    PathReader(const pdf::PageContent& page, const GraphicsParameters& parameters, RuledPage& result)
        : m_page(page)
        , m_limits(parameters.rules)
        , m_gradients(parameters.gradients)
        , m_result(result) {}

    void read() {
        m_result.isTaken.assign(m_page.paths.size(), false);
        for (std::size_t i = 0; i < m_page.paths.size(); ++i)
            if (m_page.paths[i].visibility == pdf::Visibility::Visible)
                m_result.isTaken[i] = readPath(m_page.paths[i]);
    }

private:
    /// False when some part of the path is neither rule nor ground; nothing is taken of it then.
    bool readPath(const pdf::Path& path) {
        const std::size_t ruleCount = m_result.rules.size(), groundCount = m_result.grounds.size();
        const std::vector<Subpath> subpaths = takeApart(path, m_limits.straightness);
        // Viewers widen a thin box to a whole pixel where it is all of a path, and only there.
        const RulePaint paint = subpaths.size() > 1 ? RulePaint::Filled : RulePaint::Stroked;
        const bool isWhole = std::all_of(subpaths.begin(), subpaths.end(), [&](const Subpath& subpath) {
            return (!path.fill || readFill(subpath, path, paint)) && (!path.stroke || readStroke(subpath, path));
        });
        if (!isWhole) {
            m_result.rules.resize(ruleCount);
            m_result.grounds.resize(groundCount);
        }
        return isWhole;
    }

    bool readFill(const Subpath& subpath, const pdf::Path& path, RulePaint paint) {
        if (!subpath.rectangle && !isBar(subpath))
            return subpath.box.width() <= 0 || subpath.box.height() <= 0;
        const Rect box = subpath.box.intersected(path.clip);
        if (box.isEmpty())
            return true;
        const double thickness = std::min(box.width(), box.height());
        const double length = std::max(box.width(), box.height());
        if (isRule(thickness, length))
            addRule(box, thickness, path.fill->color, document::BorderKind::Single, paint, path.paintOrder);
        else
            m_result.grounds.push_back({box, path.fill->color, path.fill->opacity, false, path.paintOrder,
                                        gradientIn(box, path, m_gradients)});
        return true;
    }

    /// Outlines of more lines than four are shapes of drawings, unless they fill a box as thin as a rule: typesetters
    /// begin such in the middle of a side, and mitre their ends.
    bool isBar(const Subpath& subpath) const {
        const Rect& box = subpath.box;
        return !subpath.hasCurves && std::min(box.width(), box.height()) <= m_limits.thickest &&
               areaWithin(subpath.lines) >= kBarFill * box.area();
    }

    bool isRule(double thickness, double length) const {
        return thickness <= m_limits.thickest
                   ? length >= m_limits.slenderness * thickness
                   : thickness <= m_limits.broadest && length >= m_limits.broadLength * thickness;
    }

    bool readStroke(const Subpath& subpath, const pdf::Path& path) {
        if (subpath.hasCurves && !subpath.rectangle)
            return false;
        const document::BorderKind kind = kindOf(*path.stroke, m_limits);
        const double width = std::max(path.stroke->width, m_limits.thinnest);
        // A ground has no gaps.
        if (width > m_limits.thickest && kind != document::BorderKind::Single)
            return false;
        for (const PathLine& line : subpath.hasCurves ? sidesOf(*subpath.rectangle) : subpath.lines) {
            const Rect box{std::min(line.from.x, line.to.x), std::min(line.from.y, line.to.y),
                           std::max(line.from.x, line.to.x), std::max(line.from.y, line.to.y)};
            if (!isStraight(box, subpath.box))
                return false;
            const Rect seen = box.intersected(path.clip.inflated(m_limits.straightness));
            if (seen.right < seen.left || seen.bottom < seen.top)
                continue;
            if (width <= m_limits.thickest || isRule(width, std::max(seen.width(), seen.height())))
                addRule(seen, width, path.stroke->color, kind, RulePaint::Stroked, path.paintOrder);
            else
                m_result.grounds.push_back({inked(seen, width), path.stroke->color, path.stroke->opacity, false,
                                            path.paintOrder, std::nullopt});
        }
        return true;
    }

    /// Level or plumb. Of an outline in very short lines each is nearly so, though the whole is a curve or a slope.
    bool isStraight(const Rect& line, const Rect& whole) const {
        const double rise = std::min(line.width(), line.height()), length = std::max(line.width(), line.height());
        const bool isWholeThin = std::min(whole.width(), whole.height()) <= m_limits.straightness;
        return rise <= m_limits.straightness && (isWholeThin || rise <= m_limits.steepest * length);
    }

    static std::vector<PathLine> sidesOf(const Rect& box) {
        return {{{box.left, box.top}, {box.right, box.top}},
                {{box.right, box.top}, {box.right, box.bottom}},
                {{box.left, box.bottom}, {box.right, box.bottom}},
                {{box.left, box.top}, {box.left, box.bottom}}};
    }

    /// What the stroke of a broad pen covers.
    static Rect inked(const Rect& line, double width) {
        return line.width() >= line.height()
                   ? Rect{line.left, line.centerY() - width / 2, line.right, line.centerY() + width / 2}
                   : Rect{line.centerX() - width / 2, line.top, line.centerX() + width / 2, line.bottom};
    }

    void addRule(const Rect& box, double width, Color color, document::BorderKind kind, RulePaint paint,
                 std::uint32_t paintOrder) {
        Rule rule;
        rule.direction = box.width() >= box.height() ? RuleDirection::Horizontal : RuleDirection::Vertical;
        const bool isHorizontal = rule.direction == RuleDirection::Horizontal;
        rule.position = isHorizontal ? box.centerY() : box.centerX();
        rule.from = isHorizontal ? box.left : box.top;
        rule.to = isHorizontal ? box.right : box.bottom;
        rule.width = width;
        rule.color = color;
        rule.kind = kind;
        rule.paint = paint;
        rule.paintOrder = paintOrder;
        m_result.rules.push_back(rule);
    }

    const pdf::PageContent& m_page;
    const GraphicsParameters::Rules& m_limits;
    const GraphicsParameters::Gradients& m_gradients;
    RuledPage& m_result;
};

/// White rectangles on the bare page say nothing; on a ground they are one of their own.
void dropPaper(std::vector<Ground>& grounds, const pdf::PageContent& page, const GraphicsParameters::Rules& limits) {
    CoverageGrid colored(page.width, page.height, limits.coverCell);
    std::erase_if(grounds, [&](const Ground& ground) {
        const bool isPaper = ground.opacity <= 0 || (ground.color == kWhite && colored.coveredShare(ground.box) <= 0);
        if (!isPaper)
            colored.cover(ground.box);
        return isPaper;
    });
}

} // namespace

RuledPage findRules(const pdf::PageContent& page, const GraphicsParameters& parameters, Diagnostics&) {
    RuledPage result;
    PathReader(page, parameters, result).read();
    std::erase_if(result.rules, [](const Rule& rule) { return rule.color == kWhite; });
    takeBroadRules(result.rules, result.grounds, parameters.rules);
    mergeRules(result.rules, parameters);
    dropPaper(result.grounds, page, parameters.rules);
    dropGroundOutlines(result.rules, result.grounds, parameters.rules);
    return result;
}

} // namespace orvane::layout
