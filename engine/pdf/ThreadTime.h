#pragma once

#include <chrono>

namespace orvane::pdf {

/// The processor time that the calling thread has used so far: limits told in it hold however busy the machine is with
/// other things, so that a document comes out the same.
std::chrono::nanoseconds threadTime();

} // namespace orvane::pdf
