#include "ui/dialogs/SystemFileDialogs.h"

#include "support/TemporaryFolder.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include <gtest/gtest.h>

namespace tavrelion::tests {
namespace {

/// The real dialogs, answered by what a user would type into their name box.
class SystemDialog : public testing::Test {
protected:
    SystemDialog() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        for (const char* name : {"a.pdf", "b.PDF", "c d.pdf", "e.txt"}) {
            QFile file(path(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    ~SystemDialog() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false); }

    QString home() const { return QString::fromStdString(folder.path().string()); }
    QString path(const QString& name) const { return home() + '/' + name; }

    /// Runs once a dialog is open.
    template<typename Action>
    void whenOpen(Action&& action) {
        auto* poll = new QTimer(qApp);
        QObject::connect(poll, &QTimer::timeout, qApp, [poll, action] {
            if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                poll->deleteLater();
                poll->stop();
                action(*dialog);
            }
        });
        poll->start(10);
    }
    void typeAndAccept(const QString& names) {
        whenOpen([names](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(names);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }

    orvane::tests::TemporaryFolder folder;
    SystemFileDialogs dialogs;
    FileDialogs::OpenRequest openRequest{"Open", home(), "PDF Files (*.pdf)|*.pdf", 4096};
    FileDialogs::SaveRequest saveRequest{"Save As", home(), "DOC Files (*.docx)|*.docx|RTF Files (*.rtf)|*.rtf", 2,
                                         "a"};
};

TEST_F(SystemDialog, OpensOneFile) {
    typeAndAccept("a.pdf");
    EXPECT_EQ(dialogs.open(openRequest), path("a.pdf"));
}

TEST_F(SystemDialog, OpensSeveralFilesAsFolderAndNames) {
    typeAndAccept("\"c d.pdf\" \"a.pdf\"");
    const QChar nul(u'\0');
    EXPECT_EQ(dialogs.open(openRequest), home() + nul + "c d.pdf" + nul + "a.pdf");
}

TEST_F(SystemDialog, OpensEveryTypedFileWhateverRowsAreSelected) {
    whenOpen([](QFileDialog& dialog) {
        auto& list = *dialog.findChild<QListView*>("listView")->selectionModel();
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText("\"c d.pdf\" \"a.pdf\"");
        const QSignalBlocker blocker(list);
        list.select(list.selectedRows().front(), QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    const QChar nul(u'\0');
    EXPECT_EQ(dialogs.open(openRequest), home() + nul + "c d.pdf" + nul + "a.pdf");
}

TEST(QuotedFiles, TakesNamesOfTheFolderAndFullPaths) {
    EXPECT_EQ(quotedFiles("\"a b.pdf\" \"/elsewhere/c.pdf\"", QDir("/home/in")),
              QStringList({"/home/in/a b.pdf", "/elsewhere/c.pdf"}));
    EXPECT_EQ(quotedFiles("a.pdf", QDir("/home/in")), QStringList()) << "one name needs no quotes";
}

TEST_F(SystemDialog, CancelGivesNothing) {
    whenOpen([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.open(openRequest), std::nullopt);
    whenOpen([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.save(saveRequest), std::nullopt);
}

TEST_F(SystemDialog, ASelectionThatIsTooLongGivesNothing) {
    typeAndAccept("a.pdf");
    openRequest.longestAnswer = 5;
    EXPECT_EQ(dialogs.open(openRequest), std::nullopt);
}

TEST_F(SystemDialog, SavesTheNameAsTyped) {
    typeAndAccept("report");
    EXPECT_EQ(dialogs.save(saveRequest), path("report")) << "no extension is added";
}

TEST_F(SystemDialog, ShowsWhatIsAskedFor) {
    whenOpen([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save As");
        EXPECT_EQ(dialog.directory().absolutePath(), home());
        EXPECT_EQ(dialog.nameFilters(), (QStringList{"DOC Files (*.docx)", "RTF Files (*.rtf)"}));
        EXPECT_EQ(dialog.selectedNameFilter(), "RTF Files (*.rtf)");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "a");
        dialog.reject();
    });
    dialogs.save(saveRequest);
}

TEST_F(SystemDialog, ARowThatIsNotThereSelectsNone) {
    saveRequest.filterRow = 3;
    whenOpen([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.selectedNameFilter(), "DOC Files (*.docx)");
        dialog.reject();
    });
    dialogs.save(saveRequest);
}

TEST_F(SystemDialog, StartsInTheFolderOfAFile) {
    EXPECT_EQ(startFolder(home()), home());
    EXPECT_EQ(startFolder(path("a.pdf")), home()) << "the first selection ever leaves a file's path";
    EXPECT_EQ(startFolder(path("gone")), QDir::currentPath());
    EXPECT_EQ(startFolder({}), QDir::currentPath());
}

} // namespace
} // namespace tavrelion::tests
