#pragma once

#include <string>
#include <string_view>

class GooString;
class Object;

namespace orvane::pdf {

/// A PDF text string as UTF-8: UTF-16 or UTF-8 where a byte order mark says so, else PDFDocEncoding. Control characters
/// other than line breaks and tabs are left out. Source: ISO 32000-2, 7.9.2.2.
std::string textFromPdf(const std::string& bytes);
std::string textFromPdf(const GooString* string);
/// As above for a string object; empty for an object of another type.
std::string textFromPdf(const ::Object& object);

/// A PDF date ("D:20240501120000+02'00'") as ISO 8601 ("2024-05-01T12:00:00+02:00"); empty when it is none.
/// Source: ISO 32000-1, 7.9.4.
std::string isoDateFromPdf(std::string_view date);

std::string toUtf8(std::u32string_view text);
void appendUtf8(std::string& text, char32_t character);

} // namespace orvane::pdf
