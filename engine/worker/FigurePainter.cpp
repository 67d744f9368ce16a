#include "worker/FigurePainter.h"

#include "base/Failure.h"
#include "layout/graphics/ScanIllustrations.h"
#include "layout/graphics/ScannedPages.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace orvane::worker {
namespace {

// Dots per inch: sharp on paper, and the least for a drawing of so much that it takes long to paint.
constexpr double kResolution = 300;
constexpr double kDenseResolution = 100;

// A drawing as large as a poster is painted coarser, so that one figure does not take hundreds of megabytes.
constexpr double kMaxPixels = 16e6;

double resolutionFor(const Rect& box) {
    const double pixels = box.area() / (72 * 72) * kResolution * kResolution;
    return pixels <= kMaxPixels ? kResolution : kResolution * std::sqrt(kMaxPixels / pixels);
}

pdf::PaintResolution withDense(double resolution) {
    return {resolution, std::min(resolution, kDenseResolution)};
}

// So many parts of a page, or parts over each other, are painted in one go through its content, which may be long:
// thousands of small drawings between thousands of others.
constexpr std::size_t kFewestInOneGo = 8;
constexpr double kOverlaid = 1.5; ///< of the box around parts: their areas together, where they lie over each other

/// What is painted of a page.
struct Wanted {
    Rect box;
    pdf::PaintedText words = pdf::PaintedText::Shown;
    std::optional<std::size_t> annotation; ///< the only one
    PictureId* picture = nullptr;          ///< that is to show it
    PictureDataPtr painted = nullptr;
};

/// Paints what is wanted of one page.
class PagePainter {
public:
    PagePainter(const pdf::PdfDocument& document, int page, Diagnostics& diagnostics)
        : m_document(document)
        , m_page(page)
        , m_diagnostics(diagnostics) {}

    void paint(std::vector<Wanted>& wanted) {
        std::map<std::pair<pdf::PaintedText, double>, std::vector<Wanted*>> batches;
        for (Wanted& one : wanted) {
            if (one.annotation)
                paintOne(one);
            else
                batches[{one.words, resolutionFor(one.box)}].push_back(&one);
        }
        for (auto& [look, batch] : batches)
            paintBatch(batch);
    }

private:
    /// Paints parts that share their resolution.
    void paintBatch(std::span<Wanted*> batch) {
        Rect all;
        double area = 0;
        std::vector<Rect> boxes;
        for (const Wanted* one : batch) {
            all = all.united(one->box);
            area += one->box.area();
            boxes.push_back(one->box);
        }
        const bool lieOverEachOther = area > kOverlaid * all.area();
        if (batch.size() < kFewestInOneGo && !lieOverEachOther) {
            for (Wanted* one : batch)
                paintOne(*one);
            return;
        }
        const double resolution = resolutionFor(batch.front()->box);
        if (resolutionFor(all) < resolution) {
            paintHalves(batch, all);
            return;
        }
        attempt(all, [&] {
            const auto painted =
                m_document.renderRegions(m_page, boxes, withDense(resolution), batch.front()->words, m_diagnostics);
            for (std::size_t i = 0; i < batch.size(); ++i)
                batch[i]->painted = painted[i];
        });
    }

    /// The box around all parts is too large to be painted at once.
    void paintHalves(std::span<Wanted*> batch, const Rect& all) {
        const auto at = [&](const Wanted* one) {
            return all.width() > all.height() ? one->box.centerX() : one->box.centerY();
        };
        std::stable_sort(batch.begin(), batch.end(), [&](const Wanted* a, const Wanted* b) { return at(a) < at(b); });
        paintBatch(batch.first(batch.size() / 2));
        paintBatch(batch.subspan(batch.size() / 2));
    }

    void paintOne(Wanted& wanted) {
        const pdf::PaintResolution resolution = withDense(resolutionFor(wanted.box));
        attempt(wanted.box, [&] {
            wanted.painted = wanted.annotation
                                 ? m_document.renderAnnotation(m_page, *wanted.annotation, wanted.box, resolution,
                                                               wanted.words, m_diagnostics)
                                 : m_document.renderRegion(m_page, wanted.box, resolution, wanted.words, m_diagnostics);
        });
    }

    template<typename Paint>
    void attempt(const Rect& box, const Paint& paint) {
        try {
            paint();
        } catch (const Failure& failure) {
            m_diagnostics.add(DiagnosticKind::DrawingSimplified, m_page,
                              fmt::format("a drawing could not be painted: {}", failure.what()), box);
        }
    }

    const pdf::PdfDocument& m_document;
    int m_page;
    Diagnostics& m_diagnostics;
};

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
    std::vector<Wanted> wanted;
    for (layout::Figure& figure : page.figures)
        if (figure.needsPainting && !figure.box.isEmpty())
            wanted.push_back({figure.box, figure.showsLabels ? pdf::PaintedText::Shown : pdf::PaintedText::LeftOut,
                              figure.annotation, &figure.picture});
    for (layout::Formula& formula : page.formulas)
        if (formula.needsPainting)
            wanted.push_back({formula.box, pdf::PaintedText::Shown, {}, &formula.picture});
    PagePainter(document, page.number, diagnostics).paint(wanted);
    for (const Wanted& one : wanted)
        if (one.painted)
            *one.picture = pictures.add(*one.painted);
}

} // namespace orvane::worker
