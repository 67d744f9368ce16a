#include "protocol/DiagnosticDigest.h"

#include <algorithm>
#include <map>
#include <utility>

#include <fmt/format.h>

namespace orvane::protocol {

std::vector<DiagnosticGroup> groupDiagnostics(const std::vector<Diagnostic>& diagnostics) {
    std::vector<DiagnosticGroup> groups;
    std::map<std::pair<DiagnosticKind, std::string>, std::size_t> indices;
    for (const Diagnostic& diagnostic : diagnostics) {
        const auto [found, isNew] = indices.try_emplace({diagnostic.kind, diagnostic.message}, groups.size());
        if (isNew)
            groups.push_back({diagnostic.kind, diagnostic.message, {}, 0});
        DiagnosticGroup& group = groups[found->second];
        ++group.count;
        if (diagnostic.page > 0)
            group.pages.push_back(diagnostic.page);
    }
    for (DiagnosticGroup& group : groups) {
        std::sort(group.pages.begin(), group.pages.end());
        group.pages.erase(std::unique(group.pages.begin(), group.pages.end()), group.pages.end());
    }
    return groups;
}

std::string formatPages(const std::vector<int>& pages) {
    std::string text;
    for (std::size_t first = 0; first < pages.size();) {
        std::size_t last = first;
        while (last + 1 < pages.size() && pages[last + 1] == pages[last] + 1)
            ++last;
        if (!text.empty())
            text += ", ";
        text += last == first ? fmt::format("{}", pages[first]) : fmt::format("{}-{}", pages[first], pages[last]);
        first = last + 1;
    }
    return text;
}

} // namespace orvane::protocol
