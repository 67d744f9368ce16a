#include "pdf/PagePlayer.h"

#include "pdf/NamedMarks.h"
#include "pdf/PageSpace.h"
#include "pdf/SurplusRestores.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include <Annot.h>
#include <Gfx.h>
#include <Object.h>
#include <OutputDev.h>
#include <PDFDoc.h>
#include <Page.h>

namespace orvane::pdf {
namespace {

/// The page's content in one piece; its parts may be cut anywhere between tokens. Source: ISO 32000-1, 7.8.2.
std::string joinedContent(const ::Object& contents) {
    std::string joined;
    if (contents.isStream()) {
        contents.getStream()->fillString(joined);
    } else if (contents.isArray()) {
        for (int i = 0; i < contents.arrayGetLength(); ++i) {
            const ::Object part = contents.arrayGet(i);
            if (part.isStream())
                part.getStream()->fillString(joined);
            joined += '\n';
        }
    }
    return joined;
}

void playContent(::Page& page, ::Gfx& gfx, ContentRepair repair) {
    ::Object contents = page.getContents();
    if (contents.isNull())
        return;
    std::string rewritten; // lives as long as the stream that reads it
    const ::Object named = page.getResourceDict() ? page.getResourceDict()->lookup("Properties") : ::Object(objNull);
    if (named.isDict() || repair != ContentRepair::None) {
        rewritten = joinedContent(contents);
        if (repair == ContentRepair::SurplusRestores)
            rewritten = withoutSurplusRestores(rewritten);
        if (named.isDict())
            rewritten = withNamedMarks(rewritten, *named.getDict());
        ::Stream* stream = new MemStream(rewritten.data(), 0, static_cast<Goffset>(rewritten.size()),
                                         ::Object(new ::Dict(gfx.getXRef())));
        contents = ::Object(stream);
    }
    gfx.saveState();
    gfx.display(&contents);
    gfx.restoreState();
}

std::unique_ptr<::Gfx> interpreterOf(::Page& page, ::PDFDoc& document, ::OutputDev& device, TimeBudget& budget,
                                     const PageSlice& slice) {
    const double dpi = 72.0 * scaleOf(page) * slice.scale;
    return std::unique_ptr<::Gfx>(page.createGfx(&device, dpi, dpi, 0, false, true, slice.x, slice.y, slice.width,
                                                 slice.height, false, &TimeBudget::isSpent, &budget,
                                                 document.getXRef()));
}

} // namespace

bool isPartOfPage(::Annot* annotation, void*) {
    switch (annotation->getType()) {
    case ::Annot::typeWidget:
    case ::Annot::typeFreeText:
    case ::Annot::typeStamp:
    case ::Annot::typeInk:
    case ::Annot::typeLine:
    case ::Annot::typeSquare:
    case ::Annot::typeCircle:
    case ::Annot::typePolygon:
    case ::Annot::typePolyLine:
    case ::Annot::typeWatermark:
        return true;
    default:
        return false;
    }
}

PageSlice sliceOf(const Rect& region, double scale) {
    PageSlice slice;
    slice.scale = scale;
    slice.x = static_cast<int>(std::floor(region.left * scale));
    slice.y = static_cast<int>(std::floor(region.top * scale));
    slice.width = std::max(1, static_cast<int>(std::ceil(region.right * scale)) - slice.x);
    slice.height = std::max(1, static_cast<int>(std::ceil(region.bottom * scale)) - slice.y);
    return slice;
}

void playPage(::Page& page, ::PDFDoc& document, ::OutputDev& device, TimeBudget& budget, ContentRepair repair,
              const PageSlice& slice, PlayedAnnotations played, const AnnotationWatch& watch) {
    const std::unique_ptr<::Gfx> gfx = interpreterOf(page, document, device, budget, slice);
    playContent(page, *gfx, repair);
    ::Annots* annotations = page.getAnnots();
    for (std::size_t i = 0; annotations && i < annotations->getAnnots().size(); ++i) {
        ::Annot* annotation = annotations->getAnnots()[i];
        if ((played != PlayedAnnotations::All && !isPartOfPage(annotation, nullptr)) || budget.isSpent())
            continue;
        if (watch.before)
            watch.before(i);
        annotation->draw(gfx.get(), false);
        if (watch.after)
            watch.after(i);
    }
}

void playAnnotation(::Page& page, std::size_t number, ::PDFDoc& document, ::OutputDev& device, TimeBudget& budget,
                    const PageSlice& slice) {
    const std::unique_ptr<::Gfx> gfx = interpreterOf(page, document, device, budget, slice);
    ::Annots* annotations = page.getAnnots();
    if (annotations && number < annotations->getAnnots().size())
        annotations->getAnnots()[number]->draw(gfx.get(), false);
}

} // namespace orvane::pdf
