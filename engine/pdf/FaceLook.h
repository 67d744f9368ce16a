#pragma once

#include "pdf/LetterForm.h"
#include "pdf/PageContent.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

class GfxFont;
class XRef;

namespace orvane::pdf {

/// Tells from the letters of an embedded font what its flags often get wrong or leave out: whether they have serifs,
/// whether what is flagged as bold without being named so is; and where its name is made up, whether they are bold or
/// slanted. What was seen is kept for the next page.
class FaceLook {
public:
    explicit FaceLook(XRef& xref)
        : m_xref(xref) {}

    /// `sources` are the library's fonts of page.fonts.
    void apply(PageContent& page, const std::vector<std::shared_ptr<GfxFont>>& sources);

private:
    std::optional<LetterForm> look(GfxFont& source, int objectNumber);

    XRef& m_xref;
    std::map<int, std::optional<LetterForm>> m_seen; ///< by object number; fonts without one are looked at page by page
};

} // namespace orvane::pdf
