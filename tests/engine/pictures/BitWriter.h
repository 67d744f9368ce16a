#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvane::pictures {

/// Writes bits, the highest of a byte first.
class BitWriter {
public:
    /// The lowest `count` bits of `value`.
    void put(std::uint32_t value, int count) {
        for (int bit = count - 1; bit >= 0; --bit)
            putBit((value >> bit & 1) != 0);
    }
    /// Bits as they are written on paper: "0011".
    void put(std::string_view bits) {
        for (const char bit : bits)
            putBit(bit == '1');
    }
    /// Fills the last byte with zeros.
    void align() { m_used = 0; }

    const std::string& bytes() const { return m_bytes; }

private:
    void putBit(bool isSet) {
        if (m_used == 0)
            m_bytes += '\0';
        if (isSet)
            m_bytes.back() = static_cast<char>(m_bytes.back() | 0x80 >> m_used);
        m_used = (m_used + 1) % 8;
    }

    std::string m_bytes;
    int m_used = 0; ///< bits of the last byte; 0 when it is full
};

} // namespace orvane::pictures
