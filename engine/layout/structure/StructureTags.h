#pragma once

#include "layout/structure/DocumentDraft.h"
#include "pdf/PdfDocument.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace orvane::layout {

/// What the file's structure tree says its text is. Source: ISO 32000-1, 14.8.4.
class StructureTags {
public:
    StructureTags(const DocumentDraft& draft, const std::vector<pdf::StructureElement>& structure);

    /// Most of the text has a tag that says more than that it is text.
    bool isTrustworthy() const { return m_isTrustworthy; }

    /// The type of the block level element that most of the paragraph lies in ("P", "H2", "LI", "Caption"); empty for
    /// none.
    std::string typeOf(const DraftParagraph& paragraph) const;

private:
    void collect(const std::vector<pdf::StructureElement>& elements, const std::string& block);
    const std::string* typeOf(const PageLayout& page, const Span& span) const;

    const DocumentDraft& m_draft;
    std::map<std::pair<int, int>, std::string> m_types; ///< by page and marked-content number
    bool m_isTrustworthy = false;
};

/// The level of a heading's type: "H3" gives 3, "H" 1; 0 for other types.
int headingLevelOfType(const std::string& type);

} // namespace orvane::layout
