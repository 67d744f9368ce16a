#pragma once

#include "document/Document.h"

#include <map>
#include <string>
#include <utility>

namespace orvane {
class XmlWriter;
}

namespace orvane::write::docx {

struct DocumentState;
class Relationships;

/// The headers and footers of a package. Equal ones share a part, and a section that has the same as the one before
/// takes it over, as word processors do.
/// Source: ECMA-376 part 1, 17.10.
class RunningTextParts {
public:
    explicit RunningTextParts(const document::Document& document);

    /// Writes the references of a section to its headers and footers.
    /// Requires: called once for each section, in order.
    void writeReferences(DocumentState& state, XmlWriter& xml, Relationships& relationships,
                         const document::Section& section);

    /// Whether any section has running texts of their own for even pages.
    bool hasEvenPages() const { return m_hasEvenPages; }

private:
    /// What is needed to write one kind of running text: "header" or "footer".
    struct Side {
        const char* name;
        const char* root;
        const char* reference;
    };
    using Blocks = std::vector<document::Block>;

    void writeSide(DocumentState& state, XmlWriter& xml, Relationships& relationships, const Side& side,
                   const document::RunningText& text, bool hasFirstPage);
    void writeReference(DocumentState& state, XmlWriter& xml, Relationships& relationships, const Side& side,
                        const char* pages, const Blocks* blocks);
    std::string partOf(DocumentState& state, const Side& side, const Blocks& blocks);

    bool m_hasEvenPages = false;
    /// By what stands in the part and what it leads to.
    std::map<std::pair<std::string, std::string>, std::string> m_names;
    /// What holds at this section, by reference and pages.
    std::map<std::pair<std::string, std::string>, std::string> m_current;
};

} // namespace orvane::write::docx
