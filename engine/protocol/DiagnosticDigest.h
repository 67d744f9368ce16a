#pragma once

#include "base/Diagnostic.h"

#include <string>
#include <vector>

namespace orvane::protocol {

/// Equal diagnostics of one or more pages.
struct DiagnosticGroup {
    DiagnosticKind kind = DiagnosticKind::ContentDamaged;
    std::string message;
    std::vector<int> pages; ///< ascending, each once; empty when the whole document is meant
    int count = 0;
};

/// Groups diagnostics of one kind and message, in the order in which they first come.
std::vector<DiagnosticGroup> groupDiagnostics(const std::vector<Diagnostic>& diagnostics);

/// Ascending page numbers as a reader writes them: "1-3, 7".
std::string formatPages(const std::vector<int>& pages);

} // namespace orvane::protocol
