#include "DocumentBuilder.h"
#include "TestPicture.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

FormulaPart letter(std::string text) {
    FormulaPart part;
    part.kind = FormulaKind::Text;
    part.text = std::move(text);
    part.shape = FormulaShape::Italic;
    return part;
}

FormulaPart made(FormulaKind kind, std::vector<FormulaPart> parts) {
    FormulaPart part;
    part.kind = kind;
    part.parts = std::move(parts);
    return part;
}

Inline inLine(FormulaPart content) {
    Formula formula;
    formula.content = std::move(content);
    return {std::move(formula)};
}

/// The elements of a formula, without their texts and looks.
std::string elementsOf(FormulaPart content, const char* xpath) {
    return WrittenDocument(documentOf(paragraph({inLine(std::move(content))}))).body(xpath);
}

TEST(FormulaXml, WritesFractionsWithNumeratorAndDenominator) {
    const FormulaPart fraction = made(FormulaKind::Fraction, {letter("a"), letter("b")});
    EXPECT_EQ(elementsOf(fraction, "//m:oMath/m:f/m:num/m:r/m:t/text()"), "a");
    EXPECT_EQ(elementsOf(fraction, "//m:oMath/m:f/m:den/m:r/m:t/text()"), "b");
}

TEST(FormulaXml, WritesTheElementOfTheScriptsThatAreThere) {
    struct Row {
        FormulaPart below;
        FormulaPart above;
        const char* xpath;
    };
    const Row rows[] = {
        {letter("i"), {}, "//m:sSub[m:e][m:sub][not(m:sup)]"},
        {{}, letter("2"), "//m:sSup[m:e][m:sup][not(m:sub)]"},
        {letter("i"), letter("2"), "//m:sSubSup[m:e][m:sub][m:sup]"},
    };
    for (const Row& row : rows) {
        const WrittenDocument written(
            documentOf(paragraph({inLine(made(FormulaKind::Script, {letter("x"), row.below, row.above}))})));
        EXPECT_EQ(written.count(row.xpath), 1u) << row.xpath;
    }
}

TEST(FormulaXml, HidesTheDegreeThatARadicalDoesNotHave) {
    EXPECT_EQ(elementsOf(made(FormulaKind::Radical, {letter("x"), {}}), "//m:rad/m:radPr"),
              normalXml("<m:radPr><m:degHide m:val='1'/></m:radPr>"));
    EXPECT_EQ(elementsOf(made(FormulaKind::Radical, {letter("x"), letter("3")}), "//m:rad/m:radPr"), "");
}

TEST(FormulaXml, PutsLimitsOfOperatorsWhereTheyStand) {
    FormulaPart sum = made(FormulaKind::Operator, {letter("i"), {}, letter("x")});
    sum.text = "\u2211";
    EXPECT_EQ(
        elementsOf(sum, "//m:nary/m:naryPr"),
        normalXml("<m:naryPr><m:chr m:val='\u2211'/><m:limLoc m:val='undOvr'/><m:supHide m:val='1'/></m:naryPr>"));
    sum.limits = LimitPlace::Beside;
    EXPECT_EQ(elementsOf(sum, "//m:nary/m:naryPr/m:limLoc/@m:val"), "subSup\n");
}

TEST(FormulaXml, PutsTheLimitAboveAroundTheOneBelow) {
    EXPECT_EQ(WrittenDocument(
                  documentOf(paragraph({inLine(made(FormulaKind::Limits, {letter("lim"), letter("a"), letter("b")}))})))
                  .count("//m:limUpp[m:lim//m:t='b']/m:e/m:limLow[m:lim//m:t='a']/m:e//m:t[.='lim']"),
              1u);
}

TEST(FormulaXml, TellsTheShapesOfLetters) {
    EXPECT_EQ(elementsOf(letter("x"), "//m:r/m:rPr"), normalXml("<m:rPr><m:sty m:val='i'/></m:rPr>"));
    FormulaPart word = letter("exp");
    word.shape = FormulaShape::Upright;
    EXPECT_EQ(elementsOf(word, "//m:r/m:rPr"), normalXml("<m:rPr><m:sty m:val='p'/></m:rPr>"));
    word.text = "for all";
    EXPECT_EQ(elementsOf(word, "//m:r/m:rPr"), normalXml("<m:rPr><m:nor/></m:rPr>"));
}

TEST(FormulaXml, DisplaysOnlyAFormulaThatIsAllOfItsParagraph) {
    Formula displayed;
    displayed.content = letter("x");
    displayed.place = FormulaPlace::Displayed;
    Paragraph alone = paragraph({{displayed}});
    alone.properties.alignment = Alignment::Center;
    EXPECT_EQ(WrittenDocument(documentOf(alone)).body("//m:oMathPara/m:oMathParaPr/m:jc/@m:val"), "center\n");
    const WrittenDocument numbered(documentOf(paragraph({{displayed}, {Tab{}}, text("(1)")})));
    EXPECT_EQ(numbered.count("//m:oMathPara"), 0u);
    EXPECT_EQ(numbered.count("//w:p/m:oMath"), 1u);
}

TEST(FormulaXml, OffersItsPictureToReadersThatKnowNoFormulas) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    Formula formula;
    formula.content = letter("x");
    formula.picture.emplace();
    formula.picture->id = pictures.add(pngPicture(8, 8, kBlack));
    formula.picture->width = formula.picture->height = emuFromPoints(8);
    const WrittenDocument written(documentOf(paragraph({text("See "), {formula}})), pictures);
    EXPECT_EQ(written.count("//w:p/mc:AlternateContent/mc:Choice[@Requires='m']/m:oMath"), 1u);
    EXPECT_EQ(written.count("//w:p/mc:AlternateContent/mc:Fallback/w:r/w:drawing/wp:inline"), 1u);
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(FormulaXml, PutsDownEveryKindAsWordProcessorsAskFor) {
    FormulaPart sum = made(FormulaKind::Operator, {letter("i"), letter("n"), letter("x")});
    sum.text = "\u2211";
    FormulaPart fence = made(FormulaKind::Fence, {letter("x")});
    fence.text = "[";
    fence.closing = ")";
    FormulaPart hat = made(FormulaKind::Accent, {letter("x")});
    hat.text = "\u0302";
    const FormulaPart all = made(FormulaKind::Row, {made(FormulaKind::Fraction, {letter("a"), letter("b")}),
                                                    made(FormulaKind::Script, {letter("a"), letter("b"), {}}),
                                                    made(FormulaKind::Script, {letter("a"), {}, letter("b")}),
                                                    made(FormulaKind::Script, {letter("a"), letter("b"), letter("c")}),
                                                    made(FormulaKind::Limits, {letter("a"), letter("b"), letter("c")}),
                                                    made(FormulaKind::Radical, {letter("a"), {}}),
                                                    made(FormulaKind::Radical, {letter("a"), letter("3")}), sum, fence,
                                                    hat, made(FormulaKind::Bar, {letter("x")}), letter("two words")});
    Formula displayed;
    displayed.content = all;
    displayed.place = FormulaPlace::Displayed;
    const WrittenDocument written(
        documentOf(std::vector<Block>{{paragraph({text("See "), inLine(all)})}, {paragraph({{displayed}})}}));
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

} // namespace
} // namespace orvane::tests
