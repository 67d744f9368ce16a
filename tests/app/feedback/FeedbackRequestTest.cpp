#include "services/FeedbackRequest.h"
#include "LoopbackServer.h"
#include "ui/feedback/HttpTransfer.h"
#include "ui/feedback/PostFeedback.h"

#include <QTest>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

TEST(FeedbackText, IsEncodedInItsOrder) {
    struct Row {
        const char* text;
        const char* encoded;
    };
    for (const Row& row : {Row{"a+b", "a%252Bb"}, Row{"a b", "a%20b"}, Row{"a&b", "a%2526b"}, Row{"100%", "100%25"},
                           Row{"x\r\ny", "x%0C%0Ay"}, Row{"x\ny\n", "x%0C%0Ay"}, Row{"x\n\n\ny\n\n", "x%0C%0Ay"},
                           Row{"\n\n", ""}, Row{"", ""}, Row{" ", "%20"}, Row{"%20", "%2520"}})
        EXPECT_EQ(encodedFeedback(row.text), row.encoded) << row.text;
}

TEST(FeedbackRequest, HasItsKeysInTheirOrder) {
    const FeedbackAnswers answers{" ada@x.example ",
                                  "49",
                                  "30",
                                  "123",
                                  "Very Easy",
                                  "Good",
                                  "Yes",
                                  "5",
                                  "Fair",
                                  "l",
                                  "p",
                                  "n",
                                  "b",
                                  "4",
                                  "c",
                                  "1A2B"};
    EXPECT_EQ(feedbackAddress("http://h/appdirect.asp?gotopg=feedback", answers),
              "http://h/appdirect.asp?gotopg=feedback?strEmail=&ContactEmail=ada@x.example&strPhone=[49][30][123]"
              "&strProductCode=1&strEasy=Very Easy&strPerformance=Good&strFunctionality=Yes&strOverAll=5"
              "&strMoneyAll=Fair&strLikings=l&strProblems=p&strNeeds=n&strPurchase=b&strWillingness=4&strComments=c"
              "&VSo=1A2B");
}

TEST(FeedbackRequest, TravelsAsItStandsButForWhatARequestLineCannotHold) {
    EXPECT_EQ(wireForm("http://h/a?x=%252B&y=[1]?z=\"A B\"#ü"), "http://h/a?x=%252B&y=[1]?z=%22A%20B%22%23%C3%BC");
}

TEST(SecondRoute, PostsToTheFormsPageWithADeclaredLengthOfZero) {
    LoopbackServer server;
    PostFeedback("strEmail=&x=1", "127.0.0.1", server.port());
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.requests == 1; }));
    EXPECT_EQ(server.requestLine(), "POST /quorvex/asp/feedback.asp HTTP/1.0");
    EXPECT_TRUE(server.received.contains("\r\nUser-Agent: generic\r\n"));
    EXPECT_TRUE(server.received.endsWith("Content-Length: 0\r\n\r\n"));
}

TEST(SecondRoute, GoesNoFurtherWhereNobodyListens) {
    quint16 closedPort = 0;
    {
        const LoopbackServer gone;
        closedPort = gone.port();
    }
    EXPECT_NO_THROW(PostFeedback("x", "127.0.0.1", closedPort));
}

} // namespace
} // namespace tavrelion::tests
