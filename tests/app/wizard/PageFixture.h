#pragma once

#include "app/support/LinkFakes.h"
#include "app/support/MainFakes.h"
#include "app/support/PageFakes.h"
#include "app/support/RunFakes.h"
#include "app/support/ScratchHome.h"
#include "i18n/LanguageTable.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/OptionButton.h"
#include "ui/wizard/PagePorts.h"

#include <QMap>

namespace tavrelion::tests {

/// The real windows of the wizards in English, over records of a test's own, with everything around them faked.
class PageFixture : public ScratchHome {
protected:
    PageFixture();
    ~PageFixture() override;

    /// Shows a window by its name; it is loaded at the first showing and activated at each.
    Form& show(const QString& window);
    /// The loaded window of that name, made when needed.
    std::shared_ptr<Form> form(const QString& window);
    void hide(const QString& window) { form(window)->hide(); }

    template<typename Control = QWidget>
    Control& control(const QString& window, const QString& name) {
        auto* found = form(window)->findChild<Control*>(name);
        if (!found)
            qFatal("%s has no %s of that kind", qPrintable(window), qPrintable(name));
        return *found;
    }
    OptionButton& option(const QString& window, const QString& name) { return control<OptionButton>(window, name); }
    /// What a label, button or box shows.
    QString text(const QString& window, const QString& name);
    void setText(const QString& window, const QString& name, const QString& text);
    /// File name of the picture that is shown.
    QString picture(const QString& window, const QString& name);

    void click(const QString& window, const QString& name);
    /// Types into a box, key by key.
    void type(const QString& window, const QString& box, const QString& keys);

    /// An application folder of the test's own with the lines of the English file for which the condition holds.
    void useOwnLanguageFile(const std::function<bool(const QString& line)>& keeps);

    /// The windows that the user sees: pages, and frmMain and frmProgress if they were shown since the last call.
    QStringList shownWindows();

    /// The fields that the pages may write, by name.
    QMap<QString, QString> fields() const;

    Journal journal;
    FakeMessageBox messageBox{journal};
    FakeRefusals refusals{journal};
    FakeEventLoop eventLoop;
    FakeFileDialogs fileDialogs;
    FakeFolderDialog folderDialog;
    FakeOpener opener;
    LinkActions links{opener, "/opt/tavrelion"};
    FakeMainWindow mainWindow;
    int runs = 0;
    std::function<void()> whenRunStarts;
    LanguageTable languages;
    FormRegistry registry;
    PagePorts ports;
};

} // namespace tavrelion::tests
