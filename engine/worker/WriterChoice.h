#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"
#include "protocol/Job.h"

#include <filesystem>

namespace orvane::worker {

/// Writes the document in the format.
/// Errors: Failure(TargetUnwritable).
void writeDocument(protocol::Format format, const document::Document& document, const PictureStore& pictures,
                   const std::filesystem::path& target, Diagnostics& diagnostics);

} // namespace orvane::worker
