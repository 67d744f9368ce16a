#include "layout/tables/CellLook.h"

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

} // namespace

void drawBorders(TableDraft& table, std::vector<Rule>& rules, const std::vector<BorderLine>& lines,
                 const TableParameters::Tables& parameters) {
    const std::vector<BorderLine> own = linesWithin(lines, table.box.inflated(parameters.lineSnap));
    const auto along = [&](RuleDirection direction, double position, double from, double to) {
        return borderAlong(rules, own, direction, position, from, to, parameters);
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
            rules[index].isUsed = true;
}

void shadeCells(TableDraft& table, std::vector<Ground>& grounds, const TableParameters::Tables& parameters) {
    std::vector<Ground*> own;
    for (Ground& ground : grounds)
        if (!ground.isUsed && ground.box.intersects(table.box))
            own.push_back(&ground);
    for (CellDraft& cell : table.cells) {
        std::uint32_t topmost = 0;
        for (Ground* ground : own) {
            const double share = ground->box.intersected(cell.box).area() / cell.box.area();
            if (share < parameters.shadingCover || ground->paintOrder < topmost)
                continue;
            topmost = ground->paintOrder;
            cell.shading = seenColor(*ground);
            if (cell.shading == kWhite)
                cell.shading.reset();
        }
    }
    for (Ground* ground : own)
        if (table.box.inflated(parameters.lineSnap).contains(ground->box))
            ground->isUsed = true;
}

} // namespace orvane::layout
