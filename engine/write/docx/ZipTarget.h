#pragma once

#include <filesystem>

struct zip_error;
struct zip_source;

namespace orvane::write::docx {

/// The file that a zip archive is written to, for libzip: where it stands, from its first byte on. libzip's own files
/// grow under a random name beside their place, which nobody could tell from other files when the program is killed
/// meanwhile. Returns null, with `error` set, when there is no memory for it; the file is opened with the first byte.
zip_source* makeZipTarget(const std::filesystem::path& file, zip_error* error);

} // namespace orvane::write::docx
