#include "base/XmlWriter.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

template<typename Write>
std::string written(Write write) {
    std::string xml;
    XmlWriter writer([&xml](std::string_view piece) { xml += piece; });
    write(writer);
    writer.finish();
    return xml;
}

TEST(XmlWriter, WritesElementsWithAttributesAndText) {
    const std::string xml = written([](XmlWriter& writer) {
        writer.declaration();
        const XmlElement root(writer, "a", {{"x", "1"}, {"y", -2}});
        writer.leaf("b");
        writer.leaf("c", {{"z", std::string("v")}});
        writer.text("t");
    });
    EXPECT_EQ(xml, "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
                   "<a x=\"1\" y=\"-2\"><b/><c z=\"v\"/>t</a>");
}

TEST(XmlWriter, EscapesWhatHasAMeaning) {
    const std::string xml = written([](XmlWriter& writer) {
        const XmlElement root(writer, "a", {{"x", "<\"&'>\t\n"}});
        writer.text("<\"&'>\t\n\r");
    });
    EXPECT_EQ(xml, "<a x=\"&lt;&quot;&amp;'&gt;&#9;&#10;\">&lt;\"&amp;'&gt;\t\n&#13;</a>");
}

TEST(XmlWriter, LeavesOutWhatXmlCannotHold) {
    const std::string xml = written([](XmlWriter& writer) {
        const XmlElement root(writer, "a");
        writer.text(std::string("a\x01\0\x1f\uFFFE", 7) + "b\xff\u00e4\U0001F600");
    });
    EXPECT_EQ(xml, "<a>ab\uFFFD\u00e4\U0001F600</a>");
}

TEST(XmlWriter, OmitsElementsThatStayEmpty) {
    const std::string xml = written([](XmlWriter& writer) {
        const XmlElement root(writer, "a");
        {
            const XmlElement omitted(writer, "b", EmptyElement::Omit);
            const XmlElement within(writer, "c", EmptyElement::Omit);
        }
        const XmlElement kept(writer, "d", EmptyElement::Omit);
        const XmlElement filled(writer, "e", EmptyElement::Omit);
        writer.leaf("f");
    });
    EXPECT_EQ(xml, "<a><d><e><f/></e></d></a>");
}

TEST(XmlWriter, GivesALargeDocumentAwayInPieces) {
    std::size_t pieces = 0;
    std::size_t size = 0;
    std::size_t largest = 0;
    XmlWriter writer([&](std::string_view piece) {
        ++pieces;
        size += piece.size();
        largest = std::max(largest, piece.size());
    });
    writer.start("a");
    for (int i = 0; i < 100000; ++i)
        writer.leaf("element");
    writer.end();
    writer.finish();
    EXPECT_EQ(size, std::string("<a></a>").size() + 100000 * std::string("<element/>").size());
    EXPECT_GT(pieces, 10u);
    EXPECT_LT(largest, 100000u);
}

} // namespace
} // namespace orvane
