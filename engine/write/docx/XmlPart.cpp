#include "write/docx/XmlPart.h"

namespace orvane::write::docx {

XmlPart::XmlPart(std::string name, std::string_view contentType)
    : m_name(std::move(name))
    , m_contentType(contentType)
    , m_xml([this](std::string_view bytes) { m_deflater.add(bytes); }) {
    if (contentType.find('/') == std::string_view::npos)
        m_contentType = "application/vnd.openxmlformats-officedocument.wordprocessingml." + m_contentType + "+xml";
    m_xml.declaration();
}

void XmlPart::addTo(Package& package) {
    m_xml.finish();
    package.addPart(m_name, m_contentType, m_deflater.finish());
    package.addRelationships(m_name, m_relationships);
}

void startRoot(XmlWriter& xml, std::string_view name) {
    xml.start(name);
    const XmlAttribute namespaces[] = {
        {"xmlns:w", "http://schemas.openxmlformats.org/wordprocessingml/2006/main"},
        {"xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships"},
        {"xmlns:m", "http://schemas.openxmlformats.org/officeDocument/2006/math"},
        {"xmlns:wp", "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing"},
        {"xmlns:a", "http://schemas.openxmlformats.org/drawingml/2006/main"},
        {"xmlns:pic", "http://schemas.openxmlformats.org/drawingml/2006/picture"},
        {"xmlns:mc", "http://schemas.openxmlformats.org/markup-compatibility/2006"},
        {"xmlns:wps", "http://schemas.microsoft.com/office/word/2010/wordprocessingShape"},
        {"xmlns:wpg", "http://schemas.microsoft.com/office/word/2010/wordprocessingGroup"},
        {"xmlns:w14", "http://schemas.microsoft.com/office/word/2010/wordml"},
        // A reader that does not know these goes on without them.
        {"mc:Ignorable", "w14"},
    };
    for (const XmlAttribute& item : namespaces)
        xml.attribute(item);
}

} // namespace orvane::write::docx
