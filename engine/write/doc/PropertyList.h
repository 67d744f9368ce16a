#pragma once

#include "base/Color.h"
#include "write/doc/Bytes.h"
#include "write/doc/Sprm.h"

namespace orvane::write::doc {

/// Properties one after the other, each as its number and its value.
/// Source: [MS-DOC] 2.9.248 (Prl), 2.9.247 (Sprm).
class PropertyList {
public:
    /// A property with a number for its value; its size is told by the property.
    PropertyList& add(std::uint16_t property, std::int64_t value);
    /// A property whose value has a size of its own, written before it.
    PropertyList& addSized(std::uint16_t property, const Bytes& value);
    /// Values in a form that only the property knows.
    PropertyList& addRaw(std::uint16_t property, const Bytes& value);

    const std::string& bytes() const { return m_bytes.str(); }
    bool empty() const { return m_bytes.size() == 0; }

private:
    Bytes m_bytes;
};

/// A colour as 32 bits. Source: [MS-DOC] 2.9.43 (COLORREF).
std::int64_t colorNumber(Color color);
/// The colour that a reader takes by itself.
inline constexpr std::int64_t kAutomaticColor = 0xFF000000;

/// A ground without a pattern. Source: [MS-DOC] 2.9.249 (Shd).
void addGround(Bytes& bytes, const Color* color);

} // namespace orvane::write::doc
