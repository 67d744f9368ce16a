#pragma once

#include <QString>

#include <cstdint>

/// A file's length as the windows show it: kilobytes rounded to two decimals, halves to the even neighbour, in the
/// shortest form, and "  KB": 12800 bytes are "12.5  KB".
QString sizeText(std::int64_t bytes);
