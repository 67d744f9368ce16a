#pragma once

#include "pdf/PageContent.h"

#include <vector>

class Dict;

namespace orvane::pdf {

/// Follows the marked-content sequences of a page's content. Source: ISO 32000-1, 14.6.
class MarkReader {
public:
    explicit MarkReader(std::vector<Mark>& marks)
        : m_marks(marks) {}

    /// `properties` may be null.
    void begin(const char* tag, ::Dict* properties);
    void end();
    /// Index of the innermost open sequence; -1 outside.
    std::int32_t current() const { return m_open.empty() ? -1 : m_open.back(); }

private:
    std::vector<Mark>& m_marks;
    std::vector<std::int32_t> m_open;
};

} // namespace orvane::pdf
