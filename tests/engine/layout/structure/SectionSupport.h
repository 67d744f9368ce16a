#pragma once

#include "layout/structure/SectionMaker.h"

#include "engine/layout/DraftSupport.h"

#include <algorithm>
#include <string>
#include <vector>

/// Pages of lines for tests of the sections made of them.
namespace orvane::layout::tests {

inline void addLine(DocumentDraft& draft, std::size_t page, double left, double baseline) {
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("some words", left, baseline)}), page));
}

/// Lines from the top of the page down to its foot, or to `last`.
inline void fillPage(DocumentDraft& draft, std::size_t page, double last = 760) {
    for (double baseline = 84; baseline <= last; baseline += 20)
        addLine(draft, page, 72, baseline);
}

inline void sectionsOf(DocumentDraft& draft, std::vector<PageRunningHeads> heads = {},
                       const DocumentContext& context = {}) {
    heads.resize(draft.pages.size());
    Diagnostics diagnostics;
    makeSections(draft, heads, context, {}, diagnostics);
}

inline const DraftBlock& firstOn(const DocumentDraft& draft, std::size_t page) {
    return *std::find_if(draft.blocks.begin(), draft.blocks.end(), [&](const DraftBlock& b) { return b.page == page; });
}

/// The margin below the text of a section. Units: points.
inline double setupBottom(const DocumentDraft& draft, std::size_t section) {
    return pointsFromTwips(draft.sections.at(section).setup.marginBottom);
}

/// A table of one row at `top`, drawn with rules or not.
inline DraftBlock tableAt(std::size_t page, double top, bool isRuled) {
    DraftBlock block;
    block.page = page;
    block.box = {72, top, 523, top + 20};
    DraftTable table;
    table.table.columnEdges = {72, 523};
    table.table.rowEdges = {top, top + 20};
    table.table.isRuled = isRuled;
    block.value = std::move(table);
    return block;
}

} // namespace orvane::layout::tests
