#include "pdf/SampleColors.h"

#include "pdf/PageSpace.h"

#include <algorithm>
#include <cmath>

#include <GfxState.h>

namespace orvane::pdf {
namespace {

bool isGrayTable(const std::vector<Color>& colors) {
    return std::all_of(colors.begin(), colors.end(), [](Color c) { return c.red == c.green && c.green == c.blue; });
}

bool isBlackAndWhite(const std::vector<Color>& table) {
    return table.size() == 2 &&
           ((table[0] == kBlack && table[1] == kWhite) || (table[0] == kWhite && table[1] == kBlack));
}

} // namespace

std::vector<Color> colorTable(GfxImageColorMap& colors) {
    std::vector<Color> table(std::size_t{1} << std::min(colors.getBits(), 8));
    const auto calibrated = CalibratedColors::of(colors);
    for (std::size_t value = 0; value < table.size(); ++value) {
        const auto sample = static_cast<unsigned char>(value);
        if (calibrated) {
            table[value] = calibrated->at(sample);
            continue;
        }
        GfxRGB rgb;
        colors.getRGB(&sample, &rgb);
        table[value] = toColor(rgb);
    }
    return table;
}

bool hasDefaultDecode(GfxImageColorMap& colors) {
    for (int i = 0; i < colors.getNumPixelComps(); ++i)
        if (std::abs(colors.getDecodeLow(i)) > 1e-6 || std::abs(colors.getDecodeHigh(i) - 1) > 1e-6)
            return false;
    return true;
}

SampleColors::SampleColors(const PictureSource& source)
    : m_colors(*source.colors)
    , m_isOwnProfile(!source.colorProfile.empty()) {
    if (m_isOwnProfile)
        m_kind = m_colors.getNumPixelComps() == 1 ? PixelKind::Gray : PixelKind::Rgb;
    else if (m_colors.getNumPixelComps() == 1) {
        m_table = colorTable(m_colors);
        m_kind = isBlackAndWhite(m_table) ? PixelKind::Bilevel
                 : isGrayTable(m_table)   ? PixelKind::Gray
                                          : PixelKind::Palette;
    } else {
        m_calibrated = CalibratedColors::of(m_colors);
    }
}

void SampleColors::read(const std::uint8_t* samples, std::uint8_t* row, int width) const {
    const auto count = static_cast<std::size_t>(width);
    if (m_kind == PixelKind::Bilevel)
        std::transform(samples, samples + count, row,
                       [&](std::uint8_t value) { return static_cast<std::uint8_t>(m_table[value & 1].red & 1); });
    else if (m_kind == PixelKind::Palette)
        std::transform(samples, samples + count, row,
                       [&](std::uint8_t value) { return static_cast<std::uint8_t>(value % m_table.size()); });
    else
        readFull(samples, row, width);
}

void SampleColors::readFull(const std::uint8_t* samples, std::uint8_t* row, int width) const {
    const auto count = static_cast<std::size_t>(width);
    if (m_isOwnProfile) {
        std::copy_n(samples, count * bytesPerPixel(m_kind), row);
    } else if (isGray()) {
        std::transform(samples, samples + count, row,
                       [&](std::uint8_t value) { return m_table[value % m_table.size()].red; });
    } else if (m_kind == PixelKind::Palette) {
        for (std::size_t x = 0; x < count; ++x) {
            const Color color = m_table[samples[x] % m_table.size()];
            row[x * 3] = color.red;
            row[x * 3 + 1] = color.green;
            row[x * 3 + 2] = color.blue;
        }
    } else if (m_calibrated) {
        m_calibrated->readRgb(samples, row, width);
    } else {
        m_colors.getRGBLine(const_cast<unsigned char*>(samples), row, width);
    }
}

} // namespace orvane::pdf
