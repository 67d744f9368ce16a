#pragma once

#include <cstdint>

struct ProgressRun;

namespace run {

/// Asks for the password that the engine wants (result 17 the user's, 18 the owner's, any other the one asked for
/// before) and leaves in strPdfPassword what the next attempt passes on. Once both were asked for, that is the new
/// password and the kept one, joined.
void askForPassword(ProgressRun& run, std::int32_t engineResult);

} // namespace run
