#include "core/LockedFile.h"

#include "core/BoundedList.h"
#include "core/OutputDerivation.h"
#include "core/Paths.h"
#include "core/RunViews.h"
#include "services/SkippingErrors.h"

namespace run {
namespace {

using Text = MainView::Text;

/// Takes the file before the present one. The result is the name of its document, empty when there is no such file.
QString stepBack(SharedRecords& records) {
    BatchQueue& queue = records.queue;
    if (queue.lngSelectedBound == 1)
        queue.lngSelectedBound = 0;
    if (queue.lngSelectedBound < 1)
        return {};
    --queue.lngSelectedBound;
    skippingErrors([&] {
        queue.strCurrentFile =
            fileIn(textAt(queue.strSelectedFiles, 0), textAt(queue.strSelectedFiles, queue.lngSelectedBound));
    });
    records.job.strSourcePDF = queue.strCurrentFile;
    return stemOf(nameOf(records.job.strSourcePDF)) + extensionOf(records.settings.intOutputFormat);
}

} // namespace

void giveUpLockedFile(SharedRecords& records, MainView& mainWindow) {
    ConversionJob& job = records.job;
    records.flags.blnCloseRequested = true;
    const QString outputName = stepBack(records);
    const bool isQueueDone = records.queue.lngSelectedBound == 0;
    if (isQueueDone) {
        job.strSourcePDF = " ";
        skippingErrors([&] { mainWindow.setText(Text::txtfilepathOutput, {}); });
        skippingErrors([&] { mainWindow.enableButton(MainView::Button::cmdBrowse); });
    }
    skippingErrors([&] { mainWindow.enable(); });
    skippingErrors([&] { mainWindow.setText(Text::txtFileBrowsePath, job.strSourcePDF); });
    skippingErrors([&] { mainWindow.setText(Text::txtfilepath, job.strSourcePDF); });
    skippingErrors(
        [&] { mainWindow.setText(Text::txtfilepathOutput, fileIn(folderOf(job.strOutputFile), outputName)); });
    skippingErrors([&] { job.strOutputFile = mainWindow.text(Text::txtfilepathOutput); });
    // The box is emptied once more, while strOutputFile keeps the folder with its last separator.
    if (isQueueDone)
        skippingErrors([&] { mainWindow.setText(Text::txtfilepathOutput, {}); });
    skippingErrors([&] { mainWindow.show(); });
}

} // namespace run
