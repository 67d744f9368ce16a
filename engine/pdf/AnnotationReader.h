#pragma once

#include "pdf/PageContent.h"

#include <vector>

class Page;

namespace orvane::pdf {

/// The page's annotations that are neither links, form fields nor the pop-ups of others. Hidden ones are left out.
std::vector<Annotation> readAnnotations(::Page& page);

} // namespace orvane::pdf
