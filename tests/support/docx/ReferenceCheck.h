#pragma once

#include <map>
#include <string>
#include <vector>

#include <pugixml.hpp>

namespace orvane::tests {

/// The XML parts of a document by name.
using XmlParts = std::map<std::string, pugi::xml_document>;

/// Checks that what refers to something finds it, and that what has an id has it alone: styles, lists, notes, comments,
/// bookmarks, drawings, fields, the cells of tables.
void checkReferences(const XmlParts& parts, std::vector<std::string>& faults);

} // namespace orvane::tests
