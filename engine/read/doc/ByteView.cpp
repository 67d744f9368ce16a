#include "read/doc/ByteView.h"

#include "base/Utf8.h"

#include <fmt/format.h>

namespace orvane::read::doc {

ByteView ByteView::part(std::size_t at, std::size_t size) const {
    if (at > m_bytes.size() || size > m_bytes.size() - at)
        throw Damage(fmt::format("{} bytes at {} are beyond the {} of {}", size, at, m_bytes.size(), m_name));
    return {m_bytes.substr(at, size), m_name};
}

ByteView ByteView::from(std::size_t at) const {
    return part(at, at > m_bytes.size() ? 0 : m_bytes.size() - at);
}

std::uint32_t ByteView::number(std::size_t at, std::size_t size) const {
    std::uint32_t value = 0;
    unsigned shift = 0;
    for (const char byte : part(at, size).bytes()) {
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(byte)) << shift;
        shift += 8;
    }
    return value;
}

std::string ByteView::text(std::size_t at, std::size_t count) const {
    constexpr std::size_t kUnit = 2;
    const ByteView units = part(at, count * kUnit);
    std::u16string characters;
    for (std::size_t i = 0; i < count; ++i)
        characters += static_cast<char16_t>(units.u16(kUnit * i));
    return utf8FromUtf16(characters);
}

std::string utf8FromUtf16(std::u16string_view text) {
    const auto isHigh = [](char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
    const auto isLow = [](char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
    std::u32string characters;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isHigh(text[i]) && i + 1 < text.size() && isLow(text[i + 1])) {
            characters += 0x10000 + ((text[i] - 0xD800U) << 10) + (text[i + 1] - 0xDC00U);
            ++i;
        } else {
            characters += text[i];
        }
    }
    return utf8FromUtf32(characters);
}

} // namespace orvane::read::doc
