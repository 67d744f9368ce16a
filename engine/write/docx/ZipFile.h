#pragma once

#include "write/docx/Deflater.h"

#include <filesystem>
#include <memory>
#include <string>

struct zip;
struct zip_source;

namespace orvane::write::docx {

/// A zip file in the making. What is added must outlive close(), which is when it is read.
/// Errors: all calls throw Failure(TargetUnwritable).
class ZipFile {
public:
    explicit ZipFile(const std::filesystem::path& target);
    ~ZipFile();
    ZipFile(const ZipFile&) = delete;
    ZipFile& operator=(const ZipFile&) = delete;

    void addDeflated(const std::string& name, const DeflatedBytes& bytes);
    /// Adds a file without compressing it: pictures are compressed already.
    void addStored(const std::string& name, const std::filesystem::path& file);
    /// Writes everything.
    void close();

private:
    std::uint64_t addEntry(const std::string& name, zip_source* source);
    [[noreturn]] void fail(const std::string& reason) const;

    std::filesystem::path m_target;
    zip* m_archive = nullptr;
};

} // namespace orvane::write::docx
