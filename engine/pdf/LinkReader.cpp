#include "pdf/LinkReader.h"

#include "pdf/PageSpace.h"
#include "pdf/QuadReader.h"
#include "pdf/TextString.h"

#include <algorithm>

#include <fmt/format.h>

#include <Annot.h>
#include <Catalog.h>
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

/// The value of a name in the catalog's name tree, which the library does not look into when the file has the older
/// dictionary of names as well.
::Object lookUpInNameTree(const GooString& name, ::PDFDoc& document) {
    const ::Object catalog = document.getXRef()->getCatalog();
    const ::Object names = catalog.isDict() ? catalog.dictLookup("Names") : ::Object(objNull);
    ::Object root = names.isDict() ? names.dictLookup("Dests") : ::Object(objNull);
    if (!root.isDict())
        return ::Object(objNull);
    ::NameTree tree;
    tree.init(document.getXRef(), &root);
    ::Object value = tree.lookup(&name);
    return value.isDict() ? value.dictLookup("D") : std::move(value);
}

Destination resolveName(const GooString& name, ::PDFDoc& document) {
    std::unique_ptr<::LinkDest> destination = document.findDest(&name);
    if (!destination) {
        const ::Object value = lookUpInNameTree(name, document);
        if (value.isArray())
            destination = std::make_unique<::LinkDest>(value.getArray());
    }
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

/// A bare mail address leads to no file of that name.
std::string withScheme(const std::string& uri) {
    const std::size_t sign = uri.find('@');
    const bool isMail = sign > 0 && sign != uri.npos && uri.find('.', sign) != uri.npos &&
                        uri.find('@', sign + 1) == uri.npos && uri.find_first_of(":/?# ") == uri.npos;
    return isMail ? "mailto:" + uri : uri;
}

/// One box a line where the file tells, else the annotation's own.
std::vector<Rect> boxesOf(const ::AnnotLink& link, const Matrix& toPage) {
    std::vector<Rect> boxes = quadBoxes(link.getQuadrilaterals(), toPage);
    const PDFRectangle& rect = link.getRect();
    const Rect box = toPage.applyToBox({rect.x1, rect.y1, rect.x2, rect.y2});
    if (boxes.empty() && !box.isEmpty())
        boxes.push_back(box);
    return boxes;
}

} // namespace

ActionTarget targetOf(const ::LinkAction* action, ::PDFDoc& document) {
    ActionTarget target;
    if (!action || !action->isOk())
        return target;
    switch (action->getKind()) {
    case actionURI:
        target.uri = withScheme(static_cast<const ::LinkURI*>(action)->getURI());
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
