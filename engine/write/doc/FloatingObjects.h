#pragma once

#include "base/PictureStore.h"
#include "document/Document.h"
#include "write/doc/CompoundFile.h"

#include <string>
#include <vector>

namespace orvane::write::doc {

/// A picture, a drawing or a box of text that floats over the body.
struct FloatingObject {
    std::uint32_t place = 0;                  ///< of the character that stands for it
    const document::Figure* figure = nullptr; ///< null for a box of text
    const document::Frame* frame = nullptr;
    int box = 0; ///< which of the file's boxes of text it is, counted from 1

    const document::Placement& placement() const { return figure ? figure->placement : frame->placement; }
    int shape = 0; ///< its number, once it has one
};

/// What floating objects are in the file.
struct FloatingParts {
    std::string anchors; ///< where each stands: PlcfSpa
    std::string shapes;  ///< what each is: OfficeArtContent
};

/// Makes the records of floating objects and gives the objects their numbers. The bytes of their pictures are added to
/// `tail`, which stands in the main stream from `tailStart` on. Source: [MS-DOC] 2.8.37 (PlcfSpa), 2.9.253
/// (Spa), 2.9.172 (OfficeArtContent); [MS-ODRAW] 2.2.
FloatingParts makeFloatingParts(std::vector<FloatingObject>& objects, const PictureStore& pictures,
                                std::uint32_t bodyLength, std::uint32_t tailStart, CompoundStream& tail);

} // namespace orvane::write::doc
