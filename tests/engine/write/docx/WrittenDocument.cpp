#include "WrittenDocument.h"

#include "write/docx/DocxWriter.h"

#include <sstream>
#include <stdexcept>

#include <pugixml.hpp>

namespace orvane::tests {
namespace {

std::string printed(const pugi::xml_node& node) {
    std::ostringstream out;
    node.print(out, " ");
    return out.str();
}

} // namespace

WrittenDocument::WrittenDocument(const document::Document& document) {
    const PictureStore noPictures(m_folder.path());
    write(document, noPictures);
}

WrittenDocument::WrittenDocument(const document::Document& document, const PictureStore& pictures) {
    write(document, pictures);
}

void WrittenDocument::write(const document::Document& document, const PictureStore& pictures) {
    m_file = m_folder.path() / "document.docx";
    write::writeDocx(document, pictures, m_file, m_diagnostics);
    m_entries = readZip(m_file);
}

std::string WrittenDocument::part(const std::string& name) const {
    for (const ZipEntry& entry : m_entries)
        if (entry.name == name)
            return entry.bytes;
    return {};
}

std::string WrittenDocument::select(const std::string& name, const std::string& xpath) const {
    pugi::xml_document xml;
    const std::string text = part(name);
    if (!xml.load_buffer(text.data(), text.size(), pugi::parse_default | pugi::parse_ws_pcdata_single))
        throw std::runtime_error(name + " is missing or no XML");
    std::string out;
    for (const pugi::xpath_node& node : xml.select_nodes(xpath.c_str()))
        out += node.attribute() ? std::string(node.attribute().value()) + "\n" : printed(node.node());
    return out;
}

std::size_t WrittenDocument::count(const std::string& xpath) const {
    pugi::xml_document xml;
    const std::string text = part("word/document.xml");
    xml.load_buffer(text.data(), text.size());
    return xml.select_nodes(xpath.c_str()).size();
}

std::string normalXml(const std::string& elements) {
    pugi::xml_document xml;
    if (!xml.load_buffer(elements.data(), elements.size(),
                         pugi::parse_default | pugi::parse_ws_pcdata_single | pugi::parse_fragment))
        throw std::runtime_error("no XML: " + elements);
    std::string out;
    for (const pugi::xml_node& node : xml.children())
        if (node.type() == pugi::node_element)
            out += printed(node);
    return out;
}

} // namespace orvane::tests
