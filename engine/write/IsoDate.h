#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane::write {

/// Whether the text is a date with a time as XML has it: 2024-02-29T13:05:00, with or without Z or an offset.
/// Source: XML Schema part 2, 3.2.7 (dateTime).
bool isIsoDateTime(std::string_view text);

/// A moment as its author's clock showed it.
struct DateTime {
    int year = 0;
    int month = 0; ///< 1 to 12
    int day = 0;   ///< 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
    int weekday = 0; ///< 0 for Sunday
};

/// The moment of an ISO 8601 date and time; its zone is not looked at. Nothing for what is none.
std::optional<DateTime> dateTimeFromIso(std::string_view text);

/// The moment in the 32 bits that DOC and RTF have for it; 0 for one before the year 1900, which they have not.
/// Source: [MS-DOC] 2.9.67 (DTTM).
std::uint32_t packedDateTime(const DateTime& time);

} // namespace orvane::write
