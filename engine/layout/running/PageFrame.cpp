#include "layout/running/PageFrame.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

class FrameFinder {
public:
    FrameFinder(const PageText& page, const RunningParameters::RunningHeads& limits)
        : m_page(page)
        , m_slack(limits.frameCorner)
        , m_share(limits.frameShare) {}

    std::vector<const Rule*> find(const BodyRange& body) const {
        std::vector<const Rule*> tops, bottoms, lefts, rights;
        const Rect text = textBox();
        for (const Rule& rule : m_page.rules) {
            if (rule.isUsed || !isLong(rule))
                continue;
            if (rule.direction == RuleDirection::Horizontal) {
                if (rule.position <= body.top)
                    tops.push_back(&rule);
                else if (rule.position >= body.bottom)
                    bottoms.push_back(&rule);
            } else if (rule.position <= text.left)
                lefts.push_back(&rule);
            else if (rule.position >= text.right)
                rights.push_back(&rule);
        }
        for (const Rule* top : tops)
            for (const Rule* left : lefts)
                for (const Rule* right : rights)
                    for (const Rule* bottom : bottoms)
                        if (areFrame(*top, *left, *bottom, *right))
                            return {top, left, bottom, right};
        return {};
    }

private:
    Rect textBox() const {
        Rect box;
        for (const Line& line : m_page.lines)
            box = box.united(line.box);
        return box;
    }

    bool isLong(const Rule& rule) const {
        const double side = rule.direction == RuleDirection::Horizontal ? m_page.width : m_page.height;
        return rule.to - rule.from >= m_share * side;
    }

    bool isNear(double a, double b) const { return std::abs(a - b) <= m_slack; }

    bool areFrame(const Rule& top, const Rule& left, const Rule& bottom, const Rule& right) const {
        const auto spans = [&](const Rule& rule, double from, double to) {
            return isNear(rule.from, from) && isNear(rule.to, to);
        };
        return spans(top, left.position, right.position) && spans(bottom, left.position, right.position) &&
               spans(left, top.position, bottom.position) && spans(right, top.position, bottom.position) &&
               !isMetWithin(top, left, bottom, right);
    }

    bool isMetWithin(const Rule& top, const Rule& left, const Rule& bottom, const Rule& right) const {
        return std::any_of(m_page.rules.begin(), m_page.rules.end(), [&](const Rule& rule) {
            if (rule.direction == RuleDirection::Vertical)
                return rule.position > left.position + m_slack && rule.position < right.position - m_slack &&
                       (isNear(rule.from, top.position) || isNear(rule.to, bottom.position));
            return rule.position > top.position + m_slack && rule.position < bottom.position - m_slack &&
                   (isNear(rule.from, left.position) || isNear(rule.to, right.position));
        });
    }

    const PageText& m_page;
    double m_slack;
    double m_share;
};

} // namespace

std::vector<const Rule*> findPageFrame(const PageText& page, const BodyRange& body,
                                       const RunningParameters::RunningHeads& parameters) {
    return FrameFinder(page, parameters).find(body);
}

} // namespace orvane::layout
