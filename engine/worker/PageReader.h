#pragma once

#include "base/PictureStore.h"
#include "layout/LayoutParameters.h"
#include "layout/text/PageText.h"
#include "pdf/PdfDocument.h"
#include "worker/PageInventory.h"
#include "worker/RunReporter.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace orvane::worker {

/// What becomes of the fields of forms.
enum class FieldReading : std::uint8_t {
    AsControls, ///< they are part of the text
    AsDrawn,    ///< the page shows them as it is printed
};

/// What stands for a scanned page whose text was recognised.
enum class ScanReading : std::uint8_t {
    AsPicture, ///< its picture
    AsText,    ///< the text, and of the picture the illustrations
};

/// What reading pages needs to know.
struct PageReading {
    std::filesystem::path source;
    pdf::Passwords passwords;
    std::vector<int> pages;
    PictureStore* pictures = nullptr; ///< null when pictures are left out
    FieldReading fields = FieldReading::AsControls;
    layout::LayoutParameters parameters;
    int threads = 0; ///< 0: as many as the machine has, at most four
    ScanReading scans = ScanReading::AsPicture;
};

struct PagesRead {
    std::vector<layout::PageText> pages;    ///< in the order asked for
    std::vector<PageInventory> inventories; ///< of the pages
};

/// Reads the pages, on several threads where there are enough of them, each with a document of its own beside
/// `document`. A page that cannot be read comes back empty, with a diagnostic; it does not stop the others. Errors:
/// Failure(Cancelled); std::bad_alloc.
PagesRead readPages(const pdf::PdfDocument& document, const PageReading& reading, RunReporter& reporter);

} // namespace orvane::worker
