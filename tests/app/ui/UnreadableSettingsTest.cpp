#include "ui/application/Application.h"

#include "app/support/ScratchHome.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

namespace tavrelion::tests {
namespace {

class UnreadableSettings : public ScratchHome {};

TEST_F(UnreadableSettings, EndTheProgramWithAReportThatNamesTheFile) {
    QFile userFolders(path("user-dirs.dirs"));
    ASSERT_TRUE(userFolders.open(QIODevice::WriteOnly));
    userFolders.write("XDG_DOCUMENTS_DIR=\"" + home().toUtf8() + "\"\n");
    userFolders.close();
    qputenv("XDG_RUNTIME_DIR", home().toUtf8());
    QFile settings(path("docval.temp"));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly)); // empty: the read runs past its end
    settings.close();

    QString reported;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            reported = box->text();
            box->accept();
        }
    });
    answer.start(10);
    testing::internal::CaptureStderr();
    Application application;
    EXPECT_EQ(application.run(), 1);
    const QString standardError = QString::fromLocal8Bit(testing::internal::GetCapturedStderr().c_str());
    EXPECT_TRUE(reported.contains(path("docval.temp"))) << reported.toStdString();
    EXPECT_TRUE(standardError.contains(path("docval.temp"))) << standardError.toStdString();
    qunsetenv("XDG_RUNTIME_DIR");
}

} // namespace
} // namespace tavrelion::tests
