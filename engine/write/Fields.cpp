#include "write/Fields.h"

#include "write/LinkNames.h"

#include <algorithm>

#include <fmt/format.h>

namespace orvane::write {

using namespace document;

std::string fieldInstruction(const Field& field) {
    switch (field.code) {
    case FieldCode::Page:
        return " PAGE ";
    case FieldCode::PageCount:
        return " NUMPAGES ";
    case FieldCode::PageReference:
        return " PAGEREF " + bookmarkName(field.argument) + " \\h ";
    }
    return {};
}

std::string fieldInstruction(const TableOfContents& contents) {
    return fmt::format(" TOC \\o \"{}-{}\" \\h \\z \\u ", std::clamp(contents.firstLevel, 1, 9),
                       std::clamp(contents.lastLevel, 1, 9));
}

} // namespace orvane::write
