#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

Style styleBasedOn(const char* parent, const char* id, const Style& look = {}) {
    Style style = look;
    style.id = style.name = id;
    style.basedOn = parent;
    return style;
}

TEST(Styles, PutTheFontOfTheDefaultStyleBelowAll) {
    Document document = documentOf("a");
    document.styles[0].run.fontFamily = "Carlito";
    document.styles[0].run.size = HalfPoints(21);
    document.styles[0].run.isBold = true;
    document.metadata.language = "de-DE";
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/styles.xml", "//w:docDefaults/w:rPrDefault/w:rPr/*"),
              normalXml("<w:rFonts w:ascii='Carlito' w:hAnsi='Carlito' w:eastAsia='Carlito' w:cs='Carlito'/>"
                        "<w:sz w:val='21'/><w:szCs w:val='21'/><w:lang w:val='de-DE'/>"));
    EXPECT_EQ(written.select("word/styles.xml", "//w:style"),
              normalXml("<w:style w:type='paragraph' w:default='1' w:styleId='Normal'><w:name w:val='Normal'/>"
                        "<w:qFormat/><w:rPr><w:b/><w:bCs/></w:rPr></w:style>"));
}

TEST(Styles, SayWhatDiffersFromTheStyleBelow) {
    Document document = documentOf("a");
    document.styles[0].paragraph.spaceAfter = Twips(100);
    Style heading = styleBasedOn("Normal", "Heading1", document.styles[0]);
    heading.name = "heading 1";
    heading.next = "Normal";
    heading.run.isBold = true;
    Style special = styleBasedOn("Heading1", "My Style", heading);
    special.next.clear();
    special.run.isItalic = true;
    special.paragraph.spaceAfter = Twips(0);
    document.styles.insert(document.styles.end(), {heading, special});
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/styles.xml", "//w:style[2]"),
              normalXml("<w:style w:type='paragraph' w:styleId='Heading1'><w:name w:val='heading 1'/>"
                        "<w:basedOn w:val='Normal'/><w:next w:val='Normal'/><w:qFormat/>"
                        "<w:rPr><w:b/><w:bCs/></w:rPr></w:style>"));
    EXPECT_EQ(written.select("word/styles.xml", "//w:style[3]"),
              normalXml("<w:style w:type='paragraph' w:customStyle='1' w:styleId='My Style'><w:name w:val='My Style'/>"
                        "<w:basedOn w:val='Heading1'/><w:qFormat/><w:pPr><w:spacing w:after='0'/></w:pPr>"
                        "<w:rPr><w:i/><w:iCs/></w:rPr></w:style>"));
}

TEST(Styles, DoNotGoRoundInRings) {
    Document document = documentOf("a");
    document.styles.insert(document.styles.end(),
                           {styleBasedOn("B", "A"), styleBasedOn("A", "B"), styleBasedOn("A", "C"),
                            styleBasedOn("Gone", "D"), styleBasedOn("E", "E")});
    document.styles.push_back(styleBasedOn("", "A"));
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/styles.xml", "//w:style[w:basedOn]/@w:styleId"), "C\n");
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(Styles, AreThereForADocumentWithoutSome) {
    Document document = documentOf("a");
    document.styles.clear();
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/styles.xml", "//w:style/@w:styleId"), "Normal\n");
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(FontTable, NamesTheFontsInUseAndTheirKind) {
    RunProperties look;
    look.fontFamily = "Liberation Mono";
    look.eastAsianFontFamily = "MS Mincho";
    look.complexFontFamily = "DejaVu Sans";
    const WrittenDocument written(documentOf("a", look));
    EXPECT_EQ(written.select("word/fontTable.xml", "//w:font/@w:name"), "DejaVu Sans\nLiberation Mono\nMS Mincho\n");
    EXPECT_EQ(written.select("word/fontTable.xml", "//w:family/@w:val"), "swiss\nmodern\nroman\n");
    EXPECT_EQ(written.select("word/fontTable.xml", "//w:pitch/@w:val"), "variable\nfixed\nvariable\n");
}

TEST(FontTable, TellsFontsOfSignsApart) {
    RunProperties look;
    look.fontFamily = "Wingdings";
    look.eastAsianFontFamily = "MS Mincho";
    const WrittenDocument written(documentOf("\uF0A7", look));
    EXPECT_EQ(written.select("word/fontTable.xml", "//w:font[w:charset/@w:val='02']/@w:name"), "Wingdings\n");
}

} // namespace
} // namespace orvane::tests
