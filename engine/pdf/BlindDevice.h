#pragma once

#include <OutputDev.h>

namespace orvane::pdf {

/// The base of devices that look at a page and paint nothing: shadings and the content of glyphs are passed over, and
/// the library does not take shadings apart into the many areas of one colour that it would fill.
class BlindDevice : public ::OutputDev {
public:
    bool upsideDown() override { return true; }
    bool interpretType3Chars() override { return false; }
    bool useTilingPatternFill() override { return true; }
    bool useShadedFills(int) override { return true; }
    bool functionShadedFill(GfxState*, GfxFunctionShading*) override { return true; }
    bool axialShadedFill(GfxState*, GfxAxialShading*, double, double) override { return true; }
    bool radialShadedFill(GfxState*, GfxRadialShading*, double, double) override { return true; }
    bool gouraudTriangleShadedFill(GfxState*, GfxGouraudTriangleShading*) override { return true; }
    bool patchMeshShadedFill(GfxState*, GfxPatchMeshShading*) override { return true; }
};

} // namespace orvane::pdf
