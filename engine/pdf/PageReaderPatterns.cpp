#include "pdf/PageReader.h"

#include "pdf/PageSpace.h"
#include "pdf/PaintedColor.h"
#include "pdf/ShadingColor.h"
#include "pdf/ShadingGradient.h"

#include <Gfx.h>
#include <GfxState.h>
#include <PDFDoc.h>
#include <Page.h>

namespace orvane::pdf {
namespace {

constexpr int kMaxPatternDepth = 2;
constexpr Color kUnknownPattern{128, 128, 128};
constexpr int kColoredPattern = 1; ///< PaintType. Source: ISO 32000-1, 8.7.3.1.

} // namespace

bool PageReader::tilingPatternFill(GfxState* state, Gfx* gfx, Catalog*, GfxTilingPattern* pattern, const double*,
                                   int x0, int y0, int x1, int y1, double, double) {
    // A single cell is a way to paint a picture or a drawing inside an outline: it is read like any other content.
    const bool isSingleCell = x1 - x0 <= 1 && y1 - y0 <= 1;
    if (isSingleCell && !m_textClip.isActive())
        return false;
    shade(*state, {meanColorOf(*state, *gfx, *pattern), nullptr});
    return true;
}

Color PageReader::meanColorOf(GfxState& state, Gfx& gfx, GfxTilingPattern& pattern) {
    const bool isColored = pattern.getPaintType() == kColoredPattern;
    const int object = pattern.getPatternRefNum();
    if (const auto known = m_patternColors.find(object); known != m_patternColors.end() && isColored)
        return known->second;
    const double* box = pattern.getBBox();
    PageContent cell;
    cell.width = box[2] - box[0];
    cell.height = box[3] - box[1];
    if (m_reading.patternDepth >= kMaxPatternDepth || !(cell.width > 0) || !(cell.height > 0))
        return kUnknownPattern;

    PageReading reading{
        m_reading.document,        cell, m_reading.pictures, nullptr, m_reading.diagnostics, m_reading.budget,
        m_reading.patternDepth + 1};
    PageReader reader(reading);
    const PDFRectangle area(box[0], box[1], box[2], box[3]);
    ::Gfx cellGfx(&m_reading.document, &reader, pattern.getResDict(), &area, nullptr, &TimeBudget::isSpent,
                  &m_reading.budget, &gfx);
    if (!isColored) {
        cellGfx.getState()->setFillColorSpace(state.getFillColorSpace()->copy());
        cellGfx.getState()->setFillColor(state.getFillColor());
        cellGfx.getState()->setStrokeColorSpace(state.getFillColorSpace()->copy());
        cellGfx.getState()->setStrokeColor(state.getFillColor());
    }
    cellGfx.display(pattern.getContentStream());
    const Color mean = meanPaintedColor(cell, {}, {0, 0, cell.width, cell.height}, kWhite);
    if (isColored && object > 0)
        m_patternColors.emplace(object, mean);
    return mean;
}

void PageReader::shade(GfxState& state, const PatternLook& look) {
    if (m_textClip.isActive()) {
        m_textClip.paint(look.meanColor);
        return;
    }
    m_paths.fillClipWithPattern(state, look, m_marks.current(), m_paintOrder++);
    m_transparency.coverLastPath();
}

bool PageReader::functionShadedFill(GfxState* state, GfxFunctionShading* shading) {
    shade(*state, {pdf::meanColorOf(*shading), nullptr});
    return true;
}

bool PageReader::axialShadedFill(GfxState* state, GfxAxialShading* shading, double, double) {
    shade(*state, {pdf::meanColorOf(*shading), gradientOf(*shading, currentMatrix(*state))});
    return true;
}

bool PageReader::radialShadedFill(GfxState* state, GfxRadialShading* shading, double, double) {
    shade(*state, {pdf::meanColorOf(*shading), gradientOf(*shading, currentMatrix(*state))});
    return true;
}

bool PageReader::gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) {
    shade(*state, {pdf::meanColorOf(*shading), nullptr});
    return true;
}

bool PageReader::patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) {
    shade(*state, {pdf::meanColorOf(*shading), nullptr});
    return true;
}

} // namespace orvane::pdf
