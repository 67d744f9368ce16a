#include "write/docx/PropertiesParts.h"

#include "write/IsoDate.h"
#include "write/docx/XmlPart.h"

namespace orvane::write::docx {
namespace {

void writeText(XmlWriter& xml, std::string_view element, const std::string& text) {
    if (text.empty())
        return;
    const XmlElement item(xml, element);
    xml.text(text);
}

void writeDate(XmlWriter& xml, std::string_view element, const std::string& date) {
    if (!isIsoDateTime(date))
        return;
    const XmlElement item(xml, element, {{"xsi:type", "dcterms:W3CDTF"}});
    xml.text(date);
}

void addCoreProperties(const document::Metadata& metadata, Package& package) {
    XmlPart part("docProps/core.xml", "application/vnd.openxmlformats-package.core-properties+xml");
    XmlWriter& xml = part.xml();
    {
        const XmlElement root(xml, "cp:coreProperties",
                              {{"xmlns:cp", "http://schemas.openxmlformats.org/package/2006/metadata/core-properties"},
                               {"xmlns:dc", "http://purl.org/dc/elements/1.1/"},
                               {"xmlns:dcterms", "http://purl.org/dc/terms/"},
                               {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"}});
        writeText(xml, "dc:title", metadata.title);
        writeText(xml, "dc:subject", metadata.subject);
        writeText(xml, "dc:creator", metadata.author);
        writeText(xml, "cp:keywords", metadata.keywords);
        writeText(xml, "dc:language", metadata.language);
        writeDate(xml, "dcterms:created", metadata.created);
        writeDate(xml, "dcterms:modified", metadata.modified);
    }
    part.addTo(package);
    package.relationships().add("http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties",
                                "docProps/core.xml");
}

void addApplicationProperties(Package& package) {
    XmlPart part("docProps/app.xml", "application/vnd.openxmlformats-officedocument.extended-properties+xml");
    {
        const XmlElement root(part.xml(), "Properties",
                              {{"xmlns", "http://schemas.openxmlformats.org/officeDocument/2006/extended-properties"}});
        writeText(part.xml(), "Application", "Orvane");
    }
    part.addTo(package);
    package.relationships().add("extended-properties", "docProps/app.xml");
}

} // namespace

void addPropertiesParts(const document::Metadata& metadata, Package& package) {
    addCoreProperties(metadata, package);
    addApplicationProperties(package);
}

} // namespace orvane::write::docx
