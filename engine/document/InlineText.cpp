#include "document/InlineText.h"

namespace orvane::document {

std::string plainText(const std::vector<Inline>& inlines) {
    std::string text;
    for (const Inline& item : inlines)
        if (const auto* run = std::get_if<Text>(&item.value))
            text += run->text;
    return text;
}

} // namespace orvane::document
