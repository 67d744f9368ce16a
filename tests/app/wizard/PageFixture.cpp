#include "PageFixture.h"

#include "i18n/Captions.h"
#include "i18n/Controls.h"
#include "ui/extract/frmFinishExtractImages.h"
#include "ui/extract/frmImageFormatOutput.h"
#include "ui/form/Picture.h"
#include "ui/wizard/frmCharSpacing.h"
#include "ui/wizard/frmImageRecovery.h"
#include "ui/wizard/frmLayout.h"
#include "ui/wizard/frmOutputOptions.h"
#include "ui/wizard/frmOutputSummary.h"
#include "ui/wizard/frmPageRange.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace tavrelion::tests {

PageFixture::PageFixture()
    : languages({records.settings, TAVRELION_PROGRAM_FOLDER,
                 [](const QString& text) { ADD_FAILURE() << text.toStdString(); }})
    , ports{records, languages, messageBox, refusals, eventLoop, fileDialogs, folderDialog, links, mainWindow, [this] {
                ++runs;
                if (whenRunStarts)
                    whenRunStarts();
            }} {
    records.settings.intReconstMode = 3;
    records.settings.intRecoverImg = 1;
    records.settings.intCharSpac = 1;
    records.settings.strConversionMethod = "0";
    records.job.strSourcePDF = "/in/report.pdf";
    records.job.strOutputFile = "/out/report.doc";
    records.job.strOutputShown = ".doc";
    records.job.strCharSpacing = "no";
    records.job.strPageRange = "1";
    records.job.strImageFolder = "/out/";
}

PageFixture::~PageFixture() {
    registry.dispose();
}

std::shared_ptr<Form> PageFixture::form(const QString& window) {
    const QMap<QString, std::function<std::shared_ptr<Form>()>> makers{
        {"frmLayout", [this] { return registry.obtain<frmLayout>(ports); }},
        {"frmImageRecovery", [this] { return registry.obtain<frmImageRecovery>(ports); }},
        {"frmCharSpacing", [this] { return registry.obtain<frmCharSpacing>(ports); }},
        {"frmPageRange", [this] { return registry.obtain<frmPageRange>(ports); }},
        {"frmOutputOptions", [this] { return registry.obtain<frmOutputOptions>(ports); }},
        {"frmOutputSummary", [this] { return registry.obtain<frmOutputSummary>(ports); }},
        {"frmImageFormatOutput", [this] { return registry.obtain<frmImageFormatOutput>(ports); }},
        {"frmFinishExtractImages", [this] { return registry.obtain<frmFinishExtractImages>(ports); }},
    };
    return makers.value(window)();
}

Form& PageFixture::show(const QString& window) {
    const auto shown = form(window);
    shown->showForm();
    return *shown;
}

QString PageFixture::text(const QString& window, const QString& name) {
    QWidget& shown = control(window, name);
    if (const auto* box = qobject_cast<QLineEdit*>(&shown))
        return box->text();
    return withoutMnemonic(captionOf(shown));
}

void PageFixture::setText(const QString& window, const QString& name, const QString& text) {
    control<QLineEdit>(window, name).setText(text);
}

QString PageFixture::picture(const QString& window, const QString& name) {
    return QFileInfo(control<Picture>(window, name).path()).fileName();
}

void PageFixture::click(const QString& window, const QString& name) {
    QWidget& target = control(window, name);
    const auto* option = qobject_cast<OptionButton*>(&target);
    QTest::mouseClick(&target, Qt::LeftButton, {}, option ? QPoint(10, target.height() / 2) : QPoint());
}

void PageFixture::type(const QString& window, const QString& box, const QString& keys) {
    QTest::keyClicks(&control(window, box), keys);
}

void PageFixture::useOwnLanguageFile(const std::function<bool(const QString& line)>& keeps) {
    QFile shipped(TAVRELION_PROGRAM_FOLDER "/XML/english.xml");
    QDir(home()).mkpath("XML");
    QFile own(path("XML/english.xml"));
    if (!shipped.open(QIODevice::ReadOnly) || !own.open(QIODevice::WriteOnly))
        qFatal("a test cannot copy the language file");
    while (!shipped.atEnd())
        if (const QByteArray line = shipped.readLine(); keeps(QString::fromUtf8(line)))
            own.write(line);
    own.close();
    languages.applicationFolder = home();
}

QStringList PageFixture::shownWindows() {
    QStringList names;
    for (const auto& window : registry.loadedWindows())
        if (const auto shown = std::dynamic_pointer_cast<Form>(window); shown && shown->isVisible())
            names << shown->objectName();
    if (mainWindow.showings > 0)
        names << "frmMain";
    if (runs > 0)
        names << "frmProgress";
    mainWindow.showings = 0;
    runs = 0;
    return names;
}

QMap<QString, QString> PageFixture::fields() const {
    const ConversionJob& job = records.job;
    const AppSettings& settings = records.settings;
    const auto number = [](int value) { return QString::number(value); };
    return {{"strOutputFile", job.strOutputFile},
            {"strOutputShown", job.strOutputShown},
            {"strPageRange", job.strPageRange},
            {"strCharSpacing", job.strCharSpacing},
            {"strLayoutCaption", job.strLayoutCaption},
            {"strImageFormat", job.strImageFormat},
            {"strImageFolder", job.strImageFolder},
            {"intUseFromTo", number(job.intUseFromTo)},
            {"intPageFrom", number(job.intPageFrom)},
            {"intPageTo", number(job.intPageTo)},
            {"intOpenDocEditing", number(job.intOpenDocEditing)},
            {"intOutputFormat", number(settings.intOutputFormat)},
            {"intReconstMode", number(settings.intReconstMode)},
            {"intRecoverImg", number(settings.intRecoverImg)},
            {"intCharSpac", number(settings.intCharSpac)},
            {"intConvertFrom", number(settings.intConvertFrom)},
            {"intPromptPageRange", number(settings.intPromptPageRange)},
            {"intLauchMs", number(settings.intLauchMs)},
            {"strRecentFolder", settings.strRecentFolder},
            {"intRunKind", number(records.flags.intRunKind)},
            {"intWizardCancelled", number(records.flags.intWizardCancelled)},
            {"blnCloseRequested", number(records.flags.blnCloseRequested)}};
}

} // namespace tavrelion::tests
