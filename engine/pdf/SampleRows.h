#pragma once

#include <cstdint>
#include <vector>

class Stream;

namespace orvane::pdf {

/// The rows of a picture's samples, one byte a sample, top to bottom; they can be stretched to another height by
/// repeating and skipping. Of samples of 16 bits the upper 8 are kept. Memory: two rows.
class SampleRows {
public:
    /// Requires: bits is 1, 2, 4, 8 or 16.
    SampleRows(::Stream& stream, int width, int height, int components, int bits);
    ~SampleRows();
    SampleRows(const SampleRows&) = delete;
    SampleRows& operator=(const SampleRows&) = delete;

    /// The data ends before its first row.
    bool isEmpty() const { return m_isEmpty; }
    /// The data ended before a row that was asked for.
    bool isCutShort() const { return m_isCutShort; }

    /// The samples for row `y` of `height`; null below the end of the data. Requires: y does not go back.
    const std::uint8_t* at(int y, int height);
    /// The row that at() gave last as it stands in the data.
    const std::uint8_t* packed() const { return m_packed.data(); }

private:
    void readRow();
    void unpack();

    ::Stream& m_stream;
    int m_height;
    int m_bits;
    int m_next = 0; ///< the row that readRow() reads
    std::vector<std::uint8_t> m_packed;
    std::vector<std::uint8_t> m_row;
    bool m_isEmpty = false;
    bool m_isCutShort = false;
};

} // namespace orvane::pdf
