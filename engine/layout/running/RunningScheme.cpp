#include "layout/running/RunningScheme.h"

#include <algorithm>
#include <string>

namespace orvane::layout {
namespace {

/// What the heads of a page say; empty for a page without.
std::string keyOf(const PageRunningHeads& heads) {
    std::string key = heads.header ? heads.header->key : "";
    if (heads.footer)
        key += '\f' + heads.footer->key;
    return key;
}

class SchemeFinder {
public:
    SchemeFinder(const std::vector<PageRunningHeads>& heads, const std::vector<SectionChance>& chances)
        : m_chances(chances) {
        for (std::size_t i = 0; i < heads.size(); ++i) {
            m_keys.push_back(keyOf(heads[i]));
            m_isEven.push_back((heads[i].number ? heads[i].number->value : static_cast<int>(i) + 1) % 2 == 0);
        }
    }

    std::vector<RunningScheme> find() const {
        std::vector<RunningScheme> schemes;
        for (std::size_t start = 0; start < m_keys.size();) {
            std::size_t limit = start + 1;
            while (limit < m_keys.size() && m_chances[limit] != SectionChance::Must)
                ++limit;
            schemes.push_back(schemeFrom(start, limit));
            start = schemes.back().lastPage + 1;
        }
        return schemes;
    }

private:
    /// The longest stretch from `start`, before `limit`, that one scheme explains.
    RunningScheme schemeFrom(std::size_t start, std::size_t limit) const {
        RunningScheme best = extend({start, start, start, std::nullopt, false}, limit);
        const auto consider = [&](RunningScheme scheme) {
            scheme = extend(scheme, limit);
            if (explained(scheme) > explained(best))
                best = scheme;
        };
        if (start + 1 < limit)
            consider({start, start, start + 1, std::nullopt, true});
        if (start + 2 < limit)
            consider(alternating(start, start));
        if (start + 3 < limit)
            consider(alternating(start, start + 1));
        return best;
    }

    /// A scheme whose odd and even pages differ, the first two of them at `first`.
    RunningScheme alternating(std::size_t start, std::size_t first) const {
        const std::size_t even = m_isEven[first] ? first : first + 1;
        const std::size_t odd = m_isEven[first] ? first + 1 : first;
        return {start, start, odd, even, first != start};
    }

    bool fits(const RunningScheme& scheme, std::size_t page) const {
        if (page == scheme.firstPage && scheme.hasOwnFirstPage)
            return true;
        const std::size_t expected = scheme.even && m_isEven[page] ? *scheme.even : scheme.standard;
        return m_keys[page] == m_keys[expected];
    }

    /// Goes on over pages that fit, over single pages that do not, and over those at which no section may begin.
    RunningScheme extend(RunningScheme scheme, std::size_t limit) const {
        std::size_t page = scheme.firstPage;
        while (page + 1 < limit) {
            const std::size_t next = page + 1;
            const bool isStray = m_keys[next].empty() && next + 1 < limit && fits(scheme, next + 1);
            if (!fits(scheme, next) && !isStray && m_chances[next] != SectionChance::None)
                break;
            page = next;
        }
        scheme.lastPage = page;
        return scheme;
    }

    /// Pages that the scheme has right; a first page of its own counts only for what it makes possible.
    std::size_t explained(const RunningScheme& scheme) const {
        std::size_t count = 0;
        for (std::size_t page = scheme.firstPage; page <= scheme.lastPage; ++page)
            count += fits(scheme, page);
        const std::size_t cost = (scheme.even ? 1 : 0) + (scheme.hasOwnFirstPage ? 1 : 0);
        return count > cost ? count - cost : 0;
    }

    const std::vector<SectionChance>& m_chances;
    std::vector<std::string> m_keys;
    std::vector<bool> m_isEven;
};

} // namespace

std::vector<RunningScheme> findSchemes(const std::vector<PageRunningHeads>& heads,
                                       const std::vector<SectionChance>& chances) {
    return SchemeFinder(heads, chances).find();
}

} // namespace orvane::layout
