#include "layout/assembly/BlankPages.h"

#include "layout/assembly/EmptyParagraph.h"
#include "layout/structure/BlockExtent.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {
namespace {

bool flows(const AssembledBlock& block) {
    return block.draft && !isFloating(*block.draft);
}

/// The page where the block ends; a table may go on over several.
std::size_t lastPageOf(const AssembledBlock& block) {
    std::size_t page = block.lastPage;
    for (const std::vector<AssembledBlock>& cell : block.cells)
        for (const AssembledBlock& inside : cell)
            page = std::max(page, lastPageOf(inside));
    return page;
}

void startPage(AssembledBlock& block) {
    // The space above a table is a paragraph of its own.
    for (document::Block& before : block.floats)
        if (auto* spacer = std::get_if<document::Paragraph>(&before.value)) {
            spacer->properties.pageBreakBefore = true;
            return;
        }
    document::Paragraph* paragraph = block.paragraph();
    if (!paragraph && !block.cells.empty() && !block.cells.front().empty())
        paragraph = block.cells.front().front().paragraph();
    if (paragraph)
        paragraph->properties.pageBreakBefore = true;
}

} // namespace

BlankPages::BlankPages(const std::vector<AssembledBlock>& body, const AssemblyContext& context)
    : m_context(context) {
    for (const AssembledBlock& block : body) {
        if (!flows(block))
            continue;
        const std::size_t last = lastPageOf(block);
        m_isFilled.resize(std::max(m_isFilled.size(), last + 1));
        for (std::size_t page = block.draft->page; page <= last; ++page)
            m_isFilled[page] = true;
    }
    // Where nothing but notes stands they flow there by themselves.
    const std::vector<Rect>& notes = context.draft.noteAreas;
    m_isFilled.resize(std::max(m_isFilled.size(), notes.size()));
    for (std::size_t page = 0; page < notes.size(); ++page)
        m_isFilled[page] = m_isFilled[page] || !notes[page].isEmpty();
}

void BlankPages::keep(std::vector<AssembledBlock>& section, document::SectionStart start, std::size_t nextPage) {
    std::vector<AssembledBlock> kept;
    m_startsSection = start != document::SectionStart::Continuous || m_nextPage == 0;
    m_isAfterBlank = m_isAfterBlank && !m_startsSection;
    for (AssembledBlock& block : section) {
        if (block.draft)
            addUpTo(block.draft->page, kept);
        if (flows(block)) {
            if (std::exchange(m_isAfterBlank, false))
                startPage(block);
            m_nextPage = std::max(m_nextPage, lastPageOf(block) + 1);
            m_startsSection = false;
        }
        kept.push_back(std::move(block));
    }
    const std::size_t end = kept.size();
    addUpTo(nextPage, kept);
    // Word processors may leave out an empty paragraph at a section's end, and the page with it.
    if (kept.size() > end)
        kept.emplace_back().block.value = emptyParagraph(m_context);
    section = std::move(kept);
}

/// What floats on a page stands before the paragraph that is added for it.
void BlankPages::addUpTo(std::size_t page, std::vector<AssembledBlock>& blocks) {
    for (; m_nextPage < page; ++m_nextPage) {
        if (!isBlank(m_nextPage))
            continue;
        AssembledBlock blank;
        blank.block.value = emptyParagraph(m_context);
        blank.paragraph()->properties.pageBreakBefore = !m_startsSection;
        blocks.push_back(std::move(blank));
        m_startsSection = false;
        m_isAfterBlank = true;
    }
}

} // namespace orvane::layout
