#pragma once

#include "write/Fields.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// The types of fields. Source: [MS-DOC] 2.9.89 (flt).
enum class FieldKind {
    Contents = 13,
    PageCount = 26,
    Page = 33,
    PageReference = 37,
    FormText = 70,
    FormCheckBox = 71,
    FormDropDown = 83,
    Link = 88,
};

FieldKind kindOf(const document::Field& field);

/// Writes what stands before a field's result.
/// Source: [MS-DOC] 2.8.25 (Plcfld).
void startField(Story& story, FieldKind kind, const std::string& instruction);
/// The same in two steps, for fields with more than a text before their result.
void openField(Story& story, FieldKind kind, const std::string& instruction);
void separateField(Story& story);
void endField(Story& story);

/// The table of a text's fields.
std::string fieldTable(const StoryText& text);

} // namespace orvane::write::doc
