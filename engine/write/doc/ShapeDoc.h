#pragma once

#include "document/Document.h"

#include <optional>
#include <string>

namespace orvane::write::doc {

/// Gives numbers to shapes, one after the other.
class ShapeNumbers {
public:
    explicit ShapeNumbers(int first)
        : m_next(first) {}
    int take() { return m_next++; }
    int next() const { return m_next; }

private:
    int m_next;
};

/// The records of a drawing: one shape, or a group of them. `id` is the number of the whole.
/// Source: [MS-ODRAW] 2.2.14 (shapes), 2.2.16 (groups).
std::string drawingRecords(const document::Drawing& drawing, const document::Placement& placement, int id,
                           ShapeNumbers& numbers);

/// The records of a picture that stands at `index` of the store, counted from 1.
std::string pictureRecords(const document::Picture& picture, const document::Placement& placement, int id, int index);

/// The records of the box of text that has the number `box` in the file, counted from 1.
/// Source: [MS-ODRAW] 2.3.21 (text); [MS-DOC] 2.9.36 (OfficeArtClientTextbox).
std::string frameRecords(const document::Frame& frame, int id, int box);

} // namespace orvane::write::doc
