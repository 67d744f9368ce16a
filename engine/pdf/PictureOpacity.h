#pragma once

#include "base/Color.h"
#include "pdf/PictureSource.h"
#include "pdf/SampleRows.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace orvane::pdf {

/// Opacity of the pixels of one row by the samples' colour key; `alpha` has one value a pixel of the picture.
/// Source: ISO 32000-1, 8.9.6.4.
void applyColorKey(const PictureSource& source, const std::uint8_t* samples, std::vector<std::uint8_t>& alpha);

/// Parts a row of samples that hold their pixels' opacity behind `components` colours; `alpha` has one value a pixel.
void splitOpacity(const std::uint8_t* samples, int components, std::uint8_t* colors, std::vector<std::uint8_t>& alpha);

/// Reads the mask of a picture in the size in which the picture is read.
class MaskRows {
public:
    /// Requires: the mask is within limits and outlives this.
    explicit MaskRows(const PictureMask& mask);

    /// Opacity of the pixels of row `y` of `height`; above and below the mask's data all is opaque.
    void read(int y, int height, std::vector<std::uint8_t>& alpha);

    bool isEmpty() const { return m_samples.isEmpty(); }
    bool isCutShort() const { return m_samples.isCutShort(); }

private:
    const PictureMask& m_mask;
    std::vector<Color> m_levels; ///< of a soft mask
    SampleRows m_samples;
};

/// The ground colour that was mixed into a picture beforehand, if any. Source: ISO 32000-1, 11.6.5.3 (Matte).
std::optional<Color> matteOf(const PictureSource& source);
/// Takes the ground colour out of one pixel.
void takeMatteOut(Color matte, std::uint8_t alpha, std::uint8_t* rgb);

} // namespace orvane::pdf
