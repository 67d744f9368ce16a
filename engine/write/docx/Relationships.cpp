#include "write/docx/Relationships.h"

#include "base/XmlWriter.h"

#include <fmt/format.h>

namespace orvane::write::docx {
namespace {

constexpr std::string_view kNamespace = "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr std::string_view kTypeFolder = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

} // namespace

std::string Relationships::add(std::string_view type, std::string_view target, TargetMode mode) {
    const auto [found, isNew] = m_byTarget.try_emplace({std::string(type), std::string(target)}, m_items.size());
    if (isNew)
        m_items.push_back({std::string(type), std::string(target), mode});
    return fmt::format("rId{}", found->second + 1);
}

void Relationships::write(XmlWriter& xml) const {
    xml.declaration();
    const XmlElement root(xml, "Relationships", {{"xmlns", kNamespace}});
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        const Item& item = m_items[i];
        const bool isWhole = item.type.find(':') != std::string::npos;
        const std::string type = isWhole ? item.type : std::string(kTypeFolder) + item.type;
        const XmlElement relationship(xml, "Relationship",
                                      {{"Id", fmt::format("rId{}", i + 1)}, {"Type", type}, {"Target", item.target}});
        if (item.mode == TargetMode::External)
            xml.attribute({"TargetMode", "External"});
    }
}

} // namespace orvane::write::docx
