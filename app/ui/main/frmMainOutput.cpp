#include "core/OutputDerivation.h"
#include "core/Paths.h"
#include "services/SkippingErrors.h"
#include "ui/main/frmMain.h"
#include "ui_frmMain.h"

namespace {

constexpr std::int16_t kFirstReleaseWithDocx = 2007;

/// The row of a format in the filter of all three. It is asked for in the shorter filters too, where it means another
/// format or none; users know it so.
int filterRowOf(std::int16_t intOutputFormat) {
    switch (intOutputFormat) {
    case output_format::kDocx:
        return 1;
    case output_format::kDoc:
        return 2;
    default:
        return 3;
    }
}

/// The format of an extension as the save dialog takes it: what is neither DOCX nor RTF is DOC.
std::int16_t savedFormat(const QString& extension) {
    if (extension == ".docx")
        return output_format::kDocx;
    return extension == ".rtf" ? output_format::kRtf : output_format::kDoc;
}

} // namespace

void frmMain::InitialiseOutputOptions() {
    SharedRecords& records = m_ports.records;
    ConversionJob& job = records.job;
    // The mode of this window follows the home folder, whatever the settings hold.
    records.settings.intOutputPath =
        records.flags.blnHomeFolderKnown ? output_mode::kBesideSource : output_mode::kRecentFolder;
    const QString source = m_ui->txtfilepath->text();
    if (source.right(4).toUpper() != ".PDF")
        return;
    job.strSourcePDF = source;
    DeriveOutputPath(records, m_strOutputName, FormatChoice::All);
    m_ui->txtfilepathOutput->setText(job.strOutputFile);
    if (!job.strOutputFile.isEmpty())
        job.strOutputShown = extensionIn(job.strOutputFile).toLower();
    m_ui->lblOutputFormatDoc->setText(job.strOutputShown);
    if (records.settings.intUseWiz == 1)
        m_ui->cmdBrowseOutput->setEnabled(true);
}

void frmMain::cmdBrowseOutput_Click() {
    const auto alive = held();
    skippingErrors([this] {
        if (const auto fileName = m_ports.fileDialogs.save(saveRequest()))
            takeSavedName(*fileName);
    });
}

FileDialogs::SaveRequest frmMain::saveRequest() const {
    const SharedRecords& records = m_ports.records;
    FileDialogs::SaveRequest request;
    request.title = "Save As";
    if (m_ports.files.exists(records.queue.strCurrentFile)) {
        const QString name = nameOf(records.queue.strCurrentFile);
        request.fileName = name.left(std::max<qsizetype>(name.lastIndexOf(".pdf", -1, Qt::CaseInsensitive), 0));
    }
    request.initialFolder = folderOf(records.job.strOutputFile);
    request.filter = "RTF Files (*.rtf)|*.rtf";
    if (m_ports.IsMSWordInstalled() == 0)
        return request;
    request.filter.prepend("DOC Files (*.doc)|*.doc|");
    if (m_ports.CheckMSWord() >= kFirstReleaseWithDocx)
        request.filter.prepend("DOC Files (*.docx)|*.docx|");
    request.filterRow = filterRowOf(records.settings.intOutputFormat);
    return request;
}

void frmMain::takeSavedName(const QString& fileName) {
    QString& strOutputFile = m_ports.records.job.strOutputFile;
    strOutputFile = fileName;
    if (!hasDocumentExtension(strOutputFile))
        return m_ports.refusals.refuse("txtInvalidFileFormatOutput");
    if (m_ports.IsMSWordInstalled() == 0 && extensionIn(strOutputFile).toLower() != ".rtf") {
        m_ports.messageBox.tell(UserMessages::Icon::Information, "MS Word not installed. Only rtf format allowed.",
                                kWindowTitle);
        strOutputFile = stemOf(strOutputFile) + ".rtf";
    }
    showSavedName();
}

void frmMain::showSavedName() {
    SharedRecords& records = m_ports.records;
    const QString& strOutputFile = records.job.strOutputFile;
    m_ui->txtfilepathOutput->setText(strOutputFile);
    if (!records.flags.blnHomeFolderKnown) {
        if (m_strOutputName.trimmed().isEmpty())
            m_strOutputName = outputNameOf(records.job.strSourcePDF,
                                           extensionOf(records.settings.intOutputFormat, FormatChoice::All));
        showNoSourceAsOutput();
    }
    m_ui->lblOutputFormatDoc->setText(extensionIn(strOutputFile));
    records.settings.intOutputFormat = savedFormat(m_ui->lblOutputFormatDoc->text().toLower());
}
