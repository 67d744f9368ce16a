#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane {

/// A name with its value; the value is only looked at, so it must outlive the call that takes the attribute.
struct XmlAttribute {
    std::string_view name;
    std::variant<std::string_view, std::int64_t> value;

    XmlAttribute(std::string_view attributeName, std::string_view text)
        : name(attributeName)
        , value(text) {}
    XmlAttribute(std::string_view attributeName, const char* text)
        : name(attributeName)
        , value(std::string_view(text)) {}
    XmlAttribute(std::string_view attributeName, const std::string& text)
        : name(attributeName)
        , value(std::string_view(text)) {}
    template<std::integral Number>
    XmlAttribute(std::string_view attributeName, Number number)
        : name(attributeName)
        , value(static_cast<std::int64_t>(number)) {}
};

/// Whether an element stays that ends without an attribute or anything in it.
enum class EmptyElement { Keep, Omit };

/// Writes an XML document from its first to its last element, and holds no more of it than a few kilobytes. Texts are
/// UTF-8; what XML 1.0 cannot hold is left out (control characters) or becomes U+FFFD (invalid bytes, surrogates).
/// Source: XML 1.0, 2.2 (characters).
class XmlWriter {
public:
    /// Takes the document piece by piece.
    using Sink = std::function<void(std::string_view)>;

    explicit XmlWriter(Sink sink);

    void declaration();
    /// Requires: `name` is a literal, or outlives the element.
    void start(std::string_view name, EmptyElement whenEmpty = EmptyElement::Keep);
    void attribute(const XmlAttribute& attribute);
    void text(std::string_view text);
    void end();
    /// An element without content.
    void leaf(std::string_view name, std::initializer_list<XmlAttribute> attributes = {});
    /// What another writer wrote: whole elements.
    void raw(std::string_view xml);
    /// Gives the rest to the sink.
    /// Requires: all elements have ended.
    void finish();

private:
    struct OpenElement {
        std::string_view name;
        bool isWritten = false;
    };

    void writePendingStarts();
    void closeTag();
    void flushWhenLarge();

    Sink m_sink;
    std::string m_buffer;
    std::vector<OpenElement> m_elements;
    std::size_t m_pendingStarts = 0; ///< innermost elements that are written only when they turn out not to be empty
    bool m_isTagOpen = false;        ///< the last start tag still takes attributes
};

/// An element that ends with its scope.
class XmlElement {
public:
    XmlElement(XmlWriter& xml, std::string_view name, EmptyElement whenEmpty = EmptyElement::Keep)
        : m_xml(xml) {
        xml.start(name, whenEmpty);
    }
    XmlElement(XmlWriter& xml, std::string_view name, std::initializer_list<XmlAttribute> attributes)
        : m_xml(xml) {
        xml.start(name);
        for (const XmlAttribute& attribute : attributes)
            xml.attribute(attribute);
    }
    ~XmlElement() { m_xml.end(); }
    XmlElement(const XmlElement&) = delete;
    XmlElement& operator=(const XmlElement&) = delete;

private:
    XmlWriter& m_xml;
};

} // namespace orvane
