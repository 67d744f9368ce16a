#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

#include <vector>

namespace orvane::layout {

/// Keeps pages on which no text flows: each gets an empty paragraph that starts it and carries the pictures that float
/// there. Sections are to be handed over in their order.
class BlankPages {
public:
    /// `body`: the blocks of all sections.
    BlankPages(const std::vector<AssembledBlock>& body, const AssemblyContext& context);

    /// Puts in the paragraphs for the blank pages of a section. Those behind it, up to `nextPage`, are its own too.
    void keep(std::vector<AssembledBlock>& section, document::SectionStart start, std::size_t nextPage);

private:
    void addUpTo(std::size_t page, std::vector<AssembledBlock>& blocks);
    bool isBlank(std::size_t page) const { return page >= m_isFilled.size() || !m_isFilled[page]; }

    const AssemblyContext& m_context;
    std::vector<bool> m_isFilled; ///< for each page: whether text flows there
    std::size_t m_nextPage = 0;   ///< the first page that is not done
    bool m_startsSection = false; ///< nothing stands in the section yet that would start a page
    bool m_isAfterBlank = false;  ///< the page before is blank: what follows must start one
};

} // namespace orvane::layout
