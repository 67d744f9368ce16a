#include "DocumentBuilder.h"
#include "SampleDocument.h"
#include "TestPicture.h"
#include "WrittenDocument.h"

#include "base/Failure.h"
#include "support/Files.h"
#include "support/docx/DocxCheck.h"
#include "write/docx/DocxWriter.h"

#include <gmock/gmock.h>

#include <cstring>

namespace orvane::tests {
namespace {

using namespace document;

class Package : public testing::Test {
protected:
    Package()
        : m_pictures(m_folder.path()) {}

    TemporaryFolder m_folder;
    PictureStore m_pictures;
    Diagnostics m_diagnostics;
};

TEST_F(Package, IsTheSameForTheSameDocument) {
    const Document document = sampleDocument(m_pictures);
    const std::filesystem::path first = m_folder.path() / "1.docx";
    const std::filesystem::path second = m_folder.path() / "2.docx";
    write::writeDocx(document, m_pictures, first, m_diagnostics);
    write::writeDocx(document, m_pictures, second, m_diagnostics);
    EXPECT_TRUE(readFile(first) == readFile(second));
}

TEST_F(Package, HoldsEachPictureOnceUntouchedAndUncompressed) {
    const PictureData photo = jpegPicture(40, 30, kBlack);
    const PictureId id = m_pictures.add(photo);
    m_pictures.add(pngPicture(8, 8, kBlack));
    Picture shown;
    shown.id = id;
    const WrittenDocument written(documentOf(paragraph({{shown}, {shown}, {shown}})), m_pictures);
    std::vector<std::string> media;
    for (const ZipEntry& entry : written.entries())
        if (entry.name.starts_with("word/media/")) {
            media.push_back(entry.name);
            EXPECT_FALSE(entry.isCompressed);
            EXPECT_EQ(entry.bytes.size(), photo.bytes.size());
            EXPECT_EQ(std::memcmp(entry.bytes.data(), photo.bytes.data(), photo.bytes.size()), 0);
        }
    EXPECT_THAT(media, testing::ElementsAre("word/media/image1.jpeg")) << "pictures that nothing shows stay out";
    EXPECT_EQ(written.select("word/_rels/document.xml.rels", "//Relationship[contains(@Type, '/image')]/@Id"),
              "rId1\n");
}

TEST_F(Package, CompressesItsParts) {
    const WrittenDocument written(documentOf(std::string(100000, 'a')));
    EXPECT_LT(std::filesystem::file_size(written.file()), 20000u);
}

TEST_F(Package, TakesNamesWithBlanksAndOfAllScripts) {
    const std::filesystem::path target = m_folder.path() / "\u0417\u0432\u0456\u0442 \u5831\u544A 1.docx.part";
    write::writeDocx(documentOf("a"), m_pictures, target, m_diagnostics);
    EXPECT_THAT(faultsOfDocx(target), testing::IsEmpty());
}

TEST_F(Package, SaysWhenItCannotBeWritten) {
    const std::filesystem::path file = m_folder.path() / "file";
    writeFile(file, "no folder");
    for (const std::filesystem::path& target :
         {m_folder.path() / "missing" / "a.docx", file / "a.docx", m_folder.path()})
        try {
            write::writeDocx(documentOf("a"), m_pictures, target, m_diagnostics);
            ADD_FAILURE() << target << " was written";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.code(), FailureCode::TargetUnwritable);
            EXPECT_NE(std::string(failure.what()).find(':'), std::string::npos) << failure.what();
        }
}

TEST_F(Package, TellsWhatTheDocumentSaysOfItself) {
    Document document = documentOf("a");
    document.metadata = {"Title & more", "Ada", "Subject", "one, two", "en", "2024-02-29T10:00:00Z", "yesterday"};
    const WrittenDocument written(document);
    EXPECT_EQ(
        written.select("docProps/core.xml", "/cp:coreProperties/*"),
        normalXml("<dc:title>Title &amp; more</dc:title><dc:subject>Subject</dc:subject><dc:creator>Ada</dc:creator>"
                  "<cp:keywords>one, two</cp:keywords><dc:language>en</dc:language>"
                  "<dcterms:created xsi:type='dcterms:W3CDTF'>2024-02-29T10:00:00Z</dcterms:created>"));
}

TEST_F(Package, IsLaidOutByTheRulesOfTheDay) {
    const WrittenDocument written(documentOf("a"));
    EXPECT_EQ(written.select("word/settings.xml", "//w:compatSetting[@w:name='compatibilityMode']/@w:val"), "15\n");
    EXPECT_EQ(written.part("word/settings.xml").find("updateFields"), std::string::npos)
        << "a document that asks its reader a question when it is opened";
}

TEST_F(Package, SpreadsLinesThatEndByHandOnlyWhereTheDocumentSaysSo) {
    Document document = documentOf("a");
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//w:compat/*[1]"),
              normalXml("<w:doNotExpandShiftReturn/>"));
    document.spreadsBrokenLines = true;
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//w:doNotExpandShiftReturn"), "");
}

TEST_F(Package, DividesWordsWhereTheDocumentDoes) {
    Document document = documentOf("a");
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//w:autoHyphenation"), "");
    document.dividesWords = true;
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//w:autoHyphenation"),
              normalXml("<w:autoHyphenation/>"));
}

TEST_F(Package, ShowsTheColorOfThePaper) {
    Document document = documentOf("a");
    EXPECT_EQ(WrittenDocument(document).select("word/document.xml", "//w:background"), "");
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//w:displayBackgroundShape"), "");
    document.pageColor = Color{255, 255, 204};
    EXPECT_EQ(WrittenDocument(document).select("word/document.xml", "/w:document/*[1]"),
              normalXml("<w:background w:color=\"FFFFCC\"/>"));
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//w:displayBackgroundShape"),
              normalXml("<w:displayBackgroundShape/>"));
}

} // namespace
} // namespace orvane::tests
