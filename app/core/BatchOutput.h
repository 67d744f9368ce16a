#pragma once

#include <QString>

#include <cstdint>

struct AppSettings;

namespace run {

/// Extension of a format, with its dot; empty for an unknown one.
QString extensionOf(std::int16_t intOutputFormat);

/// Where the document of a batch's file goes: beside its PDF (intOutputPath 2), into strRecentOutputFolder (0), else
/// `present`, so that all files of the batch aim at one target. The PDF's last four characters go, whatever they are.
QString batchOutput(const AppSettings& settings, const QString& source, const QString& present);

} // namespace run
