#pragma once

#include <QString>

#include <cstdint>

struct ProgressRun;

namespace run {

/// One tick of the timer: asks the engine what it is at, shows it, and ends the run on a finish code.
/// Errors: logged; then the timer stops, the engine is released and the tick ends.
void Timer1_Timer(ProgressRun& run);

/// The text of a status code; every "%ld" of a text is replaced by its number.
/// Errors: a text that the language file does not hold is logged, and the result is empty.
QString GetStatusText(const ProgressRun& run, std::int32_t status, std::int32_t first, std::int32_t second);

} // namespace run
