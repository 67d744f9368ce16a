#include "worker/FontCarrier.h"

#include <optional>
#include <string>
#include <utility>

namespace orvane::worker {

std::vector<layout::CarriedFont> carriedFonts(const protocol::Job& job, const pdf::PdfDocument& source,
                                              const std::vector<layout::PageText>& pages,
                                              const layout::LayoutParameters& parameters) {
    std::vector<layout::CarriedFont> fonts;
    if (job.layout != protocol::Layout::TruePage || job.format != protocol::Format::Docx)
        return fonts;
    for (pdf::FontRequest& request : layout::fontsToCarry(pages, parameters))
        if (std::optional<std::string> program = source.packFont(request))
            fonts.push_back({std::move(request), std::move(*program)});
    return fonts;
}

} // namespace orvane::worker
