#include "write/StoredGradient.h"

#include <cmath>

namespace orvane::write {

using namespace document;

bool isStoredAsGradient(const Shape& shape) {
    return shape.gradient && shape.gradient->kind == GradientKind::Linear;
}

std::int64_t storedGradientAngle(const Gradient& gradient) {
    constexpr double kBinaryPlaces = 65536;
    constexpr double kUpwards = 270, kFullTurn = 360;
    return std::llround(std::fmod(kUpwards - gradient.angle + kFullTurn, kFullTurn) * kBinaryPlaces);
}

} // namespace orvane::write
