#pragma once

#include "services/ErrorTrap.h"

#include <cstdint>

struct ProgressRun;

namespace run {

/// Reacts to the result of DoConvert: sets intParseState and, on a failure, blnCloseRequested, and tells the user.
void judgeResult(ProgressRun& run, const ErrorTrap& trap, std::int32_t engineResult);

} // namespace run
