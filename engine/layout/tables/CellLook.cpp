#include "layout/tables/CellLook.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// The lines that may border a table, so that its cells need not look at the whole page's.
std::vector<BorderLine> linesWithin(const std::vector<BorderLine>& lines, const Rect& box) {
    std::vector<BorderLine> within;
    for (const BorderLine& line : lines) {
        const bool isHorizontal = line.direction == RuleDirection::Horizontal;
        const double low = isHorizontal ? box.top : box.left;
        const double high = isHorizontal ? box.bottom : box.right;
        const double alongLow = isHorizontal ? box.left : box.top;
        const double alongHigh = isHorizontal ? box.right : box.bottom;
        if (line.position >= low && line.position <= high && overlap(line.from, line.to, alongLow, alongHigh) > 0)
            within.push_back(line);
    }
    return within;
}

/// The colour seen on a ground, over white paper.
Color seenColor(const Ground& ground) {
    const auto blend = [&](std::uint8_t channel) {
        return static_cast<std::uint8_t>(255 - (255 - channel) * ground.opacity + 0.5);
    };
    return {blend(ground.color.red), blend(ground.color.green), blend(ground.color.blue)};
}

/// Whether the rule runs along the side of a cell. What else is drawn in a table, such as the boxes of a form, is none
/// of its borders.
bool isBorder(const Rule& rule, const TableDraft& table, const TableParameters::Tables& parameters) {
    const bool isLevel = rule.direction == RuleDirection::Horizontal;
    return std::any_of(table.cells.begin(), table.cells.end(), [&](const CellDraft& cell) {
        const Rect& box = cell.box;
        const double first = isLevel ? box.top : box.left, last = isLevel ? box.bottom : box.right;
        const double along = isLevel ? overlap(rule.from, rule.to, box.left, box.right)
                                     : overlap(rule.from, rule.to, box.top, box.bottom);
        const double side = isLevel ? box.width() : box.height();
        const double distance = std::min(std::abs(rule.position - first), std::abs(rule.position - last));
        // A field that fills its cell has sides almost as near, but shorter ones.
        return along > 0 &&
               distance <= (along >= parameters.borderShare * side ? parameters.lineSnap : parameters.borderReach);
    });
}

/// Whether the ground is no broader than a border along the side of a cell.
bool isRim(const Ground& ground, const TableDraft& table, const TableParameters::Tables& parameters) {
    const Rect& box = ground.box;
    if (std::min(box.width(), box.height()) > parameters.lineSnap)
        return false;
    Rule rule;
    rule.direction = box.width() > box.height() ? RuleDirection::Horizontal : RuleDirection::Vertical;
    const bool isLevel = rule.direction == RuleDirection::Horizontal;
    rule.position = isLevel ? box.centerY() : box.centerX();
    rule.from = isLevel ? box.left : box.top;
    rule.to = isLevel ? box.right : box.bottom;
    return isBorder(rule, table, parameters);
}

} // namespace

void drawBorders(TableDraft& table, TableEdges edges, std::vector<Rule>& rules, const std::vector<BorderLine>& lines,
                 const TableParameters::Tables& parameters) {
    const double cover = edges == TableEdges::Boxed ? 1 - parameters.missingShare : parameters.borderCover;
    const std::vector<BorderLine> own = linesWithin(lines, table.box.inflated(parameters.lineSnap));
    const auto along = [&](RuleDirection direction, double position, double from, double to) {
        return borderAlong(rules, own, {direction, position, from, to}, cover, parameters);
    };
    for (CellDraft& cell : table.cells) {
        const Rect& box = cell.box;
        cell.borders.top = along(RuleDirection::Horizontal, box.top, box.left, box.right);
        cell.borders.bottom = along(RuleDirection::Horizontal, box.bottom, box.left, box.right);
        cell.borders.left = along(RuleDirection::Vertical, box.left, box.top, box.bottom);
        cell.borders.right = along(RuleDirection::Vertical, box.right, box.top, box.bottom);
    }
    for (const BorderLine& line : own)
        for (const std::size_t index : line.rules)
            rules[index].isUsed |= isBorder(rules[index], table, parameters);
}

void shadeCells(TableDraft& table, std::vector<Ground>& grounds, const TableParameters::Tables& parameters) {
    std::vector<Ground*> own;
    for (Ground& ground : grounds)
        if (!ground.isUsed && ground.box.intersects(table.box))
            own.push_back(&ground);
    std::vector<const Ground*> seen;
    for (CellDraft& cell : table.cells) {
        std::uint32_t topmost = 0;
        for (Ground* ground : own) {
            const double share = ground->box.intersected(cell.box).area() / cell.box.area();
            if (share < parameters.shadingCover)
                continue;
            seen.push_back(ground);
            if (ground->paintOrder < topmost)
                continue;
            topmost = ground->paintOrder;
            cell.shading = seenColor(*ground);
            if (cell.shading == kWhite)
                cell.shading.reset();
        }
    }
    // What covers no cell is drawn in one: a field, a bar.
    std::sort(seen.begin(), seen.end());
    for (Ground* ground : own)
        if (table.box.inflated(parameters.lineSnap).contains(ground->box))
            ground->isUsed |= seenColor(*ground) == kWhite || isRim(*ground, table, parameters) ||
                              std::binary_search(seen.begin(), seen.end(), ground);
}

} // namespace orvane::layout
