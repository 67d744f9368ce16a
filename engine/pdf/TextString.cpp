#include "pdf/TextString.h"

#include <cctype>

#include <fmt/format.h>

#include <Object.h>
#include <PDFDocEncoding.h>
#include <goo/GooString.h>

namespace orvane::pdf {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

void appendReadable(std::string& text, char32_t character) {
    // A carriage return is how PDF ends a line; U+001B brackets a language code, which is no text.
    if (character == '\r')
        character = '\n';
    if ((character < 0x20 && character != '\n' && character != '\t') || character == 0x7F)
        return;
    appendUtf8(text, character);
}

enum class ByteOrder { BigEndian, LittleEndian };

std::string fromUtf16(std::string_view bytes, ByteOrder order) {
    const auto unitAt = [&](std::size_t i) -> char32_t {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        return order == ByteOrder::BigEndian ? char32_t(first << 8 | second) : char32_t(second << 8 | first);
    };
    std::string text;
    bool isLanguageCode = false;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t unit = unitAt(i);
        if (unit == 0x1B) {
            isLanguageCode = !isLanguageCode;
            continue;
        }
        if (isLanguageCode)
            continue;
        if (isHighSurrogate(unit) && i + 3 < bytes.size() && isLowSurrogate(unitAt(i + 2))) {
            unit = 0x10000 + ((unit - 0xD800) << 10) + (unitAt(i + 2) - 0xDC00);
            i += 2;
        }
        appendReadable(text, unit);
    }
    return text;
}

std::string fromPdfDocEncoding(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isLineOrTab = code == '\n' || code == '\r' || code == '\t';
        appendReadable(text, isLineOrTab ? code : ::pdfDocEncoding[code]);
    }
    return text;
}

/// Two digits at `at` of `date`, or `fallback` when there are none.
int twoDigits(std::string_view date, std::size_t at, int fallback) {
    if (at + 1 >= date.size() || !std::isdigit(static_cast<unsigned char>(date[at])) ||
        !std::isdigit(static_cast<unsigned char>(date[at + 1])))
        return fallback;
    return (date[at] - '0') * 10 + (date[at + 1] - '0');
}

std::string zoneOf(std::string_view date) {
    const std::size_t at = date.find_first_of("+-Z", 4);
    if (at == std::string_view::npos || date[at] == 'Z')
        return "Z";
    const int hours = twoDigits(date, at + 1, 0);
    const std::size_t minutesAt = at + 3 < date.size() && date[at + 3] == '\'' ? at + 4 : at + 3;
    const int minutes = twoDigits(date, minutesAt, 0);
    if (hours == 0 && minutes == 0)
        return "Z";
    return fmt::format("{}{:02}:{:02}", date[at], hours, minutes);
}

} // namespace

void appendUtf8(std::string& text, char32_t character) {
    if (character > 0x10FFFF || (character >= 0xD800 && character < 0xE000))
        character = kReplacement;
    const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

std::string toUtf8(std::u32string_view text) {
    std::string bytes;
    for (const char32_t character : text)
        appendUtf8(bytes, character);
    return bytes;
}

std::string textFromPdf(const std::string& bytes) {
    if (bytes.starts_with("\xFE\xFF"))
        return fromUtf16(std::string_view(bytes).substr(2), ByteOrder::BigEndian);
    if (bytes.starts_with("\xFF\xFE"))
        return fromUtf16(std::string_view(bytes).substr(2), ByteOrder::LittleEndian);
    if (bytes.starts_with("\xEF\xBB\xBF"))
        return bytes.substr(3);
    return fromPdfDocEncoding(bytes);
}

std::string textFromPdf(const GooString* string) {
    return string ? textFromPdf(string->toStr()) : std::string();
}

std::string textFromPdf(const ::Object& object) {
    return object.isString() ? textFromPdf(object.getString()->toStr()) : std::string();
}

std::string isoDateFromPdf(std::string_view date) {
    if (date.starts_with("D:"))
        date.remove_prefix(2);
    const int century = twoDigits(date, 0, -1);
    const int yearOfCentury = twoDigits(date, 2, -1);
    if (century < 0 || yearOfCentury < 0)
        return {};
    const int month = twoDigits(date, 4, 1);
    const int day = twoDigits(date, 6, 1);
    const int hour = twoDigits(date, 8, 0);
    const int minute = twoDigits(date, 10, 0);
    const int second = twoDigits(date, 12, 0);
    if (month < 1 || month > 12 || day < 1 || day > 31 || hour > 23 || minute > 59 || second > 60)
        return {};
    return fmt::format("{:02}{:02}-{:02}-{:02}T{:02}:{:02}:{:02}{}", century, yearOfCentury, month, day, hour, minute,
                       second, zoneOf(date));
}

} // namespace orvane::pdf
