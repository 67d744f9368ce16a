#include "pdf/TransparencyReader.h"

#include "pdf/PageSpace.h"

namespace orvane::pdf {

void TransparencyReader::restoreState() {
    if (m_maskLevels.empty())
        return;
    m_mask = m_maskLevels.back();
    m_maskLevels.pop_back();
}

void TransparencyReader::beginGroup(GroupKind kind) {
    m_open.push_back({m_page.paths.size(), m_page.pictures.size(), m_page.glyphs.size(), kind});
    m_maskDepth += kind == GroupKind::SoftMask ? 1 : 0;
}

void TransparencyReader::endGroup() {
    if (m_open.empty())
        return;
    m_ended = m_open.back();
    m_open.pop_back();
    m_maskDepth -= m_ended.kind == GroupKind::SoftMask ? 1 : 0;
}

void TransparencyReader::paintGroup(double opacity) {
    if (m_mask)
        for (std::size_t i = m_ended.firstPicture; i < m_page.pictures.size(); ++i)
            noteMasked(i);
    const double share = opacity * m_mask.value_or(1);
    if (share >= 1)
        return;
    for (std::size_t i = m_ended.firstPath; i < m_page.paths.size(); ++i) {
        Path& path = m_page.paths[i];
        path.isSimplified |= m_mask.has_value();
        if (path.fill)
            path.fill->opacity *= share;
        if (path.stroke)
            path.stroke->opacity *= share;
    }
    // A mask fades a part of a picture or of the text, seldom all of it: only the group's own opacity tells how they
    // look.
    for (std::size_t i = m_ended.firstPicture; i < m_page.pictures.size(); ++i) {
        m_page.pictures[i].opacity *= opacity;
        m_page.pictures[i].isOpaque &= opacity >= 1;
    }
    for (std::size_t i = m_ended.firstGlyph; i < m_page.glyphs.size(); ++i)
        m_page.glyphs[i].color = onWhite(m_page.glyphs[i].color, opacity);
}

void TransparencyReader::setMask(MaskKind kind, const Rect& area) {
    const PaintedRange range{m_ended.firstPath, m_ended.firstPicture};
    if (kind == MaskKind::Alpha) {
        // The mask's colours do not matter, only that there is paint.
        for (std::size_t i = range.firstPath; i < m_page.paths.size(); ++i) {
            if (m_page.paths[i].fill)
                m_page.paths[i].fill->color = kWhite;
            if (m_page.paths[i].stroke)
                m_page.paths[i].stroke->color = kWhite;
        }
    }
    const Color mean = meanPaintedColor(m_page, range, area, kBlack);
    m_mask = (0.30 * mean.red + 0.59 * mean.green + 0.11 * mean.blue) / 255;
    m_page.paths.resize(m_ended.firstPath);
    m_page.pictures.resize(m_ended.firstPicture);
    std::erase_if(m_maskedPictures, [this](std::size_t index) { return index >= m_page.pictures.size(); });
    m_page.glyphs.resize(m_ended.firstGlyph);
}

void TransparencyReader::coverLastPath() {
    if (!m_mask || m_page.paths.empty())
        return;
    Path& path = m_page.paths.back();
    path.isSimplified = true;
    if (path.fill) {
        path.fill->opacity *= *m_mask;
        path.fill->isPattern = true;
    }
    if (path.stroke)
        path.stroke->opacity *= *m_mask;
}

void TransparencyReader::noteMasked(std::size_t picture) {
    m_page.pictures[picture].isOpaque = false;
    if (!isInMask() && (m_maskedPictures.empty() || m_maskedPictures.back() < picture))
        m_maskedPictures.push_back(picture);
}

void TransparencyReader::coverLastPicture() {
    if (m_mask && !m_page.pictures.empty())
        noteMasked(m_page.pictures.size() - 1);
}

} // namespace orvane::pdf
