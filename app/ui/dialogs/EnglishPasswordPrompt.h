#pragma once

#include "core/RunViews.h"
#include "records/SharedRecords.h"

#include <functional>

/// The password prompt in English, asked through the desktop's input dialog.
class EnglishPasswordPrompt : public PasswordPrompt {
public:
    /// `giveUpFile`: unloads the progress window and brings the main window back without a file.
    EnglishPasswordPrompt(SharedRecords& records, std::function<void()> giveUpFile);

    void ask(Password wanted) override;

private:
    SharedRecords& m_records;
    std::function<void()> m_giveUpFile;
};
