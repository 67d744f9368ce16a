#include "write/doc/PropertyList.h"

namespace orvane::write::doc {

PropertyList& PropertyList::add(std::uint16_t property, std::int64_t value) {
    m_bytes.u16(property);
    // The upper three bits tell the size. Source: [MS-DOC] 2.9.247 (spra).
    switch (property >> 13) {
    case 0:
    case 1:
        m_bytes.u8(value);
        break;
    case 3:
        m_bytes.u32(value);
        break;
    default:
        m_bytes.u16(value);
        break;
    }
    return *this;
}

PropertyList& PropertyList::addSized(std::uint16_t property, const Bytes& value) {
    m_bytes.u16(property).u8(static_cast<std::int64_t>(value.size())).raw(value.str());
    return *this;
}

PropertyList& PropertyList::addRaw(std::uint16_t property, const Bytes& value) {
    m_bytes.u16(property).raw(value.str());
    return *this;
}

std::int64_t colorNumber(Color color) {
    return color.red | color.green << 8 | color.blue << 16;
}

void addGround(Bytes& bytes, const Color* color) {
    constexpr int kNoPattern = 0;
    bytes.u32(kAutomaticColor).u32(color ? colorNumber(*color) : kAutomaticColor).u16(kNoPattern);
}

} // namespace orvane::write::doc
