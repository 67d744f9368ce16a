#pragma once

#include "base/Diagnostic.h"
#include "base/ImageFileFormat.h"
#include "base/JobObserver.h"
#include "pdf/PdfDocument.h"
#include "pictures/PictureFile.h"
#include "pictures/PictureNames.h"
#include "pictures/PictureTarget.h"

#include <functional>
#include <vector>

namespace orvane::pictures {

struct Extraction {
    std::vector<int> pages; ///< to look through, ascending
    ImageFileFormat format = ImageFileFormat::Original;
};

struct Extracted {
    std::vector<PictureFile> files;
    int pictures = 0; ///< that the pages paint, each counted once, whether or not it could be written
};

/// Takes the diagnostics of one page.
using DiagnosticsAction = std::function<void(const Diagnostics&)>;

/// Writes every picture that the pages paint to a file of its own, once each, however often it is painted. A picture
/// that cannot be read or held by the format is left out and told; the others follow.
/// Errors: Failure(Cancelled | TargetUnwritable).
Extracted extractPictures(const pdf::PdfDocument& document, const Extraction& extraction, const PictureNames& names,
                          PictureTarget& target, JobObserver& observer, const DiagnosticsAction& onDiagnostics);

} // namespace orvane::pictures
