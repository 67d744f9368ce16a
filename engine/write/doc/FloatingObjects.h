#pragma once

#include "base/PictureStore.h"
#include "document/Document.h"
#include "write/doc/CompoundFile.h"
#include "write/doc/PictureNumbers.h"
#include "write/doc/StoryText.h"

#include <string>
#include <vector>

namespace orvane::write::doc {

/// A picture, a drawing or a box of text that floats over the text.
struct FloatingObject {
    std::uint32_t place = 0;                  ///< of the character that stands for it
    const document::Figure* figure = nullptr; ///< null for a box of text
    const document::Frame* frame = nullptr;
    int box = 0; ///< which of its layer's boxes of text it is, counted from 1

    const document::Placement& placement() const { return figure ? figure->placement : frame->placement; }
    int shape = 0; ///< its number, once it has one
};

/// The texts of floating boxes, one after the other.
struct TextBoxes {
    std::vector<std::uint32_t> starts;
    StoryText text;
};

/// What floats over one part of the file's text: over the body, or over the headers and footers.
struct FloatLayer {
    std::vector<FloatingObject> objects; ///< ascending by their places
    TextBoxes boxes;

    /// Adds what floats over a text that starts at `start` of the part.
    void append(const FloatLayer& other, std::uint32_t start);
};

/// Whether the same objects float at the same places.
bool equal(const FloatLayer& a, const FloatLayer& b);

/// A layer, and how long the text below it is.
struct LayeredText {
    FloatLayer& layer;
    std::uint32_t length = 0;
};

/// What floating objects are in the file.
struct FloatingParts {
    std::string bodyAnchors; ///< where each stands: PlcfSpa
    std::string runningAnchors;
    std::string shapes; ///< what each is: OfficeArtContent
};

/// Makes the records of floating objects and gives the objects their numbers. The bytes of their pictures are added to
/// `tail`, which stands in the main stream from `tailStart` on. Source: [MS-DOC] 2.8.37 (PlcfSpa), 2.9.253
/// (Spa), 2.9.172 (OfficeArtContent); [MS-ODRAW] 2.2.
FloatingParts makeFloatingParts(const LayeredText& body, const LayeredText& running, const PictureStore& pictures,
                                PictureNumbers& numbers, std::uint32_t tailStart, CompoundStream& tail);

} // namespace orvane::write::doc
