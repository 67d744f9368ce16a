#include "layout/structure/ListFinder.h"

#include "layout/structure/DraftWalk.h"
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

/// What the file tells of the blanks between words: some have none, and leave a gap.
enum class Blanks : unsigned char { Unknown, Painted };

/// Painted where the file has a blank for each one that was typed: a list's label has none behind it.
Blanks blanksOf(DocumentDraft& draft, const StructureParameters::Lists& limits) {
    std::size_t all = 0, painted = 0;
    forEachParagraph(draft.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                for (std::size_t i = 1; i < line.words.size(); ++i)
                    if (line.words[i].gapBefore == Gap::Space) {
                        ++all;
                        painted += line.words[i].isTypedBefore ? 1 : 0;
                    }
    });
    const bool arePainted =
        all >= limits.fewestBlanks && static_cast<double>(painted) >= limits.paintedShare * static_cast<double>(all);
    return arePainted ? Blanks::Painted : Blanks::Unknown;
}

/// Whether so many items, with labels like these, are a list. A single number, or a blank behind the label at the edge
/// of the text, is as likely to be something that was typed.
bool isList(const std::vector<const ListItem*>& run, Blanks blanks, const StructureParameters::Lists& limits) {
    const auto any = [&run](bool ListLabel::*trait) {
        return std::any_of(run.begin(), run.end(), [trait](const ListItem* item) { return item->label.*trait; });
    };
    if (blanks == Blanks::Painted && !any(&ListLabel::isTyped) && run.size() > 1)
        return true;
    if (any(&ListLabel::isTyped) && !any(&ListLabel::hangs))
        return false;
    const bool isStrong = any(&ListLabel::isStrong);
    const ListLabel& first = run.front()->label;
    if (first.format == document::NumberFormat::Bullet)
        return isStrong || (run.size() > 1 && first.labelStart > limits.sameIndent);
    if (run.size() == 1)
        return isStrong && first.number() == 1 && first.labelStart > limits.sameIndent;
    return isStrong || first.labelStart > limits.sameIndent;
}

void dropDoubtfulRuns(ListGroup& group, Blanks blanks, const StructureParameters::Lists& limits) {
    std::map<std::size_t, std::vector<const ListItem*>> runs;
    for (const ListItem& item : group.items)
        runs[item.run].push_back(&item);
    std::map<std::size_t, bool> isKept;
    for (const auto& [run, items] : runs)
        isKept[run] = isList(items, blanks, limits);
    std::erase_if(group.items, [&](const ListItem& item) { return !isKept[item.run]; });
}

} // namespace

void findLists(DocumentDraft& draft, const LayoutParameters& parameters) {
    std::vector<ListGroup> groups;
    groupFlow(draft.blocks, parameters, groups);
    const Blanks blanks = blanksOf(draft, parameters.lists);
    for (ListGroup& group : groups) {
        dropDoubtfulRuns(group, blanks, parameters.lists);
        if (!group.items.empty())
            makeNumbering(draft, group, parameters);
    }
}

} // namespace orvane::layout
