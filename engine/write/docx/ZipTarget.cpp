#include "write/docx/ZipTarget.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>

#include <zip.h>

namespace orvane::write::docx {
namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// Answers libzip's commands for a file that is written and never read.
class ZipTarget {
public:
    explicit ZipTarget(std::filesystem::path path)
        : m_path(std::move(path)) {}

    zip_error_t* error() { return &m_error; }

    zip_int64_t begin() {
        m_file.reset(std::fopen(m_path.c_str(), "wb"));
        return m_file ? 0 : fail(ZIP_ER_OPEN);
    }

    zip_int64_t write(const void* data, zip_uint64_t size) {
        const std::size_t written = std::fwrite(data, 1, size, m_file.get());
        m_position += static_cast<zip_int64_t>(written);
        m_length = std::max(m_length, m_position);
        return written == size ? static_cast<zip_int64_t>(written) : fail(ZIP_ER_WRITE);
    }

    zip_int64_t seek(void* data, zip_uint64_t size) {
        const zip_int64_t position = zip_source_seek_compute_offset(
            static_cast<zip_uint64_t>(m_position), static_cast<zip_uint64_t>(m_length), data, size, &m_error);
        if (position < 0)
            return -1;
        if (std::fseek(m_file.get(), static_cast<long>(position), SEEK_SET) != 0)
            return fail(ZIP_ER_SEEK);
        m_position = position;
        return 0;
    }

    zip_int64_t tell() const { return m_position; }

    zip_int64_t commit() {
        // What was buffered is written now; a full disk may show only here.
        return std::fclose(m_file.release()) == 0 ? 0 : fail(ZIP_ER_CLOSE);
    }

    zip_int64_t rollback() {
        m_file.reset();
        return 0;
    }

    /// libzip asks whether there is an archive already; whatever stands there is overwritten.
    zip_int64_t describe() {
        zip_error_set(&m_error, ZIP_ER_READ, ENOENT);
        return -1;
    }

    zip_int64_t refuse() {
        zip_error_set(&m_error, ZIP_ER_OPNOTSUPP, 0);
        return -1;
    }

private:
    zip_int64_t fail(int code) {
        zip_error_set(&m_error, code, errno);
        return -1;
    }

    std::filesystem::path m_path;
    std::unique_ptr<std::FILE, FileCloser> m_file;
    zip_int64_t m_position = 0;
    zip_int64_t m_length = 0;
    zip_error_t m_error{};
};

zip_int64_t answer(void* self, void* data, zip_uint64_t size, zip_source_cmd_t command) {
    auto* target = static_cast<ZipTarget*>(self);
    switch (command) {
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_WRITABLE;
    case ZIP_SOURCE_STAT:
        return target->describe();
    case ZIP_SOURCE_BEGIN_WRITE:
        return target->begin();
    case ZIP_SOURCE_WRITE:
        return target->write(data, size);
    case ZIP_SOURCE_SEEK_WRITE:
        return target->seek(data, size);
    case ZIP_SOURCE_TELL_WRITE:
        return target->tell();
    case ZIP_SOURCE_COMMIT_WRITE:
        return target->commit();
    case ZIP_SOURCE_ROLLBACK_WRITE:
        return target->rollback();
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(target->error(), data, size);
    case ZIP_SOURCE_FREE:
        delete target;
        return 0;
    default:
        return target->refuse();
    }
}

} // namespace

zip_source* makeZipTarget(const std::filesystem::path& file, zip_error* error) {
    auto target = std::make_unique<ZipTarget>(file);
    zip_source* source = zip_source_function_create(&answer, target.get(), error);
    if (source)
        target.release();
    return source;
}

} // namespace orvane::write::docx
