#include "LoopbackServer.h"
#include "app/support/RunFakes.h"
#include "app/support/ScratchHome.h"
#include "services/LinkActions.h"
#include "ui/feedback/HttpTransfer.h"
#include "ui/feedback/frmFeedback.h"
#include "ui/form/FormRegistry.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class Feedback : public ScratchHome {
protected:
    ~Feedback() override { registry.dispose(); }

    void open(const QString& host, std::chrono::milliseconds timeLimit = std::chrono::seconds(20)) {
        window = registry.obtain<frmFeedback>(FeedbackPorts{
            messageBox, transfer, [host] { return GetRedirectUrl("feedback", host); }, [] { return -2; }, timeLimit});
        window->showForm();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    template<typename Control>
    Control& part(const char* name) {
        return *window->findChild<Control*>(name);
    }
    void fillPhone() {
        part<QLineEdit>("txtPhoneCountry").setText("49");
        part<QLineEdit>("txtPhoneArea").setText("30");
        part<QLineEdit>("txtPhoneNo").setText("123");
    }
    void write(const char* box, const QString& text) { part<QPlainTextEdit>(box).setPlainText(text); }
    void choose(const char* list, int item) { part<DropDownList>(list).setListIndex(item); }
    void submit() { QTest::mouseClick(&part<QPushButton>("cmdSubmit"), Qt::LeftButton); }

    Journal journal;
    FakeMessageBox messageBox{journal};
    HttpTransfer transfer;
    FormRegistry registry;
    std::shared_ptr<frmFeedback> window;
};

TEST_F(Feedback, SendsItsAnswersInOneRequest) {
    LoopbackServer server;
    open(server.host());
    fillPhone();
    part<QLineEdit>("txtEmail").setText("ada@x.example");
    choose("cmbEasy", 1);
    choose("cmbWillingness", 2);
    write("txtComments", "a+b\nc");
    submit();
    EXPECT_EQ(server.requestLine(),
              "GET /appdirect.asp?utm_source=default&utm_medium=PPD&utm_campaign=default&gotopg=feedback"
              "?strEmail=&ContactEmail=ada@x.example&strPhone=[49][30][123]&strProductCode=1&strEasy=Very%20Easy"
              "&strPerformance=&strFunctionality=&strOverAll=&strMoneyAll=&strLikings=&strProblems=&strNeeds="
              "&strPurchase=&strWillingness=3&strComments=a%252Bb%0C%0Ac&VSo=FFFFFFFE HTTP/1.1");
    EXPECT_EQ(server.requests, 1);
    EXPECT_FALSE(window->isLoaded());
    EXPECT_FALSE(registry.hasProgramEnded()) << "after a submission the window simply goes";
}

TEST_F(Feedback, SendsTheCommentInPlaceOfOther) {
    LoopbackServer server;
    open(server.host());
    fillPhone();
    choose("cmbEasy", 4);
    write("txtEasy", "easy & fast");
    submit();
    EXPECT_TRUE(server.requestLine().contains("&strEasy=easy%20%2526%20fast&")) << qPrintable(server.requestLine());
}

TEST_F(Feedback, NothingLeavesTheMachineBeforeSubmit) {
    LoopbackServer server;
    open(server.host());
    fillPhone();
    write("txtLiked", "everything");
    QCoreApplication::processEvents();
    EXPECT_EQ(server.requests, 0);
}

TEST_F(Feedback, WithOnlyThePhoneFilledSendsNothingAndCloses) {
    LoopbackServer server;
    open(server.host());
    fillPhone();
    write("txtComments", "\n\n");
    choose("cmbWillingness", 4); // does not count as feedback
    submit();
    QCoreApplication::processEvents();
    EXPECT_EQ(server.requests, 0);
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(Feedback, ABoxOfEmptyLinesIsEmptied) {
    LoopbackServer server;
    open(server.host());
    fillPhone();
    write("txtComments", "\n\n");
    submit();
    EXPECT_EQ(part<QPlainTextEdit>("txtComments").toPlainText(), "");
}

TEST_F(Feedback, AsksForTheWholePhoneNumberAndLeadsToTheGap) {
    open("127.0.0.1:1");
    struct Row {
        const char* country;
        const char* area;
        const char* number;
        const char* focus;
    };
    for (const Row& row : {Row{"", "", "", "txtPhoneNo"}, Row{"", "", "1", "txtPhoneCountry"},
                           Row{"1", "", "1", "txtPhoneArea"}, Row{"", "1", "", "txtPhoneNo"}}) {
        messageBox.messages.clear();
        part<QLineEdit>("txtPhoneCountry").setText(row.country);
        part<QLineEdit>("txtPhoneArea").setText(row.area);
        part<QLineEdit>("txtPhoneNo").setText(row.number);
        part<QLineEdit>("txtEmail").setFocus();
        submit();
        ASSERT_EQ(messageBox.messages.size(), 1u);
        EXPECT_EQ(messageBox.messages[0].text, "The phone number is mandatory and should be specified.");
        EXPECT_EQ(messageBox.messages[0].title, "Tavrelion-PDF to Word Converter");
        EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Information);
        EXPECT_EQ(window->focusWidget()->objectName(), row.focus);
        EXPECT_TRUE(window->isLoaded());
    }
}

