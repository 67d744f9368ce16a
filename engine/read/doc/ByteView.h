#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvane::read::doc {

/// A structure that is not as the format has it.
class Damage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Bytes of a file that may be damaged: whatever is beyond them is told of. Numbers are little-endian.
/// Errors: Damage, naming the bytes.
class ByteView {
public:
    ByteView(std::string_view bytes, std::string_view name)
        : m_bytes(bytes)
        , m_name(name) {}

    std::size_t size() const { return m_bytes.size(); }
    std::string_view bytes() const { return m_bytes; }

    std::uint32_t u8(std::size_t at) const { return number(at, 1); }
    std::uint32_t u16(std::size_t at) const { return number(at, 2); }
    std::uint32_t u32(std::size_t at) const { return number(at, 4); }
    std::int32_t i16(std::size_t at) const { return static_cast<std::int16_t>(u16(at)); }
    std::int32_t i32(std::size_t at) const { return static_cast<std::int32_t>(u32(at)); }

    /// A part, of the same name.
    ByteView part(std::size_t at, std::size_t size) const;
    ByteView from(std::size_t at) const;
    /// Characters of 16 bits, as UTF-8.
    std::string text(std::size_t at, std::size_t count) const;

private:
    std::uint32_t number(std::size_t at, std::size_t size) const;

    std::string_view m_bytes;
    std::string m_name;
};

/// The characters as UTF-8; halves of a pair without the other become U+FFFD.
std::string utf8FromUtf16(std::u16string_view text);

} // namespace orvane::read::doc
