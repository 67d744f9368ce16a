#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"

#include <filesystem>

namespace orvane::write {

/// Writes `document` as an Office Open XML text document.
/// Errors: Failure(TargetUnwritable) when the file cannot be made or the disk is full.
/// Source: ECMA-376 part 1 (WordprocessingML), part 2 (packages), transitional.
void writeDocx(const document::Document& document, const PictureStore& pictures, const std::filesystem::path& target,
               Diagnostics& diagnostics);

} // namespace orvane::write
