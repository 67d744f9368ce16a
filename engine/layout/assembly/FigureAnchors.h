#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// Where the text of a table cell begins. Units: points, page space.
struct CellOrigin {
    double left = 0;
    double top = 0;
};

/// Puts what floats at the end of a page before the last paragraph that begins there: word processors show it on the
/// page of the paragraph behind it.
void keepOnPages(std::vector<AssembledBlock>& blocks);

/// Moves what hangs on the empty paragraph of a drawing, the drawing itself first, below the space above that.
/// Requires: the space between the blocks is known.
void hangBelowSpace(std::vector<AssembledBlock>& blocks);

/// Hangs pictures that float beside one in a paragraph of its own on that paragraph: they go where it goes. Requires:
/// the space between the blocks is known.
void hangBesidePictures(std::vector<AssembledBlock>& blocks);

/// Hangs pictures that text makes way for on the paragraph beside which they begin: text that comes out somewhat higher
/// or lower than it stood stays beside and between them. Requires: the space between the blocks is known.
void hangBesideText(std::vector<AssembledBlock>& blocks);

/// Hangs what lies behind or in front of text on the paragraph that it was drawn into, so that boxes stay around their
/// words wherever these go. In a cell everything hangs, for there a page's places are the cell's. Requires: the space
/// between the blocks is known.
void hangOnText(std::vector<AssembledBlock>& blocks, const std::optional<CellOrigin>& cell,
                const AssemblyContext& context);

} // namespace orvane::layout
