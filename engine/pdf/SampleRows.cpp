#include "pdf/SampleRows.h"

#include <algorithm>

#include <Object.h>

namespace orvane::pdf {
namespace {

std::size_t packedBytes(int width, int components, int bits) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(components) * static_cast<std::size_t>(bits) +
            7) /
           8;
}

} // namespace

SampleRows::SampleRows(::Stream& stream, int width, int height, int components, int bits)
    : m_stream(stream)
    , m_height(height)
    , m_bits(bits)
    , m_packed(packedBytes(width, components, bits))
    , m_row(static_cast<std::size_t>(width) * static_cast<std::size_t>(components)) {
    m_stream.reset();
    readRow();
    m_isEmpty = m_isCutShort;
}

SampleRows::~SampleRows() {
    m_stream.close();
}

const std::uint8_t* SampleRows::at(int y, int height) {
    const int wanted = static_cast<int>((std::int64_t{y} * 2 + 1) * m_height / (std::int64_t{height} * 2));
    while (m_next <= wanted && !m_isCutShort)
        readRow();
    return m_isCutShort ? nullptr : m_row.data();
}

void SampleRows::readRow() {
    const int wanted = static_cast<int>(m_packed.size());
    const int got = m_stream.doGetChars(wanted, m_packed.data());
    ++m_next;
    if (got <= 0) {
        m_isCutShort = true;
        return;
    }
    std::fill(m_packed.begin() + got, m_packed.end(), std::uint8_t{0});
    unpack();
}

void SampleRows::unpack() {
    if (m_bits == 8) {
        std::copy(m_packed.begin(), m_packed.end(), m_row.begin());
    } else if (m_bits == 16) {
        for (std::size_t i = 0; i < m_row.size(); ++i)
            m_row[i] = m_packed[i * 2];
    } else {
        const auto bits = static_cast<unsigned>(m_bits);
        const unsigned mask = (1u << bits) - 1;
        for (std::size_t i = 0; i < m_row.size(); ++i) {
            const std::size_t bit = i * bits;
            m_row[i] = static_cast<std::uint8_t>(m_packed[bit / 8] >> (8 - bits - bit % 8) & mask);
        }
    }
}

} // namespace orvane::pdf
