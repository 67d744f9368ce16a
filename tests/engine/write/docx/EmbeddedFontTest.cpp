#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"
#include "write/docx/EmbeddedFontParts.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;
using testing::HasSubstr;
using testing::Not;

Document documentIn(const std::string& family) {
    Document document = documentOf("a");
    document.styles[0].run.fontFamily = family;
    return document;
}

const std::string kProgram = "a program of more than thirty-two bytes, which are hidden";

TEST(EmbeddedFonts, StandInTheFontTable) {
    Document document = documentIn("Lato");
    document.fonts = {{"Lato", true, false, kProgram + " in bold"}, {"Lato", false, false, kProgram}};
    const WrittenDocument written(document);
    const std::string key = write::docx::fontKey(kProgram);
    EXPECT_EQ(written.select("word/fontTable.xml", "//w:font[@w:name='Lato']/*[starts-with(name(), 'w:embed')]"),
              normalXml("<w:embedRegular r:id='rId1' w:fontKey='" + key +
                        "' w:subsetted='1'/><w:embedBold r:id='rId2' w:fontKey='" +
                        write::docx::fontKey(kProgram + " in bold") + "' w:subsetted='1'/>"))
        << "regular before bold, whatever the order of the document";
    EXPECT_THAT(written.part("word/_rels/fontTable.xml.rels"), HasSubstr("Target=\"fonts/font2.odttf\""));
    EXPECT_EQ(written.part("word/fonts/font2.odttf"), write::docx::obfuscated(kProgram, key));
    EXPECT_THAT(written.part("[Content_Types].xml"), HasSubstr("obfuscatedFont"));
    EXPECT_THAT(written.part("word/settings.xml"), HasSubstr("<w:embedTrueTypeFonts/><w:saveSubsetFonts/>"));
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(EmbeddedFonts, AreLeftOutWhereNothingIsSetInThem) {
    Document document = documentIn("Arial");
    document.fonts = {{"Lato", false, false, kProgram}};
    EXPECT_EQ(WrittenDocument(document).part("word/fonts/font1.odttf"), "");
    EXPECT_THAT(WrittenDocument(documentIn("Lato")).part("word/settings.xml"), Not(HasSubstr("embedTrueTypeFonts")));
}

TEST(EmbeddedFonts, AreHiddenByTheKeyFromItsEnd) {
    const std::string zeros(40, '\0');
    const std::string hidden = write::docx::obfuscated(zeros, "{00112233-4455-6677-8899-AABBCCDDEEFF}");
    EXPECT_EQ(static_cast<unsigned char>(hidden[0]), 0xFF);
    EXPECT_EQ(static_cast<unsigned char>(hidden[1]), 0xEE);
    EXPECT_EQ(static_cast<unsigned char>(hidden[15]), 0x00);
    EXPECT_EQ(hidden.substr(16, 16), hidden.substr(0, 16));
    EXPECT_EQ(hidden.substr(32), zeros.substr(32));
    EXPECT_EQ(write::docx::obfuscated(hidden, "{00112233-4455-6677-8899-AABBCCDDEEFF}"), zeros);
}

TEST(EmbeddedFonts, HaveOneKeyForTheSameBytes) {
    const std::string key = write::docx::fontKey(kProgram);
    EXPECT_EQ(key, write::docx::fontKey(kProgram));
    EXPECT_NE(key, write::docx::fontKey(kProgram + "!"));
    EXPECT_THAT(key, testing::MatchesRegex("\\{[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}\\}"));
}

} // namespace
} // namespace orvane::tests
