#include "ui/dialogs/EnglishPasswordPrompt.h"

#include <QApplication>
#include <QInputDialog>

EnglishPasswordPrompt::EnglishPasswordPrompt(SharedRecords& records, std::function<void()> giveUpFile)
    : m_records(records)
    , m_giveUpFile(std::move(giveUpFile)) {}

void EnglishPasswordPrompt::ask(Password wanted) {
    const QString label = wanted == Password::Owner ? "Owner Password" : "User Password";
    bool isEntered = false;
    const QString password =
        QInputDialog::getText(QApplication::activeWindow(), kWindowTitle, label, QLineEdit::Password, {}, &isEntered);
    m_records.flags.intDialogAnswer = isEntered ? 1 : 0;
    if (isEntered)
        m_records.job.strPdfPassword = password;
    else
        m_giveUpFile();
}
