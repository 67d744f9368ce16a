#include "layout/text/CommentSign.h"

namespace orvane::layout {

bool startsComment(std::string_view text) {
    const std::string_view word = text.substr(0, text.find(' '));
    return text.starts_with("//") || text.starts_with("/*") || word == "#" || word == "--" || word == ";";
}

} // namespace orvane::layout
