#include "core/OpenDocument.h"

#include "app/support/ScratchHome.h"
#include "services/WordProcessorSearch.h"

#include <QFile>
#include <QTest>

namespace tavrelion::tests {
namespace {

/// This machine's way of opening, with programs of the test's own that note what they were started with.
class OpenDocument : public ScratchHome {
protected:
    OpenDocument() {
        program("my writer");
        program("xdg-open");
        qputenv("PATH", home().toUtf8() + ':' + m_pathBefore);
    }
    ~OpenDocument() override { qputenv("PATH", m_pathBefore); }

    void program(const QString& name) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > '" + path(name + ".part").toUtf8() + "' && mv '" +
                   path(name + ".part").toUtf8() + "' '" + path(name + ".note").toUtf8() + "'\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    /// What that program was started with: number of arguments and the first one.
    QString noteOf(const QString& name) const {
        QFile note(path(name + ".note"));
        return QTest::qWaitFor([&] { return note.exists(); }, 10000) && note.open(QIODevice::ReadOnly)
                   ? QString::fromUtf8(note.readAll())
                   : "was not started";
    }

    SystemDocumentShell shell;

private:
    QByteArray m_pathBefore = qgetenv("PATH");
};

constexpr char kDocument[] = "/out/-o \"Ada's\" отчёт.docx";

TEST_F(OpenDocument, GivesTheWordProcessorThatTheProbesKnowThePathAsItsOneArgument) {
    registerWordProcessor({path("my writer"), {}});
    EXPECT_EQ(shell.IsMSWordInstalled(), 1);
    run::OpenDocument(shell, records, kDocument);
    EXPECT_EQ(noteOf("my writer"), QString("1|") + kDocument);
    EXPECT_FALSE(QFile::exists(path("xdg-open.note")));
}

TEST_F(OpenDocument, LeavesTheChoiceToTheDesktopWhereThereIsNone) {
    registerWordProcessor({});
    EXPECT_EQ(shell.IsMSWordInstalled(), 0);
    run::OpenDocument(shell, records, kDocument);
    EXPECT_EQ(noteOf("xdg-open"), QString("1|") + kDocument);
}

TEST_F(OpenDocument, OfAWordProcessorThatWentMeanwhileIsNotNoticed) {
    registerWordProcessor({path("gone"), {}});
    EXPECT_NO_THROW(run::OpenDocument(shell, records, kDocument));
}

} // namespace
} // namespace tavrelion::tests
