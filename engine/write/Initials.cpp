#include "write/Initials.h"

#include "base/Utf8.h"

namespace orvane::write {

std::string initialsOf(const std::string& author) {
    std::u32string initials;
    bool isNameStart = true;
    for (const char32_t c : utf32FromUtf8(author)) {
        if (isNameStart && c > ' ')
            initials += c;
        isNameStart = c <= ' ';
    }
    return utf8FromUtf32(initials.substr(0, 3));
}

} // namespace orvane::write
