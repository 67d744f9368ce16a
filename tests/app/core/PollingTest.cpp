#include "core/Polling.h"
#include "app/support/RunFixture.h"
#include "core/StageCaptions.h"

namespace tavrelion::tests {
namespace {

using testing::HasSubstr;
using Button = ProgressView::Button;
using Status = EngineScript::Status;

class Polling : public RunFixture {
protected:
    Polling() {
        run().objEngine = engines.create();
        view.isTimerOn = true;
    }
    void tick(Status status) {
        script.statuses = {status};
        run::Timer1_Timer(run());
    }
};

TEST_F(Polling, ShowsTheTextOfTheStatusWhileTheEngineWorks) {
    for (const std::int16_t working : {0, -1}) {
        tick({4, 12, 0, working});
        EXPECT_EQ(view.status, "page 12");
        EXPECT_TRUE(view.isTimerOn);
        EXPECT_TRUE(run().objEngine);
    }
    EXPECT_EQ(view.bar, 0) << "the bar does not move while the engine works";
}

TEST_F(Polling, StopsWhereItIsNotEnabled) {
    run().blnPollEnabled = false;
    tick({1, 0, 0, 0});
    EXPECT_FALSE(view.isTimerOn);
    EXPECT_EQ(script.statusCalls, 0);
}

TEST_F(Polling, AsksNothingOfAnEmptyEngine) {
    run().objEngine.reset();
    tick({1, 0, 0, 1});
    EXPECT_EQ(script.statusCalls, 0);
    EXPECT_TRUE(view.isTimerOn);
    EXPECT_TRUE(view.statuses.isEmpty());
    EXPECT_EQ(errorLog(), "");
}

TEST_F(Polling, FinishCode1HandsOverToTheCompletion) {
    tick({11, 0, 0, 1});
    EXPECT_EQ(view.bar, 10);
    EXPECT_TRUE(view.areStageLabelsHidden);
    EXPECT_EQ(journal, (Journal{"status t8", "timer off", "bar 10", "ShowCompleted"}));
    EXPECT_EQ(script.enginesAlive, 0);
}

TEST_F(Polling, FinishCode2LeavesTheWindowOpenWithTheLog) {
    tick({2, 0, 0, 2});
    EXPECT_FALSE(view.buttons[Button::cmdCancel]);
    EXPECT_TRUE(view.buttons[Button::cmdViewLog]);
    EXPECT_EQ(journal, (Journal{"status t1", "timer off", "BatchConversion"}));
    EXPECT_FALSE(view.isUnloaded);
    EXPECT_EQ(script.enginesAlive, 0);
}

TEST_F(Polling, FinishCode3EndsPollingWithItsLastTextAndNothingElse) {
    tick({7, 5, 0, 3});
    EXPECT_EQ(journal, (Journal{"status writing 5", "timer off"}));
    EXPECT_EQ(script.enginesAlive, 0);
}

TEST_F(Polling, ASecondTickAfterAFinishDoesNothing) {
    tick({11, 0, 0, 1});
    journal.clear();
    run::Timer1_Timer(run());
    EXPECT_EQ(script.statusCalls, 1);
    EXPECT_TRUE(journal.isEmpty());
}

TEST_F(Polling, AnEngineThatDoesNotAnswerEndsPollingWithALogRecord) {
    script.failsToTellStatus = true;
    run::Timer1_Timer(run());
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmProgress, Module Name: Timer1_Timer\r\n"
                                                    "the engine does not answer occured on: "));
    EXPECT_FALSE(view.isTimerOn);
    EXPECT_FALSE(run().objEngine);
    EXPECT_FALSE(view.isUnloaded) << "the user leaves by Cancel or the close box";
}

TEST_F(Polling, TooFewStatusTextsEmptyTheStatusLineAndAreLogged) {
    run().astrStatusText = {"t0", "t1"};
    view.status = "before";
    tick({3, 0, 0, 0});
    EXPECT_EQ(view.status, "");
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmProgress, Module Name: Timer1_Timer\r\n"));
    EXPECT_TRUE(view.isTimerOn) << "only the text is lost";
}

struct TextRow {
    std::int32_t status;
    const char* text;
};

class StatusText : public RunFixture, public testing::WithParamInterface<TextRow> {};

TEST_P(StatusText, FollowsTheCode) {
    EXPECT_EQ(run::GetStatusText(run(), GetParam().status, 3, 8).toStdString(), GetParam().text);
    EXPECT_EQ(errorLog(), "");
}

INSTANTIATE_TEST_SUITE_P(Codes, StatusText,
                         testing::Values(TextRow{0, " "}, TextRow{1, "t0"}, TextRow{2, "t1"}, TextRow{3, "t2"},
                                         TextRow{4, "page 3"}, TextRow{5, "page 3 of 8"}, TextRow{6, "picture 3"},
                                         TextRow{7, "writing 3"}, TextRow{8, ""}, TextRow{9, ""}, TextRow{10, "t7"},
                                         TextRow{11, "t8"}, TextRow{12, "t9"}, TextRow{13, ""}, TextRow{99, ""},
                                         TextRow{-1, ""}));

TEST_F(Polling, EveryNumberMarkOfATextIsReplaced) {
    run().astrStatusText[3] = "%ld: page %ld";
    run().astrStatusText[4] = "/%ld (%ld)";
    EXPECT_EQ(run::GetStatusText(run(), 5, 2, 9), "2: page 2/9 (9)") << "and the two texts join without a separator";
}

using StageCaptions = RunFixture;

TEST_F(StageCaptions, EachOfTheEightLabelsPutsItsCaptionOnTheStatusLine) {
    for (const QString label : {"lblInitConversion", "lblParsePDF", "lblScanPDF", "lblExtractText", "lblExtractImage",
                                "lblGenerateDoc", "lblGenerateDocComplete", "lblExtractImageComplete"}) {
        run::DisplayProgressFormCaptions(run(), label);
        EXPECT_EQ(view.status, "<" + label + ">");
    }
}

TEST_F(StageCaptions, DisableallHidesTheLabelsAndLeavesTheStatusLine) {
    view.status = "as it was";
    run::DisplayProgressFormCaptions(run(), "disableall");
    EXPECT_TRUE(view.areStageLabelsHidden);
    EXPECT_EQ(view.status, "as it was");
}

TEST_F(StageCaptions, AnyOtherKeyDoesNothing) {
    run::DisplayProgressFormCaptions(run(), "lblOther");
    EXPECT_TRUE(view.statuses.isEmpty());
    EXPECT_FALSE(view.areStageLabelsHidden);
}

} // namespace
} // namespace tavrelion::tests
