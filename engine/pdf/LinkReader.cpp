#include "pdf/LinkReader.h"

#include "pdf/PageSpace.h"
#include "pdf/TextString.h"

#include <algorithm>

#include <fmt/format.h>

#include <Annot.h>
#include <Link.h>
#include <PDFDoc.h>
#include <Page.h>

namespace orvane::pdf {
namespace {

/// Which coordinates a destination gives depends on its kind. Source: ISO 32000-1, 12.3.2.2.
bool givesTop(const ::LinkDest& destination) {
    switch (destination.getKind()) {
    case destXYZ:
    case destFitH:
    case destFitBH:
        return destination.getChangeTop();
    case destFitR:
        return true;
    default:
        return false;
    }
}

Destination resolve(const ::LinkDest& source, ::PDFDoc& document) {
    Destination destination;
    destination.page = source.isPageRef() ? document.findPage(source.getPageRef()) : source.getPageNum();
    ::Page* page = destination.page > 0 && destination.page <= document.getNumPages()
                       ? document.getPage(destination.page)
                       : nullptr;
    if (!page)
        return {};
    if (givesTop(source)) {
        const Matrix matrix = defaultMatrix(*page);
        const Rect box = pageBox(*page);
        destination.top = std::clamp(matrix.apply({source.getLeft(), source.getTop()}).y, 0.0, box.bottom);
    }
    return destination;
}

Destination resolveName(const GooString& name, ::PDFDoc& document) {
    const std::unique_ptr<::LinkDest> destination = document.findDest(&name);
    return destination && destination->isOk() ? resolve(*destination, document) : Destination{};
}

/// Page moves that viewers know by name. Source: ISO 32000-1, 12.6.4.11.
std::optional<Destination> resolveNamedAction(const std::string& name, ::PDFDoc& document) {
    if (name == "FirstPage")
        return Destination{1, std::nullopt};
    if (name == "LastPage")
        return Destination{document.getNumPages(), std::nullopt};
    return std::nullopt;
}

std::vector<Rect> boxesOf(::AnnotLink& link, const Matrix& matrix) {
    std::vector<Rect> boxes;
    const auto addBox = [&](double x1, double y1, double x2, double y2) {
        const Rect box = matrix.applyToBox({std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)});
        if (!box.isEmpty())
            boxes.push_back(box);
    };
    if (AnnotQuadrilaterals* quads = link.getQuadrilaterals())
        for (int i = 0; i < quads->getQuadrilateralsLength(); ++i)
            addBox(std::min({quads->getX1(i), quads->getX2(i), quads->getX3(i), quads->getX4(i)}),
                   std::min({quads->getY1(i), quads->getY2(i), quads->getY3(i), quads->getY4(i)}),
                   std::max({quads->getX1(i), quads->getX2(i), quads->getX3(i), quads->getX4(i)}),
                   std::max({quads->getY1(i), quads->getY2(i), quads->getY3(i), quads->getY4(i)}));
    if (boxes.empty()) {
        const PDFRectangle& rect = link.getRect();
        addBox(rect.x1, rect.y1, rect.x2, rect.y2);
    }
    return boxes;
}

} // namespace

ActionTarget targetOf(const ::LinkAction* action, ::PDFDoc& document) {
    ActionTarget target;
    if (!action || !action->isOk())
        return target;
    switch (action->getKind()) {
    case actionURI:
        target.uri = static_cast<const ::LinkURI*>(action)->getURI();
        break;
    case actionGoTo: {
        const auto& go = *static_cast<const ::LinkGoTo*>(action);
        if (go.getDest())
            target.destination = resolve(*go.getDest(), document);
        else if (go.getNamedDest())
            target.destination = resolveName(*go.getNamedDest(), document);
        break;
    }
    case actionGoToR:
        target.uri = textFromPdf(static_cast<const ::LinkGoToR*>(action)->getFileName());
        break;
    case actionLaunch:
        target.uri = textFromPdf(static_cast<const ::LinkLaunch*>(action)->getFileName());
        break;
    case actionNamed:
        target.destination = resolveNamedAction(static_cast<const ::LinkNamed*>(action)->getName(), document);
        break;
    default:
        break;
    }
    return target;
}

std::vector<Link> readLinks(::Page& page, ::PDFDoc& document, Diagnostics& diagnostics) {
    std::vector<Link> links;
    const std::unique_ptr<::Links> source = page.getLinks();
    if (!source)
        return links;
    const Matrix matrix = defaultMatrix(page);
    std::vector<Rect> unresolved;
    for (::AnnotLink* annotation : source->getLinks()) {
        Link link;
        link.boxes = boxesOf(*annotation, matrix);
        ActionTarget target = targetOf(annotation->getAction(), document);
        link.uri = std::move(target.uri);
        link.destination = target.destination;
        if (link.boxes.empty() || (link.uri.empty() && !link.destination))
            continue;
        if (link.destination && link.destination->page == 0) {
            unresolved.push_back(link.boxes.front());
            continue;
        }
        links.push_back(std::move(link));
    }
    if (!unresolved.empty())
        diagnostics.add(DiagnosticKind::LinkUnresolved, page.getNum(),
                        unresolved.size() == 1
                            ? std::string("a link leads to a place that does not exist")
                            : fmt::format("{} links lead to places that do not exist", unresolved.size()),
                        unresolved.front());
    return links;
}

} // namespace orvane::pdf
