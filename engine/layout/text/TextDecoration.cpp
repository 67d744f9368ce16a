#include "layout/text/TextDecoration.h"

#include "layout/support/BoxIndex.h"
#include "layout/text/RuleBox.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

using document::BorderKind;
using document::UnderlineKind;

UnderlineKind underlineOf(const Rule& rule, double size, const TextParameters::Decoration& limits) {
    switch (rule.kind) {
    case BorderKind::Double:
        return UnderlineKind::Double;
    case BorderKind::Wave:
        return UnderlineKind::Wavy;
    case BorderKind::Dotted:
        return UnderlineKind::Dotted;
    case BorderKind::Dashed:
        return UnderlineKind::Dashed;
    default:
        return rule.width >= limits.thickUnderline * size ? UnderlineKind::Thick : UnderlineKind::Single;
    }
}

/// The clusters of a line that lie over `from` to `to`, as first and one past the last.
struct Stretch {
    std::size_t first = 0;
    std::size_t last = 0;
    bool isEmpty() const { return first >= last; }
};

class Decorator {
public:
    Decorator(const std::vector<TextFrame>& frames, std::vector<Rule>& rules, std::vector<Ground>& grounds,
              const std::vector<pdf::Link>& links, const TextParameters::Decoration& limits)
        : m_frames(frames)
        , m_rules(rules)
        , m_grounds(grounds)
        , m_links(links)
        , m_limits(limits)
        , m_ruleIndex(limits.indexStep)
        , m_groundIndex(limits.indexStep)
        , m_linkIndex(limits.indexStep) {
        for (std::size_t i = 0; i < rules.size(); ++i)
            m_ruleIndex.add(boxOf(rules[i]), i);
        for (std::size_t i = 0; i < grounds.size(); ++i)
            m_groundIndex.add(grounds[i].box, i);
        for (std::size_t i = 0; i < links.size(); ++i)
            for (const Rect& box : links[i].boxes)
                m_linkIndex.add(box, i);
    }

    void decorate(TextRow& line) {
        const TextFrame& frame = m_frames[line.frame];
        const double size = line.fontSize;
        const Rect box = frame.boxToPage(line.clusters.front().start, line.clusters.back().end, line.baseline - size,
                                         line.baseline + m_limits.underlineReach * size);
        m_ruleIndex.visit(box, [&](std::size_t i) { considerRule(line, frame, i); });
        m_groundIndex.visit(box, [&](std::size_t i) { considerGround(line, frame, m_grounds[i]); });
        m_linkIndex.visit(box, [&](std::size_t i) { considerLink(line, frame, i); });
    }

private:
    static Stretch stretchOver(const TextRow& line, double from, double to) {
        const auto isIn = [&](const Cluster& c) { return c.center() >= from && c.center() <= to; };
        const auto first = std::find_if(line.clusters.begin(), line.clusters.end(), isIn);
        const auto last = std::find_if_not(first, line.clusters.end(), isIn);
        return {static_cast<std::size_t>(first - line.clusters.begin()),
                static_cast<std::size_t>(last - line.clusters.begin())};
    }

    /// Whether `from` to `to` begins and ends (nearly) where the stretch does, so that it was made for it.
    static bool fits(const TextRow& line, Stretch stretch, double from, double to, double slack) {
        return !stretch.isEmpty() && std::abs(line.clusters[stretch.first].start - from) <= slack &&
               std::abs(line.clusters[stretch.last - 1].end - to) <= slack;
    }

    void considerRule(TextRow& line, const TextFrame& frame, std::size_t index) {
        Rule& rule = m_rules[index];
        const Rect box = frame.boxFromPage(boxOf(rule));
        const double size = line.fontSize;
        const double rise = (line.baseline - (box.top + box.bottom) / 2) / size;
        const double thickest = rule.kind == BorderKind::Double ? m_limits.thickestDouble : m_limits.thickest;
        if (box.width() <= box.height() || rule.width > thickest * size)
            return;
        const Stretch stretch = stretchOver(line, box.left, box.right);
        const bool isUnderline = rise <= m_limits.underlineTop && rise >= -m_limits.underlineReach;
        const bool isStrike = rise >= m_limits.strikeBottom && rise <= m_limits.strikeTop;
        if (!(isUnderline || isStrike) || !fits(line, stretch, box.left, box.right, m_limits.slack * size) ||
            isBorder(rule))
            return;
        for (std::size_t i = stretch.first; i < stretch.last; ++i) {
            Look& look = line.clusters[i].look;
            if (isStrike)
                look.isStruck = true;
            else
                look.underline = underlineOf(rule, size, m_limits);
        }
        rule.isUsed = true;
    }

    /// A rule that meets a rule of the other direction is part of a frame or grid.
    bool isBorder(const Rule& rule) const {
        const double reach = m_limits.borderReach + rule.width / 2;
        const bool isHorizontal = rule.direction == RuleDirection::Horizontal;
        bool meets = false;
        for (const double end : {rule.from, rule.to}) {
            const Point corner = isHorizontal ? Point{end, rule.position} : Point{rule.position, end};
            m_ruleIndex.visit(Rect{corner.x, corner.y, corner.x, corner.y}.inflated(reach), [&](std::size_t i) {
                meets |= m_rules[i].direction != rule.direction && m_rules[i].to - m_rules[i].from > 2 * reach;
            });
        }
        return meets;
    }

    void considerGround(TextRow& line, const TextFrame& frame, Ground& ground) {
        const Rect box = frame.boxFromPage(ground.box);
        const double size = line.fontSize;
        if (ground.color == kWhite || box.height() < m_limits.lowestHighlight * size ||
            box.height() > m_limits.highestHighlight * size || box.top > line.baseline - m_limits.strikeBottom * size ||
            box.bottom < line.baseline)
            return;
        const Stretch stretch = stretchOver(line, box.left, box.right);
        if (!fits(line, stretch, box.left, box.right, m_limits.slack * size))
            return;
        for (std::size_t i = stretch.first; i < stretch.last; ++i)
            line.clusters[i].look.highlight = ground.color;
        ground.isUsed = true;
    }

    void considerLink(TextRow& line, const TextFrame& frame, std::size_t index) {
        for (const Rect& box : m_links[index].boxes) {
            const Rect area = frame.boxFromPage(box);
            for (Cluster& cluster : line.clusters) {
                const double middle = cluster.baseline - m_limits.middleOfText * cluster.size;
                if (area.contains(Point{cluster.center(), middle}))
                    cluster.look.link = static_cast<int>(index);
            }
        }
    }

    const std::vector<TextFrame>& m_frames;
    std::vector<Rule>& m_rules;
    std::vector<Ground>& m_grounds;
    const std::vector<pdf::Link>& m_links;
    const TextParameters::Decoration& m_limits;
    BoxIndex m_ruleIndex;
    BoxIndex m_groundIndex;
    BoxIndex m_linkIndex;
};

} // namespace

void decorateText(std::vector<TextRow>& lines, const std::vector<TextFrame>& frames, std::vector<Rule>& rules,
                  std::vector<Ground>& grounds, const std::vector<pdf::Link>& links, const TextParameters& parameters,
                  Diagnostics&) {
    Decorator decorator(frames, rules, grounds, links, parameters.decoration);
    for (TextRow& line : lines)
        decorator.decorate(line);
}

} // namespace orvane::layout
