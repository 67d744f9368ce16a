#pragma once

#include "layout/fonts/FontMapper.h"
#include "layout/fonts/FontParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// Typesetting programs squeeze the blanks of justified lines as well as they stretch them; word processors only
/// stretch. The families of lines that would not fit are made a hair narrower, so that lines break where they broke.
/// `fonts`: those of each page, fitted.
void narrowSqueezedFonts(std::vector<std::vector<MappedFont>>& fonts, const DocumentDraft& draft,
                         const FontParameters::Squeeze& parameters);

} // namespace orvane::layout
