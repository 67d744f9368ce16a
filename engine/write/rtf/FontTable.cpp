#include "write/rtf/FontTable.h"

#include "write/FontKinds.h"

#include <algorithm>

namespace orvane::write::rtf {
namespace {

const char* wordFor(FontKind kind) {
    switch (kind) {
    case FontKind::Unknown:
        return "fnil";
    case FontKind::Roman:
        return "froman";
    case FontKind::Swiss:
        return "fswiss";
    case FontKind::Modern:
        return "fmodern";
    case FontKind::Script:
        return "fscript";
    }
    return "fnil";
}

constexpr int kFixedPitch = 1;
constexpr int kVariablePitch = 2;
constexpr int kSymbols = 2; ///< Source: RTF 1.9.1, "Font Table" (\fcharset)

} // namespace

int FontTable::numberOf(std::string_view family) {
    // A semicolon ends a font's name in the file.
    std::string name(family);
    std::replace(name.begin(), name.end(), ';', ' ');
    const auto [found, isNew] = m_numbers.try_emplace(std::move(name), static_cast<int>(m_families.size()));
    if (isNew)
        m_families.push_back(found->first);
    return found->second;
}

void FontTable::write(RtfStream& rtf) const {
    const RtfGroup table(rtf, "fonttbl");
    for (std::size_t i = 0; i < m_families.size(); ++i) {
        const FontKind kind = fontKindOf(m_families[i]);
        const RtfGroup font(rtf);
        rtf.word("f", static_cast<int>(i));
        rtf.word(wordFor(kind));
        rtf.word("fcharset", isSymbolFont(m_families[i]) ? kSymbols : 0);
        rtf.word("fprq", kind == FontKind::Modern ? kFixedPitch : kVariablePitch);
        rtf.text(m_families[i]);
        rtf.raw(";");
    }
}

} // namespace orvane::write::rtf
