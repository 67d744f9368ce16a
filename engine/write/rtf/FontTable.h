#pragma once

#include "write/rtf/RtfStream.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::write::rtf {

/// The fonts of a file; runs name them by number.
/// Source: RTF 1.9.1, "Font Table".
class FontTable {
public:
    /// The font's number, a new one for a font that is not known yet. The first is the file's default font.
    int numberOf(std::string_view family);
    void write(RtfStream& rtf) const;

private:
    std::vector<std::string> m_families;
    std::map<std::string, int, std::less<>> m_numbers;
};

} // namespace orvane::write::rtf
