#pragma once

#include "layout/Layout.h"
#include "layout/structure/DocumentDraft.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// Where the links of each page lead, in the words of the document.
class LinkTargets {
public:
    /// Puts bookmarks at the paragraphs that links and outline entries lead to. What leads nowhere is told to
    /// `diagnostics`.
    LinkTargets(DocumentDraft& draft, const std::vector<pdf::OutlineEntry>& outline, Diagnostics& diagnostics);

    /// The target of link `link` of that page; nullopt for a link that leads nowhere, or link -1.
    std::optional<document::LinkTarget> target(std::size_t page, int link) const;

private:
    std::vector<std::vector<std::optional<document::LinkTarget>>> m_targets; ///< by page, by link
};

} // namespace orvane::layout
