#include "protocol/Message.h"
#include "protocol/ProtocolError.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane::protocol {
namespace {

template<typename T>
T copyOf(const T& message) {
    return std::get<T>(decodeMessage(encodeMessage(message)));
}

TEST(Message, AcceptedTravelsWhole) {
    const Accepted copy = copyOf(Accepted{12, 3});
    EXPECT_EQ(copy.pageCount, 12);
    EXPECT_EQ(copy.selectedPages, 3);
}

TEST(Message, FailuresTravelWithTheirPlace) {
    const Failed failed = copyOf(Failed{FailureCode::LimitExceeded, "too \"much\"\n", {7, 42}});
    EXPECT_EQ(failed.code, FailureCode::LimitExceeded);
    EXPECT_EQ(failed.message, "too \"much\"\n");
    EXPECT_EQ(failed.where.page, 7);
    EXPECT_EQ(failed.where.object, 42);
    EXPECT_EQ(copyOf(Refused{FailureCode::NotAPdf, "no"}).code, FailureCode::NotAPdf);
}

TEST(Message, EveryStageTravels) {
    for (const JobStage stage : {JobStage::Opening, JobStage::Reading, JobStage::AnalysingFonts, JobStage::Page,
                                 JobStage::PageOfPages, JobStage::Picture, JobStage::WritingPage, JobStage::Generating,
                                 JobStage::DocumentComplete, JobStage::ImagesComplete}) {
        const StatusReport copy = copyOf(StatusReport{stage, 3, 9});
        EXPECT_EQ(copy.stage, stage);
        EXPECT_EQ(copy.first, 3);
        EXPECT_EQ(copy.second, 9);
    }
}

TEST(Message, EveryKindOfDiagnosticTravels) {
    for (int kind = 0; kind <= static_cast<int>(DiagnosticKind::ContentLeftOut); ++kind) {
        const Diagnostic diagnostic{static_cast<DiagnosticKind>(kind), 2, {1.5, 2, 3, 4}, "text"};
        const Diagnostic copy = copyOf(DiagnosticReport{diagnostic}).diagnostic;
        EXPECT_EQ(copy.kind, diagnostic.kind);
        EXPECT_EQ(copy.page, 2);
        EXPECT_EQ(copy.box, diagnostic.box);
        EXPECT_EQ(copy.message, "text");
    }
}

TEST(Message, FactsAboutASourceTravel) {
    SourceReport source;
    source.pdfVersion = "1.7";
    source.isTagged = true;
    source.title = "Grüße";
    source.language = "de";
    const SourceReport copy = copyOf(source);
    EXPECT_EQ(copy.pdfVersion, "1.7");
    EXPECT_TRUE(copy.isTagged);
    EXPECT_FALSE(copy.isEncrypted);
    EXPECT_EQ(copy.title, "Grüße");
    EXPECT_EQ(copy.language, "de");
    const PageReport page = copyOf(PageReport{4, 595.28, 841.89, 90, "iv"});
    EXPECT_EQ(page.number, 4);
    EXPECT_DOUBLE_EQ(page.width, 595.28);
    EXPECT_EQ(page.rotation, 90);
    EXPECT_EQ(page.label, "iv");
}

TEST(Message, PicturesTravelWithTheirPagesAndParts) {
    const PictureReport copy =
        copyOf(PictureReport{"Gr\u00fc\u00dfe-p001-01.png", 300, 200, {1, 4}, {{12, 0, 0}, {13, 0, 100}}});
    EXPECT_EQ(copy.file, "Gr\u00fc\u00dfe-p001-01.png");
    EXPECT_EQ(copy.width, 300);
    EXPECT_EQ(copy.height, 200);
    EXPECT_EQ(copy.pages, (std::vector<int>{1, 4}));
    ASSERT_EQ(copy.parts.size(), 2u);
    EXPECT_EQ(copy.parts[1].objectNumber, 13);
    EXPECT_EQ(copy.parts[1].y, 100);
}

TEST(Message, CountsTravelWhole) {
    const Finished finished{{5'000'000'000, 4, 3, 2, 1, 0}, 17, 2.25};
    const Finished copy = copyOf(finished);
    EXPECT_EQ(copy.counts, finished.counts);
    EXPECT_EQ(copy.diagnostics, 17);
    EXPECT_DOUBLE_EQ(copy.seconds, 2.25);
}

TEST(Message, CutsTextsThatAreTooLongBetweenCharacters) {
    std::string text = "a"; // so that the cut would fall into a character
    while (text.size() < 2 * kMaxLineLength)
        text += "\u00e4";
    const std::string line = encodeMessage(Refused{FailureCode::NotAPdf, text});
    EXPECT_LT(line.size(), kMaxLineLength);
    const std::string copy = std::get<Refused>(decodeMessage(line)).message;
    EXPECT_EQ(copy.substr(copy.size() - 5), "\u00e4...");
}

TEST(Message, ReplacesWhatIsNotUtf8) {
    const Refused copy = copyOf(Refused{FailureCode::NotAPdf, "a\xff\xfe z"});
    EXPECT_EQ(copy.message, "a\uFFFD\uFFFD z");
}

TEST(Message, HasNoInfiniteBoxes) {
    const double infinity = std::numeric_limits<double>::infinity();
    const Diagnostic copy =
        copyOf(DiagnosticReport{{DiagnosticKind::ContentDamaged, 1, {-infinity, infinity, 1, 2}, "x"}}).diagnostic;
    EXPECT_EQ(copy.box, (Rect{0, 0, 1, 2}));
}

TEST(Message, RefusesWhatNoWorkerSends) {
    struct Row {
        std::string line;
        const char* why;
    };
    const Row rows[] = {
        {"", "nothing"},
        {"Segmentation fault", "no JSON"},
        {"{}", "no type"},
        {R"({"type":7})", "a type that is no text"},
        {R"({"type":"surprise"})", "an unknown type"},
        {R"({"type":"accepted","pageCount":3})", "a field missing"},
        {R"({"type":"accepted","pageCount":3,"selectedPages":2,"x":1})", "a field too many"},
        {R"({"type":"accepted","pageCount":-3,"selectedPages":2})", "a negative count"},
        {R"({"type":"accepted","pageCount":3e9,"selectedPages":2})", "a count that is no integer"},
        {R"({"type":"accepted","pageCount":18446744073709551615,"selectedPages":2})", "a count past all integers"},
        {R"({"type":"status","stage":"dancing","first":1,"second":2})", "an unknown stage"},
        {R"({"type":"failed","code":"Boom","message":"","page":0,"object":0})", "an unknown code"},
        {R"({"type":"diagnostic","kind":"Boom","page":1,"box":[0,0,0,0],"message":""})", "an unknown kind"},
        {R"({"type":"diagnostic","kind":"ContentDamaged","page":1,"box":[0,0,0],"message":""})", "a box of three"},
        {R"({"type":"diagnostic","kind":"ContentDamaged","page":1,"box":[0,0,0,"1"],"message":""})", "a text in a box"},
        {R"({"type":"page","number":1,"width":1,"height":1,"rotation":360,"label":""})", "a rotation that is none"},
        {std::string(60000, '['), "a very deep list"},
        {"{\"type\":\"" + std::string(kMaxLineLength, 'x') + "\"}", "a line that is too long"},
    };
    for (const Row& row : rows)
        EXPECT_THROW(decodeMessage(row.line), ProtocolError) << row.why;
}

} // namespace
} // namespace orvane::protocol
