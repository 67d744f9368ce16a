#include "write/docx/ZipFile.h"

#include "base/Failure.h"
#include "write/docx/ZipTarget.h"

#include <algorithm>
#include <cstring>

#include <fmt/format.h>
#include <zip.h>

namespace orvane::write::docx {
namespace {

/// 1 January 1980, the first day a zip file can name: the same document gives the same bytes on every day.
constexpr std::uint16_t kFixedDate = 0x0021;
constexpr std::uint16_t kFixedTime = 0;

std::string utf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

/// Reads bytes that are compressed already, as libzip asks for them.
struct DeflatedReader {
    const DeflatedBytes& bytes;
    std::size_t position = 0;
    zip_error_t error{};

    std::int64_t read(void* out, std::uint64_t size) {
        const std::size_t count = std::min<std::size_t>(size, bytes.compressed.size() - position);
        std::memcpy(out, bytes.compressed.data() + position, count);
        position += count;
        return static_cast<std::int64_t>(count);
    }

    std::int64_t describe(void* out, std::uint64_t size) const {
        if (size < sizeof(zip_stat_t))
            return -1;
        auto* stat = static_cast<zip_stat_t*>(out);
        zip_stat_init(stat);
        stat->valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC | ZIP_STAT_COMP_METHOD;
        stat->size = bytes.size;
        stat->comp_size = bytes.compressed.size();
        stat->crc = bytes.crc;
        stat->comp_method = ZIP_CM_DEFLATE;
        return sizeof(zip_stat_t);
    }

    static zip_int64_t answer(void* self, void* data, zip_uint64_t size, zip_source_cmd_t command) {
        auto* reader = static_cast<DeflatedReader*>(self);
        switch (command) {
        case ZIP_SOURCE_OPEN:
            reader->position = 0;
            return 0;
        case ZIP_SOURCE_READ:
            return reader->read(data, size);
        case ZIP_SOURCE_CLOSE:
            return 0;
        case ZIP_SOURCE_STAT:
            return reader->describe(data, size);
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&reader->error, data, size);
        case ZIP_SOURCE_FREE:
            delete reader;
            return 0;
        case ZIP_SOURCE_SUPPORTS:
            return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT,
                                                  ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, -1);
        default:
            zip_error_set(&reader->error, ZIP_ER_OPNOTSUPP, 0);
            return -1;
        }
    }
};

} // namespace

ZipFile::ZipFile(const std::filesystem::path& target)
    : m_target(target) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source* source = makeZipTarget(target, &error);
    m_archive = source ? zip_open_from_source(source, ZIP_CREATE | ZIP_TRUNCATE, &error) : nullptr;
    const std::string reason = zip_error_strerror(&error);
    zip_error_fini(&error);
    if (m_archive)
        return;
    zip_source_free(source);
    fail(reason);
}

ZipFile::~ZipFile() {
    if (m_archive)
        zip_discard(m_archive);
}

void ZipFile::addDeflated(const std::string& name, const DeflatedBytes& bytes) {
    auto reader = std::make_unique<DeflatedReader>(DeflatedReader{bytes});
    zip_source_t* source = zip_source_function(m_archive, &DeflatedReader::answer, reader.get());
    if (!source)
        fail(zip_strerror(m_archive));
    reader.release();
    addEntry(name, source);
}

void ZipFile::addStored(const std::string& name, const std::filesystem::path& file) {
    zip_source_t* source = zip_source_file(m_archive, utf8(file).c_str(), 0, -1);
    if (!source)
        fail(zip_strerror(m_archive));
    zip_set_file_compression(m_archive, addEntry(name, source), ZIP_CM_STORE, 0);
}

std::uint64_t ZipFile::addEntry(const std::string& name, zip_source* source) {
    const zip_int64_t index = zip_file_add(m_archive, name.c_str(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        const std::string reason = zip_strerror(m_archive);
        zip_source_free(source);
        fail(reason);
    }
    const auto entry = static_cast<std::uint64_t>(index);
    zip_file_set_dostime(m_archive, entry, kFixedTime, kFixedDate, 0);
    return entry;
}

void ZipFile::close() {
    if (zip_close(m_archive) != 0)
        fail(zip_strerror(m_archive));
    m_archive = nullptr;
}

void ZipFile::fail(const std::string& reason) const {
    throw Failure(FailureCode::TargetUnwritable, fmt::format("cannot write {}: {}", utf8(m_target), reason));
}

} // namespace orvane::write::docx
