#include "core/SizeText.h"
#include "core/SourceSelection.h"
#include "services/SkippingErrors.h"
#include "ui/main/frmMain.h"
#include "ui_frmMain.h"

namespace {

constexpr qsizetype kLongestSelection = 4096; ///< characters; a longer one counts as cancelled

} // namespace

void frmMain::cmdBrowse_Click() {
    const auto alive = held();
    SharedRecords& records = m_ports.records;
    const QString& recent = records.settings.strRecentFolder;
    skippingErrors([&] {
        const auto answer =
            m_ports.fileDialogs.open({"Open", recent.isEmpty() ? m_ports.languages.applicationFolder : recent,
                                      "PDF Files (*.pdf)|*.pdf", kLongestSelection});
        if (!answer)
            return;
        switch (takeSelection(records, m_ports.files, *answer)) {
        case Selection::Nothing:
            return;
        case Selection::NotPdf:
            m_ports.refusals.refuse("txtInvalidFileFormat");
            // What the commands test is empty now, so a refused selection cannot be converted.
            return m_ui->txtfilepath->clear();
        case Selection::Taken:
            return showSelection();
        }
    });
}

void frmMain::showSelection() {
    SharedRecords& records = m_ports.records;
    const QString& path = records.queue.strCurrentFile;
    m_ui->txtfilepath->setText(path);
    m_ui->txtFileBrowsePath->setText(path);
    m_ui->txtFileBrowsePath->setToolTip(path);
    m_ui->txtFileSize->setText(sizeText(m_ports.files.size(path)));
    records.job.strFileSizeText = m_ui->txtFileSize->text();
    m_ui->cmdBrowseOutput->setEnabled(true);
    showFinishedDocument({});
    skippingErrors([this] { InitialiseOutputOptions(); });
}

void frmMain::txtFileBrowsePath_GotFocus() {
    if (m_ui->cmdBrowse->isEnabled())
        m_ui->cmdBrowse->setFocus();
}

void frmMain::txtFileSize_GotFocus() {
    m_ui->cmdBrowse->setFocus();
}
