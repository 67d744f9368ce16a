#include "settings/SettingsRecord.h"

#include <QRegularExpression>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <limits>

namespace settings_record {
namespace {

QString withoutNul(QString text) {
    return text.remove(QChar(0));
}

/// A number field: NUL characters go, and an empty text is 0.
std::int16_t numberField(const QString& text) {
    return numberOf(withoutNul(text));
}

void takeOutputPath(const QString& field, AppSettings& settings) {
    const QString text = withoutNul(field);
    // Older files wrote a truth value here, -1 for the source's own folder.
    settings.intOutputPath = text.isEmpty() || text == "-1" ? std::int16_t{2} : numberOf(text);
}

void takeCharSpacing(const QString& field, SharedRecords& records) {
    const QString text = withoutNul(field);
    const bool isKept = text.isEmpty() || text == "0";
    records.settings.intCharSpac = isKept ? std::int16_t{0} : numberOf(text);
    records.job.strCharSpacing = isKept ? "yes" : "no";
}

} // namespace

std::int16_t numberOf(const QString& text) {
    static const QRegularExpression leadingNumber(R"(^[ \t]*[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?)");
    const double number = leadingNumber.match(text).captured(0).trimmed().toDouble();
    using Limits = std::numeric_limits<std::int16_t>;
    // nearbyint() rounds halves to even in the default rounding mode, which nothing here changes.
    return static_cast<std::int16_t>(std::clamp(std::nearbyint(number), double{Limits::min()}, double{Limits::max()}));
}

void take(const QStringList& fields, PageRange pageRange, SharedRecords& records) {
    AppSettings& settings = records.settings;
    settings.intLanguageID = numberField(fields[0]);
    settings.intLauchMs = numberField(fields[1]);
    takeOutputPath(fields[2], settings);
    settings.intOutputFormat = numberField(fields[3]);
    settings.intProgressWind = numberField(fields[4]);
    settings.intUseWiz = numberField(fields[5]);
    settings.intReconstMode = numberField(fields[6]);
    settings.intRecoverImg = numberField(fields[7]);
    takeCharSpacing(fields[8], records);
    if (pageRange == PageRange::Taken)
        records.job.strPageRange = fields[9]; // as it stands, NUL characters too
    settings.strConversionMethod = withoutNul(fields[10]);
    settings.intConvertFrom = numberField(fields[11]);
    settings.intPromptConversion = numberField(fields[12]);
    settings.strRecentFolder = withoutNul(fields[13]);
    settings.strRecentOutputFolder = withoutNul(fields[14]);
    settings.strLogPath = withoutNul(fields[15]);
    // Into the text, not into intLogPath: the number follows only when the options window loads.
    settings.strLogPathFlag = withoutNul(fields[16]);
}

QStringList make(const SharedRecords& records) {
    const AppSettings& settings = records.settings;
    const auto number = [](std::int16_t value) { return QString::number(value); };
    return {number(settings.intLanguageID),       number(settings.intLauchMs),
            number(settings.intOutputPath),       number(settings.intOutputFormat),
            number(settings.intProgressWind),     number(settings.intUseWiz),
            number(settings.intReconstMode),      number(settings.intRecoverImg),
            number(settings.intCharSpac),         records.job.strPageRange,
            settings.strConversionMethod,         number(settings.intConvertFrom),
            number(settings.intPromptConversion), settings.strRecentFolder,
            settings.strRecentOutputFolder,       settings.strLogPath,
            number(settings.intLogPath)};
}

} // namespace settings_record
