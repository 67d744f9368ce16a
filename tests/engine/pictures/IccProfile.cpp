#include "IccProfile.h"

#include "BitWriter.h"

#include <cmath>
#include <utility>
#include <vector>

namespace orvane::pictures {
namespace {

struct Xyz {
    double x;
    double y;
    double z;
};

/// Of sRGB, as seen in the white of profiles. Source: IEC 61966-2-1 with the adaptation of ICC.1:2001-04, annex E.
constexpr Xyz kRed{0.4361, 0.2225, 0.0139};
constexpr Xyz kGreen{0.3851, 0.7169, 0.0971};
constexpr Xyz kBlue{0.1431, 0.0606, 0.7141};
constexpr Xyz kWhite{0.9642, 1.0, 0.8249};

void putFixed(double value, BitWriter& bits) {
    bits.put(static_cast<std::uint32_t>(std::lround(value * 65536)), 32);
}

void putText(const std::string& text, BitWriter& bits) {
    for (const char c : text)
        bits.put(static_cast<unsigned char>(c), 8);
}

std::string colorTag(Xyz color) {
    BitWriter bits;
    putText("XYZ ", bits);
    bits.put(0, 32);
    putFixed(color.x, bits);
    putFixed(color.y, bits);
    putFixed(color.z, bits);
    return bits.bytes();
}

std::string curveTag() {
    BitWriter bits;
    putText("curv", bits);
    bits.put(0, 32);
    bits.put(1, 32);
    bits.put(static_cast<std::uint32_t>(2.2 * 256), 16);
    bits.put(0, 16); // tags begin at multiples of four
    return bits.bytes();
}

std::string descriptionTag() {
    BitWriter bits;
    putText("desc", bits);
    bits.put(0, 32);
    bits.put(5, 32);
    putText(std::string("test\0", 5), bits);
    for (int i = 0; i < 79; ++i) // no names in other scripts
        bits.put(0, 8);
    return bits.bytes();
}

std::string profile(const std::string& space, const std::vector<std::pair<std::string, std::string>>& tags) {
    BitWriter table;
    std::string data;
    table.put(static_cast<std::uint32_t>(tags.size()), 32);
    constexpr std::size_t kHeaderLength = 128;
    const std::size_t dataStart = kHeaderLength + 4 + tags.size() * 12;
    for (const auto& [name, tag] : tags) {
        putText(name, table);
        table.put(static_cast<std::uint32_t>(dataStart + data.size()), 32);
        table.put(static_cast<std::uint32_t>(tag.size()), 32);
        data += tag;
    }
    BitWriter header;
    header.put(static_cast<std::uint32_t>(dataStart + data.size()), 32);
    header.put(0, 32);
    header.put(0x02100000, 32); // version 2.1
    putText("mntr" + space + "XYZ ", header);
    for (int i = 0; i < 3; ++i) // no date
        header.put(0, 32);
    putText("acsp", header);
    for (int i = 0; i < 7; ++i)
        header.put(0, 32);
    putFixed(kWhite.x, header);
    putFixed(kWhite.y, header);
    putFixed(kWhite.z, header);
    std::string bytes = header.bytes();
    bytes.resize(kHeaderLength);
    return bytes + table.bytes() + data;
}

} // namespace

std::string rgbProfile(Primaries primaries) {
    const bool isTurned = primaries == Primaries::Turned;
    return profile("RGB ", {{"desc", descriptionTag()},
                            {"wtpt", colorTag(kWhite)},
                            {"rXYZ", colorTag(isTurned ? kGreen : kRed)},
                            {"gXYZ", colorTag(isTurned ? kBlue : kGreen)},
                            {"bXYZ", colorTag(isTurned ? kRed : kBlue)},
                            {"rTRC", curveTag()},
                            {"gTRC", curveTag()},
                            {"bTRC", curveTag()}});
}

std::string grayProfile() {
    return profile("GRAY", {{"desc", descriptionTag()}, {"wtpt", colorTag(kWhite)}, {"kTRC", curveTag()}});
}

} // namespace orvane::pictures
