#pragma once

#include "base/Geometry.h"
#include "layout/text/PageText.h"
#include "layout/text/TextParameters.h"
#include "pdf/PageContent.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::worker {

/// A form field that has been filled in.
struct FieldValue {
    std::string name;
    std::string value;   ///< empty for a sign that is on
    bool isSign = false; ///< a check box or radio button
    bool operator==(const FieldValue&) const = default;
};

/// What a page of the source holds that must be in the document.
struct PageInventory {
    int page = 0;               ///< 1-based
    std::size_t lines = 0;      ///< of text, the parts of a row counted each
    std::size_t characters = 0; ///< without blanks
    std::size_t letters =
        0; ///< letters and digits that the page shows as text; those in pictures, drawings and formulas left out
    bool isScanned = false;     ///< its text stands for its pictures
    std::vector<Rect> pictures; ///< page space
    std::size_t links = 0;
    std::vector<std::string> addresses; ///< that links lead to, each once
    std::size_t innerLinks = 0;         ///< places of this document that links lead to, each once
    std::vector<FieldValue> values;
};

/// Lists what stands on the page. `fields` are its form fields, `text` is what the first stages made of it. What nobody
/// can see or find (outside the page, clipped away, on a layer switched off, hidden behind other things) is not listed.
PageInventory inventoryOf(const pdf::PageContent& page, const std::vector<pdf::FormField>& fields,
                          const layout::PageText& text, const layout::TextParameters& parameters);

} // namespace orvane::worker
