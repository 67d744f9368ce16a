#include "Extraction.h"

#include "support/Files.h"

#include <cstdlib>
#include <fstream>

namespace orvane::pictures {
namespace {

/// A folder as it is, without what a program's run has around it.
class PlainTarget : public PictureTarget {
public:
    explicit PlainTarget(std::filesystem::path folder)
        : m_folder(std::move(folder)) {}

    std::filesystem::path begin() override {
        std::ofstream(part(), std::ios::binary | std::ios::trunc);
        return part();
    }
    bool commit(const std::string& name) override {
        if (std::filesystem::exists(m_folder / name))
            return false;
        std::filesystem::rename(part(), m_folder / name);
        return true;
    }
    void discard() override { std::filesystem::remove(part()); }

private:
    std::filesystem::path part() const { return m_folder / "part"; }

    std::filesystem::path m_folder;
};

class Onlooker : public JobObserver {
public:
    void stageReached(JobStage, int, int) override {}
    bool isCancelled() const override { return false; }
};

} // namespace

TakenPictures::TakenPictures(const tests::PdfBuilder& pdf, ImageFileFormat format) {
    const std::filesystem::path file = m_folder.path() / "a.pdf";
    pdf.write(file);
    const pdf::PdfDocument document = pdf::PdfDocument::open(file, {});
    std::vector<int> pages;
    for (int page = 1; page <= document.pageCount(); ++page)
        pages.push_back(page);
    const PictureNames names(m_folder.path(), "a", document.pageCount());
    PlainTarget target(m_folder.path());
    Onlooker onlooker;
    m_extracted = extractPictures(document, {pages, format}, names, target, onlooker,
                                  [this](const Diagnostics& ofPage) { m_notes.append(ofPage); });
}

std::string TakenPictures::bytes(std::size_t file) const {
    return tests::readFile(m_folder.path() / files().at(file).name);
}

pdf::Pixels TakenPictures::pixels(std::size_t file) const {
    const std::string png = bytes(file);
    const auto* first = reinterpret_cast<const std::byte*>(png.data());
    return pdf::readPng(std::vector<std::byte>(first, first + png.size()));
}

tests::PdfPage pageFilledWith(int image, const std::string& before) {
    return {before + " q 100 0 0 100 0 0 cm /Im1 Do Q",         100, 100, {},
            "/XObject << /Im1 " + tests::pdfRef(image) + " >>", {}};
}

tests::PdfBuilder pdfWithPicture(const std::string& entries, const std::string& data) {
    tests::PdfBuilder pdf;
    const int image = pdf.addStream(entries, data);
    pdf.page(pageFilledWith(image));
    return pdf;
}

std::vector<std::string> rowOf(const pdf::Pixels& pixels, int y) {
    std::vector<std::string> row;
    for (int x = 0; x < pixels.width; ++x) {
        const std::string pixel = pixels.at(x, y);
        row.push_back(pixel.ends_with("00") && pixel.size() == 8 ? "-" : pixel);
    }
    return row;
}

bool isNear(const std::string& a, const std::string& b, int tolerance) {
    if (a.size() != 8 || b.size() != 8)
        return false;
    for (std::size_t i = 0; i < 8; i += 2)
        if (std::abs(std::stoi(a.substr(i, 2), nullptr, 16) - std::stoi(b.substr(i, 2), nullptr, 16)) > tolerance)
            return false;
    return true;
}

} // namespace orvane::pictures
