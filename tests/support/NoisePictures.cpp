#include "support/NoisePictures.h"

#include "support/PdfBuilder.h"

namespace orvane::tests {

void writeNoisePictures(const std::filesystem::path& file, int pages, int side) {
    PdfBuilder pdf;
    unsigned value = 1;
    for (int page = 0; page < pages; ++page) {
        std::string noise;
        for (int i = 0; i < side * side * 3; ++i, value = value * 1103515245 + 12345)
            noise += static_cast<char>(value >> 16);
        const int image = pdf.addStream(pdfImage(side, side, "/DeviceRGB", 8), noise);
        pdf.page({"q 72 0 0 72 9 9 cm /Im1 Do Q", 100, 100, {}, "/XObject << /Im1 " + pdfRef(image) + " >>", {}});
    }
    pdf.write(file);
}

} // namespace orvane::tests
