#include "write/docx/Package.h"

#include "base/XmlWriter.h"
#include "write/docx/ZipFile.h"

namespace orvane::write::docx {
namespace {

constexpr std::string_view kContentTypes = "http://schemas.openxmlformats.org/package/2006/content-types";

template<typename Write>
DeflatedBytes deflatedXml(const Write& write) {
    Deflater deflater;
    XmlWriter xml([&deflater](std::string_view bytes) { deflater.add(bytes); });
    write(xml);
    xml.finish();
    return deflater.finish();
}

/// "word/_rels/document.xml.rels" for "word/document.xml", "_rels/.rels" for the package.
std::string relationshipsName(std::string_view partName) {
    const std::size_t slash = partName.rfind('/');
    const std::size_t nameStart = slash == std::string_view::npos ? 0 : slash + 1;
    return std::string(partName.substr(0, nameStart)) + "_rels/" + std::string(partName.substr(nameStart)) + ".rels";
}

} // namespace

void Package::addPart(std::string name, std::string_view contentType, DeflatedBytes bytes) {
    m_parts.push_back({std::move(name), std::string(contentType), std::move(bytes), {}});
}

void Package::addFile(std::string name, std::filesystem::path file) {
    m_parts.push_back({std::move(name), {}, {}, std::move(file)});
}

void Package::addRelationships(std::string_view partName, const Relationships& relationships) {
    if (!relationships.empty())
        addPart(relationshipsName(partName), {}, deflatedXml([&](XmlWriter& xml) { relationships.write(xml); }));
}

void Package::save(const std::filesystem::path& target) {
    addRelationships("", m_relationships);
    const DeflatedBytes types = contentTypes();
    ZipFile zip(target);
    // Readers that look at the start of a file only know the format by this part.
    zip.addDeflated("[Content_Types].xml", types);
    for (const Part& part : m_parts) {
        if (part.file.empty())
            zip.addDeflated(part.name, part.bytes);
        else
            zip.addStored(part.name, part.file);
    }
    zip.close();
}

DeflatedBytes Package::contentTypes() const {
    return deflatedXml([this](XmlWriter& xml) {
        xml.declaration();
        const XmlElement root(xml, "Types", {{"xmlns", kContentTypes}});
        xml.leaf("Default", {{"Extension", "jpeg"}, {"ContentType", "image/jpeg"}});
        xml.leaf("Default", {{"Extension", "png"}, {"ContentType", "image/png"}});
        xml.leaf("Default",
                 {{"Extension", "rels"}, {"ContentType", "application/vnd.openxmlformats-package.relationships+xml"}});
        xml.leaf("Default", {{"Extension", "xml"}, {"ContentType", "application/xml"}});
        for (const Part& part : m_parts)
            if (!part.contentType.empty())
                xml.leaf("Override", {{"PartName", "/" + part.name}, {"ContentType", part.contentType}});
    });
}

} // namespace orvane::write::docx
