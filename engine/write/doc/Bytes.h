#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvane::write::doc {

/// Bytes in the making; numbers are little-endian, texts UTF-16.
class Bytes {
public:
    Bytes& u8(std::int64_t value) { return number(value, 1); }
    Bytes& u16(std::int64_t value) { return number(value, 2); }
    Bytes& u32(std::int64_t value) { return number(value, 4); }
    Bytes& u64(std::int64_t value) { return number(value, 8); }
    Bytes& zeros(std::size_t count) {
        m_bytes.append(count, '\0');
        return *this;
    }
    Bytes& raw(std::string_view bytes) {
        m_bytes += bytes;
        return *this;
    }
    Bytes& characters(std::u16string_view text) {
        for (const char16_t unit : text)
            u16(unit);
        return *this;
    }
    /// Zeros up to a multiple of `step`.
    Bytes& padTo(std::size_t step) { return m_bytes.size() % step == 0 ? *this : zeros(step - m_bytes.size() % step); }

    std::size_t size() const { return m_bytes.size(); }
    const std::string& str() const { return m_bytes; }

private:
    Bytes& number(std::int64_t value, int size) {
        for (int i = 0; i < size; ++i)
            m_bytes += static_cast<char>((static_cast<std::uint64_t>(value) >> (8 * i)) & 0xFF);
        return *this;
    }

    std::string m_bytes;
};

/// A text as UTF-16.
std::u16string utf16FromUtf8(std::string_view text);

} // namespace orvane::write::doc
