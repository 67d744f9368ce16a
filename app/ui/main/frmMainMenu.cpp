#include "core/OutputDerivation.h"
#include "core/ProgressRun.h"
#include "ui/main/frmMain.h"
#include "ui_frmMain.h"

#include <QMenu>

namespace {

// From the arrow to the menu. Units: twips.
constexpr int kMenuToTheLeft = 2300;
constexpr int kMenuBelow = 100;
constexpr int kTwipsPerPixel = 15;

/// Other than the convert command, the menu knows only the extension in small letters.
bool isPdfInSmallLetters(const QString& path) {
    return path.right(4) == ".pdf";
}

} // namespace

void frmMain::makeMenu() {
    mnuConvert = new QMenu(this);
    const auto addEntry = [this](const char* name, const char* caption, void (frmMain::*handler)()) {
        QAction* entry = mnuConvert->addAction(caption);
        entry->setObjectName(name);
        connect(entry, &QAction::triggered, this, handler);
    };
    addEntry("mnuconvwiz", "Convert Using Wizard...", &frmMain::mnuconvwiz_Click);
    addEntry("mnusaveDoc", "Save as DOC", &frmMain::mnusaveDoc_Click);
    addEntry("mnuSaveRTF", "Save as RTF", &frmMain::mnuSaveRTF_Click);
    mnuConvert->addSeparator()->setObjectName("mnusep1");
    addEntry("mnuExtimgWiz", "Extract Images Using Wizard...", &frmMain::mnuExtimgWiz_Click);
}

void frmMain::imgDropDown_Click() {
    // A path that is not empty when trimmed still has to end in ".pdf", so the one test says it all.
    const bool hasPdf = isPdfInSmallLetters(m_ui->txtfilepath->text());
    for (QAction* entry : mnuConvert->actions())
        if (!entry->isSeparator())
            entry->setEnabled(hasPdf);
    const QPoint arrow = m_ui->imgDropDown->mapTo(this, QPoint());
    mnuConvert->popup(mapToGlobal(QPoint(arrow.x() - kMenuToTheLeft / kTwipsPerPixel,
                                         arrow.y() + m_ui->imgDropDown->height() + kMenuBelow / kTwipsPerPixel)));
}

void frmMain::mnuconvwiz_Click() {
    const auto alive = held();
    SharedRecords& records = m_ports.records;
    records.flags.blnCloseRequested = false;
    if (!isPdfInSmallLetters(m_ui->txtfilepath->text()))
        return;
    takeSource();
    DeriveOutputPath(records, m_strOutputName, FormatChoice::DocOrRtf);
    records.job.intOpenDocEditing = records.settings.intLauchMs != 0 ? 1 : 0;
    m_ports.nextWindows.showOutputOptions();
    hide();
}

void frmMain::mnuExtimgWiz_Click() {
    const auto alive = held();
    m_ports.records.flags.blnCloseRequested = false;
    if (m_ui->txtfilepath->text().isEmpty())
        return;
    takeSource();
    m_ports.nextWindows.showImageFormatOutput();
    hide();
}

void frmMain::mnusaveDoc_Click() {
    saveAs(output_format::kDoc);
}

void frmMain::mnuSaveRTF_Click() {
    saveAs(output_format::kRtf);
}

void frmMain::saveAs(std::int16_t intOutputFormat) {
    const auto alive = held();
    SharedRecords& records = m_ports.records;
    records.flags.blnCloseRequested = false;
    if (m_ui->txtfilepath->text().isEmpty())
        return;
    takeSource();
    records.job.strOutputFile = outputBesideSource(records, intOutputFormat);
    records.settings.intOutputFormat = intOutputFormat; // and it stays for later commands
    records.flags.intRunKind = run_kind::kConvert;
    m_ports.nextWindows.showProgressAndWait();
}
