#include "pdf/TextClip.h"

namespace orvane::pdf {

void TextClip::restoreState() {
    if (m_levels.empty())
        return;
    m_glyphs.resize(std::min(m_glyphs.size(), m_levels.back()));
    m_levels.pop_back();
}

void TextClip::paint() {
    for (const std::size_t index : m_glyphs)
        if (index < m_page.glyphs.size() && m_page.glyphs[index].visibility == Visibility::Invisible)
            m_page.glyphs[index].visibility = Visibility::Visible;
}

void TextClip::paint(Color color) {
    paint();
    for (const std::size_t index : m_glyphs)
        if (index < m_page.glyphs.size())
            m_page.glyphs[index].color = color;
}

} // namespace orvane::pdf
