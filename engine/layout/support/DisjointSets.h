#pragma once

#include <cstddef>
#include <numeric>
#include <vector>

namespace orvane::layout {

/// Numbers 0 to n-1 in sets that can be united.
class DisjointSets {
public:
    explicit DisjointSets(std::size_t count)
        : m_parent(count) {
        std::iota(m_parent.begin(), m_parent.end(), std::size_t{0});
    }

    std::size_t find(std::size_t i) {
        while (m_parent[i] != i)
            i = m_parent[i] = m_parent[m_parent[i]];
        return i;
    }
    void unite(std::size_t a, std::size_t b) { m_parent[find(a)] = find(b); }

    /// The sets by their smallest member, each ascending.
    std::vector<std::vector<std::size_t>> groups() {
        std::vector<std::vector<std::size_t>> result;
        std::vector<std::size_t> groupOfRoot(m_parent.size(), m_parent.size());
        for (std::size_t i = 0; i < m_parent.size(); ++i) {
            std::size_t& group = groupOfRoot[find(i)];
            if (group == m_parent.size()) {
                group = result.size();
                result.emplace_back();
            }
            result[group].push_back(i);
        }
        return result;
    }

private:
    std::vector<std::size_t> m_parent;
};

} // namespace orvane::layout
