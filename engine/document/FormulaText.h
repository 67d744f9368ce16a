#pragma once

#include "document/Document.h"

#include <string>

namespace orvane::document {

/// The formula in one line, as people type it: "x=(-b±√(b^2-4ac))/(2a)". Source: Unicode Technical Note 28, the linear
/// format of mathematical expressions.
std::string linearText(const FormulaPart& part);

} // namespace orvane::document
