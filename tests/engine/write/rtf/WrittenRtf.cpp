#include "WrittenRtf.h"

#include "write/rtf/RtfWriter.h"

#include <cctype>
#include <fstream>
#include <iterator>

namespace orvane::tests {

WrittenRtf::WrittenRtf(const document::Document& document) {
    const PictureStore noPictures(m_folder.path());
    write(document, noPictures);
}

WrittenRtf::WrittenRtf(const document::Document& document, const PictureStore& pictures) {
    write(document, pictures);
}

void WrittenRtf::write(const document::Document& document, const PictureStore& pictures) {
    m_file = m_folder.path() / "document.rtf";
    write::writeRtf(document, pictures, m_file, m_diagnostics);
    std::ifstream in(m_file, std::ios::binary);
    m_text.assign(std::istreambuf_iterator<char>(in), {});
}

std::size_t WrittenRtf::count(const std::string& piece) const {
    std::size_t found = 0;
    for (std::size_t at = m_text.find(piece); at != std::string::npos; at = m_text.find(piece, at + piece.size()))
        ++found;
    return found;
}

std::string WrittenRtf::between(const std::string& start, const std::string& end) const {
    const std::size_t first = m_text.find(start);
    const std::size_t last = first == std::string::npos ? first : m_text.find(end, first + start.size());
    return last == std::string::npos ? std::string() : m_text.substr(first, last + end.size() - first);
}

std::string faultOfRtf(const std::string& text) {
    if (!text.starts_with("{\\rtf1"))
        return "does not begin as RTF does";
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x80 || (c < 0x20 && c != '\n'))
            return "a byte that is no ASCII at " + std::to_string(i);
        if (c == '{')
            ++depth;
        if (c == '}' && --depth == 0 && text.find_first_not_of("\n", i + 1) != std::string::npos)
            return "something after the end at " + std::to_string(i);
        if (depth < 0)
            return "an end without a start at " + std::to_string(i);
        if (c != '\\')
            continue;
        ++i;
        const bool isKnown = i < text.size() && (std::isalpha(static_cast<unsigned char>(text[i])) != 0 ||
                                                 std::string("\\{}~-_'*").find(text[i]) != std::string::npos);
        if (!isKnown)
            return "an escape that does not exist at " + std::to_string(i);
    }
    return depth == 0 ? std::string() : "a group that does not end";
}

} // namespace orvane::tests
