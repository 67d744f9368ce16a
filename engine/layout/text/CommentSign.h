#pragma once

#include <string_view>

namespace orvane::layout {

/// Whether the text begins with a sign that starts a comment in a program or a file of settings: "//", "/*", and, as a
/// word of their own, "#", "--" and ";".
bool startsComment(std::string_view text);

} // namespace orvane::layout
