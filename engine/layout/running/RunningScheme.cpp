#include "layout/running/RunningScheme.h"

#include "layout/support/Tally.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string>

namespace orvane::layout {
namespace {

/// What the heads of a page say and how; both empty for a page without.
struct HeadKey {
    std::string text;
    std::string rules;
};

HeadKey keyOf(const PageRunningHeads& heads) {
    HeadKey key;
    if (heads.header)
        key = {heads.header->key, heads.header->rules};
    if (heads.footer)
        key = {key.text + '\f' + heads.footer->key, key.rules + '\f' + heads.footer->rules};
    return key;
}

/// The rules that most pages of one text have. A page without them has them in a drawing that touches them.
std::map<std::string, std::string> usualRules(const std::vector<HeadKey>& keys) {
    std::map<std::string, Tally<std::string>> seen;
    for (const HeadKey& key : keys)
        seen[key.text].add(key.rules);
    std::map<std::string, std::string> usual;
    for (const auto& [text, rules] : seen)
        usual.emplace(text, *rules.heaviest());
    return usual;
}

bool isBlank(const std::string& key) {
    return key.find_first_not_of("\f\n") == std::string::npos;
}

class SchemeFinder {
public:
    SchemeFinder(const std::vector<PageRunningHeads>& heads, const std::vector<SectionChance>& chances)
        : m_chances(chances) {
        std::vector<HeadKey> keys;
        std::transform(heads.begin(), heads.end(), std::back_inserter(keys), keyOf);
        const std::map<std::string, std::string> usual = usualRules(keys);
        for (std::size_t i = 0; i < heads.size(); ++i) {
            const HeadKey& key = keys[i];
            m_isWhole.push_back(isBlank(key.text) || !isBlank(key.rules) || isBlank(usual.at(key.text)));
            m_keys.push_back(key.text + (m_isWhole.back() ? key.rules : usual.at(key.text)));
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
            showWhole(schemes.back());
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
            const std::size_t own = explained(scheme), sofar = explained(best);
            if (own > sofar || (own == sofar && mistakes(scheme) < mistakes(best)))
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

    /// Names pages that show the heads with their rules, if there are any.
    void showWhole(RunningScheme& scheme) const {
        scheme.standard = wholePage(scheme, scheme.standard);
        if (scheme.even)
            scheme.even = wholePage(scheme, *scheme.even);
    }

    std::size_t wholePage(const RunningScheme& scheme, std::size_t like) const {
        for (std::size_t page = like; page <= scheme.lastPage; ++page)
            if (m_isWhole[page] && m_keys[page] == m_keys[like])
                return page;
        return like;
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

    std::size_t countRight(const RunningScheme& scheme) const {
        std::size_t count = 0;
        for (std::size_t page = scheme.firstPage; page <= scheme.lastPage; ++page)
            count += fits(scheme, page);
        return count;
    }

    /// Pages that would show another page's head.
    std::size_t mistakes(const RunningScheme& scheme) const {
        return scheme.lastPage + 1 - scheme.firstPage - countRight(scheme);
    }

    /// Pages that the scheme has right, less what a first page of its own or even pages cost: these count only for what
    /// they make possible.
    std::size_t explained(const RunningScheme& scheme) const {
        const std::size_t count = countRight(scheme);
        const std::size_t cost = (scheme.even ? 1 : 0) + (scheme.hasOwnFirstPage ? 1 : 0);
        return count > cost ? count - cost : 0;
    }

    const std::vector<SectionChance>& m_chances;
    std::vector<std::string> m_keys;
    std::vector<bool> m_isEven;
    std::vector<bool> m_isWhole; ///< the page's heads have the rules that go with their text
};

} // namespace

std::vector<RunningScheme> findSchemes(const std::vector<PageRunningHeads>& heads,
                                       const std::vector<SectionChance>& chances) {
    return SchemeFinder(heads, chances).find();
}

} // namespace orvane::layout
