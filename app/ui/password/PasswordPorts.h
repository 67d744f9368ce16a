#pragma once

#include "i18n/LanguageTable.h"
#include "records/SharedRecords.h"

#include <functional>

class MainView;

/// What the password window reaches.
struct PasswordPorts {
    SharedRecords& records;
    LanguageTable& languages;
    MainView& mainWindow;
    std::function<void()> unloadProgress; ///< unloads frmProgress, if there is one
};
