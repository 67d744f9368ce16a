#include "write/doc/Bytes.h"

#include "base/Utf8.h"

namespace orvane::write::doc {

std::u16string utf16FromUtf8(std::string_view text) {
    std::u16string units;
    for (const char32_t c : utf32FromUtf8(text)) {
        if (c < 0x10000) {
            units += static_cast<char16_t>(c);
            continue;
        }
        const char32_t offset = c - 0x10000;
        units += static_cast<char16_t>(0xD800 + (offset >> 10));
        units += static_cast<char16_t>(0xDC00 + (offset & 0x3FF));
    }
    return units;
}

} // namespace orvane::write::doc
