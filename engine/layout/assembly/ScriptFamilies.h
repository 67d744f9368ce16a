#pragma once

#include "layout/fonts/FontCatalog.h"
#include "layout/structure/DocumentDraft.h"

#include <array>
#include <string>

namespace orvane::layout {

/// The font families of a piece of text, one for each kind of script. All three are set on each of its runs, so that a
/// text of mixed scripts is one run and text typed into it later looks like the rest.
class ScriptFamilies {
public:
    /// Those that most of the document is set in.
    explicit ScriptFamilies(const FontCatalog& fonts);
    /// Those that most of the paragraph is set in, and the document's for scripts that it does not have.
    ScriptFamilies(const DraftParagraph& paragraph, const FontCatalog& fonts);

    /// Empty when the document has no text of that kind.
    const std::string& operator[](ScriptClass kind) const { return m_families[static_cast<std::size_t>(kind)]; }

private:
    std::array<std::string, 3> m_families;
};

} // namespace orvane::layout
