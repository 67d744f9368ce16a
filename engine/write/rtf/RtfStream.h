#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace orvane::write::rtf {

/// Writes RTF: groups, control words, text. Holds no more of it than a few kilobytes.
/// Source: RTF 1.9.1, "RTF Syntax".
class RtfStream {
public:
    /// Takes the file piece by piece.
    using Sink = std::function<void(std::string_view)>;

    explicit RtfStream(Sink sink)
        : m_sink(std::move(sink)) {}

    void open();
    void close();
    void word(std::string_view name);
    void word(std::string_view name, std::int64_t value);
    /// Characters of the text, as \uN with a fallback for readers that only know the ANSI code page; tabulators, line
    /// ends and special hyphens as the words for them. Other control characters are left out.
    void text(std::string_view utf8);
    /// What is no text: data, separators.
    void raw(std::string_view bytes);
    /// Ends the line in the file; readers pass over it.
    void newLine();
    /// Gives the rest to the sink.
    void finish();

private:
    void character(char32_t c);
    void symbol(std::string_view bytes);
    void put(std::string_view bytes);

    Sink m_sink;
    std::string m_buffer;
    bool m_isWordOpen = false; ///< a letter or digit that followed would belong to the last word
};

/// A group that ends with its scope.
class RtfGroup {
public:
    explicit RtfGroup(RtfStream& rtf)
        : m_rtf(rtf) {
        rtf.open();
    }
    RtfGroup(RtfStream& rtf, std::string_view name)
        : RtfGroup(rtf) {
        rtf.word(name);
    }
    ~RtfGroup() { m_rtf.close(); }
    RtfGroup(const RtfGroup&) = delete;
    RtfGroup& operator=(const RtfGroup&) = delete;

private:
    RtfStream& m_rtf;
};

/// A group that readers pass over when they do not know its name.
class RtfDestination {
public:
    RtfDestination(RtfStream& rtf, std::string_view name)
        : m_group(rtf) {
        rtf.raw("\\*");
        rtf.word(name);
    }

private:
    RtfGroup m_group;
};

} // namespace orvane::write::rtf
