#include "pdf/CalibratedColors.h"

#include <algorithm>
#include <cmath>

#include <GfxState.h>

namespace orvane::pdf {
namespace {

using Vector = std::array<double, 3>;
using Rows = std::array<Vector, 3>;

/// Finer than the steps of the darkest levels.
constexpr int kLightSteps = 1 << 14;

/// The white of sRGB. Source: IEC 61966-2-1.
constexpr Vector kSrgbWhite{0.9505, 1, 1.089};
constexpr Rows kXyzToSrgb{{{3.2406, -1.5372, -0.4986}, {-0.9689, 1.8758, 0.0415}, {0.0557, -0.2040, 1.0570}}};
/// To the eye's cones, as Bradford measured them. Source: ICC.1:2010, annex E.
constexpr Rows kToCones{{{0.8951, 0.2664, -0.1614}, {-0.7502, 1.7135, 0.0367}, {0.0389, -0.0685, 1.0296}}};
constexpr Rows kFromCones{{{0.9870, -0.1471, 0.1600}, {0.4323, 0.5184, 0.0493}, {-0.0085, 0.0400, 0.9685}}};

Vector times(const Rows& matrix, const Vector& v) {
    Vector result{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            result[row] += matrix[row][column] * v[column];
    return result;
}

/// How a colour seen in one white looks in that of sRGB.
Vector adapt(const Vector& xyz, const Vector& white) {
    const Vector from = times(kToCones, white);
    const Vector to = times(kToCones, kSrgbWhite);
    Vector cones = times(kToCones, xyz);
    for (std::size_t i = 0; i < 3; ++i)
        cones[i] *= from[i] > 0 ? to[i] / from[i] : 1;
    return times(kFromCones, cones);
}

double levelOf(double light) {
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

Rows toSrgb(const GfxCalRGBColorSpace& space) {
    const Vector white{space.getWhiteX(), space.getWhiteY(), space.getWhiteZ()};
    const double* matrix = space.getMatrix();
    Rows columns{};
    for (std::size_t primary = 0; primary < 3; ++primary) {
        const Vector xyz{matrix[primary * 3], matrix[primary * 3 + 1], matrix[primary * 3 + 2]};
        const Vector rgb = times(kXyzToSrgb, adapt(xyz, white));
        for (std::size_t row = 0; row < 3; ++row)
            columns[row][primary] = rgb[row];
    }
    return columns;
}

GfxColorSpace& baseOf(GfxImageColorMap& colors) {
    GfxColorSpace* space = colors.getColorSpace();
    return space->getMode() == csIndexed ? *static_cast<GfxIndexedColorSpace*>(space)->getBase() : *space;
}

/// What an entry of a palette is in its base space.
Vector entryOf(GfxIndexedColorSpace& palette, double index) {
    const int components = palette.getBase()->getNComps();
    const long entry = std::lround(std::clamp(index, 0.0, static_cast<double>(palette.getIndexHigh())));
    Vector color{};
    for (int i = 0; i < components; ++i)
        color[static_cast<std::size_t>(i)] = palette.getLookup()[entry * components + i] / 255.0;
    return color;
}

} // namespace

std::optional<CalibratedColors> CalibratedColors::of(GfxImageColorMap& colors) {
    const GfxColorSpaceMode mode = baseOf(colors).getMode();
    if (mode != csCalGray && mode != csCalRGB)
        return std::nullopt;
    return CalibratedColors(colors);
}

CalibratedColors::CalibratedColors(GfxImageColorMap& colors) {
    m_level.resize(kLightSteps + 1);
    for (int i = 0; i <= kLightSteps; ++i)
        m_level[static_cast<std::size_t>(i)] =
            static_cast<std::uint8_t>(std::lround(255 * levelOf(static_cast<double>(i) / kLightSteps)));
    GfxColorSpace& base = baseOf(colors);
    m_isGray = base.getMode() == csCalGray;
    if (m_isGray) {
        m_gamma[0] = static_cast<const GfxCalGrayColorSpace&>(base).getGamma();
    } else {
        const auto& space = static_cast<const GfxCalRGBColorSpace&>(base);
        m_gamma = {space.getGammaR(), space.getGammaG(), space.getGammaB()};
        m_toSrgb = toSrgb(space);
    }
    describe(colors);
}

/// Notes what each value of a sample stands for.
void CalibratedColors::describe(GfxImageColorMap& colors) {
    const int values = 1 << std::min(colors.getBits(), 8);
    const int components = colors.getNumPixelComps();
    for (int value = 0; value < values; ++value) {
        Vector decoded{};
        for (int i = 0; i < components; ++i)
            decoded[static_cast<std::size_t>(i)] =
                colors.getDecodeLow(i) + (colors.getDecodeHigh(i) - colors.getDecodeLow(i)) * value / (values - 1);
        if (colors.getColorSpace()->getMode() == csIndexed)
            decoded = entryOf(*static_cast<GfxIndexedColorSpace*>(colors.getColorSpace()), decoded[0]);
        const Vector light = linear(decoded);
        for (std::size_t i = 0; i < 3; ++i)
            m_light[i][static_cast<std::size_t>(value)] = light[i];
        if (components == 1) {
            std::uint8_t rgb[3];
            put(light, rgb);
            m_table.push_back({rgb[0], rgb[1], rgb[2]});
        }
    }
}

CalibratedColors::Vector CalibratedColors::linear(const Vector& color) const {
    Vector light{};
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t component = m_isGray ? 0 : i;
        light[i] = std::pow(std::clamp(color[component], 0.0, 1.0), m_gamma[component]);
    }
    return light;
}

void CalibratedColors::put(const Vector& light, std::uint8_t* rgb) const {
    const Vector out = m_isGray ? light : times(m_toSrgb, light);
    for (std::size_t i = 0; i < 3; ++i)
        rgb[i] = m_level[static_cast<std::size_t>(std::lround(std::clamp(out[i], 0.0, 1.0) * kLightSteps))];
}

Color CalibratedColors::at(std::uint8_t sample) const {
    return m_table[sample % m_table.size()];
}

void CalibratedColors::readRgb(const std::uint8_t* samples, std::uint8_t* row, int width) const {
    for (int x = 0; x < width; ++x, samples += 3, row += 3)
        put({m_light[0][samples[0]], m_light[1][samples[1]], m_light[2][samples[2]]}, row);
}

} // namespace orvane::pdf
