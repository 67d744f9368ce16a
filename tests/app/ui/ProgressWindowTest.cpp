#include "app/support/RunFixture.h"
#include "app/support/ShippedLanguages.h"
#include "app/support/Standstill.h"
#include "core/QtEventLoop.h"
#include "i18n/Captions.h"
#include "services/LinkActions.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/Picture.h"
#include "ui/progress/frmProgress.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QThread>
#include <QTreeWidget>

namespace tavrelion::tests {
namespace {

using Status = EngineScript::Status;

/// The real progress window over a fake engine and a main window that is only noted.
class ProgressWindow : public RunFixture {
protected:
    ~ProgressWindow() override {
        m_window.reset();
        registry.dispose();
    }

    /// Loads the window, which runs the first attempt.
    frmProgress& start() {
        const RunPorts ports{records,   mainWindow, messageBox, yesNoDialog, passwordPrompt, statusTexts,
                             eventLoop, clock,      files,      engines,     followUp,       registry};
        m_window = registry.obtain<frmProgress>(ports, languages);
        m_window->load();
        return *m_window;
    }
    template<typename Widget>
    Widget& child(const char* name) const {
        return *m_window->findChild<Widget*>(name);
    }
    QPushButton& button(const char* name) const { return child<QPushButton>(name); }
    QString status() const { return child<QLabel>("lblStatus").text(); }

    LanguageTable languages{shippedLanguages(records)};

    /// Waits for the window's own timer, which the tests do not speed up.
    template<typename Condition>
    static bool waitFor(Condition&& condition) {
        return QTest::qWaitFor(std::forward<Condition>(condition), 5000);
    }

