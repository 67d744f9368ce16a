#include "layout/text/TextStrip.h"

#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

bool continues(const TextStrip& strip, const Cluster& next, const TextParameters::Rows& limits) {
    const Cluster& last = strip.clusters.back();
    const double size = std::min(last.size, next.size);
    const double gap = next.start - last.end;
    return next.frame == strip.frame && std::abs(next.baseline - last.baseline) <= limits.stripRise * size &&
           std::abs(next.size - last.size) <= limits.stripSizeChange * size && gap >= -limits.stripBackstep * size &&
           gap <= limits.stripGap * size;
}

void measure(TextStrip& strip) {
    strip.inkCount = 0;
    strip.start = strip.clusters.front().start;
    strip.end = strip.clusters.back().end;
    for (const Cluster& cluster : strip.clusters) {
        if (isBlank(cluster.text))
            continue;
        strip.start = strip.inkCount == 0 ? cluster.start : std::min(strip.start, cluster.start);
        strip.end = strip.inkCount == 0 ? cluster.end : std::max(strip.end, cluster.end);
        ++strip.inkCount;
    }
}

TextStrip stripOf(Cluster cluster) {
    TextStrip strip;
    strip.frame = cluster.frame;
    strip.baseline = cluster.baseline;
    strip.size = cluster.size;
    strip.clusters.push_back(std::move(cluster));
    return strip;
}

} // namespace

std::vector<TextStrip> cutStrips(std::vector<Cluster> clusters, const TextParameters& parameters) {
    std::vector<TextStrip> strips;
    for (Cluster& cluster : clusters) {
        if (!strips.empty() && continues(strips.back(), cluster, parameters.rows))
            strips.back().clusters.push_back(std::move(cluster));
        else
            strips.push_back(stripOf(std::move(cluster)));
    }
    for (TextStrip& strip : strips)
        measure(strip);
    return strips;
}

} // namespace orvane::layout
