#pragma once

#include "base/Geometry.h"

#include <OutputDev.h>

class GfxPath;
class GfxState;
class GfxSubpath;

namespace orvane::pdf {

/// Tells how much of paths there is to paint, about: how many rows of pixels their edges go through, and how many
/// pixels they fill. Paints nothing, and looks into no letters, pictures, patterns or shadings. Play what is to be
/// measured at one pixel a point.
class PathMeter : public OutputDev {
public:
    /// Measures what of the paths is in `region`, page space.
    explicit PathMeter(const Rect& region)
        : m_region(region) {}

    double rows() const { return m_rows; }
    double area() const { return m_area; }

    bool upsideDown() override { return true; }
    bool useDrawChar() override { return false; }
    bool interpretType3Chars() override { return false; }
    bool useTilingPatternFill() override { return true; }
    bool tilingPatternFill(GfxState*, Gfx*, Catalog*, GfxTilingPattern*, const double*, int, int, int, int, double,
                           double) override {
        return true;
    }
    bool useShadedFills(int) override { return true; }
    bool functionShadedFill(GfxState*, GfxFunctionShading*) override { return true; }
    bool axialShadedFill(GfxState*, GfxAxialShading*, double, double) override { return true; }
    bool radialShadedFill(GfxState*, GfxRadialShading*, double, double) override { return true; }
    bool gouraudTriangleShadedFill(GfxState*, GfxGouraudTriangleShading*) override { return true; }
    bool patchMeshShadedFill(GfxState*, GfxPatchMeshShading*) override { return true; }

    void stroke(GfxState* state) override;
    void fill(GfxState* state) override;
    void eoFill(GfxState* state) override;

private:
    double rowsOf(const GfxState& state) const;
    double rowsOf(const GfxSubpath& part, const GfxState& state) const;
    double areaOf(const GfxState& state) const;

    Rect m_region;
    double m_rows = 0;
    double m_area = 0;
};

} // namespace orvane::pdf
