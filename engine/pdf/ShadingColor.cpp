#include "pdf/ShadingColor.h"

#include <algorithm>

#include <GfxState.h>

namespace orvane::pdf {
namespace {

constexpr int kSamples = 16; ///< along an axis, a side or a list of triangles; more change nothing that is seen

/// Adds colours up and gives their mean.
class MeanColor {
public:
    explicit MeanColor(GfxColorSpace& space)
        : m_space(space) {}

    void add(const GfxColor& color) {
        GfxRGB rgb;
        m_space.getRGB(&color, &rgb);
        m_red += colToDbl(rgb.r);
        m_green += colToDbl(rgb.g);
        m_blue += colToDbl(rgb.b);
        ++m_count;
    }
    Color mean() const {
        const auto byteOf = [this](double sum) {
            const double value = m_count > 0 ? sum / m_count : 0.5;
            return static_cast<std::uint8_t>(std::clamp(value, 0.0, 1.0) * 255 + 0.5);
        };
        return {byteOf(m_red), byteOf(m_green), byteOf(m_blue)};
    }

private:
    GfxColorSpace& m_space;
    double m_red = 0;
    double m_green = 0;
    double m_blue = 0;
    int m_count = 0;
};

void addFunctionSamples(GfxFunctionShading& shading, MeanColor& mean) {
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    shading.getDomain(&x0, &y0, &x1, &y1);
    for (int i = 0; i < kSamples; ++i)
        for (int j = 0; j < kSamples; ++j) {
            GfxColor color;
            shading.getColor(x0 + (x1 - x0) * (i + 0.5) / kSamples, y0 + (y1 - y0) * (j + 0.5) / kSamples, &color);
            mean.add(color);
        }
}

void addAxisSamples(GfxUnivariateShading& shading, MeanColor& mean) {
    const double from = shading.getDomain0();
    const double to = shading.getDomain1();
    for (int i = 0; i < kSamples; ++i) {
        GfxColor color;
        if (shading.getColor(from + (to - from) * (i + 0.5) / kSamples, &color) > 0)
            mean.add(color);
    }
}

void addTriangleSamples(GfxGouraudTriangleShading& shading, MeanColor& mean) {
    const int step = std::max(1, shading.getNTriangles() / (kSamples * kSamples));
    for (int i = 0; i < shading.getNTriangles(); i += step) {
        double x[3];
        double y[3];
        GfxColor colors[3];
        if (shading.isParameterized()) {
            double values[3];
            shading.getTriangle(i, &x[0], &y[0], &values[0], &x[1], &y[1], &values[1], &x[2], &y[2], &values[2]);
            for (int n = 0; n < 3; ++n)
                shading.getParameterizedColor(values[n], &colors[n]);
        } else {
            shading.getTriangle(i, &x[0], &y[0], &colors[0], &x[1], &y[1], &colors[1], &x[2], &y[2], &colors[2]);
        }
        for (const GfxColor& color : colors)
            mean.add(color);
    }
}

void addPatchSamples(GfxPatchMeshShading& shading, MeanColor& mean) {
    const int step = std::max(1, shading.getNPatches() / (kSamples * kSamples));
    for (int i = 0; i < shading.getNPatches(); i += step) {
        const GfxPatch& patch = *shading.getPatch(i);
        for (const auto& row : patch.color)
            for (const GfxPatch::ColorValue& corner : row) {
                GfxColor color;
                if (shading.isParameterized()) {
                    shading.getParameterizedColor(corner.c[0], &color);
                } else {
                    for (int n = 0; n < gfxColorMaxComps; ++n)
                        color.c[n] = dblToCol(corner.c[n]);
                }
                mean.add(color);
            }
    }
}

} // namespace

Color meanColorOf(GfxShading& shading) {
    MeanColor mean(*shading.getColorSpace());
    switch (shading.getType()) {
    case 1:
        addFunctionSamples(static_cast<GfxFunctionShading&>(shading), mean);
        break;
    case 2:
    case 3:
        addAxisSamples(static_cast<GfxUnivariateShading&>(shading), mean);
        break;
    case 4:
    case 5:
        addTriangleSamples(static_cast<GfxGouraudTriangleShading&>(shading), mean);
        break;
    case 6:
    case 7:
        addPatchSamples(static_cast<GfxPatchMeshShading&>(shading), mean);
        break;
    default:
        break;
    }
    return mean.mean();
}

} // namespace orvane::pdf
