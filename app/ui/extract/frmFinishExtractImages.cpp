#include "ui/extract/frmFinishExtractImages.h"

#include "core/ProgressRun.h"
#include "services/ErrorTrap.h"
#include "ui/extract/frmImageFormatOutput.h"
#include "ui/form/Picture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

frmFinishExtractImages::frmFinishExtractImages(FormRegistry& registry, PagePorts ports)
    : WizardPage(registry, std::move(ports), "frmFinishExtractImages", "Picture1", Closing::AsksFirst) {
    loadPicture(*frame().picture("imgExtract"), "extract_images.svg");
    frame().title("lblOutputSummary");
    QLabel* folderTitle = frame().heading("lblOutputPath", "Output Path is:");
    lblOutPath = frame().shownText("lblOutPath", *folderTitle);
    frame().row({lblOutPath});
    lblImageFor = frame().label("lblImageFor");
    frame().line(frame().label("lblImageFormat", "Image Format:"), {lblImageFor});
    lblAllPages = frame().label("lblAllPages", "All Pages");
    lblFrom = frame().label("lblFrom", "From");
    lblFromVal = frame().shownText("lblFromVal", *lblFrom);
    frame().line(frame().label("lblPageRange", "Page range to convert:"), {lblAllPages, lblFrom, lblFromVal});
    frame().stretch();
    cmdBack = frame().button(PageFrame::Button::Back);
    cmdNext = frame().button(PageFrame::Button::Next);
    cmdNext->setEnabled(false);
    cmdFinish = frame().button(PageFrame::Button::Finish);
    cmdCancel = frame().button(PageFrame::Button::Cancel);
    connectHandlers();
}

void frmFinishExtractImages::connectHandlers() {
    connect(cmdBack, &QPushButton::clicked, this, &frmFinishExtractImages::cmdBack_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmFinishExtractImages::cmdCancel_Click);
    connect(cmdFinish, &QPushButton::clicked, this, &frmFinishExtractImages::cmdFinish_click);
}

void frmFinishExtractImages::Form_Load() {
    showPages();
}

void frmFinishExtractImages::Form_Activate() {
    showPages();
    lblImageFor->setText(job().strImageFormat);
    lblOutPath->setText(job().strImageFolder);
    lblOutPath->setCursorPosition(0);
}

void frmFinishExtractImages::showPages() {
    applyLanguage();
    const auto formatPage = page<frmImageFormatOutput>();
    const bool isList = formatPage->intExtractFromTo != 0;
    lblAllPages->setVisible(!isList);
    lblFrom->setVisible(isList);
    lblFromVal->setVisible(isList);
    if (isList)
        lblFromVal->setText(formatPage->strExtractPages);
}

void frmFinishExtractImages::cmdFinish_click() {
    const auto alive = held();
    // With a double n here, unlike the window's own name: support searches logs for both spellings.
    const ErrorTrap trap("frmFinnishExtractImages", "cmdFinish_click");
    trap([this] {
        records().flags.intRunKind = run_kind::kExtractImages;
        goToProgress();
    });
}

void frmFinishExtractImages::cmdBack_Click() {
    job().strImageFolder = lblOutPath->text();
    goTo<frmImageFormatOutput>();
}

void frmFinishExtractImages::cmdCancel_Click() {
    leaveWizard();
}
