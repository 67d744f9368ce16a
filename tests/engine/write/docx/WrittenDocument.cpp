#include "WrittenDocument.h"

#include "write/docx/DocxWriter.h"

#include <memory>
#include <sstream>
#include <stdexcept>

#include <pugixml.hpp>
#include <zip.h>

namespace orvane::tests {
namespace {

std::string readEntry(zip_t* archive, const zip_stat_t& stat) {
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> entry(zip_fopen_index(archive, stat.index, 0), zip_fclose);
    std::string bytes(stat.size, '\0');
    if (!entry || zip_fread(entry.get(), bytes.data(), bytes.size()) != static_cast<zip_int64_t>(bytes.size()))
        throw std::runtime_error(std::string("cannot read ") + stat.name);
    char rest = 0;
    // The checksum is compared at the end of the data only.
    if (zip_fread(entry.get(), &rest, 1) != 0)
        throw std::runtime_error(std::string("damaged: ") + stat.name);
    return bytes;
}

std::string printed(const pugi::xml_node& node) {
    std::ostringstream out;
    node.print(out, " ");
    return out.str();
}

} // namespace

std::vector<ZipEntry> readZip(const std::filesystem::path& file) {
    const std::unique_ptr<zip_t, void (*)(zip_t*)> archive(zip_open(file.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr),
                                                           zip_discard);
    if (!archive)
        throw std::runtime_error("no zip file: " + file.string());
    std::vector<ZipEntry> entries;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive.get(), 0); ++i) {
        zip_stat_t stat;
        zip_stat_index(archive.get(), static_cast<zip_uint64_t>(i), 0, &stat);
        entries.push_back({stat.name, readEntry(archive.get(), stat), stat.comp_method != ZIP_CM_STORE});
    }
    return entries;
}

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
