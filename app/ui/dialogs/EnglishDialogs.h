#pragma once

#include "core/RunViews.h"
#include "records/SharedRecords.h"

#include <functional>

/// The questions of frmErrorYesNoOnly in English, asked through a message box.
class EnglishYesNoDialog : public YesNoDialog {
public:
    EnglishYesNoDialog(SharedRecords& records, UserMessages& messageBox);

    void ask(const QString& controlName, Place place) override;

private:
    QString question(const QString& controlName) const;

    SharedRecords& m_records;
    UserMessages& m_messageBox;
};

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
