#include "core/OutputDerivation.h"
#include "core/PageNumberPair.h"
#include "core/Paths.h"
#include "core/ProgressRun.h"
#include "services/ErrorTrap.h"
#include "services/SkippingErrors.h"
#include "ui/main/frmMain.h"
#include "ui_frmMain.h"

#include <QDir>

namespace {

constexpr int kShortestFolder = 3; ///< characters, of "C:\"

/// The format of an extension as a run takes it: what is neither DOCX nor DOC is RTF, other than in the save dialog.
std::int16_t runFormat(const QString& extension) {
    if (extension == ".docx")
        return output_format::kDocx;
    return extension == ".doc" ? output_format::kDoc : output_format::kRtf;
}

} // namespace

void frmMain::imgConvert_Click() {
    const auto alive = held();
    SharedRecords& records = m_ports.records;
    if (CheckXMLExists(m_ports.languages, records.settings.intLanguageID) == LanguageFiles::Missing)
        return showForm();
    if (!ValidatePageRange())
        return;
    records.flags.blnCloseRequested = false;
    if (m_ui->txtfilepath->text().trimmed().isEmpty())
        m_ports.refusals.refuse("txtSelectPDFFile");
    if (m_ui->txtfilepath->text().right(4).toUpper() != ".PDF")
        return;
    takeWindowIntoRecords();
    if (!CollectMainOptions())
        return;
    if (records.settings.intUseWiz != 0) {
        m_ports.nextWindows.showLayout();
        return hide();
    }
    records.flags.intRunKind = run_kind::kConvert;
    if (m_ui->chkOpenDocEditing->isChecked() || m_intDirectRun == 1)
        records.job.intOpenDocEditing = 1;
    hide();
    m_ports.nextWindows.showProgress();
}

void frmMain::takeWindowIntoRecords() {
    SharedRecords& records = m_ports.records;
    AppSettings& settings = records.settings;
    records.job.strSourcePDF = m_ui->txtfilepath->text();
    DeriveOutputPath(records, m_strOutputName, FormatChoice::All);
    if (m_ui->chkAllPages->value()) {
        settings.intConvertFrom = 0;
        settings.intPromptPageRange = 0;
    } else if (m_ui->chkFromTo->value()) {
        settings.intConvertFrom = 1;
    }
    records.job.strPageRange = m_ui->txtFrom->text().trimmed();
    records.job.strFileSizeText = m_ui->txtFileSize->text();
    records.job.intOpenDocEditing = settings.intLauchMs != 0 ? 1 : 0;
}

bool frmMain::CollectMainOptions() {
    SharedRecords& records = m_ports.records;
    ConversionJob& job = records.job;
    if (m_ui->chkFromTo->value() && m_ui->txtFrom->text().isEmpty()) {
        m_ports.refusals.refuse("txtIncompleteRange");
        return false;
    }
    job.strOutputFile = m_ui->txtfilepathOutput->text();
    skippingErrors([this] { rememberOutputFolder(); });
    job.strOutputShown = m_ui->lblOutputFormatDoc->text();
    if (m_ui->chkFromTo->value())
        job.intUseFromTo = page_numbers::kGiven;
    if (m_ui->chkAllPages->value()) {
        job.intUseFromTo = page_numbers::kNotGiven;
        records.settings.intPromptPageRange = 0;
    }
    job.strPageRange = m_ui->txtFrom->text().trimmed();
    records.settings.intOutputFormat = runFormat(m_ui->lblOutputFormatDoc->text().toLower());
    job.intOpenDocEditing = m_ui->chkOpenDocEditing->isChecked() ? 1 : 0;
    // Taking the tick off for one job clears the setting for later ones too.
    if (!m_ui->chkOpenDocEditing->isChecked())
        records.settings.intLauchMs = 0;
    return true;
}

/// The remembered source folder is in truth the folder of the last output.
void frmMain::rememberOutputFolder() {
    QString folder = folderOf(m_ports.records.job.strOutputFile);
    if (!folder.endsWith(QDir::separator()) && folder.size() < kShortestFolder)
        folder += QDir::separator();
    m_ports.records.settings.strRecentFolder = folder;
}

void frmMain::imgExtractImages_Click() {
    const auto alive = held();
    const ErrorTrap trap("frmMain", "imgExtractImages_Click");
    trap([this] {
        SharedRecords& records = m_ports.records;
        if (CheckXMLExists(m_ports.languages, records.settings.intLanguageID) == LanguageFiles::Missing)
            return;
        if (!ValidatePageRange())
            return;
        records.flags.blnCloseRequested = false;
        const bool allPages = m_ui->chkAllPages->value();
        m_ports.nextWindows.chooseImagePages(allPages ? NextWindows::ImagePages::All : NextWindows::ImagePages::List);
        records.settings.intConvertFrom = allPages ? 0 : 1;
        if (m_ui->txtfilepath->text().trimmed().isEmpty())
            return m_ports.refusals.refuse("txtSelectPDFFile");
        handImagesOver();
    });
}

void frmMain::handImagesOver() {
    SharedRecords& records = m_ports.records;
    ConversionJob& job = records.job;
    takeSource();
    job.strImageFormat = m_ports.nextWindows.sameSourceImagesCaption();
    if (m_ui->chkFromTo->value())
        job.strPageRange = m_ui->txtFrom->text().trimmed();
    m_ports.nextWindows.setImagePages(job.strPageRange, records.settings.intConvertFrom);
    const QString output = m_ui->txtfilepathOutput->text();
    job.strImageFolder = hasDocumentExtension(output) ? folderWithSeparator(output) : output;
    m_ports.nextWindows.showImageFormatOutput();
    hide();
}

void frmMain::takeSource() {
    m_ports.records.job.strSourcePDF = m_ui->txtfilepath->text();
    m_ports.records.job.strFileSizeText = m_ui->txtFileSize->text();
}
