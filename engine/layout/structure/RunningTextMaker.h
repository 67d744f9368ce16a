#pragma once

#include "base/Diagnostic.h"
#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/running/RunningRow.h"
#include "layout/running/RunningScheme.h"
#include "layout/structure/DocumentDraft.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace orvane::layout {

/// Makes the running text of a document's sections. Heads that show the same, page numbers aside, above the same column
/// are made once, so that sections have them in common.
class RunningTextMaker {
public:
    RunningTextMaker(DocumentDraft& draft, const std::vector<PageRunningHeads>& heads, const DocumentContext& context,
                     const LayoutParameters& parameters, Diagnostics& diagnostics)
        : m_draft(draft)
        , m_heads(heads)
        , m_context(context)
        , m_parameters(parameters)
        , m_diagnostics(diagnostics) {}

    /// Puts the running heads of the scheme's pages in order and makes them the section's, with the distances that they
    /// keep from the page's edges. `column` is the one that the section sets its text in.
    void make(DraftSection& section, const RunningScheme& scheme, const ColumnSpan& column);

private:
    using Blocks = std::optional<std::vector<DraftBlock>>;

    /// The blocks of the head at an edge, on a page of their own.
    Blocks blocksOf(const std::optional<RunningHead>& head, PageEdge side, const ColumnSpan& column);

    DocumentDraft& m_draft;
    const std::vector<PageRunningHeads>& m_heads;
    const DocumentContext& m_context;
    const LayoutParameters& m_parameters;
    Diagnostics& m_diagnostics;
    std::map<std::string, std::vector<DraftBlock>> m_made; ///< by what the head shows, and on what paper
};

} // namespace orvane::layout
