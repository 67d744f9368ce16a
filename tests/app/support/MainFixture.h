#pragma once

#include "app/support/LinkFakes.h"
#include "app/support/MainFakes.h"
#include "app/support/RunFixture.h"
#include "app/support/ShippedLanguages.h"
#include "i18n/Controls.h"
#include "ui/form/FormRegistry.h"
#include "ui/main/frmMain.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace tavrelion::tests {

/// What a main window needs around it, faked, with the languages as they ship.
class MainFixture : public RunFixture {
protected:
    MainPorts mainPorts() {
        return {records,
                languages,
                messageBox,
                yesNoDialog,
                refusals,
                eventLoop,
                dialogs,
                files,
                links,
                nextWindows,
                [this] { return wordInstalled; },
                [this] { return wordRelease; }};
    }

    LanguageTable languages{shippedLanguages(records)};
    FakeRefusals refusals{journal};
    FakeFileDialogs dialogs;
    FakeNextWindows nextWindows{journal};
    FakeOpener opener;
    LinkActions links{opener, "/opt/tavrelion"};
    std::int16_t wordInstalled = 1;
    std::int16_t wordRelease = 2010;
    FormRegistry registry;
};

/// The real main window over faked dialogs, files and windows.
class MainWindow : public MainFixture {
protected:
    MainWindow() {
        records.job = ConversionJob();
        records.settings.strRecentOutputFolder = "/out";
    }
    ~MainWindow() override {
        m_window.reset();
        registry.dispose();
    }

    frmMain& window() {
        if (!m_window)
            m_window = registry.obtain<frmMain>(mainPorts());
        return *m_window;
    }
    void show() { window().showForm(); }
    void showAgain() {
        window().hide();
        window().showForm();
    }
    template<typename Widget = QWidget>
    Widget& child(const char* name) {
        auto* found = window().findChild<Widget*>(name);
        if (!found)
            qFatal("the main window has no %s", name);
        return *found;
    }
    QString text(const char* box) { return child<QLineEdit>(box).text(); }
    /// What a label or button shows, with its access key marked.
    QString caption(const char* name) { return captionOf(child(name)); }
    void setText(const char* box, const QString& text) { child<QLineEdit>(box).setText(text); }
    void click(const char* name) { QTest::mouseClick(&child(name), Qt::LeftButton); }

    /// Puts files on the disk, of 12800 bytes each.
    void addFiles(const QStringList& paths) {
        for (const QString& path : paths) {
            files.files.insert(path);
            files.sizes[path] = 12800;
        }
    }
    /// Chooses in the open dialog what it returns: one path, or a folder and names.
    void browse(const QStringList& parts) {
        dialogs.opened = parts.join(QChar(u'\0'));
        click("cmdBrowse");
    }
    void browse(const QString& path) {
        addFiles({path});
        browse(QStringList{path});
    }
    /// What happened since the last look.
    QStringList journalled() {
        QStringList seen;
        seen.swap(journal);
        return seen;
    }

private:
    std::shared_ptr<frmMain> m_window;
};

} // namespace tavrelion::tests
