#include "worker/FigurePainter.h"

#include "base/Failure.h"
#include "layout/graphics/ScanIllustrations.h"
#include "layout/graphics/ScannedPages.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <fmt/format.h>

namespace orvane::worker {
namespace {

// Dots per inch: sharp on paper, and a drawing as large as a page stays below a megabyte.
constexpr double kResolution = 200;

// A drawing as large as a poster is painted coarser, so that one figure does not take hundreds of megabytes.
constexpr double kMaxPixels = 16e6;

double resolutionFor(const Rect& box) {
    const double pixels = box.area() / (72 * 72) * kResolution * kResolution;
    return pixels <= kMaxPixels ? kResolution : kResolution * std::sqrt(kMaxPixels / pixels);
}

/// What is painted of a page.
struct Wanted {
    Rect box;
    pdf::PaintedText words = pdf::PaintedText::Shown;
    std::optional<std::size_t> annotation; ///< the only one
};

PictureDataPtr paintWanted(const pdf::PdfDocument& document, int page, const Wanted& wanted, Diagnostics& diagnostics) {
    const double resolution = resolutionFor(wanted.box);
    return wanted.annotation
               ? document.renderAnnotation(page, *wanted.annotation, wanted.box, resolution, wanted.words, diagnostics)
               : document.renderRegion(page, wanted.box, resolution, wanted.words, diagnostics);
}

/// A part of the page as a picture; none where it cannot be painted, with a diagnostic.
PictureId paint(const pdf::PdfDocument& document, int page, const Wanted& wanted, PictureStore& pictures,
                Diagnostics& diagnostics) {
    try {
        if (const PictureDataPtr painted = paintWanted(document, page, wanted, diagnostics))
            return pictures.add(*painted);
    } catch (const Failure& failure) {
        if (failure.code() == FailureCode::TargetUnwritable)
            throw; // the disk is full, and not only for this drawing
        diagnostics.add(DiagnosticKind::DrawingSimplified, page,
                        fmt::format("a drawing could not be painted: {}", failure.what()), wanted.box);
    }
    return {};
}

} // namespace

void findIllustrations(const pdf::PdfDocument& document, layout::PageText& page,
                       const layout::GraphicsParameters& parameters, Diagnostics& diagnostics) {
    if (!layout::isReadScan(page, parameters))
        return;
    try {
        const layout::GraphicsParameters::Illustrations& limits = parameters.illustrations;
        layout::addIllustrations(page, document.inkOf(page.number, limits.inkSquare, diagnostics), limits);
    } catch (const Failure& failure) {
        diagnostics.add(DiagnosticKind::PictureSimplified, page.number,
                        fmt::format("a scan could not be searched for illustrations: {}", failure.what()));
    }
}

void paintFigures(const pdf::PdfDocument& document, layout::PageText& page, PictureStore& pictures,
                  Diagnostics& diagnostics) {
    for (layout::Figure& figure : page.figures) {
        if (!figure.needsPainting || figure.box.isEmpty())
            continue;
        const pdf::PaintedText words = figure.showsLabels ? pdf::PaintedText::Shown : pdf::PaintedText::LeftOut;
        const PictureId painted =
            paint(document, page.number, {figure.box, words, figure.annotation}, pictures, diagnostics);
        if (painted.value != 0)
            figure.picture = painted;
    }
    for (layout::Formula& formula : page.formulas)
        if (formula.needsPainting)
            formula.picture =
                paint(document, page.number, {formula.box, pdf::PaintedText::Shown, {}}, pictures, diagnostics);
}

} // namespace orvane::worker
