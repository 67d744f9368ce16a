#pragma once

#include "write/doc/DocState.h"

#include <filesystem>

namespace orvane::write::doc {

/// Writes all texts of the document and puts the file together.
/// Errors: Failure(TargetUnwritable).
void writeDocFile(DocState& state, const std::filesystem::path& target);

} // namespace orvane::write::doc
