#pragma once

#include "pdf/PageContent.h"
#include "pdf/PaintedColor.h"

#include <optional>
#include <vector>

namespace orvane::pdf {

/// Follows transparency groups and soft masks: gives what was painted in a group the group's opacity, keeps the content
/// of masks off the page, and turns a mask into a mean opacity. Source: ISO 32000-1, 11.4.7 and 11.5.
class TransparencyReader {
public:
    explicit TransparencyReader(PageContent& page)
        : m_page(page) {}

    void saveState() { m_maskLevels.push_back(m_mask); }
    void restoreState();

    enum class GroupKind : std::uint8_t { Painted, SoftMask };
    void beginGroup(GroupKind kind);
    void endGroup();
    /// The group that ended last becomes part of the page with this opacity.
    void paintGroup(double opacity);
    /// The group that ended last, which lies within `area`, becomes the soft mask.
    enum class MaskKind : std::uint8_t { Luminosity, Alpha };
    void setMask(MaskKind kind, const Rect& area);
    void clearMask() { m_mask.reset(); }

    /// What is painted now belongs to a mask, not to the page.
    bool isInMask() const { return m_maskDepth > 0; }
    /// Gives the path that was added last what the mask leaves of it.
    void coverLastPath();
    /// Notes that the mask lies over the picture that was added last.
    void coverLastPicture();
    /// The pictures that a mask lies over, by index into the page's.
    const std::vector<std::size_t>& maskedPictures() const { return m_maskedPictures; }

private:
    void noteMasked(std::size_t picture);

    struct Extent {
        std::size_t firstPath = 0;
        std::size_t firstPicture = 0;
        std::size_t firstGlyph = 0;
        GroupKind kind = GroupKind::Painted;
    };

    PageContent& m_page;
    std::vector<Extent> m_open;
    Extent m_ended;
    int m_maskDepth = 0;
    std::optional<double> m_mask; ///< mean opacity that it leaves
    std::vector<std::optional<double>> m_maskLevels;
    std::vector<std::size_t> m_maskedPictures;
};

} // namespace orvane::pdf
