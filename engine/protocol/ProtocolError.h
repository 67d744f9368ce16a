#pragma once

#include <stdexcept>

namespace orvane::protocol {

/// The other side sent what it must not send.
class ProtocolError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace orvane::protocol
