#pragma once

#include "base/Failure.h"
#include "engine/pdf/Pixels.h"
#include "pictures/PictureExtractor.h"
#include "support/PdfBuilder.h"
#include "support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace orvane::pictures {

/// The pictures of a built PDF, taken out into a folder of the test's own.
class TakenPictures {
public:
    explicit TakenPictures(const tests::PdfBuilder& pdf, ImageFileFormat format = ImageFileFormat::Png);

    const std::vector<PictureFile>& files() const { return m_extracted.files; }
    int pictures() const { return m_extracted.pictures; }
    const std::vector<Diagnostic>& notes() const { return m_notes.entries(); }
    std::string bytes(std::size_t file) const;
    /// Of a PNG.
    pdf::Pixels pixels(std::size_t file = 0) const;

private:
    tests::TemporaryFolder m_folder;
    Extracted m_extracted;
    Diagnostics m_notes;
};

/// A page of 100 by 100 points with the picture /Im1 all over it.
tests::PdfPage pageFilledWith(int image, const std::string& before = {});

/// A PDF whose one page is filled with one picture.
tests::PdfBuilder pdfWithPicture(const std::string& entries, const std::string& data);

/// A row of pixels as a test writes it: "FF0000FF" for each, and "-" where a pixel is transparent whatever its colour.
std::vector<std::string> rowOf(const pdf::Pixels& pixels, int y = 0);

/// Whether two pixels, "RRGGBBAA", differ by no more than `tolerance` levels a channel.
bool isNear(const std::string& a, const std::string& b, int tolerance);

} // namespace orvane::pictures
