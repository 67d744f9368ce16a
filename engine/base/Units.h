#pragma once

#include <cmath>
#include <compare>
#include <cstdint>

namespace orvane {

/// A length or position in units of one kind, so that points and twips cannot be mixed by accident.
template<typename Tag, typename Rep>
struct Quantity {
    Rep value{};

    constexpr Quantity() = default;
    constexpr explicit Quantity(Rep v) : value(v) {}

    constexpr auto operator<=>(const Quantity&) const = default;
    constexpr Quantity operator-() const { return Quantity(-value); }
    constexpr Quantity& operator+=(Quantity other) {
        value += other.value;
        return *this;
    }
    friend constexpr Quantity operator+(Quantity a, Quantity b) { return Quantity(a.value + b.value); }
    friend constexpr Quantity operator-(Quantity a, Quantity b) { return Quantity(a.value - b.value); }
};

/// 1/20 point, the unit of word processors. Source: ECMA-376 part 1, 22.9.2.14 (ST_TwipsMeasure).
using Twips = Quantity<struct TwipsTag, std::int32_t>;
/// 1/2 point, the unit of font sizes. Source: ECMA-376 part 1, 22.9.2.2 (ST_HpsMeasure).
using HalfPoints = Quantity<struct HalfPointsTag, std::int32_t>;
/// 1/8 point, the unit of border widths. Source: ECMA-376 part 1, 17.18.21 (ST_EighthPointMeasure).
using EighthPoints = Quantity<struct EighthPointsTag, std::int32_t>;
/// 1/12700 point, the unit of drawings. Source: ECMA-376 part 1, 20.1.10.16 (ST_Coordinate).
using Emu = Quantity<struct EmuTag, std::int64_t>;

// Layout computes in points (double, 1/72 inch); the document model and the writers speak the units above.
inline Twips twipsFromPoints(double points) { return Twips(static_cast<std::int32_t>(std::lround(points * 20.0))); }
inline HalfPoints halfPointsFromPoints(double points) { return HalfPoints(static_cast<std::int32_t>(std::lround(points * 2.0))); }
inline EighthPoints eighthPointsFromPoints(double points) { return EighthPoints(static_cast<std::int32_t>(std::lround(points * 8.0))); }
inline Emu emuFromPoints(double points) { return Emu(std::llround(points * 12700.0)); }
constexpr double pointsFromTwips(Twips twips) { return twips.value / 20.0; }
constexpr Emu emuFromTwips(Twips twips) { return Emu(std::int64_t{twips.value} * 635); }

} // namespace orvane
