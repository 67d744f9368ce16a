#include "core/ListRows.h"

#include "core/BoundedList.h"
#include "core/OutputDerivation.h"
#include "core/Paths.h"
#include "core/ProgressRun.h"
#include "platform/DateText.h"

#include <algorithm>
#include <ctime>

namespace run {
namespace {

QString sourceAt(const BatchQueue& queue, int cursor) {
    const QString& element = textAt(queue.strSelectedFiles, cursor);
    return queue.lngSelectedBound == 0 ? element : fileIn(textAt(queue.strSelectedFiles, 0), element);
}

QString destinationOf(const SharedRecords& records, const QString& source) {
    if (records.flags.intRunKind == run_kind::kExtractImages)
        return records.job.strImageFolder;
    return outputOf(source, records.settings, records.job.strOutputFile);
}

} // namespace

void UpdateListRow(ProgressRun& run, int row, const QString& text, int icon) {
    try {
        run.view.setListRow(row, text, icon);
    } catch (...) {
        // A row that is not there has no status to show.
    }
}

void AddToListView(ProgressRun& run, int index, const QString& fileName, const QString& source,
                   const QString& destination, const QString& status) {
    run.view.addListRow(index, {fileName, source, destination, status}, list_icon::kWorking);
}

void AddCompleteListView(ProgressRun& run) {
    run.strListFilled = QString::fromLocal8Bit(platform::generalDateText(std::time(nullptr)));
    const BatchQueue& queue = run.records.queue;
    if (queue.lngSelectedBound < 0)
        return;
    const int rows = std::max(1, static_cast<int>(queue.lngSelectedBound));
    for (int row = 1; row <= rows; ++row) {
        const QString source = sourceAt(queue, queue.lngSelectedBound - (row - 1));
        AddToListView(run, row, nameOf(source), source, destinationOf(run.records, source), {});
    }
}

} // namespace run
