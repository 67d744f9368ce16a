#include "pdf/AnnotationReader.h"

#include "pdf/PageSpace.h"
#include "pdf/QuadReader.h"
#include "pdf/TextString.h"

#include <algorithm>
#include <optional>

#include <Annot.h>
#include <GfxState.h>
#include <Page.h>

namespace orvane::pdf {
namespace {

/// The kind of an annotation that is told; nothing for those that are not.
std::optional<AnnotationKind> kindOf(::Annot::AnnotSubtype type) {
    switch (type) {
    case ::Annot::typeText:
        return AnnotationKind::Text;
    case ::Annot::typeFreeText:
        return AnnotationKind::FreeText;
    case ::Annot::typeHighlight:
        return AnnotationKind::Highlight;
    case ::Annot::typeUnderline:
        return AnnotationKind::Underline;
    case ::Annot::typeStrikeOut:
        return AnnotationKind::StrikeOut;
    case ::Annot::typeSquiggly:
        return AnnotationKind::Squiggly;
    case ::Annot::typeStamp:
        return AnnotationKind::Stamp;
    case ::Annot::typeInk:
        return AnnotationKind::Ink;
    case ::Annot::typeLine:
    case ::Annot::typeSquare:
    case ::Annot::typeCircle:
    case ::Annot::typePolygon:
    case ::Annot::typePolyLine:
        return AnnotationKind::Shape;
    case ::Annot::typeFileAttachment:
        return AnnotationKind::FileAttachment;
    case ::Annot::typeLink:
    case ::Annot::typeWidget:
    case ::Annot::typePopup:
    case ::Annot::typePrinterMark:
    case ::Annot::typeTrapNet:
    case ::Annot::typeWatermark:
        return std::nullopt;
    default:
        return AnnotationKind::Other;
    }
}

bool isMarkup(AnnotationKind kind) {
    return kind != AnnotationKind::Other;
}

bool isTextMarkup(AnnotationKind kind) {
    return kind == AnnotationKind::Highlight || kind == AnnotationKind::Underline ||
           kind == AnnotationKind::StrikeOut || kind == AnnotationKind::Squiggly;
}

Color colorOf(const ::AnnotColor* color) {
    if (!color)
        return kBlack;
    const double* values = color->getValues();
    GfxColor components;
    clearGfxColor(&components);
    for (int i = 0; i < color->getSpace(); ++i)
        components.c[i] = dblToCol(values[i]);
    GfxRGB rgb{0, 0, 0};
    switch (color->getSpace()) {
    case ::AnnotColor::colorGray:
        GfxDeviceGrayColorSpace().getRGB(&components, &rgb);
        break;
    case ::AnnotColor::colorRGB:
        GfxDeviceRGBColorSpace().getRGB(&components, &rgb);
        break;
    case ::AnnotColor::colorCMYK:
        GfxDeviceCMYKColorSpace().getRGB(&components, &rgb);
        break;
    case ::AnnotColor::colorTransparent:
        break;
    }
    return toColor(rgb);
}

} // namespace

std::vector<Annotation> readAnnotations(::Page& page, const PaintRanges& painted) {
    std::vector<Annotation> annotations;
    ::Annots* sources = page.getAnnots();
    if (!sources)
        return annotations;
    const Matrix matrix = defaultMatrix(page);
    for (std::size_t number = 0; number < sources->getAnnots().size(); ++number) {
        ::Annot* source = sources->getAnnots()[number];
        const auto kind = kindOf(source->getType());
        if (!kind || (source->getFlags() & (::Annot::flagHidden | ::Annot::flagNoView)) != 0)
            continue;
        Annotation annotation;
        annotation.kind = *kind;
        annotation.number = number;
        if (const auto range = painted.find(number); range != painted.end()) {
            annotation.paintedFrom = range->second.from;
            annotation.paintedTo = range->second.to;
        }
        const PDFRectangle& rect = source->getRect();
        annotation.box = matrix.applyToBox({rect.x1, rect.y1, rect.x2, rect.y2});
        annotation.contents = textFromPdf(source->getContents());
        annotation.date = source->getModified() ? isoDateFromPdf(source->getModified()->toStr()) : std::string();
        annotation.color = colorOf(source->getColor());
        if (isMarkup(*kind)) {
            const auto& markup = static_cast<const ::AnnotMarkup&>(*source);
            annotation.author = textFromPdf(markup.getLabel());
            if (annotation.date.empty() && markup.getDate())
                annotation.date = isoDateFromPdf(markup.getDate()->toStr());
        }
        if (isTextMarkup(*kind))
            annotation.quads = quadBoxes(static_cast<const ::AnnotTextMarkup&>(*source).getQuadrilaterals(), matrix);
        annotations.push_back(std::move(annotation));
    }
    return annotations;
}

} // namespace orvane::pdf