    FormRegistry registry;

private:
    std::shared_ptr<frmProgress> m_window;
};

TEST_F(ProgressWindow, StandsOpenWithItsButtonsWhileTheEngineWorks) {
    script.statuses = {{5, 2, 9, 0}};
    frmProgress& window = start();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle(), "Tavrelion-PDF to Word Converter");
    EXPECT_TRUE(button("cmdCancel").isVisible());
    EXPECT_FALSE(button("cmdClose").isVisible());
    EXPECT_FALSE(button("cmdViewLog").isVisible());
    EXPECT_EQ(status(), "Scanning the PDF...");
    EXPECT_EQ(child<QProgressBar>("ProgressBar1").minimum(), 0);
    EXPECT_EQ(child<QProgressBar>("ProgressBar1").maximum(), 10);
    EXPECT_EQ(child<QProgressBar>("ProgressBar1").value(), 4);
    EXPECT_FALSE(child<QLabel>("lblInitConversion").isVisible());
    EXPECT_TRUE(waitFor([&] { return status() == "page 2 of 9"; })) << "the timer polls";
}

TEST_F(ProgressWindow, CancelAsksAndUnloads) {
    frmProgress& window = start();
    yesNoDialog.answer = 0;
    QTest::mouseClick(&button("cmdCancel"), Qt::LeftButton);
    EXPECT_TRUE(window.isVisible());
    yesNoDialog.answer = 1;
    QTest::mouseClick(&button("cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(window.isLoaded());
    EXPECT_EQ(script.cancels, 1);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_EQ(registry.find<frmProgress>(), nullptr);
}

TEST_F(ProgressWindow, EscapeIsCancel) {
    frmProgress& window = start();
    yesNoDialog.answer = 1;
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(yesNoDialog.asked, QStringList{"lblCancelConversion"});
    EXPECT_FALSE(window.isLoaded());
}

TEST_F(ProgressWindow, AFailureShowsTheLogButtonThenTheLogThenClose) {
    files.files.insert(records.settings.strLogPath);
    files.texts[records.settings.strLogPath] = "page 3: damaged";
    script.results = {1};
    frmProgress& window = start();
    EXPECT_EQ(status(), "Failed to Convert File.");
    EXPECT_FALSE(button("cmdCancel").isVisible());
    EXPECT_TRUE(button("cmdViewLog").isVisible());
    QTest::mouseClick(&button("cmdViewLog"), Qt::LeftButton);
    EXPECT_EQ(child<QTextEdit>("RichTextBox1").toPlainText(), "page 3: damaged");
    EXPECT_TRUE(child<QTextEdit>("RichTextBox1").isVisible());
    EXPECT_FALSE(button("cmdViewLog").isVisible());
    QTest::mouseClick(&button("cmdClose"), Qt::LeftButton);
    EXPECT_FALSE(window.isLoaded());
    EXPECT_TRUE(mainWindow.isShown);
}

TEST_F(ProgressWindow, AFinishCodeEndsThePolling) {
    script.statuses = {{11, 0, 0, 1}};
    start();
    EXPECT_TRUE(waitFor([&] { return journal.contains("ShowCompleted"); }));
    EXPECT_EQ(status(), "t8");
    EXPECT_EQ(child<QProgressBar>("ProgressBar1").value(), 10);
}

TEST_F(ProgressWindow, TheCloseBoxAsksAndMayBeRefused) {
    frmProgress& window = start();
    window.close();
    EXPECT_EQ(messageBox.questions, QStringList{"Do you want to close Tavrelion-PDF to Word Converter?"});
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(records.flags.blnCloseRequested);
    messageBox.answer = UserMessages::Answer::Yes;
    window.close();
    EXPECT_FALSE(window.isLoaded());
}

TEST_F(ProgressWindow, AWindowThatUnloadsInsideItsOwnLoadingSurvivesIt) {
    eventLoop.atYield[3] = [this] {
        yesNoDialog.answer = 1;
        const auto window = registry.find<frmProgress>();
        QTest::mouseClick(window->findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    frmProgress& window = start();
    EXPECT_FALSE(window.isLoaded());
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_TRUE(script.requests.empty());
}

TEST_F(ProgressWindow, ShowsTheListOrTheDetailsByTheTab) {
    start();
    auto& tabs = child<QTabBar>("tabProgress");
    EXPECT_EQ(tabs.tabText(0) + '|' + tabs.tabText(1), "General|Details");
    EXPECT_TRUE(child<QGroupBox>("fraGeneral").isVisible());
    EXPECT_FALSE(child<QGroupBox>("fraDetails").isVisible());
    EXPECT_EQ(child<QGroupBox>("fraGeneral").title() + child<QGroupBox>("fraDetails").title(), "");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    EXPECT_FALSE(child<QGroupBox>("fraGeneral").isVisible());
    EXPECT_TRUE(child<QGroupBox>("fraDetails").isVisible());
    QTest::keyClick(&tabs, Qt::Key_Left);
    EXPECT_TRUE(child<QGroupBox>("fraGeneral").isVisible());
}

TEST_F(ProgressWindow, ListsOnlyHeadersDuringARun) {
    script.statuses = {{11, 0, 0, 1}};
    start();
    const auto& list = child<QTreeWidget>("lvwGeneral");
    QStringList headers;
    for (int column = 0; column < list.columnCount(); ++column)
        headers << list.headerItem()->text(column);
    EXPECT_EQ(headers, (QStringList{"File Name", "Source", "Destination", "Status"}));
    EXPECT_EQ(list.topLevelItemCount(), 0);
    EXPECT_TRUE(waitFor([&] { return journal.contains("ShowCompleted"); }));
    EXPECT_EQ(list.topLevelItemCount(), 0);
}

TEST_F(ProgressWindow, TakesRowsAndTheirStatus) {
    frmProgress& window = start();
    window.addListRow(1, {"b.pdf", "/in/b.pdf", "/out/b.docx", ""}, 1);
    window.addListRow(1, {"a.pdf", "/in/a.pdf", "/out/a.docx", "Converting"}, 1);
    window.setListRow(2, "Completed", 2);
    const auto& list = child<QTreeWidget>("lvwGeneral");
    EXPECT_EQ(list.topLevelItem(0)->text(0), "a.pdf");
    EXPECT_EQ(list.topLevelItem(1)->text(3), "Completed");
    EXPECT_FALSE(list.topLevelItem(1)->icon(0).pixmap(16).isNull()) << "the pictures are there";
    EXPECT_THROW(window.addListRow(3, {"a.pdf", "", "", ""}, 1), std::invalid_argument) << "the name is the key";
    EXPECT_THROW(window.addListRow(4, {"c.pdf", "", "", ""}, 1), std::out_of_range);
    EXPECT_THROW(window.setListRow(3, "Completed", 2), std::out_of_range);
    EXPECT_EQ(list.topLevelItemCount(), 2);
}

TEST_F(ProgressWindow, TellsInItsDetailsWhatBecomesWhat) {
    records.flags.intRunKind = run_kind::kExtractImages;
    records.job.strImageFolder = "/pictures";
    start();
    EXPECT_EQ(child<QLineEdit>("txtSourcePath").text(), "/in/report.pdf");
    EXPECT_EQ(child<QLineEdit>("txtOutputPath").text(), "/pictures");
}

/// Notes what the links open.
struct NotingOpener : SystemOpener {
    QStringList opened;
    bool canShow(const QString&) const override { return true; }
    void open(const QString& target) override { opened << target; }
};

TEST_F(ProgressWindow, CarriesTheFiveLinks) {
    NotingOpener opener;
    LinkActions actions(opener, TAVRELION_PROGRAM_FOLDER);
    frmProgress& window = start();
    window.carryLinks(actions);
    for (const char* name : {"lblHelp", "lblOnline", "lblOtherProducts", "lblQuickTour", "lblWebsite"}) {
        auto& label = child<LinkLabel>(name);
        EXPECT_EQ(withoutMnemonic(label.text()), GetCaption(languages, name)) << "not shortened";
        opener.opened.clear();
        QTest::mouseClick(&label, Qt::LeftButton);
        QTest::keyClick(&label, Qt::Key_Return);
        EXPECT_EQ(opener.opened.size(), 2);
        QTest::mouseClick(&child<Picture>(QByteArray(name).replace("lbl", "img")), Qt::LeftButton);
        EXPECT_EQ(opener.opened.size(), 3);
    }
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ProgressWindow, IsWorkedByTheKeyboardAlone) {
    files.files.insert(records.settings.strLogPath);
    files.texts[records.settings.strLogPath] = "log";
    script.results = {1};
    frmProgress& window = start();
    EXPECT_EQ(window.focusWidget(), &button("cmdViewLog")) << "the focus goes where the work goes on";
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(child<QTextEdit>("RichTextBox1").isVisible());
    EXPECT_EQ(window.focusWidget(), &button("cmdClose"));
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &child<QTextEdit>("RichTextBox1")) << "so that the log can be scrolled";
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(window.isLoaded());
}

TEST_F(ProgressWindow, StaysMinimisedUntilItIsUnloaded) {
    frmProgress& window = start();
    window.minimise();
    EXPECT_TRUE(window.isMinimized());
    window.Form::unload();
    EXPECT_FALSE(window.isVisible());
}

/// The real event loop and an engine that is slow in everything.
class SlowEngine : public ProgressWindow {
protected:
    frmProgress& start() {
        const RunPorts ports{records,     mainWindow, messageBox, yesNoDialog, passwordPrompt, statusTexts,
                             qtEventLoop, clock,      files,      engines,     followUp,       registry};
        const auto window = registry.obtain<frmProgress>(ports, languages);
        window->load();
        return *window;
    }
    QtEventLoop qtEventLoop;
};

TEST_F(SlowEngine, NeverHoldsTheWindowsUp) {
    constexpr int kSlowness = 600; // milliseconds
    script.whileConverting = [] { QThread::msleep(kSlowness); };
    script.whileAskedForStatus = [] { QThread::msleep(kSlowness); };
    script.statuses = {{4, 1, 0, 0}, {11, 0, 0, 1}};
    const qint64 standstill = longestStandstill([this] {
        start();
        EXPECT_TRUE(waitFor([this] { return journal.contains("ShowCompleted"); }));
    });
    EXPECT_GE(script.statusCalls, 2);
    // A call that holds the windows up does so for its whole length; what is well below it is the machine's own doing.
    EXPECT_LT(standstill, kSlowness / 2);
}

} // namespace
} // namespace tavrelion::tests
