#include "core/Main.h"

int ActivatePreviousInstance(OtherCopies& copies) {
    return copies.bringForward(kWindowTitle) == OtherCopies::Search::BroughtForward ? 1 : 0;
}

AfterMain Main(SharedRecords& records, const HomeFolderSources& folders, OtherCopies& copies) {
    try {
        records.queue.lngSelectedBound = -1;
        FindHomeFolder(records.flags, folders);
        if (ActivatePreviousInstance(copies) == 0)
            return AfterMain::StartUp;
        copies.activateApplication(kWindowTitle);
        ActivatePreviousInstance(copies);
    } catch (...) {
        // The other copy may have closed in between. Nothing was shown yet, so the process just ends.
    }
    return AfterMain::EndProcess;
}
