#pragma once

#include "pdf/PageContent.h"

#include <vector>

class Page;

namespace orvane::pdf {

/// The widgets of form fields on a page, hidden ones left out.
std::vector<FormField> readFormFields(::Page& page);

} // namespace orvane::pdf
