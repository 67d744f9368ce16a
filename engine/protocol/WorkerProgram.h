#pragma once

#include <filesystem>

namespace orvane::protocol {

/// Where the worker's program lies: beside the program or shared library that this code is part of.
std::filesystem::path workerProgram();

} // namespace orvane::protocol
