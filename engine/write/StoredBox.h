#pragma once

#include "document/Document.h"

namespace orvane::write {

/// Where the shapes of DOC and RTF stand. Units: EMU.
struct StoredBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// The box of an object of this size, turned by so many degrees clockwise. One that is turned onto its side is stored
/// as the box it then covers. Source: [MS-ODRAW] 2.3.18.5 (rotation).
StoredBox storedBox(const document::Placement& placement, Emu width, Emu height, double rotation);

/// A length of such a box in twips, within what readers take.
std::int64_t storedTwips(double emu);

} // namespace orvane::write
