#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes a picture that stands in the line. A picture that the store does not have is told of and left out.
void writeInlinePicture(Story& story, const document::Picture& picture);

/// Writes a picture that floats.
void writeFloatingPicture(Story& story, const document::Picture& picture, const document::Placement& placement);

} // namespace orvane::write::rtf
