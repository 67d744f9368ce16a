#pragma once

#include "base/Geometry.h"
#include "pdf/BlindDevice.h"

class GfxPath;
class GfxState;
class GfxSubpath;

namespace orvane::pdf {

/// Tells how much of paths there is to paint, about: how many rows of pixels their edges go through, and how many
/// pixels they fill. Looks into no letters, pictures, patterns or shadings. Play what is to be
/// measured at one pixel a point.
class PathMeter : public BlindDevice {
public:
    /// Measures what of the paths is in `region`, page space.
    explicit PathMeter(const Rect& region)
        : m_region(region) {}

    double rows() const { return m_rows; }
    double area() const { return m_area; }

    bool useDrawChar() override { return false; }
    bool tilingPatternFill(GfxState*, Gfx*, Catalog*, GfxTilingPattern*, const double*, int, int, int, int, double,
                           double) override {
        return true;
    }

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
