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
    void begin(const char* tag, const ::Dict* properties);
    /// A marked point; those of withNamedMarks() begin a sequence.
    void markPoint(const char* tag, const ::Dict* properties);
    void end();

    /// A form's sequences end with it, and its ends do not reach what is open around it.
    void beginForm() { m_formBases.push_back(m_open.size()); }
    void endForm();

    /// Index of the innermost open sequence; -1 outside.
    std::int32_t current() const { return m_open.empty() ? -1 : m_open.back(); }

private:
    std::vector<Mark>& m_marks;
    std::vector<std::int32_t> m_open;
    std::vector<std::size_t> m_formBases;
};

} // namespace orvane::pdf
