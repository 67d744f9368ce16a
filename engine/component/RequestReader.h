#pragma once

#include "orvane/ConversionEngine.h"
#include "protocol/Job.h"

#include <string>

namespace orvane::component {

/// The passwords in the one text of a request.
struct PasswordPair {
    std::string user;
    std::string owner;

    bool operator==(const PasswordPair&) const = default;
};

/// Takes the text of a request apart: with both request bits in `flags` it may hold two passwords, the owner's first. A
/// password that stands alone is good for both uses, whatever it was asked for.
PasswordPair readPasswords(const std::string& text, std::int32_t flags);

/// The job that a request asks for.
/// Errors: Failure(InvalidRequest) for a layout code that is none.
protocol::Job readRequest(const ConversionRequest& request);

} // namespace orvane::component
