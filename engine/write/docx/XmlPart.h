#pragma once

#include "base/XmlWriter.h"
#include "write/docx/Package.h"

namespace orvane::write::docx {

/// One XML part of the package while it is written.
class XmlPart {
public:
    /// `contentType` is the last step of a word processing type, "styles" for instance, or a whole type.
    XmlPart(std::string name, std::string_view contentType);
    XmlPart(const XmlPart&) = delete;
    XmlPart& operator=(const XmlPart&) = delete;

    XmlWriter& xml() { return m_xml; }
    Relationships& relationships() { return m_relationships; }

    /// Adds the part and its relationships to the package.
    /// Requires: all elements have ended.
    void addTo(Package& package);

private:
    std::string m_name;
    std::string m_contentType;
    Deflater m_deflater;
    XmlWriter m_xml;
    Relationships m_relationships;
};

/// Starts a part's root element, with the namespaces that the elements in it may use.
void startRoot(XmlWriter& xml, std::string_view name);

} // namespace orvane::write::docx
