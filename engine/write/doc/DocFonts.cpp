#include "write/doc/DocFonts.h"

#include "write/FontKinds.h"
#include "write/doc/Bytes.h"

namespace orvane::write::doc {
namespace {

constexpr std::size_t kLongestName = 64;
constexpr int kTrueType = 0x04;
constexpr int kNormalWeight = 400;
constexpr int kSymbols = 2; ///< Source: [MS-DOC] 2.9.91 (FFN, chs)

/// Source: [MS-DOC] 2.9.90 (FfdIdBits: pitch, family).
int idBits(FontKind kind) {
    constexpr int kFixedPitch = 1;
    constexpr int kVariablePitch = 2;
    const int pitch = kind == FontKind::Modern ? kFixedPitch : kVariablePitch;
    const auto family = [kind] {
        switch (kind) {
        case FontKind::Unknown:
            return 0;
        case FontKind::Roman:
            return 1;
        case FontKind::Swiss:
            return 2;
        case FontKind::Modern:
            return 3;
        case FontKind::Script:
            return 4;
        }
        return 0;
    }();
    return pitch | kTrueType | family << 4;
}

} // namespace

int DocFonts::numberOf(std::string_view family) {
    const auto [found, isNew] = m_numbers.try_emplace(std::string(family), static_cast<int>(m_families.size()));
    if (isNew)
        m_families.push_back(found->first);
    return found->second;
}

std::string DocFonts::table() const {
    Bytes table;
    table.u16(static_cast<std::int64_t>(m_families.size())).u16(0);
    for (const std::string& family : m_families) {
        Bytes font;
        font.u8(idBits(fontKindOf(family))).u16(kNormalWeight);
        font.u8(isSymbolFont(family) ? kSymbols : 0).u8(0).zeros(10 + 24);
        font.characters(utf16FromUtf8(family).substr(0, kLongestName)).u16(0);
        table.u8(static_cast<std::int64_t>(font.size())).raw(font.str());
    }
    return table.str();
}

} // namespace orvane::write::doc
