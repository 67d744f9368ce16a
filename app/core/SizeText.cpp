#include "core/SizeText.h"

#include <QLocale>

#include <cmath>

QString sizeText(std::int64_t bytes) {
    constexpr double kBytesPerKilobyte = 1024.0;
    constexpr double kHundredths = 100.0;
    const double hundredths = std::nearbyint(static_cast<double>(bytes) / kBytesPerKilobyte * kHundredths);
    return QString::number(hundredths / kHundredths, 'f', QLocale::FloatingPointShortest) + "  KB";
}
