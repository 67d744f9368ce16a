#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

#include <map>
#include <string>

namespace orvane::write::rtf {

/// The headers and footers of a file. A section that has the same as the one before takes it over, as word processors
/// do.
/// Source: RTF 1.9.1, "Headers and Footers".
class RunningTexts {
public:
    explicit RunningTexts(const document::Document& document);

    /// Writes a section's running texts.
    /// Requires: called once for each section, in order.
    void write(RtfState& state, RtfStream& rtf, const document::Section& section);

    /// Whether any section has running texts of their own for even pages.
    bool hasEvenPages() const { return m_hasEvenPages; }

private:
    using Blocks = std::vector<document::Block>;

    void writeSide(RtfState& state, RtfStream& rtf, const std::string& side, const document::RunningText& text,
                   bool hasFirstPage);
    void writeText(RtfState& state, RtfStream& rtf, const std::string& destination, const Blocks* blocks);

    bool m_hasEvenPages = false;
    std::map<std::string, std::string> m_current; ///< what holds at this section, by destination
};

} // namespace orvane::write::rtf
