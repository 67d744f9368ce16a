#include "layout/support/Stretches.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// How many spaces between `stretches` lie within one of the `others`.
int countSpanned(const std::vector<Stretch>& stretches, const std::vector<Stretch>& others) {
    int spanned = 0;
    auto other = others.begin();
    for (std::size_t i = 1; i < stretches.size(); ++i) {
        while (other != others.end() && other->to < stretches[i].from)
            ++other;
        spanned += other != others.end() && other->from <= stretches[i - 1].to;
    }
    return spanned;
}

} // namespace

std::vector<Stretch> stretchesOf(std::vector<double> places, double step) {
    std::sort(places.begin(), places.end());
    std::vector<Stretch> stretches;
    for (const double place : places) {
        if (stretches.empty() || place - stretches.back().to > step)
            stretches.push_back({place, place});
        stretches.back().to = place;
    }
    return stretches;
}

bool runPastEachOther(const std::vector<Stretch>& some, const std::vector<Stretch>& others, int fewest) {
    return countSpanned(some, others) >= fewest && countSpanned(others, some) >= fewest;
}

} // namespace orvane::layout
