#include "write/StyleIndex.h"

namespace orvane::write {

StyleIndex::StyleIndex(const document::Document& document)
    : m_default(&m_fallback) {
    m_fallback.id = m_fallback.name = "Normal";
    if (!document.styles.empty())
        m_default = &document.styles.front();
    m_byId.emplace(m_default->id, m_default);
    for (const document::Style& style : document.styles)
        m_byId.emplace(style.id, &style);
}

const document::Style& StyleIndex::at(const document::StyleId& id) const {
    const auto found = m_byId.find(id);
    return found == m_byId.end() ? *m_default : *found->second;
}

const document::Style* StyleIndex::parentOf(const document::Style& style) const {
    const auto found = m_byId.find(style.basedOn);
    if (found == m_byId.end() || &style == m_default)
        return nullptr;
    // Styles that are based on each other in a ring would hang a reader: those on the ring are roots.
    const document::Style* ancestor = found->second;
    for (std::size_t steps = 0; steps <= m_byId.size() && ancestor != &style; ++steps) {
        const auto next = m_byId.find(ancestor->basedOn);
        if (next == m_byId.end())
            break;
        ancestor = next->second;
    }
    return ancestor == &style ? nullptr : found->second;
}

} // namespace orvane::write
