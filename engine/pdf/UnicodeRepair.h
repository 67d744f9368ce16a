#pragma once

#include "base/Diagnostic.h"
#include "pdf/EmbeddedCharacters.h"
#include "pdf/NamedCodes.h"
#include "pdf/PageContent.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

class GfxFont;
class XRef;

namespace orvane::pdf {

/// Gives glyphs the characters a reader sees where the file's own map is silent (U+FFFD, private use, control codes),
/// where it cannot be true (all glyphs the same, all off by one number), and for fonts of signs whose map names the
/// letters that the signs stand on. Sources, best first: tables of the sign fonts, glyph names, the embedded program,
/// the order of the usual fonts. What an embedded program knows is kept for the next page.
class UnicodeRepair {
public:
    explicit UnicodeRepair(XRef& xref)
        : m_xref(xref) {}

    /// `sources` are the library's fonts of page.fonts. What was repaired, and what stayed unknown, is told once a
    /// font.
    void repair(PageContent& page, const std::vector<std::shared_ptr<GfxFont>>& sources, Diagnostics& diagnostics);

private:
    /// What is known of a font beyond the page.
    struct Knowledge {
        std::optional<EmbeddedCharacters> program;
        std::optional<bool> isLying;
        std::optional<NamedCodes> named;
    };
    friend class FontMeanings;

    XRef& m_xref;
    std::map<int, Knowledge> m_knowledge; ///< by object number; fonts without one are looked at page by page
};

} // namespace orvane::pdf
