#include "layout/structure/NumberingMaker.h"

#include "layout/support/Tally.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

using document::NumberFormat;
using document::NumberingLevel;

/// "%1." for the first level; "%1.%2" below it where the numbers repeat those above; "2.%1" and below it "2.%1.%2"
/// where the first of these is not the list's.
std::string labelText(const ListItem& item) {
    const ListLabel& label = item.label;
    if (label.format == NumberFormat::Bullet)
        return label.bullet;
    std::string text = label.before;
    const int count = static_cast<int>(label.numbers.size());
    for (int i = 0; i + 1 < count; ++i) {
        // The list's own levels are the innermost ones: what stands before them is the same in all its labels.
        const int level = item.level + 2 + i - count;
        text += item.isNested && level > 0 ? fmt::format("%{}.", level)
                                           : fmt::format("{}.", label.numbers[static_cast<std::size_t>(i)]);
    }
    return text + fmt::format("%{}", item.level + 1) + label.after;
}

/// Indents of one item, from its column's start edge.
struct ItemIndents {
    double start = 0;
    double firstLine = 0;
};

ItemIndents indentsOf(const ListItem& item) {
    const ParagraphDraft& text = item.paragraph->pieces.front().text;
    const bool hangs = text.firstLine < 0;
    if (text.lines.size() > 1 || !item.label.isStrong || hangs)
        return {item.label.labelStart - text.firstLine, text.firstLine};
    return {item.label.textStart, item.label.labelStart - item.label.textStart};
}

/// Where the texts of most items start, further behind their labels than a blank; nothing where they start anywhere.
std::optional<Twips> textStartOf(const std::vector<const ListItem*>& items, double tolerance) {
    std::vector<double> starts;
    for (const ListItem* item : items)
        if (item->label.isSeparated)
            starts.push_back(item->label.textStart);
    const std::optional<double> usual = mostFrequent(starts, tolerance);
    if (!usual)
        return std::nullopt;
    const auto alike = std::count_if(starts.begin(), starts.end(),
                                     [&](double start) { return std::abs(start - *usual) <= tolerance; });
    return 2 * static_cast<std::size_t>(alike) > items.size() ? std::optional(twipsFromPoints(*usual)) : std::nullopt;
}

bool hasSeveralLines(const ListItem* item) {
    return item->paragraph->pieces.front().text.lines.size() > 1;
}

/// Those of several lines tell where the lines after the first begin; the others follow them.
void setIndents(NumberingLevel& level, const std::vector<const ListItem*>& items, double tolerance) {
    const bool isTold = std::any_of(items.begin(), items.end(), hasSeveralLines);
    std::vector<double> starts, firstLines;
    for (const ListItem* item : items) {
        if (isTold && !hasSeveralLines(item))
            continue;
        const ItemIndents indents = indentsOf(*item);
        starts.push_back(indents.start);
        firstLines.push_back(indents.firstLine);
    }
    level.indentStart = twipsFromPoints(mostFrequent(std::move(starts), tolerance).value_or(0));
    level.firstLine = twipsFromPoints(mostFrequent(std::move(firstLines), tolerance).value_or(0));
    if (level.firstLine >= Twips(0))
        level.textStart = textStartOf(items, tolerance);
}

NumberingLevel levelOf(const std::vector<const ListItem*>& items, double tolerance) {
    const ListItem& first = *items.front();
    NumberingLevel level;
    level.format = first.label.format;
    level.text = labelText(first);
    const bool mayBeZero = level.format == document::NumberFormat::Decimal; // no other signs count from there
    level.start = std::max(mayBeZero ? 0 : 1, first.label.number());
    setIndents(level, items, tolerance);
    return level;
}

const Span& labelSpan(const ListItem& item) {
    return item.paragraph->firstLine().words.front().spans.front();
}

} // namespace

void makeNumbering(DocumentDraft& draft, const ListGroup& group, const LayoutParameters& parameters) {
    DraftNumbering made;
    int deepest = 0;
    for (const ListItem& item : group.items)
        deepest = std::max(deepest, item.level);
    for (int level = 0; level <= deepest; ++level) {
        std::vector<const ListItem*> items;
        for (const ListItem& item : group.items)
            if (item.level == level)
                items.push_back(&item);
        if (items.empty()) {
            made.numbering.levels.emplace_back();
            made.labels.emplace_back();
            continue;
        }
        made.numbering.levels.push_back(levelOf(items, parameters.lists.sameIndent));
        made.labels.push_back(LabelLook{items.front()->paragraph->pieces.front().page, labelSpan(*items.front())});
    }
    for (const ListItem& item : group.items) {
        if (item.paragraph->role == ParagraphRole::Body)
            item.paragraph->role = ParagraphRole::ListItem;
        item.paragraph->list = document::ListReference{draft.numberings.size(), item.level};
        item.paragraph->labelWords = 1;
    }
    draft.numberings.push_back(std::move(made));
}

} // namespace orvane::layout
