#include "base/Failure.h"
#include "base/PageRange.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Any text is a page range or a Failure, and a range gives ascending pages of the document.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int kPageCount = 40;
    try {
        const auto selection = orvane::selectPages({reinterpret_cast<const char*>(data), size}, kPageCount);
        int last = 0;
        for (const int page : selection.pages) {
            if (page <= last || page > kPageCount)
                std::abort();
            last = page;
        }
    } catch (const orvane::Failure&) {
    }
    return 0;
}
