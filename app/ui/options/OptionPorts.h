#pragma once

#include "core/RunViews.h"
#include "core/System.h"
#include "i18n/LanguageTable.h"
#include "records/SharedRecords.h"
#include "services/LinkActions.h"
#include "ui/form/FolderDialog.h"
#include "ui/form/MainWindowControls.h"

#include <functional>

/// What the options window reaches.
struct OptionPorts {
    SharedRecords& records;
    LanguageTable& languages;
    UserMessages& messageBox;
    EventLoop& eventLoop;
    FolderDialog& folderDialog;
    LinkActions& links;
    MainWindowControls& mainWindow;
    std::function<std::int16_t()> IsMSWordInstalled; ///< 0 for none
    std::function<std::int16_t()> CheckMSWord;       ///< the year of its release
};
