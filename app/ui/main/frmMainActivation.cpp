#include "core/CommandLine.h"
#include "core/OutputDerivation.h"
#include "core/Paths.h"
#include "i18n/Captions.h"
#include "i18n/Controls.h"
#include "ui/form/AccessKeys.h"
#include "ui/form/FormRegistry.h"
#include "ui/main/frmMain.h"
#include "ui_frmMain.h"

#include <QMenu>

namespace {

constexpr int kShortestPendingLine = 5; ///< characters of a command line that lets the window start afresh

bool isBlank(const QString& text) {
    return text.trimmed().isEmpty();
}

} // namespace

void frmMain::Form_Load() {
    SharedRecords& records = m_ports.records;
    if (records.flags.strCommandLine.size() >= kShortestPendingLine)
        records.flags.blnCloseRequested = false;
    applyLanguage();
    captionMenu();
    showSource();
    records.job.strOutputShown = extensionOf(records.settings.intOutputFormat, FormatChoice::All);
    if (records.settings.intConvertFrom != 0) {
        m_ui->chkFromTo->setValue(true);
        m_ui->lblFrom->setEnabled(true);
    } else {
        m_ui->chkAllPages->setValue(true);
        m_ui->chkFromTo->setValue(false);
        m_ui->txtFrom->setEnabled(false);
    }
    showOutputAtLoading();
    const bool usesWizard = records.settings.intUseWiz != 0;
    m_ui->cmdBrowseOutput->setEnabled(usesWizard && !isBlank(m_ui->txtfilepath->text()));
    m_ui->chkFromTo->setEnabled(usesWizard);
    m_ui->chkOpenDocEditing->setChecked(records.settings.intLauchMs != 0);
    m_ui->cmdBrowse->setFocus();
}

void frmMain::Form_Activate() {
    SharedRecords& records = m_ports.records;
    applyLanguage();
    records.flags.intWordOpened = 0;
    if (records.job.strPageRange.isEmpty())
        records.job.strPageRange = "1";
    m_ui->txtFrom->setText(records.job.strPageRange);
    captionMenu();
    setCaption(*m_ui->lblExtimgWiz, GetCaption(m_ports.languages, "mnuExtimgWiz"));
    showSource();
    m_ui->txtFileBrowsePath->setToolTip(records.job.strSourcePDF);
    if (isBlank(m_ui->txtfilepath->text()))
        m_ui->cmdBrowseOutput->setEnabled(false);
    showOutputAtActivation();
    showOutputFormat();
    showFinishedDocument();
    actOnCommandLine();
    showPageChoice();
    m_ui->cmdBrowseOutput->setEnabled(!isBlank(m_ui->txtfilepath->text()));
    m_ui->chkOpenDocEditing->setChecked(records.settings.intLauchMs != 0);
    showBanner();
    putOneColonBehindFormatCaption();
    nameControls();
}

void frmMain::applyLanguage() {
    SelectLanguage(m_ports.languages, m_ports.records.settings.intLanguageID);
    GetControlCaptions(m_ports.languages, *this);
    m_ui->cmdBrowseOutput->setText(m_ui->cmdBrowse->text());
}

void frmMain::captionMenu() {
    for (QAction* entry : mnuConvert->actions())
        if (!entry->isSeparator())
            entry->setText(GetCaption(m_ports.languages, entry->objectName()));
}

void frmMain::showSource() {
    const ConversionJob& job = m_ports.records.job;
    m_ui->txtfilepath->setText(job.strSourcePDF);
    m_ui->txtFileBrowsePath->setText(job.strSourcePDF);
    m_ui->txtFileSize->setText(job.strFileSizeText);
}

/// Without a source there is no output either.
void frmMain::showNoSourceAsOutput() {
    if (isBlank(m_ui->txtfilepath->text()))
        m_ui->txtfilepathOutput->setText(m_ui->txtfilepath->text());
}

void frmMain::showOutputAtLoading() {
    const SharedRecords& records = m_ports.records;
    if (records.flags.blnHomeFolderKnown) {
        m_ui->txtfilepathOutput->setText(records.job.strOutputFile);
        return;
    }
    m_ui->txtfilepathOutput->setText(outputShownAtLoading(records, m_strOutputName));
    showNoSourceAsOutput();
}

