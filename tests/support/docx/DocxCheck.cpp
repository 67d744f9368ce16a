#include "support/docx/DocxCheck.h"

#include "support/TestData.h"
#include "support/docx/ReferenceCheck.h"
#include "support/docx/XmlRules.h"
#include "support/docx/ZipEntries.h"

#include <set>
#include <string_view>

namespace orvane::tests {
namespace {

struct Relationship {
    std::string type;   ///< the last step of its address
    std::string target; ///< within the package from its root
    bool isExternal = false;
};

std::string folderOf(const std::string& part) {
    const std::size_t slash = part.rfind('/');
    return slash == std::string::npos ? std::string() : part.substr(0, slash + 1);
}

std::string lastStep(const std::string& address) {
    return address.substr(address.rfind('/') + 1);
}

/// "word/document.xml" for "word/_rels/document.xml.rels".
std::string ownerOf(const std::string& relationshipsPart) {
    std::string owner = relationshipsPart;
    owner.erase(owner.find("_rels/"), std::string_view("_rels/").size());
    owner.erase(owner.size() - std::string_view(".rels").size());
    return owner;
}

class DocxCheck {
public:
    explicit DocxCheck(std::vector<ZipEntry> entries)
        : m_entries(std::move(entries))
        , m_rules(testData("docx/elements.rules")) {}

    std::vector<std::string> run() {
        readParts();
        checkContentTypes();
        readRelationships();
        for (const auto& [name, xml] : m_parts) {
            checkElements(name, xml);
            checkPrefixes(name, xml);
            checkUses(name, xml);
        }
        checkPictures();
        checkReferences(m_parts, m_faults);
        return std::move(m_faults);
    }

private:
    void fault(const std::string& part, const std::string& message) { m_faults.push_back(part + ": " + message); }

    void readParts() {
        if (m_entries.empty() || m_entries.front().name != "[Content_Types].xml")
            fault("package", "does not begin with its content types");
        for (const ZipEntry& entry : m_entries) {
            if (!m_names.insert(entry.name).second)
                fault(entry.name, "stands twice");
            if (!entry.name.ends_with(".xml") && !entry.name.ends_with(".rels"))
                continue;
            pugi::xml_document& xml = m_parts[entry.name];
            if (!xml.load_buffer(entry.bytes.data(), entry.bytes.size(),
                                 pugi::parse_default | pugi::parse_ws_pcdata_single, pugi::encoding_utf8))
                fault(entry.name, "is no XML");
        }
    }

    void checkContentTypes() {
        std::map<std::string, std::string> byExtension, byName;
        const pugi::xml_node types = m_parts["[Content_Types].xml"].document_element();
        for (const pugi::xml_node& item : types.children("Default"))
            byExtension[item.attribute("Extension").value()] = item.attribute("ContentType").value();
        for (const pugi::xml_node& item : types.children("Override"))
            if (!byName.emplace(item.attribute("PartName").value(), item.attribute("ContentType").value()).second)
                fault(item.attribute("PartName").value(), "has two content types");
        for (const std::string& name : m_names) {
            const std::string extension = name.substr(name.rfind('.') + 1);
            const bool isGeneric = extension == "xml" && name != "[Content_Types].xml";
            if (byName.count("/" + name) == 0 && (byExtension.count(extension) == 0 || isGeneric))
                fault(name, "has no content type");
        }
        for (const auto& [name, type] : byName)
            if (m_names.count(name.substr(1)) == 0)
                fault(name, "has a content type and does not exist");
    }

    void readRelationships() {
        for (const auto& [name, xml] : m_parts) {
            if (!name.ends_with(".rels"))
                continue;
            const std::string owner = ownerOf(name);
            if (!owner.empty() && !owner.ends_with('/') && m_names.count(owner) == 0)
                fault(name, "belongs to a part that does not exist");
            for (const pugi::xml_node& item : xml.document_element().children())
                readRelationship(name, owner, item);
        }
    }

