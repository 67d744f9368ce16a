#include "base/Failure.h"
#include "layout/Layout.h"
#include "pdf/PdfDocument.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

/// Any file is a PDF whose first pages can be read and laid out, or a Failure.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace orvane;
    static const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(getpid()) + ".pdf");
    std::ofstream(file, std::ios::binary).write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    try {
        const pdf::PdfDocument document = pdf::PdfDocument::open(file, {});
        Diagnostics diagnostics;
        for (int page = 1; page <= std::min(document.pageCount(), 3); ++page)
            layout::readPageText(document.readPage(page, {}, diagnostics), layout::LayoutParameters{}, diagnostics);
    } catch (const Failure&) {
    }
    return 0;
}
