#include "ui/dialogs/EnglishPasswordPrompt.h"
#include "ui/form/Style.h"

#include <QApplication>
#include <QDialog>
#include <QInputDialog>
#include <QPalette>
#include <QTimer>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class PasswordDialog : public testing::Test {
protected:
    ~PasswordDialog() override { records = SharedRecords(); }

    /// Does something with the dialog that the next call opens.
    template<typename Action>
    static void whenOpen(Action action) {
        QTimer::singleShot(0, qApp,
                           [action] { action(*qobject_cast<QInputDialog*>(QApplication::activeModalWidget())); });
    }

    SharedRecords records;
    int filesGivenUp = 0;
    EnglishPasswordPrompt prompt{records, [this] { ++filesGivenUp; }};
};

TEST_F(PasswordDialog, ThePromptLeavesThePasswordInTheRecords) {
    whenOpen([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.labelText(), "Owner Password");
        EXPECT_EQ(dialog.textEchoMode(), QLineEdit::Password);
        dialog.setTextValue("secret");
        dialog.accept();
    });
    prompt.ask(PasswordPrompt::Password::Owner);
    EXPECT_EQ(records.job.strPdfPassword, "secret");
    EXPECT_EQ(records.flags.intDialogAnswer, 1);
    EXPECT_EQ(filesGivenUp, 0);
}

TEST_F(PasswordDialog, ThePromptCancelledGivesTheFileUp) {
    records.job.strPdfPassword = "before";
    records.flags.intDialogAnswer = 1;
    whenOpen([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.labelText(), "User Password");
        dialog.reject();
    });
    prompt.ask(PasswordPrompt::Password::User);
    EXPECT_EQ(records.job.strPdfPassword, "before");
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
    EXPECT_EQ(filesGivenUp, 1);
}

class Look : public testing::Test {
protected:
    ~Look() override {
        qApp->setPalette(m_before);
        qApp->setStyleSheet({});
    }
    static QColor pageOn(const QColor& desktop) {
        QPalette palette;
        palette.setColor(QPalette::Window, desktop);
        qApp->setPalette(palette);
        applyStyle(*qApp);
        return qApp->palette().color(QPalette::Window);
    }

private:
    QPalette m_before = qApp->palette();
};

TEST_F(Look, ALightDesktopGetsTheProductsPage) {
    EXPECT_EQ(pageOn(QColor(0xEF, 0xEF, 0xEF)), QColor(0xF7, 0xF8, 0xFA));
}

TEST_F(Look, ADarkDesktopKeepsItsOwnColours) {
    EXPECT_EQ(pageOn(QColor(0x20, 0x20, 0x20)), QColor(0x20, 0x20, 0x20));
}

} // namespace
} // namespace tavrelion::tests
