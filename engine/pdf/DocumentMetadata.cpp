#include "pdf/DocumentMetadata.h"

#include "pdf/TextString.h"

#include <memory>
#include <string_view>

#include <pugixml.hpp>

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

/// The text of an element of the XMP packet, found by its name whatever it stands in ("dc:title/rdf:Alt/rdf:li");
/// several items are joined. Source: ISO 16684-1.
std::string textOf(const pugi::xml_node& packet, const char* name) {
    const pugi::xml_node element =
        packet.find_node([&](const pugi::xml_node& node) { return std::string_view(node.name()) == name; });
    std::string text;
    const auto items =
        element.find_node([](const pugi::xml_node& node) { return std::string_view(node.name()) == "rdf:li"; });
    for (pugi::xml_node item = items; item; item = item.next_sibling("rdf:li")) {
        text += text.empty() ? "" : ", ";
        text += item.text().get();
    }
    return items ? text : element.text().get();
}

/// Newer files keep their properties in a packet of XML and leave the older dictionary out.
void completeFromPacket(::PDFDoc& document, Metadata& metadata) {
    const std::unique_ptr<GooString> packet = document.readMetadata();
    pugi::xml_document xml;
    if (!packet || !xml.load_buffer(packet->c_str(), static_cast<std::size_t>(packet->getLength())))
        return;
    const auto complete = [&](std::string& field, const char* name) {
        if (field.empty())
            field = textOf(xml, name);
    };
    complete(metadata.title, "dc:title");
    complete(metadata.author, "dc:creator");
    complete(metadata.subject, "dc:description");
    complete(metadata.keywords, "pdf:Keywords");
    complete(metadata.creator, "xmp:CreatorTool");
    complete(metadata.producer, "pdf:Producer");
    complete(metadata.created, "xmp:CreateDate");
    complete(metadata.modified, "xmp:ModifyDate");
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
    completeFromPacket(document, metadata);
    const ::Object catalog = document.getXRef()->getCatalog();
    if (catalog.isDict())
        metadata.language = textFromPdf(catalog.dictLookup("Lang"));
    return metadata;
}

} // namespace orvane::pdf
