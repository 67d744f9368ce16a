#pragma once

#include <QString>

#include <orvane/ConversionEngine.h>

struct ConversionJob;
struct ProgressRun;

namespace run {

/// The engine's option bits of the job in hand.
std::int32_t GetConversionFlags(const ProgressRun& run);

/// The engine's layout code of the chosen mode; an image run has its own.
std::int16_t layoutCode(const ProgressRun& run);

/// Sets intImageFormat from strImageFormat, whatever its letter case; an unknown name leaves the code as it stood.
void takeImageFormat(ConversionJob& job);

/// The twelve arguments of the call for the staged file.
orvane::ConversionRequest engineRequest(const ProgressRun& run, const QString& password, std::int16_t layout);

} // namespace run
