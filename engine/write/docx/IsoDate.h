#pragma once

#include <string_view>

namespace orvane::write::docx {

/// Whether the text is a date with a time as XML has it: 2024-02-29T13:05:00, with or without Z or an offset.
/// Source: XML Schema part 2, 3.2.7 (dateTime).
bool isIsoDateTime(std::string_view text);

} // namespace orvane::write::docx
