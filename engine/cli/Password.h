#pragma once

#include <string>

namespace orvane::cli {

/// The password from the first line of `file`, or, when no file is named, from ORVANE_PASSWORD; empty when there is
/// none. Errors: UsageError when the file cannot be read.
std::string findPassword(const std::string& file);

} // namespace orvane::cli
