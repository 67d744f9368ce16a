#include "write/StoredBox.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvane::write {

StoredBox storedBox(const document::Placement& placement, Emu width, Emu height, double rotation) {
    auto x = static_cast<double>(placement.x.value);
    auto y = static_cast<double>(placement.y.value);
    auto across = static_cast<double>(width.value);
    auto down = static_cast<double>(height.value);
    const double turn = std::fmod(std::fmod(rotation, 360) + 360, 360);
    if ((turn >= 45 && turn < 135) || (turn >= 225 && turn < 315)) {
        x += (across - down) / 2;
        y += (down - across) / 2;
        std::swap(across, down);
    }
    return {x, y, x + across, y + down};
}

std::int64_t storedTwips(double emu) {
    constexpr double kEmuATwip = 635;
    constexpr double kMost = 1e6;
    return std::llround(std::clamp(emu / kEmuATwip, -kMost, kMost));
}

} // namespace orvane::write
