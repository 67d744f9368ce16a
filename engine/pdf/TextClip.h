#pragma once

#include "pdf/PageContent.h"

#include <vector>

namespace orvane::pdf {

/// Text that became (part of) the clip path: what is painted through it, a gradient for instance, shows as letters.
/// Source: ISO 32000-1, 9.3.6.
class TextClip {
public:
    explicit TextClip(PageContent& page)
        : m_page(page) {}

    void saveState() { m_levels.push_back(m_glyphs.size()); }
    void restoreState();
    /// The glyph that was added last clips.
    void addLastGlyph() { m_glyphs.push_back(m_page.glyphs.size() - 1); }

    bool isActive() const { return !m_glyphs.empty(); }
    /// The letters are seen in this colour.
    void paint(Color color);
    /// The letters are seen in the colour they have.
    void paint();

private:
    PageContent& m_page;
    std::vector<std::size_t> m_glyphs;
    std::vector<std::size_t> m_levels;
};

} // namespace orvane::pdf