TEST_F(Feedback, CannotBeClosedWhileItSends) {
    LoopbackServer server(LoopbackServer::Manner::AnswersLate);
    open(server.host());
    bool wasOpen = false;
    bool wasEnabled = true;
    bool showedHourglass = false;
    server.whileAsked = [&] {
        const QCursor* pointer = QGuiApplication::overrideCursor();
        showedHourglass = pointer && pointer->shape() == Qt::WaitCursor;
        window->close();
        wasOpen = window->isVisible();
        wasEnabled = window->isEnabled();
    };
    fillPhone();
    choose("cmbEasy", 0);
    submit();
    EXPECT_TRUE(wasOpen);
    EXPECT_FALSE(wasEnabled);
    EXPECT_TRUE(showedHourglass);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the normal pointer is back";
    EXPECT_FALSE(window->isLoaded());
    EXPECT_FALSE(registry.hasProgramEnded());
}

TEST_F(Feedback, GivesUpASilentServerAfterTheTimeLimitWithoutAWord) {
    LoopbackServer server(LoopbackServer::Manner::SaysNothing);
    open(server.host(), std::chrono::milliseconds(200));
    fillPhone();
    choose("cmbEasy", 0);
    QElapsedTimer time;
    time.start();
    submit();
    EXPECT_GE(time.elapsed(), 190);
    EXPECT_EQ(server.requests, 1);
    EXPECT_TRUE(messageBox.messages.empty());
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(Feedback, ARefusedConnectionClosesTheWindowAsASuccessDoes) {
    quint16 closedPort = 0;
    {
        const LoopbackServer gone;
        closedPort = gone.port();
    }
    open("127.0.0.1:" + QString::number(closedPort));
    fillPhone();
    choose("cmbEasy", 0);
    submit();
    EXPECT_TRUE(messageBox.messages.empty());
    EXPECT_FALSE(window->isLoaded());
    EXPECT_FALSE(QFile::exists(path("GUILog.tmp")));
}

TEST_F(Feedback, WaitsForSixtySecondsUnlessToldOtherwise) {
    const FeedbackPorts ports{messageBox, transfer, [] { return QString(); }, [] { return 0; }};
    EXPECT_EQ(ports.timeLimit, std::chrono::seconds(60));
}

TEST_F(Feedback, CloseEndsTheProgramWithoutAQuestion) {
    open("127.0.0.1:1");
    QTest::mouseClick(&part<QPushButton>("cmdClose"), Qt::LeftButton);
    EXPECT_TRUE(registry.hasProgramEnded());
    EXPECT_TRUE(messageBox.questions.isEmpty());
}

TEST_F(Feedback, ClosingItUnsentEndsTheProgramToo) {
    open("127.0.0.1:1");
    window->close();
    EXPECT_TRUE(registry.hasProgramEnded());
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(Feedback, OffersACommentForOtherOnly) {
    open("127.0.0.1:1");
    auto& comment = part<QPlainTextEdit>("txtEasy");
    EXPECT_FALSE(comment.isEnabled());
    EXPECT_EQ(comment.palette().color(QPalette::Base), QColor(0xC0, 0xC0, 0xC0));
    choose("cmbEasy", 4);
    EXPECT_TRUE(comment.isEnabled());
    EXPECT_EQ(comment.palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xFF));
    EXPECT_EQ(window->focusWidget(), &comment);
    choose("cmbEasy", 0);
    EXPECT_FALSE(comment.isEnabled());
}

TEST_F(Feedback, StaysOnTopAndStartsAtTheAddress) {
    open("127.0.0.1:1");
    EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(window->focusWidget()->objectName(), "txtEmail");
}

TEST_F(Feedback, ThePhoneBoxesTakeDigitsOnly) {
    open("127.0.0.1:1");
    for (const char* box : {"txtPhoneCountry", "txtPhoneArea", "txtPhoneNo"}) {
        QTest::keyClicks(&part<QLineEdit>(box), "+4-9a");
        EXPECT_EQ(part<QLineEdit>(box).text(), "49") << box;
        QTest::keyClick(&part<QLineEdit>(box), Qt::Key_Backspace);
        EXPECT_EQ(part<QLineEdit>(box).text(), "4") << box;
    }
}

TEST_F(Feedback, AFailureOfSubmitIsLoggedAndTheWindowCanBeUsedAgain) {
    window = registry.obtain<frmFeedback>(FeedbackPorts{
        messageBox, transfer, []() -> QString { throw std::runtime_error("no install log"); }, [] { return 0; }});
    window->showForm();
    fillPhone();
    choose("cmbEasy", 0);
    submit();
    QFile log(path("GUILog.tmp"));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().startsWith("Form Name: frmFeedback, Module Name: cmdSubmit_Click\r\nno install log"));
    EXPECT_TRUE(window->isEnabled());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace tavrelion::tests
