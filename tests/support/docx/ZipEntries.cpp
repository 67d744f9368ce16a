#include "support/docx/ZipEntries.h"

#include <memory>
#include <stdexcept>

#include <zip.h>

namespace orvane::tests {
namespace {

std::string readEntry(zip_t* archive, const zip_stat_t& stat) {
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> entry(zip_fopen_index(archive, stat.index, 0), zip_fclose);
    std::string bytes(stat.size, '\0');
    if (!entry || zip_fread(entry.get(), bytes.data(), bytes.size()) != static_cast<zip_int64_t>(bytes.size()))
        throw std::runtime_error(std::string("cannot read ") + stat.name);
    char rest = 0;
    // The checksum is compared at the end of the data only.
    if (zip_fread(entry.get(), &rest, 1) != 0)
        throw std::runtime_error(std::string("damaged: ") + stat.name);
    return bytes;
}

} // namespace

std::vector<ZipEntry> readZip(const std::filesystem::path& file) {
    const std::unique_ptr<zip_t, void (*)(zip_t*)> archive(zip_open(file.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr),
                                                           zip_discard);
    if (!archive)
        throw std::runtime_error("no zip file: " + file.string());
    std::vector<ZipEntry> entries;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive.get(), 0); ++i) {
        zip_stat_t stat;
        zip_stat_index(archive.get(), static_cast<zip_uint64_t>(i), 0, &stat);
        entries.push_back({stat.name, readEntry(archive.get(), stat), stat.comp_method != ZIP_CM_STORE});
    }
    return entries;
}

void writeZip(const std::filesystem::path& file, const std::vector<ZipEntry>& entries) {
    zip_t* archive = zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    if (!archive)
        throw std::runtime_error("cannot write " + file.string());
    for (const ZipEntry& entry : entries)
        zip_file_add(archive, entry.name.c_str(), zip_source_buffer(archive, entry.bytes.data(), entry.bytes.size(), 0),
                     ZIP_FL_ENC_UTF_8);
    if (zip_close(archive) != 0) {
        zip_discard(archive);
        throw std::runtime_error("cannot write " + file.string());
    }
}

} // namespace orvane::tests
