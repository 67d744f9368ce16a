#include "ui/password/PasswordWindow.h"

#include "app/support/RunFixture.h"
#include "app/support/ShippedLanguages.h"
#include "i18n/Captions.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/Picture.h"
#include "ui/password/frmPassword.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QTest>
#include <QTimer>

namespace tavrelion::tests {
namespace {

using Password = PasswordPrompt::Password;

/// The real password window over a main window that is only noted.
class PasswordPromptWindow : public RunFixture {
protected:
    PasswordPromptWindow() {
        records.queue.strSelectedFiles = {"/in", "one.pdf", "two.pdf"};
        records.queue.lngSelectedBound = 2;
        records.job.strPdfPassword = "before";
    }
    ~PasswordPromptWindow() override { registry.dispose(); }

    /// Asks, and does something with the window once it is there.
    template<typename Action>
    void ask(Password wanted, Action action) {
        QTimer::singleShot(0, qApp, [this, action] {
            const auto window = registry.find<frmPassword>();
            ASSERT_NE(window, nullptr);
            wasModal = window->isModal();
            action(*window);
        });
        prompt.ask(wanted);
    }
    template<typename Widget>
    static Widget& child(const QWidget& window, const char* name) {
        return *window.findChild<Widget*>(name);
    }

    LanguageTable languages{shippedLanguages(records)};
    FormRegistry registry;
    int progressUnloads = 0;
    bool wasModal = false;
    PasswordWindow prompt{registry, {records, languages, mainWindow, [this] {
                                         ++progressUnloads;
                                         journal << "progress goes";
                                     }}};
};

TEST_F(PasswordPromptWindow, LeavesTheEnteredTextInTheRecords) {
    ask(Password::User, [](QWidget& window) {
        child<QLineEdit>(window, "TxtPassword").insert(" s\"é ");
        QTest::mouseClick(&child<QPushButton>(window, "cmdOK"), Qt::LeftButton);
    });
    EXPECT_TRUE(wasModal);
    EXPECT_EQ(records.job.strPdfPassword, " s\"é ");
    EXPECT_EQ(records.flags.intDialogAnswer, 1);
    EXPECT_EQ(progressUnloads, 0);
    EXPECT_EQ(registry.find<frmPassword>(), nullptr);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(PasswordPromptWindow, TakesAnEmptyText) {
    ask(Password::User, [](QWidget& window) { child<QPushButton>(window, "cmdOK").click(); });
    EXPECT_EQ(records.job.strPdfPassword, "");
    EXPECT_EQ(records.flags.intDialogAnswer, 1);
}

TEST_F(PasswordPromptWindow, SaysWhichPasswordIsWanted) {
    for (const Password wanted : {Password::User, Password::Owner}) {
        ask(wanted, [wanted](QWidget& window) {
            const bool isOwner = wanted == Password::Owner;
            EXPECT_EQ(child<QLabel>(window, "lblOwnerPass").isVisible(), isOwner);
            EXPECT_EQ(child<QLabel>(window, "lblUserPass").isVisible(), !isOwner);
            EXPECT_EQ(child<QLineEdit>(window, "TxtPassword").accessibleName(),
                      isOwner ? "Owner Password" : "User Password");
            EXPECT_FALSE(child<QLabel>(window, "lblPasswordAlert").text().isEmpty());
            EXPECT_FALSE(child<Picture>(window, "imgPass").isEmpty());
            child<QPushButton>(window, "cmdOK").click();
        });
    }
}

TEST_F(PasswordPromptWindow, SpeaksTheLanguageOfTheSettings) {
    records.settings.intLanguageID = 3;
    ask(Password::User, [](QWidget& window) {
        EXPECT_EQ(withoutMnemonic(child<QLabel>(window, "lblUserPass").text()), "Benutzerkennwort");
        EXPECT_EQ(withoutMnemonic(child<QPushButton>(window, "cmdCancel").text()), "Abbrechen");
        child<QPushButton>(window, "cmdOK").click();
    });
}

TEST_F(PasswordPromptWindow, ShowsStarsAndStartsEmpty) {
    ask(Password::User, [](QWidget& window) {
        QLineEdit& box = child<QLineEdit>(window, "TxtPassword");
        EXPECT_EQ(box.text(), "");
        QTest::keyClicks(&box, "abc");
        EXPECT_EQ(box.displayText(), "***");
        child<QPushButton>(window, "cmdOK").click();
    });
}

TEST_F(PasswordPromptWindow, IsWorkedByTheKeyboardAlone) {
    ask(Password::User, [](QWidget& window) {
        EXPECT_EQ(window.focusWidget(), &child<QLineEdit>(window, "TxtPassword"));
        QTest::keyClicks(window.focusWidget(), "secret");
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(records.job.strPdfPassword, "secret");
    EXPECT_EQ(records.flags.intDialogAnswer, 1);
    ask(Password::User, [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Escape); });
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
    EXPECT_EQ(progressUnloads, 1);
}

TEST_F(PasswordPromptWindow, CancelledGivesTheFileUpAndStepsTheQueue) {
    records.flags.intDialogAnswer = 1;
    ask(Password::User, [](QWidget& window) {
        QTest::keyClicks(&child<QLineEdit>(window, "TxtPassword"), "typed");
        QTest::mouseClick(&child<QPushButton>(window, "cmdCancel"), Qt::LeftButton);
    });
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
    EXPECT_EQ(records.job.strPdfPassword, "before") << "what was typed is not taken";
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_EQ(records.queue.lngSelectedBound, 1);
    EXPECT_EQ(records.job.strSourcePDF, "/in/one.pdf");
    EXPECT_EQ(journal, (Journal{"progress goes", "main.show"}));
    EXPECT_EQ(errorLog(), "") << "cancelling is not an error";
}

TEST_F(PasswordPromptWindow, ClosedByItsBoxCountsAsCancelled) {
    ask(Password::User, [](QWidget& window) { window.close(); });
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
    EXPECT_EQ(progressUnloads, 1);
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_EQ(records.queue.lngSelectedBound, 1);
}

TEST_F(PasswordPromptWindow, TakenAwayByTheProgramGivesNothingUp) {
    ask(Password::User, [this](QWidget&) { UnloadAllForms({}, registry); });
    EXPECT_EQ(progressUnloads, 0);
    EXPECT_EQ(records.queue.lngSelectedBound, 2);
}

} // namespace
} // namespace tavrelion::tests
