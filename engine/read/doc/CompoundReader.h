#pragma once

#include <map>
#include <string>
#include <string_view>

namespace orvane::read::doc {

/// The streams of a compound file by their names (UTF-8), those in storages behind their storage's entry alike.
/// Errors: Damage for what is no such file, or where a chain of sectors leads nowhere or in circles.
/// Source: [MS-CFB] 2.2 to 2.6.
std::map<std::string, std::string> readCompoundFile(std::string_view file);

} // namespace orvane::read::doc
