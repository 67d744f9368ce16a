#include "write/doc/FieldDoc.h"

namespace orvane::write::doc {
namespace {

constexpr int kHasSeparator = 0x80;
constexpr int kNoKind = 0xFF;

std::string special() {
    return PropertyList().add(sprm::kCFSpec, 1).bytes();
}

} // namespace

FieldKind kindOf(const document::Field& field) {
    switch (field.code) {
    case document::FieldCode::Page:
        return FieldKind::Page;
    case document::FieldCode::PageCount:
        return FieldKind::PageCount;
    case document::FieldCode::PageReference:
        return FieldKind::PageReference;
    }
    return FieldKind::Page;
}

void startField(Story& story, FieldKind kind, const std::string& instruction) {
    openField(story, kind, instruction);
    separateField(story);
}

void openField(Story& story, FieldKind kind, const std::string& instruction) {
    story.text.addField(character::kFieldStart, static_cast<int>(kind), special());
    story.text.add(utf16FromUtf8(instruction), {});
}

void separateField(Story& story) {
    story.text.addField(character::kFieldSeparator, kNoKind, special());
}

void endField(Story& story) {
    story.text.addField(character::kFieldEnd, kHasSeparator, special());
}

std::string fieldTable(const StoryText& text) {
    if (text.fields().empty())
        return {};
    Bytes table;
    for (const FieldMark& field : text.fields())
        table.u32(field.place);
    table.u32(text.length());
    for (const FieldMark& field : text.fields())
        table.u8(field.character).u8(field.kind);
    return table.str();
}

} // namespace orvane::write::doc
