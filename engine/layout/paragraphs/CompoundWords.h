#pragma once

#include <set>
#include <string>
#include <unordered_set>

namespace orvane::layout {

/// What the words of a document show of its compounds: "well-known" and "low-dimensional" tell that "well-" may begin
/// one and "-dimensional" end one.
class CompoundWords {
public:
    CompoundWords() = default;
    /// `vocabulary`: words that stand whole within a line, lower case.
    explicit CompoundWords(const std::unordered_set<std::string>& vocabulary);

    /// True when compounds start with that word, and no word written in one does: a hyphen behind it was typed.
    bool surelyBegins(const std::string& word) const;
    /// True when compounds end with that word.
    bool mayEnd(const std::string& word) const { return m_ends.contains(word); }

private:
    std::set<std::string> m_plain; ///< words without hyphens
    std::unordered_set<std::string> m_beginnings;
    std::unordered_set<std::string> m_ends;
};

} // namespace orvane::layout
