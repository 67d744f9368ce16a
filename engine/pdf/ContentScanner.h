#pragma once

#include <string_view>

namespace orvane::pdf {

/// Cuts a content stream into tokens; strings are passed over. Source: ISO 32000-1, 7.2 and 7.8.2.
class ContentScanner {
public:
    explicit ContentScanner(std::string_view content)
        : m_content(content) {}

    /// The next name (with its slash), keyword or number, or one end of a dictionary ("<<", ">>"); empty at the end. The
    /// samples of inline pictures are no tokens.
    std::string_view next();
    /// Behind the token that next() gave last.
    std::size_t position() const { return m_at; }

private:
    std::string_view takeRegular(std::size_t leading);
    void skipUntil(std::string_view ends);
    void skipString();
    void skipInlinePicture();

    std::string_view m_content;
    std::size_t m_at = 0;
};

} // namespace orvane::pdf
