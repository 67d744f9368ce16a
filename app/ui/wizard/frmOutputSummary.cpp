#include "ui/wizard/frmOutputSummary.h"

#include "core/PageNumberPair.h"
#include "core/ProgressRun.h"
#include "core/ReconstructionMode.h"
#include "services/ErrorTrap.h"
#include "settings/SettingsFile.h"
#include "ui/form/Picture.h"
#include "ui/wizard/ShownPath.h"
#include "ui/wizard/frmPageRange.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kImage9Size = 20;

void showShortened(QLineEdit& box, const QString& path) {
    box.setText(shortenedPath(path));
    box.setToolTip(path);
    box.setCursorPosition(0);
}

} // namespace

frmOutputSummary::frmOutputSummary(FormRegistry& registry, PagePorts ports)
    : WizardPage(registry, std::move(ports), "frmOutputSummary", "picMain", Closing::AsksFirst) {
    loadPicture(*frame().picture("imgSummary"), "summary.svg");
    frame().title("lblOutputSummary");
    addLines();
    frame().stretch();
    cmdBack = frame().button(PageFrame::Button::Back);
    cmdFinish = frame().button(PageFrame::Button::Finish);
    connectHandlers();
}

void frmOutputSummary::addLines() {
    QLabel* sourceTitle = frame().heading("lblFilePath", "File Path");
    txtSourcePath = frame().shownText("txtSourcePath", *sourceTitle);
    frame().row({txtSourcePath});
    QLabel* outputTitle = frame().heading("lblOutputfilepath", "Output File Path");
    txtOutputPath = frame().shownText("txtOutputPath", *outputTitle);
    frame().row({txtOutputPath});

    lblOutFormat = frame().label("lblOutFormat");
    frame().line(frame().label("lblOutputformat", "Output format"), {lblOutFormat});
    lblAllPages = frame().label("lblAllPages", "All Pages");
    lblFrom = frame().label("lblFrom", "Page Numbers:");
    lblFromVal = frame().shownText("lblFromVal", *lblFrom);
    lblTo = frame().label("lblTo", "to");
    lblToVal = frame().label("lblToVal");
    frame().line(frame().label("lblConvertPages", "Convert Pages"),
                 {lblAllPages, lblFrom, lblFromVal, lblTo, lblToVal});
    lblLayoutSel = frame().label("lblLayoutSel");
    lblLayoutSel->setWordWrap(true);
    frame().line(frame().label("lblLayoutselected", "Layout Selected"), {lblLayoutSel});
    cmdYes = frame().label("cmdYes", "Automatic Anchoring");
    cmdNo = frame().label("cmdNo", "Remove Images");
    frame().line(frame().label("lblRecoverImages", "Recover Images"), {cmdYes, cmdNo});
    lblCharacterSpacing = frame().label("lblCharacterSpacing", "Character Spacing");
    lblCharSpacing = frame().label("lblCharSpacing");
    lblCharSpacing->setWordWrap(true);
    Image9 = frame().icon("Image9", kImage9Size);
    loadPicture(*Image9, "spacing.svg");
    frame().line(lblCharacterSpacing, {Image9, lblCharSpacing});
}

void frmOutputSummary::connectHandlers() {
    connect(cmdBack, &QPushButton::clicked, this, &frmOutputSummary::cmdBack_Click);
    connect(cmdFinish, &QPushButton::clicked, this, &frmOutputSummary::cmdFinish_Click);
    for (QLineEdit* box : {txtSourcePath, txtOutputPath})
        box->installEventFilter(this);
}

bool frmOutputSummary::eventFilter(QObject* watched, QEvent* event) {
    const bool gotFocus = event->type() == QEvent::FocusIn && (watched == txtSourcePath || watched == txtOutputPath);
    if (gotFocus)
        cmdFinish->setFocus();
    return WizardPage::eventFilter(watched, event);
}

void frmOutputSummary::showPaths() {
    showShortened(*txtSourcePath, job().strSourcePDF);
    showShortened(*txtOutputPath, job().strOutputFile);
    lblOutFormat->setText(job().strOutputShown);
}

void frmOutputSummary::showAllPages() {
    for (QWidget* part : {static_cast<QWidget*>(lblFrom), static_cast<QWidget*>(lblFromVal),
                          static_cast<QWidget*>(lblTo), static_cast<QWidget*>(lblToVal)})
        part->hide();
    lblAllPages->show();
}

void frmOutputSummary::Form_Load() {
    applyLanguage();
    showPaths();
    if (job().intUseFromTo != page_numbers::kNotGiven) {
        // The fields of the page prompt, of the first visit only; the activation writes its own over most of them.
        lblAllPages->hide();
        lblFromVal->setText(QString::number(settings().intConvertFrom));
        lblFromVal->show();
        lblTo->show();
        lblToVal->setText(QString::number(settings().intPromptPageRange));
        lblToVal->show();
    } else {
        showAllPages();
    }
    lblLayoutSel->setText(job().strLayoutCaption);
    lblCharSpacing->setText(job().strCharSpacing);
}

void frmOutputSummary::Form_Activate() {
    applyLanguage();
    showPaths();
    if (settings().intConvertFrom != 0) {
        lblAllPages->hide();
        lblFromVal->setText(job().strPageRange);
        lblFromVal->show();
        lblTo->hide();
    } else {
        showAllPages();
    }
    lblLayoutSel->setText(job().strLayoutCaption);
    const bool isTextOnly = reconstruction_mode::isTextOnly(settings().intReconstMode);
    lblCharacterSpacing->setVisible(!isTextOnly);
    lblCharSpacing->setVisible(!isTextOnly);
    Image9->setVisible(!isTextOnly);
    if (!isTextOnly)
        lblCharSpacing->setText(job().strCharSpacing);
    // The line asks whether images are removed, so a job that keeps them answers with cmdNo. The language files rely
    // on that; the two are not to be swapped.
    const bool keepsImages = settings().intRecoverImg == 1 && !isTextOnly;
    cmdYes->setVisible(!keepsImages);
    cmdNo->setVisible(keepsImages);
}

void frmOutputSummary::cmdFinish_Click() {
    const auto alive = held();
    // Written with a small s here, unlike the window's own name: support searches logs for both spellings.
    const ErrorTrap trap("frmOutputsummary", "cmdFinish_Click");
    trap([this] {
        records().flags.intRunKind = run_kind::kConvert;
        UpdateSettings(records());
        goToProgress();
    });
}

void frmOutputSummary::cmdBack_Click() {
    goTo<frmPageRange>(Errors::Unhandled);
}
