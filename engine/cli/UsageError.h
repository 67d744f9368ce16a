#pragma once

#include <stdexcept>

namespace orvane::cli {

/// The command line asks for something that has no meaning; its text says what.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace orvane::cli
