#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane::pdf {

/// Puts numbers down high byte first, as font files have them.
class BigEndian {
public:
    void u8(unsigned value) { m_bytes += static_cast<char>(static_cast<unsigned char>(value)); }
    void u16(unsigned value) {
        u8(value >> 8U & 0xFFU);
        u8(value & 0xFFU);
    }
    void i16(int value) { u16(static_cast<unsigned>(value) & 0xFFFFU); }
    void u32(std::uint32_t value) {
        u16(value >> 16U);
        u16(value & 0xFFFFU);
    }
    void zeros(std::size_t count) { m_bytes.append(count, '\0'); }
    void text(std::string_view bytes) { m_bytes += bytes; }

    std::size_t size() const { return m_bytes.size(); }
    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

} // namespace orvane::pdf