    void readRelationship(const std::string& part, const std::string& owner, const pugi::xml_node& item) {
        const std::string target = item.attribute("Target").value();
        const bool isExternal = std::string(item.attribute("TargetMode").value()) == "External";
        const Relationship relationship{lastStep(item.attribute("Type").value()), folderOf(owner) + target, isExternal};
        if (!isExternal && m_names.count(relationship.target) == 0)
            fault(part, "leads to " + target + ", which does not exist");
        if (isExternal && target.find_first_of(" \t<>\"{}|\\^`") != std::string::npos)
            fault(part, "leads to " + target + ", which is no address");
        if (!m_relationships[owner].emplace(item.attribute("Id").value(), relationship).second)
            fault(part, std::string(item.attribute("Id").value()) + " stands twice");
    }

    void checkElements(const std::string& name, const pugi::xml_document& xml) {
        std::vector<std::string> faults;
        m_rules.check(xml.document_element(), faults);
        for (const std::string& message : faults)
            fault(name, message);
    }

    /// Every prefix of a name is declared at the root.
    void checkPrefixes(const std::string& name, const pugi::xml_document& xml) {
        std::set<std::string> declared = {"xml", "xmlns"};
        for (const pugi::xml_attribute& attribute : xml.document_element().attributes())
            if (std::string_view(attribute.name()).starts_with("xmlns:"))
                declared.insert(attribute.name() + std::string_view("xmlns:").size());
        std::set<std::string> used;
        const auto use = [&used](const std::string& word) {
            if (const std::size_t colon = word.find(':'); colon != std::string::npos)
                used.insert(word.substr(0, colon));
        };
        for (const pugi::xpath_node& node : xml.select_nodes("//*")) {
            use(node.node().name());
            for (const pugi::xml_attribute& attribute : node.node().attributes())
                use(attribute.name());
        }
        for (const std::string& prefix : used)
            if (declared.count(prefix) == 0)
                fault(name, "the prefix " + prefix + " is not declared");
    }

    /// Every use of a relationship finds one of the right type.
    void checkUses(const std::string& name, const pugi::xml_document& xml) {
        const std::pair<const char*, const char*> uses[] = {{"//w:hyperlink/@r:id", "hyperlink"},
                                                            {"//a:blip/@r:embed", "image"},
                                                            {"//w:headerReference/@r:id", "header"},
                                                            {"//w:footerReference/@r:id", "footer"},
                                                            {"//w:font/*/@r:id", "font"}};
        for (const auto& [xpath, type] : uses)
            for (const pugi::xpath_node& use : xml.select_nodes(xpath)) {
                const auto& known = m_relationships[name];
                const auto found = known.find(use.attribute().value());
                if (found == known.end() || found->second.type != type ||
                    found->second.isExternal != (found->second.type == "hyperlink"))
                    fault(name, std::string(use.attribute().value()) + " is no relationship of type " + type);
            }
    }

    void checkPictures() {
        for (const ZipEntry& entry : m_entries) {
            const bool isPng = entry.name.ends_with(".png");
            const bool isJpeg = entry.name.ends_with(".jpeg");
            if ((isPng && !entry.bytes.starts_with("\x89PNG\r\n")) ||
                (isJpeg && !entry.bytes.starts_with("\xFF\xD8\xFF")))
                fault(entry.name, "is no such picture");
        }
    }

    std::vector<ZipEntry> m_entries;
    XmlRules m_rules;
    std::vector<std::string> m_faults;
    std::set<std::string> m_names;
    XmlParts m_parts;
    std::map<std::string, std::map<std::string, Relationship>> m_relationships; ///< by part, then id
};

} // namespace

std::vector<std::string> faultsOfDocx(const std::filesystem::path& file) {
    return DocxCheck(readZip(file)).run();
}

} // namespace orvane::tests
