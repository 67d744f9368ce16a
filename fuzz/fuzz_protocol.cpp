#include "protocol/Job.h"
#include "protocol/Message.h"
#include "protocol/ProtocolError.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Any line is a message, a job, or a ProtocolError.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    try {
        orvane::protocol::decodeMessage(line);
    } catch (const orvane::protocol::ProtocolError&) {
    }
    try {
        orvane::protocol::decodeJob(line);
    } catch (const orvane::protocol::ProtocolError&) {
    }
    return 0;
}
