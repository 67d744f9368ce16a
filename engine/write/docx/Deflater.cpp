#include "write/docx/Deflater.h"

#include "base/Failure.h"

#include <zlib.h>

namespace orvane::write::docx {
namespace {

/// Raw deflate data, without the zlib frame: the package has its own.
constexpr int kRawWindow = -15;
constexpr int kMemoryLevel = 8;
/// Word processing XML repeats itself so much that higher levels cost time and gain next to nothing.
constexpr int kLevel = 4;
constexpr std::size_t kChunk = 16 * 1024;

} // namespace

void Deflater::StreamEnd::operator()(z_stream_s* stream) const {
    deflateEnd(stream);
    delete stream;
}

Deflater::Deflater() {
    auto stream = std::make_unique<z_stream>();
    if (deflateInit2(stream.get(), kLevel, Z_DEFLATED, kRawWindow, kMemoryLevel, Z_DEFAULT_STRATEGY) != Z_OK)
        throw Failure(FailureCode::LimitExceeded, "no memory is left to compress the document");
    m_stream.reset(stream.release());
    m_result.crc = static_cast<std::uint32_t>(crc32(0, nullptr, 0));
}

void Deflater::add(std::string_view bytes) {
    m_result.size += bytes.size();
    m_result.crc =
        static_cast<std::uint32_t>(crc32_z(m_result.crc, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
    compress(bytes, Z_NO_FLUSH);
}

DeflatedBytes Deflater::finish() {
    compress({}, Z_FINISH);
    return std::move(m_result);
}

void Deflater::compress(std::string_view bytes, int flush) {
    char chunk[kChunk];
    m_stream->next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(bytes.data()));
    m_stream->avail_in = static_cast<uInt>(bytes.size());
    do {
        m_stream->next_out = reinterpret_cast<Bytef*>(chunk);
        m_stream->avail_out = kChunk;
        deflate(m_stream.get(), flush);
        m_result.compressed.append(chunk, kChunk - m_stream->avail_out);
    } while (m_stream->avail_out == 0);
}

} // namespace orvane::write::docx
