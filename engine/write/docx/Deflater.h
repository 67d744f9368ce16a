#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct z_stream_s;

namespace orvane::write::docx {

/// A part's bytes as they stand in the package.
struct DeflatedBytes {
    std::string compressed;
    std::uint64_t size = 0; ///< before compression
    std::uint32_t crc = 0;  ///< of the bytes before compression
};

/// Compresses a part while it is written, so that memory holds its compressed form only: some kilobytes a page.
/// Source: RFC 1951.
class Deflater {
public:
    Deflater();

    void add(std::string_view bytes);
    /// What was added, compressed; nothing can be added after it.
    DeflatedBytes finish();

private:
    struct StreamEnd {
        void operator()(z_stream_s* stream) const;
    };

    void compress(std::string_view bytes, int flush);

    std::unique_ptr<z_stream_s, StreamEnd> m_stream;
    DeflatedBytes m_result;
};

} // namespace orvane::write::docx
