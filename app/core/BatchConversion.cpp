#include "core/BatchConversion.h"

#include "core/Banner.h"
#include "core/BoundedList.h"
#include "core/OutputDerivation.h"
#include "core/Paths.h"
#include "core/ProgressRun.h"
#include "core/SizeText.h"
#include "services/ErrorTrap.h"

namespace run {
namespace {

using Text = MainView::Text;

constexpr char kInvalidFormat[] = "Invalid file format! Please select a file with .PDF extension only.";
constexpr int kShownExtensionLength = 4; ///< so DOCX is shown without its dot

bool isQueueDone(const BatchQueue& queue) {
    return queue.lngSelectedBound < 1;
}

void setText(ProgressRun& run, const ErrorTrap& trap, Text control, const QString& text) {
    trap([&] { run.mainWindow.setText(control, text); });
}

QString textOf(const ProgressRun& run, const ErrorTrap& trap, Text control) {
    QString text;
    trap([&] { text = run.mainWindow.text(control); });
    return text;
}

/// Whether there is a file under the cursor, which strCurrentFile then names.
bool takeFile(ProgressRun& run, const ErrorTrap& trap) {
    BatchQueue& queue = run.records.queue;
    queue.intFileTaken = 1;
    trap([&] {
        queue.strCurrentFile =
            fileIn(textAt(queue.strSelectedFiles, 0), textAt(queue.strSelectedFiles, queue.lngSelectedBound));
    });
    return !queue.strCurrentFile.isEmpty() && run.files.exists(queue.strCurrentFile);
}

/// Brings the file under the cursor into the records and the main window.
void loadFile(ProgressRun& run, const ErrorTrap& trap) {
    ConversionJob& job = run.records.job;
    const QString& source = run.records.queue.strCurrentFile;
    setText(run, trap, Text::txtfilepath, source);
    setText(run, trap, Text::txtFileBrowsePath, source);
    job.strSourcePDF = source;
    trap([&] { run.mainWindow.setText(Text::txtFileSize, sizeText(run.files.size(source))); });
    job.strFileSizeText = textOf(run, trap, Text::txtFileSize);
    job.strOutputFile = outputOf(source, run.records.settings, job.strOutputFile);
    setText(run, trap, Text::txtfilepathOutput, job.strOutputFile);
    setText(run, trap, Text::lblOutputFormatDoc, job.strOutputFile.right(kShownExtensionLength));
    announceBatch(run.mainWindow, trap);
}

void leaveQueueEmpty(ProgressRun& run, const ErrorTrap& trap) {
    ConversionJob& job = run.records.job;
    awaitSource(run.mainWindow, trap);
    for (const Text control : {Text::txtfilepath, Text::txtfilepathOutput, Text::lblOutputFormatDoc,
                               Text::txtFileBrowsePath, Text::txtFileSize})
        setText(run, trap, control, {});
    trap([&] { run.mainWindow.setSourceToolTip({}); });
    job.strOutputFile.clear();
    job.strOutputShown.clear();
    job.strSourcePDF = textOf(run, trap, Text::txtfilepath);
    job.strFileSizeText = textOf(run, trap, Text::txtFileSize);
}

/// One blank, not nothing: what reads as no file when it is trimmed is told apart from a selection that ended.
void leaveQueueBlank(ProgressRun& run, const ErrorTrap& trap) {
    const QString blank = " ";
    run.records.job.strSourcePDF = blank;
    run.records.job.strFileSizeText = blank;
    for (const Text control : {Text::txtfilepathOutput, Text::txtfilepath, Text::lblOutputFormatDoc})
        setText(run, trap, control, blank);
    trap([&] { run.mainWindow.disableButton(MainView::Button::cmdBrowseOutput); });
    awaitSource(run.mainWindow, trap);
}

} // namespace

void BatchConversion(ProgressRun& run) {
    const ErrorTrap trap("frmprogress", "BatchConversion");
    if (run.records.flags.blnCloseRequested) {
        trap([&] { run.view.unload(); });
        return;
    }
    trap([&] { run.eventLoop.yield(); });
    BatchQueue& queue = run.records.queue;
    if (run.blnAdvanceQueue)
        --queue.lngSelectedBound;
    if (isQueueDone(queue))
        return leaveQueueEmpty(run, trap);
    if (!takeFile(run, trap))
        return;
    if (!queue.strCurrentFile.endsWith(".pdf", Qt::CaseInsensitive)) {
        trap([&] { run.messageBox.tell(UserMessages::Icon::Information, kInvalidFormat, kWindowTitle); });
        return;
    }
    loadFile(run, trap);
}

void GetNextFile(ProgressRun& run) {
    const ErrorTrap trap("frmProgress", "GetNextFile");
    BatchQueue& queue = run.records.queue;
    --queue.lngSelectedBound;
    if (isQueueDone(queue))
        return leaveQueueBlank(run, trap);
    if (takeFile(run, trap))
        loadFile(run, trap);
}

} // namespace run
