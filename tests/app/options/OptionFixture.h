#pragma once

#include "app/support/LinkFakes.h"
#include "app/support/PageFakes.h"
#include "app/support/RunFakes.h"
#include "app/support/ScratchHome.h"
#include "i18n/Captions.h"
#include "ui/form/FormRegistry.h"
#include "ui/options/frmOption.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <stdexcept>

namespace tavrelion::tests {

/// The real window in English over records of a test's own.
class OptionFixture : public ScratchHome {
protected:
    OptionFixture() {
        records.settings.intLauchMs = 2;
        records.settings.intUseWiz = 1;
        records.settings.intReconstMode = 3;
        records.settings.intRecoverImg = 1;
        records.settings.intCharSpac = 1;
        records.settings.strConversionMethod = "0";
        records.settings.strRecentOutputFolder = "/recent";
        records.settings.strLogPath = "/logs/old.log";
        records.job.strOutputFile = "/out/report.doc";
        mainWindow.outputBox = "/out/report.doc";
        mainWindow.allPages = true;
    }
    ~OptionFixture() override { registry.dispose(); }

    void open() {
        window = registry.obtain<frmOption>(OptionPorts{records, languages, messageBox, eventLoop, folderDialog, links,
                                                        mainWindow, [this] { return isWordInstalled(); },
                                                        [this] { return wordYear; }});
        window->showForm();
    }
    template<typename Control>
    Control& part(const QString& name) {
        auto* found = window->findChild<Control*>(name);
        if (!found)
            qFatal("the options window has no %s", qPrintable(name));
        return *found;
    }
    DropDownList& list(const QString& name) { return part<DropDownList>(name); }
    QString box(const QString& name) { return part<QLineEdit>(name).text(); }
    void click(const QString& button) { QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton); }
    QStringList items(const QString& name) {
        QStringList texts;
        for (int i = 0; i < list(name).count(); ++i)
            texts << list(name).itemText(i);
        return texts;
    }
    QString errorLog() const {
        QFile file(path("GUILog.tmp"));
        return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
    }
    /// An application folder of the test's own with copies of the language files, without those that are named.
    void useOwnLanguageFiles(const QStringList& missing) {
        QDir().mkpath(path("XML"));
        for (const QString& name : QDir(TAVRELION_PROGRAM_FOLDER "/XML").entryList(QDir::Files))
            if (!missing.contains(name))
                QFile::copy(TAVRELION_PROGRAM_FOLDER "/XML/" + name, path("XML/" + name));
        languages.applicationFolder = home();
    }

    Journal journal;
    FakeMessageBox messageBox{journal};
    FakeEventLoop eventLoop;
    FakeFolderDialog folderDialog;
    FakeOpener opener;
    LinkActions links{opener, "/opt/tavrelion"};
    FakeMainWindow mainWindow;
    std::int16_t isWordInstalled() const {
        if (failsToFindWord)
            throw std::runtime_error("the registry is gone");
        return wordInstalled;
    }
    std::int16_t wordInstalled = 1;
    bool failsToFindWord = false;
    std::int16_t wordYear = 2010;
    QStringList told;
    LanguageTable languages{
        {records.settings, TAVRELION_PROGRAM_FOLDER, [this](const QString& text) { told << text; }}};
    FormRegistry registry;
    std::shared_ptr<frmOption> window;
};

} // namespace tavrelion::tests
