#include "write/LineParts.h"

#include <algorithm>
#include <cmath>

namespace orvane::write {
namespace {

constexpr int kParts = 240;
constexpr int kMostParts = 31680; ///< beyond a page's largest height readers refuse it

int wholePercents(int parts) {
    return parts * 100 / kParts;
}

} // namespace

int lineParts(double multiple) {
    const auto parts = static_cast<int>(std::clamp<long>(std::lround(multiple * kParts), 1, kMostParts));
    return wholePercents(parts + 1) > wholePercents(parts) && parts * 100 % kParts >= kParts / 2 ? parts + 1 : parts;
}

} // namespace orvane::write
