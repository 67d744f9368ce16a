#include "PageFixture.h"

#include <QFile>

namespace tavrelion::tests {
namespace {

const QStringList kPagesThatAsk{"frmLayout",        "frmImageRecovery",     "frmCharSpacing",        "frmPageRange",
                                "frmOutputSummary", "frmImageFormatOutput", "frmFinishExtractImages"};

/// Stands for the main window: hidden while a wizard is up, and its end is the program's.
class HiddenMain : public Form {
public:
    using Form::Form;

protected:
    void Form_Unload() override { registry().endProgram(); }
};

class ClosingAPage : public PageFixture {
protected:
    void close(const QString& window) { form(window)->close(); }
    QString errorLog() const {
        QFile file(path("GUILog.tmp"));
        return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
    }
};

TEST_F(ClosingAPage, AsksOnAllPagesButTheFirst) {
    for (const QString& window : kPagesThatAsk) {
        messageBox.questions.clear();
        show(window);
        const auto before = fields();
        close(window);
        EXPECT_EQ(messageBox.questions, QStringList{"Do you want to close Tavrelion-PDF to Word Converter?"})
            << window.toStdString();
        EXPECT_TRUE(form(window)->isVisible()) << "No leaves the page as it was";
        EXPECT_EQ(before, fields());
        EXPECT_FALSE(registry.hasProgramEnded());
        hide(window);
    }
}

class ClosingWithYes : public ClosingAPage, public testing::WithParamInterface<QString> {};

TEST_P(ClosingWithYes, EndsTheProgram) {
    messageBox.answer = UserMessages::Answer::Yes;
    show(GetParam());
    close(GetParam());
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_TRUE(registry.hasProgramEnded());
    EXPECT_EQ(eventLoop.yields, 1);
    EXPECT_TRUE(registry.loadedWindows().empty());
}

INSTANTIATE_TEST_SUITE_P(Pages, ClosingWithYes,
                         testing::Values("frmImageRecovery", "frmCharSpacing", "frmPageRange", "frmOutputSummary",
                                         "frmImageFormatOutput", "frmFinishExtractImages"),
                         [](const auto& tested) { return tested.param.toStdString(); });

TEST_F(ClosingAPage, TheLayoutPageLeavesTheEndToTheOtherWindows) {
    messageBox.answer = UserMessages::Answer::Yes;
    show("frmLayout");
    close("frmLayout");
    EXPECT_FALSE(registry.hasProgramEnded()) << "it has no part in the end itself";
    registry.obtain<HiddenMain>()->load();
    show("frmLayout");
    close("frmLayout");
    EXPECT_TRUE(registry.hasProgramEnded());
}

TEST_F(ClosingAPage, TheOutputOptionsEndTheProgramWithoutAQuestion) {
    show("frmOutputOptions");
    close("frmOutputOptions");
    EXPECT_TRUE(messageBox.questions.isEmpty());
    EXPECT_TRUE(registry.hasProgramEnded());
    EXPECT_FALSE(records.flags.blnCloseRequested);
}

TEST_F(ClosingAPage, ByTheProgramOrTheSystemAsksNothing) {
    for (const UnloadMode reason : {UnloadMode::Code, UnloadMode::SystemShutdown}) {
        show("frmPageRange");
        form("frmPageRange")->unload(reason);
        EXPECT_TRUE(messageBox.questions.isEmpty());
    }
    EXPECT_TRUE(registry.hasProgramEnded());
}

TEST_F(ClosingAPage, AFailureIsLoggedUnderTheWindowsName) {
    for (const QString& window : kPagesThatAsk) {
        messageBox.answer = UserMessages::Answer::Yes;
        eventLoop.yields = 0;
        eventLoop.atYield[1] = [] { throw std::runtime_error("the events are out of order"); };
        const auto closed = form(window);
        closed->load();
        closed->unload(UnloadMode::ControlMenu);
        EXPECT_TRUE(errorLog().contains("Form Name: " + window + ", Module Name: Form_QueryUnload\r\n" +
                                        "the events are out of order"))
            << window.toStdString();
    }
}

} // namespace
} // namespace tavrelion::tests
