#include "ui/dialogs/EnglishDialogs.h"

#include <QApplication>
#include <QInputDialog>

EnglishYesNoDialog::EnglishYesNoDialog(SharedRecords& records, UserMessages& messageBox)
    : m_records(records)
    , m_messageBox(messageBox) {}

QString EnglishYesNoDialog::question(const QString& controlName) const {
    if (controlName == "lblAlreadyExists")
        return m_records.job.strOutputFile + " already exists.\nDo you want to replace it?";
    if (controlName == "lblCancelConversion")
        return "Do you want to cancel conversion process?";
    if (controlName == "msgDocumentGenerationComplete")
        return "Document Generation complete.Do you want to view the document?";
    return "Do you really wish to Exit Tavrelion ?";
}

void EnglishYesNoDialog::ask(const QString& controlName, Place) {
    const auto answer = m_messageBox.ask(question(controlName), kWindowTitle);
    m_records.flags.intDialogAnswer = answer == UserMessages::Answer::Yes ? 1 : 0;
}

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
