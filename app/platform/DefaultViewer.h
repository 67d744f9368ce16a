#pragma once

#include <string>

namespace platform {

/// Whether the desktop has a program of its choice for files of that kind. `mimeType`: as "application/pdf".
/// A desktop that does not say has none.
bool hasDefaultViewer(const std::string& mimeType);

} // namespace platform
