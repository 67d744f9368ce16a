#include "pdf/DocumentMetadata.h"

#include "pdf/TextString.h"

#include <memory>

#include <Object.h>
#include <PDFDoc.h>
#include <XRef.h>
#include <goo/GooString.h>

namespace orvane::pdf {
namespace {

std::string entryOf(::PDFDoc& document, const char* key) {
    const std::unique_ptr<GooString> entry = document.getDocInfoStringEntry(key);
    return textFromPdf(entry.get());
}

} // namespace

Metadata readMetadata(::PDFDoc& document) {
    Metadata metadata;
    metadata.title = entryOf(document, "Title");
    metadata.author = entryOf(document, "Author");
    metadata.subject = entryOf(document, "Subject");
    metadata.keywords = entryOf(document, "Keywords");
    metadata.creator = entryOf(document, "Creator");
    metadata.producer = entryOf(document, "Producer");
    metadata.created = isoDateFromPdf(entryOf(document, "CreationDate"));
    metadata.modified = isoDateFromPdf(entryOf(document, "ModDate"));
    const ::Object catalog = document.getXRef()->getCatalog();
    if (catalog.isDict())
        metadata.language = textFromPdf(catalog.dictLookup("Lang"));
    return metadata;
}

} // namespace orvane::pdf
