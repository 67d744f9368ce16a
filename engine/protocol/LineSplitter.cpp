#include "protocol/LineSplitter.h"

#include "protocol/ProtocolError.h"

namespace orvane::protocol {

std::optional<std::string> LineSplitter::next() {
    const std::size_t end = m_buffer.find('\n', m_searched);
    const std::size_t length = (end == std::string::npos ? m_buffer.size() : end) - m_start;
    if (length > m_maxLength)
        throw ProtocolError("the line is too long");
    if (end == std::string::npos) {
        m_buffer.erase(0, m_start);
        m_start = 0;
        m_searched = m_buffer.size();
        return std::nullopt;
    }
    std::string line = m_buffer.substr(m_start, length);
    m_start = m_searched = end + 1;
    return line;
}

} // namespace orvane::protocol
