#pragma once

#include "records/SharedRecords.h"

#include <QStringList>

/// The seventeen fields of the settings in their text form, in the order in which they are stored.
namespace settings_record {

inline constexpr int kFieldCount = 17;
inline constexpr char kSeparator[] = "~:~";

/// The leading number of a text ("3x" is 3, "x3" is 0), rounded to the nearest 16-bit integer, halves to the even
/// neighbour.
std::int16_t numberOf(const QString& text);

/// Whether the page range takes part: the settings file holds one, the registry does not.
enum class PageRange { Taken, LeftAlone };

/// Takes the fields into the records by the rules of each.
/// Requires: at least kFieldCount fields; later ones are not looked at.
void take(const QStringList& fields, PageRange pageRange, SharedRecords& records);

/// The fields of the records.
QStringList make(const SharedRecords& records);

} // namespace settings_record
