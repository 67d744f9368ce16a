#pragma once

#include "document/Document.h"

namespace orvane::write::docx {

/// How a list's labels and a displayed formula tell their alignment; these know left, center and right only.
/// Source: ECMA-376 part 1, 17.18.44 (ST_Jc) and 22.1.3.3 (ST_Jc of formulas).
inline const char* justificationOf(document::Alignment alignment) {
    switch (alignment) {
    case document::Alignment::Center:
        return "center";
    case document::Alignment::End:
        return "right";
    default:
        return "left";
    }
}

} // namespace orvane::write::docx
