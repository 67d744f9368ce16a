#include "app/support/RunFixture.h"

#include "core/Attempt.h"

#include <QDir>
#include <QFile>

namespace tavrelion::tests {

RunFixture::RunFixture() {
    records = SharedRecords();
    records.flags.strHomeFolder = QString::fromStdString(folder.path().string());
    records.flags.intRunKind = run_kind::kConvert;
    records.settings.intOutputFormat = 2;
    records.settings.intReconstMode = 3;
    records.settings.intRecoverImg = 1;
    records.settings.intCharSpac = 1;
    records.settings.strLogPath = homePath("Tavrelion.log");
    records.job.strSourcePDF = "/in/report.pdf";
    records.job.strOutputFile = "/out/report.docx";
    records.queue.lngSelectedBound = -1;
    files.files.insert(records.job.strSourcePDF);
    passwordPrompt.giveUp = [this] {
        view.unload();
        records.flags.blnCloseRequested = true;
    };
    prepareRun();
}

RunFixture::~RunFixture() {
    // The engine of a run may be alive until here, and it tells its script when it goes.
    progressRun.reset();
    records = SharedRecords();
}

QString RunFixture::homePath(const QString& name) const {
    return records.flags.strHomeFolder + QDir::separator() + name;
}

QString RunFixture::errorLog() const {
    QFile file(homePath("GUILog.tmp"));
    return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
}

void RunFixture::prepareRun() {
    const RunPorts ports{records,   mainWindow, messageBox, yesNoDialog, passwordPrompt, statusTexts,
                         eventLoop, clock,      files,      engines,     followUp,       windows};
    progressRun = std::make_unique<ProgressRun>(ports, view);
    view.run = progressRun.get();
    progressRun->blnAsyncRun = true;
    progressRun->blnPollEnabled = true;
    progressRun->strFirstPassword = " ";
    progressRun->astrStatusText = statusTexts.texts;
}

void RunFixture::attempt() {
    run::ParsePDF(run(), records.job.strSourcePDF, records.job.strPdfPassword, {}, {});
}

void RunFixture::cancelAtYield(int number) {
    eventLoop.atYield[number] = [this] {
        yesNoDialog.answer = 1;
        run::cmdCancel_click(run());
    };
}

} // namespace tavrelion::tests
