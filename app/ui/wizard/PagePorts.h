#pragma once

#include "core/FileDialogs.h"
#include "core/RunViews.h"
#include "core/System.h"
#include "i18n/LanguageTable.h"
#include "records/SharedRecords.h"
#include "services/LinkActions.h"
#include "ui/dialogs/Refusals.h"
#include "ui/form/FolderDialog.h"
#include "ui/form/MainWindowControls.h"

#include <functional>

/// What the pages of both wizards reach.
struct PagePorts {
    SharedRecords& records;
    LanguageTable& languages;
    UserMessages& messageBox;
    Refusals& refusals;
    EventLoop& eventLoop;
    FileDialogs& fileDialogs;
    FolderDialog& folderDialog;
    LinkActions& links;
    MainWindowControls& mainWindow;
    std::function<void()> startRun; ///< shows the progress window, which carries the job of the records out
};
