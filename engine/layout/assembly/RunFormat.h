#pragma once

#include "document/Format.h"
#include "layout/assembly/ScriptFamilies.h"
#include "layout/text/PageText.h"

#include <cstddef>

namespace orvane::layout {

struct AssemblyContext;

/// How a span's characters look, in the document's words. `families` are those around it.
document::RunProperties runProperties(const Span& span, std::size_t page, const ScriptFamilies& families,
                                      const AssemblyContext& context);

} // namespace orvane::layout
