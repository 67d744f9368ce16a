#pragma once

#include "layout/structure/DocumentDraft.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace orvane::layout {

/// What is out of sight of the values of a form: their fields are too small for them, or were scrolled.
class UnseenValues {
public:
    UnseenValues() = default;
    /// Requires: the draft is not changed as long as this is asked.
    explicit UnseenValues(const DocumentDraft& draft);

    /// What comes before the first characters that are seen of a field, where they are the span's; empty elsewhere.
    std::string_view before(const Span& span) const { return find(m_before, span); }
    /// What comes behind the last ones.
    std::string_view after(const Span& span) const { return find(m_after, span); }

private:
    using Texts = std::unordered_map<const Span*, std::string>;

    static std::string_view find(const Texts& texts, const Span& span) {
        const auto found = texts.find(&span);
        return found == texts.end() ? std::string_view() : std::string_view(found->second);
    }

    Texts m_before;
    Texts m_after;
};

} // namespace orvane::layout
