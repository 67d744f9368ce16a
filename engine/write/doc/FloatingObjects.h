#pragma once

#include "base/PictureStore.h"
#include "document/Document.h"
#include "write/doc/CompoundFile.h"

#include <string>
#include <vector>

namespace orvane::write::doc {

/// A picture or a drawing that floats over the body.
struct FloatingObject {
    std::uint32_t place = 0; ///< of the character that stands for it
    const document::Figure* figure = nullptr;
};

/// What floating objects are in the file.
struct FloatingParts {
    std::string anchors; ///< where each stands: PlcfSpa
    std::string shapes;  ///< what each is: OfficeArtContent
};

/// Makes the records of floating objects. The bytes of their pictures are added to `tail`, which stands in the main
/// stream from `tailStart` on.
/// Source: [MS-DOC] 2.8.37 (PlcfSpa), 2.9.253 (Spa), 2.9.172 (OfficeArtContent); [MS-ODRAW] 2.2.
FloatingParts makeFloatingParts(const std::vector<FloatingObject>& objects, const PictureStore& pictures,
                                std::uint32_t bodyLength, std::uint32_t tailStart, CompoundStream& tail);

} // namespace orvane::write::doc
