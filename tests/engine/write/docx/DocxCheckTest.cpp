#include "SampleDocument.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

class DocxCheck : public testing::Test {
protected:
    DocxCheck()
        : m_pictures(m_folder.path())
        , m_written(sampleDocument(m_pictures), m_pictures) {}

    std::vector<std::string> faultsOf(const std::vector<ZipEntry>& entries) const {
        const std::filesystem::path file = m_folder.path() / "changed.docx";
        writeZip(file, entries);
        return faultsOfDocx(file);
    }

    TemporaryFolder m_folder;
    PictureStore m_pictures;
    WrittenDocument m_written;
};

TEST_F(DocxCheck, FindsNothingWrongWithADocumentThatHasOneOfEverything) {
    EXPECT_THAT(faultsOfDocx(m_written.file()), testing::IsEmpty());
    EXPECT_THAT(m_written.diagnostics().entries(), testing::IsEmpty());
}

// The check is worth what it finds: each row breaks one thing that word processors would stumble over.
TEST_F(DocxCheck, FindsWhatIsBroken) {
    struct Row {
        const char* part;
        const char* from;
        const char* to;
        const char* fault;
    };
    const Row rows[] = {
        {"word/document.xml", "<w:b/>", "<w:bold/>", "no rule knows this element"},
        {"word/document.xml", "<w:b/>", "<w:b val=\"1\"/>", "may not have val"},
        {"word/document.xml", "<w:b/>", "<w:b w:val=\"yes\"/>", "may not be \"yes\""},
        {"word/document.xml", "<w:tblW w:w=\"10000\" w:type=\"dxa\"/>", "<w:tblW w:w=\"10000\"/>", "lacks w:type"},
        {"word/document.xml", "<w:tblW w:w=\"10000\" w:type=\"dxa\"/>", "", "may not have w:tblInd there"},
        {"word/document.xml", "<w:spacing w:val=\"60\"/>", "<w:spacing w:val=\"60\"/><w:b/>", "may not have w:b there"},
        {"word/document.xml", "</w:p></w:tc>", "</w:p><w:tbl/></w:tc>", "lacks w:p"},
        {"word/document.xml", "<w:sectPr>", "text<w:sectPr>", "may not have text"},
        {"word/document.xml", "</w:p>", "", "is no XML"},
        {"word/document.xml", "<w:gridSpan w:val=\"2\"/>", "", "does not fill the grid"},
        {"word/document.xml", "<w:vMerge w:val=\"restart\"/>", "", "goes on from a cell that is not there"},
        {"word/document.xml", "w:fldCharType=\"separate\"", "w:fldCharType=\"begin\"", "marks are out of order"},
        {"word/document.xml", "<w:bookmarkEnd w:id=\"1\"/>", "", "bookmarks do not end"},
        {"word/document.xml", "<w:bookmarkStart w:id=\"2\"", "<w:bookmarkStart w:id=\"1\"", "stands twice"},
        {"word/document.xml", "<wp:docPr id=\"2\"", "<wp:docPr id=\"1\"", "drawing id 1 stands twice"},
        {"word/document.xml", "<w:pStyle w:val=\"Heading1\"/>", "<w:pStyle w:val=\"Heading9\"/>", "refers to Heading9"},
        {"word/document.xml", "<w:numId w:val=\"2\"/>", "<w:numId w:val=\"7\"/>", "refers to 7"},
        {"word/document.xml", "<w:footnoteReference w:id=\"1\"/>", "<w:footnoteReference w:id=\"9\"/>", "refers to 9"},
        {"word/document.xml", "r:embed=\"rId", "r:embed=\"rId9", "is no relationship of type image"},
        {"word/document.xml", "xmlns:a=", "xmlns:b=", "the prefix a is not declared"},
        {"word/styles.xml", "<w:basedOn w:val=\"Normal\"/>", "<w:basedOn w:val=\"Gone\"/>", "refers to Gone"},
        {"word/_rels/document.xml.rels", "Target=\"styles.xml\"", "Target=\"style.xml\"", "does not exist"},
        {"word/_rels/document.xml.rels", "a%20b", "a b", "is no address"},
        {"word/_rels/document.xml.rels", "Id=\"rId2\"", "Id=\"rId1\"", "stands twice"},
        {"[Content_Types].xml", "/word/settings.xml", "/word/setting.xml", "has no content type"},
        {"word/media/image1.png", "PNG", "GIF", "is no such picture"},
    };
    for (const Row& row : rows) {
        std::vector<ZipEntry> entries = m_written.entries();
        for (ZipEntry& entry : entries)
            if (entry.name == row.part) {
                const std::size_t at = entry.bytes.find(row.from);
                ASSERT_NE(at, std::string::npos) << row.from;
                entry.bytes.replace(at, std::string(row.from).size(), row.to);
            }
        EXPECT_THAT(faultsOf(entries), testing::Contains(testing::HasSubstr(row.fault)))
            << row.part << ": " << row.from << " became " << row.to;
    }
}

TEST_F(DocxCheck, FindsAPartThatIsMissing) {
    std::vector<ZipEntry> entries = m_written.entries();
    std::erase_if(entries, [](const ZipEntry& entry) { return entry.name == "word/numbering.xml"; });
    EXPECT_THAT(faultsOf(entries), testing::Contains(testing::HasSubstr("numbering.xml")));
}

} // namespace
} // namespace orvane::tests
