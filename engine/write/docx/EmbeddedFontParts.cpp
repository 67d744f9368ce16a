#include "write/docx/EmbeddedFontParts.h"

#include "write/docx/Deflater.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace orvane::write::docx {
namespace {

constexpr const char* kContentType = "application/vnd.openxmlformats-officedocument.obfuscatedFont";
constexpr std::size_t kKeyBytes = 16;
constexpr std::size_t kHiddenBytes = 32; ///< of the file; the key goes over them twice

/// Source: the hash FNV-1a of 64 bits.
std::uint64_t hashOf(std::string_view bytes, std::uint64_t hash) {
    for (const char c : bytes)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3ULL;
    return hash;
}

/// The key's bytes, the last digits first.
std::string bytesOfKey(std::string_view key) {
    std::string digits(key);
    std::erase_if(digits, [](char c) { return c == '{' || c == '}' || c == '-'; });
    std::string bytes;
    for (std::size_t i = digits.size(); i >= 2; i -= 2)
        bytes += static_cast<char>(std::stoi(digits.substr(i - 2, 2), nullptr, 16));
    return bytes;
}

const char* elementOf(const document::EmbeddedFont& font) {
    if (font.isBold)
        return font.isItalic ? "w:embedBoldItalic" : "w:embedBold";
    return font.isItalic ? "w:embedItalic" : "w:embedRegular";
}

/// In the order in which the font table has its elements.
int rankOf(const document::EmbeddedFont& font) {
    return (font.isBold ? 1 : 0) + (font.isItalic ? 2 : 0);
}

} // namespace

std::string fontKey(std::string_view program) {
    constexpr std::uint64_t kBasis = 0xCBF29CE484222325ULL;
    const std::uint64_t high = hashOf(program, kBasis), low = hashOf(program, high);
    return fmt::format("{{{:08X}-{:04X}-{:04X}-{:04X}-{:012X}}}", high >> 32U, high >> 16U & 0xFFFFU, high & 0xFFFFU,
                       low >> 48U, low & 0xFFFFFFFFFFFFULL);
}

std::string obfuscated(std::string program, std::string_view key) {
    const std::string bytes = bytesOfKey(key);
    for (std::size_t i = 0; i < std::min(kHiddenBytes, program.size()); ++i)
        program[i] = static_cast<char>(program[i] ^ bytes[i % kKeyBytes]);
    return program;
}

void embedFonts(const document::Document& document, std::string_view family, XmlWriter& xml,
                Relationships& relationships, Package& package) {
    std::vector<const document::EmbeddedFont*> faces;
    for (const document::EmbeddedFont& font : document.fonts)
        if (font.family == family)
            faces.push_back(&font);
    std::sort(faces.begin(), faces.end(), [](const auto* a, const auto* b) { return rankOf(*a) < rankOf(*b); });
    for (const document::EmbeddedFont* font : faces) {
        const std::string key = fontKey(font->program);
        const std::string name = fmt::format("fonts/font{}.odttf", 1 + (font - document.fonts.data()));
        Deflater deflater;
        deflater.add(obfuscated(font->program, key));
        package.addPart("word/" + name, kContentType, deflater.finish());
        xml.leaf(elementOf(*font), {{"r:id", relationships.add("font", name)}, {"w:fontKey", key}, {"w:subsetted", 1}});
    }
}

} // namespace orvane::write::docx
