#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::protocol {

/// Makes lines of bytes that come in pieces of any size.
class LineSplitter {
public:
    /// A line longer than `maxLength` is an error, so that a runaway sender cannot fill the memory.
    explicit LineSplitter(std::size_t maxLength)
        : m_maxLength(maxLength) {}

    void add(std::string_view bytes) { m_buffer.append(bytes); }

    /// The next whole line without its line end; empty when there is none yet.
    /// Errors: ProtocolError for a line that is too long, whole or not.
    std::optional<std::string> next();

private:
    std::size_t m_maxLength;
    std::string m_buffer;
    std::size_t m_start = 0;    // of the line that comes next
    std::size_t m_searched = 0; // up to here there is no line end
};

} // namespace orvane::protocol
