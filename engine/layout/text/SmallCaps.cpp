#include "layout/text/SmallCaps.h"

#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::layout {
namespace {

using document::VerticalPosition;

/// The sizes of small caps and of the capitals they go with.
struct Sizes {
    double small = 0;
    double capital = 0;
};

/// Looks for a word that begins with a capital and goes on in smaller ones.
Sizes findSizes(const std::vector<Cluster>& clusters, const TextParameters::SmallCaps& limits) {
    for (std::size_t i = 1; i < clusters.size(); ++i) {
        const Cluster& capital = clusters[i - 1];
        const Cluster& small = clusters[i];
        if (small.gapBefore.kind != Gap::None || !isUpperCase(capital.text.front()) ||
            !isUpperCase(small.text.front()) || capital.look.verticalPosition != VerticalPosition::Baseline ||
            small.look.verticalPosition != VerticalPosition::Baseline)
            continue;
        const double ratio = small.look.size / capital.look.size;
        if (ratio >= limits.smallestRatio && ratio <= limits.largestRatio &&
            std::abs(small.baseline - capital.baseline) <= limits.sameBaseline * capital.size)
            return {small.look.size, capital.look.size};
    }
    return {};
}

} // namespace

void findSmallCaps(TextRow& line, const TextParameters& parameters) {
    const TextParameters::SmallCaps& limits = parameters.smallCaps;
    std::vector<Cluster>& clusters = line.clusters;
    const Sizes sizes = findSizes(clusters, limits);
    if (sizes.capital == 0)
        return;
    const auto isSmall = [&](const Cluster& cluster) {
        return std::abs(cluster.look.size - sizes.small) <= limits.sameSize;
    };
    // Small letters of that size show that it is a size of its own.
    if (std::any_of(clusters.begin(), clusters.end(),
                    [&](const Cluster& c) { return isSmall(c) && isLowerCase(c.text.front()); }))
        return;
    for (Cluster& cluster : clusters) {
        if (!isSmall(cluster))
            continue;
        for (char32_t& c : cluster.text)
            c = toLowerCase(c);
        cluster.look.size = sizes.capital;
        cluster.look.isSmallCaps = true;
    }
    if (std::abs(line.fontSize - sizes.small) <= limits.sameSize)
        line.fontSize = sizes.capital;
}

} // namespace orvane::layout
