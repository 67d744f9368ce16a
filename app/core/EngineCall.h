#pragma once

#include <orvane/ConversionEngine.h>

#include <functional>

struct ProgressRun;

namespace run {

/// Makes a call into the run's engine, which may be long in answering: windows go on being drawn meanwhile, and the
/// user is told when it takes too long. The engine is asked nothing else before the call is through.
/// Errors: those of the call; std::runtime_error when there is no engine.
void callEngine(ProgressRun& run, const std::function<void(orvane::ConversionEngine&)>& call);

} // namespace run
