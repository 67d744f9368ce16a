#include "layout/structure/ListFinder.h"

#include "layout/structure/ListGroups.h"
#include "layout/structure/NumberingMaker.h"

#include <algorithm>
#include <map>

namespace orvane::layout {
namespace {

void groupFlow(std::vector<DraftBlock>& blocks, const LayoutParameters& parameters, std::vector<ListGroup>& groups) {
    ListGrouper grouper(parameters);
    for (DraftBlock& block : blocks) {
        if (DraftParagraph* paragraph = block.paragraph())
            grouper.add(*paragraph);
        else if (DraftTable* table = std::get_if<DraftTable>(&block.value))
            for (DraftCell& cell : table->cells)
                groupFlow(cell.blocks, parameters, groups);
    }
    for (ListGroup& group : grouper.takeGroups())
        groups.push_back(std::move(group));
}

/// Whether so many items, with labels like these, are a list. A single number, or a blank behind the label at the edge
/// of the text, is as likely to be something that was typed.
bool isList(const std::vector<const ListItem*>& run, const StructureParameters::Lists& limits) {
    const bool isStrong =
        std::any_of(run.begin(), run.end(), [](const ListItem* item) { return item->label.isStrong; });
    const ListLabel& first = run.front()->label;
    if (first.format == document::NumberFormat::Bullet)
        return isStrong || (run.size() > 1 && first.labelStart > limits.sameIndent);
    if (run.size() == 1)
        return isStrong && first.number() == 1 && first.labelStart > limits.sameIndent;
    return isStrong || first.labelStart > limits.sameIndent;
}

void dropDoubtfulRuns(ListGroup& group, const StructureParameters::Lists& limits) {
    std::map<std::size_t, std::vector<const ListItem*>> runs;
    for (const ListItem& item : group.items)
        runs[item.run].push_back(&item);
    std::map<std::size_t, bool> isKept;
    for (const auto& [run, items] : runs)
        isKept[run] = isList(items, limits);
    std::erase_if(group.items, [&](const ListItem& item) { return !isKept[item.run]; });
}

} // namespace

void findLists(DocumentDraft& draft, const LayoutParameters& parameters) {
    std::vector<ListGroup> groups;
    groupFlow(draft.blocks, parameters, groups);
    for (ListGroup& group : groups) {
        dropDoubtfulRuns(group, parameters.lists);
        if (!group.items.empty())
            makeNumbering(draft, group, parameters);
    }
}

} // namespace orvane::layout
