#include "layout/structure/ListFinder.h"

#include "layout/structure/ListGroups.h"
#include "layout/structure/NumberingMaker.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

using Groups = std::vector<ListGroup>;

void move(Groups from, Groups& to) {
    to.insert(to.end(), std::make_move_iterator(from.begin()), std::make_move_iterator(from.end()));
}

/// The items of a flow of text, and those of the tables within it. Of a table each column counts on its own.
class ItemGrouper {
public:
    ItemGrouper(TypedBlanks blanks, const LayoutParameters& parameters)
        : m_blanks(blanks)
        , m_parameters(parameters) {}

    Groups group(std::vector<DraftBlock>& blocks) {
        ListGrouper grouper(m_blanks, m_parameters);
        addTo(grouper, blocks);
        move(grouper.takeGroups(), m_groups);
        return std::move(m_groups);
    }

private:
    void addTo(ListGrouper& grouper, std::vector<DraftBlock>& blocks) {
        for (DraftBlock& block : blocks) {
            DraftParagraph* paragraph = block.paragraph();
            if (paragraph && paragraph->role == ParagraphRole::Body)
                grouper.add(*paragraph);
            else if (DraftTable* table = std::get_if<DraftTable>(&block.value))
                addTable(*table);
        }
    }

    void addTable(DraftTable& table) {
        std::map<int, ListGrouper> columns;
        for (DraftCell& cell : table.cells) {
            ListGrouper& grouper = columns.try_emplace(cell.cell.column, m_blanks, m_parameters).first->second;
            grouper.startCell();
            addTo(grouper, cell.blocks);
        }
        for (auto& [column, grouper] : columns)
            move(grouper.takeGroups(), m_groups);
    }

    TypedBlanks m_blanks;
    const LayoutParameters& m_parameters;
    Groups m_groups;
};

/// Headings count on their own, whatever lists stand between them.
Groups groupHeadings(std::vector<DraftBlock>& blocks, TypedBlanks blanks, const LayoutParameters& parameters) {
    ListGrouper grouper(blanks, parameters);
    for (DraftBlock& block : blocks) {
        DraftParagraph* paragraph = block.paragraph();
        if (paragraph && paragraph->role == ParagraphRole::Heading &&
            paragraph->pieces.front().text.alignment != document::Alignment::Center)
            grouper.add(*paragraph);
    }
    return grouper.takeGroups();
}

bool any(const std::vector<const ListItem*>& run, bool ListLabel::*trait) {
    return std::any_of(run.begin(), run.end(), [trait](const ListItem* item) { return item->label.*trait; });
}

/// Whether so many items, with labels like these, are a list. A single number, or a blank behind the label at the edge
/// of the text, is as likely to be something that was typed.
bool isList(const std::vector<const ListItem*>& run, const StructureParameters::Lists& limits) {
    if (any(run, &ListLabel::isTyped) && !any(run, &ListLabel::hangs))
        return false;
    const bool isStrong = any(run, &ListLabel::isStrong);
    const ListLabel& first = run.front()->label;
    if (first.format == document::NumberFormat::Bullet)
        return isStrong || (run.size() > 1 && first.labelStart > limits.sameIndent);
    if (run.size() == 1)
        return isStrong && !first.isBare() && first.number() == 1 && first.labelStart > limits.sameIndent;
    // "2.1", "2.2": nobody counts sections by mistake.
    const bool isCounted = first.numbers.size() > 1;
    return isStrong || isCounted || first.labelStart > limits.sameIndent;
}

/// Headings that one list numbers: of those only labels that nobody typed are sure.
bool isNumberedByList(const std::vector<const ListItem*>& run) {
    return std::all_of(run.begin(), run.end(), [](const ListItem* item) { return item->label.isSet; }) &&
           run.front()->label.format != document::NumberFormat::Bullet;
}

bool isParentOf(const ListItem& parent, const ListItem& child) {
    const std::vector<int>& numbers = child.label.numbers;
    return parent.level + 1 == child.level &&
           std::equal(parent.label.numbers.begin(), parent.label.numbers.end(), numbers.begin(), numbers.end() - 1);
}

/// "3.1" repeats the number of the level above; where the list does not write that, the 3 is part of the label's text,
/// lest it come out as "1.1". Runs of such items are taken out of the group, each a group of its own.
Groups takeOrphans(ListGroup& group) {
    ListGroup kept;
    std::map<std::size_t, ListGroup> orphans;
    for (ListItem& item : group.items) {
        const bool hasParent = std::any_of(kept.items.rbegin(), kept.items.rend(),
                                           [&item](const ListItem& other) { return isParentOf(other, item); });
        if (!item.isNested || hasParent) {
            kept.items.push_back(std::move(item));
            continue;
        }
        item.isNested = false;
        orphans[item.run].items.push_back(std::move(item));
    }
    group = std::move(kept);
    Groups taken;
    for (auto& [run, orphan] : orphans)
        taken.push_back(std::move(orphan));
    return taken;
}

/// A numbering counts on where no item of a level above stands between. Runs that start anew there are taken out of the
/// group with what is below them, each a group of its own.
Groups takeRestarts(ListGroup& group) {
    ListGroup kept;
    Groups taken;
    std::map<int, std::size_t> runs; // of the items since the last one of a level above
    std::optional<int> takenLevel;
    for (ListItem& item : group.items) {
        runs.erase(runs.upper_bound(item.level), runs.end());
        const auto [last, isFirst] = runs.try_emplace(item.level, item.run);
        const bool isNumber = item.label.format != document::NumberFormat::Bullet;
        if (!isFirst && last->second != item.run && isNumber) {
            taken.emplace_back();
            takenLevel = item.level;
        } else if (takenLevel && item.level < *takenLevel) {
            takenLevel.reset();
        }
        last->second = item.run;
        (takenLevel ? taken.back() : kept).items.push_back(std::move(item));
    }
    group = std::move(kept);
    return taken;
}

template<typename Admits>
void dropDoubtfulRuns(ListGroup& group, const Admits& admits) {
    std::map<std::size_t, std::vector<const ListItem*>> runs;
    for (const ListItem& item : group.items)
        runs[item.run].push_back(&item);
    std::map<std::size_t, bool> isKept;
    for (const auto& [run, items] : runs)
        isKept[run] = admits(items);
    std::erase_if(group.items, [&](const ListItem& item) { return !isKept[item.run]; });
}

template<typename Admits>
void dropDoubtful(Groups& groups, const Admits& admits) {
    Groups others;
    for (ListGroup& group : groups) {
        dropDoubtfulRuns(group, admits);
        move(takeOrphans(group), others);
        move(takeRestarts(group), others);
    }
    move(std::move(others), groups);
}

} // namespace

void findLists(DocumentDraft& draft, const LayoutParameters& parameters) {
    const TypedBlanks blanks = typedBlanksOf(draft, parameters.lists);
    Groups lists = ItemGrouper(blanks, parameters).group(draft.blocks);
    dropDoubtful(lists, [&](const auto& run) { return isList(run, parameters.lists); });
    Groups headings = groupHeadings(draft.blocks, blanks, parameters);
    dropDoubtful(headings, isNumberedByList);
    std::erase_if(headings, [](const ListGroup& group) { return group.items.size() < 2; });
    move(std::move(headings), lists);
    for (const ListGroup& group : lists)
        if (!group.items.empty())
            makeNumbering(draft, group, parameters);
}

} // namespace orvane::layout
