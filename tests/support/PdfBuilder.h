#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::tests {

/// One page for PdfBuilder. All texts are PDF syntax.
struct PdfPage {
    std::string content; ///< the content stream
    double width = 612;  ///< of the media box, points
    double height = 792;
    std::string entries;   ///< more of the page dictionary: "/Rotate 90 /CropBox [0 0 100 100] /Annots [7 0 R]"
    std::string resources; ///< more of the resources: "/XObject << /Im1 5 0 R >>"
    std::string fonts;     ///< more of the resources' fonts: "/E1 9 0 R"
};

/// Builds a small PDF from readable text; offsets, lengths and the cross-reference table are filled in.
///
///     PdfBuilder().page("BT /F1 12 Tf 72 720 Td (Hello) Tj ET").write(file);
///
/// Every page knows the fonts /F1 Helvetica, /F2 Times-Roman, /F3 Courier, /F4 Helvetica-Bold, /F5 Times-Italic, /F6
/// Symbol, /F7 ZapfDingbats; the first four are WinAnsi encoded.
class PdfBuilder {
public:
    PdfBuilder();

    PdfBuilder& page(const std::string& content) { return page(PdfPage{content, 612, 792, {}, {}, {}}); }
    PdfBuilder& page(const PdfPage& page);

    /// Adds an object and returns its number. `body` is what stands between "obj" and "endobj".
    int add(const std::string& body);
    /// Adds a stream and returns its number. `entries` is its dictionary without the length.
    int addStream(const std::string& entries, const std::string& data);
    /// A number for an object that refers to itself or to what comes later; its body is given by set().
    int reserve();
    void set(int number, const std::string& body);
    /// The object number of page `index` (from 0), for destinations and parents. Known before the page is added.
    int pageObject(std::size_t index);

    /// More of the catalog: "/Outlines 9 0 R /Lang (en)".
    PdfBuilder& catalog(const std::string& entries);
    /// More of the information dictionary: "/Title (A title)".
    PdfBuilder& information(const std::string& entries);

    /// The file's bytes.
    std::string build() const;
    void write(const std::filesystem::path& file) const;

private:
    std::vector<std::string> m_bodies; ///< object n is at n - 1
    std::vector<int> m_pageObjects;
    std::size_t m_pageCount = 0;
    std::string m_catalog;
    std::string m_information;
    std::string m_fonts;
    int m_catalogObject = 0;
    int m_pagesObject = 0;
};

/// "7 0 R"
std::string pdfRef(int object);

/// An uncompressed picture's dictionary: pdfImage(2, 2, "/DeviceRGB", 8).
std::string pdfImage(int width, int height, const std::string& colorSpace, int bits);

} // namespace orvane::tests
