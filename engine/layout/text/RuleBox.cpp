#include "layout/text/RuleBox.h"

namespace orvane::layout {

Rect boxOf(const Rule& rule) {
    const double half = rule.width / 2;
    if (rule.direction == RuleDirection::Horizontal)
        return {rule.from, rule.position - half, rule.to, rule.position + half};
    return {rule.position - half, rule.from, rule.position + half, rule.to};
}

} // namespace orvane::layout
