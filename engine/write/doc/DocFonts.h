#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::write::doc {

/// The fonts of a file; runs name them by number.
/// Source: [MS-DOC] 2.9.286 (SttbfFfn), 2.9.91 (FFN).
class DocFonts {
public:
    /// The font's number, a new one for a font that is not known yet.
    int numberOf(std::string_view family);
    std::string table() const;

private:
    std::vector<std::string> m_families;
    std::map<std::string, int, std::less<>> m_numbers;
};

} // namespace orvane::write::doc
