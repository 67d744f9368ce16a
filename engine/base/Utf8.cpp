#include "base/Utf8.h"

namespace orvane {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isScalar(char32_t c) {
    return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF);
}

/// How many bytes the sequence that starts with `lead` has; 0 for a byte that starts none.
int sequenceLength(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    if (lead >= 0xF0 && lead < 0xF5)
        return 4;
    return 0;
}

/// The character at the start of `text` and how many bytes it takes; the replacement and 1 when there is no valid one.
std::pair<char32_t, std::size_t> decodeFirst(std::string_view text) {
    constexpr char32_t kSmallest[5] = {0, 0, 0x80, 0x800, 0x10000};
    constexpr unsigned char kLeadBits[5] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto length = static_cast<std::size_t>(sequenceLength(byteAt(0)));
    if (length == 0 || length > text.size())
        return {kReplacement, 1};
    char32_t character = byteAt(0) & kLeadBits[length];
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80)
            return {kReplacement, 1};
        character = (character << 6) | (byteAt(i) & 0x3Fu);
    }
    if (character < kSmallest[length] || !isScalar(character))
        return {kReplacement, 1};
    return {character, length};
}

void appendEncoded(std::string& out, char32_t c) {
    const auto put = [&out](char32_t byte) { out += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0 | (c >> 6));
        put(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        put(0xE0 | (c >> 12));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    } else {
        put(0xF0 | (c >> 18));
        put(0x80 | ((c >> 12) & 0x3F));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    }
}

} // namespace

std::u32string utf32FromUtf8(std::string_view text) {
    std::u32string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const auto [character, length] = decodeFirst(text);
        out += character;
        text.remove_prefix(length);
    }
    return out;
}

std::string utf8FromUtf32(std::u32string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char32_t c : text)
        appendEncoded(out, isScalar(c) ? c : kReplacement);
    return out;
}

} // namespace orvane
