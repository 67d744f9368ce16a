#pragma once

#include "layout/fonts/CarriedFonts.h"
#include "layout/fonts/FontFitter.h"
#include "layout/structure/DocumentDraft.h"
#include "layout/text/ScriptClass.h"

#include <array>
#include <string>
#include <vector>

namespace orvane::layout {

/// The fonts of all pages as the document names them, and its most used family for each kind of script.
class FontCatalog {
public:
    FontCatalog(const DocumentDraft& draft, const FontParameters& parameters, Tracking tracking = Tracking::InWidths,
                const CarriedFonts& carried = {});

    /// See narrowSqueezedFonts(). For text whose lines are not kept.
    void narrowSqueezed(const DocumentDraft& draft, const FontParameters& parameters);

    /// Requires: `font` is an index into the page's fonts, or the page has none.
    const MappedFont& font(std::size_t page, std::uint32_t font) const;
    /// Empty when the document has no text of that kind.
    const std::string& mainFamily(ScriptClass kind) const { return m_main[static_cast<std::size_t>(kind)]; }

private:
    std::vector<std::vector<MappedFont>> m_fonts; ///< by page
    std::array<std::string, 3> m_main;
    MappedFont m_unknown;
};

} // namespace orvane::layout