void frmMain::showOutputAtActivation() {
    SharedRecords& records = m_ports.records;
    QString& strOutputFile = records.job.strOutputFile;
    if (!records.flags.blnHomeFolderKnown) {
        m_ui->txtfilepathOutput->setText(outputShownAtActivation(records, m_strOutputName));
        showNoSourceAsOutput();
        strOutputFile = m_ui->txtfilepathOutput->text();
    } else if (!hasDocumentExtension(strOutputFile)) {
        m_ui->txtfilepathOutput->setText(outputShownInItsFolder(records, m_strOutputName));
        strOutputFile = m_ui->txtfilepathOutput->text();
    } else {
        m_ui->txtfilepathOutput->setText(strOutputFile);
    }
}

void frmMain::showOutputFormat() {
    ConversionJob& job = m_ports.records.job;
    if (hasDocumentExtension(job.strOutputFile))
        job.strOutputShown = extensionIn(job.strOutputFile).toLower();
    showNoSourceAsOutput();
    if (!m_ui->txtfilepath->text().isEmpty() && !m_ui->txtfilepathOutput->text().isEmpty())
        m_ui->lblOutputFormatDoc->setText(job.strOutputShown);
}

void frmMain::showPageChoice() {
    const std::int16_t intConvertFrom = m_ports.records.settings.intConvertFrom;
    m_ui->chkFromTo->setEnabled(true);
    if (intConvertFrom == 0) {
        m_ui->chkAllPages->setValue(true);
        m_ui->chkFromTo->setValue(false);
        m_ui->lblFrom->setEnabled(false);
        m_ui->txtFrom->setEnabled(false);
    } else if (intConvertFrom == 1) {
        m_ui->chkFromTo->setValue(true);
        m_ui->txtFrom->setEnabled(true);
    } else {
        m_ui->chkAllPages->setValue(false);
        m_ui->chkFromTo->setValue(true);
        m_ui->lblFrom->setEnabled(true);
        m_ui->txtFrom->setEnabled(false);
    }
}

void frmMain::actOnCommandLine() {
    const RunFlags& flags = m_ports.records.flags;
    if (!isCommandLinePending(flags))
        return;
    switch (fileOnCommandLine(flags.strCommandLine)) {
    case CommandLineFile::WordDocument:
        return refuseCommandLine("Please open document in MS Word and click <Create PDF> Plug-in, \n"
                                 "if you want to convert this document in PDF.");
    case CommandLineFile::Other:
        return refuseCommandLine("Sorry! Tavrelion does not support the requested file format.");
    case CommandLineFile::Pdf:
        break;
    }
    menuOption();
    InitialiseOutputOptions();
    if (flags.intWizardCancelled != 1)
        imgConvert_Click();
}

void frmMain::refuseCommandLine(const QString& text) {
    m_ports.messageBox.tell(UserMessages::Icon::Information, text, kWindowTitle);
    registry().endProgram();
}

void frmMain::menuOption() {
    takeCommandLine(m_ports.records, m_intDirectRun);
    m_ui->txtfilepath->setText(m_ports.records.queue.strCurrentFile);
    m_ui->txtFileBrowsePath->setText(m_ports.records.queue.strCurrentFile);
}

void frmMain::showBanner() {
    const bool isBatch = !isBlank(m_ui->txtfilepath->text()) && m_ports.records.queue.lngSelectedBound >= 1;
    m_ui->lblPlzBrowse->setVisible(!isBatch);
    m_ui->lblBatchInProcess->setVisible(isBatch);
}

void frmMain::putOneColonBehindFormatCaption() {
    m_ui->lblOutputformat->setText(m_ui->lblOutputformat->text().remove(':') + ':');
}

/// What the keyboard and a screen reader need beside the captions.
void frmMain::nameControls() {
    m_ui->imgDropDown->setAccessibleName(withoutMnemonic(m_ui->lblConvert->text()));
    m_ui->cmdBrowse->setAccessibleDescription(withoutMnemonic(m_ui->lblFilePath->text()));
    m_ui->cmdBrowseOutput->setAccessibleDescription(withoutMnemonic(m_ui->lblOutputfilepath->text()));
    m_ui->txtFrom->setAccessibleName(withoutMnemonic(m_ui->lblFrom->text()));
    assignAccessKeys(*this);
}
