#include "layout/paragraphs/CompoundWords.h"

namespace orvane::layout {

CompoundWords::CompoundWords(const std::unordered_set<std::string>& vocabulary) {
    for (const std::string& word : vocabulary) {
        const std::size_t first = word.find('-');
        if (first == std::string::npos) {
            m_plain.insert(word);
            continue;
        }
        const std::size_t last = word.rfind('-');
        if (first > 0)
            m_beginnings.insert(word.substr(0, first));
        if (last + 1 < word.size())
            m_ends.insert(word.substr(last + 1));
    }
}

bool CompoundWords::surelyBegins(const std::string& word) const {
    if (!m_beginnings.contains(word))
        return false;
    // "well" and "wells" are one word.
    constexpr std::size_t kEnding = 1;
    for (auto next = m_plain.upper_bound(word); next != m_plain.end() && next->starts_with(word); ++next)
        if (next->size() > word.size() + kEnding)
            return false;
    return true;
}

} // namespace orvane::layout
