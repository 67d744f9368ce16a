#include "layout/structure/ListGroups.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

constexpr std::size_t kMostLevels = 9;
constexpr std::size_t kMostOpen = 4; ///< lists that may go on after others stood between

bool hasSameParents(const ListLabel& a, const ListLabel& b) {
    return a.numbers.size() == b.numbers.size() &&
           std::equal(a.numbers.begin(), a.numbers.end() - 1, b.numbers.begin());
}

bool isNext(const ListLabel& before, const ListLabel& next) {
    if (before.format == document::NumberFormat::Bullet)
        return true;
    return hasSameParents(before, next) && next.number() == before.number() + 1;
}

/// "2.1" below the item "2".
bool isChildOf(const ListLabel& child, const ListLabel& parent) {
    return child.numbers.size() == parent.numbers.size() + 1 && !parent.numbers.empty() &&
           std::equal(parent.numbers.begin(), parent.numbers.end(), child.numbers.begin()) &&
           child.format == document::NumberFormat::Decimal && parent.format == document::NumberFormat::Decimal &&
           child.before == parent.before;
}

/// Whether a label can only be that of an item: "1.48" below "1.47", "2" below "1" are what tables are made of.
bool countsCells(const ListLabel& label) {
    return label.isStrong && label.numbers.size() == 1 && !label.isBare() &&
           label.after.find_first_of("0123456789") == std::string::npos;
}

} // namespace

bool ListGrouper::isAtSameEdge(const ListLabel& a, const ListLabel& b) const {
    const double tolerance = m_parameters.lists.sameIndent;
    // Numbers may be set against their right edge, then their texts stand in line.
    return std::abs(a.labelStart - b.labelStart) <= tolerance || std::abs(a.textStart - b.textStart) <= tolerance;
}

void ListGrouper::add(DraftParagraph& paragraph) {
    const std::vector<ListLabel> readings = readListLabel(paragraph, m_blanks, m_parameters);
    for (const ListLabel& label : readings)
        if (goOn(paragraph, label))
            return;
    for (const ListLabel& label : readings)
        if (nest(paragraph, label))
            return;
    if (!readings.empty())
        start(paragraph, readings.front());
}

void ListGrouper::startCell() {
    for (OpenGroup& open : m_open)
        open.isOfCellAbove = true;
}

bool ListGrouper::goOn(DraftParagraph& paragraph, const ListLabel& label) {
    for (std::size_t i = m_open.size(); i-- > 0;) {
        OpenGroup& open = m_open[i];
        if (open.isOfCellAbove && !countsCells(label))
            continue;
        for (std::size_t level = open.levels.size(); level-- > 0;) {
            const ListLabel& before = open.levels[level].label;
            if (!isSameKind(before, label) || !isAtSameEdge(before, label) || !isNext(before, label))
                continue;
            open.levels.resize(level + 1);
            open.levels.back().label = label;
            put(open, paragraph, label);
            // What was opened later than the list that goes on is over.
            m_open.resize(i + 1);
            return true;
        }
    }
    return false;
}

bool ListGrouper::nest(DraftParagraph& paragraph, const ListLabel& label) {
    if (m_open.empty() || m_open.back().isOfCellAbove)
        return false;
    OpenGroup& open = m_open.back();
    // Back out of deeper levels until the one above the label.
    std::size_t depth = open.levels.size();
    const double tolerance = m_parameters.lists.sameIndent;
    const auto isBelow = [&](const ListLabel& parent) {
        // "1." begins behind "10." where both are set against their right edge.
        const bool isInLine = isSameKind(parent, label) && std::abs(parent.textStart - label.textStart) <= tolerance;
        return isChildOf(label, parent) || (label.labelStart > parent.labelStart + tolerance && !isInLine);
    };
    while (depth > 0 && !isBelow(open.levels[depth - 1].label))
        --depth;
    const bool startsAnew = label.format == document::NumberFormat::Bullet || label.number() == 1;
    if (depth == 0 || depth >= kMostLevels || !startsAnew)
        return false;
    const bool isChild = isChildOf(label, open.levels[depth - 1].label);
    if (label.numbers.size() > 1 && !isChild)
        return false;
    // A level keeps its kind of label all through the list.
    if (depth < open.kinds.size() && !isSameKind(open.kinds[depth], label))
        return false;
    open.levels.resize(depth);
    open.levels.push_back({label, m_runs++, isChild});
    put(open, paragraph, label);
    return true;
}

void ListGrouper::start(DraftParagraph& paragraph, const ListLabel& label) {
    if (m_open.size() == kMostOpen)
        m_open.erase(m_open.begin());
    m_open.push_back({m_groups.size(), {{label, m_runs++, false}}, {}});
    m_groups.emplace_back();
    put(m_open.back(), paragraph, label);
}

void ListGrouper::put(OpenGroup& open, DraftParagraph& paragraph, const ListLabel& label) {
    const std::size_t level = open.levels.size() - 1;
    open.isOfCellAbove = false;
    if (open.kinds.size() <= level)
        open.kinds.resize(level + 1, label);
    m_groups[open.group].items.push_back(
        {&paragraph, label, static_cast<int>(level), open.levels[level].run, open.levels[level].isNested});
}

} // namespace orvane::layout
