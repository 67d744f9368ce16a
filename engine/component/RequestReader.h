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

/// The layout that a request's code stands for.
/// Errors: Failure(InvalidRequest) for a code that is none.
protocol::Layout readLayout(std::int16_t code);

/// The format of picture files that a request's code stands for.
/// Errors: Failure(InvalidRequest) for a code that is none.
ImageFileFormat readImageFormat(std::int16_t code);

/// The job that a request asks for, but for its layout and the format of pictures: what makes no sense there is to be
/// told in the job's own log.
protocol::Job readRequest(const ConversionRequest& request);

} // namespace orvane::component
