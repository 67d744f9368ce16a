#include "pdf/PictureOpacity.h"

#include "pdf/PageSpace.h"
#include "pdf/SampleColors.h"

#include <algorithm>

#include <GfxState.h>
#include <Object.h>
#include <Stream.h>

namespace orvane::pdf {
namespace {

/// The ground of colours that the picture's own data blends; without a word about it, black.
Color groundOfData(const PictureSource& source) {
    const ::Object matte = source.stream->getDict()->lookup("Matte");
    const int components = source.colors->getNumPixelComps();
    if (!matte.isArray() || matte.arrayGetLength() != components)
        return kBlack;
    GfxColor color{};
    for (int i = 0; i < components; ++i)
        color.c[i] = dblToCol(matte.arrayGet(i).getNumWithDefaultValue(0));
    GfxRGB rgb;
    source.colors->getColorSpace()->getRGB(&color, &rgb);
    return toColor(rgb);
}

} // namespace

void applyColorKey(const PictureSource& source, const std::uint8_t* samples, std::vector<std::uint8_t>& alpha) {
    const int components = source.colors->getNumPixelComps();
    for (std::size_t x = 0; x < alpha.size(); ++x) {
        bool isKeyed = true;
        for (int c = 0; c < components && isKeyed; ++c) {
            const int sample = samples[x * static_cast<std::size_t>(components) + static_cast<std::size_t>(c)];
            isKeyed = sample >= source.colorKey[2 * c] && sample <= source.colorKey[2 * c + 1];
        }
        if (isKeyed)
            alpha[x] = 0;
    }
}

MaskRows::MaskRows(const PictureMask& mask)
    : m_mask(mask)
    , m_samples(*mask.stream, mask.width, mask.height, mask.colors ? mask.colors->getNumPixelComps() : 1,
                mask.colors ? mask.colors->getBits() : 1) {
    if (mask.colors)
        m_levels = colorTable(*mask.colors);
}

void MaskRows::read(int y, int height, std::vector<std::uint8_t>& alpha) {
    std::fill(alpha.begin(), alpha.end(), std::uint8_t{255});
    const std::uint8_t* samples = m_samples.at(y, height);
    if (!samples)
        return;
    const auto width = static_cast<std::int64_t>(alpha.size());
    for (std::int64_t x = 0; x < width; ++x) {
        const auto from = static_cast<std::size_t>((x * 2 + 1) * m_mask.width / (width * 2));
        const std::uint8_t sample = samples[from];
        // Of a stencil mask the ones are masked out unless it is inverted.
        alpha[static_cast<std::size_t>(x)] = m_mask.colors ? m_levels[sample % m_levels.size()].red
                                             : (sample != 0) == m_mask.isInverted ? 255
                                                                                  : 0;
    }
}

void splitOpacity(const std::uint8_t* samples, int components, std::uint8_t* colors, std::vector<std::uint8_t>& alpha) {
    for (std::uint8_t& opacity : alpha) {
        colors = std::copy_n(samples, components, colors);
        opacity = samples[components];
        samples += components + 1;
    }
}

std::optional<Color> matteOf(const PictureSource& source) {
    if (source.opacityChannel == OpacityChannel::Blended)
        return groundOfData(source);
    if (!source.mask || !source.mask->colors)
        return std::nullopt;
    const GfxColor* matte = source.mask->colors->getMatteColor();
    if (!matte)
        return std::nullopt;
    GfxRGB rgb;
    source.colors->getColorSpace()->getRGB(matte, &rgb);
    return toColor(rgb);
}

void takeMatteOut(Color matte, std::uint8_t alpha, std::uint8_t* rgb) {
    if (alpha == 0)
        return;
    const std::uint8_t ground[3] = {matte.red, matte.green, matte.blue};
    for (int c = 0; c < 3; ++c)
        rgb[c] = static_cast<std::uint8_t>(std::clamp(ground[c] + (rgb[c] - ground[c]) * 255 / alpha, 0, 255));
}

} // namespace orvane::pdf
