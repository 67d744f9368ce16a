#pragma once

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

namespace orvane::layout {

/// Counts equal values by weight. Meant for few different values: each is compared with all before it.
template<typename T>
class Tally {
public:
    void add(const T& value, double weight = 1) {
        const auto found =
            std::find_if(m_counts.begin(), m_counts.end(), [&](const auto& count) { return count.first == value; });
        if (found == m_counts.end())
            m_counts.emplace_back(value, weight);
        else
            found->second += weight;
    }
    /// The value with the greatest weight, the first of equals; null when nothing was counted.
    const T* heaviest() const {
        const auto found = std::max_element(m_counts.begin(), m_counts.end(),
                                            [](const auto& a, const auto& b) { return a.second < b.second; });
        return found == m_counts.end() ? nullptr : &found->first;
    }
    /// All values with their weights, in the order in which they were first counted.
    const std::vector<std::pair<T, double>>& counts() const { return m_counts; }
    double weightOf(const T& value) const {
        for (const auto& [counted, weight] : m_counts)
            if (counted == value)
                return weight;
        return 0;
    }

private:
    std::vector<std::pair<T, double>> m_counts;
};

/// A range of values that lie close to each other.
struct DenseRange {
    double mean = 0;
    std::size_t count = 0; ///< values in it
};

/// The `width` wide range in which most of the values lie; of equal ones the lowest. Its count is 0 without values.
inline DenseRange densestRange(std::vector<double> values, double width) {
    std::sort(values.begin(), values.end());
    std::size_t bestFrom = 0, bestTo = 0, from = 0;
    for (std::size_t to = 1; to <= values.size(); ++to) {
        while (values[to - 1] - values[from] > width)
            ++from;
        if (to - from > bestTo - bestFrom) {
            bestFrom = from;
            bestTo = to;
        }
    }
    const auto at = [&values](std::size_t i) { return values.begin() + static_cast<std::ptrdiff_t>(i); };
    const std::size_t count = bestTo - bestFrom;
    const double sum = std::accumulate(at(bestFrom), at(bestTo), 0.0);
    return {count == 0 ? 0 : sum / static_cast<double>(count), count};
}

/// The middle of that range, as its mean; nullopt without values.
inline std::optional<double> mostFrequent(std::vector<double> values, double width) {
    const DenseRange range = densestRange(std::move(values), width);
    return range.count == 0 ? std::nullopt : std::optional(range.mean);
}

} // namespace orvane::layout
