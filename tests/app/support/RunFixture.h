#pragma once

#include "app/support/RunFakes.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

namespace tavrelion::tests {

/// A run of one PDF with everything around it faked but the error log, which goes to a folder of the test's own.
class RunFixture : public testing::Test {
protected:
    RunFixture();
    ~RunFixture() override;

    /// A path below the home folder, with the platform's separators.
    QString homePath(const QString& name) const;
    QString staging() const { return homePath("tmpQVL"); }

    /// The text of GUILog.tmp; empty when there is none.
    QString errorLog() const;

    /// The run as the progress window makes it: fields set by Form_Load, before StartConverting.
    void prepareRun();

    /// One attempt with the job's source and password.
    void attempt();

    /// Presses Cancel and answers Yes at the yield of that number.
    void cancelAtYield(int number);

    orvane::tests::TemporaryFolder folder;
    SharedRecords& records = sharedRecords();
    Journal journal;
    FakeProgressView view{journal};
    FakeMainView mainWindow{journal};
    FakeMessageBox messageBox{journal};
    FakeYesNoDialog yesNoDialog{records};
    FakePasswordPrompt passwordPrompt{records};
    FakeEventLoop eventLoop;
    FakeClock clock;
    FakeFileOperations files{journal};
    FakeEngineFactory engines;
    FakeFollowUp followUp{journal};
    FakeWindows windows;
    struct Texts : StatusTexts {
        QStringList texts{"t0", "t1", "t2", "page %ld", " of %ld", "picture %ld", "writing %ld", "t7", "t8", "t9"};
        bool isBroken = false;
        QStringList lblProgressStatus() const override {
            if (isBroken)
                throw std::runtime_error("the language file is broken");
            return texts;
        }
        QString caption(const QString& key) const override { return '<' + key + '>'; }
    } statusTexts;
    std::unique_ptr<ProgressRun> progressRun;
    ProgressRun& run() { return *progressRun; }
    EngineScript& script = engines.script;
};

} // namespace tavrelion::tests
