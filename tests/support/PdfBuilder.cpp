#include "support/PdfBuilder.h"

#include <fstream>
#include <stdexcept>

#include <fmt/format.h>

namespace orvane::tests {
namespace {

struct StandardFont {
    const char* tag;
    const char* name;
    const char* encoding;
};

constexpr StandardFont kFonts[] = {
    {"F1", "Helvetica", "/Encoding /WinAnsiEncoding"},
    {"F2", "Times-Roman", "/Encoding /WinAnsiEncoding"},
    {"F3", "Courier", "/Encoding /WinAnsiEncoding"},
    {"F4", "Helvetica-Bold", "/Encoding /WinAnsiEncoding"},
    {"F5", "Times-Italic", "/Encoding /WinAnsiEncoding"},
    {"F6", "Symbol", ""},
    {"F7", "ZapfDingbats", ""},
};

} // namespace

PdfBuilder::PdfBuilder() {
    m_catalogObject = reserve();
    m_pagesObject = reserve();
    for (const StandardFont& font : kFonts) {
        const int number =
            add(fmt::format("<< /Type /Font /Subtype /Type1 /BaseFont /{} {} >>", font.name, font.encoding));
        m_fonts += fmt::format("/{} {} ", font.tag, pdfRef(number));
    }
}

PdfBuilder& PdfBuilder::page(const PdfPage& page) {
    const int number = pageObject(m_pageCount++);
    const int content = addStream("", page.content);
    set(number,
        fmt::format(
            "<< /Type /Page /Parent {} /MediaBox [0 0 {} {}] /Contents {} /Resources << /Font << {}{} >> {} >> {} >>",
            pdfRef(m_pagesObject), page.width, page.height, pdfRef(content), m_fonts, page.fonts, page.resources,
            page.entries));
    return *this;
}

int PdfBuilder::add(const std::string& body) {
    m_bodies.push_back(body);
    return static_cast<int>(m_bodies.size());
}

int PdfBuilder::addStream(const std::string& entries, const std::string& data) {
    return add(fmt::format("<< {} /Length {} >>\nstream\n{}\nendstream", entries, data.size(), data));
}

int PdfBuilder::reserve() {
    return add("null");
}

void PdfBuilder::set(int number, const std::string& body) {
    m_bodies.at(static_cast<std::size_t>(number) - 1) = body;
}

int PdfBuilder::pageObject(std::size_t index) {
    while (m_pageObjects.size() <= index)
        m_pageObjects.push_back(reserve());
    return m_pageObjects[index];
}

PdfBuilder& PdfBuilder::catalog(const std::string& entries) {
    m_catalog += entries + " ";
    return *this;
}

PdfBuilder& PdfBuilder::information(const std::string& entries) {
    m_information += entries + " ";
    return *this;
}

std::string PdfBuilder::build() const {
    std::vector<std::string> bodies = m_bodies;
    std::string kids;
    for (std::size_t i = 0; i < m_pageCount; ++i)
        kids += pdfRef(m_pageObjects[i]) + " ";
    bodies[static_cast<std::size_t>(m_pagesObject) - 1] =
        fmt::format("<< /Type /Pages /Kids [{}] /Count {} >>", kids, m_pageCount);
    bodies[static_cast<std::size_t>(m_catalogObject) - 1] =
        fmt::format("<< /Type /Catalog /Pages {} {} >>", pdfRef(m_pagesObject), m_catalog);
    bodies.push_back(fmt::format("<< {} >>", m_information));

    std::string file = "%PDF-1.7\n%\xE2\xE3\xCF\xD3\n";
    std::string table;
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        table += fmt::format("{:010} 00000 n \n", file.size());
        file += fmt::format("{} 0 obj\n{}\nendobj\n", i + 1, bodies[i]);
    }
    const std::size_t tableStart = file.size();
    file += fmt::format(
        "xref\n0 {}\n0000000000 65535 f \n{}trailer\n<< /Size {} /Root {} /Info {} >>\nstartxref\n{}\n%%EOF\n",
        bodies.size() + 1, table, bodies.size() + 1, pdfRef(m_catalogObject), pdfRef(static_cast<int>(bodies.size())),
        tableStart);
    return file;
}

void PdfBuilder::write(const std::filesystem::path& file) const {
    std::ofstream out(file, std::ios::binary);
    const std::string bytes = build();
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out)
        throw std::runtime_error("cannot write " + file.string());
}

std::string pdfRef(int object) {
    return fmt::format("{} 0 R", object);
}

std::string pdfImage(int width, int height, const std::string& colorSpace, int bits) {
    return fmt::format("/Type /XObject /Subtype /Image /Width {} /Height {} /ColorSpace {} /BitsPerComponent {}", width,
                       height, colorSpace, bits);
}

} // namespace orvane::tests
